// Verbs over the recipe list and the exchange format: list, tree, import, export.
#include <cerrno>
#include <cstring>
#include <cstdio>

#include "app/cli/Cli.h"
#include "core/text.h"
#include "recipes/RecipeExchange.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"

namespace zy::cli {
namespace {

// Reads [--sort MODE] [--log-count]; the saved "Sort By" and "Show Log Count" stand otherwise.
// Builds the tree as the list window does when it opens. False on bad usage.
bool buildTree(Context& c, const char* usageText, int& status) {
  RecipeListSettings s = RecipeListSettings::read(c.wb);
  int mode = s.sortBy;
  bool logCount = s.showLogCount;
  for (size_t i = 0; i < c.args.size(); ++i) {
    const std::string& a = c.args[i];
    long v;
    if (a == "--sort" && i + 1 < c.args.size() && parseWhole(c.args[i + 1], v) && v >= 0 && v <= 4) {
      mode = static_cast<int>(v);
      ++i;
    } else if (startsWith(a, "--sort=") && parseWhole(a.substr(7), v) && v >= 0 && v <= 4) {
      mode = static_cast<int>(v);
    } else if (a == "--log-count") {
      logCount = true;
    } else {
      status = c.usage(usageText);
      return false;
    }
  }
  RecipeList& list = c.wb.recipeList;
  list.mnuSortLogCount = logCount;
  list.sortMode = -1;
  list.mnuSortBy_Click(c.wb, mode);
  status = EXIT_DONE;
  return true;
}

int verbList(Context& c) {
  int status;
  if (!buildTree(c, "list [--sort MODE] [--log-count]", status)) return status;
  std::vector<std::string> lines = c.wb.recipeList.recipeListLines(c.wb);
  if (lines.empty()) {
    c.wb.prompter.message("Unable to Generate Output File", "Error", Icon::Critical);
    return EXIT_REPORTED;
  }
  for (const std::string& l : lines) c.line(l);
  return EXIT_DONE;
}

int verbTree(Context& c) {
  int status;
  if (!buildTree(c, "tree [--sort MODE] [--log-count]", status)) return status;
  const RecipeList& list = c.wb.recipeList;
  c.line(list.lblTitle);
  for (const RecipeNode* n : list.tree.displayOrder()) c.line((n->isLeaf() ? "  " : "") + n->text);
  return EXIT_DONE;
}

int verbImport(Context& c) {
  if (c.args.size() != 1) return c.usage("import FILE");
  const std::string& path = c.pathArg(0);
  if (!fileExists(path)) {
    std::fprintf(c.err, "zythara-cli: import: no such file: %s\n", path.c_str());
    return EXIT_USAGE;
  }
  // The tree first, so that uniqueName and the numbering see every stored recipe.
  c.wb.recipeList.formLoad(c.wb);
  long n = c.wb.recipeList.importRecipeFile(c.wb, path);
  if (n < 1) return EXIT_REPORTED;
  c.line(itos(n) + "\t" + trim(c.wb.recipe.rec.recipeName));
  return EXIT_DONE;
}

int verbExport(Context& c) {
  long n;
  if (c.args.size() != 2 || !parseWhole(c.args[0], n) || n < 1) return c.usage("export N FILE");
  if (!requireStoredRecipe(c, "export", n) || !loadRecipe(c.wb, n)) return EXIT_REPORTED;
  std::FILE* f = std::fopen(c.pathArg(1).c_str(), "wb");
  if (!f) {
    std::fprintf(c.err, "zythara-cli: export: cannot write %s: %s\n", c.pathArg(1).c_str(),
                 std::strerror(errno));
    return EXIT_REPORTED;
  }
  bool ok = exportRecipe(c.wb, f);
  if (std::fclose(f) != 0) ok = false;
  return ok ? EXIT_DONE : EXIT_REPORTED;
}

VerbRegistrar r1("list", "list [--sort MODE] [--log-count]", verbList);
VerbRegistrar r2("tree", "tree [--sort MODE] [--log-count]", verbTree);
VerbRegistrar r3("import", "import FILE", verbImport);
VerbRegistrar r4("export", "export N FILE", verbExport);

}  // namespace
}  // namespace zy::cli
