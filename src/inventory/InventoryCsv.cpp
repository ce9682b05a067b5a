#include "inventory/InventoryCsv.h"

#include <cerrno>
#include <cstdio>

#include "core/dates.h"
#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

namespace {

const char* const kExportFn = "frmInventory!mnuFileExport";

double moneyField(const std::string& text) {
  std::string t = trim(text);
  if (!t.empty() && t[0] == '$') t.erase(0, 1);
  return lenientValue(replaceAll(t, ",", ""));
}

// Text as a CSV field holds it on its one line: line breaks become blanks and a double quote an
// apostrophe (it would open or end a quoted field); trimmed after, as the import trims.
std::string csvFieldText(const std::string& text) {
  std::string c = replaceAll(text, "\r\n", " ");
  c = trim(replaceAll(replaceAll(c, "\n", " "), "\r", " "));
  return replaceAll(c, "\"", "'");
}

std::string commentField(const std::string& comment) {
  const std::string c = csvFieldText(comment);
  return c.empty() ? c : "\"" + c + "\"";
}

std::string defaultPath(const ExchangePorts& p, const char* section, const std::string& name) {
  std::string dir = p.settings.read(section, "File Path", "");
  return dir.empty() ? name : ProgramFolder::join(dir, name);
}

void finishImport(const ExchangePorts& p, StatusLog& status) { status.writeTo(p.folder.file(kStatusLog)); }

}  // namespace

std::string csvFolderOf(const std::string& path) {
  size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string exportCell(const std::string& cell) {
  std::string t = trim(cell);
  if (!t.empty() && t[0] == '$') return replaceAll(t, ",", "");
  // Only the comment, last in the line, is quoted: a comma in any other text would split it.
  return replaceAll(csvFieldText(t), ",", ";");
}

CsvLayout olderInventoryLayout(int category) {
  switch (category) {
    case INV_MALT:
      return {{"", "Variety", "Qty", "Units", "Vintage", "Type", "Color", "Extract", "Notes"},
              {0, 50, -1, 10, 20, 10, -1, -1, 50}};
    case INV_HOPS:
      return {{"", "Variety", "Qty", "Units", "Vintage", "Type", "Alpha %"}, {0, 50, -1, 10, 20, 10, -1}};
    case INV_OTHER: return {{"", "Item", "Qty", "Units", "Vintage"}, {0, 50, -1, 10, 20}};
    case INV_YEAST:
      return {{"", "Variety", "Qty", "Units", "Vintage", "Type", "Atten"}, {0, 50, -1, 10, 20, 10, -1}};
    default: return {};
  }
}

CsvLayout currentInventoryLayout(int category) {
  CsvLayout l{{""}, {0}};
  for (const InventoryColumn& c : inventoryColumns(category)) {
    l.names.push_back(c.head);
    l.rules.push_back(c.csvRule);
  }
  return l;
}

// ---- Export ----------------------------------------------------------------------------------

std::optional<int> exportInventory(const ExchangePorts& p, const InventoryList& list, const std::string& path) {
  StatusLog status;
  status.line("Export Inventory Status Log");
  status.line(formatDateTime(p.clock.now()));
  status.blank();
  status.line("Exporting to File: " + path);

  const auto& cols = list.columns();
  std::string text = "Inventory";
  for (const InventoryColumn& c : cols) text += "," + c.head;
  text += "\r\n";
  int count = 0;
  for (const InventoryRow& row : list.rows) {
    std::string line = "zy";
    for (size_t i = 0; i < cols.size(); ++i) {
      const std::string cell = i < row.cells.size() ? row.cells[i] : std::string();
      if (std::string_view(cols[i].key) == kColComments) line += "," + commentField(cell);
      else line += "," + exportCell(cell);
    }
    text += line + "\r\n";
    ++count;
    status.line(itos(count) + ") " + (row.cells.empty() ? std::string() : row.cells[0]));
  }
  return finishExport(p, status, path, text, count, kExportFn);
}

std::optional<int> finishExport(const ExchangePorts& p, StatusLog& status, const std::string& path,
                                const std::string& text, int count, const char* functionName) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  bool ok = f && std::fwrite(text.data(), 1, text.size(), f) == text.size();
  int err = errno;
  if (f && std::fclose(f) != 0) ok = false;
  if (!ok) {
    status.blank();
    status.line("Unable to write " + path);
    status.writeTo(p.folder.file(kStatusLog));
    p.errors.reportFileError(fileErrorFromErrno(err ? err : EIO, path), 0, functionName);
    return std::nullopt;
  }
  status.blank();
  status.line(itos(count) + " Records Exported");
  status.line("No Errors");
  status.writeTo(p.folder.file(kStatusLog));
  p.prompter.message("Succesfully Exported " + itos(count) + " Records", "Export Success", Icon::Information);
  return count;
}

std::optional<int> mnuFileExport(const ExchangePorts& p, const InventoryList& list) {
  const std::string& category = inventoryCategoryName(list.category());
  std::optional<std::string> path =
      p.prompter.saveFile("Export " + category + "Inventory Items to CSV File", kCsvFilter,
                          defaultPath(p, kInventorySection, "ZY" + category + ".csv"));
  if (!path || path->empty()) return std::nullopt;
  p.settings.write(kInventorySection, "File Path", csvFolderOf(*path));
  return exportInventory(p, list, *path);
}

// ---- Import ----------------------------------------------------------------------------------

bool confirmInventoryReplace(Prompter& prompter, int category) {
  return prompter.message("WARNING: This will DELETE all the existing " + inventoryCategoryName(category) +
                              " Inventory Items!\r\n       Are you sure you want to proceed?",
                          "Replace Existing Inventory", Icon::Warning, Buttons::YesNo, Answer::No) == Answer::Yes;
}

void clearForReplace(Inventory& inventory, int category, int method, StatusLog& status, Prompter& prompter) {
  if (method == METHOD_INVENTORY_OLD || method == METHOD_INVENTORY) {
    if (category >= 0 && category < kInventoryCategories) inventory.list(category).clear();
    return;
  }
  ClearRefusal r = clearRefusal(method);
  if (!r.message.empty()) prompter.message(r.message, "Import Error", Icon::Critical);
  status.line(r.logLine);
}

void addImportedRecord(CsvEngine& e, InventoryList& list, int fieldCount, const std::vector<std::string>& names,
                       int method, StatusLog& status) {
  if (method != METHOD_INVENTORY_OLD && method != METHOD_INVENTORY) {
    status.line(addRefusal(method, e.importLine));
    return;
  }
  const int category = list.category();
  const size_t r = list.addRow(trim(e.importFields[1]));
  auto field = [&](const std::string& name) -> std::string {
    for (int i = 1; i <= fieldCount && static_cast<size_t>(i) < names.size(); ++i)
      if (names[static_cast<size_t>(i)] == name) return trim(e.importFields[static_cast<size_t>(i)]);
    return {};
  };
  auto units = [&](const std::string& text) {
    const StringList& u = inventoryUnits(category);
    return listText(u, findInList(u, static_cast<int>(u.size()) - 1, text, 0));
  };
  if (method == METHOD_INVENTORY) {
    // The present form carries the list's own columns, field i + 1 under column i.
    const auto& cols = list.columns();
    for (size_t c = 1; c < cols.size() && static_cast<int>(c) + 1 <= fieldCount; ++c) {
      const std::string v = trim(e.importFields[c + 1]);
      const std::string_view key = cols[c].key;
      std::string shown = v;
      if (key == kColQty) shown = inventoryQtyText(lenientValue(v));
      else if (key == kColUnits) shown = units(v);
      else if (key == kColCost) shown = formatNumber(moneyField(v), "Currency");
      else if (key == kColExtract) shown = formatNumber(lenientValue(v), "0.000");
      else if (key == kColColor || key == kColAlpha) shown = formatNumber(lenientValue(v), "0.0");
      else if (key == kColAtten) shown = formatNumber(lenientValue(v), "0.#");
      else if (key == kColMash) shown = iequals(v, "Yes") ? "Yes" : "No";
      else if (key == kColReorderThresh || key == kColReorderQty) shown = v.empty() ? "" : formatNumber(lenientValue(v), "0.##");
      else if (key == kColComments) shown = e.importFields[c + 1];
      list.setCell(r, key, shown);
    }
    // A blank threshold leaves both reorder cells blank, as the save reads them.
    if (trim(list.cell(r, kColReorderThresh)).empty()) list.setCell(r, kColReorderQty, "");
  } else {
    list.setCell(r, kColQty, inventoryQtyText(lenientValue(field("Qty"))));
    list.setCell(r, kColUnits, units(field("Units")));
    list.setCell(r, kColCost, "$0.00");
    list.setCell(r, kColVintage, field("Vintage"));
    if (category == INV_MALT) {
      list.setCell(r, kColMash, field("Type") == "Grain" ? "Yes" : "No");
      list.setCell(r, kColColor, formatNumber(lenientValue(field("Color")), "0.0"));
      list.setCell(r, kColExtract, formatNumber(lenientValue(field("Extract")), "0.000"));
      list.setCell(r, kColComments, field("Notes"));
    } else if (category == INV_HOPS) {
      list.setCell(r, kColAlpha, formatNumber(lenientValue(field("Alpha %")), "0.0"));
    } else if (category == INV_YEAST) {
      list.setCell(r, kColType, field("Type"));
      list.setCell(r, kColAtten, formatNumber(lenientValue(field("Atten")), "0.#"));
    }
    list.setCell(r, kColReorderThresh, "0.");
    list.setCell(r, kColReorderQty, "0.");
  }
  ++e.importedRecords;
}

ImportResult importInventory(const ExchangePorts& p, Inventory& inventory, int category, const std::string& path,
                             bool replace) {
  ImportResult result;
  if (category < 0 || category >= kInventoryCategories) return result;
  const std::string& name = inventoryCategoryName(category);
  StatusLog status;
  status.line("Import Inventory Status Log");
  status.line(formatDateTime(p.clock.now()));
  status.blank();
  status.line("Importing " + name + " Items from File: " + path);

  CsvSource source;
  if (!source.open(path)) {
    status.blank();
    status.line("Unable to open " + path);
    finishImport(p, status);
    p.prompter.message("Unable to open " + path + ", Import Aborted", "Import Error", Icon::Critical);
    return result;
  }
  CsvEngine engine(status);
  engine.resetImportCounters();
  const std::string head = source.readLine();
  std::string rest = head;
  const std::string first = nextCsvField(rest);
  int method = METHOD_INVENTORY_OLD, firstField = 1, wrongField = 0;
  std::string read = first;
  engine.importFields[0] = first;
  CsvLayout layout;
  bool structureOk;
  if (first == "Inventory") {
    read = nextCsvField(rest);
    wrongField = 1;
    structureOk = read == name;
    method = METHOD_INVENTORY;
    firstField = 2;
    engine.importFields[1] = read;
    layout = currentInventoryLayout(category);
  } else {
    structureOk = first == name;
    // Supplies came after the older form; its items are laid out as the other ingredients.
    layout = olderInventoryLayout(category == INV_SUPPLIES ? INV_OTHER : category);
  }

  int flags;
  if (!structureOk) {
    flags = IMPORT_WRONG_STRUCTURE;
    std::string all = head;
    engine.headFields.clear();
    while (!all.empty() && engine.headFields.size() < static_cast<size_t>(kMaxCsvFields))
      engine.headFields.push_back(nextCsvField(all));
  } else {
    const int fieldCount = static_cast<int>(layout.names.size()) - 1;
    CsvEngine::Target target;
    target.replace = replace;
    target.clearForReplace = [&] { clearForReplace(inventory, category, method, status, p.prompter); };
    target.addImportedRecord = [&] {
      addImportedRecord(engine, inventory.list(category), fieldCount, layout.names, method, status);
    };
    flags = engine.importCsvRecords(source, rest, fieldCount, firstField, layout.names, layout.rules, "zy", "", target);
  }
  result.flags = flags;
  result.imported = engine.importedRecords;
  result.bad = engine.badRecords;

  if (flags == IMPORT_END_OF_FILE) {
    engine.writeImportSummary(true);
    finishImport(p, status);
    if (engine.badRecords == 0)
      p.prompter.message("Successfully Imported " + itos(engine.importedRecords) + " Records", "Import Success",
                         Icon::Information);
    else
      p.prompter.message("       Successfully Imported " + itos(engine.importedRecords) + " Records\r\n\r\n" +
                             itos(engine.badRecords) + " Bad Records Skipped, See ZYstatus.log for Details",
                         "Import Success", Icon::Information);
    return result;
  }
  // A wrong head: nothing was cleared and nothing added.
  std::string message;
  if (flags == IMPORT_WRONG_STRUCTURE) {
    engine.reportHeadError(wrongField, name);
    message = "Wrong File Structure Type, Expected '" + name + "' but Read '" + read + "', Import Aborted (See Log File)";
  } else {
    const size_t i = static_cast<size_t>(engine.badFieldIndex);
    const std::string expected = i < layout.names.size() ? layout.names[i] : std::string();
    engine.reportHeadError(engine.badFieldIndex, expected);
    message = "Invalid Field, Expected '" + expected + "' but Read '" + engine.importFields[i] +
              "', Import Aborted (See Log File)";
  }
  engine.writeImportSummary(false);
  status.blank();
  for (const std::string& s : inventoryImportSuggestions()) status.line(s);
  finishImport(p, status);
  p.prompter.message(message, "Import Error", Icon::Critical);
  return result;
}

ImportResult mnuFileImport(const ExchangePorts& p, Inventory& inventory, int category, bool replace) {
  if (replace && !confirmInventoryReplace(p.prompter, category)) return {};
  const std::string& name = inventoryCategoryName(category);
  std::optional<std::string> path = p.prompter.openFile("Import " + name + " Inventory Items from CSV File", kCsvFilter,
                                                        defaultPath(p, kInventorySection, "ZY" + name + ".csv"));
  if (!path || path->empty()) return {};
  p.settings.write(kInventorySection, "File Path", csvFolderOf(*path));
  return importInventory(p, inventory, category, *path, replace);
}

}  // namespace zy
