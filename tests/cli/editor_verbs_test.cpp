#include <gtest/gtest.h>

#include "cli/CliRunner.h"
#include "core/measures.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"

using namespace zy;
using namespace zy::test;

namespace {
// Writes the data files of the command line's program folder through the stores.
struct Files : CliBench {
  Files() {
    StyleTables& t = wb.styles;
    t.BeerCategories[0].category = "Amber Ales";
    t.BeerCategoryCount = 1;
    auto style = [&](int row, const char* name, double og1, double og2, double ibu1, double ibu2) {
      BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(row)];
      s.source = STYLE_SOURCE_BJCP;
      s.styleName = name;
      s.ogLow = og1, s.ogHigh = og2, s.fgLow = 1.008, s.fgHigh = 1.016;
      s.ibuLow = ibu1, s.ibuHigh = ibu2, s.srmLow = 10, s.srmHigh = 17, s.alcoholLow = 4.5, s.alcoholHigh = 5.7;
    };
    style(0, "American Amber Ale", 1.043, 1.056, 20, 40);
    style(1, "Hoppy Amber", 1.045, 1.060, 32, 50);   // IBU 30 is a near miss
    style(2, "Big Amber", 1.080, 1.100, 20, 40);     // OG far too low
    t.BeerStyleCount = 3;
    EXPECT_TRUE(saveBeerStyles(wb));
  }

  void recipe(int no, const std::string& style) { ASSERT_TRUE(storeAmber(wb, no, "Amber", style)); }
};
}  // namespace

TEST(EditorVerbs, CalcAndMatchPrintWhatTheEditorShows) {
  Files f;
  f.recipe(1, "Hoppy Amber");
  f.recipe(2, "Martian Red");
  EXPECT_EQ(f.home.run({"calc", "1"}).all(),
            "0|Color=15.8\nOG=1.053\nFG=1.013\nAlcohol=5.3\nIBU=30\nCost=$17.74\n"
            "TargetOG=OK green\nTargetFG=OK green\nTargetIBU=Low yellow\nTargetColor=OK green\n"
            "TargetAlcohol=OK green\nStyle=Hoppy Amber\nColorSample=144,73,47\n|");

  CliResult r = f.home.run({"calc", "2"});
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("TargetOG=N/A none\n"), std::string::npos);
  EXPECT_NE(r.out.find("Style=<Not A Recognized Beer Style>\n"), std::string::npos);
  EXPECT_EQ(r.err, "[Unknown Beer Style] Beer Style 'Martian Red' is Not Recognized by Zythara\n");

  EXPECT_EQ(f.home.run({"calc", "3"}).all(), "1||zythara-cli: calc: there is no recipe 3\n");  // no such record
  EXPECT_EQ(f.home.run({"calc"}).status, 2);
  EXPECT_EQ(f.home.run({"calc", "x"}).status, 2);

  // Every style without a full miss: Big Amber's OG is far off.
  EXPECT_EQ(f.home.run({"match", "1"}).all(),
            "0|Beer Style\tO.G.\tF.G.\tBitter\tColor\tAlc %\n"
            "American Amber Ale\tOK\tOK\tOK\tOK\tOK\n"
            "Hoppy Amber\tOK\tOK\tLow\tOK\tOK\n|");
}
