// The help window over the program's own pages: contents, index and search.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "support/TestSupport.h"
#include "ui/HelpCatalog.h"
#include "ui/UiSupport.h"
#include "ui/frmHelp.h"

namespace zy::test {
namespace {

QString helpFolder() { return QString(ZY_SOURCE_DIR) + "/data/help"; }

TEST(Help, EveryWindowHasItsPageAndEveryLinkLeadsSomewhere) {
  HelpCatalog c;
  ASSERT_TRUE(c.load(helpFolder()));
  for (const char* page : {"Zythara.html", "getting-started.html", "main-window.html", "properties.html",
                           "help-window.html", "backup-restore.html", "files.html"})
    EXPECT_NE(c.page(page), nullptr) << page;
  // Every contents entry and every index entry names a page that exists.
  for (const auto& e : c.contents()) EXPECT_NE(c.page(e.target), nullptr) << e.target.toStdString();
  for (const auto& e : c.index()) EXPECT_NE(c.page(e.target), nullptr) << e.target.toStdString();
  // The index is sorted without regard to case.
  for (int i = 1; i < c.index().size(); ++i)
    EXPECT_LE(QString::compare(c.index()[i - 1].keyword, c.index()[i].keyword, Qt::CaseInsensitive), 0);
  EXPECT_EQ(c.contents().first().title, "Welcome to Zythara 2");
  EXPECT_EQ(c.contents()[1].depth, 0);
  EXPECT_EQ(c.contents()[2].depth, 1);
}

TEST(Help, SearchNeedsEveryWordAndKeepsPhrasesTogether) {
  HelpCatalog c;
  ASSERT_TRUE(c.load(helpFolder()));
  EXPECT_EQ(HelpCatalog::queryTerms("Mash \"Sparge Rate\"  x"), QStringList({"mash", "sparge rate", "x"}));
  auto hits = c.search("\"mash efficiency\"");
  ASSERT_FALSE(hits.isEmpty());
  QStringList files;
  for (const auto& h : hits) files << h.file;
  EXPECT_TRUE(files.contains("properties.html"));
  EXPECT_TRUE(c.search("quillmark zzzz-nothing").isEmpty());
  EXPECT_TRUE(c.search("   ").isEmpty());
}

TEST(Help, WindowDrivenByContentsIndexAndSearch) {
  frmHelp w(helpFolder());
  w.show();
  w.showContents();
  EXPECT_EQ(w.currentPage(), "Zythara.html");
  EXPECT_TRUE(w.webHelp->toPlainText().contains("Homebrewing Encyclopedia"));

  // Contents: a click on an entry opens its page.
  QTreeWidgetItem* props = nullptr;
  for (QTreeWidgetItemIterator it(w.tvContents); *it; ++it)
    if ((*it)->text(0) == "Properties") props = *it;
  ASSERT_NE(props, nullptr);
  clickItem(w.tvContents, props);
  EXPECT_EQ(w.currentPage(), "properties.html");

  // Index: typing moves to the keyword; Enter opens it.
  w.showIndex();
  QTest::keyClicks(w.txtIndex, "go b");
  ASSERT_NE(w.lstIndex->currentItem(), nullptr);
  EXPECT_TRUE(w.lstIndex->currentItem()->text().startsWith("Go Back"));
  QTest::keyClick(w.txtIndex, Qt::Key_Return);
  EXPECT_EQ(w.currentPage(), "main-window.html");

  // Search.
  w.showSearch();
  EXPECT_EQ(w.tabs->currentIndex(), 2);
  QTest::keyClicks(w.txtSearch, "restore dated folder");
  QTest::keyClick(w.txtSearch, Qt::Key_Return);
  ASSERT_GE(w.lstSearch->count(), 1);
  EXPECT_EQ(w.lstSearch->item(0)->text(), "Backup, Restore and Updates");
  EXPECT_TRUE(w.lblSearch->text().endsWith("Found"));
  emit w.lstSearch->itemClicked(w.lstSearch->item(0));
  EXPECT_EQ(w.currentPage(), "backup-restore.html");
  w.txtSearch->clear();
  QTest::keyClicks(w.txtSearch, "zzzz-nothing");
  w.cmdSearch->click();
  EXPECT_EQ(w.lblSearch->text(), "None Found");
  EXPECT_EQ(w.lstSearch->count(), 0);
}

}  // namespace
}  // namespace zy::test
