#include "ui/dlgAddToShopLst.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "ui/HelpButton.h"

#include "inventory/InventoryStartup.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"

namespace zy {

dlgAddToShopLst::dlgAddToShopLst(Workbench& wb, QWidget* parent) : QDialog(parent), wb_(wb) {
  setObjectName("dlgAddToShopLst");
  setWindowTitle("Add to Shopping List");
  setWindowIcon(toolIcon(ToolIcon::Shopping));
  auto* grid = new QGridLayout(this);
  auto label = [&](const char* text, QWidget* buddy, int row) {
    auto* l = new QLabel(text, this);
    l->setBuddy(buddy);
    grid->addWidget(l, row, 0);
  };
  txtItem = new QLineEdit(this);
  txtItem->setObjectName("txtItem");
  txtItem->setReadOnly(true);
  txtItem->setMinimumWidth(240);
  txtQty = new QLineEdit(this);
  txtQty->setObjectName("txtQty");
  txtQty->setToolTip("How much to buy, in the unit shown beside it");
  udcQty = new UpDown(this);
  lblUnits = new QLabel(this);
  lblUnits->setObjectName("lblUnits");
  lblUnits->setMinimumWidth(70);
  txtUnitCost = new QLineEdit(this);
  txtUnitCost->setObjectName("txtUnitCost");
  txtUnitCost->setToolTip("The price of one unit");
  udcUnitCost = new UpDown(this);
  chkAddToItem = new QCheckBox("&Add this Quantity", this);
  chkAddToItem->setObjectName("chkAddToItem");
  chkAddToItem->setToolTip("Add to the quantity already on the list, instead of replacing it");
  label("&Item:", txtItem, 0);
  grid->addWidget(txtItem, 0, 1, 1, 3);
  label("&Quantity to be Ordered:", txtQty, 1);
  grid->addWidget(txtQty, 1, 1);
  grid->addWidget(udcQty, 1, 2);
  grid->addWidget(lblUnits, 1, 3);
  label("&Cost/Unit:", txtUnitCost, 2);
  grid->addWidget(txtUnitCost, 2, 1);
  grid->addWidget(udcUnitCost, 2, 2);
  grid->addWidget(chkAddToItem, 3, 1, 1, 3);
  auto* buttons = new QDialogButtonBox(this);
  cmdOK = buttons->addButton(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
  cmdCancel->setObjectName("cmdCancel");
  cmdHelp = makeHelpButton(*this, showHelpTopic, "shopping-list.html#add");
  buttons->addButton(cmdHelp, QDialogButtonBox::HelpRole);
  grid->addWidget(buttons, 4, 0, 1, 4);
  connect(cmdOK, &QPushButton::clicked, this, [this] {
    if (cmdOK_Click()) accept();
  });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(udcQty, &UpDown::stepped, this, [this](int d) {
    takeForm();
    form.stepQty(d);
    showForm();
  });
  connect(udcUnitCost, &UpDown::stepped, this, [this](int d) {
    takeForm();
    form.stepCost(d);
    showForm();
  });
}

void dlgAddToShopLst::addToShoppingList(int category, const std::string& name, double quantity, int unitIndex,
                                        double unitCost) {
  setWindowTitle("Add to Shopping List");
  form = AddToShopForm::addToShoppingList(category, name, quantity, unitIndex, unitCost, wb_.defaults);
  chkAddToItem->setEnabled(true);
  showForm();
}

void dlgAddToShopLst::editEntry(size_t row) {
  if (row >= wb_.shopping.rows.size()) return;
  setWindowTitle("Edit Shopping List Entry");
  form = AddToShopForm::editEntry(wb_.shopping.rows[row], wb_.defaults);
  chkAddToItem->setEnabled(false);
  showForm();
}

void dlgAddToShopLst::showForm() {
  txtItem->setText(qs(form.txtItem));
  txtQty->setText(qs(form.txtQty));
  txtUnitCost->setText(qs(form.txtUnitCost));
  lblUnits->setText(qs(form.lblUnits));
  chkAddToItem->setChecked(form.chkAddToItem);
}

void dlgAddToShopLst::takeForm() {
  form.txtQty = s8(txtQty->text());
  form.txtUnitCost = s8(txtUnitCost->text());
  form.chkAddToItem = chkAddToItem->isChecked();
}

bool dlgAddToShopLst::cmdOK_Click() {
  takeForm();
  if (!form.ok(wb_.shopping)) {
    wb_.prompter.message("Please enter a number for the quantity and the cost", "Invalid Entry", Icon::Warning);
    return false;
  }
  keepShoppingList(wb_);
  if (added) added();
  return true;
}

}  // namespace zy
