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

std::vector<std::string> lines(const std::string& s) {
  auto v = split(s, '\n');
  if (!v.empty() && v.back().empty()) v.pop_back();
  return v;
}
}  // namespace

TEST(CliList, ImportNumbersDoubledNamesAndTreeShowsThem) {
  CliHome h;
  writeFile(h.dir.file("porter.zyr"), kPorter);
  // The reader's uniqueName sees the stored recipe in the tree built before the import.
  EXPECT_EQ(h.run({"import", h.dir.file("porter.zyr")}).out, "1\tRobust Porter\n");
  EXPECT_EQ(h.run({"import", h.dir.file("porter.zyr")}).out, "2\tRobust Porter (Duplicate)\n");
  const std::string second = "Robust Porter (Duplicate)";

  EXPECT_EQ(lines(h.run({"tree"}).out), (std::vector<std::string>{" Sorted By Name: 2", "  Robust Porter", "  " + second}));
  EXPECT_EQ(lines(h.run({"tree", "--sort", "1"}).out),
            (std::vector<std::string>{" Sorted By Beer Style: 2", "Porter", "  Robust Porter", "  " + second}));
  EXPECT_EQ(lines(h.run({"tree", "--sort=3"}).out)[2], "  1998-10-05 - Robust Porter");

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
  auto v = lines(h.run({"list"}).out);
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
  EXPECT_EQ(lines(h.run({"scan"}).out).size(), 3u);
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
