// The recipe reports of the `report` verb: `recipe N`, the recipe sheet of stored recipe N as the
// editor shows it, and `recipe-list [--sort MODE]`, the list of recipes (with its file form).
#include <memory>

#include "app/cli/Cli.h"
#include "app/cli/ReportVerbs.h"
#include "calculators/HopsUtilization.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeListReport.h"
#include "recipes/RecipeReport.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

// The editor the recipe report reads; it lives as long as the command.
std::unique_ptr<RecipeEditor>& reportEditor() {
  static std::unique_ptr<RecipeEditor> e;
  return e;
}

int buildRecipeReport(Context& c, ReportRequest& request) {
  if (c.args.size() != 1) return c.usage("report recipe N");
  reportEditor() = std::make_unique<RecipeEditor>(c.wb);
  RecipeEditor& editor = *reportEditor();
  if (int s = openStoredRecipe(c, editor, c.args[0], "report recipe", "report recipe N"); s != EXIT_DONE) return s;
  request = recipeReportRequest(editor);
  return EXIT_DONE;
}

int buildRecipeListReport(Context& c, ReportRequest& request) {
  RecipeListSettings s = RecipeListSettings::read(c.wb);
  int mode = s.sortBy;
  for (size_t i = 0; i < c.args.size(); ++i) {
    long v;
    if (c.args[i] == "--sort" && i + 1 < c.args.size() && parseWhole(c.args[i + 1], v) && v >= 0 && v <= 4) {
      mode = static_cast<int>(v);
      ++i;
    } else {
      return c.usage("report recipe-list [--sort MODE]");
    }
  }
  RecipeList& list = c.wb.recipeList;
  list.mnuSortLogCount = s.showLogCount;
  list.sortMode = -1;
  list.mnuSortBy_Click(c.wb, mode);
  request = recipeListReportRequest(c.wb);
  return EXIT_DONE;
}

ReportVerbRegistrar r1("recipe", "recipe N", buildRecipeReport);
ReportVerbRegistrar r2("recipe-list", "recipe-list [--sort MODE]", buildRecipeListReport);

}  // namespace
}  // namespace zy::cli
