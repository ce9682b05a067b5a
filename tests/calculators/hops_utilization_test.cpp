// The hops utilization curve: look-ups, the gravity divisor, the settings, and the window model's
// editing rules, presets, factor mending, graph, Accept and Cancel.
#include <gtest/gtest.h>

#include <cmath>

#include "calculators/HopsUtilization.h"
#include "calculators/HopsUtilizationEditor.h"
#include "core/numfmt.h"
#include "core/settings.h"

namespace zy {
namespace {

constexpr const char* S = "Hops Utilization";

// Utilization looked up at each of the given minutes.
std::vector<double> lookups(const HopsUtilization& h, std::initializer_list<double> minutes) {
  std::vector<double> v;
  for (double m : minutes) v.push_back(h.lookupUtilization(m));
  return v;
}

TEST(HopsLookup, RagerCurveAtTheNamedMinutes) {
  HopsUtilization h;  // the Rager defaults; at 5 minutes the base of row 2, not row 1's slope
  EXPECT_EQ(lookups(h, {2.5, 5, 7.5, 89, 90, 240, 0, -10, std::nan("")}),
            std::vector<double>({0.025, 0.05, 0.055, 0.30, 0.30, 0.30, 0, 0, 0}));
  EXPECT_DOUBLE_EQ(h.lookupUtilization(42.5), (22.8 + 2.5 * (26.9 - 22.8) / 5.0) / 100.0);

  // A curve flat at its last row from 90 minutes on, whatever lies between.
  h.UtilTable[18] = 33.3;
  h.rebuildDerived();
  EXPECT_DOUBLE_EQ(h.lookupUtilization(1000), 0.333);
  EXPECT_DOUBLE_EQ(h.lookupUtilization(87.5), (30.0 + 2.5 * 3.3 / 5.0) / 100.0);

  // Garetz: nothing up to 10 minutes.
  for (int i = 1; i <= 18; ++i) h.UtilTable[i] = garetzCurve()[i - 1];
  h.rebuildDerived();
  EXPECT_EQ(lookups(h, {5, 10, 12.5}), std::vector<double>({0, 0, 0.005}));

  // The derived arrays pass through decimal text: 0.1 + 0.2 is taken as 0.3.
  h.UtilTable[1] = 0.1 + 0.2;
  h.rebuildDerived();
  EXPECT_EQ(std::vector<double>({h.UtilBase[2], h.UtilSlope[1], h.lookupUtilization(5)}),
            std::vector<double>({0.3, 0.3 / 5.0, 0.3 / 100.0}));
}

TEST(HopsDivisor, ThresholdFirstThenTheMode) {
  HopsUtilization h;  // mode 1, 1.050, 0.200; exactly at Factor1 - 1 and below it: 1
  EXPECT_TRUE(h.gravityAdjustmentDivisor(0.05) == 1.0 && h.gravityAdjustmentDivisor(0.03) == 1.0);
  EXPECT_DOUBLE_EQ(h.gravityAdjustmentDivisor(boilGravityExcess(5, 5, 0.060)), 1.05);  // a 1.060 wort, full boil
  // Half the volume boiled doubles the excess: (0.12 + 1 - 1.05) / 0.2 + 1.
  EXPECT_DOUBLE_EQ(h.gravityAdjustmentDivisor(boilGravityExcess(5, 2.5, 0.060)), 1.35);
  EXPECT_EQ(boilGravityExcess(5, 0, 0.060), 0.0);

  h.GravityAdjustment = GRAVITY_ADJUST_TINSETH;
  h.Factor1 = 1.000;
  h.Factor2 = 0.000125;
  EXPECT_DOUBLE_EQ(h.gravityAdjustmentDivisor(0.001), 1.0 / std::pow(0.000125, 0.001));  // above 1 past 1.000
  EXPECT_EQ(h.gravityAdjustmentDivisor(0.0), 1.0);

  // No mode, an unknown mode, a factor of 0 and a divisor that would be 0 all give 1.
  const struct { int mode; double f1, f2, excess; } ones[] = {
      {GRAVITY_ADJUST_NONE, 1.05, 0.2, 0.5}, {7, 1.05, 0.2, 0.5}, {GRAVITY_ADJUST_RAGER, 1.05, 0, 0.1},
      {GRAVITY_ADJUST_RAGER, 1.25, -0.25, 0.5}};  // (0.5 + 1 - 1.25) / -0.25 + 1 = 0
  for (const auto& c : ones) {
    h.GravityAdjustment = c.mode, h.Factor1 = c.f1, h.Factor2 = c.f2;
    EXPECT_EQ(h.gravityAdjustmentDivisor(c.excess), 1.0) << c.mode << " " << c.f2;
  }
}

TEST(HopsSettings, MissingKeysGiveTheRagerDefaults) {
  MemorySettingsStore s;
  HopsUtilization h;
  h.UtilTable[4] = 99;
  LoadHopsUtilization(h, s);
  EXPECT_EQ(h.UtilTitle, "Rager");
  EXPECT_EQ(std::vector<double>({static_cast<double>(h.GravityAdjustment), h.Factor1, h.Factor2, h.Factor3, h.UtilTable[4]}),
            std::vector<double>({1, 1.05, 0.2, 0.02, 10.1}));

  for (auto [key, value] : {std::pair{"Title", "Tinseth"}, {"Utilization 1", "7.2"}, {"Utilization 18", "38.7"},
                            {"Gravity Adjustment", "2"}, {"Factor 1", "1.000"}, {"Factor 2", "0.000125"},
                            {"Factor 3", "junk"}})
    s.write(S, key, value);
  LoadHopsUtilization(h, s);
  EXPECT_EQ(h.UtilTitle, "Tinseth");
  // Row 2 is not stored: the default row; junk decimal text reads leniently as 0.
  EXPECT_EQ(std::vector<double>({h.UtilTable[1], h.UtilTable[2], static_cast<double>(h.GravityAdjustment), h.Factor2,
                                 h.Factor3}),
            std::vector<double>({7.2, 6.0, 2, 0.000125, 0}));
  EXPECT_DOUBLE_EQ(h.lookupUtilization(2.5), 0.036);
}

// The grid's 18 value cells joined by blanks.
std::string curveText(const HopsUtilizationEditor& e) {
  std::string s;
  for (int r = 1; r <= kUtilRows; ++r) s += (r > 1 ? " " : "") + e.cells[static_cast<size_t>(r)];
  return s;
}

// The editor opened on the Rager defaults.
HopsUtilizationEditor openedOnDefaults() {
  HopsUtilizationEditor e;
  e.load(HopsUtilization{});
  return e;
}

// Title, mode, factor boxes and the two graph labels, as shown.
std::string shown(const HopsUtilizationEditor& e) {
  return e.lblTitle + "|" + std::to_string(e.mode) + "|" + e.txtFactor[0] + " " + e.txtFactor[1] + " " +
         e.txtFactor[2] + "|" + e.lblBlue + " " + e.lblGreen;
}

TEST(HopsEditor, LoadShowsTheStoredCurveAndFactors) {
  HopsUtilizationEditor e = openedOnDefaults();
  EXPECT_EQ(curveText(e), "5.0 6.0 8.0 10.1 12.1 15.3 18.8 22.8 26.9 28.1 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0");
  EXPECT_EQ(HopsUtilizationEditor::minutesText(18), "90");
  EXPECT_EQ(shown(e) + "|" + e.lblGravity[0] + "|" + e.graphError, "Rager|1|1.050 0.200 0.020|1.070 1.090|(for gravities >= 1.050)|");
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
  EXPECT_EQ(shown(e), "Tinseth|2|1.000 0.000125 0.030|1.030 1.060");
  EXPECT_EQ(curveText(e), "7.2 13.1 17.9 21.9 25.1 27.8 30.0 31.7 33.2 34.4 35.4 36.2 36.8 37.3 37.8 38.1 38.4 38.7");
  EXPECT_TRUE(e.factorLocked[0] && e.factorMaxLength[1] == 8 && e.graphIncrement == 0.03);

  e.cmdGaretz();
  EXPECT_EQ(shown(e), "Garetz|1|1.050 0.200 0.020|1.070 1.090");
  EXPECT_EQ(curveText(e) + "|" + std::to_string(e.factorMaxLength[1]),
            "0.0 0.0 1.0 4.0 6.0 11.0 13.0 19.0 23.0 24.0 24.5 25.0 25.0 25.0 25.0 25.0 25.0 25.0|5");

  e.cmdReset();
  EXPECT_EQ(shown(e), "None|0|N/A N/A N/A|N/A N/A");
  EXPECT_EQ(curveText(e), "0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0");
  EXPECT_TRUE(!e.factorEnabled[1] && e.graph.size() == 1u);  // the base curve only

  e.cmdRager();
  EXPECT_EQ(e.lblTitle + " " + e.cells[6] + " " + e.cells[18], "Rager 15.3 30.0");
}

TEST(HopsEditor, FactorsAreMendedInAChain) {
  HopsUtilizationEditor e = openedOnDefaults();
  // Box, text typed, the box's text after the check. A 0 increment becomes 0.2, which as an
  // increment is out of range and is mended again to the default.
  const struct { int box; const char* typed; const char* mended; } steps[] = {
      {0, "0", "1.000"}, {2, "0", "0.020"}, {1, "-3", "0.200"}, {2, "0.05", "0.050"}, {0, "1.06", "1.060"}};
  for (const auto& st : steps) {
    e.focusFactor(st.box);
    e.setFactorText(st.box, st.typed);
    e.validateFactor(st.box);
    EXPECT_EQ(e.txtFactor[static_cast<size_t>(st.box)], st.mended) << st.box << " " << st.typed;
  }
  EXPECT_DOUBLE_EQ(e.graphIncrement, 0.05);
  EXPECT_EQ(e.lblGravity[0] + e.lblTop[0] + e.lblIncrement[0] + e.lblBottom[0] + " " + e.lblBlue,
            "(for gravities >= 1.060)(Gravity - 1.060)(graph by 0.050)0.200 1.110");

  e.cmdTinseth();
  e.setFactorText(1, "0");
  e.validateFactor(1);
  EXPECT_EQ(e.txtFactor[1] + " " + e.lblBottom[1], "0.000125 0.000125");
  e.setFactorText(1, "0.0002");
  EXPECT_EQ(e.lblBottom[1] + " " + e.lblBottom[0], "0.000200 0.200");  // the other mode's copy is left alone
}

// A changed factor re-applies the last row through the cell rule, against the factor's old value
// (the cell editor and the factor boxes share one remembered value): a named curve with a
// hand-set factor is custom; leaving a box unchanged, or mended back to its old value, is not.
TEST(HopsEditor, ChangedFactorMarksTheCurveCustom) {
  struct Case { void (HopsUtilizationEditor::*preset)(); int box; const char *typed, *title; };
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
  EXPECT_EQ(e.cells[17] + " " + e.cells[18], "40.0 40.0");
  EXPECT_EQ(e.graph[0].heights[17], 480);
}

TEST(HopsEditor, GraphPointsOfEachCurve) {
  HopsUtilizationEditor e = openedOnDefaults();
  ASSERT_EQ(e.graph.size(), 3u);
  // 2400 - 5.0 * 48, 2400 - Int(484.8), 30 % at row 18; then 2400 - Int(240 / 1.1) for 1.070.
  // 240 / 1.2 would be 200 for 1.090, but 1.090 - 1.050 comes out a hair above 0.04: Int(199.99...).
  EXPECT_EQ(std::vector<int>({e.graph[0].heights[0], e.graph[0].heights[3], e.graph[0].heights[17],
                              e.graph[1].heights[0], e.graph[2].heights[0]}),
            std::vector<int>({2160, 1916, 960, 2182, 2201}));
  EXPECT_EQ(e.graph[1].label, "1.070");
  e.cmdTinseth();
  ASSERT_EQ(e.graph.size(), 3u);
  // 2400 - Int(345.6), and 2400 - Int(345.6 * 0.000125 ^ 0.03) = 2400 - 263.
  EXPECT_EQ(std::vector<int>({e.graph[0].heights[0], e.graph[1].heights[0]}), std::vector<int>({2055, 2137}));
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
  EXPECT_EQ(h.UtilTitle + " " + plainText(h.UtilTable[3]) + " " + plainText(h.lookupUtilization(15)), "Rager 8 0.08");

  e.saveHopsUtilization(h, s);
  EXPECT_EQ(h.UtilTitle, "Custom Utilization Curve");
  // The derived arrays are rebuilt.
  EXPECT_EQ(plainText(h.UtilTable[4]) + " " + plainText(h.Factor1) + " " + plainText(h.lookupUtilization(17.5)),
            "12 1.06 0.12");
  for (auto [key, value] : {std::pair{"Title", "Custom Utilization Curve"}, {"Utilization 3", "12"},
                            {"Utilization 4", "12"}, {"Utilization 6", "15.3"}, {"Gravity Adjustment", "1"},
                            {"Factor 1", "1.06"}, {"Factor 2", "0.2"}, {"Factor 3", "0.02"}})
    EXPECT_EQ(s.read(S, key, "?"), value) << key;
  EXPECT_EQ(s.writeCount, 23);

  HopsUtilization again;
  LoadHopsUtilization(again, s);
  EXPECT_TRUE(again.UtilTable == h.UtilTable && again.UtilTitle == h.UtilTitle);

  // The Tinseth base survives the settings' decimal text.
  e.cmdTinseth();
  e.saveHopsUtilization(h, s);
  LoadHopsUtilization(again, s);
  EXPECT_EQ(again.UtilTitle + " " + std::to_string(again.GravityAdjustment) + " " + plainText(again.Factor2) + " " +
                plainText(again.lookupUtilization(240)),
            "Tinseth 2 0.000125 0.387");

  // Mode 0: the boxes read "N/A", the factors become 0.
  e.cmdReset();
  e.saveHopsUtilization(h, s);
  EXPECT_EQ(std::vector<double>({static_cast<double>(h.GravityAdjustment), h.Factor1, h.lookupUtilization(60)}),
            std::vector<double>({0, 0, 0}));
  EXPECT_EQ(s.read(S, "Factor 2", "?"), "0");
}

}  // namespace
}  // namespace zy
