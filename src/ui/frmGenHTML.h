#pragma once
// "Control HTML Generation": how the web page of the open recipe starts and ends, then Generate
// asks for the file and writes it. Modal over the window that opened it; whatever closes it, its
// settings are kept.
#include <QDialog>
#include <functional>

#include "reports/HtmlGenForm.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace zy {

class Workbench;

class frmGenHTML : public QDialog {
  Q_OBJECT
 public:
  explicit frmGenHTML(Workbench& wb, QWidget* parent = nullptr);

  // Generate: true when the page was written (the window then closes).
  bool cmdGenerate_Click();

  // Opens a page of the help (F1, the Help button).
  std::function<void(const QString& page)> showHelpTopic;

  HtmlGenForm model;
  QCheckBox *chkTag = nullptr, *chkBefore = nullptr, *chkAddTitle = nullptr, *chkDownload = nullptr,
            *chkCosts = nullptr, *chkAfter = nullptr, *chkReturn = nullptr, *chkShortName = nullptr,
            *chkUnixName = nullptr;
  QLineEdit *txtTag = nullptr, *txtBefore = nullptr, *txtAddTitle = nullptr, *txtFTP = nullptr, *txtAfter = nullptr;
  QComboBox *cboSize = nullptr, *cboAddTitle = nullptr;
  QPushButton *cmdBefore = nullptr, *cmdAfter = nullptr, *cmdGenerate = nullptr, *cmdCancel = nullptr,
              *cmdHelp = nullptr;

 protected:
  // Every way of closing (Generate, Cancel, Esc, the title bar) stores the settings.
  void done(int result) override;

 private:
  void refresh();
  void refreshEnabled();
  Workbench& wb_;
};

}  // namespace zy
