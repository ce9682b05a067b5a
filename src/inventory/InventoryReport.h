#pragma once
// The printed inventory: one category's stock under the column heads of its kind ("Variety" or
// "Item", "Qty", "Units", "Vintage", the kind's own values, "Notes"), in the order the window
// shows the rows, each item's comment as its notes. Its file form writes the same rows as
// comma-separated text.
#include <string>
#include <vector>

#include "reports/ReportCatalog.h"

namespace zy {

class InventoryList;
class Prompter;

inline constexpr const char* kInventoryReportTitle = "Zythara Inventory";

struct InventoryReportOptions {
  bool printComments = true;  // the "Notes" column carries each item's comment
};

// The report over `rows` of `list` (indices in the order to print; the window gives the rows it
// shows). `printedOn` is a date serial for the subtitle.
ReportProc printInventory(const InventoryList& list, std::vector<size_t> rows, InventoryReportOptions options,
                          double printedOn);

// The file form: "Zythara Inventory", "Category:" and "Date:" lines (the value from column 15),
// an empty line, the column heads, then one line per item, each field quoted where a comma, a
// quote or a line break asks for it, lines ended by CR LF. False, after "Unable to Generate
// Output File", when the file cannot be written.
std::string inventoryReportText(const InventoryList& list, const std::vector<size_t>& rows,
                                InventoryReportOptions options, double printedOn);
bool printInventoryToFile(const std::string& path, const InventoryList& list, const std::vector<size_t>& rows,
                          InventoryReportOptions options, double printedOn, Prompter& prompter);

// Report 1 with its file form.
ReportRequest inventoryReportRequest(const InventoryList& list, std::vector<size_t> rows,
                                     InventoryReportOptions options, double printedOn, Prompter& prompter);

}  // namespace zy
