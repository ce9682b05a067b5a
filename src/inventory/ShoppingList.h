#pragma once
// The shopping list: what is to be bought, one row per item with its estimated cost, and the
// running total below. A row is known by its category and item name together, so the same name
// under another category is a row of its own. The cells hold the texts the list shows, and the
// total is summed from the shown row costs.
//
// The list is kept between runs in Data/ZYShopList.csv, in the form of its CSV export.
#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/ports.h"
#include "inventory/InventoryCsv.h"

namespace zy {

class IngredientTable;
struct Defaults;

inline constexpr const char* kShoppingListFile = "ZYShopList.csv";
inline constexpr const char* kShoppingSection = "Shopping List";
inline constexpr const char* kShoppingDefaultFile = "ZY Shopping List.csv";
inline constexpr const char* kWholeUnitsCaption = "Quantities should be rounded to the next whole unit when list is printed";

struct ShoppingRow {
  // [0] the category name (the row text), [1] item, [2] quantity "0.0#", [3] unit name,
  // [4] cost per unit and [5] the row's estimated cost ("Total"), both "Currency".
  std::array<std::string, 6> cells;
  // The quantity as it was last given, before the list's rounding to two decimals: the printed
  // list takes it up to whole units from here.
  double quantity = 0;
  const std::string& category() const { return cells[0]; }
  const std::string& item() const { return cells[1]; }
};

// A line of the printed list.
struct ShoppingReportLine {
  std::string quantity;  // "[  ] - " + quantity + " " + unit name
  std::string item;
  std::string cost;
};

class ShoppingList {
 public:
  static constexpr const char* kColumnHeads[6] = {"Category", "Item", "Quantity", "Units", "Cost/Unit", "Total"};

  std::vector<ShoppingRow> rows;
  // "Est. Total Cost:" and the sum as money; "$0.00" when empty.
  std::string lblTotalCost = "Est. Total Cost: $0.00";
  std::string totalCost = "$0.00";
  bool roundToWholeUnits = false;

  // Adds or updates the row of (category, name): with `addToExisting` the quantity is added to
  // the row's present one, otherwise it replaces it. Then the row's cost and the total.
  void addItem(int category, const std::string& name, double quantity, bool addToExisting, const std::string& units,
               double unitCost);
  void calcTotalCost();
  // Each ingredient of the editor's grid, in grid order, added up with rows already there.
  int addRecipe(const IngredientTable& grid);
  // The edit dialog's OK for row `index`: quantity and cost per unit replace the row's.
  bool editItem(size_t index, double quantity, double unitCost);
  // "Do you want to Delete '<item>' from Shopping List?"; true when the row was removed.
  bool deleteItem(size_t index, Prompter& prompter);
  // "Are you sure you want Clear the Shopping List?"; true when the list was emptied.
  bool clearList(Prompter& prompter);
  int find(const std::string& category, const std::string& name) const;

  // The printed list: one line per row, or the one sentence of an empty list, and the total.
  // With `roundToWholeUnits` a quantity is taken up to the next whole unit and costed again.
  std::vector<ShoppingReportLine> reportLines() const;
  std::string reportTotal() const;
  static constexpr const char* kEmptyReport = "There are currently no items in the Shopping List.";

  // The CSV of the export (head, rows, the total line), and the list read back from such a file.
  std::string csvText() const;
  std::optional<int> exportList(const ExchangePorts& p, const std::string& path);
  std::optional<int> mnuFileExport(const ExchangePorts& p);
  // "Replace Existing Entries..." asks first and empties the list; "Add to Existing Entries..."
  // goes on at once. Returns the count imported, nothing when the import stopped.
  bool confirmReplace(Prompter& prompter);
  std::optional<int> importList(const ExchangePorts& p, const std::string& path);
  std::optional<int> mnuFileImp(const ExchangePorts& p, bool replace);

  // Keeping the list between runs: quietly, without status log or messages.
  bool saveTo(const std::string& path) const;
  bool loadFrom(const std::string& path);

 private:
  // addItem without the total, for the loops that add many rows and total them once at the end;
  // with an index (category, newline, item -> row) a row is found without a pass over the list.
  using RowIndex = std::unordered_map<std::string, size_t>;
  void putItem(int category, const std::string& name, double quantity, bool addToExisting, const std::string& units,
               double unitCost, RowIndex* index = nullptr);
};

// The "Add to Shopping List" dialog's fields for one item: the unit named by the caller's index
// within the units of the category ("Undefined" for a negative one), the quantity handed in when
// above 0 (else "1.0"), the cost as money, and the steps of the up-down buttons of the kind.
struct AddToShopForm {
  int category = 0;
  std::string txtItem, txtQty = "1.0", txtUnitCost = "$0.00", lblUnits;
  bool chkAddToItem = false;
  double qtyStep = 1, costStep = 0.05;

  static AddToShopForm addToShoppingList(int category, const std::string& name, double quantity, int unitIndex,
                                         double unitCost, const Defaults& defaults);
  // The row as it stands, for "Edit Shopping List Entry".
  static AddToShopForm editEntry(const ShoppingRow& row, const Defaults& defaults);
  // One step of an up-down button (direction +1 or -1), never below 0.
  void stepQty(int direction);
  void stepCost(int direction);
  // OK: the two fields by strict reading; false (and nothing added) when one is no number.
  bool ok(ShoppingList& list) const;
};

}  // namespace zy
