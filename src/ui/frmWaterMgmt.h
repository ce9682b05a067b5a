#pragma once
// "Water Management": the water balance of the brew day over the WaterManagement model, with the
// "Water Volume Report" drawn in its chart area.
#include "calculators/WaterManagement.h"
#include "ui/CalcWindow.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zy {

class RecipeEditor;

// The chart area: the report's lines, values in a column, units behind them, warnings in red.
class WaterReportChart : public QWidget {
 public:
  WaterReportChart(const WaterManagement& model, QWidget* parent);
  QSize minimumSizeHint() const override { return {360, 300}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const WaterManagement& model_;
};

class frmWaterMgmt : public CalcWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Water Management";
  static constexpr const char* kHelpPage = "water-management.html";

  frmWaterMgmt(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Fills the window from the recipe in the editor; runs at each opening.
  void load();
  // OK: the volumes and rates to the recipe; the window closes.
  void cmdOK_Click();
  // The constants of the balance, on the properties' "Water Management" page.
  void cmdConstants_Click();

  WaterManagement model;

  QLineEdit *txtMashRate = nullptr, *txtSpargeRate = nullptr, *txtSpargeTemp = nullptr, *txtBoilTime = nullptr,
            *txtAddToKettle = nullptr, *txtAddToPrimary = nullptr;
  QLabel *lblGrainMass = nullptr, *lblGrainUnits = nullptr, *lblTargetFinalVolume = nullptr,
         *lblTargetInitialVolume = nullptr;
  QLabel *lblVolMass = nullptr, *lblVolMass2 = nullptr, *lblTempUnits = nullptr, *lblTimeUnits = nullptr;
  QLabel *lblVolumeUnits = nullptr, *lblVolumeUnits2 = nullptr, *lblVolumeUnits3 = nullptr, *lblVolumeUnits4 = nullptr;
  QCheckBox *chkHoldInitialVolume = nullptr, *chkHoldFinalVolume = nullptr, *chkFullBoil = nullptr;
  WaterReportChart* picChart = nullptr;
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr, *cmdConstants = nullptr, *cmdHelp = nullptr;

 protected:
  void opening() override { load(); }

 private:
  void refresh();
  RecipeEditor& editor_;
  bool refreshing_ = false;
};

}  // namespace zy
