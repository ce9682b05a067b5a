#include <gtest/gtest.h>

#include <limits>
#include <filesystem>
#include <map>

#include "core/measures.h"
#include "core/paths.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

namespace {
struct EditorBench {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor e{wb};

  EditorBench() {
    BeerStyleRecord& st = wb.styles.BeerStyles[0];
    st.styleName = "American Amber Ale", st.ogLow = 1.043, st.ogHigh = 1.056, st.fgLow = 1.008, st.fgHigh = 1.016;
    st.ibuLow = 20, st.ibuHigh = 40, st.srmLow = 10, st.srmHigh = 17, st.alcoholLow = 4.5, st.alcoholHigh = 5.7;
    wb.styles.BeerStyleCount = 1;
    newRecipeRecord(wb);
    e.initRecipeForm();
  }

  // Writes recipe `no`, the amber of storeAmber, with the extra fields given.
  void store(int no, const std::string& name, std::function<void(CurrentRecipe&)> extra = {}) {
    ASSERT_TRUE(storeAmber(wb, no, name, "American Amber Ale", extra));
  }

  // Recipe 1, the amber, stored and opened.
  void openAmber() {
    store(1, "Amber");
    ASSERT_TRUE(e.openRecipe(1));
  }

  std::string data(const char* name) const { return readFile(wb.folder.dataFile(name)); }
  const ShownMessage* lastMessage() const { return b.prompter.shown.empty() ? nullptr : &b.prompter.shown.back(); }
  std::vector<std::string> msgs() const { return shownLines(b.prompter); }
};
}  // namespace

TEST(RecipeEditor, PopulateShowsTheRecipeAndComputesIt) {
  EditorBench t;
  t.openAmber();
  RecipeEditor& e = t.e;
  const IngredientTable& g = e.sheet.grid;
  EXPECT_EQ(std::vector<std::string>({e.txtTitle, e.cboBeerStyleText, t.wb.recipeList.currentRecipeKey,
                                      e.sheet.txtFermentVolume, e.sheet.txtInitalBoilVolume, e.lblVolumeUnits,
                                      e.lblUnitType, e.lblMashType, e.txtBoilTime}),
            std::vector<std::string>({"Amber", "American Amber Ale", "R1", "5.0", "5.0", "US Gallons",
                                      "US Measures", "Infusion", "60"}));
  EXPECT_TRUE(t.wb.styles.CurrentStyleIndex == 0 && e.mashInfoEnabled);
  // Section heads, then each row as shown: malt, hops, other, yeast.
  ASSERT_EQ(g.rowCount(), 11);
  const std::map<int, std::vector<std::string>> rows = {
      {0, {"-", "Malts"}},
      {1, {"", "Pale Malt", "8.0", "Lbs", "$1.10", "1.036", "3.0", "Yes"}},
      {2, {"", "Crystal 60", "1.0", "Lbs", "$1.60", "1.034", "60.0", "No"}},
      {3, {"Hops"}},
      {5, {"", "Centennial", "0.5", "Oz", "$1.50", "10.0", "15", ""}},
      {6, {"Other Ingredients"}},
      {7, {"", "Irish Moss", "1.0", "Tsp", "$0.35", "", "", ""}},
      {8, {"Yeast"}},
      {9, {"", "American Ale", "1.0", "Packet", "$4.99", "75", "", ""}}};
  for (const auto& [r, cells] : rows)
    for (size_t c = 0; c < cells.size(); ++c) EXPECT_EQ(g.cell(r, static_cast<int>(c)), cells[c]) << r << "," << c;
  EXPECT_EQ(g.unitCode(7), 5);

  // 8 lbs mashed at 80 percent and 1 lb of crystal in 5 gallons: OG 0.05288, alcohol 5.25495,
  // colour (3 * 8 * 0.8 + 60) / 5, IBU 24.37 + 5.91 with the divisor 1.0144.
  EXPECT_EQ(std::vector<std::string>({e.sheet.lblOG, e.sheet.lblFG, e.sheet.lblAlcohol, e.sheet.lblColor,
                                      e.sheet.lblIBU, g.cell(g.totalRow(), COL_COST)}),
            std::vector<std::string>({"1.053", "1.013", "5.3", "15.8", "30", "$17.74"}));
  for (const TargetLabel& l : e.sheet.targets) EXPECT_EQ(l.text + targetColourWord(l.colour), "OKgreen");
  EXPECT_EQ(e.comments.comment + " " + e.comments.dateCreated, "A fine amber. Nov-22-2026");

  // A stored 75 opened as the default 80, and the recipe still counts as unchanged.
  EXPECT_TRUE(e.lblMashEff == "80" && t.wb.recipe.rec.mashEfficiency == 80);
  EXPECT_FALSE(e.recipeChanged() || !t.b.prompter.shown.empty());
  EXPECT_EQ(e.saveButtonImage() + "/" + e.saveButtonTip(), "Save/Save Recipe");
}

TEST(RecipeEditor, EfficiencyReplacementTakesTheValueForAFraction) {
  EditorBench t;
  t.store(1, "Fraction", [](CurrentRecipe& c) { c.rec.mashEfficiency = 0.8; });
  t.store(2, "No Mash", [](CurrentRecipe& c) { c.rec.mashType = 0, c.rec.mashEfficiency = 72; });
  ASSERT_TRUE(t.e.openRecipe(1));
  EXPECT_EQ(t.e.lblMashEff + " " + t.e.sheet.lblOG, "1 1.007");  // 0.8 passes the check and stays
  ASSERT_TRUE(t.e.openRecipe(2));
  EXPECT_TRUE(t.e.lblMashEff == "N/A" && !t.e.mashInfoEnabled);
  // No mash: the efficiency is left alone, and still used: (3 * 8 * 0.72 + 60) / 5 = 15.456.
  EXPECT_TRUE(t.wb.recipe.rec.mashEfficiency == 72 && t.e.sheet.lblColor == "15.5") << t.e.sheet.lblColor;

  // The limits themselves are kept; just beyond them, and a field that holds no number, the
  // default comes in. None of it counts as a change.
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const std::vector<std::pair<double, double>> opened = {
      {0.5, 0.5}, {0.95, 0.95}, {0.49, 80}, {0.96, 80}, {95, 80}, {0, 80}, {-5, 80}, {nan, 80}};
  for (const auto& [stored, shown] : opened) {
    t.store(3, "Limits", [stored](CurrentRecipe& c) { c.rec.mashEfficiency = stored; });
    ASSERT_TRUE(t.e.openRecipe(3)) << stored;
    EXPECT_TRUE(t.wb.recipe.rec.mashEfficiency == shown && !t.e.recipeChanged()) << stored;
  }
}

TEST(RecipeEditor, SaveWritesTheTableBackUnchangedAndTheComputedValuesAsShown) {
  EditorBench t;
  t.store(1, "Amber");
  const std::string items = t.data(kRecipeItemsFile), comments = t.data(kCommentFile);
  ASSERT_TRUE(t.e.openRecipe(1));
  t.e.recChanged();
  ASSERT_TRUE(t.e.mnuFileSave_Click());
  EXPECT_FALSE(t.e.recipeChanged());
  EXPECT_EQ(t.data(kRecipeItemsFile) + t.data(kCommentFile), items + comments);  // every item record byte for byte
  ASSERT_TRUE(loadRecipe(t.wb, 1));
  const RecipeRecord& r = t.wb.recipe.rec;
  EXPECT_EQ(trim(r.recipeName) + "|" + trim(r.beerStyle), "Amber|American Amber Ale");
  // The results as shown (colour 15.8, not 15.84), and the replaced efficiency.
  EXPECT_EQ(std::vector<double>({r.color, static_cast<double>(r.bitterness), r.originalGravity, r.finalGravity,
                                 r.alcohol, r.mashEfficiency, r.agingTemp}),
            std::vector<double>({15.8, 30, 1.053, 1.013, 5.3, 80, -9999.0}));
  EXPECT_EQ(std::vector<int>({r.itemCount, r.agingCount, r.agingUnits, t.wb.recipe.items[0].mashFlag}),
            std::vector<int>({6, 0, -1, -1}));
  EXPECT_TRUE(t.b.prompter.shown.empty());  // the recipe has yeast: no notice
}

TEST(RecipeEditor, NotApplicableValuesSaveAsZeroAndNoYeastGetsTheNotice) {
  EditorBench t;
  t.store(1, "Empty", [](CurrentRecipe& c) { c.rec.itemCount = 0; });
  ASSERT_TRUE(t.e.openRecipe(1));
  const IngredientTable& g = t.e.sheet.grid;
  EXPECT_EQ(g.rowCount(), 5);  // headers and the total row only
  for (const std::string* f : {&t.e.sheet.lblColor, &t.e.sheet.lblOG, &t.e.sheet.lblFG, &t.e.sheet.lblAlcohol,
                               &t.e.sheet.lblIBU})
    EXPECT_EQ(*f, "N/A");
  ASSERT_TRUE(t.e.mnuFileSave_Click());
  EXPECT_EQ(t.msgs(), std::vector<std::string>{"Zythara 2 Information: NOTICE: There is no Yeast included in this recipe!"});
  EXPECT_EQ(t.lastMessage()->icon, Icon::Information);
  ASSERT_TRUE(loadRecipe(t.wb, 1));
  const RecipeRecord& r = t.wb.recipe.rec;
  EXPECT_EQ(std::vector<double>({static_cast<double>(r.itemCount), r.originalGravity, r.color,
                                 static_cast<double>(r.bitterness)}),
            std::vector<double>({0, 0, 0, 0}));
}

TEST(RecipeEditor, TwentySixthIngredientEndsTheProgramWithoutTouchingTheFiles) {
  EditorBench t;
  t.store(1, "Amber");
  const std::string files = t.data(kRecipeFile) + t.data(kRecipeItemsFile) + t.data(kCommentFile);
  ASSERT_TRUE(t.e.openRecipe(1));
  for (int k = 0; k < 19; ++k) t.e.cmdAddNew_Click(KIND_MALT);
  EXPECT_EQ(t.e.sheet.grid.itemCount(), 25);
  t.e.cmdAddNew_Click(KIND_HOPS);  // the table takes a 26th
  EXPECT_EQ(t.e.sheet.grid.itemCount(), 26);
  try {
    t.e.mnuFileSave_Click();
    FAIL() << "the save went on";
  } catch (const Terminated& x) {
    EXPECT_EQ(x.errorNumber, ERR_SUBSCRIPT);
  }
  EXPECT_EQ(t.data(kRecipeFile) + t.data(kRecipeItemsFile) + t.data(kCommentFile), files);
  EXPECT_TRUE(t.e.recipeChanged());
  EXPECT_EQ(t.msgs(), std::vector<std::string>{
                         "Terminate Program: Error #9(Subscript out of range) in frmRecipe!mnuFileSave_Click at Line 0"});
  const std::vector<std::string> log = readLines(t.wb.folder.file(kErrorLog));
  EXPECT_EQ(std::vector<std::string>(log.end() - 2, log.end()),
            (std::vector<std::string>{"In Function frmRecipe!mnuFileSave_Click", "Terminating"}));
}

TEST(RecipeEditor, FermentationFieldsTravelWithTheRecipe) {
  EditorBench t;
  t.store(1, "Lager", [](CurrentRecipe& c) {
    RecipeRecord& r = c.rec;
    r.unitType = METRIC_MEASURES, r.fermentTime = {14, 4, 0}, r.fermentTimeUnits = {0, 1, 0};
    r.fermentTemp = {10, 2, 0}, r.fermentVessel = {1, 2, 0}, r.primingComment = "Force carbonate";
    r.container = 7, r.carbonation = 9;  // any other value is Other, and None
    r.agingCount = r.agingUnits = 0, r.agingTemp = 0;
  });
  ASSERT_TRUE(t.e.openRecipe(1));
  FermentationForm& f = t.e.fermentation;
  EXPECT_EQ(std::vector<std::string>({f.txtValue[0], f.txtTemp[1], f.txtConditioning, f.lblTempUnits}),
            std::vector<std::string>({"14.0", "2.0", "Force carbonate", "\xB0" "C"}));
  EXPECT_EQ(std::vector<int>({f.cboValueUnits[1], f.cboVessel[1], f.optBottling, f.optCarbonation, f.chkAge}),
            std::vector<int>({1, 2, 3, 3, 0}));  // agingCount 0: no aging
  EXPECT_FALSE(t.e.recipeChanged());

  // Every change marks the recipe; a blank temperature saves as -9999.
  f.setAge(true);
  EXPECT_TRUE(t.e.recipeChanged());
  f.setAgeValue("6");
  f.setAgeUnits(1);
  f.setBottling(1);
  f.setCarbonation(2);
  f.setStageValue(2, "2");
  f.setStageUnits(2, 2);
  ASSERT_TRUE(t.e.mnuFileSave_Click() && loadRecipe(t.wb, 1));
  RecipeRecord r = t.wb.recipe.rec;
  EXPECT_EQ(std::vector<double>({static_cast<double>(r.agingCount), static_cast<double>(r.agingUnits), r.agingTemp,
                                 static_cast<double>(r.container), static_cast<double>(r.carbonation),
                                 r.fermentTime[2], static_cast<double>(r.fermentTimeUnits[2]), r.fermentTemp[0]}),
            std::vector<double>({6, 1, -9999.0, 1, 2, 2, 2, 10}));

  // A clear box saves no aging, whatever the boxes hold.
  ASSERT_TRUE(t.e.openRecipe(1));
  EXPECT_EQ(std::string(f.chkAge ? "on" : "off") + " " + f.txtAgeValue + " [" + f.txtAgeTemp + "]", "on 6 []");
  f.setAgeTemp("4");
  f.setAge(false);
  ASSERT_TRUE(t.e.mnuFileSave_Click() && loadRecipe(t.wb, 1));
  r = t.wb.recipe.rec;
  EXPECT_EQ(std::vector<double>({static_cast<double>(r.agingCount), static_cast<double>(r.agingUnits), r.agingTemp}),
            std::vector<double>({0, -1, -9999.0}));
}

TEST(RecipeEditor, UnitChangeConvertsMaltAndHopsOnly) {
  EditorBench t;
  t.openAmber();
  RecipeEditor& e = t.e;
  IngredientTable& g = e.sheet.grid;
  e.selectRow(2);  // Crystal 60, 1 lb at $1.60
  e.setQuantity("2");
  const std::string og = e.sheet.lblOG, ibu = e.sheet.lblIBU;
  // Row, quantity typed first (empty: none), new unit; then quantity, cost and unit shown.
  // Quantities over a half go to a multiple of 0.05; a unit the row has already changes nothing;
  // an other ingredient changes its unit only.
  struct Change {
    int row;
    const char* qty;
    int unit;
    const char *shownQty, *cost, *unitText;
  } changes[] = {{2, "", UNIT_OZ, "32.0", "$0.10", "Oz"},      {2, "", UNIT_KG, "0.9", "$3.53", "Kg"},
                 {4, "", UNIT_GR, "28.35", "$0.04", "Gr"},     {7, "", 3, "1.0", "$0.35", "Gr"},
                 {2, "0.73", UNIT_KG, "0.73", "$3.53", "Kg"}, {2, "", UNIT_LBS, "1.6", "$1.60", "Lbs"}};
  for (const Change& c : changes) {
    e.selectRow(c.row);
    if (*c.qty) e.setQuantity(c.qty);
    e.setUnits(c.unit);
    EXPECT_EQ(g.cell(c.row, COL_QTY) + " " + g.cell(c.row, COL_COST) + " " + g.cell(c.row, COL_UNITS),
              std::string(c.shownQty) + " " + c.cost + " " + c.unitText)
        << c.row << "," << c.unit;
    if (&c - changes < 4) {  // the same weight in another unit: the results stand
      EXPECT_EQ(e.sheet.lblOG + " " + e.sheet.lblIBU, og + " " + ibu) << c.row << "," << c.unit;
    }
  }
  EXPECT_EQ(g.unitCode(4), UNIT_GR);
  EXPECT_TRUE(e.recipeChanged());
}

TEST(RecipeEditor, QuantityStepsToTheNextAndPreviousFraction) {
  // On a step a whole step is taken; below zero stands.
  struct { double from; QtyStep step; bool up; double to; } steps[] = {
      {1.3, QtyStep::Half, true, 1.5},     {1.3, QtyStep::Half, false, 1.0},   {1.5, QtyStep::Half, true, 2.0},
      {1.5, QtyStep::Half, false, 1.0},    {1.3, QtyStep::Whole, true, 2.0},   {1.3, QtyStep::Quarter, false, 1.25},
      {1.25, QtyStep::Tenth, true, 1.3},   {0, QtyStep::Quarter, false, -0.25}};
  for (const auto& s : steps)
    EXPECT_DOUBLE_EQ(s.up ? nextQuantityStep(s.from, s.step) : previousQuantityStep(s.from, s.step), s.to) << s.from;

  EditorBench t;
  t.openAmber();
  t.e.selectRow(4);  // Cascade, 1 oz
  t.e.setQuantity("1.3");
  t.e.stepQuantity(QtyStep::Half, true);
  EXPECT_EQ(t.e.sheet.grid.cell(4, COL_QTY) + "/" + t.e.strip.txtQty, "1.5/1.5");
  t.e.stepQuantity(QtyStep::Tenth, false);
  EXPECT_EQ(t.e.sheet.grid.cell(4, COL_QTY), "1.4");
  const std::string ibu = t.e.sheet.lblIBU;
  t.e.stepQuantity(QtyStep::Whole, true);
  EXPECT_EQ(t.e.sheet.grid.cell(4, COL_QTY), "2.0");
  EXPECT_NE(t.e.sheet.lblIBU, ibu);  // hops quantity: bitterness follows

  // Spinners step by the defaults and stop at zero.
  t.e.spin(StripField::Quantity, +1);
  EXPECT_EQ(t.e.strip.txtQty, "2.2");
  t.e.spin(StripField::Color, -1);  // boil time 60 - 5
  EXPECT_EQ(t.e.sheet.grid.cell(4, COL_DETAIL), "55");
  t.e.setQuantity("0.1");
  t.e.spin(StripField::Quantity, -1);
  EXPECT_EQ(t.e.strip.txtQty, "0.0");
}

TEST(RecipeEditor, SortsWorkSectionBySection) {
  EditorBench t;
  RecipeEditor& e = t.e;
  // Kind, name, quantity, unit and detail (colour or boil time); malts of 4 and over are mashed.
  const struct { int kind; const char* name; double qty; int unit; double detail; } added[] = {
      {KIND_MALT, "Chocolate", 1, 0, 350}, {KIND_MALT, "crystal", 1, 0, 60},     {KIND_MALT, "Pale", 8, 0, 3},
      {KIND_MALT, "Munich", 2, 0, 9},      {KIND_HOPS, "Saaz", 1, 1, 60},        {KIND_HOPS, "Cascade", 1, 1, 5},
      {KIND_HOPS, "Northern Brewer", 2, 1, 60}, {KIND_HOPS, "Amarillo", 2, 1, 60}, {KIND_HOPS, "Magnum", 0.5, 1, 90},
      {KIND_OTHER, "Whirlfloc", 1, 4, 0},  {KIND_OTHER, "Gypsum", 2, 5, 0},     {KIND_YEAST, "Zeta", 1, 0, 0},
      {KIND_YEAST, "Alpha", 3, 0, 0}};
  for (const auto& a : added)
    e.AddIngredient(a.kind, a.name, a.qty, a.unit, 0, a.kind == KIND_HOPS ? 5.5 : 1.03, a.detail,
                    a.kind == KIND_MALT && a.qty >= 2 ? -1 : 0);
  auto names = [&] {
    std::string s;
    for (const IngredientRow& r : e.sheet.grid.rows()) s += (r.isItem() ? r.cells[COL_NAME] : "|") + ",";
    return s;
  };
  e.sortByTimeQuantityAlpha();
  EXPECT_EQ(names(),
            "|,Pale,Munich,Chocolate,crystal,|,Magnum,Amarillo,Northern Brewer,Saaz,Cascade,|,Gypsum,Whirlfloc,|,"
            "Alpha,Zeta,|,");
  e.sortAlphabetically();  // byte order: lower case after upper case
  EXPECT_EQ(names(),
            "|,Chocolate,Munich,Pale,crystal,|,Amarillo,Cascade,Magnum,Northern Brewer,Saaz,|,Gypsum,Whirlfloc,|,"
            "Alpha,Zeta,|,");
  EXPECT_EQ(e.sheet.grid.cell(8, COL_DETAIL), "90");  // whole rows move
  EXPECT_TRUE(e.recipeChanged());
}

TEST(RecipeEditor, MovesStayWithinTheSection) {
  EditorBench t;
  RecipeEditor& e = t.e;
  e.AddIngredient(KIND_MALT, "Pale", 8, 0, 0, 1.036, 3, -1);
  e.AddIngredient(KIND_MALT, "Munich", 2, 0, 0, 1.035, 9, -1);
  e.AddIngredient(KIND_HOPS, "Saaz", 1, 1, 0, 3.5, 60, 0);
  e.AddIngredient(KIND_HOPS, "Cascade", 1, 1, 0, 5.5, 5, 0);
  auto rows = [&] {
    std::string v;
    for (int r = 1; r <= 5; ++r) v += e.sheet.grid.cell(r, COL_NAME) + e.sheet.grid.cell(r, COL_DETAIL) + ",";
    return v + "@" + itos(e.selectedRow);
  };
  // A head or the section's end is no neighbour: those moves change nothing.
  struct { int select; bool up; const char* after; } moves[] = {
      {2, false, "Pale3.0,Munich9.0,Boil Time,Saaz60,Cascade5,@2"},  {-1, true, "Munich9.0,Pale3.0,Boil Time,Saaz60,Cascade5,@1"},
      {-1, true, "Munich9.0,Pale3.0,Boil Time,Saaz60,Cascade5,@1"},  {4, true, "Munich9.0,Pale3.0,Boil Time,Saaz60,Cascade5,@4"},
      {-1, false, "Munich9.0,Pale3.0,Boil Time,Cascade5,Saaz60,@5"}, {-1, false, "Munich9.0,Pale3.0,Boil Time,Cascade5,Saaz60,@5"}};
  for (const auto& m : moves) {
    if (m.select >= 0) e.selectRow(m.select);
    m.up ? e.mnuSortUp_Click() : e.mnuSortDown_Click();
    EXPECT_EQ(rows(), m.after);
  }
}

TEST(RecipeEditor, DeleteAsksAndNewButtonsUseTheDefaults) {
  EditorBench t;
  t.openAmber();
  RecipeEditor& e = t.e;
  e.selectRow(2);
  t.b.prompter.answers = {Answer::No, Answer::Yes};
  e.cmdDeleteIngredient_Click();
  EXPECT_EQ(t.msgs(), std::vector<std::string>{"Delete Ingredient: Do you want to Delete \"Crystal 60\" from the Recipe?"});
  EXPECT_EQ(t.lastMessage()->buttons, Buttons::YesNo);
  EXPECT_FALSE(e.sheet.grid.itemCount() != 6 || e.recipeChanged());
  e.cmdDeleteIngredient_Click();
  EXPECT_EQ(e.sheet.grid.itemCount(), 5);
  // 3 * 8 * 0.8 / 5, and the cost without the crystal.
  EXPECT_EQ(e.sheet.lblColor + " " + e.sheet.grid.cell(e.sheet.grid.totalRow(), COL_COST), "3.8 $16.14");
  EXPECT_TRUE(!e.strip.visible && e.recipeChanged());
  EXPECT_EQ(e.saveButtonImage() + "/" + e.saveButtonTip(), "Save-Changed/Save Recipe - Changed");

  EditorBench n;
  RecipeEditor& f = n.e;
  const std::vector<std::vector<std::string>> expected = {
      {"", "Malt", "1.0", "Lbs", "$1.00", "1.032", "4.0", "No"},
      {"", "Hops", "1.0", "Oz", "$1.25", "5.5", "60", ""},
      {"", "Other", "1.0", "Tsp", "$2.00", "", "", ""},
      {"", "Yeast", "1.0", "Packet", "$1.50", "72", "", ""}};
  for (int kind = 0; kind < 4; ++kind) {
    f.cmdAddNew_Click(kind);
    ASSERT_TRUE(f.strip.visible);
    EXPECT_EQ(f.selectedKind, kind);
    const auto& cells = f.sheet.grid.rows()[static_cast<size_t>(f.selectedRow)].cells;
    EXPECT_EQ(std::vector<std::string>(cells.begin(), cells.end()), expected[static_cast<size_t>(kind)]) << kind;
  }
  EXPECT_TRUE(f.strip.lblExtraction == "Attenuation %:" && f.recipeChanged());
  // 1 lb of 1.032 in 5 gallons.
  EXPECT_EQ(f.sheet.grid.cell(f.sheet.grid.totalRow(), COL_COST) + " " + f.sheet.lblOG, "$5.75 1.006");
}

TEST(RecipeEditor, EditStripFollowsTheKindAndRecomputesByTheTable) {
  EditorBench t;
  t.openAmber();
  RecipeEditor& e = t.e;
  // Per selected row: the captions, which boxes show, and the length of the unit list.
  auto strip = [&](int row) {
    e.selectRow(row);
    const EditStrip& s = e.strip;
    return std::string(s.showExtraction ? "E" : "-") + (s.showColor ? "C" : "-") + (s.showMash ? "M" : "-") + "|" +
           itos(static_cast<long>(s.unitList.size())) + "|" + s.lblExtraction + "|" + s.lblColor;
  };
  EXPECT_EQ(strip(1), "ECM|4|Extraction Rating:|Color:");
  EXPECT_TRUE(e.strip.chkMash && e.strip.lblExtPct == "(77%)");
  EXPECT_FALSE(e.recipeChanged());  // filling the strip is no edit
  e.setExtraction("1.037");
  EXPECT_EQ(e.sheet.grid.cell(1, COL_RATING) + " " + e.strip.lblExtPct, "1.037 (79%)");
  e.setMash(false);
  EXPECT_EQ(e.sheet.grid.cell(1, COL_MASH), "No");
  EXPECT_EQ(e.sheet.lblOG, "1.066");  // 8 * 0.037 + 0.034 = 0.330 / 5
  EXPECT_EQ(strip(4), "EC-|4|Alpha %:|Boil Time:");
  EXPECT_EQ(strip(7).substr(0, 6), "---|14");
  e.selectRow(3);  // a header clears the strip
  EXPECT_FALSE(e.strip.visible || e.selectedRow != -1);

  // A cost edit reaches the total only.
  e.selectRow(9);
  const std::string og = e.sheet.lblOG;
  e.setCost("$5.99");
  EXPECT_EQ(e.sheet.grid.cell(9, COL_COST) + " " + e.sheet.lblOG, "$5.99 " + og);
}

TEST(RecipeEditor, VolumeChangeRefreshesBitternessOnly) {
  EditorBench t;
  t.openAmber();
  t.e.setFermentVolume("10");
  // OG and colour stay, computed for 5 gallons; the boil gravity is now 10/5 * 0.05288: divisor 1.2788.
  EXPECT_EQ(t.e.sheet.lblOG + " " + t.e.sheet.lblColor + " " + t.e.sheet.lblIBU, "1.053 15.8 12");
  EXPECT_TRUE(t.e.recipeChanged());
  t.e.mashDataChanged();                  // the next full recompute catches up
  EXPECT_EQ(t.e.sheet.lblOG, "1.026");
}

TEST(RecipeEditor, EachEditRecomputesWhatItAffects) {
  EditorBench t;
  t.openAmber();
  RecipeEditor& e = t.e;
  RecipeSheet& s = e.sheet;
  // Marks the three kinds of result, runs the edit and tells which were written again:
  // C colour and gravity, B bitterness, $ cost. Every edit marks the recipe changed.
  auto after = [&](int row, const std::function<void()>& edit) {
    if (row >= 0) e.selectRow(row);
    e.recReset();
    s.lblColor = s.lblOG = s.lblFG = s.lblAlcohol = s.lblIBU = "x";
    s.grid.setCell(s.grid.totalRow(), COL_COST, "x");
    edit();
    EXPECT_TRUE(e.recipeChanged()) << row;
    return std::string(s.lblOG != "x" && s.lblColor != "x" ? "C" : "-") + (s.lblIBU != "x" ? "B" : "-") +
           (s.grid.cell(s.grid.totalRow(), COL_COST) != "x" ? "$" : "-");
  };
  // Rows: 1 and 2 malts, 4 and 5 hops, 7 other, 9 yeast.
  EXPECT_EQ(after(1, [&] { e.setQuantity("9"); }), "CB$");  // gravity adjustment on
  t.wb.hops.GravityAdjustment = 0;
  EXPECT_EQ(after(1, [&] { e.setQuantity("8"); }), "C-$");
  t.wb.hops.GravityAdjustment = 1;
  EXPECT_EQ(after(1, [&] { e.setUnits(UNIT_KG); }), "C-$");
  EXPECT_EQ(after(1, [&] { e.setCost("2"); }), "--$");
  EXPECT_EQ(after(1, [&] { e.setExtraction("1.037"); }), "C--");
  EXPECT_EQ(after(1, [&] { e.setColor("4"); }), "C--");
  EXPECT_EQ(after(1, [&] { e.setMash(false); }), "C--");
  EXPECT_EQ(after(4, [&] { e.setQuantity("2"); }), "-B$");
  EXPECT_EQ(after(4, [&] { e.stepQuantity(QtyStep::Half, true); }), "-B$");
  EXPECT_EQ(after(4, [&] { e.setUnits(UNIT_GR); }), "-B$");
  EXPECT_EQ(after(4, [&] { e.setExtraction("6"); }), "-B-");
  EXPECT_EQ(after(4, [&] { e.setColor("45"); }), "-B-");
  EXPECT_EQ(after(7, [&] { e.setQuantity("2"); }), "--$");
  EXPECT_EQ(after(9, [&] { e.setQuantity("2"); }), "--$");
  EXPECT_EQ(after(9, [&] { e.setExtraction("70"); }), "C--");
  EXPECT_EQ(after(-1, [&] { e.setFermentVolume("6"); }), "-B-");
  EXPECT_EQ(after(-1, [&] { e.setBoilVolume("6"); }), "-B-");
  EXPECT_EQ(after(-1, [&] { e.mashDataChanged(); }), "CB$");
  EXPECT_EQ(after(-1, [&] { e.cmdAddNew_Click(KIND_OTHER); }), "CB$");
  EXPECT_EQ(after(2, [&] { e.cmdDeleteIngredient_Click(); }), "CB$");

  // The editor filling its own controls starts nothing.
  e.selectRow(4);
  e.recReset();
  s.lblIBU = "x";
  e.filling = true;
  e.setQuantity("3");
  e.setFermentVolume("9");
  e.filling = false;
  EXPECT_EQ(s.lblIBU, "x");
  EXPECT_FALSE(e.recipeChanged());
}

TEST(RecipeEditor, StylesKnownUnknownAndChosen) {
  EditorBench t;
  t.store(1, "Martian", [](CurrentRecipe& c) { c.rec.beerStyle = "Martian Red Ale"; });
  ASSERT_TRUE(t.e.openRecipe(1));
  EXPECT_EQ(t.msgs(), std::vector<std::string>{"Unknown Beer Style: Beer Style 'Martian Red Ale' is Not Recognized by Zythara"});
  // The list entry, the entry's text, the style in force and the OG flag.
  auto styleState = [&] {
    return std::to_string(t.e.cboBeerStyle) + " " + t.e.cboBeerStyleText + " " +
           std::to_string(t.wb.styles.CurrentStyleIndex) + " " + t.e.sheet.targets[TARGET_OG].text;
  };
  EXPECT_EQ(styleState(), "0 <Not A Recognized Beer Style> -1 N/A");
  EXPECT_FALSE(t.e.recipeChanged());
  // Saved unchanged, the unknown name stays in the record.
  ASSERT_TRUE(t.e.mnuFileSave_Click() && loadRecipe(t.wb, 1));
  EXPECT_EQ(trim(t.wb.recipe.rec.beerStyle), "Martian Red Ale");

  ASSERT_EQ(t.e.styleList.size(), 3u);
  t.e.chooseStyle(2);
  EXPECT_EQ(styleState(), "2 American Amber Ale 0 OK");
  EXPECT_TRUE(t.e.sheet.cmdDetailsEnabled);
  EXPECT_TRUE(t.e.recipeChanged());
  t.e.chooseStyle(1);
  EXPECT_EQ(styleState(), "1 <Not Specified> -1 N/A");
  ASSERT_TRUE(t.e.mnuFileSave_Click() && loadRecipe(t.wb, 1));
  EXPECT_EQ(trim(t.wb.recipe.rec.beerStyle), "");  // "<Not Specified>" saves blank

  // A style hidden by the filter stays the recipe's style.
  t.e.chooseStyle(2);
  t.wb.styles.StyleSourceShown = {false, false, false};
  t.e.cmdFilterClosed();
  EXPECT_EQ(t.e.styleList.size(), 2u);
  EXPECT_EQ(styleState(), "-1 American Amber Ale 0 OK");  // no entry chosen, the text kept

  // The match list reads the shown values.
  StyleMatchModel match = t.e.openStyleMatch();
  EXPECT_EQ(match.lines().at(1) + "|" + std::to_string(match.lines().size()) + "|" + std::to_string(match.selected),
            "American Amber Ale\tOK\tOK\tOK\tOK\tOK|2|0");
}

TEST(RecipeEditor, SaveKeepsTheTreeLeafAndSaveAsMakesACopy) {
  EditorBench t;
  t.store(1, "Amber");
  t.store(2, "Stout");
  RecipeList& list = t.wb.recipeList;
  ASSERT_TRUE(list.mnuSortBy_Click(t.wb, SORT_BY_NAME));
  auto leaf = [&](int no) {
    const RecipeNode* n = list.tree.find("R" + itos(no));
    return n ? n->text + "|" + n->tag : std::string("none");
  };
  auto stored = [&](int no) { return loadRecipe(t.wb, no) ? trim(t.wb.recipe.rec.recipeName) : std::string("none"); };
  ASSERT_TRUE(t.e.openRecipe(1));

  // A title taken by another recipe becomes unique at the save.
  t.e.setTitle("Stout");
  EXPECT_TRUE(t.e.titleChanged);
  ASSERT_TRUE(t.e.mnuFileSave_Click());
  EXPECT_EQ(t.e.txtTitle + " " + leaf(1), "Stout (Duplicate) Stout (Duplicate)|Stout (Duplicate)");
  EXPECT_EQ(stored(1), "Stout (Duplicate)");

  // Save As without the new title: a numbered copy in a new slot; with it, "Copy of" the name.
  ASSERT_TRUE(t.e.openRecipe(2));
  t.b.prompter.answers = {Answer::No};
  ASSERT_TRUE(t.e.mnuFileSaveAs_Click());
  EXPECT_EQ(t.msgs(), std::vector<std::string>{"Save Recipe As...: Change Recipe Title to: Copy of Stout?"});
  EXPECT_EQ(std::to_string(t.wb.recipe.rec.recipeNo) + " " + t.e.txtTitle, "3 Stout 1");
  EXPECT_EQ(leaf(3) + " " + leaf(2) + " " + list.currentRecipeKey, "Stout 1|Stout 1 Stout|Stout R3");
  t.b.prompter.answers = {Answer::Yes};
  ASSERT_TRUE(t.e.mnuFileSaveAs_Click());
  EXPECT_EQ(std::to_string(t.wb.recipe.rec.recipeNo) + " " + t.e.txtTitle, "4 Copy of Stout 1");
  EXPECT_EQ(leaf(4) + " " + list.tree.tag, "Copy of Stout 1|Copy of Stout 1 4");
  EXPECT_EQ(stored(4), "Copy of Stout 1");
  EXPECT_EQ(t.wb.recipe.rec.itemCount, 6);

  // A new recipe reaches the tree at its first save.
  ASSERT_EQ(list.mnuFileNew_Click(t.wb), 5);
  t.e.initRecipeForm();
  t.e.populateRecipeForm();
  ASSERT_TRUE(t.e.mnuFileSave_Click());
  EXPECT_EQ(leaf(5), "A Beer Recipe|A Beer Recipe");
}

TEST(RecipeEditor, ClosingAsksWhenChanged) {
  EditorBench t;
  t.store(1, "Amber");
  const std::string recipes = t.data(kRecipeFile);
  ASSERT_TRUE(t.e.openRecipe(1));
  EXPECT_TRUE(t.e.queryClose());  // unchanged: no question
  // Cancel keeps the window and the change; No closes and forgets; Yes saves.
  t.e.setTitle("Amber Ale");
  t.b.prompter.answers = {Answer::Cancel, Answer::No, Answer::Yes};
  EXPECT_FALSE(t.e.queryClose());
  EXPECT_EQ(t.msgs(), std::vector<std::string>{"Save Recipe: Recipe has Changed, Save Changes?"});
  EXPECT_EQ(t.lastMessage()->buttons, Buttons::YesNoCancel);
  EXPECT_TRUE(t.e.recipeChanged());
  EXPECT_TRUE(t.e.queryClose());
  EXPECT_FALSE(t.e.recipeChanged());
  EXPECT_EQ(t.data(kRecipeFile), recipes);
  t.e.setTitle("Amber Ale");
  EXPECT_TRUE(t.e.queryClose());
  ASSERT_TRUE(loadRecipe(t.wb, 1));
  EXPECT_EQ(trim(t.wb.recipe.rec.recipeName), "Amber Ale");
}

TEST(RecipeEditor, CommentTextTravelsThroughTextFilesAndTheFieldsMarkChanged) {
  EditorBench t;
  t.openAmber();
  using F = RecipeEditor::CommentField;
  const std::vector<std::pair<F, std::string>> typed = {{F::IdCode, "AMB-0001-XYZ"}, {F::LabelName, "Amber"}};
  for (const auto& [field, text] : typed) {
    t.e.recReset();
    t.e.setCommentField(field, text);
    EXPECT_TRUE(t.e.recipeChanged());
  }
  EXPECT_EQ(t.e.comments.idCode, "AMB-0001-X");  // ten characters, as the record holds them

  const std::string in = t.b.dir.file("notes.txt");
  test::writeFile(in, std::string("Mash at 152F.\nSparge slowly.\r\nBoil\r90 min\0.", 43));
  t.e.recReset();
  ASSERT_TRUE(t.e.importComment(in));
  EXPECT_EQ(t.e.comments.comment, "Mash at 152F.\r\nSparge slowly.\r\nBoil\r\n90 min.");
  EXPECT_TRUE(t.e.recipeChanged() && t.b.settings.read("Comments", "File Path", "") == t.b.dir.path());

  const std::string out = t.b.dir.path() + "/out/amber.txt";
  std::filesystem::create_directory(t.b.dir.path() + "/out");
  ASSERT_TRUE(t.e.exportComment(out));
  EXPECT_EQ(readFile(out) + "|" + t.b.settings.read("Comments", "File Path", ""), t.e.comments.comment + "|" + t.b.dir.path() + "/out");

  // A file that is not there, a folder that is not there: a message each, the comment kept.
  EXPECT_FALSE(t.e.importComment(t.b.dir.file("missing.txt")) || t.e.exportComment(t.b.dir.file("none/x.txt")));
  EXPECT_EQ(t.e.comments.comment, readFile(out));
  EXPECT_EQ(t.msgs(), (std::vector<std::string>{"Import Comments: Unable to Read " + t.b.dir.file("missing.txt"),
                                                "Error: Unable to Generate Output File"}));
}
