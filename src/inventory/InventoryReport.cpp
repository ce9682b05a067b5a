#include "inventory/InventoryReport.h"

#include <string_view>

#include "core/dates.h"
#include "core/text.h"
#include "inventory/InventoryStore.h"
#include "reports/ReportLayout.h"

namespace zy {

namespace {

// The list columns under each head of the printed inventory; the name first, the comment last.
std::vector<const char*> reportKeys(int category) {
  switch (category) {
    case INV_MALT: return {kColName, kColQty, kColUnits, kColVintage, kColColor, kColExtract, kColComments};
    case INV_HOPS: return {kColName, kColQty, kColUnits, kColVintage, kColAlpha, kColComments};
    case INV_YEAST: return {kColName, kColQty, kColUnits, kColVintage, kColType, kColAtten, kColComments};
    default: return {kColName, kColQty, kColUnits, kColVintage, kColComments};
  }
}

// Where each column stands on the page (inches), and whether it holds numbers, right-aligned on
// that stop. The notes take what is left up to the right margin.
std::vector<ReportColumn> reportColumns(int category) {
  const StringList& heads = inventoryReportHeads(category);
  std::vector<std::pair<double, bool>> at;
  switch (category) {
    case INV_MALT: at = {{0.75, false}, {2.95, true}, {3.05, false}, {3.6, false}, {5.05, true}, {5.7, true}, {5.85, false}}; break;
    case INV_HOPS: at = {{0.75, false}, {2.95, true}, {3.05, false}, {3.6, false}, {5.2, true}, {5.4, false}}; break;
    case INV_YEAST: at = {{0.75, false}, {2.95, true}, {3.05, false}, {3.6, false}, {4.85, false}, {5.95, true}, {6.1, false}}; break;
    default: at = {{0.75, false}, {2.95, true}, {3.05, false}, {3.6, false}, {5.2, false}}; break;
  }
  std::vector<ReportColumn> cols;
  for (size_t i = 0; i < at.size() && i < heads.size(); ++i) cols.push_back({heads[i], at[i].first, at[i].second});
  return cols;
}

std::string cellOf(const InventoryList& list, size_t row, const char* key) {
  if (std::string_view(key) == kColName) return row < list.rows.size() && !list.rows[row].cells.empty() ? list.rows[row].cells[0] : "";
  return trim(list.cell(row, key));
}

std::vector<std::string> rowTexts(const InventoryList& list, size_t row, const InventoryReportOptions& o) {
  std::vector<std::string> cells;
  for (const char* key : reportKeys(list.category()))
    cells.push_back(std::string_view(key) == kColComments && !o.printComments ? std::string() : cellOf(list, row, key));
  return cells;
}

}  // namespace

ReportProc printInventory(const InventoryList& list, std::vector<size_t> rows, InventoryReportOptions options,
                          double printedOn) {
  return [&list, rows = std::move(rows), options, printedOn](Report& r) {
    const int category = list.category();
    const std::string name = inventoryCategoryName(category);
    reportTitle(r, kInventoryReportTitle, name + " on hand, " + formatDate(printedOn, "mmmm d, yyyy"));
    const std::vector<ReportColumn> columns = reportColumns(category);
    const double right = reportRight(r);
    size_t shown = 0;
    printColumnHeads(r, columns);
    for (size_t row : rows) {
      if (row >= list.rows.size()) continue;
      if (r.ensureRoom(1.2, name)) printColumnHeads(r, columns);
      std::vector<std::string> cells = rowTexts(list, row, options);
      const std::string notes = cells.back();
      cells.back().clear();
      printColumnCells(r, columns, cells);
      // The notes wrap within their column; a long one runs on below the row.
      if (notes.empty()) r.newLine();
      else r.printWrapped(notes, columns.back().x, right, 0, name);
      r.y += r.lineHeight() * 0.2;
      ++shown;
    }
    if (shown == 0) r.printLine(Report::kLeft, "There are no " + name + " items in the Inventory.");
  };
}

std::string inventoryReportText(const InventoryList& list, const std::vector<size_t>& rows,
                                InventoryReportOptions options, double printedOn) {
  auto padded = [](const std::string& label) { return label + std::string(label.size() < 14 ? 14 - label.size() : 1, ' '); };
  std::string text = std::string(kInventoryReportTitle) + "\r\n";
  text += padded("Category:") + inventoryCategoryName(list.category()) + "\r\n";
  text += padded("Date:") + formatDateTime(printedOn) + "\r\n\r\n";
  const StringList& heads = inventoryReportHeads(list.category());
  text += reportCsvLine({heads.begin(), heads.end()});
  for (size_t row : rows)
    if (row < list.rows.size()) text += reportCsvLine(rowTexts(list, row, options));
  return text;
}

bool printInventoryToFile(const std::string& path, const InventoryList& list, const std::vector<size_t>& rows,
                          InventoryReportOptions options, double printedOn, Prompter& prompter) {
  return writeReportFile(path, inventoryReportText(list, rows, options, printedOn), prompter);
}

ReportRequest inventoryReportRequest(const InventoryList& list, std::vector<size_t> rows,
                                     InventoryReportOptions options, double printedOn, Prompter& prompter) {
  ReportRequest req;
  req.number = kInventoryReport;
  req.draw = printInventory(list, rows, options, printedOn);
  req.toFile = [&list, rows, options, printedOn, &prompter](const std::string& path) {
    return printInventoryToFile(path, list, rows, options, printedOn, prompter);
  };
  return req;
}

}  // namespace zy
