// Verbs over the recipe editor's model: calc (the characteristics of a recipe as the editor
// shows them) and match (the styles that recipe fits).
#include "app/cli/Cli.h"
#include "calculators/HopsUtilization.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

// Opens recipe `args[0]` in a fresh editor; EXIT_DONE when it opened.
int openInEditor(Context& c, RecipeEditor& editor, const char* verb) {
  if (c.args.size() != 1) return c.usage(std::string(verb) + " N");
  return openStoredRecipe(c, editor, c.args[0], verb, std::string(verb) + " N");
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
