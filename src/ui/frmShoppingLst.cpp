#include "ui/frmShoppingLst.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QStyle>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "inventory/InventoryStartup.h"
#include "inventory/ShoppingList.h"
#include "inventory/ShoppingListReport.h"
#include "ui/QtPrompter.h"
#include "ui/ReportActions.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"
#include "ui/TopicIcons.h"
#include "ui/dlgAddToShopLst.h"
#include "workbench/Startup.h"

namespace zy {

frmShoppingLst::frmShoppingLst(Workbench& wb, QWidget* parent) : QMainWindow(parent, Qt::Window), wb_(wb) {
  setObjectName("frmShoppingLst");
  setWindowTitle("Shopping List");
  setWindowIcon(toolIcon(ToolIcon::Shopping));

  QMenu* file = menuBar()->addMenu("&File");
  QMenu* imp = file->addMenu("&Import");
  mnuFileImpReplace = imp->addAction("&Replace Existing Entries...");
  mnuFileImpAdd = imp->addAction("&Add to Existing Entries...");
  mnuFileExport = file->addAction("&Export...");
  file->addSeparator();
  mnuFilePageSetup = file->addAction("Print Set&up...");
  mnuFilePreview = file->addAction("Print Pre&view...");
  mnuFilePrint = file->addAction("&Print");
  mnuFilePageSetup->setToolTip("Paper, orientation and margins for printing");
  mnuFilePreview->setToolTip("See the shopping list as it prints");
  mnuFilePrint->setToolTip("Print the shopping list");
  file->setToolTipsVisible(true);
  file->addSeparator();
  mnuFileClose = file->addAction("&Close");
  QMenu* edit = menuBar()->addMenu("&Edit");
  mnuEditItem = edit->addAction("Edit &Item");
  mnuEditDelete = edit->addAction("&Delete Item");
  mnuEditDelete->setShortcut(QKeySequence::Delete);
  edit->addSeparator();
  mnuEditClear = edit->addAction("&Clear Shopping List");
  QMenu* help = menuBar()->addMenu("&Help");
  QAction* contents = help->addAction("&Contents...");
  QAction* index = help->addAction("&Index...");
  QAction* search = help->addAction("&Search for Help On...");

  QToolBar* tb = addToolBar("Toolbar");
  tb->setObjectName("tbToolBar");
  tb->setMovable(false);
  tb->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  tbDelete = tb->addAction(style()->standardIcon(QStyle::SP_TrashIcon), "Delete");
  tbDelete->setToolTip("Delete the selected item from the list");
  tbPrint = tb->addAction(toolIcon(ToolIcon::Print), "Print");
  tbPreview = tb->addAction(style()->standardIcon(QStyle::SP_FileDialogContentsView), "Preview");
  tbPrint->setToolTip("Print the shopping list");
  tbPreview->setToolTip("See the shopping list as it prints");
  tbClose = tb->addAction(style()->standardIcon(QStyle::SP_DialogCloseButton), "Close");
  tbHelp = tb->addAction(toolIcon(ToolIcon::Help), "Help");

  auto* central = new QWidget(this);
  auto* v = new QVBoxLayout(central);
  lvShopList = new QTreeWidget(central);
  lvShopList->setObjectName("lvShopList");
  lvShopList->setRootIsDecorated(false);
  lvShopList->setAllColumnsShowFocus(true);
  lvShopList->setUniformRowHeights(true);
  QStringList heads;
  for (const char* h : ShoppingList::kColumnHeads) heads << h;
  lvShopList->setHeaderLabels(heads);
  const int widths[] = {80, 220, 80, 70, 80, 90};
  for (int c = 0; c < 6; ++c) lvShopList->setColumnWidth(c, widths[c]);
  for (int c : {2, 4, 5}) lvShopList->headerItem()->setTextAlignment(c, Qt::AlignRight);
  lvShopList->setToolTip("Double-click an item to change its quantity or cost");
  v->addWidget(lvShopList);
  lblTotalCost = new QLabel(central);
  lblTotalCost->setObjectName("lblTotalCost");
  lblTotalCost->setAlignment(Qt::AlignRight);
  QFont bold = lblTotalCost->font();
  bold.setBold(true);
  lblTotalCost->setFont(bold);
  chkRound = new QCheckBox(kWholeUnitsCaption, central);
  chkRound->setObjectName("chkRound");
  auto* row = new QHBoxLayout;
  row->addWidget(chkRound);
  row->addStretch();
  row->addWidget(lblTotalCost);
  v->addLayout(row);
  setCentralWidget(central);

  editDialog = new dlgAddToShopLst(wb_, this);
  editDialog->showHelpTopic = [this](const QString& page) {
    if (showHelpTopic) showHelpTopic(page);
  };
  editDialog->added = [this] { refreshFromModel(); };

  connect(mnuFileImpReplace, &QAction::triggered, this, [this] { mnuFileImp_Click(true); });
  connect(mnuFileImpAdd, &QAction::triggered, this, [this] { mnuFileImp_Click(false); });
  connect(mnuFileExport, &QAction::triggered, this, [this] { mnuFileExport_Click(); });
  connect(mnuFileClose, &QAction::triggered, this, &QWidget::close);
  // The printed list is drawn from the list as it stands when each page is drawn.
  auto request = [this] { return shoppingListReportRequest(wb_.shopping, wb_.clock.now()); };
  connect(mnuFilePageSetup, &QAction::triggered, this, [this] { pageSetup(this); });
  for (QAction* a : {mnuFilePreview, tbPreview})
    connect(a, &QAction::triggered, this, [this, request] { previewReport(this, request()); });
  for (QAction* a : {mnuFilePrint, tbPrint})
    connect(a, &QAction::triggered, this, [this, request] { printReportNow(this, request()); });
  connect(tbClose, &QAction::triggered, this, &QWidget::close);
  connect(mnuEditItem, &QAction::triggered, this, [this] { mnuEditItem_Click(); });
  connect(mnuEditDelete, &QAction::triggered, this, [this] { mnuEditDelete_Click(); });
  connect(tbDelete, &QAction::triggered, this, [this] { mnuEditDelete_Click(); });
  connect(mnuEditClear, &QAction::triggered, this, [this] { mnuEditClear_Click(); });
  connect(lvShopList, &QTreeWidget::itemDoubleClicked, this, [this] { mnuEditItem_Click(); });
  connect(lvShopList, &QTreeWidget::itemSelectionChanged, this, [this] { showSelectionState(); });
  connect(chkRound, &QCheckBox::toggled, this, [this](bool on) { wb_.shopping.roundToWholeUnits = on; });
  auto helpAt = [this](const char* anchor) {
    if (showHelpTopic) showHelpTopic(QString("shopping-list.html") + anchor);
    else showHelpPage(this, wb_, QString("shopping-list.html") + anchor);
  };
  connect(contents, &QAction::triggered, this, [helpAt] { helpAt(""); });
  connect(index, &QAction::triggered, this, [helpAt] { helpAt(""); });
  connect(search, &QAction::triggered, this, [helpAt] { helpAt(""); });
  connect(tbHelp, &QAction::triggered, this, [helpAt] { helpAt(""); });

  restoreCentredPlacement(*this, wb_.settings, kSection, QSize(640, 4315 / kTwipsPerPixel));
  refreshFromModel();
}

void frmShoppingLst::refreshFromModel() {
  const int keep = selectedRow();
  lvShopList->clear();
  for (const ShoppingRow& r : wb_.shopping.rows) {
    auto* item = new QTreeWidgetItem(lvShopList);
    for (int c = 0; c < 6; ++c) {
      item->setText(c, qs(r.cells[static_cast<size_t>(c)]));
      if (c >= 2 && c != 3) item->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  wb_.shopping.calcTotalCost();
  lblTotalCost->setText(qs(wb_.shopping.lblTotalCost));
  chkRound->setChecked(wb_.shopping.roundToWholeUnits);
  if (keep >= 0 && keep < lvShopList->topLevelItemCount()) selectRow(keep);
  showSelectionState();
}

int frmShoppingLst::selectedRow() const {
  QTreeWidgetItem* it = lvShopList ? lvShopList->currentItem() : nullptr;
  return it && it->isSelected() ? lvShopList->indexOfTopLevelItem(it) : -1;
}

void frmShoppingLst::selectRow(int row) {
  if (QTreeWidgetItem* it = lvShopList->topLevelItem(row)) {
    lvShopList->setCurrentItem(it);
    it->setSelected(true);
  }
}

void frmShoppingLst::showSelectionState() {
  const bool any = selectedRow() >= 0;
  tbDelete->setEnabled(any);
  mnuEditDelete->setEnabled(any);
  mnuEditItem->setEnabled(any);
  mnuEditClear->setEnabled(!wb_.shopping.rows.empty());
  mnuFileExport->setEnabled(true);
}

void frmShoppingLst::changed() {
  keepShoppingList(wb_);
  refreshFromModel();
}

void frmShoppingLst::mnuEditItem_Click() {
  const int r = selectedRow();
  if (r < 0) return;
  editDialog->editEntry(static_cast<size_t>(r));
  editDialog->exec();
}

void frmShoppingLst::mnuEditDelete_Click() {
  const int r = selectedRow();
  if (r < 0) return;
  if (wb_.shopping.deleteItem(static_cast<size_t>(r), wb_.prompter)) changed();
}

void frmShoppingLst::mnuEditClear_Click() {
  if (wb_.shopping.clearList(wb_.prompter)) changed();
}

void frmShoppingLst::mnuFileImp_Click(bool replace) {
  ExchangePorts p{wb_.folder, wb_.prompter, wb_.settings, wb_.clock, wb_.errors};
  wb_.shopping.mnuFileImp(p, replace);
  changed();
}

void frmShoppingLst::mnuFileExport_Click() {
  ExchangePorts p{wb_.folder, wb_.prompter, wb_.settings, wb_.clock, wb_.errors};
  wb_.shopping.mnuFileExport(p);
}

void frmShoppingLst::closeEvent(QCloseEvent* event) { closeKeepingPlacement(*this, wb_, kSection, event); }

}  // namespace zy
