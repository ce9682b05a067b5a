#pragma once
// The properties window: seven pages of the user's defaults over PropertiesModel. The model
// holds every box's text, every check and every list selection; this view binds the controls to
// it by their control names and repaints after each command.
#include <QDialog>
#include <map>
#include <string>

#include "core/Properties.h"
#include "workbench/Workbench.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QWidget;
class QGridLayout;

namespace zy {

class frmProperties : public QDialog {
  Q_OBJECT
 public:
  explicit frmProperties(Workbench& wb, QWidget* parent = nullptr);

  // The window's load: fills every control from the in-memory defaults.
  void loadFromDefaults();
  // Apply: the box with the focus is left first (as a click on the button would), every box
  // is checked for a number, then applyNewDefaults and the defaults saver run. False when a box
  // was refused (its page is shown and the box has the focus).
  bool apply();

  QLineEdit* field(const std::string& name) const;
  QCheckBox* checkBox(const std::string& name) const;
  QComboBox* comboBox(const std::string& name) const;

  // Folders searched for the label program when chkActivateQuillmark is switched on.
  QStringList quillmarkSearchFolders() const;

  PropertiesModel model;
  QTabWidget* tbsOptions = nullptr;
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdCancel = nullptr;
  QPushButton* cmdApply = nullptr;
  QPushButton* cmdResetRecipe = nullptr;
  QPushButton* cmdResetIngr = nullptr;
  QPushButton* cmdResetWater = nullptr;
  QPushButton* cmdBrowse = nullptr;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* buildUserPage();
  QWidget* buildUnitsPage();
  QWidget* buildRecipePage();
  QWidget* buildIncrementsPage();
  QWidget* buildWaterPage();
  QWidget* buildTreatmentPage();
  QWidget* buildQuillmarkPage();

  QLineEdit* makeEdit(const std::string& name, const QString& tip, int width = 0);
  QCheckBox* makeCheck(const std::string& name, const QString& caption, const QString& tip = {});
  QComboBox* makeCombo(const std::string& name, const QString& tip = {});

  void refresh();         // model -> controls
  void leaveField(QLineEdit* edit);  // reformat on focus loss
  void chkActivateQuillmark_Click();
  void browseQuillmark();
  void enableQuillmarkRows();
  // First box whose text the apply could not take, with the reason; empty when all are fine.
  std::string badField(std::string& reason) const;

  Workbench& wb_;
  std::map<std::string, QLineEdit*> edits_;
  std::map<std::string, QCheckBox*> checks_;
  std::map<std::string, QComboBox*> combos_;
  std::map<std::string, int> fieldPage_;
  QList<QLabel*> volumeUnitLabels_, spargeUnitLabels_;
  QLabel* weightUnitsLabel_ = nullptr;
  QList<QWidget*> quillmarkRows_;
  bool refreshing_ = false;
};

}  // namespace zy
