#include <gtest/gtest.h>

#include "calculators/WaterManagement.h"
#include "calculators/CalcBench.h"
#include "calculators/WaterTreatment.h"

using namespace zy;
using namespace zy::test;

namespace {
std::vector<std::string> reportTexts(const WaterManagement& w) {
  std::vector<std::string> lines;
  for (const WaterReportLine& l : w.report) lines.push_back(l.text());
  return lines;
}

// The cells of a row of the totals grid, without its caption.
std::vector<std::string> row(const WaterTreatment& t, int r) {
  const auto& cells = t.grdTotals[static_cast<size_t>(r)];
  return {cells.begin() + 1, cells.end()};
}
}  // namespace

TEST(WaterManagement, ReportWithoutMashGrainsAndTheFullBoilMove) {
  // No mash grains: the kettle water alone, held at the boil target of 6.0.
  CalcBench cb;
  cb.open({CalcBench::crystal(1)});
  WaterManagement w(cb.editor);
  w.load();
  const std::string gal = " US Gallons";
  EXPECT_EQ(reportTexts(w),
            (std::vector<std::string>{
                "  Mashable Grains:\t0.0 Lbs", "  Mash Water Volume:\t0.0" + gal, "  Water Absorbed by Grains:\t0.0" + gal,
                "  Sparge Water Volume:\t0.0" + gal, "  Water Added to Kettle:\t6.0" + gal,
                "  Initial Boil Volume:\t6.0" + gal + "  <- Over Kettle Capacity", "  Boil Time:\t60 Minutes",
                "  Water Boiled Away:\t0.9" + gal, "  Water Absorbed by Hops:\t0.0" + gal,
                "  Volume Left in Kettle:\t0.1" + gal, "  Water Added to Primary:\t0.0" + gal,
                "  Volume to Primary:\t5.0" + gal}));
  EXPECT_TRUE(w.report[5].red);

  // Runoff 5.44: holding the final volume asks 0.5 for the primary, which the full boil moves
  // into the kettle as 0.5 / 0.85, shown 0.6; the hops stay out of that balance.
  cb.open({CalcBench::pale(8), CalcBench::hops(1.5)});
  w.load();
  w.setFullBoil(true);
  EXPECT_TRUE(!w.chkHoldInitialVolume && w.chkHoldFinalVolume && w.changed);
  EXPECT_EQ(w.txtAddToKettle + " " + w.txtAddToPrimary, "0.6 0.0");
  EXPECT_NEAR(w.toPrimary, 6.04 - 0.906 - 0.12, 1e-9);
}

TEST(WaterManagement, OverTargetToleranceIsTakenOnTheShownValue) {
  struct Case {
    const char* kettle;
    const char* flag;
  };
  // Runoff 5.44 against a boil target of 6.0: 6.04 shows as 6.0 and is within; 6.14 shows 6.1.
  for (const Case& c : {Case{"0.6", ""}, Case{"0.7", "  <- Over Target Volume"}}) {
    CalcBench cb;
    cb.open({CalcBench::pale(8)});
    cb.wb.defaults.kettleCapacity = 10;
    WaterManagement w(cb.editor);
    w.load();
    w.setHoldInitialVolume(false);
    w.setHoldFinalVolume(false);
    w.editBox(WaterManagement::Box::AddToKettle, c.kettle);
    w.leaveBox(WaterManagement::Box::AddToKettle);
    EXPECT_EQ(w.report[5].flag, c.flag) << c.kettle;
    EXPECT_EQ(w.report[5].red, *c.flag != 0) << c.kettle;
  }
}

TEST(WaterManagement, OkWritesTheVolumesAndRatesAndMarksOnlyRealChanges) {
  CalcBench cb;
  cb.open({CalcBench::pale(8)}, [](RecipeRecord& r) {
    r.mashWaterRate = 3.5;  // out of range: the default
    r.spargeRate = 3.0;
  });
  WaterManagement w(cb.editor);
  w.load();
  EXPECT_EQ(w.txtMashRate + " " + w.txtSpargeRate, "0.40 3.00");
  w.cmdOK();
  EXPECT_FALSE(cb.editor.recipeChanged());
  EXPECT_EQ(cb.editor.sheet.txtInitalBoilVolume, "26.2");  // 3.2 - 0.96 + 24.0
  EXPECT_EQ(std::vector<double>({cb.wb.recipe.rec.mashWaterVolume, cb.wb.recipe.rec.spargeVolume}),
            std::vector<double>({3.2, 24.0}));

  w.editBox(WaterManagement::Box::SpargeRate, "0.5");
  EXPECT_EQ(w.report[3].value, "24.0");  // no computation before the box is left
  w.leaveBox(WaterManagement::Box::SpargeRate);
  EXPECT_EQ(w.txtSpargeRate, "0.50");
  w.cmdOK();
  EXPECT_TRUE(cb.editor.recipeChanged());
  EXPECT_DOUBLE_EQ(cb.wb.recipe.rec.spargeRate, 0.5);
}

TEST(WaterManagement, AdditionsWithoutRoundingAndTheWholeKettleBoiledAway) {
  CalcBench cb;
  WaterBalanceInputs in{8, 1.5, 6.0, 5.0, 0.4, 0.4, 60, false, true, true};
  WaterAdditions a = computeWaterAdditions(in, cb.wb.defaults, cb.wb.errors);
  EXPECT_TRUE(std::abs(a.kettleTopUp - 0.496 / 0.85) < 1e-9 && a.fermenterTopUp == 0) << a.kettleTopUp;

  in.boilTime = 400;  // 15 percent an hour for 400 minutes: nothing survives
  in.fermentVolume = 50;
  EXPECT_THROW(computeWaterAdditions(in, cb.wb.defaults, cb.wb.errors), Terminated);
}

TEST(WaterTreatment, SaltsGiveTheirIonsAsShownAndTotalsSumTheShownCells) {
  CalcBench cb;
  cb.open({CalcBench::pale(8)});
  WaterTreatment t(cb.editor);
  t.load();
  EXPECT_EQ(t.grdChemical[6][1] + "|" + t.grdChemical[2][1], "Sodium Chloride (Table Salt)|Calcium Chloride ");
  // 8 g of table salt in 5 gallons: Cl 256, Na 166.4 shown as 166.
  t.setGrams(6, "8");
  EXPECT_TRUE(t.txtTsp[6] == "1.5" && t.Changed) << t.txtTsp[6];
  EXPECT_EQ(row(t, WaterTreatment::ROW_TOTALS), (std::vector<std::string>{"", "256", "", "", "166", ""}));
  // 1 g of chalk (Ca 21.2) and 1 g of gypsum (Ca 12.4): the total adds the shown 21 and 12.
  t.setGrams(1, "1");
  t.setGrams(3, "1");
  EXPECT_EQ(t.grdTotals[WaterTreatment::ROW_TOTALS][1], "33");
  // A spinner steps teaspoons by the default 0.5 and the grams follow.
  t.udcDelta(3, +1);
  EXPECT_EQ(t.txtTsp[3] + " " + t.txtGrams[3], "0.7 3.4");  // 1 g is 0.208 tsp, shown 0.2, plus 0.5
  t.cmdReset();
  EXPECT_EQ(row(t, WaterTreatment::ROW_TOTALS), (std::vector<std::string>{"", "", "", "", "", ""}));
}

TEST(WaterTreatment, RangeAgainstTheTargetWithItsThreshold) {
  CalcBench cb;
  cb.open({});
  cb.wb.defaults.threshold = 0.1;
  WaterTreatment t(cb.editor);
  t.load();
  t.selectFamous(1);  // Burton-on-Trent, Ca 295
  struct Case {
    int actual, target;
    const char* shown;
  };
  for (const Case& c : {Case{266, 295, "OK"}, Case{324, 295, "OK"}, Case{265, 295, "Low"}, Case{325, 295, "High"},
                        Case{0, 0, "OK"}, Case{1, 0, "High"}}) {
    t.SetRange(c.actual, c.target, 0);
    EXPECT_EQ(t.grdTotals[WaterTreatment::ROW_RANGE][1], c.shown) << c.actual << " against " << c.target;
  }
  // An empty user target: a column is within range while its total is 0, else high.
  for (int j = 0; j < kIonCount; ++j) t.editTarget(j, "0");
  EXPECT_TRUE(t.cboFamous == 0 && t.userValues == (std::array<int, kIonCount>{}));
  t.setGrams(6, "8");
  EXPECT_EQ(row(t, WaterTreatment::ROW_RANGE), (std::vector<std::string>{"OK", "High", "OK", "OK", "High", "OK"}));
}

TEST(WaterTreatment, ChemicalsAreFoundByFormulaThenNameThenCommonName) {
  struct Case {
    const char* name;
    int chemical;
  };
  for (const Case& c : {Case{"CaCl2 with Calcium Sulphate", 2}, Case{"Gypsum", 3}, Case{"gypsum", 0},
                        Case{"Burton Salts (Epsom)", 4}, Case{"Calcium Carbonate", 1}, Case{"Table Salt", 6},
                        Case{"Irish Moss", 0}})
    EXPECT_EQ(WaterChemical(c.name), c.chemical) << c.name;
}

TEST(WaterTreatment, RecipeSaltsLoadAndAcceptWritesTeaspoonsAndSettings) {
  CalcBench cb;
  cb.open({CalcBench::pale(8), makeItem(KIND_OTHER, "Gypsum", 2, 5), makeItem(KIND_OTHER, "Epsom", 3.4, UNIT_GR)});
  WaterTreatment t(cb.editor);
  t.load();
  EXPECT_EQ(t.txtGrams[3] + " " + t.txtTsp[4] + " " + (t.Changed ? "changed" : "unchanged"), "9.6 1.0 unchanged");
  // Ca 9.6 * 62 / 5 = 119.04; SO4 284.16 + 3.4 * 103 / 5 = 70.04.
  EXPECT_EQ(row(t, WaterTreatment::ROW_TOTALS), (std::vector<std::string>{"119", "", "", "18", "", "354"}));
  t.selectFamous(5);
  t.setTsp(6, "1");
  t.cmdAccept();
  EXPECT_EQ(cb.b.settings.read("Water Treatment", "Famous Water", ""), "5");
  const IngredientTable& g = cb.editor.sheet.grid;
  const int first = g.headerRow(KIND_OTHER) + 1;
  ASSERT_EQ(g.itemCount(KIND_OTHER), 3);
  EXPECT_EQ(g.cell(first + 1, COL_QTY) + " " + g.cell(first + 1, COL_UNITS) + "|" + g.cell(first + 2, COL_NAME) + " " +
                g.cell(first + 2, COL_QTY),
            "1.0 Tsp|Table Salt 1.0");
  EXPECT_TRUE(cb.editor.recipeChanged());
}

TEST(WaterTreatment, ClosingWithChangesAsksAndAZeroVolumeIsReported) {
  CalcBench cb;
  cb.open({});
  WaterTreatment t(cb.editor);
  t.load();
  t.setTsp(1, "1");
  cb.b.prompter.answers = {Answer::Cancel};
  EXPECT_FALSE(t.queryClose());
  EXPECT_EQ(shownLines(cb.b.prompter).back(),
            "Zythara Water Treatment: Water Treatment Values have Changed.  Save Changes to Recipe?");
  t.Volume = 0;
  EXPECT_THROW(t.setGrams(1, "1"), Terminated);
}
