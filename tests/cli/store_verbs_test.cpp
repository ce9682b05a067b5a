#include <gtest/gtest.h>

#include "cli/CliRunner.h"
#include "core/paths.h"
#include "core/text.h"

using namespace zy;
using namespace zy::test;

namespace {
// Records as another program following the byte layouts would write them.
std::string pad(const std::string& t, size_t n) { return padded(t, n); }

std::string recipeBytes(int no, const std::string& name, int items, int comments) {
  std::string r = le16(200) + le16(no) + le16(1) + le16(0) + le16(items) + pad(name, 60) + pad("Porter", 60) +
                  le64(3.5) + le64(5.25) + le16(1) + le64(30.5) + le16(28) + le64(1.052) + le64(1.013) + le64(5.1) +
                  le64(90) + le16(2);
  for (int i = 0; i < 13; ++i) r += le64(i == 0 ? 152 : 0);
  for (int i = 0; i < 13; ++i) r += le64(i == 0 ? 60 : 0);
  for (int i = 0; i < 13; ++i) r += pad(i == 0 ? "Sacch rest" : "", 40);
  r += le64(1.25) + le64(12.5) + le64(75);
  for (int i = 0; i < 26; ++i) r += le64(0);
  r += le16(0) + le64(4) + le16(1) + le64(168) + le64(0.5);
  r += le64(7) + le64(14) + le64(0) + le16(0) + le16(0) + le16(0) + le64(66) + le64(60) + le64(0);
  r += le16(0) + le16(1) + le16(0) + le16(comments) + le16(0) + le16(0) + pad("corn sugar", 80) +
       pad("Oct-05-1998", 11) + pad("P1", 10) + pad("Porter", 35) + le16(0) + le16(-1) + le64(-9999.0) +
       pad("", 150) + le16(299);
  return r;
}

std::string itemBytes(int owner, int kind, const std::string& name, double qty) {
  return le16(200) + le16(owner) + le16(kind) + pad(name, 50) + le64(qty) + le16(0) + le64(1.5) + le64(1.036) +
         le64(3) + le16(-1) + pad("", 20) + le16(299);
}

std::string commentBytes(int owner, const std::string& text) { return le16(200) + le16(owner) + pad(text, 120) + le16(299); }
}  // namespace

TEST(CliStore, ScanAndDumpFilesOfAnotherWriter) {
  CliHome h;
  ASSERT_TRUE(recipeBytes(1, "x", 0, 0).size() == 1546u && itemBytes(1, 0, "x", 1).size() == 114u);
  std::string freed = recipeBytes(2, "Gone", 0, 0);
  freed[2] = 0;
  writeFile(h.data("ZYRecipe.dat"), recipeBytes(1, "Robust Porter", 2, 2) + freed + recipeBytes(3, "M\xE4rzen", 0, 0));
  writeFile(h.data("ZYRItems.dat"), itemBytes(1, 0, "Pale Malt", 8.5) + itemBytes(3, 0, "Munich", 1) +
                                        itemBytes(1, 1, "Fuggle", 1.25));
  writeFile(h.data("ZYComment.dat"),
            commentBytes(1, std::string(118, 'a') + "\r\n") + commentBytes(0, "old") + commentBytes(1, "end"));
  EXPECT_EQ(h.run({"scan"}).all(), "0|1\tRobust Porter\n3\tM\xC3\xA4rzen\n|");

  CliResult d = h.run({"dump", "1"});
  EXPECT_EQ(d.status, 0) << d.err;
  auto lines = split(d.out, '\n');
  auto has = [&](const std::string& l) { return std::find(lines.begin(), lines.end(), l) != lines.end(); };
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 9),
            (std::vector<std::string>{"controlStart=200", "recipeNo=1", "recipeType=1", "unitType=0", "itemCount=2",
                                      "recipeName=Robust Porter", "beerStyle=Porter", "boilVolume=3.5",
                                      "fermentVolume=5.25"}));
  for (const char* l : {"mashStepTemp[0]=152", "mashStepComment[0]=Sacch rest", "mashStepComment[12]=", "agingUnits=-1", "agingTemp=-9999", "originalGravity=1.052",
                        "item[0].itemName=Pale Malt", "item[1].itemName=Fuggle", "item[1].mashFlag=-1",
                        "item[1].rating=1.036"})
    EXPECT_TRUE(has(l)) << l;
  EXPECT_FALSE(has("item[2].itemName=Munich"));
  EXPECT_EQ(lines[lines.size() - 2], "comment=" + std::string(118, 'a') + "\\nend");
  // The fields come in record order.
  auto pos = [&](const std::string& l) { return std::find(lines.begin(), lines.end(), l) - lines.begin(); };
  for (auto [before, after] : {std::pair{"mashStepTemp[0]=152", "mashStepTime[0]=60"},
                               {"mashEfficiency=75", "mashReservedCode=0"}, {"controlEnd=299", "item[0].controlStart=200"}})
    EXPECT_LT(pos(before), pos(after)) << before;
}

TEST(CliStore, NewAndDeleteThenReuse) {
  CliHome h;
  EXPECT_EQ(h.run({"new", "Amber", "Ale"}).all(), "0|1\n|");
  EXPECT_EQ(h.run({"new", "Stout"}).out, "2\n");
  EXPECT_EQ(h.run({"delete", "1"}).all(), "0||");
  EXPECT_EQ(h.run({"scan"}).out, "2\tStout\n");
  // A new run searches from the first record again.
  EXPECT_EQ(h.run({"new", "K\xC3\xB6lsch"}).out, "1\n");
  EXPECT_EQ(getText(readFile(h.data("ZYRecipe.dat")), 10, 7), "K\xF6lsch ");
  EXPECT_NE(h.run({"dump", "1"}).out.find("recipeName=K\xC3\xB6lsch\n"), std::string::npos);
}

TEST(CliStore, UsageErrorsAndCorruptedRecordsAreReportedNotHidden) {
  CliHome h;
  for (const auto& args : std::vector<std::vector<std::string>>{{}, {"frobnicate"}, {"dump"}, {"dump", "x"},
                                                                 {"delete", "0"}, {"new"}})
    EXPECT_EQ(h.run(args).status, 2) << (args.empty() ? "" : args[0]);
  // Record 2 starts badly; record 3 ends badly.
  std::string badStart = recipeBytes(2, "Broken", 0, 0), badEnd = recipeBytes(3, "Broken", 0, 0);
  badStart[0] = 1;
  badEnd[1545] = 0;
  const std::string fine = recipeBytes(1, "Fine", 0, 0);
  auto corrupted = [&](int line) {
    return "[Error] Corrupted Recipe Record in " + h.data("ZYRecipe.dat") + " at Line " + std::to_string(line) +
           ", No More Recipes Loaded\n";
  };
  writeFile(h.data("ZYRecipe.dat"), fine + badStart + badEnd);
  EXPECT_EQ(h.run({"scan"}).all(), "1|1\tFine\n|" + corrupted(2));
  EXPECT_EQ(h.run({"dump", "2"}).all(), "1||" + corrupted(2));
  writeFile(h.data("ZYRecipe.dat"), fine + recipeBytes(2, "Fine", 0, 0) + badEnd);
  EXPECT_EQ(h.run({"dump", "3"}).all(), "1||" + corrupted(3));
  EXPECT_EQ(h.run({"dump", "7"}).all(), "1||zythara-cli: dump: there is no recipe 7\n");
}

TEST(CliStore, ATerminatingErrorEndsWithStatusThree) {
  CliHome h;
  writeFile(h.dir.file("settings.ini"), "[Defaults]\nBoil Time=long\n");
  EXPECT_EQ(h.run({"version"}).all(), "3||[Terminate Program] Error #13(Type mismatch) in frmMain!loadDefaults at Line 0\n");
  auto log = readLines(h.dir.file("ZYError.log"));
  ASSERT_GE(log.size(), 3u);
  // The file affected tells where to mend it.
  EXPECT_EQ(std::vector<std::string>(log.end() - 3, log.end()),
            (std::vector<std::string>{"In Function frmMain!loadDefaults", "Affecting File: " + h.dir.file("settings.ini"),
                                      "Terminating"}));
}
