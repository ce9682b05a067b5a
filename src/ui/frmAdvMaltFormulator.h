#pragma once
// "Advanced Malt Formulator": the recipe's malts and their quantities for a target gravity, with
// the brewer's percentages or with percentages searched to meet a target colour as well, over
// the MaltFormulator model. Export hands the malts back to the recipe.
#include <QMainWindow>
#include <functional>
#include <map>

#include "calculators/MaltFormulator.h"
#include "workbench/Workbench.h"

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;
class QTreeWidget;

namespace zy {

class RecipeEditor;
class UpDown;
class frmHelp;

// A style's range as a bar, with the target marked on it.
class RangeBarView : public QWidget {
 public:
  explicit RangeBarView(QWidget* parent) : QWidget(parent) {}
  void setBar(const RangeBar& bar, const char* numberPattern);
  QSize minimumSizeHint() const override { return {220, 44}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  RangeBar bar_;
  std::string pattern_ = "0.0";
};

class frmAdvMaltFormulator : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Malt Formulator";
  static constexpr const char* kHelpPage = "malt-formulator.html";
  // Columns of lvMalts; the colour and the mash mark stand where the recipe's files expect them.
  enum Column { COL_MALT, COL_TARGET, COL_COMPUTED, COL_QUANTITY, COL_UNITS, COL_EXTRACTION, COL_COLOR, COL_COST, COL_MASH };

  frmAdvMaltFormulator(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Opening on the recipe's malts.
  void load();
  // Repaints after the model was changed from outside (a new recipe's bill, the inventory).
  void refreshFromModel();
  // A caller that fills the model itself (a new recipe's bill) calls this before showing, so
  // that the showing does not reload the recipe's malts over it.
  void keepModelAtNextShow() { loadedByCaller_ = true; }

  void mnuComputeOG_Click();
  void mnuComputeOGColor_Click();
  void mnuFileExport_Click();
  void cmdCopyPct_Click();
  void deleteSelected();

  // Called after the malts reached the recipe (the editor repaints).
  std::function<void()> applied;
  std::function<void(const QString& page)> openHelp;
  // Adds malts from the inventory (it calls the model's addMalt, then refreshFromModel). Until
  // the inventory window provides it, "Add" stays disabled.
  std::function<void(MaltFormulator&)> addFromInventory;
  void setAddFromInventory(std::function<void(MaltFormulator&)> add);

  MaltFormulator model;

  QTreeWidget* lvMalts = nullptr;
  QLineEdit *txtTargetOG = nullptr, *txtTargetColor = nullptr, *txtMashEff = nullptr, *txtCompOG = nullptr,
            *txtCompColor = nullptr, *txtPct = nullptr;
  UpDown *udcTargetOG = nullptr, *udcTargetColor = nullptr;
  QLabel *lblTotal = nullptr, *lblQuantity = nullptr;
  RangeBarView *picRange1 = nullptr, *picRange2 = nullptr;
  QPushButton* cmdCopyPct = nullptr;
  QToolBar* tbToolBar = nullptr;
  std::map<QString, QAction*> tb;  // "Add", "Delete", "Calculate1", "Calculate2", "Close", "Help", "Save"
  QAction *mnuFileExport = nullptr, *mnuFileClose = nullptr, *mnuComputeOG = nullptr, *mnuComputeOGColor = nullptr,
          *mnuComputeResolution0 = nullptr, *mnuEditAdd = nullptr, *mnuEditDelete = nullptr, *mnuHelpContents = nullptr;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void showHelp();
  void leaveBoxes();
  void refresh();
  Workbench& wb_;
  bool refreshing_ = false;
  bool placed_ = false;
  bool loadedByCaller_ = false;
};

}  // namespace zy
