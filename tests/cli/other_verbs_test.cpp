// The command line verbs over the encyclopedia, backup, restore, the update check, the styles,
// the hops curve and the settings.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "CliRunner.h"
#include "recipes/RecipeRecords.h"
#include "reference/RefFixture.h"
#include "styles/StyleStore.h"

namespace zy::test {
namespace {

struct Home : CliHome {
  Home() {
    BookSource b = sampleBooks()[0];
    b.name = "Basics", b.chapters = {{"Start", "Malt"}, {"Then", "Hops"}};
    BuildReport r = buildReference({topic("Malted Barley", "Malt", "<P>Grain.</P>"),
                                    topic("Hops", "Hops", "<P>Bitter ibu.</P>", {{"p0.png", "Caf\xE9"}})},
                                   {b}, dir.file("Reference"));
    EXPECT_TRUE(r.ok());
  }
  CliResult operator()(std::vector<std::string> args) const { return run(std::move(args)); }
};

TEST(ReferenceVerbs, TopicsTopicSearchAndBooks) {
  Home h;
  const struct { std::vector<std::string> args; std::string all; } runs[] = {
      {{"topics"}, "0|Hops\nMalt\n|"},
      {{"topic", "Water"}, "1||zythara-cli: no topic has the index title Water\n"},
      {{"search", "IBU"}, "0|1 Found\nHops\n|"},
      {{"search", "lager"}, "0|None Found\n|"},
      {{"search", " "}, "1||[Topic Search] Nothing Entered for Searching\n"},
      {{"books"}, "0|Basics\n  Start\n  Then\n|"},
  };
  for (const auto& r : runs) EXPECT_EQ(h(r.args).all(), r.all) << r.args.back();
  EXPECT_EQ(h({"topic", "MALT"}).out.substr(0, 29), "<H1>Malted Barley</H1>\r\n<P>Gr");
  EXPECT_NE(h({"topic", "hops"}).out.find("<B>Caf\xC3\xA9</B>"), std::string::npos);  // 8-bit text leaves as UTF-8
  std::filesystem::remove(h.dir.file("Reference/Zyth.enc"));
  EXPECT_EQ(h({"topics"}).all(),
            "3||[Terminating] " + h.dir.path() + "/Reference/Zyth.enc Not Found in frmMain!Form_Load\n");
}

TEST(ReferenceVerbs, BackupRestoreAndCheckUpdate) {
  Home h;
  const std::string recipes = RecipeRecord{}.encode();  // a sound backup restores
  writeFile(h.dir.file("Data/ZYRecipe.dat"), recipes);
  // Without a folder the proposed one is taken: today's folder below Backups.
  EXPECT_EQ(h({"backup"}).status, 0);
  std::vector<std::string> dated;
  for (const auto& e : std::filesystem::directory_iterator(h.dir.file("Backups"))) dated.push_back(e.path().string());
  ASSERT_TRUE(dated.size() == 1u && std::filesystem::path(dated[0]).filename().string().size() == 10u);  // yyyy-mm-dd
  EXPECT_EQ(readFile(dated[0] + "/ZYRecipe.dat"), recipes);
  EXPECT_NE(readFile(h.dir.file("settings.ini")).find("Backup Path=" + h.dir.file("Backups")), std::string::npos);

  EXPECT_EQ(h({"backup", h.dir.file("bk")}).all(),
            "0||[Backup Zythara Databases] The Full Database Backup Has Completed Successfully\n");
  EXPECT_EQ(readFile(h.dir.file("bk/ZYRecipe.dat")), recipes);
  EXPECT_EQ(h({"--no", "backup", h.dir.file("bk")}).err,
            "[Backup Zythara Databases] Backup files already exist in this folder.  Overwrite them?\n"
            "[Backup Zythara Databases] Zythara Database Backup Canceled\n");

  writeFile(h.dir.file("Data/ZYRecipe.dat"), "changed");
  EXPECT_TRUE(h({"restore", h.dir.file("bk")}).status == 0 && readFile(h.dir.file("Data/ZYRecipe.dat")) == recipes);
  EXPECT_EQ(h({"restore", h.dir.file("nothing")}).all(),
            "1||[Restore All Zythara Databases] No Backup Files in this Folder, Be Sure to Double-Click the "
            "Desired Folder\n");
  EXPECT_EQ(h({"restore"}).status, 2);

  writeFile(h.dir.file("settings.ini"), "[Settings]\nCheck Update=12/31/2099\n");
  EXPECT_EQ(h({"check-update", "http://127.0.0.1:1/ZYCurrent.ver"}).out, "not due\n");
  writeFile(h.dir.file("settings.ini"), "[Settings]\nCheck Update=1/1/2007\n");
  EXPECT_EQ(h({"check-update", "http://127.0.0.1:1/ZYCurrent.ver"}).all(), "0|unavailable\n|");
  EXPECT_EQ(readFile(h.dir.file("settings.ini")).find("1/1/2007"), std::string::npos);
}

// The styles, style-stats, hops and settings verbs over hand-made style files and settings.
void writeTwoStyles(const test::CliHome& home) {
  auto t = std::make_unique<StyleTables>();
  BeerCategoryRecord& c = t->BeerCategories[0];
  c.id = "5", c.category = "Pale Bitter European Beer", c.source = STYLE_SOURCE_BJCP;
  t->BeerCategoryCount = 1;
  BeerStyleRecord& s = t->BeerStyles[0];
  s.styleName = "K\xF6lsch", s.styleId = "5B", s.source = STYLE_SOURCE_BJCP, s.categoryIndex = 0;
  t->BeerStyles[1].styleName = "House Ale";
  t->BeerStyles[1].categoryIndex = 4;  // no such category
  t->BeerStyleCount = 2;
  writeStyleFiles(*t, home.data(kCategoryFile), home.data(kStyleFile));
}

TEST(StylesVerbs, StylesAndStatisticsLines) {
  test::CliHome home;
  writeTwoStyles(home);
  EXPECT_EQ(home.run({"styles"}).all(),
            "0|0\tBJCP\t5B\tK\xC3\xB6lsch\t5 Pale Bitter European Beer\n1\tCustom\t\tHouse Ale\t<None>\n|");
  EXPECT_EQ(home.run({"style-stats"}).all(),
            "0|Number of Beer Categories Loaded: 1\nTotal Number of Beer Styles Loaded: 2\n"
            "Custom Beer Styles Loaded: 1\nAOB Beer Styles Loaded: 0\nBJCP Beer Styles Loaded: 1\n|");

  EXPECT_EQ(home.run({"styles", "extra"}).status, 2);
}

TEST(StylesVerbs, CorruptedStyleFileIsReportedOnStandardError) {
  test::CliHome home;
  writeTwoStyles(home);
  std::string bytes = test::readFile(home.data(kStyleFile));
  bytes[0] = 'x';
  test::writeFile(home.data(kStyleFile), bytes);
  auto r = home.run({"style-stats"});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("[Error] Corrupted Beer Style Record(s) in "), std::string::npos);
  EXPECT_NE(r.out.find("Total Number of Beer Styles Loaded: 2\n"), std::string::npos);
}

TEST(StylesVerbs, HopsShowsTheCurveInUse) {
  test::CliHome home;
  auto r = home.run({"hops"});
  EXPECT_EQ(r.status, 0);
  const std::string head = "Title: Rager\nGravity Adjustment: 1\nFactor 1: 1.050\nFactor 2: 0.200\nFactor 3: 0.020\n5\t5.0\n10\t6.0\n";
  EXPECT_TRUE(r.out.starts_with(head) && r.out.find("\n90\t30.0\n") != std::string::npos) << r.out;

  test::writeFile(home.dir.file("settings.ini"),
                  "[Hops Utilization]\nTitle=Tinseth\nGravity Adjustment=2\nFactor 1=1\nFactor 2=0.000125\n"
                  "Factor 3=0.03\nUtilization 18=38.7\n");
  r = home.run({"hops"});
  const std::string tinseth =
      "Title: Tinseth\nGravity Adjustment: 2\nFactor 1: 1.000\nFactor 2: 0.000125\nFactor 3: 0.030\n5\t5.0\n";
  EXPECT_TRUE(r.out.starts_with(tinseth) && r.out.find("\n90\t38.7\n") != std::string::npos) << r.out;
}

TEST(SettingsVerb, ReadsWritesAndRefusesKeysThroughTheStore) {
  test::CliHome h;
  const struct { std::vector<std::string> args; int status; const char* out; const char* err; } steps[] = {
      {{"settings", "set", "Defaults", "Mash Eff", "72"}, 0, "", ""},
      {{"settings", "get", "defaults", "MASH EFF"}, 0, "72\n", ""},
      {{"settings", "get", "Defaults", "Boil Time"}, 1, "", "settings: no key \"Boil Time\" in section \"Defaults\"\n"},
      {{"settings", "set", "Defaults", "[x", "1"}, 1, "",
       "[Zythara 2] The key \"[x\" of section \"Defaults\" cannot be kept in the settings file: a key beginning with "
       "\"[\" would be read back as a section head or a comment.\n"},
      {{"settings", "get", "Defaults"}, 2, "", nullptr},
  };
  for (const auto& s : steps) {
    test::CliResult r = h.run(s.args);
    EXPECT_EQ(std::to_string(r.status) + "|" + r.out, std::to_string(s.status) + "|" + s.out) << s.args[1];
    if (s.err) {
      EXPECT_EQ(r.err, s.err);
    }
  }
  EXPECT_EQ(test::readFile(h.dir.file("settings.ini")), "[Defaults]\nMash Eff=72\n\n");
}

}  // namespace
}  // namespace zy::test
