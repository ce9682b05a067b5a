#pragma once
// The batch log window: one brew of the open recipe as it was really made, from the mash to the
// bottles, with the gravities corrected for their temperature, the extraction points against the
// recipe's target, and the status following the readings. Everything it shows is the
// BatchLogEditor model's; each keystroke goes to the model and the view repaints from it.
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <map>

#include "batchlog/BatchLogEditor.h"
#include "workbench/Workbench.h"

class QAction;
class QCalendarWidget;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;
class QToolButton;
class QTreeWidget;

namespace zy {

class frmBatchLogCmts;

class frmBatchLog : public QMainWindow {
  Q_OBJECT
 public:
  frmBatchLog(Workbench& wb, BatchLogEditor& editor, QWidget* parent = nullptr);

  // Repaints every box, list and label from the model.
  void refreshFromModel();
  // Commands as the menus and buttons run them.
  bool mnuFileSave_Click();
  void mnuEditComments_Click();
  frmBatchLogCmts& comments();

  std::function<void()> saved;  // the list of logs shows the new entry or the new status
  std::function<void(const QString&)> showHelpTopic;

  // Controls, by their names.
  QLabel *lblBatchNo = nullptr, *lblRecipe = nullptr;
  QLineEdit *txtDateBrewed = nullptr, *txtDateCond = nullptr, *txtReadDate = nullptr;
  QToolButton *cmdDate1 = nullptr, *cmdDate2 = nullptr, *cmdDate3 = nullptr;
  QComboBox *cboLogStatus = nullptr, *cboFermType = nullptr, *cboCondition = nullptr, *cboAgedIn = nullptr;
  std::array<QComboBox*, 2> cboContainerUnits{};
  std::map<LogField, QLineEdit*> numberBoxes;
  QLineEdit *txtReadNote = nullptr, *txtCondDetails = nullptr;
  QTreeWidget *lvMash = nullptr, *lvReading = nullptr;
  QPushButton *cmdAddMash = nullptr, *cmdDeleteMash = nullptr, *cmdToday = nullptr, *cmdDelete = nullptr;
  QLabel *lblTime = nullptr, *lblTemp = nullptr, *lblInfusion = nullptr;
  QLabel *lblAdjSG1 = nullptr, *lblAdjSG2 = nullptr, *lblQualPts = nullptr, *lblTargetExt = nullptr, *lblMash = nullptr,
         *lblVolume = nullptr;
  std::vector<QLabel*> lblTempUnits, lblVol;
  QCalendarWidget* monDate = nullptr;
  QToolBar* tbToolBar = nullptr;
  QAction *mnuFileSave = nullptr, *mnuFilePreview = nullptr, *mnuFilePrint = nullptr, *mnuEditComments = nullptr,
          *mnuFileClose = nullptr, *mnuHelpContents = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* numberBox(LogField f, const QString& name, const QString& tip, int width = 64);
  QLineEdit* dateBox(DateField f, const QString& name, const QString& tip);
  QToolButton* calendarButton(DateField f, QLineEdit* box, const QString& name);
  void after();  // repaint, then the focus the model asked for
  void refreshLists();
  QLineEdit* dateWidget(DateField f) const;

  Workbench& wb_;
  BatchLogEditor& ed_;
  QPointer<frmBatchLogCmts> comments_;
  std::map<QObject*, DateField> dateOf_;
  bool painting_ = false;
  bool validating_ = false;
};

}  // namespace zy
