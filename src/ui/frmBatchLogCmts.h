#pragma once
// The general comments of the batch log in the log window: free text of up to 512 characters,
// which can be read from and written to a text file. Every change marks the log changed.
#include <QMainWindow>
#include <functional>

#include "workbench/Workbench.h"

class QAction;
class QLabel;
class QPlainTextEdit;

namespace zy {

class BatchLogEditor;

class frmBatchLogCmts : public QMainWindow {
  Q_OBJECT
 public:
  frmBatchLogCmts(Workbench& wb, BatchLogEditor& editor, QWidget* parent = nullptr);

  void refreshFromModel();
  void mnuFileImport_Click();
  void mnuFileExport_Click();
  std::function<void()> changed;  // the log window repaints its save button
  std::function<void(const QString&)> showHelpTopic;

  QPlainTextEdit* txtComments = nullptr;
  QLabel* lblCount = nullptr;
  QAction *mnuFileImport = nullptr, *mnuFileExport = nullptr, *mnuFileClose = nullptr, *mnuHelpContents = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Workbench& wb_;
  BatchLogEditor& editor_;
  bool painting_ = false;
};

}  // namespace zy
