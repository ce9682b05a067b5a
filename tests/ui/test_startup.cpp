// The start of the process: the splash and its wait, the load order, the help check, the end.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "core/paths.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"
#include "core/text.h"
#include "support/TestSupport.h"
#include "ui/SubMain.h"
#include "ui/UiSupport.h"
#include "ui/frmHelp.h"
#include "ui/frmMain.h"
#include "ui/frmSplash.h"
#include "workbench/Startup.h"

namespace zy::test {
namespace {

struct StartBench : Bench {
  StartBench() {
    writeTestReference(dir.path());
    copyHelpPages(dir.path());
    settings.write("Settings", "Check Update", "1/1/2099");  // no update check in these tests
  }
};

TEST(Startup, SplashWaitRulesAndCommandLine) {
  EXPECT_TRUE(splashWaitWanted(""));
  EXPECT_TRUE(splashWaitWanted("   "));
  EXPECT_FALSE(splashWaitWanted("Red Ale.zyr"));
  // Milliseconds of a monotonic clock: the wait ends at 4000 ms, or at once after a click.
  struct { long long start, now; bool clicked, over; } waits[] = {
      {0, 3999, false, false}, {0, 4000, false, true}, {7000, 10999, false, false}, {7000, 7001, true, true}};
  for (const auto& w : waits) EXPECT_EQ(splashWaitOver(w.start, w.now, w.clicked), w.over) << w.now;

  CommandLine c = parseCommandLine({"--home", "/h", "--settings=/s.ini", "Red", "Ale.zyr"});
  EXPECT_EQ(c.home, "/h");
  EXPECT_EQ(c.settingsFile, "/s.ini");
  EXPECT_EQ(c.recipeFile, "Red Ale.zyr");
  EXPECT_TRUE(parseCommandLine({"--bogus"}).unknownOptions.size() == 1);
  EXPECT_EQ(splashVersionLine(), "Version " + versionText());
}

TEST(Startup, PlacementInTwipsWithTheFloorTest) {
  EXPECT_EQ(twipsToPixels(9555), 637);
  EXPECT_EQ(pixelsToTwips(637), 9555);
  MemorySettingsStore s;
  WindowPlacement computed;
  computed.left = 500;
  computed.top = 500;
  computed.width = 12000;
  computed.height = 9000;
  WindowPlacement p = readPlacement(s, "Settings", computed);
  EXPECT_EQ(p.left, 500);
  EXPECT_EQ(p.width, 12000);
  s.write("Settings", "MainWidth", "900");  // not above 1000 twips: taken as damaged
  s.write("Settings", "MainHeight", "7000");
  s.write("Settings", "WindowState", "2");
  p = readPlacement(s, "Settings", computed);
  EXPECT_EQ(p.width, 12000);
  EXPECT_EQ(p.height, 7000);
  EXPECT_EQ(p.state, WINDOW_MAXIMIZED);

  // Maximised: only the state is written; minimised windows other than the main one write nothing.
  MemorySettingsStore out;
  writePlacement(out, "Settings", p, true);
  EXPECT_EQ(out.writeCount, 1);
  p.state = WINDOW_MINIMIZED;
  writePlacement(out, "Recipe", p, false);
  EXPECT_EQ(out.writeCount, 1);
  p.state = WINDOW_NORMAL;
  writePlacement(out, "Recipe", p, false);
  EXPECT_EQ(out.writeCount, 6);
  EXPECT_EQ(out.read("Recipe", "MainHeight", ""), "7000");
}

TEST(Startup, LoadRunsEveryStepInItsOrder) {
  StartBench b;
  frmMain w(*b.wb);
  w.quitOnClose = false;
  w.load("");
  const std::vector<std::string> expected = {
      "WindowSettings",     "OpenTopicStore",  "InitMeasures",
      "LoadInventories",  "LoadDefaults", "LoadTopicsAndBooks",
      "LoadBeerStyles",     "LoadHopsUtilization",
      "LabelEntry",         "BuildTreeAndTabs", "CommandLineImport", "UpdateCheck"};
  EXPECT_EQ(w.loadSequence().log(), expected);
  // The trees are loaded and the first topic is shown and in the history.
  EXPECT_EQ(w.tvwTopics[TreeAllTopics]->topLevelItemCount(), 4);
  EXPECT_EQ(w.tvwTopics[TreeMiniBooks]->topLevelItemCount(), 1);
  EXPECT_EQ(w.tvwTopics[TreeHistory]->topLevelItemCount(), 1);
  EXPECT_EQ(w.browser().lblTitle, "Barley Malt");
  EXPECT_TRUE(w.mnuViewQuillmark->isVisible() == false);
}

TEST(Startup, MissingTopicStoreEndsTheProgramThroughError53) {
  Bench b;  // no reference files at all
  frmMain w(*b.wb);
  w.quitOnClose = false;
  try {
    w.load("");
    FAIL() << "the load went on without Zyth.enc";
  } catch (const Terminated& t) {
    EXPECT_EQ(t.errorNumber, 53);
  }
  ASSERT_FALSE(b.prompter.shown.empty());
  EXPECT_EQ(b.prompter.shown.back().title, "Terminating");
  EXPECT_EQ(b.prompter.shown.back().text, b.wb->folder.referenceFile(kZythEnc) + " Not Found in frmMain!Form_Load");
  // The steps after the failing one never ran.
  EXPECT_EQ(w.loadSequence().ran().back(), LoadStep::OpenTopicStore);
}

TEST(Startup, CommandLineSkipsTheWaitAndImportsTheRecipe) {
  StartBench b;
  const std::string recipe = b.dir.file("Irish Red.zyr");
  writeFile(recipe,
            "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"Irish Red\", BoilTime=60, Style=\"Irish Red Ale\"\r\n"
            "<Volume> Initial=3.5, Final=5.0, Units=\"US Gallons\"\r\n<Comments_Start>\r\n\"\"\r\n<Comments_End>\r\n"
            "<End_Recipe_Format>\r\n");
  SubMain start(*b.wb);
  QElapsedTimer t;
  t.start();
  frmMain* w = start.run(recipe, [](frmMain& m) { m.quitOnClose = false; });
  EXPECT_FALSE(start.waited);
  EXPECT_LT(t.elapsed(), 3000);
  ASSERT_NE(w, nullptr);
  EXPECT_TRUE(w->isVisible());
  EXPECT_TRUE(start.helpFileFound);
  // The recipe is in the store before the first interaction, and selected in the list.
  ASSERT_GT(w->importedRecipe, 0);
  EXPECT_TRUE(loadRecipe(*b.wb, w->importedRecipe));
  EXPECT_EQ(trim(b.wb->recipe.rec.recipeName), "Irish Red");
  EXPECT_EQ(b.wb->recipeList.selectedKey, "R" + std::to_string(w->importedRecipe));
  w->close();
}

TEST(Startup, CommandLineMissingFileImportsNothing) {
  StartBench b;
  SubMain start(*b.wb);
  frmMain* w = start.run(b.dir.file("nothing-here.zyr"), [](frmMain& m) { m.quitOnClose = false; });
  EXPECT_FALSE(start.waited);
  EXPECT_EQ(w->importedRecipe, 0);
  EXPECT_TRUE(b.prompter.shown.empty());
  w->close();
}

TEST(Startup, ClickOnTheSplashEndsTheWaitAndAMissingHelpFileWarnsOnce) {
  Bench b;
  writeTestReference(b.dir.path());  // no help pages
  b.settings.write("Settings", "Check Update", "1/1/2099");
  SubMain start(*b.wb);
  start.splashShown = [](frmSplash& s) {
    EXPECT_TRUE(s.isVisible());
    EXPECT_EQ(s.findChild<QLabel*>("lblTitle")->text(), "Homebrewing Encyclopedia");
    EXPECT_EQ(s.findChild<QLabel*>("lblVersion")->text(), QString::fromStdString("Version " + versionText()));
    QTimer::singleShot(300, &s, [&s] { QTest::mouseClick(&s, Qt::LeftButton); });
  };
  frmMain* w = start.run("", [](frmMain& m) { m.quitOnClose = false; });
  EXPECT_TRUE(start.waited);
  EXPECT_LT(start.waitedSeconds, 2.5);
  EXPECT_FALSE(start.helpFileFound);
  ASSERT_EQ(b.prompter.shown.size(), 1u);
  EXPECT_EQ(b.prompter.shown[0].text, "WARNING: Missing Help File");
  EXPECT_TRUE(w->isVisible());
  w->close();
}

TEST(Startup, TheSplashStaysFourSecondsWhateverTheTimeOfDaySays) {
  StartBench b;
  // The time of day jumps ten seconds on while the splash is up: the wait does not end early.
  QTimer::singleShot(100, [&b] { b.clock.set(b.clock.now() + 10.0 / 86400); });
  SubMain start(*b.wb);
  frmMain* w = start.run("", [](frmMain& m) { m.quitOnClose = false; });
  EXPECT_TRUE(start.waited);
  EXPECT_GE(start.waitedSeconds, 4.0);
  EXPECT_LT(start.waitedSeconds, 4.5);
  w->close();
}

TEST(Startup, ClosingTheMainWindowSavesItsPlaceAndClosesEveryWindow) {
  StartBench b;
  b.settings.write("Settings", "MainLeft", "1500");
  b.settings.write("Settings", "MainTop", "1200");
  b.settings.write("Settings", "MainWidth", "12000");
  b.settings.write("Settings", "MainHeight", "9000");
  frmMain w(*b.wb);
  w.quitOnClose = false;
  w.load("");
  w.showFromSettings();
  EXPECT_EQ(w.width(), 800);
  EXPECT_EQ(w.height(), 600);
  w.showHelp(0);
  ASSERT_TRUE(w.help()->isVisible());
  w.resize(900, 640);
  b.wb->appClosing = false;
  w.close();
  EXPECT_TRUE(b.wb->appClosing);
  EXPECT_FALSE(w.help()->isVisible());
  EXPECT_FALSE(w.browser().topicStoreOpen());
  EXPECT_EQ(b.settings.read("Settings", "WindowState", ""), "0");
  EXPECT_EQ(b.settings.read("Settings", "MainWidth", ""), "13500");
  EXPECT_EQ(b.settings.read("Settings", "MainHeight", ""), "9600");
}

}  // namespace
}  // namespace zy::test
