#pragma once
// "Fermentation/Priming Instructions": the fermentation stages, the carbonation, the container
// and the aging of the open recipe, over the editor's FermentationForm. Every change marks the
// recipe changed.
#include <QDialog>
#include <array>
#include <functional>

#include "workbench/Workbench.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace zy {

struct FermentationForm;

class frmFermentation : public QDialog {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Fermentation";
  frmFermentation(Workbench& wb, FermentationForm& form, QWidget* parent = nullptr);

  // Shows the form's values again (after a recipe was opened).
  void refreshFromModel();
  std::function<void(const QString&)> showHelpTopic;

  std::array<QLineEdit*, 3> txtValue{}, txtTemp{};
  std::array<QComboBox*, 3> cboValueUnits{}, cboVessel{};
  std::array<QLabel*, 3> lblStageTempUnits{};
  std::array<QRadioButton*, 4> optCarbonation{}, optBottling{};
  QPlainTextEdit* txtConditioning = nullptr;
  QCheckBox* chkAge = nullptr;
  QLineEdit *txtAgeValue = nullptr, *txtAgeTemp = nullptr;
  QComboBox* cboAgeUnits = nullptr;
  QLabel* lblTempUnits = nullptr;
  QPushButton *cmdOK = nullptr, *cmdHelp = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;
  // Esc closes the window as OK does, keeping its place.
  void reject() override { close(); }

 private:
  void showAgeState();
  Workbench& wb_;
  FermentationForm& form_;
};

}  // namespace zy
