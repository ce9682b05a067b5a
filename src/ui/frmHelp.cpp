#include "ui/frmHelp.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "ui/TopicIcons.h"

namespace zy {

frmHelp::frmHelp(const QString& helpFolder, QWidget* parent) : QMainWindow(parent) {
  setObjectName("frmHelp");
  setWindowTitle(tr("Zythara 2 Help"));
  setWindowIcon(toolIcon(ToolIcon::Help));
  catalog_.load(helpFolder);

  tabs = new QTabWidget;
  tabs->setObjectName("tabsHelp");

  // Contents.
  tvContents = new QTreeWidget;
  tvContents->setObjectName("tvContents");
  tvContents->setHeaderHidden(true);
  tvContents->setRootIsDecorated(true);
  tabs->addTab(tvContents, tr("&Contents"));

  // Index.
  auto* indexPage = new QWidget;
  auto* il = new QVBoxLayout(indexPage);
  il->setContentsMargins(6, 6, 6, 6);
  il->addWidget(new QLabel(tr("&Type in the keyword to find:")));
  txtIndex = new QLineEdit;
  txtIndex->setObjectName("txtIndex");
  txtIndex->setClearButtonEnabled(true);
  static_cast<QLabel*>(il->itemAt(0)->widget())->setBuddy(txtIndex);
  il->addWidget(txtIndex);
  lstIndex = new QListWidget;
  lstIndex->setObjectName("lstIndex");
  il->addWidget(lstIndex, 1);
  auto* cmdDisplayIndex = new QPushButton(tr("&Display"));
  il->addWidget(cmdDisplayIndex, 0, Qt::AlignRight);
  tabs->addTab(indexPage, tr("&Index"));

  // Search.
  auto* searchPage = new QWidget;
  auto* sl = new QVBoxLayout(searchPage);
  sl->setContentsMargins(6, 6, 6, 6);
  auto* searchLabel = new QLabel(tr("Type in the &word(s) to search for:"));
  sl->addWidget(searchLabel);
  auto* row = new QHBoxLayout;
  txtSearch = new QLineEdit;
  txtSearch->setObjectName("txtSearch");
  txtSearch->setClearButtonEnabled(true);
  txtSearch->setToolTip(tr("Every word must appear on the page; put a phrase in double quotes"));
  searchLabel->setBuddy(txtSearch);
  row->addWidget(txtSearch, 1);
  cmdSearch = new QPushButton(tr("&List Topics"));
  cmdSearch->setObjectName("cmdSearch");
  row->addWidget(cmdSearch);
  sl->addLayout(row);
  lblSearch = new QLabel;
  lblSearch->setObjectName("lblSearch");
  sl->addWidget(lblSearch);
  lstSearch = new QListWidget;
  lstSearch->setObjectName("lstSearch");
  sl->addWidget(lstSearch, 1);
  tabs->addTab(searchPage, tr("&Search"));

  webHelp = new QTextBrowser;
  webHelp->setObjectName("webHelp");
  webHelp->setSearchPaths({helpFolder});
  webHelp->setOpenLinks(true);
  webHelp->setOpenExternalLinks(true);

  auto* split = new QSplitter;
  split->addWidget(tabs);
  split->addWidget(webHelp);
  split->setStretchFactor(0, 0);
  split->setStretchFactor(1, 1);
  split->setSizes({290, 610});
  split->setChildrenCollapsible(false);
  setCentralWidget(split);

  // Toolbar.
  auto* tb = addToolBar(tr("Help"));
  tb->setObjectName("tbHelp");
  tb->setMovable(false);
  tb->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  QAction* back = tb->addAction(toolIcon(ToolIcon::Back), tr("Back"), webHelp, &QTextBrowser::backward);
  back->setShortcut(QKeySequence::Back);
  back->setToolTip(tr("Back to the page shown before (Alt+Left)"));
  back->setEnabled(false);
  QAction* fwd = tb->addAction(toolIcon(ToolIcon::Forward), tr("Forward"), webHelp, &QTextBrowser::forward);
  fwd->setShortcut(QKeySequence::Forward);
  fwd->setEnabled(false);
  fwd->setToolTip(tr("Forward to the page you came back from (Alt+Right)"));
  QAction* home = tb->addAction(topicIcon(TopicIcon::OpenBook), tr("Contents"), this, [this] { showContents(); });
  home->setToolTip(tr("The first page of the help"));
  QAction* print = tb->addAction(toolIcon(ToolIcon::Print), tr("Print"), this, &frmHelp::printPage);
  print->setShortcut(QKeySequence::Print);
  print->setToolTip(tr("Print this help page (Ctrl+P)"));
  connect(webHelp, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(webHelp, &QTextBrowser::forwardAvailable, fwd, &QAction::setEnabled);
  auto* closeAct = new QAction(this);
  closeAct->setShortcut(QKeySequence(Qt::Key_Escape));
  connect(closeAct, &QAction::triggered, this, &QWidget::close);
  addAction(closeAct);

  buildContents();
  filterIndex({});

  connect(tvContents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (!item || syncing_) return;
    QString target = item->data(0, Qt::UserRole).toString();
    if (!target.isEmpty()) showTopic(target);
  });
  connect(txtIndex, &QLineEdit::textChanged, this, &frmHelp::filterIndex);
  connect(txtIndex, &QLineEdit::returnPressed, this, [this] {
    if (lstIndex->currentItem()) openIndexItem(lstIndex->currentItem());
  });
  connect(lstIndex, &QListWidget::itemActivated, this, &frmHelp::openIndexItem);
  connect(lstIndex, &QListWidget::itemClicked, this, &frmHelp::openIndexItem);
  connect(cmdDisplayIndex, &QPushButton::clicked, this, [this] {
    if (lstIndex->currentItem()) openIndexItem(lstIndex->currentItem());
  });
  connect(cmdSearch, &QPushButton::clicked, this, &frmHelp::runSearch);
  connect(txtSearch, &QLineEdit::returnPressed, this, &frmHelp::runSearch);
  auto openHit = [this](QListWidgetItem* item) {
    if (item) showTopic(item->data(Qt::UserRole).toString());
  };
  connect(lstSearch, &QListWidget::itemActivated, this, openHit);
  connect(lstSearch, &QListWidget::itemClicked, this, openHit);
  connect(webHelp, &QTextBrowser::sourceChanged, this, [this] {
    syncContents();
    setWindowTitle(tr("Zythara 2 Help") + " - " + webHelp->documentTitle());
  });

  statusBar()->hide();
  resize(900, 640);
}

void frmHelp::buildContents() {
  tvContents->clear();
  QList<QTreeWidgetItem*> parents;
  for (const HelpContentsEntry& e : catalog_.contents()) {
    QTreeWidgetItem* item;
    int depth = std::min<int>(e.depth, parents.size());
    if (depth == 0) item = new QTreeWidgetItem(tvContents);
    else item = new QTreeWidgetItem(parents[depth - 1]);
    parents = parents.mid(0, depth);
    parents << item;
    item->setText(0, e.title);
    item->setData(0, Qt::UserRole, e.target);
    item->setToolTip(0, e.title);
  }
  // Books get the closed or open book, pages the leaf.
  std::function<void(QTreeWidgetItem*)> decorate = [&](QTreeWidgetItem* item) {
    item->setIcon(0, topicIcon(item->childCount() ? TopicIcon::ClosedBook : TopicIcon::Leaf));
    for (int i = 0; i < item->childCount(); ++i) decorate(item->child(i));
  };
  for (int i = 0; i < tvContents->topLevelItemCount(); ++i) decorate(tvContents->topLevelItem(i));
  connect(tvContents, &QTreeWidget::itemExpanded, this,
          [](QTreeWidgetItem* i) { i->setIcon(0, topicIcon(TopicIcon::OpenBook)); });
  connect(tvContents, &QTreeWidget::itemCollapsed, this,
          [](QTreeWidgetItem* i) { i->setIcon(0, topicIcon(TopicIcon::ClosedBook)); });
  tvContents->expandAll();
}

void frmHelp::filterIndex(const QString& text) {
  // The list keeps every keyword; typing moves to the first that starts with the text, as a
  // printed index is read.
  if (lstIndex->count() == 0) {
    const auto& index = catalog_.index();
    for (int i = 0; i < index.size(); ++i) {
      const HelpIndexEntry& e = index[i];
      // A keyword found on two pages names its page; otherwise the page is in the tooltip.
      const bool doubled = (i > 0 && index[i - 1].keyword.compare(e.keyword, Qt::CaseInsensitive) == 0) ||
                           (i + 1 < index.size() && index[i + 1].keyword.compare(e.keyword, Qt::CaseInsensitive) == 0);
      auto* item = new QListWidgetItem(doubled ? e.keyword + " (" + e.pageTitle + ")" : e.keyword);
      item->setToolTip(e.pageTitle);
      item->setData(Qt::UserRole, e.target);
      item->setData(Qt::UserRole + 1, e.keyword);
      lstIndex->addItem(item);
    }
  }
  QString t = text.trimmed();
  if (t.isEmpty()) return;
  for (int i = 0; i < lstIndex->count(); ++i) {
    if (lstIndex->item(i)->data(Qt::UserRole + 1).toString().startsWith(t, Qt::CaseInsensitive)) {
      lstIndex->setCurrentRow(i);
      lstIndex->scrollToItem(lstIndex->item(i), QAbstractItemView::PositionAtTop);
      return;
    }
  }
}

void frmHelp::openIndexItem(QListWidgetItem* item) {
  if (item) showTopic(item->data(Qt::UserRole).toString());
}

void frmHelp::showContents() {
  tabs->setCurrentIndex(0);
  showTopic(QStringLiteral("Zythara.html"));
  tvContents->setFocus();
}

void frmHelp::showIndex(const QString& keyword) {
  tabs->setCurrentIndex(1);
  txtIndex->setText(keyword);
  txtIndex->setFocus();
  if (webHelp->source().isEmpty()) showTopic(QStringLiteral("Zythara.html"));
}

void frmHelp::showSearch(const QString& query) {
  tabs->setCurrentIndex(2);
  if (!query.isEmpty()) {
    txtSearch->setText(query);
    runSearch();
  }
  txtSearch->setFocus();
  txtSearch->selectAll();
  if (webHelp->source().isEmpty()) showTopic(QStringLiteral("Zythara.html"));
}

void frmHelp::showTopic(const QString& target) {
  if (!catalog_.page(target)) {
    webHelp->setHtml("<h2>" + tr("Help page not found") + "</h2><p>" + target.toHtmlEscaped() + "</p>");
    return;
  }
  QUrl url = QUrl::fromLocalFile(QDir(catalog_.folder()).filePath(target.section('#', 0, 0)));
  QString anchor = target.section('#', 1);
  if (!anchor.isEmpty()) url.setFragment(anchor);
  webHelp->setSource(url);
}

QString frmHelp::currentPage() const { return QFileInfo(webHelp->source().toLocalFile()).fileName(); }

void frmHelp::runSearch() {
  lstSearch->clear();
  const QString q = txtSearch->text().trimmed();
  if (q.isEmpty()) {
    lblSearch->setText(tr("Nothing Entered for Searching"));
    return;
  }
  const auto hits = catalog_.search(q);
  for (const HelpSearchHit& h : hits) {
    auto* item = new QListWidgetItem(topicIcon(TopicIcon::Leaf), h.title);
    item->setData(Qt::UserRole, h.file);
    lstSearch->addItem(item);
  }
  lblSearch->setText(hits.isEmpty() ? tr("None Found") : tr("%n Topic(s) Found", nullptr, hits.size()));
  if (!hits.isEmpty()) lstSearch->setCurrentRow(0);
}

void frmHelp::syncContents() {
  // Marks the contents entry of the page shown, without opening it again.
  const QString page = currentPage();
  const QString anchor = webHelp->source().fragment();
  QTreeWidgetItemIterator it(tvContents);
  QTreeWidgetItem* best = nullptr;
  for (; *it; ++it) {
    QString t = (*it)->data(0, Qt::UserRole).toString();
    if (t.section('#', 0, 0) != page) continue;
    if (t.section('#', 1) == anchor) {
      best = *it;
      break;
    }
    if (!best) best = *it;
  }
  if (best && best != tvContents->currentItem()) {
    syncing_ = true;
    tvContents->setCurrentItem(best);
    syncing_ = false;
  }
}

void frmHelp::printPage() {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dlg(&printer, this);
  dlg.setWindowTitle(tr("Print Help Page"));
  if (dlg.exec() == QDialog::Accepted) webHelp->document()->print(&printer);
}

}  // namespace zy
