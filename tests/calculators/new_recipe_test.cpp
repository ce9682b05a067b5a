#include <gtest/gtest.h>

#include "calculators/CalcBench.h"
#include "calculators/MaltFormulator.h"
#include "recipes/NewRecipe.h"

using namespace zy;
using namespace zy::test;

namespace {
// The bill as "name percent" texts.
std::vector<std::string> bill(const NewRecipeDialog& d) {
  std::vector<std::string> rows;
  for (const auto& [index, pct] : d.grainBill())
    rows.push_back(std::string(presetMalts()[static_cast<size_t>(index)].name) + " " + std::to_string(static_cast<int>(pct)));
  return rows;
}
}  // namespace

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
  EXPECT_EQ(d.cmdOK(cb.editor, f), 1);
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
