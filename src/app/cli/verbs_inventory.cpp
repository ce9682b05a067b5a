// Verbs over the stock and the shopping list: inventory list|export|import|check, and shopping
// add-recipe|list|export|import|clear. Messages the windows would show go to standard error;
// imports and exports write ZYStatus.log as the windows do.
#include "app/cli/Cli.h"
#include "calculators/HopsUtilization.h"
#include "core/text.h"
#include "inventory/InventoryCsv.h"
#include "inventory/InventoryStartup.h"
#include "inventory/StockCheck.h"
#include "recipes/RecipeEditor.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

const char* const kInventoryUsage = "inventory list|export|import|check ...";
const char* const kShoppingUsage = "shopping add-recipe|list|export|import|clear ...";

ExchangePorts ports(Context& c) { return {c.wb.folder, c.wb.prompter, c.wb.settings, c.wb.clock, c.wb.errors}; }

std::string joinTabs(const std::vector<std::string>& cells) {
  std::string s;
  for (size_t i = 0; i < cells.size(); ++i) {
    std::string t = replaceAll(cells[i], "\r\n", "\\n");
    t = replaceAll(replaceAll(t, "\n", "\\n"), "\r", "\\n");
    s += (i ? "\t" : "") + t;
  }
  return s;
}

// Loads one category as the program start does: a file not there yet is written empty first.
bool loadCategory(Context& c, int category) {
  InventoryStore store(c.wb.folder, c.wb.errors, c.wb.inventory);
  if (!fileExists(c.wb.folder.dataFile(inventoryFileName(category)))) store.save(category);
  return store.load(category);
}

// Opens recipe N into a fresh editor, as the recipe list's open does.
bool openRecipe(Context& c, RecipeEditor& editor, const std::string& arg, const char* verb, int& status) {
  status = openStoredRecipe(c, editor, arg, verb, std::string(verb) + " N");
  return status == EXIT_DONE;
}

int verbInventory(Context& c) {
  const auto& a = c.args;
  if (a.empty()) return c.usage(kInventoryUsage);
  const std::string& sub = a[0];
  if (sub == "check") {
    if (a.size() != 2) return c.usage("inventory check N");
    RecipeEditor editor(c.wb);
    int status;
    if (!openRecipe(c, editor, a[1], "inventory check", status)) return status;
    for (int k = 0; k < kInventoryCategories; ++k) loadCategory(c, k);
    for (const StockCheckRow& r : checkStock(editor.sheet.grid, c.wb.inventory))
      c.line(joinTabs({inventoryCategoryName(r.category), r.name, r.haveText, r.needText, r.shortText, r.units,
                       r.status}));
    return EXIT_DONE;
  }
  const int category = a.size() >= 2 ? parseInventoryCategory(a[1]) : -1;
  if (sub == "list") {
    if (a.size() != 2 || category < 0) return c.usage("inventory list CATEGORY");
    loadCategory(c, category);
    for (const InventoryRow& row : c.wb.inventory.list(category).rows) c.line(joinTabs(row.cells));
    return EXIT_DONE;
  }
  if (sub == "export") {
    if (a.size() != 3 || category < 0) return c.usage("inventory export CATEGORY FILE");
    loadCategory(c, category);
    return exportInventory(ports(c), c.wb.inventory.list(category), c.pathArg(2)) ? EXIT_DONE : EXIT_REPORTED;
  }
  if (sub == "import") {
    const bool replace = a.size() == 4 && a[3] == "--replace";
    if (a.size() < 3 || a.size() > 4 || category < 0 || (a.size() == 4 && !replace))
      return c.usage("inventory import CATEGORY FILE [--replace]");
    loadCategory(c, category);
    if (replace && !confirmInventoryReplace(c.wb.prompter, category)) return EXIT_DONE;
    ImportResult r = importInventory(ports(c), c.wb.inventory, category, c.pathArg(2), replace);
    if (r.flags != IMPORT_END_OF_FILE) return EXIT_REPORTED;
    InventoryStore store(c.wb.folder, c.wb.errors, c.wb.inventory);
    return store.saveInventory(category) ? EXIT_DONE : EXIT_REPORTED;
  }
  return c.usage(kInventoryUsage);
}

void printShoppingList(Context& c) {
  for (const ShoppingRow& r : c.wb.shopping.rows) c.line(joinTabs({r.cells.begin(), r.cells.end()}));
  c.line(c.wb.shopping.lblTotalCost);
}

int verbShopping(Context& c) {
  const auto& a = c.args;
  if (a.empty()) return c.usage(kShoppingUsage);
  const std::string& sub = a[0];
  ShoppingList& list = c.wb.shopping;
  const std::string kept = c.wb.folder.dataFile(kShoppingListFile);
  if (fileExists(kept)) list.loadFrom(kept);
  auto keep = [&] {
    if (keepShoppingList(c.wb)) return EXIT_DONE;
    std::fprintf(c.err, "zythara-cli: shopping: cannot write %s\n", kept.c_str());
    return EXIT_REPORTED;
  };
  if (sub == "list") {
    if (a.size() != 1) return c.usage("shopping list");
    printShoppingList(c);
    return EXIT_DONE;
  }
  if (sub == "add-recipe") {
    if (a.size() != 2) return c.usage("shopping add-recipe N");
    RecipeEditor editor(c.wb);
    int status;
    if (!openRecipe(c, editor, a[1], "shopping add-recipe", status)) return status;
    list.addRecipe(editor.sheet.grid);
    printShoppingList(c);
    return keep();
  }
  if (sub == "export") {
    if (a.size() != 2) return c.usage("shopping export FILE");
    return list.exportList(ports(c), c.pathArg(1)) ? EXIT_DONE : EXIT_REPORTED;
  }
  if (sub == "import") {
    const bool replace = a.size() == 3 && a[2] == "--replace";
    if (a.size() < 2 || a.size() > 3 || (a.size() == 3 && !replace)) return c.usage("shopping import FILE [--replace]");
    if (replace) {
      if (!list.confirmReplace(c.wb.prompter)) return EXIT_DONE;
      list.rows.clear();
      list.calcTotalCost();
    }
    std::optional<int> n = list.importList(ports(c), c.pathArg(1));
    int status = keep();
    return n ? status : EXIT_REPORTED;
  }
  if (sub == "clear") {
    if (a.size() != 1) return c.usage("shopping clear");
    if (!list.clearList(c.wb.prompter)) return EXIT_DONE;
    return keep();
  }
  return c.usage(kShoppingUsage);
}

VerbRegistrar r1("inventory", "inventory list|export|import|check CATEGORY|N [FILE] [--replace]", verbInventory);
VerbRegistrar r2("shopping", "shopping add-recipe N|list|export FILE|import FILE [--replace]|clear", verbShopping);

}  // namespace
}  // namespace zy::cli
