#pragma once
// The inventory window as a model: the category on show, the "Non Zero Only" filter, the sort
// of the list, and the commands that add, change, delete, comment, find and hand items on to the
// recipe editor or the shopping list. Every change is saved to the category's file at once, so
// the list stays the one working copy.
#include <string>
#include <vector>

#include "inventory/InventoryStore.h"

namespace zy {

class Workbench;
class RecipeEditor;

// What the add and edit dialogs of an item carry, as the user typed it.
struct InventoryItemFields {
  std::string name, qty, units, cost, extract, color, alpha, atten, type, vintage, reorderThresh, reorderQty,
      comments;
  bool mash = false;
};

class InventoryWindowModel {
 public:
  static constexpr const char* kSection = "Inventory";
  explicit InventoryWindowModel(Workbench& wb);

  int category = INV_MALT;
  bool nonZeroOnly = false;
  int sortColumn = 0;
  bool sortDescending = false;
  // Set while the window was opened from the recipe editor to pick ingredients.
  bool addToRecipeMode = false;

  InventoryList& list();
  // Row indices of the list in the order shown: filtered ("Non Zero Only" hides rows whose
  // quantity is 0) and sorted (numbers by value, texts as a reader sorts names).
  std::vector<size_t> visibleRows() const;
  // A click on a column head: that column ascending, or the other way on a second click.
  void sortBy(int column);

  // The dialog's fields for a row, and a row written from them in the list's display forms.
  InventoryItemFields fieldsOf(size_t row) const;
  // A new item: the defaults of its kind. Empty name is refused (the message says so).
  InventoryItemFields newItemFields() const;
  // Adds or (row >= 0) changes an item and saves the category; the row's index, -1 when the
  // name was empty ("Item name can not be blank", title "Invalid Entry").
  long saveItem(long row, const InventoryItemFields& f);
  // "Do you want to Delete '<name>' from the Inventory?"; true when it was removed and saved.
  bool deleteItem(size_t row);
  void setComment(size_t row, const std::string& text);
  // The next visible row after `after` (or from the top) whose name holds `text`, case-blind,
  // wrapping once; -1 when none.
  long findNext(const std::string& text, long after) const;
  // Adds the item to the open recipe with the item's own values and the kind's default
  // quantity; false for supplies, which recipes do not hold.
  bool addToRecipe(size_t row, RecipeEditor& editor) const;

  // "Non Zero Only" and the column widths (pixels) kept in the section "Inventory".
  void readSettings();
  void writeSettings() const;
  std::vector<int> columnWidths() const;
  void setColumnWidths(const std::vector<int>& widths) const;

 private:
  Workbench& wb_;
};

}  // namespace zy
