#include "ui/frmBatchLogList.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "batchlog/BrewingDayForm.h"
#include "core/measures.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/ReportActions.h"
#include "ui/TopicIcons.h"
#include "ui/frmBatchLog.h"
#include "ui/WindowPlacement.h"

namespace zy {

frmBatchLogList::frmBatchLogList(Workbench& wb, RecipeEditor& recipe, QWidget* parent)
    : QMainWindow(parent), wb_(wb), recipe_(recipe) {
  setWindowFlag(Qt::Window);
  setObjectName("frmBatchLogList");
  setWindowTitle("Batch Logs");
  setWindowIcon(recipeIcon("BatchLog"));

  // The form is drawn from the recipe open in the editor, as it stands.
  auto brewDay = [this] { return brewingDayFormRequest(wb_.recipe.rec, recipe_.sheet); };
  QMenu* file = menuBar()->addMenu("&File");
  mnuFilePageSetup = file->addAction("Print Set&up...", this, [this] { pageSetup(this); });
  mnuFilePageSetup->setToolTip("Paper, orientation and margins for printing");
  mnuFileBrewDayPreview = file->addAction(recipeIcon("Preview"), "Brewing Day Form Pre&view...", this,
                                          [this, brewDay] { previewReport(this, brewDay()); });
  mnuFileBrewDayPreview->setToolTip("A form for this recipe to fill in by hand on brew day");
  mnuFileBrewDayPrint = file->addAction(toolIcon(ToolIcon::Print), "&Print Brewing Day Form", this,
                                        [this, brewDay] { printReportNow(this, brewDay()); });
  mnuFileBrewDayPrint->setToolTip("Print the brewing day form of this recipe");
  file->addSeparator();
  mnuFileClose = file->addAction("&Close", this, &QWidget::close);
  file->setToolTipsVisible(true);

  auto* central = new QWidget(this);
  auto* box = new QVBoxLayout(central);
  lblTitle = new QLabel(central);
  lblTitle->setObjectName("lblTitle");
  box->addWidget(lblTitle);
  auto* row = new QHBoxLayout;
  lvBatchLog = new QTreeWidget(central);
  lvBatchLog->setObjectName("lvBatchLog");
  lvBatchLog->setRootIsDecorated(false);
  lvBatchLog->setUniformRowHeights(true);
  lvBatchLog->setAllColumnsShowFocus(true);
  lvBatchLog->setHeaderLabels({"Batch #", "Date Brewed", "Status"});
  lvBatchLog->setColumnWidth(0, 70);
  lvBatchLog->setColumnWidth(1, 110);
  lvBatchLog->header()->setStretchLastSection(true);
  lvBatchLog->setToolTip("Each brew of the recipe; double-click one to open it");
  row->addWidget(lvBatchLog, 1);
  auto* buttons = new QVBoxLayout;
  auto button = [&](const char* name, const char* text, const char* icon, const char* tip) {
    auto* b = new QPushButton(recipeIcon(icon), text, central);
    b->setObjectName(name);
    b->setToolTip(tip);
    buttons->addWidget(b);
    return b;
  };
  cmdNew = button("cmdNew", "&New", "New", "Start the log of a new brew of this recipe");
  cmdOpen = button("cmdOpen", "&Open", "Open", "Open the selected log");
  cmdDelete = button("cmdDelete", "&Delete", "Delete", "Delete the selected log");
  buttons->addSpacing(8);
  cmdBrewDay = button("cmdBrewDay", "Brewing Day Fo&rm...", "Preview", "A form for this recipe to fill in by hand on brew day");
  connect(cmdBrewDay, &QPushButton::clicked, mnuFileBrewDayPreview, &QAction::trigger);
  buttons->addStretch(1);
  cmdHelp = new QPushButton(toolIcon(ToolIcon::Help), "&Help", central);
  cmdHelp->setObjectName("cmdHelp");
  cmdHelp->setToolTip("Help on the batch log");
  buttons->addWidget(cmdHelp);
  cmdClose = button("cmdClose", "&Close", "", "Close the list");
  cmdClose->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
  row->addLayout(buttons);
  box->addLayout(row, 1);
  setCentralWidget(central);

  connect(cmdNew, &QPushButton::clicked, this, [this] { cmdNew_Click(); });
  connect(cmdOpen, &QPushButton::clicked, this, [this] { cmdOpen_Click(); });
  connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdHelp, &QPushButton::clicked, this, [this] {
    if (showHelpTopic) showHelpTopic("batch-log.html#list");
  });
  connect(lvBatchLog, &QTreeWidget::itemDoubleClicked, this, [this] { cmdOpen_Click(); });
  connect(lvBatchLog, &QTreeWidget::currentItemChanged, this, [this] {
    if (painting_) return;
    list_.select(lvBatchLog->indexOfTopLevelItem(lvBatchLog->currentItem()));
    refreshFromModel();
  });

  refreshFromModel();
  restoreWindowPlacement(*this, wb_.settings, kSection, QSize(420, 300), QPoint(220, 180), QSize(380, 260));
}

bool frmBatchLogList::loadForOpenRecipe() {
  const int recipeNo = wb_.recipe.rec.recipeNo;
  if (recipeNo < 1 || recipeSlotState(wb_, recipeNo) != RecipeSlot::Stored) {
    wb_.prompter.message("Save the Recipe before you keep a Batch Log of it.", "Batch Log", Icon::Information);
    return false;
  }
  // A log of another recipe still open in the log window is closed first (with its question).
  if (log_ && log_->isVisible() && list_.recipeNo != recipeNo) {
    log_->close();
    if (log_->isVisible()) return false;
  }
  list_.loadBatchLogList(wb_, recipeNo);
  refreshFromModel();
  return true;
}

void frmBatchLogList::refreshFromModel() {
  painting_ = true;
  const std::string name = trim(wb_.recipe.rec.recipeName);
  setWindowTitle("Batch Logs - " + qs(name));
  lblTitle->setText(QString("Brews of <b>%1</b>: %2").arg(qs(name).toHtmlEscaped()).arg(list_.entries.size()));
  lvBatchLog->clear();
  for (const BatchLogEntry& e : list_.entries)
    lvBatchLog->addTopLevelItem(new QTreeWidgetItem({qs(e.batchNo), qs(e.dateBrewed), qs(e.status)}));
  if (QTreeWidgetItem* cur = list_.selected >= 0 ? lvBatchLog->topLevelItem(list_.selected) : nullptr) {
    lvBatchLog->setCurrentItem(cur);
    lvBatchLog->scrollToItem(cur);
  }
  cmdDelete->setEnabled(list_.deleteEnabled && list_.selectedEntry());
  cmdOpen->setEnabled(list_.selectedEntry() != nullptr);
  painting_ = false;
}

frmBatchLog& frmBatchLogList::logWindow() {
  if (!log_) {
    log_ = new frmBatchLog(wb_, editor_, this);
    log_->saved = [this] { refreshFromModel(); };
    log_->showHelpTopic = [this](const QString& page) {
      if (showHelpTopic) showHelpTopic(page);
    };
  }
  return *log_;
}

bool frmBatchLogList::readyForAnotherLog() {
  // A log still open with changes is offered for saving first.
  if (log_ && log_->isVisible() && !editor_.queryClose()) return false;
  LogRecipeContext ctx;
  ctx.grid = &recipe_.sheet.grid;
  ctx.mashEfficiency = wb_.recipe.rec.mashEfficiency;
  ctx.unitType = wb_.recipe.rec.unitType;
  ctx.volumeUnitName = listText(measures().volumeUnits, wb_.recipe.rec.volumeUnits);
  editor_.setRecipe(ctx);
  return true;
}

void frmBatchLogList::showLogWindow() {
  frmBatchLog& w = logWindow();
  w.refreshFromModel();
  if (w.isMinimized()) w.showNormal();
  else w.show();
  w.raise();
  w.activateWindow();
  w.findChild<QWidget*>("txtDateBrewed")->setFocus();
  refreshFromModel();
}

void frmBatchLogList::cmdNew_Click() {
  if (!readyForAnotherLog()) return;
  if (editor_.startNewLog()) showLogWindow();
}

void frmBatchLogList::cmdOpen_Click() {
  const BatchLogEntry* e = list_.selectedEntry();
  if (!e || !readyForAnotherLog()) return;
  if (editor_.openLog(e->recordNo)) showLogWindow();
}

void frmBatchLogList::cmdDelete_Click() {
  const BatchLogEntry* e = list_.selectedEntry();
  if (!e) return;
  const long recordNo = e->recordNo;
  // The log in the window goes with its record.
  const bool shown = log_ && log_->isVisible() && list_.BatchLogRecordNo == recordNo && !list_.NewBatchLog;
  if (list_.cmdDelete_Click(wb_) && shown) {
    editor_.logReset();
    log_->hide();
  }
  refreshFromModel();
}

void frmBatchLogList::closeEvent(QCloseEvent* event) {
  // The log window closes first (it hides, or stays open when the user cancels its question).
  if (log_ && log_->isVisible()) {
    log_->close();
    if (log_->isVisible() && !wb_.appClosing) {
      event->ignore();
      return;
    }
  }
  saveWindowPlacement(*this, wb_.settings, kSection);
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
