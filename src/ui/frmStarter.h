#pragma once
// "Starter/Kraeusening": the volume of a yeast starter and of young beer for kraeusening, over
// the StarterCalculator model; either can go into the recipe's text windows.
#include <array>

#include "calculators/Starter.h"
#include "ui/CalcWindow.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace zy {

class RecipeEditor;

class frmStarter : public CalcWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Starter";
  static constexpr const char* kHelpPage = "starter.html";

  frmStarter(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Fills the window from the recipe; runs at each opening.
  void load();

  StarterCalculator model;

  QLineEdit *txtVolume = nullptr, *txtGravity = nullptr;
  QLabel *lblVolumeUnits = nullptr, *lblYbox = nullptr, *lblKbox = nullptr;
  std::array<QRadioButton*, 3> optLevel{};
  QPushButton *cmdAddYeast = nullptr, *cmdAddKraeusen = nullptr, *cmdClose = nullptr, *cmdHelp = nullptr;

 protected:
  void opening() override { load(); }

 private:
  void refresh();
  RecipeEditor& editor_;
  bool refreshing_ = false;
};

}  // namespace zy
