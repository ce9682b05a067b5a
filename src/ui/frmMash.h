#pragma once
// "Mash Information": the recipe's mash steps as a list with a live plot of the mash curve, over
// the MashSchedule model. The list reads either as holds ("For Each Temp Separately") or as
// points of a time line ("From the Start of the Mash").
#include <array>

#include "calculators/MashSchedule.h"
#include "ui/CalcWindow.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTreeWidget;

namespace zy {

class RecipeEditor;

// The chart of the mash: a staircase of holds, or the points of the time line joined by lines.
class MashChart : public QWidget {
 public:
  MashChart(const MashSchedule& model, QWidget* parent);
  QSize minimumSizeHint() const override { return {320, 220}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const MashSchedule& model_;
};

class frmMash : public CalcWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Mash Information";
  static constexpr const char* kHelpPage = "mash.html";

  frmMash(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Fills the window from the recipe; runs at each opening.
  void load();
  // OK: the steps as holds into the recipe; the window closes.
  void cmdOK_Click();

  // Opens the recipe's units and mash data (unit system, mash type, efficiency, boil time).
  std::function<void()> openUnitMashData;

  MashSchedule model;

  QTreeWidget* lvMash = nullptr;
  std::array<QRadioButton*, 2> optTime{};  // 0 "From the Start of the Mash", 1 "For Each Temp Separately"
  QPushButton *cmdNew = nullptr, *cmdDelete = nullptr, *cmdMoveUp = nullptr, *cmdMoveDn = nullptr;
  QLineEdit *txtTime = nullptr, *txtTemp = nullptr, *txtComment = nullptr;
  QLabel *lblTime = nullptr, *lblTemp = nullptr, *lblComment = nullptr;
  MashChart* plotMash = nullptr;
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr, *cmdHelp = nullptr, *cmdUnitMash = nullptr;

 protected:
  void opening() override { load(); }
  bool mayClose() override;

 private:
  void refresh();
  RecipeEditor& editor_;
  bool refreshing_ = false;
};

}  // namespace zy
