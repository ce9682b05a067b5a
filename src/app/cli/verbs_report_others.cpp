// The printed reports of the stock, the shopping list, the hops curve, the styles and the batch
// logs, offered by the `report` verb: report inventory CATEGORY | hops | style NAME|KEY |
// batchlog N LOG | shopping | brewday N. Each builds its data as the window that prints it holds
// them, and hands the report the same procedure the window's print preview draws.
#include <memory>

#include "app/cli/Cli.h"
#include "app/cli/ReportVerbs.h"
#include "batchlog/BatchLogEditor.h"
#include "batchlog/BatchLogReport.h"
#include "batchlog/BrewingDayForm.h"
#include "calculators/HopsUtilization.h"
#include "calculators/HopsUtilizationEditor.h"
#include "calculators/HopsUtilizationReport.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "inventory/InventoryReport.h"
#include "inventory/InventoryWindow.h"
#include "inventory/ShoppingList.h"
#include "inventory/ShoppingListReport.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "styles/BeerStylesReport.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

// The data a report draws from lives as long as the report: the request holds it.
template <class T>
void holding(ReportRequest& req, std::shared_ptr<T> data) {
  ReportProc draw = std::move(req.draw);
  req.draw = [data, draw](Report& r) { draw(r); };
  if (req.toFile) {
    auto toFile = std::move(req.toFile);
    req.toFile = [data, toFile](const std::string& path) { return toFile(path); };
  }
}

// Opens recipe `arg` into the editor as the recipe list's open does; false after saying why.
bool openRecipeArg(Context& c, RecipeEditor& editor, const std::string& arg, const char* usage, int& status) {
  status = openStoredRecipe(c, editor, arg, "report", usage);
  return status == EXIT_DONE;
}

int buildInventory(Context& c, ReportRequest& req) {
  const int category = c.args.size() == 1 ? parseInventoryCategory(c.args[0]) : -1;
  if (category < 0) return c.usage("report inventory CATEGORY");
  InventoryStore store(c.wb.folder, c.wb.errors, c.wb.inventory);
  if (!fileExists(c.wb.folder.dataFile(inventoryFileName(category)))) store.save(category);
  store.load(category);
  // The rows as the inventory window shows them: its filter and its order.
  InventoryWindowModel window(c.wb);
  window.category = category;
  window.readSettings();
  InventoryReportOptions options;
  options.printComments = lenientValue(c.wb.settings.read(InventoryWindowModel::kSection, "Print Comments", "1")) != 0;
  req = inventoryReportRequest(c.wb.inventory.list(category), window.visibleRows(), options, c.wb.clock.now(),
                               c.wb.prompter);
  return EXIT_DONE;
}

int buildShopping(Context& c, ReportRequest& req) {
  if (!c.args.empty()) return c.usage("report shopping");
  const std::string kept = c.wb.folder.dataFile(kShoppingListFile);
  if (fileExists(kept)) c.wb.shopping.loadFrom(kept);
  req = shoppingListReportRequest(c.wb.shopping, c.wb.clock.now());
  return EXIT_DONE;
}

int buildHops(Context& c, ReportRequest& req) {
  if (!c.args.empty()) return c.usage("report hops");
  LoadHopsUtilization(c.wb.hops, c.wb.settings);
  auto editor = std::make_shared<HopsUtilizationEditor>();
  editor->load(c.wb.hops);
  req = hopsUtilizationReportRequest(*editor);
  holding(req, editor);
  return EXIT_DONE;
}

// A style by its key (the row number the list of styles shows) or its name; else a category by
// its label or its name, which prints all its styles. Names are compared without regard to case.
int buildStyle(Context& c, ReportRequest& req) {
  if (c.args.size() != 1) return c.usage("report style NAME|KEY");
  LoadBeerStyles(c.wb);
  const StyleTables& t = c.wb.styles;
  const std::string& arg = c.args[0];
  long key;
  int row = -1;
  if (parseWhole(arg, key) && key <= 32767) row = findStyleRow(t, static_cast<int>(key));
  for (int i = 0; row < 0 && i < t.BeerStyleCount && i < kStyleTableRows; ++i)
    if (iequals(trim(t.BeerStyles[static_cast<size_t>(i)].styleName), trim(arg))) row = i;
  if (row >= 0) {
    req = beerStylesReportRequest(t, {row}, "");
    return EXIT_DONE;
  }
  for (int i = 0; i < t.BeerCategoryCount && i < kCategoryTableRows; ++i) {
    const BeerCategoryRecord& cat = t.BeerCategories[static_cast<size_t>(i)];
    const std::string label = categoryLabel(t, i, false);
    if (iequals(label, trim(arg)) || iequals(trim(cat.category), trim(arg))) {
      req = beerStylesReportRequest(t, stylesOfCategory(t, cat.categoryIndex), label);
      return EXIT_DONE;
    }
  }
  std::fprintf(c.err, "zythara-cli: report: there is no style or category %s\n", displayUtf8(arg).c_str());
  return EXIT_REPORTED;
}

// The log of "Batch #" LOG of recipe N, opened as the list of logs opens it, with the recipe open
// in an editor for the target and the units.
int buildBatchLog(Context& c, ReportRequest& req) {
  long batch;
  if (c.args.size() != 2 || !parseWhole(c.args[1], batch)) return c.usage("report batchlog N LOG");
  struct Held {
    explicit Held(Workbench& wb) : recipe(wb), editor(wb, list) {}
    RecipeEditor recipe;
    BatchLogList list;
    BatchLogEditor editor;
  };
  auto h = std::make_shared<Held>(c.wb);
  int status;
  if (!openRecipeArg(c, h->recipe, c.args[0], "report batchlog N LOG", status)) return status;
  if (!h->list.loadBatchLogList(c.wb, c.wb.recipe.rec.recipeNo)) return EXIT_REPORTED;
  long recordNo = 0;
  for (const BatchLogEntry& e : h->list.entries)
    if (lenientValue(e.batchNo) == static_cast<double>(batch)) recordNo = e.recordNo;
  if (!recordNo) {
    std::fprintf(c.err, "zythara-cli: report: recipe %s has no batch log %ld\n", c.args[0].c_str(), batch);
    return EXIT_REPORTED;
  }
  LogRecipeContext ctx;
  ctx.grid = &h->recipe.sheet.grid;
  ctx.mashEfficiency = c.wb.recipe.rec.mashEfficiency;
  ctx.unitType = c.wb.recipe.rec.unitType;
  ctx.volumeUnitName = listText(measures().volumeUnits, c.wb.recipe.rec.volumeUnits);
  h->editor.setRecipe(ctx);
  if (!h->editor.openLog(recordNo)) return EXIT_REPORTED;
  req = batchLogReportRequest(h->editor, c.wb.recipe.rec.recipeName, c.wb.prompter);
  holding(req, h);
  return EXIT_DONE;
}

int buildBrewDay(Context& c, ReportRequest& req) {
  if (c.args.size() != 1) return c.usage("report brewday N");
  auto editor = std::make_shared<RecipeEditor>(c.wb);
  int status;
  if (!openRecipeArg(c, *editor, c.args[0], "report brewday N", status)) return status;
  req = brewingDayFormRequest(c.wb.recipe.rec, editor->sheet);
  holding(req, editor);
  return EXIT_DONE;
}

ReportVerbRegistrar r1("inventory", "inventory CATEGORY", buildInventory);
ReportVerbRegistrar r2("shopping", "shopping", buildShopping);
ReportVerbRegistrar r3("hops", "hops", buildHops);
ReportVerbRegistrar r4("style", "style NAME|KEY", buildStyle);
ReportVerbRegistrar r5("batchlog", "batchlog N LOG", buildBatchLog);
ReportVerbRegistrar r6("brewday", "brewday N", buildBrewDay);

}  // namespace
}  // namespace zy::cli
