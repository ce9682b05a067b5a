#include <gtest/gtest.h>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "recipes/ScaleDialog.h"
#include "recipes/UnitMashData.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

namespace {
// A new recipe of 5 US gallons (boil 3.5): 10 lbs of pale malt, 2 oz of hops boiled 60 minutes,
// a teaspoon of moss, 4 US fluid ounces of a liquid, one packet of yeast.
struct ScaleBench {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor e{wb};
  ScaleBench() {
    newRecipeRecord(wb);
    e.initRecipeForm();
    e.populateRecipeForm();
    e.AddIngredient(KIND_MALT, "Pale", 10, UNIT_LBS, 1.00, 1.036, 3, 0);
    e.AddIngredient(KIND_HOPS, "Cascade", 2, UNIT_OZ, 1.25, 5.5, 60, 0);
    e.AddIngredient(KIND_OTHER, "Irish Moss", 1, 5, 0.35, 0, 0, 0);
    e.AddIngredient(KIND_OTHER, "Lactic Acid", 4, 8, 0.50, 0, 0, 0);
    e.AddIngredient(KIND_YEAST, "Ale Yeast", 1, 0, 4.00, 0.75, 0, 0);
    e.rescaled();
    e.recReset();
  }
  std::string cell(int r, int c) const { return e.sheet.grid.cell(r, c); }
  // Quantity, unit and cost of the five item rows (1 malt, 3 hops, 5 and 6 others, 8 yeast).
  std::vector<std::string> items() const {
    std::vector<std::string> v;
    for (int r : {1, 3, 5, 6, 8}) v.push_back(cell(r, COL_QTY) + " " + cell(r, COL_UNITS) + " " + cell(r, COL_COST));
    return v;
  }
  // Fermenter and boil volume, volume unit and unit system as the editor shows them, and the OG.
  std::vector<std::string> volumes() const {
    return {e.sheet.txtFermentVolume, e.sheet.txtInitalBoilVolume, e.lblVolumeUnits, e.lblUnitType, e.sheet.lblOG};
  }
};
}  // namespace

TEST(ScaleDialog, DoublingTheVolumeDoublesEveryQuantityAndKeepsTheCharacter) {
  ScaleBench t;
  const std::string ibu = t.e.sheet.lblIBU, color = t.e.sheet.lblColor;
  ScaleDialog d;
  d.open(t.e);
  EXPECT_EQ(d.txtVolume + " " + std::to_string(d.cboVolume) + " " + std::to_string(d.optUnits),
            "5.0 " + std::to_string(US_GAL_CONST) + " " + std::to_string(US_MEASURES));
  d.txtVolume = "10";
  ASSERT_TRUE(d.apply(t.e));
  EXPECT_EQ(t.items(), (std::vector<std::string>{"20.0 Lbs $1.00", "4.0 Oz $1.25", "2.0 Tsp $0.35",
                                                 "8.0 US Fl Oz $0.50", "2.0 Packet $4.00"}));
  EXPECT_EQ(t.volumes(), (std::vector<std::string>{"10.0", "7.0", "US Gallons", "US Measures", "1.072"}));
  EXPECT_EQ(t.e.sheet.lblColor + " " + t.e.sheet.lblIBU, color + " " + ibu);
  EXPECT_EQ(t.cell(t.e.sheet.grid.totalRow(), COL_COST), "$37.70");
  EXPECT_TRUE(t.e.recipeChanged());
}

TEST(ScaleDialog, MetricSystemConvertsUnitsByTheTables) {
  ScaleBench t;
  ScaleDialog d;
  d.open(t.e);
  d.setUnitSystem(METRIC_MEASURES);  // proposes liters, the same volume
  EXPECT_TRUE(d.cboVolume == LITER_CONST && d.txtVolume == "18.9") << d.txtVolume;
  d.txtVolume = "20";
  ASSERT_TRUE(d.apply(t.e));
  // 10 lbs * 1.0567 = 10.567 lbs = 4.793 kg, brought to a multiple of 0.05; teaspoons stay
  // teaspoons; 4.23 US fl oz in mL.
  EXPECT_EQ(t.items(), (std::vector<std::string>{"4.8 Kg $2.20", "59.9 Gr $0.04", "1.06 Tsp $0.35",
                                                 "125.0 mL $0.02", "1.06 Packet $4.00"}));
  EXPECT_EQ(t.e.sheet.grid.unitCode(1), UNIT_KG);
  EXPECT_EQ(t.volumes(), (std::vector<std::string>{"20.0", "14.0", "Liters", "Metric Measures", "1.072"}));
  EXPECT_EQ(std::vector<int>({t.wb.recipe.rec.volumeUnits, t.wb.recipe.rec.unitType}), std::vector<int>({LITER_CONST, METRIC_MEASURES}));
  EXPECT_EQ(t.e.fermentation.lblTempUnits, "\xB0" "C");

  // And on to British: kilograms and grams back to pounds and ounces, mL to imperial ounces.
  ScaleDialog b;
  b.open(t.e);
  b.setUnitSystem(IMPERIAL_MEASURES);
  EXPECT_TRUE(b.cboVolume == IMPERIAL_GAL_CONST && b.txtVolume == "4.4") << b.txtVolume;
  ASSERT_TRUE(b.apply(t.e));
  EXPECT_EQ(t.cell(1, COL_UNITS) + t.cell(1, COL_QTY) + " " + t.cell(3, COL_UNITS) + " " + t.cell(6, COL_UNITS),
            "Lbs10.6 Oz Imp Fl Oz");  // 4.8 * 1.0001 kg in pounds
  EXPECT_TRUE(t.e.lblVolumeUnits == "Imp Gallons" && t.wb.recipe.rec.unitType == IMPERIAL_MEASURES);
}

TEST(ScaleDialog, NoVolumeMeansNoScaling) {
  ScaleBench t;
  ScaleDialog d;
  d.open(t.e);
  d.txtVolume = "0";
  EXPECT_FALSE(d.apply(t.e));
  EXPECT_FALSE(t.e.recipeChanged());
  t.e.setFermentVolume("N/A");
  d.txtVolume = "10";
  EXPECT_FALSE(d.apply(t.e));
  EXPECT_EQ(shownLines(t.b.prompter),
            (std::vector<std::string>{"Scale Recipe Quantities: Please enter a Fermentation Volume greater than zero",
                                      "Scale Recipe Quantities: The recipe has no Fermentation Volume to scale from"}));
  EXPECT_EQ(t.cell(1, COL_QTY), "10.0");
}

TEST(ScaleDialog, UnitsOfEachSystem) {
  // US Gal to Liters, Liters to Imp Qts; Each and a yeast Starter stay.
  EXPECT_EQ(std::vector<int>({scaledUnit(KIND_MALT, UNIT_LBS, METRIC_MEASURES), scaledUnit(KIND_HOPS, UNIT_GR, US_MEASURES),
                              scaledUnit(KIND_HOPS, UNIT_KG, IMPERIAL_MEASURES), scaledUnit(KIND_OTHER, 6, METRIC_MEASURES),
                              scaledUnit(KIND_OTHER, 9, IMPERIAL_MEASURES), scaledUnit(KIND_OTHER, 4, METRIC_MEASURES),
                              scaledUnit(KIND_YEAST, 2, METRIC_MEASURES)}),
            std::vector<int>({UNIT_KG, UNIT_OZ, UNIT_LBS, 9, 12, 4, 2}));
  // Pounds to kilograms, US and imperial fluid ounces to mL, US gallons to liters; yeast units stay.
  const struct { int kind, from, to; double factor; } factors[] = {
      {KIND_MALT, UNIT_LBS, UNIT_KG, 0.4535924}, {KIND_OTHER, 8, 10, 29.5735296875}, {KIND_OTHER, 13, 10, 28.41307425},
      {KIND_OTHER, 6, 9, 3.7854118}, {KIND_YEAST, 0, 3, 1.0}};
  for (const auto& f : factors) EXPECT_NEAR(unitFactor(f.kind, f.from, f.to), f.factor, 1e-9) << f.from << " " << f.to;
  EXPECT_EQ(std::string(ScaleDialog::unitCaptions()[2]), "British (Imperial Gallons, Pounds)");
}

// The recipe's units and mash data: what the window shows for each stored mash type and
// efficiency, and the boil-time floor of OK (the window test drives the rest of OK).
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
  ScaleBench t;
  t.e.AddIngredient(KIND_HOPS, "Centennial", 0.5, UNIT_OZ, 1.50, 10.0, 15, 0);  // added last, boiled shorter
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
