// The hops utilization curve: look-ups, the gravity divisor, the settings, and the window model's
// editing rules, presets, factor mending, graph, Accept and Cancel.
#include <gtest/gtest.h>

#include <cmath>

#include "calculators/HopsUtilization.h"
#include "calculators/HopsUtilizationEditor.h"
#include "core/settings.h"

namespace zy {
namespace {

constexpr const char* S = "Hops Utilization";

TEST(HopsLookup, RagerCurveAtTheNamedMinutes) {
  HopsUtilization h;  // the Rager defaults
  EXPECT_DOUBLE_EQ(h.lookupUtilization(2.5), 0.025);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(5), 0.05);  // base of row 2, not row 1's slope
  EXPECT_DOUBLE_EQ(h.lookupUtilization(7.5), 0.055);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(89), 0.30);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(90), 0.30);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(240), 0.30);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(42.5), (22.8 + 2.5 * (26.9 - 22.8) / 5.0) / 100.0);
  EXPECT_EQ(h.lookupUtilization(0), 0.0);
  EXPECT_EQ(h.lookupUtilization(-10), 0.0);
  EXPECT_EQ(h.lookupUtilization(std::nan("")), 0.0);

  // A curve flat at its last row from 90 minutes on, whatever lies between.
  h.UtilTable[18] = 33.3;
  h.rebuildDerived();
  EXPECT_DOUBLE_EQ(h.lookupUtilization(1000), 0.333);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(87.5), (30.0 + 2.5 * 3.3 / 5.0) / 100.0);

  // Garetz: nothing up to 10 minutes.
  for (int i = 1; i <= 18; ++i) h.UtilTable[i] = garetzCurve()[i - 1];
  h.rebuildDerived();
  EXPECT_EQ(h.lookupUtilization(5), 0.0);
  EXPECT_EQ(h.lookupUtilization(10), 0.0);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(12.5), 0.005);
}

TEST(HopsLookup, DerivedArraysPassThroughDecimalText) {
  HopsUtilization h;
  h.UtilTable[1] = 0.1 + 0.2;  // 0.30000000000000004 as a double, "0.3" as text
  h.rebuildDerived();
  EXPECT_EQ(h.UtilBase[2], 0.3);
  EXPECT_EQ(h.UtilSlope[1], 0.3 / 5.0);
  EXPECT_EQ(h.lookupUtilization(5), 0.3 / 100.0);
}

TEST(HopsDivisor, ThresholdFirstThenTheMode) {
  HopsUtilization h;  // mode 1, 1.050, 0.200
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.05), 1.0);  // exactly at Factor1 - 1
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.03), 1.0);
  EXPECT_DOUBLE_EQ(h.gravityAdjustmentDivisor(boilGravityExcess(5, 5, 0.060)), 1.05);  // a 1.060 wort, full boil
  // Half the volume boiled doubles the excess: (0.12 + 1 - 1.05) / 0.2 + 1.
  EXPECT_DOUBLE_EQ(h.gravityAdjustmentDivisor(boilGravityExcess(5, 2.5, 0.060)), 1.35);
  EXPECT_EQ(boilGravityExcess(5, 0, 0.060), 0.0);

  h.GravityAdjustment = GRAVITY_ADJUST_TINSETH;
  h.Factor1 = 1.000;
  h.Factor2 = 0.000125;
  EXPECT_DOUBLE_EQ(h.gravityAdjustmentDivisor(0.001), 1.0 / std::pow(0.000125, 0.001));
  EXPECT_GT(h.gravityAdjustmentDivisor(0.001), 1.0);  // above the threshold at any gravity over 1.000
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.0), 1.0);

  h.GravityAdjustment = GRAVITY_ADJUST_NONE;
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.5), 1.0);
  h.GravityAdjustment = 7;
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.5), 1.0);

  // Never 0, never a division by zero.
  h.GravityAdjustment = GRAVITY_ADJUST_RAGER;
  h.Factor1 = 1.05;
  h.Factor2 = 0;
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.1), 1.0);
  h.Factor1 = 1.25;
  h.Factor2 = -0.25;  // (0.5 + 1 - 1.25) / -0.25 + 1 = 0
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.5), 1.0);
}

TEST(HopsSettings, MissingKeysGiveTheRagerDefaults) {
  MemorySettingsStore s;
  HopsUtilization h;
  h.UtilTable[4] = 99;
  LoadHopsUtilization(h, s);
  EXPECT_EQ(h.UtilTitle, "Rager");
  EXPECT_EQ(h.GravityAdjustment, 1);
  EXPECT_DOUBLE_EQ(h.Factor1, 1.05);
  EXPECT_DOUBLE_EQ(h.Factor2, 0.2);
  EXPECT_DOUBLE_EQ(h.Factor3, 0.02);
  EXPECT_EQ(h.UtilTable[4], 10.1);

  for (auto [key, value] : {std::pair{"Title", "Tinseth"}, {"Utilization 1", "7.2"}, {"Utilization 18", "38.7"},
                            {"Gravity Adjustment", "2"}, {"Factor 1", "1.000"}, {"Factor 2", "0.000125"},
                            {"Factor 3", "junk"}})
    s.write(S, key, value);
  LoadHopsUtilization(h, s);
  EXPECT_EQ(h.UtilTitle, "Tinseth");
  EXPECT_EQ(h.UtilTable[1], 7.2);
  EXPECT_EQ(h.UtilTable[2], 6.0);  // not stored: the default row
  EXPECT_EQ(h.GravityAdjustment, 2);
  EXPECT_DOUBLE_EQ(h.Factor2, 0.000125);
  EXPECT_EQ(h.Factor3, 0.0);  // decimal text read leniently
  EXPECT_DOUBLE_EQ(h.lookupUtilization(2.5), 0.036);
}

// The grid's 18 value cells joined by blanks.
std::string curveText(const HopsUtilizationEditor& e) {
  std::string s;
  for (int r = 1; r <= kUtilRows; ++r) s += (r > 1 ? " " : "") + e.cells[static_cast<size_t>(r)];
  return s;
}

HopsUtilizationEditor openedOnDefaults() {
  HopsUtilizationEditor e;
  e.load(HopsUtilization{});
  return e;
}

TEST(HopsEditor, LoadShowsTheStoredCurveAndFactors) {
  HopsUtilizationEditor e = openedOnDefaults();
  EXPECT_EQ(curveText(e), "5.0 6.0 8.0 10.1 12.1 15.3 18.8 22.8 26.9 28.1 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0");
  EXPECT_EQ(HopsUtilizationEditor::minutesText(18), "90");
  EXPECT_EQ(e.lblTitle, "Rager");
  EXPECT_EQ(e.mode, 1);
  EXPECT_EQ(e.txtFactor, (std::array<std::string, 3>{"1.050", "0.200", "0.020"}));
  EXPECT_EQ(e.lblGravity[0], "(for gravities >= 1.050)");
  EXPECT_EQ(e.lblBlue, "1.070");
  EXPECT_EQ(e.lblGreen, "1.090");
  EXPECT_TRUE(e.graphError.empty());
}

TEST(HopsEditor, EditsAreClampedAndKeepTheCurveRising) {
  const std::string flat = " 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0";  // rows 11 to 18 of the defaults
  const std::string custom = "Custom Utilization Curve";
  struct Case {
    std::vector<std::pair<int, const char*>> edits;
    std::string curve, title;
  };
  const std::vector<Case> cases = {
      {{{5, "50"}}, "5.0 6.0 8.0 10.1 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0 40.0", custom},  // 40 at most
      // Rows below are raised, rows above lowered to keep the curve rising.
      {{{3, "12"}}, "5.0 6.0 12.0 12.0 12.1 15.3 18.8 22.8 26.9 28.1" + flat, custom},
      {{{3, "3"}}, "3.0 3.0 3.0 10.1 12.1 15.3 18.8 22.8 26.9 28.1" + flat, custom},
      {{{1, "-4"}, {2, ".5"}}, "0.0 0.5 8.0 10.1 12.1 15.3 18.8 22.8 26.9 28.1" + flat, custom},
      // The same value again changes neither the title nor the curve; the grid takes one decimal,
      // so 18.84 is the same value as 18.8.
      {{{7, "18.80"}, {7, "18.84"}}, "5.0 6.0 8.0 10.1 12.1 15.3 18.8 22.8 26.9 28.1" + flat, "Rager"},
      {{{7, "18.86"}}, "5.0 6.0 8.0 10.1 12.1 15.3 18.9 22.8 26.9 28.1" + flat, custom},
      // Text that is no number reads as 0 and flattens the rows above.
      {{{2, "abc"}}, "0.0 0.0 8.0 10.1 12.1 15.3 18.8 22.8 26.9 28.1" + flat, custom},
  };
  for (const Case& c : cases) {
    HopsUtilizationEditor e = openedOnDefaults();
    for (auto [row, text] : c.edits) e.editCell(row, text);
    EXPECT_EQ(curveText(e), c.curve) << c.edits[0].second;
    EXPECT_EQ(e.lblTitle, c.title) << c.edits[0].second;
  }
}

TEST(HopsEditor, PresetsKeepTheirTitleAndSetTheirFactors) {
  HopsUtilizationEditor e = openedOnDefaults();
  e.editCell(9, "1");
  e.cmdTinseth();
  EXPECT_EQ(e.lblTitle, "Tinseth");
  EXPECT_EQ(e.mode, 2);
  EXPECT_EQ(curveText(e), "7.2 13.1 17.9 21.9 25.1 27.8 30.0 31.7 33.2 34.4 35.4 36.2 36.8 37.3 37.8 38.1 38.4 38.7");
  EXPECT_EQ(e.txtFactor, (std::array<std::string, 3>{"1.000", "0.000125", "0.030"}));
  EXPECT_TRUE(e.factorLocked[0]);
  EXPECT_EQ(e.factorMaxLength[1], 8);
  EXPECT_DOUBLE_EQ(e.graphIncrement, 0.03);
  EXPECT_EQ(e.lblBlue, "1.030");

  e.cmdGaretz();
  EXPECT_EQ(e.lblTitle, "Garetz");
  EXPECT_EQ(e.mode, 1);
  EXPECT_EQ(curveText(e), "0.0 0.0 1.0 4.0 6.0 11.0 13.0 19.0 23.0 24.0 24.5 25.0 25.0 25.0 25.0 25.0 25.0 25.0");
  EXPECT_EQ(e.txtFactor, (std::array<std::string, 3>{"1.050", "0.200", "0.020"}));
  EXPECT_EQ(e.factorMaxLength[1], 5);

  e.cmdReset();
  EXPECT_EQ(e.lblTitle, "None");
  EXPECT_EQ(e.mode, 0);
  EXPECT_EQ(curveText(e), "0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0");
  EXPECT_EQ(e.txtFactor, (std::array<std::string, 3>{"N/A", "N/A", "N/A"}));
  EXPECT_FALSE(e.factorEnabled[1]);
  EXPECT_EQ(e.lblBlue, "N/A");
  EXPECT_EQ(e.graph.size(), 1u);  // the base curve only

  e.cmdRager();
  EXPECT_EQ(e.lblTitle, "Rager");
  EXPECT_EQ(e.cells[18], "30.0");
  EXPECT_EQ(e.cells[6], "15.3");
}

TEST(HopsEditor, FactorsAreMendedInAChain) {
  HopsUtilizationEditor e = openedOnDefaults();
  e.focusFactor(0);
  e.setFactorText(0, "0");
  e.validateFactor(0);
  EXPECT_EQ(e.txtFactor[0], "1.000");
  e.focusFactor(2);
  e.setFactorText(2, "0");
  e.validateFactor(2);  // 0 becomes 0.2, which as an increment is out of range
  EXPECT_EQ(e.txtFactor[2], "0.020");
  EXPECT_DOUBLE_EQ(e.graphIncrement, 0.02);
  e.setFactorText(1, "-3");
  e.validateFactor(1);
  EXPECT_EQ(e.txtFactor[1], "0.200");
  e.setFactorText(2, "0.05");
  e.validateFactor(2);
  EXPECT_EQ(e.txtFactor[2], "0.050");
  EXPECT_DOUBLE_EQ(e.graphIncrement, 0.05);
  e.setFactorText(0, "1.06");
  e.validateFactor(0);
  EXPECT_EQ(e.lblGravity[0], "(for gravities >= 1.060)");
  EXPECT_EQ(e.lblTop[0], "(Gravity - 1.060)");
  EXPECT_EQ(e.lblIncrement[0], "(graph by 0.050)");
  EXPECT_EQ(e.lblBottom[0], "0.200");
  EXPECT_EQ(e.lblBlue, "1.110");

  e.cmdTinseth();
  e.setFactorText(1, "0");
  e.validateFactor(1);
  EXPECT_EQ(e.txtFactor[1], "0.000125");
  EXPECT_EQ(e.lblBottom[1], "0.000125");
  e.setFactorText(1, "0.0002");
  EXPECT_EQ(e.lblBottom[1], "0.000200");
  EXPECT_EQ(e.lblBottom[0], "0.200");  // the other mode's copy is left alone
}

// A changed factor re-applies the last row through the cell rule, against the factor's old value
// (the cell editor and the factor boxes share one remembered value): a named curve with a
// hand-set factor is custom; leaving a box unchanged, or mended back to its old value, is not.
TEST(HopsEditor, ChangedFactorMarksTheCurveCustom) {
  struct Case {
    void (HopsUtilizationEditor::*preset)();
    int box;
    const char* typed;
    const char* title;
  };
  for (const Case& c : {Case{&HopsUtilizationEditor::cmdRager, 0, "1.06", kCustomCurveTitle},
                        Case{&HopsUtilizationEditor::cmdTinseth, 2, "0.05", kCustomCurveTitle},
                        Case{&HopsUtilizationEditor::cmdGaretz, 1, "0.2", "Garetz"},
                        Case{&HopsUtilizationEditor::cmdTinseth, 1, "-1", "Tinseth"}}) {
    HopsUtilizationEditor e = openedOnDefaults();
    (e.*c.preset)();
    e.focusFactor(c.box);
    e.setFactorText(c.box, c.typed);
    e.validateFactor(c.box);
    EXPECT_EQ(e.lblTitle, c.title) << c.box << " " << c.typed;
    EXPECT_EQ(e.graph.size(), 3u);
  }
  // The re-applied row is clamped and keeps the curve from falling.
  HopsUtilizationEditor e = openedOnDefaults();
  e.cells[18] = "55";
  e.cells[17] = "41";
  e.focusFactor(0);
  e.setFactorText(0, "1.07");
  e.validateFactor(0);
  EXPECT_EQ(e.cells[18], "40.0");
  EXPECT_EQ(e.cells[17], "40.0");
  EXPECT_EQ(e.graph[0].heights[17], 480);
}

TEST(HopsEditor, GraphPointsOfEachCurve) {
  HopsUtilizationEditor e = openedOnDefaults();
  ASSERT_EQ(e.graph.size(), 3u);
  EXPECT_EQ(e.graph[0].heights[0], 2160);   // 2400 - 5.0 * 48
  EXPECT_EQ(e.graph[0].heights[3], 1916);   // 2400 - Int(484.8)
  EXPECT_EQ(e.graph[0].heights[17], 960);   // 30 %
  EXPECT_EQ(e.graph[1].label, "1.070");
  EXPECT_EQ(e.graph[1].heights[0], 2182);   // 2400 - Int(240 / 1.1)
  // 240 / 1.2 would be 200, but 1.090 - 1.050 comes out a hair above 0.04: Int(199.99...).
  EXPECT_EQ(e.graph[2].heights[0], 2201);
  e.cmdTinseth();
  ASSERT_EQ(e.graph.size(), 3u);
  EXPECT_EQ(e.graph[0].heights[0], 2055);   // 2400 - Int(345.6)
  EXPECT_EQ(e.graph[1].heights[0], 2137);   // 2400 - Int(345.6 * 0.000125 ^ 0.03) = 2400 - 263
  e.cmdRager();
  e.setFactorText(1, "0");  // typed, not yet mended
  EXPECT_TRUE(e.graphPoints().empty());
  e.redrawGraph();
  EXPECT_EQ(e.graphError, "ERROR: Invalid Factor Value Entered");
}

TEST(HopsEditor, AcceptStoresEverythingCancelNothing) {
  MemorySettingsStore s;
  HopsUtilization h;
  LoadHopsUtilization(h, s);
  HopsUtilizationEditor e;
  e.load(h);
  e.editCell(3, "12");
  e.setFactorText(0, "1.06");
  e.validateFactor(0);
  // Cancel: the window is dropped, nothing reaches the state or the settings.
  EXPECT_EQ(s.writeCount, 0);
  EXPECT_EQ(h.UtilTable[3], 8.0);
  EXPECT_EQ(h.UtilTitle, "Rager");
  EXPECT_DOUBLE_EQ(h.lookupUtilization(15), 0.08);

  e.saveHopsUtilization(h, s);
  EXPECT_EQ(h.UtilTitle, "Custom Utilization Curve");
  EXPECT_EQ(h.UtilTable[4], 12.0);
  EXPECT_DOUBLE_EQ(h.Factor1, 1.06);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(17.5), 0.12);  // derived arrays rebuilt
  for (auto [key, value] : {std::pair{"Title", "Custom Utilization Curve"}, {"Utilization 3", "12"},
                            {"Utilization 4", "12"}, {"Utilization 6", "15.3"}, {"Gravity Adjustment", "1"},
                            {"Factor 1", "1.06"}, {"Factor 2", "0.2"}, {"Factor 3", "0.02"}})
    EXPECT_EQ(s.read(S, key, "?"), value) << key;
  EXPECT_EQ(s.writeCount, 23);

  HopsUtilization again;
  LoadHopsUtilization(again, s);
  EXPECT_EQ(again.UtilTable, h.UtilTable);
  EXPECT_EQ(again.UtilTitle, h.UtilTitle);

  // The Tinseth base survives the settings' decimal text.
  e.cmdTinseth();
  e.saveHopsUtilization(h, s);
  LoadHopsUtilization(again, s);
  EXPECT_EQ(again.UtilTitle, "Tinseth");
  EXPECT_EQ(again.GravityAdjustment, 2);
  EXPECT_DOUBLE_EQ(again.Factor2, 0.000125);
  EXPECT_DOUBLE_EQ(again.lookupUtilization(240), 0.387);

  // Mode 0: the boxes read "N/A", the factors become 0.
  e.cmdReset();
  e.saveHopsUtilization(h, s);
  EXPECT_EQ(h.GravityAdjustment, 0);
  EXPECT_EQ(h.Factor1, 0.0);
  EXPECT_EQ(s.read(S, "Factor 2", "?"), "0");
  EXPECT_EQ(h.lookupUtilization(60), 0.0);
}

}  // namespace
}  // namespace zy
