#pragma once
// The print preview ("Print Preview"): one page of a report at a time as a white sheet on a grey
// desk, the view size, the page, and the commands to page through, print and save the report to
// a file. The window is made once and reused for every report (see ReportActions).
#include <QMainWindow>

#include "reports/PreviewModel.h"
#include "ui/HelpButton.h"
#include "workbench/Workbench.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolBar;

namespace zy {

class frmPreview : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Preview";
  static constexpr const char* kHelpPage = "print-preview.html";

  explicit frmPreview(Workbench& wb, QWidget* parent = nullptr);

  // Shows a report from its first page. False (with the model's message) for a report the
  // program does not have; the window then stays as it was.
  bool showReport(const ReportRequest& request);
  // Draws the page the model names at its view size and brings the controls up to date.
  void refresh();

  void mnuViewNext_Click();
  void mnuViewPrevious_Click();
  void mnuFilePrint_Click();
  void mnuFileSave_Click();
  // The view size box: an entry chosen, or a size typed and Enter pressed.
  void cboViewSize_Commit(const QString& text);

  PreviewModel& model() { return model_; }
  HelpOpener showHelpTopic;

  QScrollArea* picViewPort = nullptr;
  QLabel* picPageImage = nullptr;
  QComboBox* cboViewSize = nullptr;
  QLineEdit* txtPageNum = nullptr;
  QToolBar* tbToolBar = nullptr;
  QAction *mnuFilePrint = nullptr, *mnuFileSave = nullptr, *mnuFileClose = nullptr, *mnuViewPrevious = nullptr,
          *mnuViewNext = nullptr, *mnuHelpContents = nullptr;
  QAction *tbPrint = nullptr, *tbNext = nullptr, *tbPrevious = nullptr, *tbSave = nullptr, *tbClose = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void showStates();
  // Scroll bars back to the top-left corner of the page.
  void setScrollValues();

  Workbench& wb_;
  PreviewModel model_;
};

}  // namespace zy
