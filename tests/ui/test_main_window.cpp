// The encyclopedia window driven as a person would: the tabs, the history, Also See, Go Back,
// the search, the mini-books, and the menu commands of backup, restore, Quillmark and update.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QAbstractTextDocumentLayout>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextFrame>
#include <QTextTable>
#include <QStatusBar>
#include <QThread>
#include <QToolBar>
#include <QTreeWidget>
#include <filesystem>

#include "core/dates.h"
#include "core/paths.h"
#include "reference/Backup.h"
#include "reference/UpdateCheck.h"
#include "support/TestSupport.h"
#include "ui/QtHttpFetch.h"
#include "ui/UiSupport.h"
#include "ui/dlgSelectFolder.h"
#include "ui/QtPrompter.h"
#include "ui/frmAbout.h"
#include "ui/frmHelp.h"
#include "ui/frmMain.h"
#include "ui/frmProperties.h"

namespace zy::test {
namespace {

struct MainBench : Bench {
  MainBench() {
    writeTestReference(dir.path());
    copyHelpPages(dir.path());
    settings.write("Settings", "Check Update", "1/1/2099");
    w = std::make_unique<frmMain>(*wb);
    w->quitOnClose = false;
    w->load("");
    w->show();
  }
  QTreeWidget* tree(int i) { return w->tvwTopics[static_cast<size_t>(i)]; }
  QStringList texts(int i) {
    QStringList out;
    for (int k = 0; k < tree(i)->topLevelItemCount(); ++k) out << tree(i)->topLevelItem(k)->text(0);
    return out;
  }
  std::unique_ptr<frmMain> w;
};

TEST(MainWindow, TopicsHistoryGoBackAndAlsoSeeByClicks) {
  // The lists, history and Also See rules are the model's; here the clicks reach it and the
  // controls show what it holds.
  MainBench b;
  EXPECT_EQ(b.texts(TreeAllTopics), QStringList({"Barley Malt", "Hops", "Mashing", "Yeast"}));
  EXPECT_EQ(b.w->lblTitle->text(), "Barley Malt");
  EXPECT_TRUE(b.w->webTopic->toPlainText().contains("Malt gives the wort its sugar."));
  EXPECT_TRUE(b.w->webTopic->toPlainText().contains("Pale malt"));
  EXPECT_FALSE(b.w->cmdGoBack->isEnabled());
  clickItem(b.tree(0), b.tree(0)->topLevelItem(1));  // Hops
  clickItem(b.tree(0), b.tree(0)->topLevelItem(3));  // Yeast
  EXPECT_EQ(b.w->lblTitle->text(), "Yeast");
  EXPECT_EQ(b.texts(TreeHistory), QStringList({"Yeast", "Hops", "Barley Malt"}));
  b.w->cmdGoBack->click();
  EXPECT_EQ(b.w->lblTitle->text(), "Hops");
  EXPECT_EQ(b.tree(TreeHistory)->currentItem()->text(0), "Hops");
  EXPECT_TRUE(b.w->cmdGoBack->isEnabled());

  // Also See of the first topic, its panel, and the original topic's link.
  clickItem(b.tree(0), b.tree(0)->topLevelItem(0));
  EXPECT_EQ(b.w->tabTopics->tabText(TreeAlsoSee), "* A&lso See");
  QTest::mouseClick(b.w->tabTopics, Qt::LeftButton, Qt::NoModifier, b.w->tabTopics->tabRect(TreeAlsoSee).center());
  EXPECT_TRUE(b.w->picAlsoSee->isVisible());
  EXPECT_FALSE(b.w->picSearch->isVisible());
  EXPECT_EQ(b.texts(TreeAlsoSee), QStringList({"Mashing", "Hops"}));
  clickItem(b.tree(TreeAlsoSee), b.tree(TreeAlsoSee)->topLevelItem(0));
  EXPECT_EQ(b.w->lblTitle->text(), "Mashing");
  EXPECT_TRUE(b.w->cmdAlsoSee->isEnabled());
  emit b.w->lblAlsoSeeTopic->linkActivated("#topic");
  EXPECT_EQ(b.w->lblTitle->text(), "Barley Malt");
  clickItem(b.tree(0), b.tree(0)->topLevelItem(3));  // Yeast has no list
  EXPECT_EQ(b.w->tabTopics->tabText(TreeAlsoSee), "  A&lso See");
  EXPECT_EQ(b.tree(TreeAlsoSee)->topLevelItemCount(), 0);
}

TEST(MainWindow, SwitchingTabsShowsNoTopic) {
  // The focus passing to a tree that has no current node must not open its first topic.
  MainBench b;
  b.w->activateWindow();
  clickItem(b.tree(0), b.tree(0)->topLevelItem(1));  // Hops; the list has the focus
  ASSERT_EQ(b.texts(TreeHistory), QStringList({"Hops", "Barley Malt"}));
  for (int tab : {TreeMiniBooks, TreeHistory, TreeAlsoSee, TreeSearch, TreeAllTopics}) {
    QTest::mouseClick(b.w->tabTopics, Qt::LeftButton, Qt::NoModifier, b.w->tabTopics->tabRect(tab).center());
    b.w->tvwTopics[static_cast<size_t>(tab)]->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(b.w->lblTitle->text(), "Hops") << tab;
  }
  EXPECT_EQ(b.texts(TreeHistory), QStringList({"Hops", "Barley Malt"}));
  EXPECT_EQ(b.tree(TreeHistory)->currentItem()->text(0), "Hops");
  // The arrow keys still walk the list, and a later click on the node they reached shows it.
  QTest::keyClick(b.tree(0), Qt::Key_Down);
  EXPECT_EQ(b.w->lblTitle->text(), "Mashing");
  b.w->cmdGoBack->click();
  EXPECT_EQ(b.w->lblTitle->text(), "Hops");
  clickItem(b.tree(0), b.tree(0)->topLevelItem(2));
  EXPECT_EQ(b.w->lblTitle->text(), "Mashing");
}

TEST(MainWindow, SearchAsTyped) {
  MainBench b;
  QTest::mouseClick(b.w->tabTopics, Qt::LeftButton, Qt::NoModifier, b.w->tabTopics->tabRect(TreeSearch).center());
  ASSERT_TRUE(b.w->picSearch->isVisible());
  QTest::keyClicks(b.w->txtSearch, "SUGAR");
  QTest::keyClick(b.w->txtSearch, Qt::Key_Return);
  EXPECT_EQ(b.w->lblSearch->text(), "2 Found");
  EXPECT_EQ(b.texts(TreeSearch), QStringList({"Barley Malt", "Yeast"}));
  clickItem(b.tree(TreeSearch), b.tree(TreeSearch)->topLevelItem(1));
  EXPECT_EQ(b.w->lblTitle->text(), "Yeast");
  b.w->cmdClear->click();
  EXPECT_EQ(b.w->txtSearch->text() + b.w->lblSearch->text(), "");
  b.w->cmdSearch->click();
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Topic Search: Nothing Entered for Searching"});
}

TEST(MainWindow, MiniBooksOpenAndClose) {
  MainBench b;
  QTreeWidgetItem* book = b.tree(TreeMiniBooks)->topLevelItem(0);
  ASSERT_EQ(book->childCount(), 2);
  book->setExpanded(true);
  EXPECT_EQ(b.w->browser().trees[TreeMiniBooks][0].icon, TopicIcon::OpenBook);
  book->setExpanded(false);
  EXPECT_EQ(b.w->browser().trees[TreeMiniBooks][0].icon, TopicIcon::ClosedBook);
}

TEST(MainWindow, MenusAndToolbar) {
  MainBench b;
  // Entries of windows not in this build stay disabled, never faked.
  EXPECT_FALSE(b.w->mnuViewRecipeList->isEnabled());
  EXPECT_FALSE(b.w->tbInventory->isEnabled());
  int opened = 0;
  b.w->setChildOpener(frmMain::Child::RecipeList, [&] { ++opened; });
  EXPECT_TRUE(b.w->mnuViewRecipeList->isEnabled());
  b.w->tbRecipes->trigger();
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(b.w->mnuHelpAbout->text(), "&About Zythara 2");
  // The about box: the version text and the legal line.
  QString aboutTitle, aboutVersion, aboutLegal;
  whenModalOpens([&](QWidget* box) {
    auto* about = qobject_cast<frmAbout*>(box);
    ASSERT_NE(about, nullptr);
    aboutTitle = about->windowTitle();
    aboutVersion = about->lblVersion->text();
    aboutLegal = about->lblLegal->text().replace(QChar(0x00A0), ' ');
    about->accept();
  });
  b.w->mnuHelpAbout->trigger();
  EXPECT_EQ(aboutTitle, "About Zythara 2");
  EXPECT_EQ(aboutVersion, QString::fromStdString("Version " + versionText()));
  EXPECT_EQ(aboutLegal, qs(legalLine()));
  b.w->mnuViewToolbar->trigger();
  EXPECT_FALSE(b.w->tbToolBar->isVisible());
  b.w->mnuViewStatusBar->trigger();
  EXPECT_FALSE(b.w->sbStatusBar->isVisible());
  // The three help entries open our help window at its three pages.
  b.w->mnuHelpIndex->trigger();
  EXPECT_EQ(b.w->help()->tabs->currentIndex(), 1);
  b.w->mnuHelpSearch->trigger();
  EXPECT_EQ(b.w->help()->tabs->currentIndex(), 2);
  b.w->mnuHelpContents->trigger();
  EXPECT_EQ(b.w->help()->tabs->currentIndex(), 0);
  EXPECT_EQ(b.w->help()->currentPage(), "Zythara.html");
}

TEST(MainWindow, KeyboardAndLayout) {
  MainBench b;
  EXPECT_EQ(accessKeyClashes(b.w.get()), std::vector<std::string>{});
  // Ctrl+Tab walks the topic lists forward, Ctrl+Shift+Tab back, wherever the focus is.
  b.w->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(b.w.get()));
  b.tree(TreeAllTopics)->setFocus();
  QTest::keyClick(b.tree(TreeAllTopics), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(b.w->tabTopics->currentIndex(), TreeMiniBooks);
  QTest::keyClick(b.w->webTopic, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::keyClick(b.w->webTopic, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(b.w->tabTopics->currentIndex(), TreeSearch);

  // The first topic's picture floats at the left, its text beside it rather than below.
  QTextFrame* picture = nullptr;
  for (QTextFrame* f : b.w->webTopic->document()->rootFrame()->childFrames())
    if (qobject_cast<QTextTable*>(f)) picture = f;
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->frameFormat().position(), QTextFrameFormat::FloatLeft);
  QTextCursor body = b.w->webTopic->document()->find("Malt gives the wort");
  ASSERT_FALSE(body.isNull());
  QAbstractTextDocumentLayout* layout = b.w->webTopic->document()->documentLayout();
  EXPECT_LT(layout->blockBoundingRect(body.block()).top(), layout->frameBoundingRect(picture).bottom());

  // At the smallest size the lists and the page lie side by side, and a long title gives way.
  b.w->resize(b.w->minimumSize());
  QApplication::processEvents();
  QWidget* lists = b.w->tabTopics->parentWidget();
  QWidget* page = b.w->webTopic->parentWidget();
  EXPECT_LE(lists->mapTo(b.w.get(), QPoint(lists->width(), 0)).x(), page->mapTo(b.w.get(), QPoint(0, 0)).x());
  EXPECT_LE(page->mapTo(b.w.get(), QPoint(page->width(), 0)).x(), b.w->width());
  b.w->lblTitle->setText(QString(200, 'W'));
  EXPECT_LT(b.w->lblTitle->minimumSizeHint().width(), page->width());
}

TEST(MainWindow, AccessKeysOfTheOtherWindowsAreUnique) {
  MainBench b;
  frmProperties props(*b.wb);
  frmHelp help(qs(b.wb->folder.helpFolder()));
  frmAbout about;
  dlgSelectFolder folders("Backup All Zythara Databases", qs(b.dir.path()));
  for (QTabWidget* pages : {props.tbsOptions, help.tabs})
    for (int i = 0; i < pages->count(); ++i) {
      pages->setCurrentIndex(i);
      EXPECT_EQ(accessKeyClashes(pages->window()), std::vector<std::string>{}) << i;
    }
  EXPECT_EQ(accessKeyClashes(&about), std::vector<std::string>{});
  EXPECT_EQ(accessKeyClashes(&folders), std::vector<std::string>{});
}

TEST(MainWindow, QuillmarkNeedsItsPathThenStarts) {
  MainBench b;
  EXPECT_FALSE(b.w->mnuViewQuillmark->isVisible());
  b.wb->defaults.activateQuillmark = 1;
  b.w->mnuViewQuillmark->trigger();
  ASSERT_EQ(b.prompter.shown.size(), 1u);
  EXPECT_EQ(b.prompter.shown[0].text, "Please Set Path to the Quillmark Program");
  EXPECT_EQ(b.prompter.shown[0].title, "Missing Quillmark Path");

  const std::string marker = b.dir.file("label-program-ran");
  const std::string script = b.dir.file("quillmark.sh");
  writeFile(script, "#!/bin/sh\necho ran > '" + marker + "'\n");
  std::filesystem::permissions(script, std::filesystem::perms::owner_all);
  b.wb->defaults.quillmarkPath = script;
  b.w->mnuViewQuillmark->trigger();
  for (int i = 0; i < 100 && !fileExists(marker); ++i) QTest::qWait(30);
  EXPECT_TRUE(fileExists(marker));
  EXPECT_EQ(b.prompter.shown.size(), 1u);
}

TEST(MainWindow, BackupThroughTheFolderPickerThenRestoreFromAnEmptyFolder) {
  MainBench b;
  for (int i = 0; i < kBackupFileCount; ++i)
    writeFile(b.wb->folder.dataFile(kBackupFiles[i]), std::string("data ") + kBackupFiles[i]);
  const std::string target = b.dir.file("Backups/2026-11-22");
  std::string title;
  whenModalOpens([&](QWidget* w) {
    auto* dlg = qobject_cast<dlgSelectFolder*>(w);
    ASSERT_NE(dlg, nullptr);
    title = dlg->windowTitle().toStdString();
    EXPECT_EQ(dlg->folder().toStdString(), target);  // the dated folder is proposed
    dlg->cmdOK->click();
  });
  b.w->mnuFileBackupDB->trigger();
  EXPECT_EQ(title, "Backup All Zythara Databases");
  for (int i = 0; i < kBackupFileCount; ++i)
    EXPECT_EQ(readFile(target + "/" + kBackupFiles[i]), std::string("data ") + kBackupFiles[i]);
  ASSERT_FALSE(b.prompter.shown.empty());
  EXPECT_EQ(b.prompter.shown.back().text, "The Full Database Backup Has Completed Successfully");

  // Restore from a folder without ZYRecipe.dat: nothing copied.
  const std::string empty = b.dir.file("Empty");
  makeFolders(empty);
  whenModalOpens([&](QWidget* w) {
    auto* dlg = qobject_cast<dlgSelectFolder*>(w);
    ASSERT_NE(dlg, nullptr);
    title = dlg->windowTitle().toStdString();
    dlg->txtFolder->setText(QString::fromStdString(empty));
    dlg->cmdOK->click();
  });
  b.w->mnuFileRestoreDB->trigger();
  EXPECT_EQ(title, "Restore All Zythara Databases");
  EXPECT_EQ(b.prompter.shown.back().text,
            "No Backup Files in this Folder, Be Sure to Double-Click the Desired Folder");
  EXPECT_EQ(readFile(b.wb->folder.dataFile(kRecipeFile)), std::string("data ") + kRecipeFile);

  // A folder whose name has accented letters is the folder of that name on the disk.
  const std::string accented = b.dir.file("Sauvegarde \xC3\xA9t\xC3\xA9");
  whenModalOpens([&](QWidget* w) {
    auto* dlg = qobject_cast<dlgSelectFolder*>(w);
    ASSERT_NE(dlg, nullptr);
    dlg->txtFolder->setText(QString::fromUtf8(accented.c_str()));
    dlg->cmdOK->click();
  });
  b.w->mnuFileBackupDB->trigger();
  EXPECT_EQ(readFile(accented + "/" + kRecipeFile), std::string("data ") + kRecipeFile);
  EXPECT_EQ(b.settings.read("Settings", "Backup Path", ""), accented);
}

TEST(UpdateCheck, QtFetchAgainstALocalServer) {
  LocalHttpServer server;
  server.files["/ZYCurrent.ver"] = "9.99.999";
  QtHttpFetch http(3000);
  EXPECT_EQ(http.fetch(server.url("/ZYCurrent.ver").toStdString()), "9.99.999");
  EXPECT_EQ(http.fetch(server.url("/missing.ver").toStdString()), "");
  EXPECT_EQ(http.fetch("http://127.0.0.1:1/ZYCurrent.ver"), "");  // refused
  EXPECT_EQ(http.fetch("not a url"), "");
  EXPECT_EQ(server.requests, 2);
}

TEST(UpdateCheck, AtTheEndOfTheLoadThroughTheMainWindow) {
  Bench b;
  writeTestReference(b.dir.path());
  LocalHttpServer server;
  server.files["/ZYCurrent.ver"] = "9.99.999";
  b.settings.write("Settings", "Update Address", server.url("/ZYCurrent.ver").toStdString());
  std::string opened;
  // Due (the default date lies in the past): newer version, the user says Yes.
  b.prompter.answers = {Answer::Yes};
  frmMain w(*b.wb);
  w.quitOnClose = false;
  w.openBrowser = [&](const std::string& url) { opened = url; };
  w.load("");
  EXPECT_EQ(server.requests, 1);
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Zythara Updates: A New Version of Zythara is available.  Download it Now?"});
  EXPECT_EQ(opened, server.url("/download.html").toStdString());
  auto next = parseDate(b.settings.read("Settings", "Check Update", ""));
  ASSERT_TRUE(next.has_value());
  EXPECT_NEAR(*next, b.clock.now() + 5, 1.0 / 86400);
}

}  // namespace
}  // namespace zy::test
