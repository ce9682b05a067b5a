#pragma once
// The inventory's part of the program start, and keeping the shopping list between runs.
namespace zy {

class Workbench;

// Loads the five stock lists (writing an empty file for a category that has none yet) and the
// shopping list kept from the last run.
void loadInventoryAndShopping(Workbench& wb);
// Writes the shopping list to Data/ZYShopList.csv; false when it could not be written.
bool keepShoppingList(Workbench& wb);

}  // namespace zy
