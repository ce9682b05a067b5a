#include <gtest/gtest.h>

#include "calculators/CalcBench.h"
#include "recipes/NewRecipe.h"
#include "calculators/MaltFormulator.h"
#include "core/numfmt.h"
#include "inventory/InventoryStore.h"

using namespace zy;
using namespace zy::test;

namespace {
struct FormBench {
  CalcBench cb;
  MaltFormulator f{cb.editor};
  explicit FormBench(const std::vector<RecipeItemRecord>& malts) {
    cb.open(malts);
    f.load();
    f.txtTargetOG = "1.050";
  }
};

// The bill as "name percent" texts.
std::vector<std::string> bill(const NewRecipeDialog& d) {
  std::vector<std::string> rows;
  for (const auto& [index, pct] : d.grainBill())
    rows.push_back(std::string(presetMalts()[static_cast<size_t>(index)].name) + " " + std::to_string(static_cast<int>(pct)));
  return rows;
}
}  // namespace

TEST(MaltFormulator, OneMaltEndsInTheCloseAsItCanMessage) {
  FormBench b({CalcBench::pale(5)});
  EXPECT_EQ(b.f.lblQuantity + " " + b.f.txtMashEff, "Malt Formulation for 5.0 US Gallons 80");  // the recipe's efficiency
  b.f.txtTargetColor = "20.0";
  ASSERT_TRUE(b.f.mnuComputeOGColor());
  // 0.050 * 5 gallons / (0.036 * 0.8) = 8.68 lbs, on the grid of 1/20: 8.7.
  const FormulatorMalt& m = b.f.lvMalts[0];
  EXPECT_EQ(m.quantity + " " + m.computedPct + " " + b.f.txtCompOG + " " + b.f.txtCompColor, "8.7 100 1.050 4.2");
  EXPECT_EQ(shownLines(b.cb.b.prompter),
            (std::vector<std::string>{"Advanced Malt Formulator: That's as close was the Formulator can get with these malts"}));
  b.f.coarse = true;  // a grid of 1/10
  b.f.txtTargetOG = "1.049";
  ASSERT_TRUE(b.f.mnuComputeOGColor());
  EXPECT_EQ(b.f.lvMalts[0].quantity, "8.5");  // 8.51 lbs
}

TEST(MaltFormulator, ColourBelowOneIsRaisedToThreeAndTheRunGoesOn) {
  FormBench b({CalcBench::pale(5)});
  b.f.txtTargetColor = "0.5";
  ASSERT_TRUE(b.f.mnuComputeOGColor());
  EXPECT_EQ(b.f.txtTargetColor + " " + b.f.lvMalts[0].quantity, "3.0 8.7");
  // Colour 4.2 is above the target already: no search, no closing message.
  EXPECT_EQ(shownLines(b.cb.b.prompter),
            (std::vector<std::string>{"Error: Color less than 1 will not be computed, adjusted to 3.0"}));
}

TEST(MaltFormulator, SearchTradesTheBaseMaltForDarkerOnesUntilTheColourIsNear) {
  FormBench b({CalcBench::pale(8), CalcBench::crystal(1)});
  b.f.txtTargetColor = "12.0";
  ASSERT_TRUE(b.f.mnuComputeOGColor());
  EXPECT_TRUE(b.cb.b.prompter.shown.empty());
  const double colour = lenientValue(b.f.txtCompColor);
  EXPECT_TRUE(colour >= 11.5 && colour < 12.5) << colour;
  EXPECT_EQ(b.f.txtCompOG + " " + b.f.saveImage, "1.050 Save-Changed");
}

TEST(MaltFormulator, ChecksStopInTheirOrderWithTheirMessages) {
  struct Case {
    std::function<void(MaltFormulator&)> set;
    bool solver;
    const char* message;
  };
  const std::vector<Case> cases = {
      {[](MaltFormulator& f) { f.lvMalts.resize(21, f.lvMalts[0]); f.Volume = 0; }, true,
       "Error: Limited to using 20 malts for Malt Formulator"},
      {[](MaltFormulator& f) { f.Volume = 0; f.txtTargetOG = "1.0"; }, false, "Error: Must have a Non-Zero Volume quantity"},
      {[](MaltFormulator& f) { f.txtTargetOG = "1.0005"; }, false, "Error: OG less than 1.001 will not be computed"},
      {[](MaltFormulator& f) { f.txtTargetOG = "1.201"; }, true, "Error: OG greater than 1.200 will not be computed"},
      {[](MaltFormulator& f) { f.txtMashEff = "29"; }, false, "Error: Mash Efficiencies less than 30% are not reasonable"},
      {[](MaltFormulator& f) { f.txtMashEff = "101"; }, true, "Error: Mash Efficiencies greater than 100% are not reasonable"},
      {[](MaltFormulator& f) { f.lvMalts[1].targetPct = "10"; }, false,
       "Error: Percentages must total to 100% for this calculation"},
      {[](MaltFormulator& f) { f.lvMalts[1].extraction = "1.000"; }, true,
       "Error - Invlaid Extraction: Crystal 60 Extraction must be greater than 1.000"},
      {[](MaltFormulator& f) { f.MashType = 1; for (auto& m : f.lvMalts) m.mash = true; }, true,
       "Error: Partial Mash not possible with no extract malts"},
  };
  for (const Case& c : cases) {
    FormBench b({CalcBench::pale(8), CalcBench::crystal(2)});
    c.set(b.f);
    EXPECT_FALSE(c.solver ? b.f.mnuComputeOGColor() : b.f.mnuComputeOG()) << c.message;
    EXPECT_EQ(shownLines(b.cb.b.prompter), std::vector<std::string>{c.message});
  }
}

TEST(MaltFormulator, FixedPercentagesExportToTheRecipe) {
  FormBench b({CalcBench::pale(8), CalcBench::crystal(2)});
  EXPECT_EQ(b.f.lblTotal, "(100%)");
  EXPECT_FALSE(b.f.mnuFileExport());
  b.f.setTargetPct(0, "90");
  b.f.setTargetPct(1, "10");
  ASSERT_TRUE(b.f.mnuComputeOG());
  // X = 0.9 * 0.0288 + 0.1 * 0.034 = 0.02932; T = 0.25 / X = 8.53: 7.7 and 0.85 lbs.
  EXPECT_EQ(b.f.lvMalts[0].quantity + " " + b.f.lvMalts[1].quantity + " " + b.f.lvMalts[1].computedPct, "7.7 0.85 10");
  b.cb.b.prompter.answers = {Answer::OK};
  ASSERT_TRUE(b.f.mnuFileExport());
  const IngredientTable& g = b.cb.editor.sheet.grid;
  const int first = g.headerRow(KIND_MALT) + 1;
  EXPECT_EQ(std::to_string(g.itemCount(KIND_MALT)) + " " + g.cell(first, COL_QTY) + " " + g.cell(first + 1, COL_QTY) + " " +
                g.cell(first + 1, COL_COST),
            "2 7.7 0.85 $1.60");
  EXPECT_TRUE(b.cb.editor.recipeChanged() && !b.f.changed);
  EXPECT_EQ(shownLines(b.cb.b.prompter)[0],
            "Advanced Malt Formulator: No Calculations Performed, There are No Changes to Export");
}

TEST(NewRecipeFromStyle, GrainBillByMashAndStyleColour) {
  struct Case {
    int choice;
    double srmLow;
    std::vector<std::string> rows;
  };
  const std::vector<Case> cases = {
      {NewRecipeDialog::ALL_MASH, 5.9, {"Pale Malt 70", "American Crystal Malt  20L 30"}},
      {NewRecipeDialog::ALL_MASH, 6.0, {"Pale Malt 70", "American Crystal Malt  60L 30"}},
      {NewRecipeDialog::ALL_MASH, 20.0, {"Pale Malt 95", "Black Patent Malt 5"}},
      {NewRecipeDialog::PARTIAL_MASH, 6.0, {"Very Light DME 60", "Pale Malt 5", "Dark DME 25", "Munich Malt 5"}},
      {NewRecipeDialog::PARTIAL_MASH, 20.0,
       {"Very Light DME 80", "Pale Malt 2", "American Crystal Malt  60L 8", "Black Patent Malt 2"}},
      {NewRecipeDialog::NO_MASH, 5.9, {"Very Light DME 50", "Amber DME 50"}},
      {NewRecipeDialog::NO_MASH, 19.9, {"Very Light DME 50", "Dark DME 50"}},
      {NewRecipeDialog::NO_MASH, 20.0, {"Very Light DME 95", "Black Patent Malt 5"}},
  };
  Bench b;
  for (const Case& c : cases) {
    NewRecipeDialog d(*b.wb);
    d.setChoice(c.choice);
    d.srmLow = c.srmLow;
    EXPECT_EQ(bill(d), c.rows) << c.choice << " at " << c.srmLow;
  }
}

TEST(NewRecipeFromStyle, OkStartsTheRecipeAndSeedsTheFormulator) {
  CalcBench cb;
  BeerStyleRecord& s = cb.wb.styles.BeerStyles[0];
  s.styleName = "Dry Stout";
  s.ogLow = 1.036, s.ogHigh = 1.050, s.srmLow = 25, s.srmHigh = 40;
  cb.wb.styles.BeerStyleCount = 1;
  cb.editor.initRecipeForm();
  MaltFormulator f(cb.editor);
  NewRecipeDialog d(cb.wb);
  d.setStyle(0);
  d.setChoice(NewRecipeDialog::NO_MASH);
  EXPECT_EQ(d.efficiencyText(), "N/A");
  ASSERT_EQ(d.cmdOK(cb.editor, f), 1);
  EXPECT_EQ(cb.editor.txtTitle + "|" + cb.editor.cboBeerStyleText + "|" + cb.editor.lblMashEff,
            "New Dry Stout Recipe|Dry Stout|N/A");
  // The middle of the style's ranges as targets.
  EXPECT_EQ(f.txtTargetOG + " " + f.txtTargetColor, "1.043 32.5");
  ASSERT_EQ(f.lvMalts.size(), 2u);
  const FormulatorMalt& black = f.lvMalts[1];
  EXPECT_EQ(black.name + " " + black.targetPct + " " + black.quantity + " " + black.cost + " " + black.color + " " +
                black.extraction,
            "Black Patent Malt 5.0 0.0 $0.00 500.0 1.024");
  EXPECT_EQ(f.lblTotal, "(100%)");
  // The preset is replaced by what the inventory finds in the colour range.
  NewRecipeDialog withStock(cb.wb);
  withStock.setStyle(0);
  withStock.setChoice(NewRecipeDialog::NO_MASH);
  withStock.cmdOK(cb.editor, f, [](double from, double, bool, const std::string&) -> std::optional<InventoryMalt> {
    if (from >= 300) return InventoryMalt{"Black Malt", 2.5, 450, 1.025};
    return std::nullopt;
  });
  EXPECT_EQ(f.lvMalts[1].name + " " + f.lvMalts[1].cost, "Black Malt $2.50");
}

TEST(MaltFormulator, AnInventoryMaltJoinsTheListWithItsOwnValues) {
  CalcBench cb;
  cb.open({CalcBench::pale()});
  MaltFormulator f(cb.editor);
  f.load();
  InventoryItem item;
  item.name = "Maris Otter", item.units = UNIT_KG, item.cost = 2.2, item.color = 3.5, item.extract = 1.038, item.mash = 1;
  EXPECT_FALSE(f.addInventoryMalt(INV_HOPS, item));
  ASSERT_TRUE(f.addInventoryMalt(INV_MALT, item));
  const FormulatorMalt& m = f.lvMalts.back();
  EXPECT_EQ(m.name + "|" + m.quantity + "|" + m.cost + "|" + m.color + "|" + m.extraction + "|" + m.targetPct,
            "Maris Otter|0.0|$2.20|3.5|1.038|0.0");
  EXPECT_EQ(m.unit, UNIT_KG);
  EXPECT_TRUE(m.mash);
  EXPECT_TRUE(f.changed);
  EXPECT_EQ(f.lvMalts.size(), 2u);
}

TEST(NewRecipeFromStyle, AChangedRecipeIsOfferedForSavingFirst) {
  CalcBench cb;
  cb.open({CalcBench::pale()});
  cb.wb.styles.BeerStyles[0].styleName = "Mild";
  cb.wb.styles.BeerStyleCount = 1;
  cb.editor.recChanged();
  MaltFormulator f(cb.editor);
  f.load();
  NewRecipeDialog d(cb.wb);
  d.setStyle(0);
  const RecipeOpenHooks hooks = cb.editor.openHooks();
  cb.b.prompter.answers = {Answer::Cancel};
  EXPECT_EQ(d.cmdOK(cb.editor, f, noInventory, &hooks), 0);
  EXPECT_EQ(shownLines(cb.b.prompter), std::vector<std::string>{"Save Recipe: Recipe has Changed, Save Changes?"});
  EXPECT_EQ(f.lvMalts.size(), 1u);  // nothing replaced
  cb.b.prompter.answers = {Answer::No};
  EXPECT_GT(d.cmdOK(cb.editor, f, noInventory, &hooks), 0);
  EXPECT_EQ(cb.editor.txtTitle, "New Mild Recipe");
  EXPECT_EQ(f.lvMalts.size(), 2u);
}

TEST(NewRecipeFromStyle, TheInventoryLookUpTakesTheFirstMaltInRangeWithTheMashFlag) {
  Inventory inv;
  auto add = [&](const std::string& name, double color, int mash, double cost) {
    InventoryItem item;
    item.name = name, item.color = color, item.mash = mash, item.cost = cost, item.extract = 1.036;
    inv.list(INV_MALT).rows.push_back({"new", inventoryRowCells(INV_MALT, item, "")});
  };
  add("Light DME", 2.0, 0, 3.5);
  add("Two-Row", 1.8, 1, 1.1);
  add("Maris Otter", 3.0, 1, 1.4);
  const FindInvItem find = inventoryMaltFinder(inv);
  auto name = [&](double from, double to, bool mash) {
    const auto m = find(from, to, mash, "");
    return m ? m->name + " " + formatNumber(m->cost, "Currency") : std::string("none");
  };
  EXPECT_EQ(name(1.0, 3.0, true), "Two-Row $1.10");    // list order, the mash flag respected
  EXPECT_EQ(name(2.5, 3.0, true), "Maris Otter $1.40");  // the upper end included
  EXPECT_EQ(name(1.0, 1.5, false), "none");
}
