#include "ui/frmInvCheck.h"

#include <QBrush>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include "ui/HelpButton.h"
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/text.h"
#include "inventory/InventoryStartup.h"
#include "ui/QtPrompter.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"
#include "ui/TopicIcons.h"

namespace zy {

frmInvCheck::frmInvCheck(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : QWidget(parent, Qt::Window), wb_(wb), editor_(editor) {
  setObjectName("frmInvCheck");
  setWindowTitle("Check Inventory");
  setWindowIcon(toolIcon(ToolIcon::Inventory));
  auto* v = new QVBoxLayout(this);
  lblSummary = new QLabel(this);
  lblSummary->setObjectName("lblSummary");
  v->addWidget(lblSummary);
  lvCheck = new QTreeWidget(this);
  lvCheck->setObjectName("lvCheck");
  lvCheck->setRootIsDecorated(false);
  lvCheck->setAllColumnsShowFocus(true);
  lvCheck->setUniformRowHeights(true);
  lvCheck->setHeaderLabels({"Category", "Item", "Have", "Need", "Short", "Units", "Status"});
  const int widths[] = {70, 200, 60, 60, 60, 60, 100};
  for (int c = 0; c < 7; ++c) lvCheck->setColumnWidth(c, widths[c]);
  for (int c = 2; c <= 4; ++c) lvCheck->headerItem()->setTextAlignment(c, Qt::AlignRight);
  lvCheck->setToolTip("The recipe's need is converted to the stock's unit where both are weights");
  v->addWidget(lvCheck);
  cmdAddShort = new QPushButton("&Add Shortages to Shopping List", this);
  cmdAddShort->setObjectName("cmdAddShort");
  cmdAddShort->setToolTip("Put every item that is short on the shopping list, adding to what is there");
  cmdRefresh = new QPushButton("&Refresh", this);
  cmdRefresh->setToolTip("Check the recipe's ingredients against the stock again");
  cmdClose = new QPushButton("&Close", this);
  auto* buttons = new QHBoxLayout;
  cmdHelp = makeHelpButton(*this, showHelpTopic, "inventory.html#check");
  buttons->addWidget(cmdHelp);
  buttons->addWidget(cmdAddShort);
  buttons->addStretch();
  buttons->addWidget(cmdRefresh);
  buttons->addWidget(cmdClose);
  v->addLayout(buttons);
  connect(cmdAddShort, &QPushButton::clicked, this, [this] { cmdAddShort_Click(); });
  connect(cmdRefresh, &QPushButton::clicked, this, [this] { refresh(); });
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
  restoreCentredPlacement(*this, wb_.settings, kSection, QSize(680, 360));
}

void frmInvCheck::refresh() {
  rows = checkStock(editor_.sheet.grid, wb_.inventory);
  lvCheck->clear();
  int shortCount = 0;
  for (const StockCheckRow& r : rows) {
    auto* item = new QTreeWidgetItem(lvCheck, {qs(inventoryCategoryName(r.category)), qs(r.name), qs(r.haveText),
                                               qs(r.needText), qs(r.shortText), qs(r.units), qs(r.status)});
    for (int c = 2; c <= 4; ++c) item->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    if (r.shortBy > 0) {
      ++shortCount;
      item->setForeground(6, QBrush(Qt::darkRed));
    }
  }
  const std::string name = trim(editor_.txtTitle);
  lblSummary->setText(qs((name.empty() ? std::string("The recipe") : "\"" + name + "\"") + ": " + itos(rows.size()) +
                         " ingredients, " + itos(shortCount) + " short"));
  cmdAddShort->setEnabled(shortCount > 0);
}

int frmInvCheck::cmdAddShort_Click() {
  const int n = addShortages(rows, wb_.shopping);
  if (n > 0) {
    keepShoppingList(wb_);
    if (shoppingChanged) shoppingChanged();
  }
  return n;
}

void frmInvCheck::closeEvent(QCloseEvent* event) { closeKeepingPlacement(*this, wb_, kSection, event); }

}  // namespace zy
