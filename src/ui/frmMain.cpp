#include "ui/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "calculators/HopsUtilization.h"
#include "core/measures.h"
#include "core/text.h"
#include "inventory/InventoryStartup.h"
#include "reference/Backup.h"
#include "reference/UpdateCheck.h"
#include "styles/StyleStore.h"
#include "ui/QtHttpFetch.h"
#include "ui/QtPrompter.h"
#include "ui/TopicIcons.h"
#include "ui/dlgSelectFolder.h"
#include "ui/frmAbout.h"
#include "ui/frmHelp.h"
#include "ui/frmProperties.h"

namespace zy {

namespace {

// The page view: renders the page string; pictures are named by full paths in the page, written
// with either separator.
class TopicBrowser : public QTextBrowser {
 public:
  QVariant loadResource(int type, const QUrl& name) override {
    if (type == QTextDocument::ImageResource) {
      QString path = name.isLocalFile() ? name.toLocalFile() : name.toString();
      path.replace('\\', '/');
      if (QFileInfo::exists(path)) return QTextBrowser::loadResource(type, QUrl::fromLocalFile(path));
    }
    return QTextBrowser::loadResource(type, name);
  }
};

const QString kNotYet = QObject::tr("Not available in this version of Zythara");

// The topic's title above the page: a long title ends in an ellipsis instead of widening the
// window's right side over the topic lists; the whole title is in the tool tip.
class ElidedLabel : public QLabel {
 public:
  QSize minimumSizeHint() const override {
    return {fontMetrics().averageCharWidth() * 8, QLabel::minimumSizeHint().height()};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    const QRect r = contentsRect();
    p.setPen(palette().color(foregroundRole()));
    p.drawText(r, static_cast<int>(alignment()) | Qt::TextSingleLine,
               fontMetrics().elidedText(text(), Qt::ElideRight, r.width()));
  }
};

// The page as the renderer takes it. A topic's pictures come as tables aligned left, which a
// browser floats beside the text; this renderer floats a table only when told so by its style,
// so the float is spelled out, with a little room between the picture and the text.
QString renderablePage(const std::string& page) {
  QString html = qs(page);
  html.replace("<TABLE ALIGN=left BORDER=5>", "<TABLE ALIGN=left BORDER=5 STYLE=\"float: left; margin-right: 10px\">");
  return html;
}

}  // namespace

frmMain::frmMain(Workbench& wb, QWidget* parent) : QMainWindow(parent), wb_(wb), browser_(wb) {
  setObjectName("frmMain");
  setWindowTitle(QString("%1 - Homebrewing Encyclopedia").arg(kApplicationName));
  setWindowIcon(programIcon());
  setMinimumSize(680, 440);

  auto* split = new QSplitter;
  split->setObjectName("splitMain");
  split->addWidget(buildTopicPanel());
  split->addWidget(buildPagePanel());
  split->setStretchFactor(0, 0);
  split->setStretchFactor(1, 1);
  split->setSizes({split->widget(0)->minimumWidth(), 700});
  split->setChildrenCollapsible(false);
  setCentralWidget(split);

  buildMenus();
  buildToolbar();
  sbStatusBar = statusBar();
  sbStatusBar->setObjectName("sbStatusBar");
  lblStatusCount = new QLabel;
  sbStatusBar->addPermanentWidget(lblStatusCount);
  sbStatusBar->addPermanentWidget(new QLabel(QString::fromStdString(splashVersionLine())));

  browser_.pageChanged = [this] { showPage(); };
  browser_.searchStarted = [this] {
    lblSearch->setText(qs(browser_.lblSearch));
    tvwTopics[TreeSearch]->clear();
    shown_[TreeSearch].clear();
    lblSearch->repaint();
  };
  printer_.setPageSize(QPageSize(QPageSize::Letter));
}

frmMain::~frmMain() { browser_.closeTopicStore(); }

// ---- building -------------------------------------------------------------------------------------

QWidget* frmMain::buildTopicPanel() {
  auto* panel = new QWidget;
  auto* v = new QVBoxLayout(panel);
  v->setContentsMargins(4, 4, 0, 4);
  v->setSpacing(4);

  tabTopics = new QTabBar;
  tabTopics->setObjectName("tabTopics");
  tabTopics->setExpanding(false);
  tabTopics->setUsesScrollButtons(false);
  tabTopics->setDrawBase(false);
  const char* tips[kTopicTreeCount] = {"Every topic of the encyclopedia", "Guided courses of topics",
                                       "The topics you have read, newest first", "Topics related to the one you read",
                                       "Find topics by a word or phrase"};
  for (int i = 0; i < kTopicTreeCount; ++i) {
    tabTopics->addTab(qs(browser_.tabCaptions[static_cast<size_t>(i)]));
    tabTopics->setTabToolTip(i, tr(tips[i]));
    tabTopics->setTabData(i, QString(kTopicTabKeys[i]));
  }
  v->addWidget(tabTopics);
  // The panel is never narrower than its five tabs.
  panel->setMinimumWidth(tabTopics->sizeHint().width() + 8);

  // The search panel (tab "Search").
  picSearch = new QWidget;
  picSearch->setObjectName("picSearch");
  auto* sv = new QVBoxLayout(picSearch);
  sv->setContentsMargins(0, 0, 0, 0);
  auto* srow = new QHBoxLayout;
  txtSearch = new QLineEdit;
  txtSearch->setObjectName("txtSearch");
  txtSearch->setPlaceholderText(tr("Word or phrase"));
  txtSearch->setToolTip(tr("Type a word or phrase and press Enter"));
  txtSearch->setClearButtonEnabled(false);
  cmdSearch = new QPushButton(toolIcon(ToolIcon::Search), tr("Search..."));
  cmdSearch->setObjectName("cmdSearch");
  cmdSearch->setToolTip(tr("List every topic whose title or text holds the phrase"));
  cmdClear = new QPushButton(tr("Clear"));
  cmdClear->setObjectName("cmdClear");
  cmdClear->setToolTip(tr("Empty the search box and the list"));
  srow->addWidget(txtSearch, 1);
  srow->addWidget(cmdSearch);
  srow->addWidget(cmdClear);
  sv->addLayout(srow);
  lblSearch = new QLabel;
  lblSearch->setObjectName("lblSearch");
  sv->addWidget(lblSearch);
  picSearch->hide();
  v->addWidget(picSearch);

  // The also-see panel (tab "Also See").
  picAlsoSee = new QWidget;
  picAlsoSee->setObjectName("picAlsoSee");
  auto* av = new QVBoxLayout(picAlsoSee);
  av->setContentsMargins(0, 0, 0, 0);
  auto* arow = new QHBoxLayout;
  arow->addWidget(new QLabel(tr("Original Topic:")));
  lblAlsoSeeTopic = new QLabel;
  lblAlsoSeeTopic->setObjectName("lblAlsoSeeTopic");
  lblAlsoSeeTopic->setToolTip(tr("Show this topic again"));
  lblAlsoSeeTopic->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  arow->addWidget(lblAlsoSeeTopic, 1);
  av->addLayout(arow);
  cmdAlsoSee = new QPushButton(toolIcon(ToolIcon::Refresh), tr("Refresh Also See..."));
  cmdAlsoSee->setObjectName("cmdAlsoSee");
  cmdAlsoSee->setToolTip(tr("List the topics related to the one on screen"));
  av->addWidget(cmdAlsoSee, 0, Qt::AlignLeft);
  picAlsoSee->hide();
  v->addWidget(picAlsoSee);

  stack_ = new QStackedWidget;
  for (int i = 0; i < kTopicTreeCount; ++i) {
    auto* t = new QTreeWidget;
    t->setObjectName(QString("tvwTopics%1").arg(i));
    t->setHeaderHidden(true);
    t->setRootIsDecorated(i == TreeMiniBooks);
    t->setUniformRowHeights(true);
    t->setIconSize(QSize(18, 18));
    t->setExpandsOnDoubleClick(true);
    tvwTopics[static_cast<size_t>(i)] = t;
    stack_->addWidget(t);
    connect(t, &QTreeWidget::currentItemChanged, this, [this, i](QTreeWidgetItem* cur) {
      // A tree that receives the focus with no current node makes its first node current
      // without selecting it; only a node the user selected (click or arrow keys) is shown.
      if (syncing_ || !cur || !cur->isSelected()) return;
      pressed_ = cur;
      nodeSelected(i, cur);
    });
    connect(t, &QTreeWidget::itemClicked, this, [this, i](QTreeWidgetItem* item) {
      if (syncing_) return;
      if (item == pressed_) {  // the press that made it current has shown it already
        pressed_ = nullptr;
        return;
      }
      nodeSelected(i, item);
    });
  }
  auto* books = tvwTopics[TreeMiniBooks];
  connect(books, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
    if (syncing_ || item->parent()) return;
    browser_.setExpanded(item->data(0, Qt::UserRole).toInt(), true);
    item->setIcon(0, topicIcon(TopicIcon::OpenBook));
  });
  connect(books, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
    if (syncing_ || item->parent()) return;
    browser_.setExpanded(item->data(0, Qt::UserRole).toInt(), false);
    item->setIcon(0, topicIcon(TopicIcon::ClosedBook));
  });
  v->addWidget(stack_, 1);

  connect(tabTopics, &QTabBar::currentChanged, this, [this](int i) {
    if (syncing_) return;
    tabChanged(i);
  });
  connect(txtSearch, &QLineEdit::textEdited, this, [this](const QString& t) { browser_.txtSearch = s8(t); });
  auto search = [this] {
    browser_.txtSearch = s8(txtSearch->text());
    browser_.cmdSearch();
    refreshFromModel();
  };
  connect(txtSearch, &QLineEdit::returnPressed, this, search);
  connect(cmdSearch, &QPushButton::clicked, this, search);
  connect(cmdClear, &QPushButton::clicked, this, [this] {
    browser_.cmdClear();
    refreshFromModel();
    txtSearch->setFocus();
  });
  connect(cmdAlsoSee, &QPushButton::clicked, this, [this] {
    browser_.cmdAlsoSee();
    refreshFromModel();
  });
  connect(lblAlsoSeeTopic, &QLabel::linkActivated, this, [this] {
    browser_.clickAlsoSeeTopic();
    refreshFromModel();
  });
  return panel;
}

QWidget* frmMain::buildPagePanel() {
  auto* panel = new QWidget;
  auto* v = new QVBoxLayout(panel);
  v->setContentsMargins(0, 4, 4, 4);
  v->setSpacing(4);
  auto* top = new QHBoxLayout;
  lblTitle = new ElidedLabel;
  lblTitle->setObjectName("lblTitle");
  QFont f = lblTitle->font();
  f.setPointSizeF(f.pointSizeF() * 1.3);
  f.setBold(true);
  lblTitle->setFont(f);
  lblTitle->setTextFormat(Qt::PlainText);
  top->addWidget(lblTitle, 1);
  cmdGoBack = new QPushButton(toolIcon(ToolIcon::Back), tr("&Go Back"));
  cmdGoBack->setObjectName("cmdGoBack");
  cmdGoBack->setToolTip(tr("The topic you read before this one (Alt+Left)"));
  cmdGoBack->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
  cmdGoBack->setEnabled(false);
  top->addWidget(cmdGoBack);
  v->addLayout(top);

  webTopic = new TopicBrowser;
  webTopic->setObjectName("webTopic");
  webTopic->setOpenLinks(false);
  webTopic->document()->setDocumentMargin(10);
  v->addWidget(webTopic, 1);

  connect(cmdGoBack, &QPushButton::clicked, this, [this] {
    browser_.cmdGoBack();
    refreshFromModel();
  });
  connect(webTopic, &QTextBrowser::anchorClicked, this, &frmMain::linkClicked);
  return panel;
}

void frmMain::buildMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->setObjectName("mnuFile");
  mnuFileBackupDB = file->addAction("&Backup All Databases", this, &frmMain::mnuFileBackupDB_Click);
  mnuFileBackupDB->setStatusTip(tr("Copy all data files into a dated backup folder"));
  mnuFileRestoreDB = file->addAction("&Restore All Databases", this, &frmMain::mnuFileRestoreDB_Click);
  mnuFileRestoreDB->setStatusTip(tr("Copy the data files of a backup folder back"));
  file->addSeparator();
  mnuFileProperties = file->addAction("Propert&ies", this, &frmMain::mnuFileProperties_Click);
  mnuFileProperties->setStatusTip(tr("Your preferences and defaults"));
  file->addSeparator();
  mnuFilePageSetup = file->addAction("Page Set&up...", this, &frmMain::mnuFilePageSetup_Click);
  mnuFilePageSetup->setStatusTip(tr("Paper, orientation and margins for printing"));
  mnuFilePrint = file->addAction(toolIcon(ToolIcon::Print), "&Print...", this, &frmMain::mnuFilePrint_Click);
  mnuFilePrint->setShortcut(QKeySequence::Print);
  mnuFilePrint->setStatusTip(tr("Print the topic on screen"));
  file->addSeparator();
  mnuFileExit = file->addAction("E&xit", this, &QWidget::close);
  mnuFileExit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  mnuFileExit->setStatusTip(tr("Close Zythara"));

  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->setObjectName("mnuView");
  mnuViewToolbar = view->addAction("&Toolbar");
  mnuViewToolbar->setCheckable(true);
  mnuViewToolbar->setChecked(true);
  mnuViewToolbar->setStatusTip(tr("Show or hide the toolbar"));
  mnuViewStatusBar = view->addAction("Status &Bar");
  mnuViewStatusBar->setCheckable(true);
  mnuViewStatusBar->setChecked(true);
  mnuViewStatusBar->setStatusTip(tr("Show or hide the status bar"));
  view->addSeparator();
  mnuViewRecipeList = view->addAction(toolIcon(ToolIcon::Recipes), "&Recipe List");
  mnuViewInventory = view->addAction(toolIcon(ToolIcon::Inventory), "&Inventory");
  mnuViewBeerStyles = view->addAction(toolIcon(ToolIcon::Styles), "Beer St&yles");
  mnuViewShoppingList = view->addAction(toolIcon(ToolIcon::Shopping), "&Shopping List");
  view->addSeparator();
  mnuViewQuillmark = view->addAction("Run &Quillmark", this, &frmMain::mnuViewQuillmark_Click);
  mnuViewQuillmark->setStatusTip(tr("Start the Quillmark label program"));
  connect(mnuViewToolbar, &QAction::toggled, this, [this](bool on) { tbToolBar->setVisible(on); });
  connect(mnuViewStatusBar, &QAction::toggled, this, [this](bool on) { sbStatusBar->setVisible(on); });

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->setObjectName("mnuHelp");
  mnuHelpContents = help->addAction(toolIcon(ToolIcon::Help), "&Contents...", this, [this] { showHelp(0); });
  mnuHelpContents->setShortcut(QKeySequence::HelpContents);
  mnuHelpContents->setStatusTip(tr("Open the help at its contents"));
  mnuHelpIndex = help->addAction("&Index...", this, [this] { showHelp(1); });
  mnuHelpIndex->setStatusTip(tr("Open the help at its keyword index"));
  mnuHelpSearch = help->addAction("&Search for Help On...", this, [this] { showHelp(2); });
  mnuHelpSearch->setStatusTip(tr("Search the help pages"));
  help->addSeparator();
  mnuHelpAbout = help->addAction(QString("&About ") + kApplicationName, this, &frmMain::mnuHelpAbout_Click);
  mnuHelpAbout->setStatusTip(tr("Version and legal notice"));

  // Ctrl+F goes to the search of the encyclopedia.
  auto* find = new QAction(this);
  find->setShortcut(QKeySequence::Find);
  connect(find, &QAction::triggered, this, [this] {
    tabTopics->setCurrentIndex(TreeSearch);
    txtSearch->setFocus();
    txtSearch->selectAll();
  });
  addAction(find);

  // Ctrl+Tab and Ctrl+Shift+Tab walk through the topic lists, wherever the focus is.
  for (int step : {1, -1}) {
    auto* walk = new QAction(this);
    if (step > 0) walk->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab));
    else walk->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab)});
    walk->setShortcutContext(Qt::WindowShortcut);
    connect(walk, &QAction::triggered, this, [this, step] {
      tabTopics->setCurrentIndex((tabTopics->currentIndex() + step + kTopicTreeCount) % kTopicTreeCount);
    });
    addAction(walk);
  }
}

void frmMain::buildToolbar() {
  tbToolBar = addToolBar(tr("Toolbar"));
  tbToolBar->setObjectName("tbToolBar");
  tbToolBar->setMovable(false);
  tbToolBar->setIconSize(QSize(24, 24));
  tbToolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  tbPrint = tbToolBar->addAction(toolIcon(ToolIcon::Print), tr("Print"), this, &frmMain::mnuFilePrint_Click);
  tbPrint->setObjectName("Print");
  tbPrint->setToolTip(tr("Print the topic on screen (Ctrl+P)"));
  tbToolBar->addSeparator();
  tbRecipes = tbToolBar->addAction(toolIcon(ToolIcon::Recipes), tr("Recipes"));
  tbRecipes->setObjectName("Recipes");
  tbInventory = tbToolBar->addAction(toolIcon(ToolIcon::Inventory), tr("Inventory"));
  tbInventory->setObjectName("Inventory");
  tbStyles = tbToolBar->addAction(toolIcon(ToolIcon::Styles), tr("Styles"));
  tbStyles->setObjectName("Styles");
  tbShopping = tbToolBar->addAction(toolIcon(ToolIcon::Shopping), tr("Shopping"));
  tbShopping->setObjectName("Shopping");
  tbToolBar->addSeparator();
  tbHelp = tbToolBar->addAction(toolIcon(ToolIcon::Help), tr("Help"), this, [this] { showHelp(0); });
  tbHelp->setObjectName("Help");
  tbHelp->setToolTip(tr("Open the help (F1)"));
  // Hiding the toolbar by its own context menu keeps the View menu's check in step.
  connect(tbToolBar, &QToolBar::visibilityChanged, this, [this](bool on) {
    if (!isVisible()) return;
    mnuViewToolbar->setChecked(on);
  });

  const QString names[4] = {tr("Recipe List"), tr("Inventory"), tr("Beer Styles"), tr("Shopping List")};
  QAction* menus[4] = {mnuViewRecipeList, mnuViewInventory, mnuViewBeerStyles, mnuViewShoppingList};
  QAction* tools[4] = {tbRecipes, tbInventory, tbStyles, tbShopping};
  for (int i = 0; i < 4; ++i) {
    for (QAction* a : {menus[i], tools[i]}) {
      a->setEnabled(false);
      a->setToolTip(names[i] + " - " + kNotYet);
      a->setStatusTip(names[i] + " - " + kNotYet);
      connect(a, &QAction::triggered, this, [this, i] {
        if (openers_[static_cast<size_t>(i)]) openers_[static_cast<size_t>(i)]();
      });
    }
  }
}

void frmMain::setChildOpener(Child which, std::function<void()> open) {
  const int i = static_cast<int>(which);
  openers_[static_cast<size_t>(i)] = std::move(open);
  QAction* menus[4] = {mnuViewRecipeList, mnuViewInventory, mnuViewBeerStyles, mnuViewShoppingList};
  QAction* tools[4] = {tbRecipes, tbInventory, tbStyles, tbShopping};
  const QString tips[4] = {tr("Open the list of your recipes"), tr("Open your stock of ingredients and supplies"),
                           tr("Browse the beer style guidelines"), tr("Open the shopping list")};
  const bool on = static_cast<bool>(openers_[static_cast<size_t>(i)]);
  for (QAction* a : {menus[i], tools[i]}) {
    a->setEnabled(on);
    a->setToolTip(on ? tips[i] : kNotYet);
    a->setStatusTip(on ? tips[i] : kNotYet);
  }
}

bool frmMain::openChild(Child which) {
  auto& open = openers_[static_cast<size_t>(which)];
  if (!open) return false;
  open();
  return true;
}

// ---- the load ---------------------------------------------------------------------------------------

void frmMain::load(const std::string& commandLine) {
  sequence_ = LoadSequence();
  sequence_.on(LoadStep::WindowSettings, [this] { restoreWindowSettings(); });
  sequence_.on(LoadStep::OpenTopicStore, [this] { browser_.openTopicStore(); });
  sequence_.on(LoadStep::InitMeasures, [] { initMeasures(); });
  sequence_.on(LoadStep::LoadInventories, [this] { loadInventoryAndShopping(wb_); });
  sequence_.on(LoadStep::LoadDefaults, [this] { wb_.loadDefaults(); });
  sequence_.on(LoadStep::LoadTopicsAndBooks, [this] {
    browser_.loadEncyclopediaTopics();
    browser_.loadMiniBooks();
  });
  sequence_.on(LoadStep::LoadBeerStyles, [this] { LoadBeerStyles(wb_); });
  sequence_.on(LoadStep::LoadHopsUtilization, [this] { LoadHopsUtilization(wb_.hops, wb_.settings); });
  sequence_.on(LoadStep::LabelEntry, [this] { showLabelEntry(); });
  sequence_.on(LoadStep::BuildTreeAndTabs, [this] {
    browser_.showFirstTopic();
    refreshFromModel();
  });
  sequence_.on(LoadStep::CommandLineImport, [this, commandLine] {
    if (!trim(commandLine).empty()) commandLineImport(trim(commandLine));
  });
  sequence_.on(LoadStep::UpdateCheck, [this] { updateCheck(); });
  sequence_.run();
}

void frmMain::restoreWindowSettings() {
  QRect avail(0, 0, 1280, 800);
  if (QScreen* s = screen() ? screen() : QGuiApplication::primaryScreen()) avail = s->availableGeometry();
  WindowPlacement computed;
  computed.state = WINDOW_NORMAL;
  computed.left = 500;
  computed.top = 500;
  computed.width = pixelsToTwips(std::min(1100, avail.width() * 4 / 5));
  computed.height = pixelsToTwips(std::min(760, avail.height() * 4 / 5));
  placement_ = readPlacement(wb_.settings, kSettingsSection, computed);
  QRect r(twipsToPixels(placement_.left), twipsToPixels(placement_.top), twipsToPixels(placement_.width),
          twipsToPixels(placement_.height));
  r.setWidth(std::max(r.width(), minimumWidth()));
  r.setHeight(std::max(r.height(), minimumHeight()));
  // A place that left the screens (a monitor that is gone) comes back to the visible area.
  if (!avail.intersects(r.adjusted(0, 0, -r.width() / 2, -r.height() / 2)))
    r.moveTopLeft(avail.topLeft() + QPoint(twipsToPixels(computed.left), twipsToPixels(computed.top)));
  resize(r.size());
  move(r.topLeft());
}

void frmMain::showFromSettings() {
  if (placement_.state == WINDOW_MAXIMIZED) showMaximized();
  else show();
  raise();
  activateWindow();
}

void frmMain::showLabelEntry() { mnuViewQuillmark->setVisible(wb_.defaults.activateQuillmark != 0); }

void frmMain::commandLineImport(const std::string& path) {
  openChild(Child::RecipeList);
  QCoreApplication::processEvents();
  importedRecipe = importCommandLineRecipe(wb_, path);
}

void frmMain::updateCheck() {
  HttpFetch* http = http_;
  if (!http) {
    ownHttp_ = std::make_unique<QtHttpFetch>();
    http = ownHttp_.get();
  }
  auto launcher = openBrowser ? openBrowser : [](const std::string& url) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
  };
  startupUpdateCheck(wb_, *http, launcher);
}

// ---- repainting from the model ---------------------------------------------------------------------

namespace {
std::vector<std::string> signatureOf(const std::vector<TopicNode>& tree) {
  std::vector<std::string> sig;
  sig.reserve(tree.size());
  for (const TopicNode& n : tree) {
    std::string s = n.text + '\x1f' + n.tag;
    for (const TopicNode& c : n.children) s += '\x1e' + c.text + '\x1f' + c.tag;
    sig.push_back(std::move(s));
  }
  return sig;
}
}  // namespace

void frmMain::fillTree(int tree) {
  QTreeWidget* t = tvwTopics[static_cast<size_t>(tree)];
  const auto& nodes = browser_.trees[static_cast<size_t>(tree)];
  t->clear();
  pressed_ = nullptr;
  QList<QTreeWidgetItem*> items;
  for (size_t i = 0; i < nodes.size(); ++i) {
    const TopicNode& n = nodes[i];
    auto* item = new QTreeWidgetItem;
    item->setText(0, qs(n.text));
    item->setIcon(0, topicIcon(n.icon));
    item->setData(0, Qt::UserRole, static_cast<int>(i));
    item->setData(0, Qt::UserRole + 1, -1);
    for (size_t c = 0; c < n.children.size(); ++c) {
      auto* ch = new QTreeWidgetItem(item);
      ch->setText(0, qs(n.children[c].text));
      ch->setIcon(0, topicIcon(n.children[c].icon));
      ch->setData(0, Qt::UserRole, static_cast<int>(i));
      ch->setData(0, Qt::UserRole + 1, static_cast<int>(c));
    }
    items << item;
  }
  t->addTopLevelItems(items);
  for (size_t i = 0; i < nodes.size(); ++i)
    if (nodes[i].expanded) items[static_cast<int>(i)]->setExpanded(true);
}

void frmMain::syncTree(int tree) {
  auto sig = signatureOf(browser_.trees[static_cast<size_t>(tree)]);
  if (sig != shown_[static_cast<size_t>(tree)]) {
    fillTree(tree);
    shown_[static_cast<size_t>(tree)] = std::move(sig);
    return;
  }
  QTreeWidget* t = tvwTopics[static_cast<size_t>(tree)];
  const auto& nodes = browser_.trees[static_cast<size_t>(tree)];
  for (int i = 0; i < t->topLevelItemCount() && i < static_cast<int>(nodes.size()); ++i)
    t->topLevelItem(i)->setIcon(0, topicIcon(nodes[static_cast<size_t>(i)].icon));
}

void frmMain::refreshFromModel() {
  syncing_ = true;
  for (int i = 0; i < kTopicTreeCount; ++i) {
    syncTree(i);
    const QString caption = qs(browser_.tabCaptions[static_cast<size_t>(i)]);
    if (tabTopics->tabText(i) != caption) tabTopics->setTabText(i, caption);
  }
  if (tabTopics->currentIndex() != browser_.currentTab) {
    tabTopics->setCurrentIndex(browser_.currentTab);
    stack_->setCurrentIndex(browser_.currentTab);
  }
  picSearch->setVisible(browser_.searchPanelVisible());
  picAlsoSee->setVisible(browser_.alsoSeePanelVisible());

  lblTitle->setText(qs(browser_.lblTitle));
  lblTitle->setToolTip(lblTitle->text());
  cmdGoBack->setEnabled(browser_.cmdGoBackEnabled);
  cmdAlsoSee->setEnabled(browser_.cmdAlsoSeeEnabled);
  const QString original = qs(browser_.lblAlsoSeeTopic);
  lblAlsoSeeTopic->setText(original.isEmpty() ? QString() : "<a href=\"#topic\">" + original.toHtmlEscaped() + "</a>");
  lblSearch->setText(qs(browser_.lblSearch));
  if (s8(txtSearch->text()) != browser_.txtSearch) txtSearch->setText(qs(browser_.txtSearch));

  QTreeWidget* history = tvwTopics[TreeHistory];
  if (browser_.currentHistory >= 0 && browser_.currentHistory < history->topLevelItemCount())
    history->setCurrentItem(history->topLevelItem(browser_.currentHistory));
  syncing_ = false;

  lblStatusCount->setText(tr("Topics: %1    Mini-Books: %2")
                              .arg(browser_.trees[TreeAllTopics].size())
                              .arg(browser_.trees[TreeMiniBooks].size()));
}

void frmMain::showPage() {
  webTopic->setHtml(renderablePage(browser_.page));
  webTopic->verticalScrollBar()->setValue(0);
  setWindowTitle(QString("%1 - %2").arg(kApplicationName, qs(browser_.lblTitle)));
}

void frmMain::nodeSelected(int tree, QTreeWidgetItem* item) {
  NodeRef ref;
  ref.tree = tree;
  ref.index = item->data(0, Qt::UserRole).toInt();
  ref.child = item->data(0, Qt::UserRole + 1).toInt();
  browser_.selectNode(ref);
  refreshFromModel();
}

void frmMain::tabChanged(int tab) {
  browser_.selectTab(tab);
  stack_->setCurrentIndex(tab);
  picSearch->setVisible(browser_.searchPanelVisible());
  picAlsoSee->setVisible(browser_.alsoSeePanelVisible());
  if (tab == TreeSearch) {
    txtSearch->setFocus();
    txtSearch->selectAll();
  }
}

void frmMain::linkClicked(const QUrl& url) {
  const QString scheme = url.scheme().toLower();
  if (scheme == "http" || scheme == "https" || scheme == "mailto") {
    QDesktopServices::openUrl(url);
    return;
  }
  // A link inside a topic may name another topic by its index title.
  QString title = url.fragment().isEmpty() ? url.toString(QUrl::FullyDecoded) : url.fragment(QUrl::FullyDecoded);
  int i = browser_.findTopic(s8(title));
  if (i < 0) return;
  browser_.loadTopicText(browser_.trees[TreeAllTopics][static_cast<size_t>(i)].tagValue(), true, true);
  refreshFromModel();
}

// ---- menus -----------------------------------------------------------------------------------------

void frmMain::mnuFileBackupDB_Click() {
  backupAllDatabases(wb_, [this](const std::string& title, const std::string& initial) {
    return dlgSelectFolder::pick(this, title, initial);
  });
}

void frmMain::mnuFileRestoreDB_Click() {
  restoreAllDatabases(wb_, [this](const std::string& title, const std::string& initial) {
    return dlgSelectFolder::pick(this, title, initial);
  });
}

void frmMain::mnuFileProperties_Click() {
  frmProperties dlg(wb_, this);
  dlg.exec();
  showLabelEntry();
}

void frmMain::mnuFilePageSetup_Click() {
  QPageSetupDialog dlg(&printer_, this);
  dlg.setWindowTitle("Page Setup");
  dlg.exec();
}

void frmMain::mnuFilePrint_Click() {
  QPrintDialog dlg(&printer_, this);
  dlg.setWindowTitle(tr("Print Topic"));
  if (dlg.exec() != QDialog::Accepted) return;
  webTopic->document()->print(&printer_);
}

void frmMain::mnuViewQuillmark_Click() {
  const std::string path = trim(wb_.defaults.quillmarkPath);
  if (path.empty()) {
    wb_.prompter.message("Please Set Path to the Quillmark Program", "Missing Quillmark Path", Icon::Warning);
    return;
  }
  const QString program = qs(path);
  if (!QProcess::startDetached(program, {}, QFileInfo(program).absolutePath()))
    wb_.prompter.message("Unable to Start " + path, "Run Quillmark", Icon::Warning);
}

void frmMain::mnuHelpAbout_Click() {
  frmAbout dlg(this);
  dlg.exec();
}

frmHelp* frmMain::help() {
  if (!help_) help_ = new frmHelp(qs(wb_.folder.helpFolder()), this);
  return help_;
}

void frmMain::showHelp(int where) {
  frmHelp* h = help();
  if (where == 1) h->showIndex();
  else if (where == 2) h->showSearch();
  else h->showContents();
  h->show();
  h->raise();
  h->activateWindow();
}

// ---- the end ---------------------------------------------------------------------------------------

WindowPlacement frmMain::currentPlacement() const {
  WindowPlacement p;
  p.state = isMinimized() ? WINDOW_MINIMIZED : isMaximized() ? WINDOW_MAXIMIZED : WINDOW_NORMAL;
  p.left = pixelsToTwips(pos().x());
  p.top = pixelsToTwips(pos().y());
  p.width = pixelsToTwips(width());
  p.height = pixelsToTwips(height());
  return p;
}

void frmMain::closeEvent(QCloseEvent* event) {
  wb_.appClosing = true;
  writePlacement(wb_.settings, kSettingsSection, currentPlacement(), true);
  browser_.closeTopicStore();
  // Every other window closes with this one, for good: appClosing tells them not to hide.
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w != this && w->isWindow() && w->isVisible()) w->close();
  event->accept();
  if (quitOnClose) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

}  // namespace zy
