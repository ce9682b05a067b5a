// The recipe's units and mash data: what the window shows for each stored mash type and
// efficiency, and the boil-time floor of OK (the window test drives the rest of OK).
#include <gtest/gtest.h>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "recipes/UnitMashData.h"
#include "support/TestSupport.h"

namespace zy::test {
namespace {

// An opened recipe of 5 US gallons: a mashed pale malt and hops boiled 60 and 15 minutes.
struct MashBench {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor e{wb};
  MashBench() {
    newRecipeRecord(wb);
    e.initRecipeForm();
    CurrentRecipe& cur = wb.recipe;
    cur.rec.volumeUnits = US_GAL_CONST;
    cur.rec.fermentVolume = cur.rec.boilVolume = 5;
    cur.rec.mashType = 2;
    cur.items[0] = makeItem(KIND_MALT, "Pale Malt", 8, UNIT_LBS, 1.10, 1.036, 3, -1);
    cur.items[1] = makeItem(KIND_HOPS, "Cascade", 1, UNIT_OZ, 1.25, 5.5, 60);
    cur.items[2] = makeItem(KIND_HOPS, "Centennial", 0.5, UNIT_OZ, 1.50, 10.0, 15);
    cur.rec.itemCount = 3;
    e.populateRecipeForm();
    e.recReset();
  }
};

TEST(UnitMashData, EfficiencyBoxFollowsTheMashType) {
  Defaults d;
  d.mashEff = 72;
  struct Case {
    int mashType;
    double efficiency;
    const char* shown;
    bool enabled;
  };
  for (const Case& c : {Case{0, 75, "N/A", false}, Case{2, 75, "75", true}, Case{3, 25, "25", true},
                        Case{1, 24.9, "72", true}, Case{4, 99.6, "100", true}, Case{5, 100, "72", true},
                        Case{9, 75, "N/A", false}}) {
    RecipeRecord r;
    r.mashType = c.mashType;
    r.mashEfficiency = c.efficiency;
    r.boilTime = 59.5;
    UnitMashData m;
    m.load(r, d);
    EXPECT_EQ(m.txtMashEfficiency, c.shown) << c.mashType << " " << c.efficiency;
    EXPECT_EQ(m.mashEffEnabled, c.enabled);
    EXPECT_EQ(m.txtBoilTime, "60");
  }
}

TEST(UnitMashData, BoilTimeNeverBelowTheLongestHopsBoil) {
  MashBench t;
  EXPECT_EQ(UnitMashData::longestHopsBoil(t.e.sheet.grid), 60);
  struct Case {
    const char* typed;
    double stored;
    bool warned;
  };
  for (const Case& c : {Case{"45", 60, true}, Case{"60", 60, false}, Case{"75", 75, false}, Case{"", 60, true}}) {
    t.b.prompter.shown.clear();
    UnitMashData m;
    m.load(t.wb.recipe.rec, t.wb.defaults);
    m.txtBoilTime = c.typed;
    ASSERT_TRUE(m.cmdOK(t.wb.recipe.rec, t.e, t.wb.defaults, t.b.prompter));
    EXPECT_EQ(t.wb.recipe.rec.boilTime, c.stored) << c.typed;
    EXPECT_EQ(t.e.txtBoilTime, m.txtBoilTime);
    EXPECT_EQ(shownLines(t.b.prompter),
              c.warned ? std::vector<std::string>{"Warning: You cannot set the Boil Time to less than 60\n"
                                                  "        the largest hops boil time\n"
                                                  "             Boil Time Reset"}
                       : std::vector<std::string>{})
        << c.typed;
  }
}

}  // namespace
}  // namespace zy::test
