// Pictures of the windows for a person to look at: written only when ZY_SCREENSHOT_DIR names a
// folder (run under xvfb-run for the look of a real screen).
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTabBar>
#include <QTabWidget>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/frmAbout.h"
#include "ui/frmHelp.h"
#include "ui/ProgramWindows.h"
#include "ui/frmMain.h"
#include "ui/frmProperties.h"
#include "ui/QtPrompter.h"
#include "ui/dlgSelectFolder.h"
#include "ui/frmSplash.h"

namespace zy::test {
namespace {

TEST(Screenshots, EveryWindow) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  Bench b;
  const QString stage = ZY_STAGE_DIR;
  // The real encyclopedia when the build staged it, else the small test one.
  if (QFile::exists(stage + "/Reference/Zyth.enc")) b.wb = std::make_unique<Workbench>(stage.toStdString(), b.settings, b.prompter, b.clock);
  else writeTestReference(b.dir.path());
  b.wb->errors.setTerminationHook([](int n) { throw Terminated(n); });
  b.settings.write("Settings", "Check Update", "1/1/2099");

  frmSplash splash;
  splash.show();
  saveScreenshot(splash, dir, "splash");
  splash.close();

  frmMain w(*b.wb);
  w.quitOnClose = false;
  ProgramWindows windows(*b.wb, w);  // the toolbar's windows, as the program has them
  w.load("");
  w.showFromSettings();  // the size a first start gives
  saveScreenshot(w, dir, "main-default");
  w.resize(w.minimumSize());
  saveScreenshot(w, dir, "main-minimum");
  w.resize(1000, 680);
  saveScreenshot(w, dir, "main");
  // A topic with pictures beside its text.
  for (int i = 0; i < w.tvwTopics[TreeAllTopics]->topLevelItemCount(); ++i)
    if (w.browser().trees[TreeAllTopics][static_cast<size_t>(i)].icon == TopicIcon::Photo) {
      clickItem(w.tvwTopics[TreeAllTopics], w.tvwTopics[TreeAllTopics]->topLevelItem(i));
      break;
    }
  saveScreenshot(w, dir, "main-picture");
  if (w.tvwTopics[TreeAllTopics]->topLevelItemCount() > 2) {
    clickItem(w.tvwTopics[TreeAllTopics], w.tvwTopics[TreeAllTopics]->topLevelItem(2));
  }
  w.tabTopics->setCurrentIndex(TreeMiniBooks);
  if (w.tvwTopics[TreeMiniBooks]->topLevelItemCount() > 0) {
    w.tvwTopics[TreeMiniBooks]->topLevelItem(0)->setExpanded(true);
    clickItem(w.tvwTopics[TreeMiniBooks], w.tvwTopics[TreeMiniBooks]->topLevelItem(0));
  }
  saveScreenshot(w, dir, "main-minibooks");
  w.tabTopics->setCurrentIndex(TreeAlsoSee);
  saveScreenshot(w, dir, "main-alsosee");
  w.tabTopics->setCurrentIndex(TreeSearch);
  QTest::keyClicks(w.txtSearch, "malt");
  QTest::keyClick(w.txtSearch, Qt::Key_Return);
  saveScreenshot(w, dir, "main-search");

  frmProperties p(*b.wb);
  p.show();
  for (int i = 0; i < p.tbsOptions->count(); ++i) {
    p.tbsOptions->setCurrentIndex(i);
    saveScreenshot(p, dir, QString("properties-%1").arg(i + 1));
  }
  p.close();

  frmHelp h(QString(ZY_SOURCE_DIR) + "/data/help");
  h.show();
  h.showContents();
  saveScreenshot(h, dir, "help-contents");
  h.showIndex("mash");
  saveScreenshot(h, dir, "help-index");
  h.showSearch("\"mash efficiency\"");
  saveScreenshot(h, dir, "help-search");

  frmAbout a;
  a.show();
  saveScreenshot(a, dir, "about");

  dlgSelectFolder folders("Backup All Zythara Databases", b.dir.path().c_str());
  folders.show();
  QTest::qWait(400);  // the folders are read in the background
  saveScreenshot(folders, dir, "select-folder");
  folders.close();

  // A message of two lines, as the restore ends.
  whenModalOpens([&](QWidget* box) {
    saveScreenshot(*box, dir, "message");
    box->close();
  });
  QtPrompter qt(&w);
  static_cast<Prompter&>(qt).message("The Full Database Restore Has Completed Successfully\r\n"
                         "    Restart Zythara to Load Restored Databases",
                         "Restore Zythara Databases", Icon::Information);
  w.close();
}

}  // namespace
}  // namespace zy::test
