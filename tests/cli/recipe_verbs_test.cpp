// The verbs over stored recipes: what the editor shows and what each calculator prints.
#include <gtest/gtest.h>

#include "cli/CliRunner.h"
#include "core/measures.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"

using namespace zy;
using namespace zy::test;

namespace {
// A program folder with one style and recipe 1: a pale ale with mash steps and a salt.
struct CalcFiles : CliBench {
  CalcFiles() {
    BeerStyleRecord& s = wb.styles.BeerStyles[0];
    s.source = STYLE_SOURCE_BJCP;
    s.styleName = "Dry Stout";
    s.ogLow = 1.036, s.ogHigh = 1.050, s.srmLow = 25, s.srmHigh = 40;
    wb.styles.BeerCategories[0].category = "Stout";
    wb.styles.BeerCategoryCount = 1;
    wb.styles.BeerStyleCount = 1;
    EXPECT_TRUE(saveBeerStyles(wb));

    newRecipeRecord(wb);
    CurrentRecipe& c = wb.recipe;
    RecipeRecord& r = c.rec;
    r.recipeNo = 1, r.recipeName = "Pale", r.volumeUnits = US_GAL_CONST, r.fermentVolume = 5, r.boilVolume = 6;
    r.boilTime = 60, r.mashType = 3, r.mashStepTime = {30, 60, 10};
    c.rec.mashStepTemp = {122, 152, 170};
    c.rec.mashStepComment = {"Protein Rest", "Saccharification Rest", "Mash Out"};
    c.items[0] = makeItem(KIND_MALT, "Pale Malt", 8, UNIT_LBS, 1.10, 1.036, 3, -1);
    c.items[1] = makeItem(KIND_HOPS, "Cascade", 1.5, UNIT_OZ, 1.25, 5.5, 60);
    c.items[2] = makeItem(KIND_OTHER, "Gypsum", 2, 5, 0.35);
    c.items[3] = makeItem(KIND_YEAST, "American Ale", 1, 0, 4.99, 0.75);
    c.rec.itemCount = 4;
    EXPECT_TRUE(saveCurrentRecipe(wb));
  }
};
}  // namespace

TEST(CalculatorVerbs, EachVerbPrintsItsLines) {
  CalcFiles f;
  struct Case {
    std::vector<std::string> args;
    std::string out, err;
  };
  const std::string gal = " US Gallons\n";
  const std::vector<Case> cases = {
      {{"water", "1", "--full-boil", "1", "--hold-initial", "0"},
       "Water Volume Report\n  Mashable Grains:\t8.0 Lbs\n  Mash Water Volume:\t3.2" + gal +
           "  Water Absorbed by Grains:\t1.0" + gal + "  Sparge Water Volume:\t3.2" + gal +
           "  Water Added to Kettle:\t0.6" + gal + "  Initial Boil Volume:\t6.0 US Gallons  <- Over Kettle Capacity\n" +
           "  Boil Time:\t60 Minutes\n  Water Boiled Away:\t0.9" + gal + "  Water Absorbed by Hops:\t0.0" + gal +
           "  Volume Left in Kettle:\t0.1" + gal + "  Water Added to Primary:\t0.0" + gal + "  Volume to Primary:\t5.0" + gal,
       ""},
      // The recipe's 2 tsp of gypsum plus 1 tsp of table salt.
      {{"treatment", "1", "--water", "burton-on-trent", "--tsp", "6=1"},
       "Totals (ppm)\t119\t170\t\t\t110\t284\nIonic Level Within Range\tLow\tHigh\tLow\tLow\tHigh\tLow\n", ""},
      {{"mash", "1", "--mode", "0"},
       "0\t122\tProtein Rest\n30\t152\tSaccharification Rest\n90\t170\tMash Out\n100\t170\tMash Out\n", ""},
      {{"mash", "1"}, "30\t122\tProtein Rest\n60\t152\tSaccharification Rest\n10\t170\tMash Out\n", ""},
      {{"formulate", "1", "--og", "1.050", "--color", "20"}, "Pale Malt\t8.7\tLbs\t100\nOG\t1.050\nColor\t4.2\n",
       "[Advanced Malt Formulator] That's as close was the Formulator can get with these malts\n"},
      {{"starter", "--volume", "5", "--unit", "US Gallons", "--unit-type", "0", "--gravity", "1.050", "--level", "1"},
       "Yeast Starter Volume = 16 US Fl Oz\n Kraeusening Volume = 51 US Fl Oz\n", ""},
      {{"new-from-style", "dry stout", "--choice", "2"},
       "2\nVery Light DME\t5.95\tLbs\t1.5\t1.035\t94\nBlack Patent Malt\t0.4\tLbs\t500.0\t1.024\t6\n",
       "[Warning] This Action Will Replace ALL Current Malt Entries in the Recipe\n"
       "[Zythara 2 Information] NOTICE: There is no Yeast included in this recipe!\n"},
      {{"scan"}, "1\tPale\n2\tNew Dry Stout Recipe\n", ""},
      {{"new-from-style", "Brown Porter"}, "", "zythara-cli: new-from-style: there is no style Brown Porter\n"},
      {{"formulate", "1", "--og", "1.05x", "--color", "20"}, "",
       "usage: zythara-cli formulate N --og G --color C [--coarse]\n"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(f.home.run(c.args).all(), std::to_string(c.err.empty() || c.err[0] == '[' ? 0 : 2) + "|" + c.out + "|" + c.err)
        << c.args[0];
  }
}

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
  for (const char* line : {"TargetOG=N/A none\n", "Style=<Not A Recognized Beer Style>\n"})
    EXPECT_NE(r.out.find(line), std::string::npos) << line;
  EXPECT_EQ(r.err, "[Unknown Beer Style] Beer Style 'Martian Red' is Not Recognized by Zythara\n");

  EXPECT_EQ(f.home.run({"calc", "3"}).all(), "1||zythara-cli: calc: there is no recipe 3\n");  // no such record
  EXPECT_EQ(f.home.run({"calc"}).status + f.home.run({"calc", "x"}).status, 4);  // usage errors

  // Every style without a full miss: Big Amber's OG is far off.
  EXPECT_EQ(f.home.run({"match", "1"}).all(),
            "0|Beer Style\tO.G.\tF.G.\tBitter\tColor\tAlc %\n"
            "American Amber Ale\tOK\tOK\tOK\tOK\tOK\n"
            "Hoppy Amber\tOK\tOK\tLow\tOK\tOK\n|");
}
