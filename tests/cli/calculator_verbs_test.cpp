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
    c.rec.recipeNo = 1;
    c.rec.recipeName = "Pale";
    c.rec.volumeUnits = US_GAL_CONST;
    c.rec.fermentVolume = 5;
    c.rec.boilVolume = 6;
    c.rec.boilTime = 60;
    c.rec.mashType = 3;
    c.rec.mashStepTime = {30, 60, 10};
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
