#include "inventory/StockCheck.h"

#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/IngredientTable.h"

namespace zy {

namespace {

double moneyText(const std::string& text) {
  std::string t = trim(text);
  if (!t.empty() && t[0] == '$') t.erase(0, 1);
  return lenientValue(replaceAll(t, ",", ""));
}

// The position of a unit name among the weights, -1 for any other unit.
int weightIndex(const std::string& unit) {
  const StringList& w = measures().weightUnits;
  for (size_t i = 0; i < w.size(); ++i)
    if (iequals(w[i], trim(unit))) return static_cast<int>(i);
  return -1;
}

}  // namespace

std::vector<StockCheckRow> checkStock(const IngredientTable& grid, const Inventory& inventory) {
  std::vector<StockCheckRow> out;
  const Measures& m = measures();
  for (int r = 0; r < grid.rowCount(); ++r) {
    if (!grid.isItemRow(r) || trim(grid.cell(r, COL_NAME)).empty()) continue;
    const int kind = grid.kindOfRow(r);
    if (kind < 0 || kind >= kInventoryCategories) continue;
    StockCheckRow row;
    row.category = kind;
    row.name = trim(grid.cell(r, COL_NAME));
    row.need = lenientValue(grid.cell(r, COL_QTY));
    row.units = grid.cell(r, COL_UNITS);
    row.unitCost = moneyText(grid.cell(r, COL_COST));

    const InventoryList& stock = inventory.list(kind);
    int found = -1;
    for (size_t i = 0; i < stock.size() && found < 0; ++i)
      if (iequals(trim(stock.cell(i, kColName)), row.name)) found = static_cast<int>(i);
    if (found < 0) {
      row.status = "Not in Stock";
      row.shortBy = row.need;
    } else {
      const size_t i = static_cast<size_t>(found);
      row.have = lenientValue(stock.cell(i, kColQty));
      const std::string stockUnit = stock.cell(i, kColUnits);
      const int from = weightIndex(row.units), to = weightIndex(stockUnit);
      if (iequals(trim(row.units), trim(stockUnit))) {
        row.units = stockUnit;
      } else if (from >= 0 && to >= 0) {
        row.need = roundHalfAway(row.need * m.weightConvert[from][to], 2);
        row.unitCost *= m.weightConvert[to][from];
        row.units = stockUnit;
      } else {
        row.status = "Units Differ";
      }
      const double cost = moneyText(stock.cell(i, kColCost));
      if (row.status.empty() && cost > 0) row.unitCost = cost;
      if (row.status.empty()) {
        row.shortBy = row.need > row.have ? roundHalfAway(row.need - row.have, 2) : 0;
        row.status = row.shortBy > 0 ? "Short" : "OK";
      } else {
        row.shortBy = row.need;
      }
    }
    row.haveText = formatNumber(row.have, "0.0#");
    row.needText = formatNumber(row.need, "0.0#");
    row.shortText = formatNumber(row.shortBy, "0.0#");
    out.push_back(std::move(row));
  }
  return out;
}

int addShortages(const std::vector<StockCheckRow>& rows, ShoppingList& list) {
  int added = 0;
  for (const StockCheckRow& r : rows) {
    if (r.shortBy <= 0) continue;
    list.addItem(r.category, r.name, r.shortBy, true, r.units, r.unitCost);
    ++added;
  }
  return added;
}

}  // namespace zy
