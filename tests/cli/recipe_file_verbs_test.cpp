// The verbs over the recipe files: scan, dump, new and delete over files another writer made,
// import, export, the tree and the list file.
#include <gtest/gtest.h>

#include "cli/CliRunner.h"
#include "core/paths.h"
#include "core/text.h"

using namespace zy;
using namespace zy::test;

namespace {
// An exchange file as another brewer's program writes it: CRLF line ends, 8-bit text.
const char* const kPorter =
    "<Recipe_Format_1.0>\r\n"
    "<Recipe> Type=\"Ale\", Name=\"Robust Porter\", BoilTime=75, Date=\"Oct-05-1998\", Style=\"Porter\"\r\n"
    "<Volume> Initial=6.5, Final=5.0, Units=\"US Gallons\"\r\n"
    "<Color> Value=30, Units=\"Lovi\"\r\n"
    "<Bitterness> Value=35, Units=\"IBU\"\r\n"
    "<Gravity> Original=1.060, Final=1.015, Alcohol=5.9\r\n"
    "<Malt> Type=\"Pale Malt~ 2-Row\", Quantity=9.5, Units=\"Lbs\", Extraction=1.036, Mash=\"Yes\", Color=2\r\n"
    "<Malt> Type=\"Black Patent\", Quantity=0.5, Units=\"Lbs\", Extraction=1.025, Mash=\"Yes\", Color=500\r\n"
    "<Hops> Type=\"Fuggle\", Quantity=1.5, Units=\"Oz\", Alpha=4.5, BoilTime=60\r\n"
    "<Yeast> Type=\"London Ale\", Quantity=1, Units=\"Packet\", Attenuation=73\r\n"
    "<Mash> Type=\"Infusion\", Efficiency=75, Rate=1.25\r\n"
    "<Mash> Index=0, Temp=154, Time=60, Comments=\"Stir well\xB8 then rest\"\r\n"
    "<Sparge> Volume=4.0, Units=\"US Gallons\", Temp=168, Rate=0.50\r\n"
    "<Fermentation> Primary=7, Units=\"Days\", Temp=66, Vessel=\"Glass\"\r\n"
    "<Priming> Container=\"Bottles\", Carbonation=\"Priming\", Comments=\"3/4 cup corn sugar\"\r\n"
    "<Comments_Start>\r\n"
    "\"A dark, roasty ale.\r\nServe at 55\xB0" "F, say \"\"cellar\"\".\"\r\n"
    "<Comments_End>\r\n"
    "<End_Recipe_Format>\r\n";


// Records as another program following the byte layouts would write them.
std::string recipeBytes(int no, const std::string& name, int items, int comments) {
  std::string r = le16(200) + le16(no) + le16(1) + le16(0) + le16(items) + padded(name, 60) + padded("Porter", 60) +
                  le64(3.5) + le64(5.25) + le16(1) + le64(30.5) + le16(28) + le64(1.052) + le64(1.013) + le64(5.1) +
                  le64(90) + le16(2);
  for (int i = 0; i < 13; ++i) r += le64(i == 0 ? 152 : 0);
  for (int i = 0; i < 13; ++i) r += le64(i == 0 ? 60 : 0);
  for (int i = 0; i < 13; ++i) r += padded(i == 0 ? "Sacch rest" : "", 40);
  r += le64(1.25) + le64(12.5) + le64(75);
  for (int i = 0; i < 26; ++i) r += le64(0);
  r += le16(0) + le64(4) + le16(1) + le64(168) + le64(0.5);
  r += le64(7) + le64(14) + le64(0) + le16(0) + le16(0) + le16(0) + le64(66) + le64(60) + le64(0);
  r += le16(0) + le16(1) + le16(0) + le16(comments) + le16(0) + le16(0) + padded("corn sugar", 80) +
       padded("Oct-05-1998", 11) + padded("P1", 10) + padded("Porter", 35) + le16(0) + le16(-1) + le64(-9999.0) +
       padded("", 150) + le16(299);
  return r;
}

std::string itemBytes(int owner, int kind, const std::string& name, double qty) {
  return le16(200) + le16(owner) + le16(kind) + padded(name, 50) + le64(qty) + le16(0) + le64(1.5) + le64(1.036) +
         le64(3) + le16(-1) + padded("", 20) + le16(299);
}

std::string commentBytes(int owner, const std::string& text) { return le16(200) + le16(owner) + padded(text, 120) + le16(299); }
}  // namespace

TEST(CliList, ImportNumbersDoubledNamesAndTreeShowsThem) {
  CliHome h;
  writeFile(h.dir.file("porter.zyr"), kPorter);
  // The reader's uniqueName sees the stored recipe in the tree built before the import.
  EXPECT_EQ(h.run({"import", h.dir.file("porter.zyr")}).out, "1\tRobust Porter\n");
  EXPECT_EQ(h.run({"import", h.dir.file("porter.zyr")}).out, "2\tRobust Porter (Duplicate)\n");
  const std::string second = "Robust Porter (Duplicate)";

  EXPECT_EQ(textLines(h.run({"tree"}).out), (std::vector<std::string>{" Sorted By Name: 2", "  Robust Porter", "  " + second}));
  EXPECT_EQ(textLines(h.run({"tree", "--sort", "1"}).out),
            (std::vector<std::string>{" Sorted By Beer Style: 2", "Porter", "  Robust Porter", "  " + second}));
  EXPECT_EQ(textLines(h.run({"tree", "--sort=3"}).out)[2], "  1998-10-05 - Robust Porter");

  // The export writes the exchange format; a recipe that is not there is reported, nothing written.
  EXPECT_EQ(h.run({"export", "1", h.dir.file("out.zyr")}).all(), "0||");
  const std::string out = readFile(h.dir.file("out.zyr"));
  EXPECT_TRUE(startsWith(out, "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"Robust Porter\", BoilTime=75, "
                              "Date=\"Oct-05-1998\", Style=\"Porter\"\r\n"));
  EXPECT_TRUE(out.ends_with("\"A dark, roasty ale.\r\nServe at 55\xB0" "F, say \"\"cellar\"\".\"\r\n<Comments_End>\r\n"
                            "<End_Recipe_Format>\r\n"));
  EXPECT_EQ(std::vector<int>({h.run({"export", "9", h.dir.file("none.zyr")}).status, h.run({"export", "1"}).status}),
            std::vector<int>({1, 2}));
}

TEST(CliList, ListFileOfEveryRecipeAndBadInput) {
  CliHome h;
  writeFile(h.dir.file("porter.zyr"), kPorter);
  ASSERT_EQ(h.run({"import", h.dir.file("porter.zyr")}).status, 0);
  ASSERT_EQ(h.run({"new", "Amber"}).status, 0);
  auto v = textLines(h.run({"list"}).out);
  ASSERT_EQ(v.size(), 6u);
  EXPECT_TRUE(startsWith(v[1], "Date:         "));
  v.erase(v.begin() + 1);
  EXPECT_EQ(v, (std::vector<std::string>{"Zythara Recipe List", "", "Recipe Name,Type,OG/FG,Color,IBU,Alcohol",
                                      "Amber" + std::string(55, ' ') + ",No Mash,0.000/0.000,0.0,0.0,0.0%,",
                                      "Robust Porter" + std::string(47, ' ') + ",Infusion,1.060/1.015,30.0,35.0,5.9%,"}));
  EXPECT_EQ(h.run({"list", "--sort", "x"}).status, 2);
  // A file that is not an exchange file is refused; the import goes on as the window's does and
  // stores the new-recipe default under its own name.
  writeFile(h.dir.file("junk.zyr"), "hello, world\r\n");
  EXPECT_EQ(h.run({"import", h.dir.file("junk.zyr")}).all(),
            "0|3\tA Beer Recipe\n|[Zythara 2] Not a Recognized Zythara Recipe File\n");
  EXPECT_EQ(textLines(h.run({"scan"}).out).size(), 3u);
}

TEST(CliList, AnOlderFileWithoutUnitsOpensInTheDefaultUnits) {
  CliHome h;
  writeFile(h.dir.file("old.rec"),
            "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"Old\"\r\n<Volume> Initial=6, Final=5\r\n"
            "<Malt> Type=\"Pale\", Quantity=8, Extraction=1.036, Color=3\r\n"
            "<Hops> Type=\"Fuggle\", Quantity=1, Alpha=5, BoilTime=60\r\n<End_Recipe_Format>\r\n");
  ASSERT_EQ(h.run({"import", h.dir.file("old.rec")}).status, 0);
  // The store keeps what the reader read: no unit.
  CliResult d = h.run({"dump", "1"});
  for (const char* line : {"\nvolumeUnits=-1\n", "\nitem[0].quantityUnits=-1\n"}) EXPECT_NE(d.out.find(line), std::string::npos);
  // The editor reads it in the default units (gallons, pounds, ounces) instead of ending.
  EXPECT_TRUE(startsWith(h.run({"calc", "1"}).all(), "0|Color=3.8\nOG=1.046\nFG=1.013\nAlcohol=4.4\nIBU=22\n"));
}

TEST(CliList, FreedSlotsAndFileNamesOutsideAscii) {
  CliHome h;
  writeFile(h.dir.file("M\xC3\xA4rzen.zyr"), kPorter);
  ASSERT_EQ(h.run({"import", h.dir.file("M\xC3\xA4rzen.zyr")}).status, 0);
  EXPECT_TRUE(h.run({"export", "1", h.dir.file("K\xC3\xB6lsch.zyr")}).status == 0 && fileExists(h.dir.file("K\xC3\xB6lsch.zyr")));
  ASSERT_EQ(h.run({"delete", "1"}).status, 0);
  for (const char* verb : {"dump", "calc", "match", "export"}) {
    std::vector<std::string> args = {verb, "1"};
    if (std::string(verb) == "export") args.push_back(h.dir.file("gone.zyr"));
    CliResult r = h.run(args);
    EXPECT_EQ(std::to_string(r.status) + r.out + r.err, std::string("1zythara-cli: ") + verb + ": there is no recipe 1\n");
  }
  EXPECT_FALSE(fileExists(h.dir.file("gone.zyr")));
}

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
  for (const char* l : {"mashStepTemp[0]=152", "mashStepComment[0]=Sacch rest", "mashStepComment[12]=", "agingUnits=-1",
                        "agingTemp=-9999", "originalGravity=1.052", "item[0].itemName=Pale Malt",
                        "item[1].itemName=Fuggle", "item[1].mashFlag=-1", "item[1].rating=1.036"})
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
