#include <gtest/gtest.h>

#include <functional>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "recipes/SmartInstructions.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

namespace {

// A recipe built row by row in the editor: 5 gallons, boil 5 gallons, 60 minutes, US measures.
struct SmartBench {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor e{wb};
  explicit SmartBench(int mashType = 0, int unitType = 0) {
    newRecipeRecord(wb);
    wb.recipe.rec.mashType = mashType;
    wb.recipe.rec.unitType = unitType;
    wb.recipe.rec.boilVolume = wb.recipe.rec.fermentVolume = 5.0;
    wb.recipe.rec.boilTime = 60;
    wb.recipe.rec.spargeTemp = 168;
    e.initRecipeForm();
    e.populateRecipeForm();
  }
  SmartBench& add(int kind, const char* name, double qty, int unit, double rating, double detail, int mash = 0) {
    e.AddIngredient(kind, name, qty, unit, 0, rating, detail, mash);
    return *this;
  }
  SmartBench& malt(const char* name, double lbs, bool mash = false) {
    return add(KIND_MALT, name, lbs, UNIT_LBS, 1.033, 2, mash ? -1 : 0);
  }
  SmartBench& hops(const char* name, double oz, double minutes) { return add(KIND_HOPS, name, oz, UNIT_OZ, 5, minutes); }
  SmartBench& other(const char* name) { return add(KIND_OTHER, name, 1, 5, 0, 0); }
  SmartBench& yeast() { return add(KIND_YEAST, "Ale Yeast", 1, 0, 0.75, 0); }
  std::string text() { return generateSmartInstructions(e); }
};

}  // namespace

#define B "\r\n\r\n"

// The eight openings by the classes of grain, each as a whole text.
TEST(SmartInstructions, OpeningsByGrainClasses) {
  struct Case {
    const char* what;
    int mashType, unitType;
    std::function<void(SmartBench&)> build;
    const char* text;
  };
  const std::vector<Case> cases = {
      {"No malt: no text", 0, 0, [](SmartBench& t) { t.hops("Cascade", 1, 60).yeast(); },
      ""},
      {"1 mash, salts halved", 2, 0, [](SmartBench& t) { t.malt("Pale Malt", 8, true).hops("Cascade", 1, 60).other("Gypsum").yeast(); },
      "Lightly crack the Pale Malt, mash according to the mash schedule.  Dissolve about half of the Gypsum in the mash water and the other half in the sparge water.  Sparge the grains with 168 degree water.  Transfer the sweet wort to your kettle." B
       "Next, add cold water to the kettle to bring the volume up to 5.0 US Gallons.  Add the Cascade hops to the wort and boil for 60 minutes.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"2 crystal, two salts halved; 1 lb steeps in 4 quarts", 0, 0, [](SmartBench& t) { t.malt("Crystal 40L", 1).hops("Cascade", 1, 60).other("Gypsum").other("Epsom Salt").yeast(); },
      "Lightly crack the Crystal 40L and mix it with about 4 Quarts of cold water in the boiling kettle.  Dissolve about half of the Gypsum and the Epsom Salt in with the water and malt mixture.  Heat the mixture until it just starts to boil and then remove the grains." B
       "Add enough cold water to the kettle to bring the water level to 5.0 US Gallons.  Dissolve the other half of the Gypsum and the Epsom Salt in the kettle.  Add the Cascade hops to the wort and boil for 60 minutes.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"3 small mash: the crystal (mash flag or not) is mixed in, the salts all go in the kettle", 2, 0, [](SmartBench& t) { t.malt("Pale Malt", 1.5, true).malt("Crystal 60L", 0.5, true).hops("Saaz", 1, 60).hops("Saaz", 0.5, 15).other("Gypsum").yeast(); },
      "Lightly crack the Pale Malt, mash according to the mash schedule.  After the mash, strain the mash liquid into your kettle.  Mix the Crystal 60L with the mash grains.  Next, pour the sparge water (at 168 degrees) over the mash grains and let sit for 5 minutes, stirring occasionally.  Strain the liquid into your kettle, leaving the grains behind.  Next, add cold water to the kettle to bring the volume up to 5.0 US Gallons.  Dissolve the Gypsum in the kettle.  Boil the wort for 60 minutes with the Saaz hops and add the remaining hops in the list at the times indicated before the end of the boil.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"3 large mash", 2, 0, [](SmartBench& t) { t.malt("Pale Malt", 9, true).malt("Crystal 60L", 1).hops("Saaz", 1, 60).other("Gypsum").yeast(); },
      "Lightly crack the Pale Malt, mash according to the mash schedule.  Dissolve about half of the Gypsum in the mash water and the other half in the sparge water.  Before sparging the mash, lightly crack the Crystal 60L and combine it with the mash grains.  Sparge the grains with 168 degree water.  Transfer the sweet wort to your kettle." B
       "Next, add cold water to the kettle to bring the volume up to 5.0 US Gallons.  Add the Saaz hops to the wort and boil for 60 minutes.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"4 extract with salts; 15 minutes before the 45-minute hops", 0, 0, [](SmartBench& t) { t.malt("Light DME", 6).hops("Cascade", 1, 45).other("Chalk").yeast(); },
      "Dissolve the Light DME in 5.0 US Gallons of brewing water and then stir in the Chalk.  Boil the wort for 15 minutes before adding any hops.  Add the Cascade hops to the wort and boil for 45 minutes.  The total boil time should be 60 minutes.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"5 without a mash: the grain steeps (1 quart, no crystal), salts halved", 0, 0, [](SmartBench& t) { t.malt("Light DME", 5).malt("Pale Malt", 1, true).hops("Cascade", 1, 60).other("Gypsum").yeast(); },
      "Lightly crack the Pale Malt and mix it with about 1 Quart of cold water in the boiling kettle.  Dissolve about half of the Gypsum in with the water and malt mixture.  Heat the mixture until it just starts to boil and then remove the grains." B
       "Next, add cold water to the kettle to bring the volume up to 5.0 US Gallons and dissolve the Light DME in the brew water.  Dissolve the other half of the Gypsum in the kettle.  Add the Cascade hops to the wort and boil for 60 minutes.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"6 metric: 0.05 kg of crystal still steeps in 1 liter; a hop at 0 minutes steeps", 0, 1, [](SmartBench& t) { t.malt("Light DME", 5).malt("Crystal 40L", 0.05).hops("Cascade", 1, 60).hops("Saaz", 1, 0).other("Gypsum").yeast(); },
      "Lightly crack the Crystal 40L and mix it with about 1 Liter of cold water in the boiling kettle.  Dissolve about half of the Gypsum in with the water and malt mixture.  Heat the mixture until it just starts to boil and then remove the grains." B
       "Add enough cold water to the kettle to bring the water level to 5.0 US Gallons.  Dissolve the other half of the Gypsum in the kettle.  Stir and dissolve the Light DME into the brew water in the kettle.  Boil the wort for 60 minutes with the Cascade hops and add the remaining hops in the list at the times indicated before the end of the boil.  Add the 1.0 Oz Saaz after you turn off the heat.  Let it steep for about 5 minutes before straining the wort into the fermenter.  " B
       "Cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"7 without a mash, two crystal malts", 0, 0, [](SmartBench& t) { t.malt("Light DME", 5).malt("Pale Malt", 1, true).malt("Crystal 40L", 1).malt("Cara-Pils", 0.5).hops("Cascade", 1, 60).yeast(); },
      "Lightly crack the Pale Malt, Crystal 40L and the Cara-Pils and mix it with about 6 Quarts of cold water in the boiling kettle.  Heat the mixture until it just starts to boil and then remove the grains." B
       "Next, add cold water to the kettle to bring the volume up to 5.0 US Gallons.  Stir and dissolve the Light DME in the brew water.  Add the Cascade hops to the wort and boil for 60 minutes.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
      {"7 mashed, large", 2, 0, [](SmartBench& t) { t.malt("Pale Malt", 8, true).malt("Crystal 40L", 1).malt("Light DME", 2).hops("Cascade", 1, 60).hops("Saaz", 1, 5).other("Gypsum").yeast(); },
      "Lightly crack the Pale Malt, mash according to the mash schedule.  Dissolve about half of the Gypsum in the mash water and the other half in the sparge water.  Before sparging the mash, lightly crack the Crystal 40L and combine it with the mash grains.  Sparge the grains with 168 degree water.  Transfer the sweet wort to your kettle." B
       "Next, add cold water to the kettle to bring the volume up to 5.0 US Gallons.  Stir and dissolve the Light DME in the brew water.  Dissolve the other half of the Gypsum in the kettle.  Boil the wort for 60 minutes with the Cascade hops and add the remaining hops in the list at the times indicated before the end of the boil.  " B
       "After the boil, cool the mixture and transfer it your fermentation vessel.  Add enough cold water to make 5.0 US Gallons in the fermenter.  Pitch the yeast when the mixture is cool."},
  };
  for (const Case& c : cases) {
    SmartBench t(c.mashType, c.unitType);
    c.build(t);
    EXPECT_EQ(t.text(), c.text) << c.what;
  }
}

TEST(SmartInstructions, FruitWoodSpicesFiningsAndLagering) {
  SmartBench t;
  t.malt("Light DME", 6).malt("Cherry Juice", 1).malt("Frozen Raspberries", 3).malt("Black Currants", 1);
  t.hops("Cascade", 1, 60).other("Oak Chips").other("Irish Moss").other("Gelatin").other("Polyclar");
  t.other("Orange Peel").other("Cinnamon").other("Frozen Ginger").other("Lemon Juice").other("Lactose").yeast();
  t.e.cboRecipeType = 1;  // Lager
  FermentationForm& f = t.e.fermentation;
  f.chkAge = true, f.txtAgeValue = "6", f.cboAgeUnits = 1, f.txtAgeTemp = "35";
  t.e.txtBoilTime = "90";
  t.e.sheet.txtInitalBoilVolume = "6.0";  // over the 5-gallon kettle
  EXPECT_EQ(t.text(),
      "Dissolve the Light DME in 6.0 US Gallons of brewing water.  You may need to boil the wort in more than one pot since you end up with more than 5 gallons of liquid.  Boil the wort for 30 minutes before adding any hops.  Add the Cascade hops to the wort and boil for 60 minutes.  The total boil time should be 90 minutes.  Add the Cinnamon during the last 15 minutes of the boil for flavor and aroma.  Add the Irish Moss during the last 10-15 minutes of the boil.  Add the Orange Peel during the last 10 minutes of the boil for flavor and aroma.  Be sure to get only the colored part of the Orange Peel, try to get as little of the white part as possible.  " B
       "Crush the Black Currants lightly, so that the skin is broken on each.  Once the boil is completed, allow the wort to cool to approximately 170 degrees F.  Add the Black Currants to the cooling wort and let it stand for about 1 hour." B
       "Cool the mixture and transfer it your fermentation vessel.  Now, add the Frozen Raspberries and the Frozen Ginger into the primary fermenter (be sure to defrost them first and make sure they don't have any preservatives since this could slow, or even stop, the yeast action).  Now, pour the Cherry Juice and the Lemon Juice into the primary fermenter (be sure it doesn't have any preservatives since this could slow, or even stop, the yeast action).  Include the Black Currants, the hops and everything into your fermenter.  Pitch the yeast when the mixture is cool.  Once primary fermentation has completed, skim off any floating berries and rack into secondary." B
       "Don't forget to add the Oak Chips when you rack your brew to the secondary fermenter." B
       "After the primary fermentation, lager the beer for at least 6 Weeks at 35 degrees." B
       "Dissolve the gelatin in very warm water.  Add to the fermented beer with the priming, just before bottling." B
       "Add the polyclar to your fermented beer once most of the yeast has settled." B
       "*** No specific instructions given for: Lactose.");
  EXPECT_EQ(shownLines(t.b.prompter),
            std::vector<std::string>({"Smart Instructions: Wood Chips are typically used in the Secondary "
                                      "fermentation, this recipe doesn't call for one."}));
  // With a secondary stage the wood needs no word, and the aging names both stages.
  t.b.prompter.shown.clear();
  f.txtValue[1] = "10";
  EXPECT_NE(t.text().find("After the primary and secondary fermentation, lager"), std::string::npos);
  EXPECT_TRUE(t.b.prompter.shown.empty());
}

TEST(SmartInstructions, MashAdviceRepairsAndTheCommentQuestion) {
  SmartBench extract;
  extract.malt("Light DME", 5).malt("Pale Malt", 0.5, true).hops("Cascade", 1, 60);
  extract.text();
  EXPECT_TRUE(extract.b.prompter.shown.empty());  // half a pound is not worth a mash
  extract.malt("Munich Malt", 0.25, true).text();
  EXPECT_EQ(shownLines(extract.b.prompter),
            std::vector<std::string>({"Smart Instructions: The recipe uses enough mashable grains so you should "
                                      "consider converting to at least a Partial Mash Recipe"}));

  SmartBench mash(2);
  RecipeRecord& rec = mash.wb.recipe.rec;
  rec.mashWaterRate = 3.5, rec.spargeRate = 3.0, rec.spargeTemp = 9;
  mash.malt("Pale Malt", 8, true).hops("Cascade", 1, 60);
  EXPECT_NE(mash.text().find("Sparge the grains with 170 degree water."), std::string::npos);
  EXPECT_EQ(std::vector<double>({rec.mashWaterRate, rec.spargeRate, rec.spargeTemp}),
            std::vector<double>({0.40, 0.40, 170}));

  // The comment window: an empty comment is replaced; otherwise Yes replaces, No appends, Cancel keeps.
  const std::string text = mash.text();
  std::string comment = "  ";
  EXPECT_TRUE(applySmartInstructions(mash.e, comment));
  EXPECT_EQ(comment, text);
  mash.b.prompter.answers = {Answer::No, Answer::Yes};
  comment = "Brewed on a cold day.";
  EXPECT_TRUE(applySmartInstructions(mash.e, comment));
  EXPECT_EQ(comment, "Brewed on a cold day.\r\n\r\n" + text);
  EXPECT_TRUE(applySmartInstructions(mash.e, comment));
  EXPECT_EQ(comment, text);
  EXPECT_EQ(mash.b.prompter.shown.back().title, "Smart Instructions");
  EXPECT_EQ(mash.b.prompter.shown.back().text,
            "Do you want to replace the existing Comment with a New Comment?\r\n      Yes - Replace Comment\r\n"
            "      No  - Append New Comment\r\n      Cancel - Don't Do Anything");
}
