#include "recipes/NewRecipe.h"

#include "calculators/MaltFormulator.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "inventory/InventoryStore.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
enum Preset { VERY_LIGHT_DME, AMBER_DME, DARK_DME, PALE, MUNICH, CRYSTAL_20, CRYSTAL_60, BLACK_PATENT };
}  // namespace

const std::vector<PresetMalt>& presetMalts() {
  static const std::vector<PresetMalt> t = {
      {"Very Light DME", 1.0, 1.5, false, "1.5", "1.035"},
      {"Amber DME", 8.0, 13.0, false, "12.0", "1.030"},
      {"Dark DME", 100.0, 140.0, false, "120.0", "1.030"},
      {"Pale Malt", 1.0, 3.0, true, "2.0", "1.033"},
      {"Munich Malt", 8.0, 15.0, true, "13.0", "1.033"},
      {"American Crystal Malt  20L", 15.0, 30.0, true, "20.0", "1.033"},
      {"American Crystal Malt  60L", 40.0, 80.0, true, "60.0", "1.033"},
      {"Black Patent Malt", 300.0, 550.0, true, "500.0", "1.024"},
  };
  return t;
}

std::optional<InventoryMalt> noInventory(double, double, bool, const std::string&) { return std::nullopt; }

const std::vector<std::string>& NewRecipeDialog::choices() {
  static const std::vector<std::string> c = {"All Mash (All Grain Recipe)",
                                             "Partial Mash (Mostly Extracts, Less than 2 lbs of Grains)",
                                             "No Mash (All Extract Recipe)"};
  return c;
}

int NewRecipeDialog::mashTypeOf(int c) { return c == NO_MASH ? 0 : c == PARTIAL_MASH ? 1 : 3; }

void NewRecipeDialog::setStyle(int row) {
  if (row < 0 || row >= kStyleTableRows) return;
  const BeerStyleRecord& s = wb_.styles.BeerStyles[static_cast<size_t>(row)];
  styleRow = row;
  lblStyle = trim(s.styleName);
  ogLow = s.ogLow, ogHigh = s.ogHigh, srmLow = s.srmLow, srmHigh = s.srmHigh;
}

void NewRecipeDialog::setChoice(int c) { choice = c == PARTIAL_MASH || c == NO_MASH ? c : ALL_MASH; }

std::string NewRecipeDialog::efficiencyText() const {
  return choice == NO_MASH ? std::string("N/A") : formatNumber(wb_.defaults.mashEff, "0");
}

std::vector<std::pair<int, double>> NewRecipeDialog::grainBill() const {
  // One test on the colour picks the set; 20 divides light from dark in every kind of mash.
  const double c = styleColor();
  const int band = c < 6.0 ? 0 : c < 20.0 ? 1 : 2;
  switch (choice) {
    case NO_MASH:
      if (band == 0) return {{VERY_LIGHT_DME, 50}, {AMBER_DME, 50}};
      if (band == 1) return {{VERY_LIGHT_DME, 50}, {DARK_DME, 50}};
      return {{VERY_LIGHT_DME, 95}, {BLACK_PATENT, 5}};
    case PARTIAL_MASH:
      // These add up to less than 100; the formulator's percent check tells the brewer so.
      if (band == 0) return {{VERY_LIGHT_DME, 60}, {AMBER_DME, 25}, {PALE, 5}};
      if (band == 1) return {{VERY_LIGHT_DME, 60}, {PALE, 5}, {DARK_DME, 25}, {MUNICH, 5}};
      return {{VERY_LIGHT_DME, 80}, {PALE, 2}, {CRYSTAL_60, 8}, {BLACK_PATENT, 2}};
    default:
      if (band == 0) return {{PALE, 70}, {CRYSTAL_20, 30}};
      if (band == 1) return {{PALE, 70}, {CRYSTAL_60, 30}};
      return {{PALE, 95}, {BLACK_PATENT, 5}};
  }
}

FindInvItem inventoryMaltFinder(const Inventory& inventory) {
  return [&inventory](double from, double to, bool mash, const std::string&) -> std::optional<InventoryMalt> {
    const InventoryList& malts = inventory.list(INV_MALT);
    for (const InventoryRow& row : malts.rows) {
      const InventoryItem item = inventoryItemFromRow(INV_MALT, row);
      if (item.color >= from && item.color <= to && (item.mash != 0) == mash)
        return InventoryMalt{trim(item.name), item.cost, item.color, item.extract};
    }
    return std::nullopt;
  };
}

long NewRecipeDialog::cmdOK(RecipeEditor& editor, MaltFormulator& formulator, const FindInvItem& findInvItem,
                            const RecipeOpenHooks* hooks) {
  // 1. A new recipe, shown in the editor.
  const long slot = hooks ? wb_.recipeList.newRecipe(wb_, *hooks) : wb_.recipeList.mnuFileNew_Click(wb_);
  if (slot < 1) return 0;
  RecipeRecord& rec = wb_.recipe.rec;
  // 3. Mash type and efficiency (before the editor shows the record).
  rec.mashType = mashTypeOf(choice);
  rec.mashEfficiency = wb_.defaults.mashEff;
  editor.populateRecipeForm();
  // 2. The title and the style.
  editor.setTitle("New " + lblStyle + " Recipe");
  editor.setStyleText(lblStyle);
  editor.mashDataChanged();
  // 4. The bill, each row from the inventory or the preset.
  formulator.loadEmpty();
  const int maltUnit = wb_.defaults.maltUnits;
  for (const auto& [index, percent] : grainBill()) {
    const PresetMalt& p = presetMalts()[static_cast<size_t>(index)];
    if (auto inv = findInvItem(p.colorFrom, p.colorTo, p.mash, p.name))
      formulator.addMalt(inv->name, 0.0, maltUnit, inv->cost, inv->color, inv->extraction, p.mash, percent);
    else
      formulator.addMalt(p.name, 0.0, maltUnit, 0.0, lenientValue(p.color), lenientValue(p.extraction), p.mash, percent);
  }
  // 5. The formulator aims at the middle of the style.
  formulator.txtTargetOG = formatNumber((ogLow + ogHigh) / 2.0, "0.000");
  formulator.txtTargetColor = formatNumber((srmLow + srmHigh) / 2.0, "0.0");
  // A bill without a mash may still hold a grain for colour; it is counted at the default
  // efficiency, as the dialog's box shows for the other choices.
  formulator.txtMashEff = formatNumber(wb_.defaults.mashEff, "0");
  return slot;
}

}  // namespace zy
