#pragma once
// The list of the open recipe's batch logs: batch number, date brewed and status of each brew,
// with New, Open and Delete. It owns the store's list and the log editor's model, and opens the
// batch log window over them.
#include <QMainWindow>
#include <QPointer>
#include <functional>

#include "batchlog/BatchLogEditor.h"
#include "batchlog/BatchLogStore.h"
#include "workbench/Workbench.h"

class QAction;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace zy {

class RecipeEditor;
class frmBatchLog;

class frmBatchLogList : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Batch Log List";
  frmBatchLogList(Workbench& wb, RecipeEditor& recipe, QWidget* parent = nullptr);

  // Reads the logs of the open recipe. False (after saying why) when the recipe has not been
  // saved yet: a log names its recipe by its place in the recipe file.
  bool loadForOpenRecipe();
  void refreshFromModel();
  // The buttons.
  void cmdNew_Click();
  void cmdOpen_Click();
  void cmdDelete_Click();
  frmBatchLog& logWindow();

  BatchLogList& model() { return list_; }
  BatchLogEditor& editorModel() { return editor_; }
  std::function<void(const QString&)> showHelpTopic;

  QLabel* lblTitle = nullptr;
  QTreeWidget* lvBatchLog = nullptr;
  QPushButton *cmdNew = nullptr, *cmdOpen = nullptr, *cmdDelete = nullptr, *cmdClose = nullptr, *cmdHelp = nullptr;
  // The brewing day form of the open recipe, to fill in by hand on the day.
  QPushButton* cmdBrewDay = nullptr;
  QAction *mnuFilePageSetup = nullptr, *mnuFileBrewDayPreview = nullptr, *mnuFileBrewDayPrint = nullptr,
          *mnuFileClose = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  // Sets the editor's view of the recipe; false when the log window keeps a changed log open.
  bool readyForAnotherLog();
  void showLogWindow();

  Workbench& wb_;
  RecipeEditor& recipe_;
  BatchLogList list_;
  BatchLogEditor editor_{wb_, list_};
  QPointer<frmBatchLog> log_;
  bool painting_ = false;
};

}  // namespace zy
