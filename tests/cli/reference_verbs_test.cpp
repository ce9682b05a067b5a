// The command line verbs over the encyclopedia, backup, restore and the update check.
#include <gtest/gtest.h>

#include <filesystem>

#include "CliRunner.h"
#include "recipes/RecipeRecords.h"
#include "reference/RefFixture.h"

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

}  // namespace
}  // namespace zy::test
