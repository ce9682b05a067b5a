#pragma once
// "Recipe Units/Mash Data": the open recipe's unit system, volume unit, mash type, mash
// efficiency and boil time. A thin view over UnitMashData.
#include <QWidget>
#include <functional>

#include "recipes/UnitMashData.h"
#include "workbench/Workbench.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zy {

class RecipeEditor;
class frmHelp;

class frmUnitMashData : public QWidget {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Unit Mash Data";
  static constexpr const char* kHelpPage = "unit-mash-data.html";

  frmUnitMashData(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Fills the window from the current recipe; runs at each opening.
  void load();

  // OK: the fields into the recipe and the editor; the window closes. False when the efficiency
  // was refused (the window stays open with the box selected).
  bool cmdOK_Click();
  void cmdCancel_Click();
  void showHelp();

  // Called after OK has changed the recipe (the editor repaints).
  std::function<void()> applied;
  // Opens a help page; when unset the window opens a help window of its own.
  std::function<void(const QString& page)> openHelp;

  UnitMashData model;

  QLabel* lblRecipe = nullptr;  // the recipe's name
  QComboBox* cboRecipeUnitType = nullptr;
  QComboBox* cboRecipeVolumeUnits = nullptr;
  QComboBox* cboMashType = nullptr;
  QLabel* lblMashEff = nullptr;
  QLineEdit* txtMashEfficiency = nullptr;
  QLineEdit* txtBoilTime = nullptr;
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr, *cmdHelp = nullptr;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void refresh();

  Workbench& wb_;
  RecipeEditor& editor_;
  bool refreshing_ = false;
  bool placed_ = false;
};

}  // namespace zy
