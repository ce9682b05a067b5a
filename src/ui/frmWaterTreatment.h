#pragma once
// "Water Treatment Calculator": six brewing salts against the local water and a target water,
// over the WaterTreatment model. Each salt has a teaspoon box and a gram box that are one
// quantity, and a spinner that steps the box of the chosen increment.
#include <array>

#include "calculators/WaterTreatment.h"
#include "ui/CalcWindow.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace zy {

class RecipeEditor;
class UpDown;

class frmWaterTreatment : public CalcWindow {
  Q_OBJECT
 public:
  static constexpr const char* kHelpPage = "water-treatment.html";
  // Columns of grdChemical on the screen: formula, name, the two boxes, the spinner, six ions.
  static constexpr int kTspColumn = 2, kGramsColumn = 3, kSpinColumn = 4, kFirstIonColumn = 5;

  frmWaterTreatment(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Fills the window from the recipe in the editor; runs at each opening.
  void load();
  // Accept: the salts into the recipe in teaspoons; the window closes.
  void cmdAccept_Click();
  void cmdReset_Click();

  WaterTreatment model;

  QTableWidget *grdChemical = nullptr, *grdTotals = nullptr;
  std::array<QLineEdit*, 1 + kChemicalCount> txtTsp{}, txtGrams{};  // 1..6
  std::array<UpDown*, 1 + kChemicalCount> udcDelta{};
  QComboBox* cboFamous = nullptr;
  QLineEdit* txtVolume = nullptr;
  QLabel* lblVolumeUnits = nullptr;
  std::array<QRadioButton*, 2> optIncrement{};  // "Tsp", "Grams"
  QPushButton *cmdAccept = nullptr, *cmdCancel = nullptr, *cmdReset = nullptr, *cmdDefaults = nullptr,
              *cmdHelp = nullptr;

 protected:
  void opening() override { load(); }
  bool mayClose() override;

 private:
  void refresh();
  RecipeEditor& editor_;
  bool refreshing_ = false;
};

}  // namespace zy
