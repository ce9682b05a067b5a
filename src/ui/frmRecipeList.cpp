#include "ui/frmRecipeList.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeStore.h"
#include "ui/QtPrompter.h"
#include "ui/ReportActions.h"
#include "recipes/RecipeListReport.h"
#include "ui/HelpButton.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"
#include "ui/frmFind.h"
#include "ui/WindowPlacement.h"
#include "workbench/Startup.h"

namespace zy {

namespace {
const char* const kHelpPage = "recipe-list.html";
constexpr int kKeyRole = Qt::UserRole;

void setTip(QAction* a, const QString& tip) {
  a->setToolTip(tip);
  a->setStatusTip(tip);
}
}  // namespace

frmRecipeList::frmRecipeList(Workbench& wb, QWidget* parent) : QMainWindow(parent), wb_(wb) {
  setWindowTitle(kCaption);
  setObjectName("frmRecipeList");
  setWindowIcon(toolIcon(ToolIcon::Recipes));

  auto* central = new QWidget(this);
  auto* box = new QVBoxLayout(central);
  box->setContentsMargins(4, 4, 4, 4);
  box->setSpacing(3);
  lblTitle = new QLabel(central);
  lblTitle->setObjectName("lblTitle");
  lblTitle->setFrameShape(QFrame::StyledPanel);
  lblTitle->setStyleSheet("QLabel { background: palette(dark); color: palette(bright-text); font-weight: bold; padding: 2px; }");
  tvRecipes = new QTreeWidget(central);
  tvRecipes->setObjectName("tvRecipes");
  tvRecipes->setHeaderHidden(true);
  tvRecipes->setColumnCount(1);
  tvRecipes->setSortingEnabled(false);  // the model keeps the order
  tvRecipes->setUniformRowHeights(true);
  tvRecipes->setToolTip("Double click a recipe to open it in the Recipe Calculator");
  box->addWidget(lblTitle);
  box->addWidget(tvRecipes, 1);
  setCentralWidget(central);

  buildMenus();
  buildToolbar();
  statusBar()->setSizeGripEnabled(true);

  connect(tvRecipes, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* it) { tvRecipes_DblClick(it); });
  connect(tvRecipes, &QTreeWidget::currentItemChanged, this, [this] { selectionChanged(); });
  connect(tvRecipes, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* it) {
    if (refreshing_) return;
    model().tree.setExpanded(s8(it->data(0, kKeyRole).toString()), true);
    it->setIcon(0, topicIcon("OpenBook"));
  });
  connect(tvRecipes, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* it) {
    if (refreshing_) return;
    model().tree.setExpanded(s8(it->data(0, kKeyRole).toString()), false);
    it->setIcon(0, topicIcon("ClosedBook"));
  });

  // The window's load: the settings, the log count check, the tree in the saved sort.
  model().formLoad(wb_);
  wb_.refreshRecipeTree = [this] { refreshTree(); };
  refreshTree();
  const RecipeListSettings s = RecipeListSettings::read(wb_);
  // Narrow enough to stand beside the editor, wide enough for the whole toolbar.
  setMinimumSize(380, 320);
  restoreWindowPlacement(*this, wb_.settings, kRecipeListSection,
                         QSize(twipsToPixels(s.mainWidth), twipsToPixels(s.mainHeight)),
                         QPoint(twipsToPixels(s.mainLeft), twipsToPixels(s.mainTop)), QSize(380, 520));
}

frmRecipeList::~frmRecipeList() { wb_.refreshRecipeTree = nullptr; }

void frmRecipeList::buildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  mnuFileNew = file->addAction(recipeIcon("New"), "&New Recipe", this, [this] { mnuFileNew_Click(); });
  mnuFileNew->setShortcut(QKeySequence::New);
  setTip(mnuFileNew, "Start a new recipe in the Recipe Calculator");
  mnuFileImport = file->addAction(recipeIcon("Open"), "&Import Recipe...", this, [this] { mnuFileImport_Click(); });
  setTip(mnuFileImport, "Read a recipe exchange file (.zyr, .rec) as a new recipe");
  mnuFileExport = file->addAction(recipeIcon("Export"), "&Export Recipe...", this, [this] { mnuFileExport_Click(); });
  setTip(mnuFileExport, "Write the selected recipe to a recipe exchange file");
  file->addSeparator();
  mnuFileFind = file->addAction(toolIcon(ToolIcon::Search), "&Find", this, [this] { mnuFileFind_Click(); });
  mnuFileFind->setShortcut(QKeySequence::Find);
  setTip(mnuFileFind, "Find a recipe by its name or a part of it");
  mnuFileDelete = file->addAction(recipeIcon("Delete"), "&Delete", this, [this] { mnuFileDelete_Click(); });
  mnuFileDelete->setShortcut(QKeySequence::Delete);
  setTip(mnuFileDelete, "Delete the selected recipe");
  file->addSeparator();
  mnuFilePageSetup = file->addAction("Page Set&up");
  mnuFilePreview = file->addAction(recipeIcon("Preview"), "Print Pre&view...");
  mnuFilePrintNow = file->addAction(toolIcon(ToolIcon::Print), "&Print");
  mnuFileGenHTML = file->addAction(recipeIcon("genHTML"), "&Save as Web Page...");
  connect(mnuFilePageSetup, &QAction::triggered, this, [this] { pageSetup(this); });
  setTip(mnuFilePageSetup, "Paper, orientation and margins for printing");
  connect(mnuFilePreview, &QAction::triggered, this, [this] { previewReport(this, recipeListReportRequest(wb_)); });
  setTip(mnuFilePreview, "Preview the list of recipes as it prints");
  connect(mnuFilePrintNow, &QAction::triggered, this, [this] { printReportNow(this, recipeListReportRequest(wb_)); });
  setTip(mnuFilePrintNow, "Print the list of recipes");
  mnuFileGenHTML->setEnabled(false);  // until a recipe is selected
  connect(mnuFileGenHTML, &QAction::triggered, this, [this] { mnuFileGenHTML_Click(); });
  setTip(mnuFileGenHTML, "Write the selected recipe as a web page");
  file->addSeparator();
  mnuFileProperties = file->addAction("Propert&ies", this, [this] {
    if (openProperties) openProperties();
  });
  setTip(mnuFileProperties, "Your preferences and defaults");
  file->addSeparator();
  mnuFileExit = file->addAction("&Close", this, &QWidget::close);
  setTip(mnuFileExit, "Close the recipe list");

  QMenu* view = menuBar()->addMenu("&View");
  mnuInventory = view->addAction(toolIcon(ToolIcon::Inventory), "&Inventory", this, [this] {
    if (viewOpeners_[0]) viewOpeners_[0]();
  });
  mnuBeerStyles = view->addAction(toolIcon(ToolIcon::Styles), "&Beer Styles", this, [this] {
    if (viewOpeners_[1]) viewOpeners_[1]();
  });
  setViewOpener(View::Inventory, {});
  setViewOpener(View::BeerStyles, {});

  QMenu* sort = menuBar()->addMenu("&Sort");
  auto* group = new QActionGroup(this);
  const char* captions[5] = {"By &Name", "By Beer &Style", "By &Type", "By &Date", "By &Mash Type"};
  for (int i = 0; i < 5; ++i) {
    QAction* a = sort->addAction(captions[i], this, [this, i] { mnuSortBy_Click(i); });
    a->setCheckable(true);
    group->addAction(a);
    setTip(a, QString("Group and order the recipes %1").arg(QString(captions[i]).remove('&').toLower()));
    mnuSortBy[static_cast<size_t>(i)] = a;
  }
  sort->addSeparator();
  mnuSortLogCount = sort->addAction("Show &Batch Log Count", this, [this] { mnuSortLogCount_Click(); });
  mnuSortLogCount->setCheckable(true);
  setTip(mnuSortLogCount, "Show after each recipe how many batch logs it has");

  const HelpMenu help = addHelpMenu(
      menuBar(), this, [this] { if (showHelpTopic) showHelpTopic(kHelpPage); },
      [this](int which) { if (showHelp) showHelp(which); });
  mnuHelpContents = help.contents;
  mnuHelpIndex = help.index;
  mnuHelpSearch = help.search;
}

void frmRecipeList::buildToolbar() {
  tbToolBar = addToolBar("Toolbar");
  tbToolBar->setObjectName("tbToolBar");
  tbToolBar->setMovable(false);
  tbToolBar->setIconSize(QSize(22, 22));
  auto button = [this](QAction* like, const char* key, const QIcon& icon) {
    QAction* a = tbToolBar->addAction(icon, like->text().remove('&').remove("..."));
    a->setObjectName(key);
    a->setToolTip(like->toolTip());
    a->setEnabled(like->isEnabled());
    connect(a, &QAction::triggered, like, &QAction::trigger);
    return a;
  };
  tbNew = button(mnuFileNew, "New", recipeIcon("New"));
  tbOpen = button(mnuFileImport, "Open", recipeIcon("Open"));
  tbExport = button(mnuFileExport, "Export", recipeIcon("Export"));
  tbToolBar->addSeparator();
  tbPreview = button(mnuFilePreview, "Preview", recipeIcon("Preview"));
  tbPrint = button(mnuFilePrintNow, "Print", toolIcon(ToolIcon::Print));
  tbGenHTML = button(mnuFileGenHTML, "genHTML", recipeIcon("genHTML"));
  tbToolBar->addSeparator();
  tbDelete = button(mnuFileDelete, "Delete", recipeIcon("Delete"));
  tbFind = button(mnuFileFind, "Find", toolIcon(ToolIcon::Search));
  tbToolBar->addSeparator();
  tbSortasc = button(mnuSortBy[0], "Sortasc", recipeIcon("Sortasc"));
  tbSortasc->setToolTip("Sort by name");
  tbSortdes = button(mnuSortBy[1], "Sortdes", recipeIcon("Sortdes"));
  tbSortdes->setToolTip("Sort by beer style");
  tbToolBar->addSeparator();
  tbHelp = button(mnuHelpContents, "Help", toolIcon(ToolIcon::Help));
  tbHelp->setToolTip("Help on the recipe list");
}

void frmRecipeList::setViewOpener(View which, std::function<void()> open) {
  const size_t i = static_cast<size_t>(which);
  viewOpeners_[i] = std::move(open);
  QAction* a = which == View::Inventory ? mnuInventory : mnuBeerStyles;
  const bool on = static_cast<bool>(viewOpeners_[i]);
  a->setEnabled(on);
  setTip(a, on ? (which == View::Inventory ? "Show your stock of ingredients" : "Browse the beer styles")
               : (which == View::Inventory ? "Comes with the inventory" : "Comes with the beer style windows"));
}

RecipeOpenHooks frmRecipeList::hooks() const { return editorHooks ? editorHooks() : RecipeOpenHooks{}; }

// ---- The tree ----------------------------------------------------------------------------------------

QTreeWidgetItem* frmRecipeList::itemOf(const std::string& key) const {
  const QString k = qs(key);
  for (QTreeWidgetItemIterator it(tvRecipes); *it; ++it)
    if ((*it)->data(0, kKeyRole).toString() == k) return *it;
  return nullptr;
}

void frmRecipeList::refreshTree() {
  refreshing_ = true;
  RecipeList& m = model();
  tvRecipes->clear();
  auto makeItem = [](const RecipeNode* n) {
    auto* it = new QTreeWidgetItem(QStringList(qs(n->text)));
    it->setData(0, kKeyRole, qs(n->key));
    it->setIcon(0, topicIcon(qs(n->image)));
    if (n->isLeaf()) it->setToolTip(0, qs(n->tag));
    return it;
  };
  for (const RecipeNode* n : m.tree.roots()) {
    QTreeWidgetItem* it = makeItem(n);
    tvRecipes->addTopLevelItem(it);
    for (const RecipeNode* c : m.tree.children(n->key)) it->addChild(makeItem(c));
    if (!n->isLeaf()) it->setExpanded(n->image == "OpenBook");
  }
  lblTitle->setText(qs(m.lblTitle));
  for (size_t i = 0; i < mnuSortBy.size(); ++i) mnuSortBy[i]->setChecked(static_cast<int>(i) == m.sortMode);
  mnuSortLogCount->setChecked(m.mnuSortLogCount);
  if (QTreeWidgetItem* sel = m.selectedKey.empty() ? nullptr : itemOf(m.selectedKey)) {
    for (QTreeWidgetItem* p = sel->parent(); p; p = p->parent()) p->setExpanded(true);
    tvRecipes->setCurrentItem(sel);
    tvRecipes->scrollToItem(sel);
  }
  refreshing_ = false;
  // A group opened to show the selection shows its open book.
  for (int i = 0; i < tvRecipes->topLevelItemCount(); ++i) {
    QTreeWidgetItem* it = tvRecipes->topLevelItem(i);
    if (it->isExpanded()) {
      m.tree.setExpanded(s8(it->data(0, kKeyRole).toString()), true);
      it->setIcon(0, topicIcon("OpenBook"));
    }
  }
  m.select(m.selectedKey);
  showEnabledStates();
}

void frmRecipeList::selectionChanged() {
  if (refreshing_) return;
  QTreeWidgetItem* it = tvRecipes->currentItem();
  model().select(it ? s8(it->data(0, kKeyRole).toString()) : std::string());
  showEnabledStates();
}

void frmRecipeList::showEnabledStates() {
  const RecipeList& m = model();
  mnuFileDelete->setEnabled(m.deleteEnabled);
  tbDelete->setEnabled(m.deleteEnabled);
  mnuFileExport->setEnabled(m.exportEnabled);
  tbExport->setEnabled(m.exportEnabled);
  mnuFileGenHTML->setEnabled(m.genHTMLEnabled);
  tbGenHTML->setEnabled(m.genHTMLEnabled);
  const int count = static_cast<int>(lenientValue(m.tree.tag));
  statusBar()->showMessage(count == 1 ? "1 recipe" : QString("%1 recipes").arg(count));
}

// ---- The commands ------------------------------------------------------------------------------------

void frmRecipeList::tvRecipes_DblClick(QTreeWidgetItem* item) {
  if (!item) return;
  const std::string key = s8(item->data(0, kKeyRole).toString());
  const RecipeNode* n = model().tree.find(key);
  if (!n || !n->isLeaf()) return;
  if (model().openRecipe(wb_, key, hooks()) && showEditor) showEditor();
}

void frmRecipeList::mnuFileNew_Click() {
  if (model().newRecipe(wb_, hooks()) > 0 && showEditor) showEditor();
}

void frmRecipeList::mnuFileImport_Click() {
  const RecipeListSettings s = RecipeListSettings::read(wb_);
  const auto path = wb_.prompter.openFile("Import Recipe", "ZY Recipe Files (*.zyr)|*.zyr;*.rec|All Files (*.*)|*.*",
                                          s.importPath);
  if (!path || path->empty()) return;
  model().importRecipeFile(wb_, *path);
  refreshTree();
}

void frmRecipeList::mnuFileExport_Click() {
  RecipeList& m = model();
  const RecipeNode* n = m.selectedKey.empty() ? nullptr : m.tree.find(m.selectedKey);
  if (!n || !n->isLeaf()) return;
  const std::string key = n->key;
  if (!loadRecipe(wb_, RecipeList::recipeNumber(key))) return;
  const RecipeListSettings s = RecipeListSettings::read(wb_);
  const std::string proposed = m.proposedExportName(wb_);
  const std::string initial = s.exportPath.empty() ? proposed : s.exportPath + "/" + proposed;
  const auto path =
      wb_.prompter.saveFile("Export Recipe", "Recipe Files (*.zyr)|*.zyr;*.rec|All Files (*.*)|*.*", initial);
  if (!path || path->empty()) return;
  m.exportRecipeFile(wb_, key, *path);
}

// The web page of the selected recipe: the recipe is loaded, then the window asks how the page
// starts and ends.
void frmRecipeList::mnuFileGenHTML_Click() {
  const RecipeNode* n = model().selectedKey.empty() ? nullptr : model().tree.find(model().selectedKey);
  if (!n || !n->isLeaf() || !openGenHTML) return;
  if (!loadRecipe(wb_, RecipeList::recipeNumber(n->key))) return;
  openGenHTML();
}

bool frmRecipeList::findNext(const std::string& part) {
  if (!model().findRecipe(wb_, part)) return false;
  refreshTree();
  return true;
}

void frmRecipeList::mnuFileFind_Click() {
  frmFind dlg(frmFind::Mode::Recipe, [this](const std::string& part) { return findNext(part); }, this);
  dlg.showHelpTopic = showHelpTopic;
  dlg.exec();
}

void frmRecipeList::mnuFileDelete_Click() {
  if (model().mnuFileDelete_Click(wb_)) refreshTree();
}

// A rebuild keeps the selected recipe selected, its group opened.
void frmRecipeList::mnuSortBy_Click(int index) {
  const std::string key = model().selectedKey;
  model().mnuSortBy_Click(wb_, index);
  model().select(key);
  refreshTree();
}

void frmRecipeList::mnuSortLogCount_Click() {
  const std::string key = model().selectedKey;
  model().mnuSortLogCount_Click(wb_);
  model().select(key);
  refreshTree();
}

void frmRecipeList::closeEvent(QCloseEvent* event) {
  model().saveSettings(wb_);
  saveWindowPlacement(*this, wb_.settings, kRecipeListSection);
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
