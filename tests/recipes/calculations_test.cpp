#include <gtest/gtest.h>

#include "core/measures.h"
#include "recipes/RecipeCalculations.h"
#include "recipes/RecipeEditor.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

namespace {
// An editor over a fresh workbench, volumes in US gallons, efficiency 80, no style.
struct Calc {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor e{wb};
  RecipeSheet& s = e.sheet;
  Calc(const std::string& ferment = "1", const std::string& boil = "1") {
    wb.recipe.rec.volumeUnits = US_GAL_CONST, wb.recipe.rec.mashEfficiency = 80;
    s.txtFermentVolume = ferment, s.txtInitalBoilVolume = boil;
  }
  void malt(double lbs, double extract, double color, bool mashed = false, int unit = UNIT_LBS, double cost = 0) {
    e.AddIngredient(KIND_MALT, "Malt", lbs, unit, cost, extract, color, mashed ? -1 : 0);
  }
  void hops(double oz, double alpha, double minutes, int unit = UNIT_OZ, double cost = 0) {
    e.AddIngredient(KIND_HOPS, "Hops", oz, unit, cost, alpha, minutes, 0);
  }
  void yeast(double attenuation) { e.AddIngredient(KIND_YEAST, "Yeast", 1, 0, 0, attenuation, 0, 0); }
  void color() { computeRecipeColor(wb, s); }
  void bitterness() { computeRecipeBitterness(wb, s); }
  // OG, FG, alcohol and colour as shown.
  std::string shown() const { return s.lblOG + " " + s.lblFG + " " + s.lblAlcohol + " " + s.lblColor; }
  size_t tooBitterMessages() const {
    size_t n = 0;
    for (const ShownMessage& m : b.prompter.shown)
      if (m.text == kTooBitterMessage) ++n;
    return n;
  }
};
}  // namespace

TEST(RecipeCalculations, GravityColourAndAlcoholOfOnePoundInOneGallon) {
  Calc c;
  c.malt(1, 1.036, 4.0);
  c.yeast(0.75);
  c.color();
  EXPECT_EQ(c.shown(), "1.036 1.009 3.6 4.0");  // alcohol (0.036 - 0.009) * 132.5 = 3.5775
  EXPECT_NEAR(c.s.ogPoints, 0.036, 1e-12);

  // Ounces count by the weight table, and a second gallon halves everything.
  Calc d("2");
  d.malt(32, 1.036, 4.0, false, UNIT_OZ);
  d.yeast(0.75);
  d.color();
  EXPECT_EQ(d.shown(), "1.036 1.009 3.6 4.0");
}

TEST(RecipeCalculations, MashEfficiencyThinsExtractAndColourOfMashedMaltsOnly) {
  Calc c;
  c.malt(1, 1.036, 10.0, true);
  c.color();
  EXPECT_EQ(c.s.lblOG + " " + c.s.lblColor, "1.029 8.0");  // 1.0288, and 80 percent of 10
  EXPECT_NEAR(c.s.ogPoints, 0.0288, 1e-12);

  Calc u;
  u.malt(1, 1.036, 10.0, false);
  u.color();
  EXPECT_EQ(u.s.lblOG + " " + u.s.lblColor, "1.036 10.0");

  // Rows with no quantity take no part; a malt of zero colour gives "N/A" colour.
  Calc z;
  z.malt(0, 1.5, 500);
  z.malt(1, 1.036, 0);
  z.color();
  EXPECT_EQ(z.s.lblOG + " " + z.s.lblColor, "1.036 N/A");
}

TEST(RecipeCalculations, YeastAttenuationOutsideHalfToNinetyFivePercentTakesTheDefault) {
  auto fgWith = [](std::vector<double> attenuations) {
    Calc c;
    c.malt(1, 1.036, 4.0);
    for (double a : attenuations) c.yeast(a);
    c.color();
    return c.s.lblFG;
  };
  // The default 0.72 gives 0.036 * 0.28 = 0.01008, also with no yeast at all; exactly 95 and
  // exactly 50 are used; the highest wins, wherever it stands.
  EXPECT_EQ(std::vector<std::string>({fgWith({0.40}), fgWith({0.97}), fgWith({}), fgWith({0.95}), fgWith({0.50}),
                                      fgWith({0.60, 0.75}), fgWith({0.75, 0.60})}),
            std::vector<std::string>({"1.010", "1.010", "1.010", "1.002", "1.018", "1.009", "1.009"}));

  // A changed default follows.
  Calc c;
  c.wb.defaults.yeastAttenuation = 0.5;
  c.malt(1, 1.036, 4.0);
  c.color();
  EXPECT_EQ(c.s.lblFG, "1.018");
}

TEST(RecipeCalculations, GravityAbove1200OrZeroShowsNotAvailableButColourStays) {
  Calc c;
  c.malt(7, 1.036, 4.0);  // 0.252 points
  c.color();
  EXPECT_EQ(c.shown(), "N/A N/A N/A 28.0");

  Calc n;  // no malts
  n.yeast(0.75);
  n.color();
  EXPECT_EQ(n.shown(), "N/A N/A N/A N/A");
}

TEST(RecipeCalculations, ZeroFermenterVolumeKeepsTheStaleGravityForBitterness) {
  Calc c("5", "5");
  c.malt(10, 1.040, 4.0);  // 0.080 points in 5 gallons
  c.color();
  EXPECT_NEAR(c.s.ogPoints, 0.08, 1e-12);
  c.s.txtFermentVolume = "0";
  c.color();
  EXPECT_EQ(c.shown(), "N/A N/A N/A N/A");
  EXPECT_NEAR(c.s.ogPoints, 0.08, 1e-12);  // kept
  c.bitterness();
  EXPECT_EQ(c.s.lblIBU, "N/A");

  // Back to a valid volume, bitterness alone still works from the stale 0.080: with Rager mode
  // at the defaults the divisor is (0.08 * 10/5 + 1 - 1.05) / 0.2 + 1 = 1.55.
  c.hops(1, 10.0, 60);
  c.s.txtFermentVolume = "10";
  c.bitterness();
  EXPECT_EQ(c.s.lblIBU, "14");  // 1 * 0.3 * 0.1 * 7490 / (10 * 1.55) = 14.497
}

TEST(RecipeCalculations, BitternessFollowsTheUtilizationCurveAndGravityDivisor) {
  Calc c("5", "5");
  c.hops(1, 10.0, 60);
  c.bitterness();
  EXPECT_EQ(c.s.lblIBU, "45");  // 1 * 0.30 * 0.10 * 7490 / 5 = 44.94

  // A pound of hops counts as 16 ounces.
  Calc p("5", "5");
  p.hops(1, 10.0, 60, UNIT_LBS);
  p.bitterness();
  EXPECT_EQ(p.s.lblIBU, "719");

  // Row 18 from 90 minutes on; 89 minutes still interpolates between rows 17 and 18.
  auto ibuAt = [](double minutes) {
    Calc h;
    h.wb.hops.UtilTable[18] = 35.0;
    h.wb.hops.rebuildDerived();
    h.hops(1, 10.0, minutes);
    h.bitterness();
    return h.s.lblIBU;
  };
  // 0.35 * 0.1 * 7490 = 262.15; (4 * 1.0 + 30) / 100 -> 254.66; no utilization, so no bitterness.
  EXPECT_EQ(ibuAt(90) + " " + ibuAt(240) + " " + ibuAt(89) + " " + ibuAt(0), "262 262 255 N/A");

  // A boil volume of zero shows "N/A" while the gravity still shows.
  Calc z("1", "0");
  z.malt(1, 1.036, 4.0);
  z.hops(1, 10.0, 60);
  z.color();
  z.bitterness();
  EXPECT_EQ(z.s.lblIBU + " " + z.s.lblOG, "N/A 1.036");

  // A boil of half the fermenter volume doubles the boil gravity: 1.050 finished boils at 1.100,
  // divisor (0.1 + 1 - 1.05) / 0.2 + 1 = 1.25.
  Calc g("5", "2.5");
  g.malt(6.25, 1.040, 2.0);  // 0.05 points
  g.hops(1, 10.0, 60);
  g.color();
  g.bitterness();
  EXPECT_EQ(g.s.lblIBU, "36");  // 44.94 / 1.25 = 35.95
  g.wb.hops.GravityAdjustment = GRAVITY_ADJUST_NONE;
  g.bitterness();
  EXPECT_EQ(g.s.lblIBU, "45");
}

TEST(RecipeCalculations, TooBitterMessageOnlyAbove300) {
  // 4 oz at 30 percent utilization and 25 percent alpha in 7.49 gallons: exactly 300.
  Calc c("7.49", "7.49");
  c.hops(4, 25.0, 60);
  c.bitterness();
  EXPECT_TRUE(c.s.lblIBU == "300" && c.tooBitterMessages() == 0u) << c.s.lblIBU;

  Calc d("7.49", "7.49");
  d.hops(4, 25.1, 60);  // 301.2
  d.bitterness();
  ASSERT_TRUE(d.s.lblIBU == "301" && d.tooBitterMessages() == 1u) << d.s.lblIBU;  // the message changes nothing
  const ShownMessage& m = d.b.prompter.shown.back();
  EXPECT_TRUE(m.icon == Icon::Question && m.buttons == Buttons::OK &&
              m.text == "Do you actually think anyone\n  will drink a brew this bitter?") << m.text;
}

TEST(RecipeCalculations, CostSumsEveryItemRowInItsOwnUnit) {
  Calc c;
  EXPECT_EQ(c.s.grid.cell(c.s.grid.totalRow(), 0) + " " + c.s.grid.cell(c.s.grid.totalRow(), COL_COST),
            "Estimated Total Cost $0.00");
  c.malt(2, 1.036, 4, false, UNIT_LBS, 1.60);
  c.hops(1.5, 5.5, 60, UNIT_OZ, 1.25);
  c.e.AddIngredient(KIND_OTHER, "Irish Moss", 1, 5, 0.35, 0, 0, 0);
  c.e.AddIngredient(KIND_YEAST, "Ale Yeast", 1, 0, 4.99, 0.75, 0, 0);
  computeRecipeCost(c.wb, c.s);
  EXPECT_NEAR(c.s.totalCost, 3.2 + 1.875 + 0.35 + 4.99, 1e-9);
  EXPECT_EQ(c.s.grid.cell(c.s.grid.totalRow(), COL_COST), "$10.42");  // 10.415 rounds up
  EXPECT_EQ(std::vector<double>({moneyValue("$1,234.50"), moneyValue("($1.25)"), moneyValue("abc")}),
            std::vector<double>({1234.5, -1.25, 0}));
}

TEST(RecipeCalculations, StyleIndicatorsAtTheirLimits) {
  Calc c;
  BeerStyleRecord st;
  st.styleName = "Test Ale";
  st.ogLow = 1.045, st.ogHigh = 1.055, st.fgLow = 1.010, st.fgHigh = 1.014;
  st.ibuLow = 20, st.ibuHigh = 30, st.srmLow = 10, st.srmHigh = 20, st.alcoholLow = 4, st.alcoholHigh = 5;
  c.wb.styles.BeerStyles[0] = st;
  c.wb.styles.BeerStyleCount = 1;

  // Without a style every flag reads "N/A" with no colour, and Details is off.
  c.s.lblOG = "1.040";
  updateStyleFlags(c.wb, c.s);
  for (const TargetLabel& t : c.s.targets)
    EXPECT_EQ(t.text + targetColourWord(t.colour), std::string("N/A") + targetColourWord(TargetColour::None));
  EXPECT_FALSE(c.s.cmdDetailsEnabled);

  c.wb.styles.CurrentStyleIndex = 0;
  auto flag = [&](TargetIndex i, std::string RecipeSheet::*field, const std::string& value) {
    c.s.lblOG = "1.050", c.s.lblFG = "1.012", c.s.lblIBU = "25", c.s.lblColor = "15.0", c.s.lblAlcohol = "4.5";
    c.s.*field = value;
    updateStyleFlags(c.wb, c.s);
    return c.s.targets[i].text + " " + targetColourWord(c.s.targets[i].colour);
  };
  // Gravities measure their margin from 0.9: the limits of 1.045 to 1.055 are 1.0305 and 1.0705,
  // and "N/A" counts as 0. The others are proportional: 18 is exactly the lower limit of 20, a near miss.
  // (The limits themselves are pinned with the style deviation; here each flag reads its own value.)
  const struct { TargetIndex target; std::string RecipeSheet::*field; const char *shown, *flag; } cases[] = {
      {TARGET_OG, &RecipeSheet::lblOG, "1.055", "OK green"},        {TARGET_OG, &RecipeSheet::lblOG, "1.040", "Low yellow"},
      {TARGET_OG, &RecipeSheet::lblOG, "1.071", "High red"},        {TARGET_OG, &RecipeSheet::lblOG, "N/A", "Low red"},
      {TARGET_FG, &RecipeSheet::lblFG, "1.009", "Low yellow"},
      {TARGET_IBU, &RecipeSheet::lblIBU, "18", "Low yellow"},       {TARGET_IBU, &RecipeSheet::lblIBU, "17", "Low red"},
      {TARGET_IBU, &RecipeSheet::lblIBU, "33", "High yellow"},      {TARGET_IBU, &RecipeSheet::lblIBU, "34", "High red"},
      {TARGET_COLOR, &RecipeSheet::lblColor, "9.0", "Low yellow"},  {TARGET_COLOR, &RecipeSheet::lblColor, "22.1", "High red"},
      {TARGET_ALCOHOL, &RecipeSheet::lblAlcohol, "5.5", "High yellow"},
      {TARGET_ALCOHOL, &RecipeSheet::lblAlcohol, "3.5", "Low red"}};
  for (const auto& k : cases) EXPECT_EQ(flag(k.target, k.field, k.shown), k.flag) << k.shown;
  EXPECT_TRUE(c.s.cmdDetailsEnabled);
}

TEST(RecipeCalculations, ColourSampleInterpolatesAndClampsToTheTable) {
  RecipeSheet s;
  auto sample = [&](const std::string& color) {
    s.lblColor = color;
    updateColorSample(s);
    return std::to_string(s.picColor.r) + "," + std::to_string(s.picColor.g) + "," + std::to_string(s.picColor.b);
  };
  // 0 clamps to row 1; 10.5 lies halfway to row 11 (202, 101, 49); past 26 clamped, row 27 never read.
  const std::pair<const char*, const char*> cases[] = {{"N/A", "255,255,255"}, {"0.5", "255,255,255"},
                                                       {"10.0", "204,116,53"}, {"10.5", "203,109,51"},
                                                       {"2.2", "254,252,184"}, {"26.0", "40,15,0"}, {"40.0", "40,15,0"}};
  for (const auto& [color, rgb] : cases) EXPECT_EQ(sample(color), rgb) << color;
}

TEST(RecipeCalculations, ExtractionPercentOfTheMaximum) {
  EXPECT_EQ(lblExtPct(1.036) + lblExtPct(1.047) + lblExtPct(1.0) + lblExtPct(0.999) + lblExtPct(2.0),
            "(77%)(100%)(0%)(0%)(0%)");
}
