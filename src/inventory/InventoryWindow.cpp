#include "inventory/InventoryWindow.h"

#include <algorithm>

#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

InventoryWindowModel::InventoryWindowModel(Workbench& wb) : wb_(wb) {}

InventoryList& InventoryWindowModel::list() { return wb_.inventory.list(category); }

std::vector<size_t> InventoryWindowModel::visibleRows() const {
  const InventoryList& l = wb_.inventory.list(category);
  std::vector<size_t> rows;
  for (size_t i = 0; i < l.size(); ++i)
    if (!nonZeroOnly || lenientValue(l.cell(i, kColQty)) != 0) rows.push_back(i);
  const auto& cols = l.columns();
  const size_t c = static_cast<size_t>(std::clamp(sortColumn, 0, static_cast<int>(cols.size()) - 1));
  const bool numeric = cols[c].numeric;
  auto text = [&](size_t r) -> const std::string& {
    static const std::string none;
    return c < l.rows[r].cells.size() ? l.rows[r].cells[c] : none;
  };
  auto value = [&](size_t r) {
    std::string t = trim(text(r));
    if (!t.empty() && t[0] == '$') t = replaceAll(t.substr(1), ",", "");
    return lenientValue(t);
  };
  std::stable_sort(rows.begin(), rows.end(), [&](size_t a, size_t b) {
    bool less = numeric ? value(a) < value(b) : collationKey(text(a)) < collationKey(text(b));
    bool greater = numeric ? value(b) < value(a) : collationKey(text(b)) < collationKey(text(a));
    return sortDescending ? greater : less;
  });
  return rows;
}

void InventoryWindowModel::sortBy(int column) {
  if (column == sortColumn) {
    sortDescending = !sortDescending;
  } else {
    sortColumn = column;
    sortDescending = false;
  }
}

InventoryItemFields InventoryWindowModel::fieldsOf(size_t row) const {
  const InventoryList& l = wb_.inventory.list(category);
  InventoryItemFields f;
  f.name = l.cell(row, kColName);
  f.qty = trim(l.cell(row, kColQty));
  f.units = l.cell(row, kColUnits);
  f.cost = l.cell(row, kColCost);
  f.extract = l.cell(row, kColExtract);
  f.color = l.cell(row, kColColor);
  f.mash = l.cell(row, kColMash) == "Yes";
  f.alpha = l.cell(row, kColAlpha);
  f.atten = l.cell(row, kColAtten);
  f.type = l.cell(row, kColType);
  f.vintage = l.cell(row, kColVintage);
  f.reorderThresh = l.cell(row, kColReorderThresh);
  f.reorderQty = l.cell(row, kColReorderQty);
  f.comments = l.cell(row, kColComments);
  return f;
}

InventoryItemFields InventoryWindowModel::newItemFields() const {
  const Defaults& d = wb_.defaults;
  InventoryItemFields f;
  auto money = [](double v) { return formatNumber(v, "Currency"); };
  const StringList& units = inventoryUnits(category);
  switch (category) {
    case INV_MALT:
      f.name = d.maltName, f.qty = formatNumber(d.maltQty, "0.0#"), f.cost = money(d.maltCost);
      f.units = listText(units, d.maltUnits);
      f.extract = formatNumber(d.maltExtraction, "0.000"), f.color = formatNumber(d.maltColor, "0.0");
      f.mash = d.maltMash != 0;
      break;
    case INV_HOPS:
      f.name = d.hopsName, f.qty = formatNumber(d.hopsQty, "0.0#"), f.cost = money(d.hopsCost);
      f.units = listText(units, d.hopsUnits), f.alpha = formatNumber(d.hopsAlpha, "0.0");
      break;
    case INV_OTHER:
      f.name = d.otherName, f.qty = formatNumber(d.otherQty, "0.0#"), f.cost = money(d.otherCost);
      f.units = listText(units, d.otherUnits);
      break;
    case INV_YEAST:
      f.name = d.yeastName, f.qty = formatNumber(d.yeastQty, "0.0#"), f.cost = money(d.yeastCost);
      f.units = listText(units, d.yeastUnits), f.atten = formatNumber(d.yeastAttenuation * 100, "0.#");
      break;
    default:
      f.name = d.supplyName, f.qty = formatNumber(d.supplyQty, "0.0#"), f.cost = money(d.supplyCost);
      f.units = listText(units, d.supplyUnits);
      break;
  }
  if (f.units.empty()) f.units = units.front();
  return f;
}

long InventoryWindowModel::saveItem(long row, const InventoryItemFields& f) {
  InventoryList& l = list();
  if (trim(f.name).empty()) {
    wb_.prompter.message("Item name can not be blank", "Invalid Entry", Icon::Warning);
    return -1;
  }
  if (row < 0 || static_cast<size_t>(row) >= l.size()) row = static_cast<long>(l.addRow(""));
  const size_t r = static_cast<size_t>(row);
  auto money = [](const std::string& t) {
    std::string v = trim(t);
    if (!v.empty() && v[0] == '$') v.erase(0, 1);
    return lenientValue(replaceAll(v, ",", ""));
  };
  l.setCell(r, kColName, trim(f.name).substr(0, 50));
  l.setCell(r, kColQty, inventoryQtyText(lenientValue(f.qty)));
  const StringList& units = inventoryUnits(category);
  l.setCell(r, kColUnits, listText(units, findInList(units, static_cast<int>(units.size()) - 1, f.units, 0)));
  l.setCell(r, kColCost, formatNumber(money(f.cost), "Currency"));
  l.setCell(r, kColExtract, formatNumber(lenientValue(f.extract), "0.000"));
  l.setCell(r, kColColor, formatNumber(lenientValue(f.color), "0.0"));
  l.setCell(r, kColMash, f.mash ? "Yes" : "No");
  l.setCell(r, kColAlpha, formatNumber(lenientValue(f.alpha), "0.0"));
  l.setCell(r, kColAtten, formatNumber(lenientValue(f.atten), "0.#"));
  l.setCell(r, kColType, trim(f.type).substr(0, 10));
  l.setCell(r, kColVintage, trim(f.vintage).substr(0, 50));
  // A blank threshold is kept blank (saved as -1); otherwise both numbers as the list shows them.
  if (trim(f.reorderThresh).empty()) {
    l.setCell(r, kColReorderThresh, "");
    l.setCell(r, kColReorderQty, "");
  } else {
    l.setCell(r, kColReorderThresh, formatNumber(lenientValue(f.reorderThresh), "0.##"));
    l.setCell(r, kColReorderQty, formatNumber(lenientValue(f.reorderQty), "0.##"));
  }
  l.setCell(r, kColComments, f.comments);
  InventoryStore(wb_.folder, wb_.errors, wb_.inventory).saveInventory(category);
  return row;
}

bool InventoryWindowModel::deleteItem(size_t row) {
  InventoryList& l = list();
  if (row >= l.size()) return false;
  if (wb_.prompter.message("Do you want to Delete '" + l.cell(row, kColName) + "' from the Inventory?",
                           "Delete Inventory Item", Icon::Question, Buttons::YesNo, Answer::No) != Answer::Yes)
    return false;
  l.rows.erase(l.rows.begin() + static_cast<long>(row));
  InventoryStore(wb_.folder, wb_.errors, wb_.inventory).saveInventory(category);
  return true;
}

void InventoryWindowModel::setComment(size_t row, const std::string& text) {
  InventoryList& l = list();
  if (row >= l.size()) return;
  l.setCell(row, kColComments, text.substr(0, 32767));
  InventoryStore(wb_.folder, wb_.errors, wb_.inventory).saveInventory(category);
}

long InventoryWindowModel::findNext(const std::string& text, long after) const {
  const std::string needle = lower(trim(text));
  if (needle.empty()) return -1;
  const std::vector<size_t> rows = visibleRows();
  const InventoryList& l = wb_.inventory.list(category);
  size_t start = 0;
  for (size_t k = 0; k < rows.size(); ++k)
    if (static_cast<long>(rows[k]) == after) start = k + 1;
  for (size_t n = 0; n < rows.size(); ++n) {
    const size_t r = rows[(start + n) % rows.size()];
    if (lower(l.cell(r, kColName)).find(needle) != std::string::npos) return static_cast<long>(r);
  }
  return -1;
}

bool InventoryWindowModel::addToRecipe(size_t row, RecipeEditor& editor) const {
  const InventoryList& l = wb_.inventory.list(category);
  if (row >= l.size() || category == INV_SUPPLIES) return false;
  const Defaults& d = wb_.defaults;
  const StringList& units = inventoryUnits(category);
  const int unit = findInList(units, static_cast<int>(units.size()) - 1, l.cell(row, kColUnits), 0);
  std::string cost = trim(l.cell(row, kColCost));
  if (!cost.empty() && cost[0] == '$') cost = replaceAll(cost.substr(1), ",", "");
  auto num = [&](const char* key) { return lenientValue(l.cell(row, key)); };
  const std::string name = l.cell(row, kColName);
  int r;
  switch (category) {
    case INV_MALT:
      r = editor.AddIngredient(KIND_MALT, name, d.maltQty, unit, lenientValue(cost), num(kColExtract), num(kColColor),
                           l.cell(row, kColMash) == "Yes" ? -1 : 0);
      break;
    case INV_HOPS:
      r = editor.AddIngredient(KIND_HOPS, name, d.hopsQty, unit, lenientValue(cost), num(kColAlpha), d.hopsBoil, 0);
      break;
    case INV_OTHER: r = editor.AddIngredient(KIND_OTHER, name, d.otherQty, unit, lenientValue(cost), 0, 0, 0); break;
    default:
      r = editor.AddIngredient(KIND_YEAST, name, d.yeastQty, unit, lenientValue(cost), num(kColAtten) / 100.0, 0, 0);
      break;
  }
  // The new row is selected and the recipe's figures follow, as after any added row.
  editor.selectRow(r);
  editor.rescaled();
  return true;
}

void InventoryWindowModel::readSettings() {
  nonZeroOnly = readLong(wb_.settings, kSection, "Non Zero Only", 0) != 0;
}

void InventoryWindowModel::writeSettings() const {
  wb_.settings.write(kSection, "Non Zero Only", nonZeroOnly ? "1" : "0");
}

std::vector<int> InventoryWindowModel::columnWidths() const {
  std::vector<int> w;
  for (const std::string& part : split(wb_.settings.read(kSection, "ColWidth" + itos(category), ""), ','))
    w.push_back(static_cast<int>(lenientValue(part)));
  return w;
}

void InventoryWindowModel::setColumnWidths(const std::vector<int>& widths) const {
  std::string v;
  for (size_t i = 0; i < widths.size(); ++i) v += (i ? "," : "") + itos(widths[i]);
  wb_.settings.write(kSection, "ColWidth" + itos(category), v);
}

}  // namespace zy
