#include "inventory/InventoryStartup.h"

#include "workbench/Workbench.h"

namespace zy {

void loadInventoryAndShopping(Workbench& wb) {
  loadInventories(wb.folder, wb.errors, wb.inventory);
  const std::string kept = wb.folder.dataFile(kShoppingListFile);
  if (fileExists(kept)) wb.shopping.loadFrom(kept);
}

bool keepShoppingList(Workbench& wb) { return wb.shopping.saveTo(wb.folder.dataFile(kShoppingListFile)); }

}  // namespace zy
