#pragma once
// The hops utilization window: the 18-row curve as a grid with its own cell editor, the preset
// curves, the gravity adjustment mode with its three factors and formula, and the graph of the
// curves. A thin view over HopsUtilizationEditor; it works on a copy of the program-wide curve
// until Accept.
#include <QWidget>
#include <array>
#include <functional>

#include "calculators/HopsUtilizationEditor.h"
#include "workbench/Workbench.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTableWidget;

namespace zy {

class frmHelp;

// The graph: up to three curves over 5 to 90 minutes, 0 to 40 percent, each point's height in
// the model's units (2400 at 0 percent, 48 units a percent); or the model's error message.
class UtilGraphView : public QWidget {
  Q_OBJECT
 public:
  explicit UtilGraphView(QWidget* parent = nullptr);
  void setCurves(const std::vector<UtilGraphCurve>& curves, const QString& error);
  // The colour of the i-th curve (base, first gravity, second gravity).
  static QColor curveColor(int i);
  // The legend text of a curve.
  static QString legendText(const UtilGraphCurve& c);
  QSize sizeHint() const override { return {420, 300}; }
  QSize minimumSizeHint() const override { return {280, 200}; }

  std::vector<UtilGraphCurve> curves;
  QString error;

 protected:
  void paintEvent(QPaintEvent*) override;
};

class frmHopsUtilization : public QWidget {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Hops Utilization";
  static constexpr const char* kHelpPage = "hops-utilization.html";

  explicit frmHopsUtilization(Workbench& wb, QWidget* parent = nullptr);

  // Fills the window from the program-wide curve (wb.hops); runs at each opening.
  void load();

  // Commands.
  void cmdAccept_Click();
  void cmdCancel_Click();
  void showHelp();

  // Called after Accept has stored the curve (the open recipe's bitterness recomputes).
  std::function<void()> accepted;
  // Opens a help page; when unset the window opens a help window of its own.
  std::function<void(const QString& page)> openHelp;

  HopsUtilizationEditor model;

  // Controls, named for the tests.
  QTableWidget* grdUtil = nullptr;
  QLineEdit* txtEdit = nullptr;  // the cell editor laid over the grid
  QLabel* lblTitle = nullptr;
  std::array<QRadioButton*, 3> optGravity{};
  std::array<QLineEdit*, 3> txtFactor{};
  std::array<QLabel*, 3> lblFactor{};
  QStackedWidget* fraFormula = nullptr;
  std::array<QLabel*, 2> lblBottom{}, lblGravity{}, lblTop{}, lblIncrement{};
  UtilGraphView* picGraph = nullptr;
  QPushButton *cmdRager = nullptr, *cmdTinseth = nullptr, *cmdGaretz = nullptr, *cmdReset = nullptr;
  QPushButton *cmdAccept = nullptr, *cmdCancel = nullptr, *cmdPrint = nullptr, *cmdHelp = nullptr;

  bool editorOpen() const { return editRow_ >= 0; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* buildFormulaPage(int k);
  void refresh();
  void refreshFormula();
  // The cell editor (MSHFlexGridEdit): `typed` replaces the cell's text, else the text is kept;
  // the caret stands at the end either way.
  void openEditor(const QString& typed);
  // The editor's text into the current cell through the cell rule; hides the editor.
  void commitEditor();
  void discardEditor();
  int factorIndex(QObject* o) const;

  Workbench& wb_;
  int editRow_ = -1;  // 1..18 while the editor is open
  bool refreshing_ = false;
  bool placed_ = false;
};

}  // namespace zy
