// Verbs over the recipe editor's model: calc (the characteristics of a recipe as the editor
// shows them) and match (the styles that recipe fits).
#include "app/cli/Cli.h"
#include "calculators/HopsUtilization.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

// Loads what the editor works with at program start: the style tables and the hops curve.
void loadProgramTables(Workbench& wb) {
  LoadBeerStyles(wb);
  LoadHopsUtilization(wb.hops, wb.settings);
}

// Opens recipe `args[0]` in a fresh editor; EXIT_DONE when it opened.
int openInEditor(Context& c, RecipeEditor& editor, const char* verb) {
  long n;
  if (c.args.size() != 1 || !parseWhole(c.args[0], n) || n < 1 || n > 32767) return c.usage(std::string(verb) + " N");
  if (!requireStoredRecipe(c, verb, n)) return EXIT_REPORTED;
  loadProgramTables(c.wb);
  editor.initRecipeForm();
  return editor.openRecipe(n) ? EXIT_DONE : EXIT_REPORTED;
}

int verbCalc(Context& c) {
  RecipeEditor editor(c.wb);
  if (int status = openInEditor(c, editor, "calc"); status != EXIT_DONE) return status;
  const RecipeSheet& s = editor.sheet;
  c.line("Color=" + s.lblColor);
  c.line("OG=" + s.lblOG);
  c.line("FG=" + s.lblFG);
  c.line("Alcohol=" + s.lblAlcohol);
  c.line("IBU=" + s.lblIBU);
  c.line("Cost=" + s.grid.cell(s.grid.totalRow(), COL_COST));
  static const char* const names[5] = {"TargetOG", "TargetFG", "TargetIBU", "TargetColor", "TargetAlcohol"};
  for (size_t k = 0; k < 5; ++k)
    c.line(std::string(names[k]) + "=" + s.targets[k].text + " " + targetColourWord(s.targets[k].colour));
  c.line("Style=" + editor.cboBeerStyleText);
  c.line("ColorSample=" + itos(s.picColor.r) + "," + itos(s.picColor.g) + "," + itos(s.picColor.b));
  return EXIT_DONE;
}

int verbMatch(Context& c) {
  RecipeEditor editor(c.wb);
  if (int status = openInEditor(c, editor, "match"); status != EXIT_DONE) return status;
  for (const std::string& l : editor.openStyleMatch().lines()) c.line(l);
  return EXIT_DONE;
}

VerbRegistrar r1("calc", "calc N", verbCalc);
VerbRegistrar r2("match", "match N", verbMatch);

}  // namespace
}  // namespace zy::cli
