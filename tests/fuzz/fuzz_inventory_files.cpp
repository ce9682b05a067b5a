// The five inventory files through the store's dispatcher: the first byte picks the category,
// the rest is its file. A list that loads is saved and loaded again; from there a save writes the
// same bytes and a load gives the same rows.
#include "FuzzSupport.h"
#include "inventory/InventoryStore.h"

using namespace zy;

ZY_FUZZ_HARNESS(inventory_files) {
  if (size < 1) return 0;
  fuzz::Env& e = fuzz::env();
  Workbench& wb = *e.wb;
  e.clearData();
  const int category = data[0] % kInventoryCategories;
  const std::string path = e.data(inventoryFileName(category));
  fuzz::writeAll(path, std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
  Inventory inv;
  InventoryStore store(wb.folder, wb.errors, inv);
  try {
    // The first save settles what a load adjusts (texts rounded as the list shows them).
    if (!store.load(category) || !store.saveInventory(category) || !store.load(category)) return 0;
    const std::string bytes = fuzz::readAll(path);
    const std::vector<InventoryRow> rows = inv.list(category).rows;
    fuzz::check(store.saveInventory(category), "a loaded list does not save");
    fuzz::check(fuzz::readAll(path) == bytes, "the inventory file changed through a load and a save");
    fuzz::check(store.load(category), "a saved list does not load");
    const auto& again = inv.list(category).rows;
    fuzz::check(again.size() == rows.size(), "the row count changed through a save");
    for (size_t i = 0; i < rows.size() && i < again.size(); ++i)
      fuzz::check(again[i].cells == rows[i].cells, "a row changed through a save: " + rows[i].cells[0]);
  } catch (const Terminated&) {
  }
  return 0;
}
