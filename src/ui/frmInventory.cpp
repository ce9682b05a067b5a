#include "ui/frmInventory.h"

#include <algorithm>

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/numfmt.h"
#include "core/text.h"
#include "inventory/InventoryCsv.h"
#include "inventory/InventoryReport.h"
#include "inventory/InventoryStartup.h"
#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"
#include "ui/ReportActions.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"
#include "ui/TopicIcons.h"
#include "ui/dlgAddToShopLst.h"
#include "ui/frmFind.h"
#include "workbench/Startup.h"

namespace zy {

// ---- The item dialog ---------------------------------------------------------------------------

dlgInventoryItem::dlgInventoryItem(QWidget* parent) : QDialog(parent) {
  setObjectName("dlgInventoryItem");
  grid_ = new QGridLayout(this);
  int row = 0;
  auto add = [&](const char* caption, QWidget* w, const char* name, const char* tip) {
    w->setObjectName(name);
    w->setToolTip(tip);
    auto* l = new QLabel(caption, this);
    l->setBuddy(w);
    labels_[w] = l;
    grid_->addWidget(l, row, 0);
    grid_->addWidget(w, row, 1);
    ++row;
  };
  auto box = [this] { return new QLineEdit(this); };
  add("&Name:", txtName = box(), "txtName", "The item as you know it; at most 50 characters");
  txtName->setMaxLength(50);
  txtName->setMinimumWidth(260);
  add("&Quantity:", txtQty = box(), "txtQty", "How much is on hand");
  add("&Units:", cboUnits = new QComboBox(this), "cboUnits", "The unit the quantity is counted in");
  add("C&ost/Unit:", txtCost = box(), "txtCost", "The price of one unit");
  add("&Extract:", txtExtract = box(), "txtExtract", "Extraction rating, as a specific gravity (1.036)");
  add("Co&lor:", txtColor = box(), "txtColor", "Colour in degrees Lovibond");
  add("&Alpha %:", txtAlpha = box(), "txtAlpha", "Alpha acid, percent");
  add("A&ttenuation %:", txtAtten = box(), "txtAtten", "Apparent attenuation, percent");
  add("T&ype:", txtType = box(), "txtType", "Dry, liquid ...; at most 10 characters");
  txtType->setMaxLength(10);
  add("&Vintage:", txtVintage = box(), "txtVintage", "Crop year, lot or supplier; at most 50 characters");
  txtVintage->setMaxLength(50);
  add("&Reorder At:", txtReorderThresh = box(), "txtReorderThresh",
      "Reorder when the quantity falls to this; leave blank for no reorder point");
  add("Reorder &Qty:", txtReorderQty = box(), "txtReorderQty", "How much to order then");
  chkMash = new QCheckBox("&Must be mashed", this);
  chkMash->setObjectName("chkMash");
  chkMash->setToolTip("A grain whose extract needs a mash");
  grid_->addWidget(chkMash, row++, 1);
  auto* buttons = new QDialogButtonBox(this);
  cmdOK = buttons->addButton(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
  cmdCancel->setObjectName("cmdCancel");
  grid_->addWidget(buttons, row, 0, 1, 2);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void dlgInventoryItem::load(int category, const InventoryItemFields& f, bool adding) {
  const std::string& name = inventoryCategoryName(category);
  setWindowTitle(qs((adding ? "Add " : "Edit ") + name + " Item"));
  auto show = [&](QWidget* w, bool on) {
    w->setVisible(on);
    if (labels_.count(w)) labels_[w]->setVisible(on);
  };
  show(txtExtract, category == INV_MALT);
  show(txtColor, category == INV_MALT);
  show(chkMash, category == INV_MALT);
  show(txtAlpha, category == INV_HOPS);
  show(txtAtten, category == INV_YEAST);
  show(txtType, category == INV_YEAST);
  txtName->setText(qs(f.name));
  txtQty->setText(qs(f.qty));
  cboUnits->clear();
  for (const std::string& u : inventoryUnits(category)) cboUnits->addItem(qs(u));
  cboUnits->setCurrentText(qs(f.units));
  txtCost->setText(qs(f.cost));
  txtExtract->setText(qs(f.extract));
  txtColor->setText(qs(f.color));
  txtAlpha->setText(qs(f.alpha));
  txtAtten->setText(qs(f.atten));
  txtType->setText(qs(f.type));
  txtVintage->setText(qs(f.vintage));
  txtReorderThresh->setText(qs(f.reorderThresh));
  txtReorderQty->setText(qs(f.reorderQty));
  chkMash->setChecked(f.mash);
  comments_ = f.comments;
  txtName->setFocus();
  txtName->selectAll();
  adjustSize();
}

InventoryItemFields dlgInventoryItem::fields() const {
  InventoryItemFields f;
  f.name = s8(txtName->text());
  f.qty = s8(txtQty->text());
  f.units = s8(cboUnits->currentText());
  f.cost = s8(txtCost->text());
  f.extract = s8(txtExtract->text());
  f.color = s8(txtColor->text());
  f.alpha = s8(txtAlpha->text());
  f.atten = s8(txtAtten->text());
  f.type = s8(txtType->text());
  f.vintage = s8(txtVintage->text());
  f.reorderThresh = s8(txtReorderThresh->text());
  f.reorderQty = s8(txtReorderQty->text());
  f.mash = chkMash->isChecked();
  f.comments = comments_;
  return f;
}

// ---- The window ------------------------------------------------------------------------------

frmInventory::frmInventory(Workbench& wb, QWidget* parent) : QMainWindow(parent, Qt::Window), model(wb), wb_(wb) {
  setObjectName("frmInventory");
  setWindowTitle("Inventory");
  setWindowIcon(toolIcon(ToolIcon::Inventory));
  model.readSettings();

  QMenu* file = menuBar()->addMenu("&File");
  QMenu* imp = file->addMenu("&Import");
  mnuFileImportReplace = imp->addAction("&Replace Existing Inventory Items...");
  mnuFileImportAdd = imp->addAction("&Add to Existing Inventory Items...");
  mnuFileExport = file->addAction("&Export...");
  file->addSeparator();
  mnuFilePageSetup = file->addAction("Print Set&up...", this, [this] { pageSetup(this); });
  mnuFilePageSetup->setToolTip("Paper, orientation and margins for printing");
  mnuFilePreview = file->addAction(toolIcon(ToolIcon::Print), "Print Pre&view...", this,
                                   [this] { previewReport(this, reportRequest()); });
  mnuFilePreview->setToolTip("See the stock of this category as it prints");
  mnuFilePrint = file->addAction("&Print", this, [this] { printReportNow(this, reportRequest()); });
  mnuFilePrint->setToolTip("Print the stock of this category");
  file->setToolTipsVisible(true);
  file->addSeparator();
  mnuFileClose = file->addAction("&Close");
  QMenu* edit = menuBar()->addMenu("&Edit");
  mnuEditAdd = edit->addAction(style()->standardIcon(QStyle::SP_FileIcon), "&Add Item...");
  mnuEditAdd->setShortcut(QKeySequence("Ins"));
  mnuEditEdit = edit->addAction(style()->standardIcon(QStyle::SP_FileDialogDetailedView), "&Edit Item...");
  mnuEditDelete = edit->addAction(style()->standardIcon(QStyle::SP_TrashIcon), "&Delete Item");
  mnuEditDelete->setShortcut(QKeySequence::Delete);
  mnuEditComments = edit->addAction(style()->standardIcon(QStyle::SP_FileDialogInfoView), "C&omments...");
  edit->addSeparator();
  mnuEditFind = edit->addAction(style()->standardIcon(QStyle::SP_FileDialogContentsView), "&Find...");
  mnuEditFind->setShortcut(QKeySequence::Find);
  mnuEditShopping = edit->addAction(toolIcon(ToolIcon::Shopping), "Add to &Shopping List...");
  mnuEditAddToRecipe = edit->addAction(toolIcon(ToolIcon::Recipes), "Add To &Recipe");
  QMenu* view = menuBar()->addMenu("&View");
  mnuViewNonZero = view->addAction("&Non Zero Only");
  mnuViewNonZero->setCheckable(true);
  mnuViewNonZero->setChecked(model.nonZeroOnly);
  mnuViewNonZero->setToolTip("Hide the items of which none is on hand");
  QMenu* help = menuBar()->addMenu("&Help");
  QAction* contents = help->addAction("&Contents...");

  QToolBar* tb = addToolBar("Toolbar");
  tb->setObjectName("tbToolBar");
  tb->setMovable(false);
  tb->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  for (auto [a, text] : {std::pair{mnuEditAdd, "Add"}, {mnuEditEdit, "Edit"}, {mnuEditDelete, "Delete"},
                         {mnuEditComments, "Comments"}, {mnuEditFind, "Find"}, {mnuEditShopping, "Shop"}}) {
    QAction* t = tb->addAction(a->icon(), text);
    t->setToolTip(a->text().remove('&').remove("..."));
    connect(t, &QAction::triggered, a, &QAction::trigger);
    connect(a, &QAction::changed, t, [a, t] { t->setEnabled(a->isEnabled()); });
  }
  tb->addSeparator();
  QAction* tbPreview = tb->addAction(toolIcon(ToolIcon::Print), "Preview");
  tbPreview->setToolTip("See the stock of this category as it prints");
  connect(tbPreview, &QAction::triggered, mnuFilePreview, &QAction::trigger);
  tb->addSeparator();
  QAction* tbHelp = tb->addAction(toolIcon(ToolIcon::Help), "Help");

  auto* central = new QWidget(this);
  auto* v = new QVBoxLayout(central);
  tbsInventory = new QTabBar(central);
  tbsInventory->setObjectName("tbsInventory");
  for (const std::string& n : inventoryCategoryNames()) tbsInventory->addTab(qs(n));
  tbsInventory->setExpanding(false);
  v->addWidget(tbsInventory);
  lvInventory = new QTreeWidget(central);
  lvInventory->setObjectName("lvInventory");
  lvInventory->setRootIsDecorated(false);
  lvInventory->setAllColumnsShowFocus(true);
  lvInventory->setUniformRowHeights(true);
  lvInventory->setAlternatingRowColors(true);
  lvInventory->header()->setSectionsClickable(true);
  lvInventory->header()->setSortIndicatorShown(true);
  lvInventory->setToolTip("Double-click an item to change it; click a column head to sort by it");
  v->addWidget(lvInventory);
  lblCount = new QLabel(central);
  lblCount->setObjectName("lblCount");
  cmdAddToRecipe = new QPushButton(toolIcon(ToolIcon::Recipes), "Add To &Recipe", central);
  cmdAddToRecipe->setObjectName("cmdAddToRecipe");
  cmdAddToRecipe->setToolTip("Add the selected item to the open recipe with the default quantity of its kind");
  cmdClose = new QPushButton("&Close", central);
  cmdClose->setObjectName("cmdClose");
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(lblCount);
  bottom->addStretch();
  bottom->addWidget(cmdAddToRecipe);
  bottom->addWidget(cmdClose);
  v->addLayout(bottom);
  setCentralWidget(central);

  itemDialog = new dlgInventoryItem(this);
  findDialog = new frmFind(
      frmFind::Mode::Inventory,
      [this](const std::string& text) {
        const long r = model.findNext(text, selectedRow());
        if (r < 0) {
          wb_.prompter.message("No more items match '" + text + "'", "Find Inventory Item", Icon::Information);
          return false;
        }
        selectRow(r);
        return true;
      },
      this);
  findDialog->showHelpTopic = [this](const QString& page) {
    if (showHelpTopic) showHelpTopic(page);
  };

  connect(tbsInventory, &QTabBar::currentChanged, this, [this](int i) {
    if (!painting_) showCategory(i);
  });
  connect(lvInventory->header(), &QHeaderView::sectionClicked, this, [this](int c) {
    model.sortBy(c);
    refreshFromModel();
  });
  connect(lvInventory, &QTreeWidget::itemDoubleClicked, this, [this] {
    if (model.addToRecipeMode) cmdAddToRecipe_Click();
    else mnuEditEdit_Click();
  });
  connect(lvInventory, &QTreeWidget::itemSelectionChanged, this, [this] { showSelectionState(); });
  connect(mnuEditAdd, &QAction::triggered, this, [this] { mnuEditAdd_Click(); });
  connect(mnuEditEdit, &QAction::triggered, this, [this] { mnuEditEdit_Click(); });
  connect(mnuEditDelete, &QAction::triggered, this, [this] { mnuEditDelete_Click(); });
  connect(mnuEditComments, &QAction::triggered, this, [this] { mnuEditComments_Click(); });
  connect(mnuEditFind, &QAction::triggered, this, [this] { mnuEditFind_Click(); });
  connect(mnuEditShopping, &QAction::triggered, this, [this] { mnuEditShopping_Click(); });
  connect(mnuEditAddToRecipe, &QAction::triggered, this, [this] { cmdAddToRecipe_Click(); });
  connect(cmdAddToRecipe, &QPushButton::clicked, this, [this] { cmdAddToRecipe_Click(); });
  connect(mnuFileImportReplace, &QAction::triggered, this, [this] { mnuFileImport_Click(true); });
  connect(mnuFileImportAdd, &QAction::triggered, this, [this] { mnuFileImport_Click(false); });
  connect(mnuFileExport, &QAction::triggered, this, [this] { mnuFileExport_Click(); });
  connect(mnuFileClose, &QAction::triggered, this, &QWidget::close);
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
  connect(mnuViewNonZero, &QAction::toggled, this, [this](bool on) {
    model.nonZeroOnly = on;
    model.writeSettings();
    refreshFromModel();
  });
  auto helpAt = [this] {
    if (showHelpTopic) showHelpTopic("inventory.html");
    else showHelpPage(this, wb_, "inventory.html");
  };
  connect(contents, &QAction::triggered, this, helpAt);
  connect(tbHelp, &QAction::triggered, this, helpAt);

  restoreCentredPlacement(*this, wb_.settings, kSection, QSize(std::max(9555 / kTwipsPerPixel, 840), 6625 / kTwipsPerPixel));
  setAddToRecipe(nullptr);
  showCategory(INV_MALT);
}

void frmInventory::setAddToRecipe(RecipeEditor* editor) {
  recipeEditor_ = editor;
  model.addToRecipeMode = editor != nullptr;
  cmdAddToRecipe->setVisible(model.addToRecipeMode);
  mnuEditAddToRecipe->setVisible(model.addToRecipeMode);
  setWindowTitle(model.addToRecipeMode ? "Inventory - Add To Recipe" : "Inventory");
  showSelectionState();
}

void frmInventory::buildColumns() {
  const auto& cols = model.list().columns();
  QStringList heads;
  for (const InventoryColumn& c : cols) heads << qs(c.head);
  lvInventory->setColumnCount(static_cast<int>(cols.size()));
  lvInventory->setHeaderLabels(heads);
  std::vector<int> widths = model.columnWidths();
  for (size_t c = 0; c < cols.size(); ++c) {
    int w = c < widths.size() && widths[c] > 10 ? widths[c] : (c == 0 ? 170 : cols[c].numeric ? 64 : 58);
    if (widths.size() <= c && (cols[c].key == std::string_view(kColVintage))) w = 90;
    if (widths.size() <= c && (cols[c].key == std::string_view(kColReorderThresh) || cols[c].key == std::string_view(kColReorderQty))) w = 80;
    lvInventory->setColumnWidth(static_cast<int>(c), w);
    if (cols[c].numeric) lvInventory->headerItem()->setTextAlignment(static_cast<int>(c), Qt::AlignRight);
  }
  // The comment stays with the row, out of sight: the comments window shows it.
  lvInventory->setColumnHidden(static_cast<int>(cols.size()) - 1, true);
}

void frmInventory::showCategory(int category) {
  if (category < 0 || category >= kInventoryCategories) return;
  if (lvInventory->columnCount() > 0) keepColumnWidths();
  model.category = category;
  model.sortColumn = 0;
  model.sortDescending = false;
  painting_ = true;
  tbsInventory->setCurrentIndex(category);
  painting_ = false;
  buildColumns();
  refreshFromModel();
}

void frmInventory::refreshFromModel() {
  const long keep = selectedRow();
  painting_ = true;
  lvInventory->clear();
  const InventoryList& l = model.list();
  const auto& cols = l.columns();
  for (size_t r : model.visibleRows()) {
    auto* item = new QTreeWidgetItem(lvInventory);
    for (size_t c = 0; c < cols.size() && c < l.rows[r].cells.size(); ++c) {
      std::string text = cols[c].key == std::string_view(kColQty) ? trim(l.rows[r].cells[c]) : l.rows[r].cells[c];
      item->setText(static_cast<int>(c), qs(text));
      if (cols[c].numeric) item->setTextAlignment(static_cast<int>(c), Qt::AlignRight | Qt::AlignVCenter);
    }
    if (!trim(l.cell(r, kColComments)).empty()) item->setToolTip(0, qs(l.cell(r, kColComments)));
    item->setData(0, Qt::UserRole, static_cast<qlonglong>(r));
  }
  lvInventory->header()->setSortIndicator(model.sortColumn,
                                          model.sortDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
  painting_ = false;
  const size_t shown = static_cast<size_t>(lvInventory->topLevelItemCount());
  lblCount->setText(qs(itos(static_cast<long long>(shown)) + (shown == 1 ? " item" : " items") +
                       (shown < l.size() ? " (" + itos(static_cast<long long>(l.size() - shown)) + " with none on hand hidden)" : "")));
  if (keep >= 0) selectRow(keep);
  showSelectionState();
}

long frmInventory::selectedRow() const {
  QTreeWidgetItem* it = lvInventory->currentItem();
  return it && it->isSelected() ? static_cast<long>(it->data(0, Qt::UserRole).toLongLong()) : -1;
}

void frmInventory::selectRow(long row) {
  for (int i = 0; i < lvInventory->topLevelItemCount(); ++i) {
    QTreeWidgetItem* it = lvInventory->topLevelItem(i);
    if (it->data(0, Qt::UserRole).toLongLong() == row) {
      lvInventory->setCurrentItem(it);
      it->setSelected(true);
      lvInventory->scrollToItem(it);
      return;
    }
  }
}

void frmInventory::showSelectionState() {
  const bool any = selectedRow() >= 0;
  for (QAction* a : {mnuEditEdit, mnuEditDelete, mnuEditComments, mnuEditShopping}) a->setEnabled(any);
  const bool canAdd = any && model.addToRecipeMode && model.category != INV_SUPPLIES;
  cmdAddToRecipe->setEnabled(canAdd);
  mnuEditAddToRecipe->setEnabled(canAdd);
  cmdAddToRecipe->setToolTip(model.category == INV_SUPPLIES
                                 ? "Supplies are not ingredients of a recipe"
                                 : "Add the selected item to the open recipe with the default quantity of its kind");
}

void frmInventory::mnuEditAdd_Click() {
  itemDialog->load(model.category, model.newItemFields(), true);
  while (itemDialog->exec() == QDialog::Accepted) {
    const long r = model.saveItem(-1, itemDialog->fields());
    if (r < 0) continue;  // a blank name: the dialog again
    refreshFromModel();
    selectRow(r);
    return;
  }
}

void frmInventory::mnuEditEdit_Click() {
  const long r = selectedRow();
  if (r < 0) return;
  itemDialog->load(model.category, model.fieldsOf(static_cast<size_t>(r)), false);
  while (itemDialog->exec() == QDialog::Accepted) {
    if (model.saveItem(r, itemDialog->fields()) < 0) continue;
    refreshFromModel();
    return;
  }
}

void frmInventory::mnuEditDelete_Click() {
  const long r = selectedRow();
  if (r < 0) return;
  if (model.deleteItem(static_cast<size_t>(r))) refreshFromModel();
}

void frmInventory::mnuEditComments_Click() {
  const long r = selectedRow();
  if (r < 0) return;
  QDialog dlg(this);
  dlg.setObjectName("frmInvComments");
  dlg.setWindowTitle(qs("Inventory Comments - " + model.list().cell(static_cast<size_t>(r), kColName)));
  auto* v = new QVBoxLayout(&dlg);
  auto* text = new QPlainTextEdit(&dlg);
  text->setObjectName("txtComments");
  text->setPlainText(qs(replaceAll(model.list().cell(static_cast<size_t>(r), kColComments), "\r\n", "\n")));
  v->addWidget(text);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dlg);
  v->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, &dlg, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dlg, &QDialog::reject);
  restoreCentredPlacement(dlg, wb_.settings, "Inventory Comments", QSize(420, 260));
  const int answer = dlg.exec();
  saveWindowPlacement(dlg, wb_.settings, "Inventory Comments");
  if (answer != QDialog::Accepted) return;
  model.setComment(static_cast<size_t>(r), replaceAll(s8(text->toPlainText()), "\n", "\r\n"));
  refreshFromModel();
}

void frmInventory::mnuEditFind_Click() {
  findDialog->show();
  findDialog->raise();
  findDialog->activateWindow();
}

void frmInventory::mnuEditShopping_Click() {
  const long r = selectedRow();
  if (r < 0) return;
  const InventoryList& l = model.list();
  const size_t row = static_cast<size_t>(r);
  const StringList& units = inventoryUnits(model.category);
  std::string cost = trim(l.cell(row, kColCost));
  if (!cost.empty() && cost[0] == '$') cost = replaceAll(cost.substr(1), ",", "");
  dlgAddToShopLst dlg(wb_, this);
  dlg.showHelpTopic = showHelpTopic;
  dlg.addToShoppingList(model.category, l.cell(row, kColName), lenientValue(l.cell(row, kColReorderQty)),
                        findInList(units, static_cast<int>(units.size()) - 1, l.cell(row, kColUnits), -1),
                        lenientValue(cost));
  dlg.added = [this] {
    if (shoppingChanged) shoppingChanged();
  };
  dlg.exec();
}

bool frmInventory::cmdAddToRecipe_Click() {
  const long r = selectedRow();
  if (r < 0 || !recipeEditor_) return false;
  if (!model.addToRecipe(static_cast<size_t>(r), *recipeEditor_)) return false;
  if (recipeChanged) recipeChanged();
  return true;
}

void frmInventory::mnuFileImport_Click(bool replace) {
  ExchangePorts p{wb_.folder, wb_.prompter, wb_.settings, wb_.clock, wb_.errors};
  ImportResult res = zy::mnuFileImport(p, wb_.inventory, model.category, replace);
  if (res.flags == IMPORT_END_OF_FILE)
    InventoryStore(wb_.folder, wb_.errors, wb_.inventory).saveInventory(model.category);
  refreshFromModel();
}

void frmInventory::mnuFileExport_Click() {
  ExchangePorts p{wb_.folder, wb_.prompter, wb_.settings, wb_.clock, wb_.errors};
  zy::mnuFileExport(p, model.list());
}

void frmInventory::keepColumnWidths() {
  std::vector<int> widths;
  for (int c = 0; c < lvInventory->columnCount() - 1; ++c) widths.push_back(lvInventory->columnWidth(c));
  model.setColumnWidths(widths);
}

void frmInventory::closeEvent(QCloseEvent* event) {
  keepColumnWidths();
  model.writeSettings();
  findDialog->hide();
  closeKeepingPlacement(*this, wb_, kSection, event);
}

ReportRequest frmInventory::reportRequest() {
  // "Non Zero Only" and the order of the list apply on paper too; the comments print as notes
  // unless the settings say otherwise.
  InventoryReportOptions options;
  options.printComments = lenientValue(wb_.settings.read(InventoryWindowModel::kSection, "Print Comments", "1")) != 0;
  return inventoryReportRequest(model.list(), model.visibleRows(), options, wb_.clock.now(), wb_.prompter);
}

}  // namespace zy
