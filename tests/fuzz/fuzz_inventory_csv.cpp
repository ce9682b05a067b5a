// The inventory CSV import: the first byte picks the category, the rest is the file. What an
// import takes in is exported, imported into an empty list and exported again: the same text.
#include "FuzzSupport.h"
#include "inventory/InventoryCsv.h"

using namespace zy;

namespace {
// Imports `path` into an emptied list of the category; the export of the list, or nothing.
std::optional<std::string> importExport(fuzz::Env& e, Inventory& inv, int category, const std::string& path) {
  Workbench& wb = *e.wb;
  const ExchangePorts p{wb.folder, wb.prompter, wb.settings, wb.clock, wb.errors};
  inv.list(category).clear();
  importInventory(p, inv, category, path, false);
  const std::string out = e.file("export.csv");
  if (!exportInventory(p, inv.list(category), out)) return std::nullopt;
  return fuzz::readAll(out);
}
}  // namespace

ZY_FUZZ_HARNESS(inventory_csv) {
  if (size < 1) return 0;
  fuzz::Env& e = fuzz::env();
  const int category = data[0] % kInventoryCategories;
  const std::string in = e.file("import.csv");
  fuzz::writeAll(in, std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
  Inventory inv;
  try {
    auto first = importExport(e, inv, category, in);
    if (!first) return 0;
    fuzz::writeAll(in, *first);
    auto second = importExport(e, inv, category, in);
    fuzz::check(second.has_value(), "an exported list does not export again");
    fuzz::writeAll(in, *second);
    auto third = importExport(e, inv, category, in);
    fuzz::check(third == second, "the inventory CSV changes on a second trip:\n" + *second + "\n---\n" + third.value_or(""));
  } catch (const Terminated&) {
  }
  return 0;
}
