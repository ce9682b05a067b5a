#include "inventory/ShoppingList.h"

#include <cmath>
#include <algorithm>
#include <cstdio>

#include "core/dates.h"
#include "core/defaults.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/IngredientTable.h"
#include "recipes/RecipeExchange.h"

namespace zy {

namespace {

const char* const kExportFn = "frmShoppingLst!mnuFileExport";

double money(const std::string& text) {
  std::optional<double> v = strictValue(text);
  if (v) return *v;
  std::string t = trim(text);
  if (!t.empty() && t[0] == '$') t.erase(0, 1);
  return lenientValue(replaceAll(t, ",", ""));
}

int categoryIndex(const std::string& text) { return findListIndex(inventoryCategoryNames(), 4, text, 0); }

const std::vector<std::string>& shoppingSuggestions() {
  static const std::vector<std::string> s = {
      "Suggested corrective actions:",
      "1. Load the import file into a spreadsheet program (i.e., Excel)",
      "2. Verify that the first column in every line has the characters 'zy'",
      "3. Verify that the 'Total Cost' row has 'zyt' in the first column",
      "4. Verify that no data is present in a column without a Field Name (1st Row of Entries)"};
  return s;
}

// One record line of the list's CSV: "zy" + category, item, quantity, unit, cost, total.
struct CsvRecord {
  int category;
  std::string item, units;
  double quantity, unitCost;
};
CsvRecord recordFrom(const std::array<std::string, 7>& f) {
  return {categoryIndex(f[1]), trim(f[2]), trim(f[4]), lenientValue(f[3]), money(f[5])};
}
std::array<std::string, 7> splitRecord(const std::string& bol, std::string& rest) {
  std::array<std::string, 7> f;
  f[0] = bol;
  for (size_t i = 1; i < f.size(); ++i) f[i] = nextCsvField(rest);
  return f;
}

}  // namespace

int ShoppingList::find(const std::string& category, const std::string& name) const {
  for (size_t i = 0; i < rows.size(); ++i)
    if (rows[i].item() == name && rows[i].category() == category) return static_cast<int>(i);
  return -1;
}

void ShoppingList::addItem(int category, const std::string& name, double quantity, bool addToExisting,
                           const std::string& units, double unitCost) {
  putItem(category, name, quantity, addToExisting, units, unitCost);
  calcTotalCost();
}

void ShoppingList::putItem(int category, const std::string& name, double quantity, bool addToExisting,
                           const std::string& units, double unitCost, RowIndex* index) {
  const std::string& categoryName = inventoryCategoryName(category < 0 || category > 4 ? 0 : category);
  int r = -1;
  if (index) {
    // The index is built from the rows on the first call; rows added later go into it.
    if (index->empty())
      for (size_t i = 0; i < rows.size(); ++i) index->emplace(rows[i].category() + '\n' + rows[i].item(), i);
    auto it = index->find(categoryName + '\n' + name);
    if (it != index->end()) r = static_cast<int>(it->second);
  } else {
    r = find(categoryName, name);
  }
  if (r < 0) {
    ShoppingRow row;
    row.cells[0] = categoryName;
    row.cells[1] = name;
    rows.push_back(row);
    r = static_cast<int>(rows.size()) - 1;
    if (index) index->emplace(categoryName + '\n' + name, rows.size() - 1);
  }
  ShoppingRow& row = rows[static_cast<size_t>(r)];
  if (addToExisting) quantity += strictValue(row.cells[2]).value_or(0.0);
  row.quantity = quantity;
  row.cells[2] = formatNumber(quantity, "0.0#");
  row.cells[3] = units;
  row.cells[4] = formatNumber(unitCost, "Currency");
  row.cells[5] = formatNumber(quantity * unitCost, "Currency");
}

void ShoppingList::calcTotalCost() {
  double sum = 0;
  for (const ShoppingRow& r : rows) sum += money(r.cells[5]);
  totalCost = formatNumber(sum, "Currency");
  lblTotalCost = "Est. Total Cost: " + totalCost;
}

int ShoppingList::addRecipe(const IngredientTable& grid) {
  int added = 0;
  for (int r = 0; r < grid.rowCount(); ++r) {
    if (!grid.isItemRow(r) || trim(grid.cell(r, COL_NAME)).empty()) continue;
    const int kind = grid.kindOfRow(r);
    if (kind < 0) continue;
    addItem(kind, trim(grid.cell(r, COL_NAME)), lenientValue(grid.cell(r, COL_QTY)), true,
            grid.cell(r, COL_UNITS), money(grid.cell(r, COL_COST)));
    ++added;
  }
  return added;
}

bool ShoppingList::editItem(size_t index, double quantity, double unitCost) {
  if (index >= rows.size()) return false;
  const ShoppingRow row = rows[index];
  addItem(categoryIndex(row.category()), row.item(), quantity, false, row.cells[3], unitCost);
  return true;
}

bool ShoppingList::deleteItem(size_t index, Prompter& prompter) {
  if (index >= rows.size()) return false;
  if (prompter.message("Do you want to Delete '" + rows[index].item() + "' from Shopping List?", "Delete from List",
                       Icon::Question, Buttons::YesNo, Answer::No) != Answer::Yes)
    return false;
  rows.erase(rows.begin() + static_cast<long>(index));
  calcTotalCost();
  return true;
}

bool ShoppingList::clearList(Prompter& prompter) {
  if (prompter.message("Are you sure you want Clear the Shopping List?", "Clear Shopping List", Icon::Question,
                       Buttons::YesNo, Answer::No) != Answer::Yes)
    return false;
  rows.clear();
  calcTotalCost();
  return true;
}

std::vector<ShoppingReportLine> ShoppingList::reportLines() const {
  std::vector<ShoppingReportLine> out;
  if (rows.empty()) {
    out.push_back({kEmptyReport, "", ""});
    return out;
  }
  for (const ShoppingRow& r : rows) {
    std::string qty = r.cells[2];
    std::string cost = r.cells[5];
    if (roundToWholeUnits) {
      // Up to the next whole unit; a hair above a whole (1.005) stays on it.
      const double whole = std::floor(r.quantity + 0.99);
      qty = formatNumber(whole, "0.##");
      if (!qty.empty() && qty.back() == '.') qty.pop_back();
      cost = formatNumber(whole * money(r.cells[4]), "Currency");
    }
    out.push_back({"[  ] - " + qty + " " + r.cells[3], r.item(), cost});
  }
  return out;
}

std::string ShoppingList::reportTotal() const {
  double sum = 0;
  if (!rows.empty())
    for (const ShoppingReportLine& l : reportLines()) sum += money(l.cost);
  return formatNumber(sum, "Currency");
}

// ---- CSV -------------------------------------------------------------------------------------

std::string ShoppingList::csvText() const {
  std::string text = "Shopping List";
  for (const char* h : kColumnHeads) text += std::string(",") + h;
  text += "\r\n";
  for (const ShoppingRow& r : rows) {
    std::string line = "zy," + r.cells[0];
    for (size_t i = 1; i < r.cells.size(); ++i) line += "," + exportCell(r.cells[i]);
    text += line + "\r\n";
  }
  text += "zyt,Total Cost,,,,," + exportCell(totalCost) + "\r\n";
  return text;
}

std::optional<int> ShoppingList::exportList(const ExchangePorts& p, const std::string& path) {
  StatusLog status;
  status.line("Export Shopping List Status Log");
  status.line(formatDateTime(p.clock.now()));
  status.blank();
  status.line("Exporting to File: " + path);
  int count = 0;
  for (const ShoppingRow& r : rows) status.line(itos(++count) + ") " + r.item());
  return finishExport(p, status, path, csvText(), count, kExportFn);
}

std::optional<int> ShoppingList::mnuFileExport(const ExchangePorts& p) {
  std::string dir = p.settings.read(kShoppingSection, "File Path", "");
  std::optional<std::string> path = p.prompter.saveFile(
      "Export Shopping List to CSV File", kCsvFilter,
      dir.empty() ? kShoppingDefaultFile : ProgramFolder::join(dir, kShoppingDefaultFile));
  if (!path || path->empty()) return std::nullopt;
  std::string chosen = *path;
  if (chosen.find('.', chosen.find_last_of('/') == std::string::npos ? 0 : chosen.find_last_of('/')) ==
      std::string::npos)
    chosen += ".csv";  // the default extension
  p.settings.write(kShoppingSection, "File Path", csvFolderOf(chosen));
  return exportList(p, chosen);
}

bool ShoppingList::confirmReplace(Prompter& prompter) {
  return prompter.message("WARNING: This will DELETE all the existing Shopping List Items!\r\n"
                          "       Are you sure you want to proceed?",
                          "Replace Existing Shopping List", Icon::Warning, Buttons::YesNo, Answer::No) == Answer::Yes;
}

std::optional<int> ShoppingList::importList(const ExchangePorts& p, const std::string& path) {
  StatusLog status;
  status.line("Import Shopping List Status Log");
  status.line(formatDateTime(p.clock.now()));
  status.blank();
  status.line("Importing Shopping List Items from File: " + path);
  CsvSource source;
  if (!source.open(path)) {
    status.blank();
    status.line("Unable to open " + path);
    status.writeTo(p.folder.file(kStatusLog));
    p.prompter.message("Unable to open " + path + ", Import Aborted", "Import Error", Icon::Critical);
    return std::nullopt;
  }
  CsvEngine engine(status);
  engine.resetImportCounters();
  std::string head = source.readLine();
  std::string rest = head;
  const std::string first = nextCsvField(rest);
  if (first != "Shopping List") {
    std::string all = head;
    while (!all.empty() && engine.headFields.size() < static_cast<size_t>(kMaxCsvFields))
      engine.headFields.push_back(nextCsvField(all));
    engine.reportHeadError(0, "Shopping List");
    engine.writeImportSummary(false);
    status.blank();
    for (const std::string& s : shoppingSuggestions()) status.line(s);
    status.writeTo(p.folder.file(kStatusLog));
    p.prompter.message("Wrong File Structure Type, Expected 'Shopping List' but Read '" + first +
                           "', Import Aborted (See Log File)",
                       "Import Error", Icon::Critical);
    return std::nullopt;
  }
  RowIndex index;
  while (!source.atEnd()) {
    ++engine.importLine;
    const std::string line = source.readLine();
    std::string fields = line;
    const std::string bol = nextCsvField(fields);
    if (bol == "zy") {
      CsvRecord rec = recordFrom(splitRecord(bol, fields));
      putItem(rec.category, rec.item, rec.quantity, true, rec.units, rec.unitCost, &index);
      ++engine.importedRecords;
    } else if (bol == "zyt") {
      // The total line is the sum of the rows, never an item.
    } else if (bol.empty() && fields.empty()) {
      ++engine.blankRecords;
      status.line("Warning: Line " + itos(engine.importLine) + " is blank, ignored");
    } else {
      ++engine.badRecords;
      status.line("WARNING: Expected 'zy' or 'zyt' and read '" + bol + "'");
    }
  }
  calcTotalCost();
  engine.writeImportSummary(true);
  status.writeTo(p.folder.file(kStatusLog));
  if (engine.badRecords == 0)
    p.prompter.message("Successfully Imported " + itos(engine.importedRecords) + " Record(s)", "Import Success",
                       Icon::Information);
  else
    p.prompter.message("       Successfully Imported " + itos(engine.importedRecords) + " Records\r\n\r\n" +
                           itos(engine.badRecords) + " Bad Record(s) Skipped, See Log for Details",
                       "Import Success", Icon::Information);
  return engine.importedRecords;
}

std::optional<int> ShoppingList::mnuFileImp(const ExchangePorts& p, bool replace) {
  if (replace) {
    if (!confirmReplace(p.prompter)) return std::nullopt;
    rows.clear();
    calcTotalCost();
  }
  std::string dir = p.settings.read(kShoppingSection, "File Path", "");
  std::optional<std::string> path = p.prompter.openFile(
      "Import Shopping List from CSV File", kCsvFilter,
      dir.empty() ? kShoppingDefaultFile : ProgramFolder::join(dir, kShoppingDefaultFile));
  if (!path || path->empty()) return std::nullopt;
  p.settings.write(kShoppingSection, "File Path", csvFolderOf(*path));
  return importList(p, *path);
}

bool ShoppingList::saveTo(const std::string& path) const {
  const std::string text = csvText();
  const std::string temp = path + ".new";
  std::FILE* f = std::fopen(temp.c_str(), "wb");
  if (!f) return false;
  bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size();
  if (std::fclose(f) != 0) ok = false;
  if (ok && std::rename(temp.c_str(), path.c_str()) != 0) ok = false;
  if (!ok) std::remove(temp.c_str());
  return ok;
}

bool ShoppingList::loadFrom(const std::string& path) {
  rows.clear();
  CsvSource source;
  bool ok = source.open(path);
  if (ok) {
    std::string head = source.readLine();
    ok = nextCsvField(head) == "Shopping List";
    RowIndex index;
    while (ok && !source.atEnd()) {
      std::string rest = source.readLine();
      const std::string bol = nextCsvField(rest);
      if (bol != "zy") continue;
      CsvRecord rec = recordFrom(splitRecord(bol, rest));
      putItem(rec.category, rec.item, rec.quantity, false, rec.units, rec.unitCost, &index);
    }
  }
  calcTotalCost();
  return ok;
}

// ---- The add dialog -------------------------------------------------------------------------

AddToShopForm AddToShopForm::addToShoppingList(int category, const std::string& name, double quantity,
                                               int unitIndex, double unitCost, const Defaults& d) {
  AddToShopForm f;
  f.category = category < 0 || category > 4 ? 0 : category;
  f.txtItem = name;
  const StringList& units = inventoryUnits(f.category);
  f.lblUnits = unitIndex < 0 || unitIndex >= static_cast<int>(units.size()) ? "Undefined" : units[static_cast<size_t>(unitIndex)];
  if (quantity > 0) f.txtQty = formatNumber(quantity, "0.0#");
  f.txtUnitCost = formatNumber(unitCost, "Currency");
  const double qtySteps[] = {d.maltQtyIncr, d.hopsQtyIncr, d.otherQtyIncr, d.yeastQtyIncr, d.supplyQtyIncr};
  const double costSteps[] = {d.maltCostIncr, d.hopsCostIncr, d.otherCostIncr, d.yeastCostIncr, d.supplyCostIncr};
  f.qtyStep = qtySteps[f.category];
  f.costStep = costSteps[f.category];
  return f;
}

AddToShopForm AddToShopForm::editEntry(const ShoppingRow& row, const Defaults& d) {
  const int category = categoryIndex(row.category());
  const StringList& units = inventoryUnits(category);
  const int unit = findInList(units, static_cast<int>(units.size()) - 1, row.cells[3], -1);
  AddToShopForm f = addToShoppingList(category, row.item(), money(row.cells[2]), unit, money(row.cells[4]), d);
  if (unit < 0 && !trim(row.cells[3]).empty()) f.lblUnits = row.cells[3];
  return f;
}

void AddToShopForm::stepQty(int direction) {
  double v = std::max(0.0, lenientValue(txtQty) + direction * qtyStep);
  txtQty = formatNumber(roundHalfAway(v, 2), "0.0#");
}

void AddToShopForm::stepCost(int direction) {
  double v = std::max(0.0, money(txtUnitCost) + direction * costStep);
  txtUnitCost = formatNumber(roundHalfAway(v, 2), "Currency");
}

bool AddToShopForm::ok(ShoppingList& list) const {
  std::optional<double> qty = strictValue(txtQty), cost = strictValue(txtUnitCost);
  if (!qty || !cost) return false;
  list.addItem(category, txtItem, *qty, chkAddToItem, lblUnits, *cost);
  return true;
}

}  // namespace zy
