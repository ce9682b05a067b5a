#pragma once
// The check of the open recipe against the stock: each ingredient of the editor's grid is looked
// up by name in the inventory list of its kind; what the recipe needs is brought to the stock's
// unit when both are weights, and the shortfall is what the brewer must buy.
#include <string>
#include <vector>

#include "inventory/InventoryStore.h"
#include "inventory/ShoppingList.h"

namespace zy {

class IngredientTable;

struct StockCheckRow {
  int category = 0;
  std::string name;
  std::string units;  // the stock's unit when converted or in stock, else the recipe's
  double have = 0, need = 0, shortBy = 0;
  std::string haveText, needText, shortText;  // "0.0#"
  std::string status;  // "OK", "Short", "Not in Stock", "Units Differ"
  double unitCost = 0;  // the stock's cost per unit, else the recipe's
};

// Rows in grid order. A name found in no stock row has nothing on hand; units that differ and
// are not both weights cannot be compared, and the whole need is counted short.
std::vector<StockCheckRow> checkStock(const IngredientTable& grid, const Inventory& inventory);

// Adds every short row to the shopping list (adding to a row already there); the count added.
int addShortages(const std::vector<StockCheckRow>& rows, ShoppingList& list);

}  // namespace zy
