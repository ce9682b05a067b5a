#include "recipes/IngredientTable.h"

#include <utility>

namespace zy {

namespace {
IngredientRow makeRow(std::initializer_list<const char*> texts) {
  IngredientRow r;
  size_t c = 0;
  for (const char* t : texts) {
    if (c >= r.cells.size()) break;
    r.cells[c++] = t;
  }
  return r;
}
}  // namespace

const char* IngredientTable::sectionTitle(int kind) {
  switch (kind) {
    case 0: return "Malts";
    case 1: return "Hops";
    case 2: return "Other Ingredients";
    case 3: return "Yeast";
    default: return "";
  }
}

void IngredientTable::clear() {
  rows_.clear();
  // The top row names the columns of the malt section; its corner cell "-" marks it as a header.
  rows_.push_back(makeRow({"-", "Malts", "Quantity", "Units", "Cost/Unit", "Extraction", "Color", "Mash"}));
  rows_.push_back(makeRow({"Hops", "", "Quantity", "Units", "Cost/Unit", "Alpha %", "Boil Time"}));
  rows_.push_back(makeRow({"Other Ingredients", "", "Quantity", "Units", "Cost/Unit"}));
  rows_.push_back(makeRow({"Yeast", "", "Quantity", "Units", "Cost/Unit", "Attenuation"}));
  rows_.push_back(makeRow({kTotalCaption, "", "", "", "$0.00"}));
}

const std::string& IngredientTable::cell(int r, int c) const {
  static const std::string empty;
  if (!valid(r) || c < 0 || c >= IngredientRow::kColumns) return empty;
  return row(r).cells[static_cast<size_t>(c)];
}

void IngredientTable::setCell(int r, int c, std::string text) {
  if (!valid(r) || c < 0 || c >= IngredientRow::kColumns) return;
  row(r).cells[static_cast<size_t>(c)] = std::move(text);
}

int IngredientTable::headerRow(int kind) const {
  if (kind <= 0) return 0;
  int seen = 0;
  const int last = totalRow();
  for (int r = 1; r < last; ++r)
    if (!row(r).isItem() && ++seen == kind) return r;
  return last;
}

int IngredientTable::sectionEnd(int kind) const {
  const int last = totalRow();
  for (int r = headerRow(kind) + 1; r < last; ++r)
    if (!row(r).isItem()) return r;
  return last;
}

int IngredientTable::kindOfRow(int r) const {
  if (!valid(r) || r == totalRow()) return -1;
  int kind = -1;
  for (int k = 0; k <= r; ++k)
    if (!row(k).isItem()) ++kind;
  return kind > 3 ? 3 : kind;
}

int IngredientTable::itemCount() const {
  int n = 0;
  for (const IngredientRow& r : rows_)
    if (r.isItem()) ++n;
  return n;
}

int IngredientTable::insertItem(int kind) {
  if (kind < 0) kind = 0;
  if (kind > 3) kind = 3;
  const int at = sectionEnd(kind);
  rows_.insert(rows_.begin() + at, IngredientRow{});
  return at;
}

bool IngredientTable::removeRow(int r) {
  if (!isItemRow(r) || r == totalRow()) return false;
  rows_.erase(rows_.begin() + r);
  return true;
}

void IngredientTable::swapRows(int a, int b) {
  if (!valid(a) || !valid(b) || a == b) return;
  std::swap(rows_[static_cast<size_t>(a)], rows_[static_cast<size_t>(b)]);
}

}  // namespace zy
