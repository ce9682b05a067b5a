// Verbs over the text tools: instructions (the written brewing procedure of a recipe) and read
// (a recipe written as plain text, read into a new or an existing recipe and saved).
#include <algorithm>
#include <fstream>
#include <sstream>

#include "app/cli/Cli.h"
#include "calculators/HopsUtilization.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "reader/RecipeReader.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "recipes/SmartInstructions.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

int verbInstructions(Context& c) {
  if (c.args.size() != 1) return c.usage("instructions N");
  RecipeEditor editor(c.wb);
  if (int s = openStoredRecipe(c, editor, c.args[0], "instructions", "instructions N"); s != EXIT_DONE) return s;
  const std::string text = generateSmartInstructions(editor);
  if (!text.empty()) c.line(replaceAll(text, "\r\n", "\n"));
  return EXIT_DONE;
}

std::string shown(const std::string& text) {
  std::string t = replaceAll(trim(text), "\r\n", "\\n");
  return replaceAll(replaceAll(t, "\n", "\\n"), "\r", "\\n");
}

// What a read recipe holds, as stored: its name, volumes, boil time, ingredients, stages and
// priming comment.
void printReadRecipe(const Context& c, const CurrentRecipe& cur) {
  const RecipeRecord& r = cur.rec;
  const Measures& m = measures();
  c.line("recipeName=" + shown(r.recipeName));
  c.line("boilVolume=" + plainText(r.boilVolume));
  c.line("fermentVolume=" + plainText(r.fermentVolume));
  c.line("volumeUnits=" + itos(r.volumeUnits) + " " + listText(m.volumeUnits, r.volumeUnits));
  c.line("boilTime=" + plainText(r.boilTime));
  const int count = std::clamp(r.itemCount, 0, kMaxRecipeItems);
  static const char* const kinds[4] = {"malt", "hops", "other", "yeast"};
  for (int k = 0; k < count; ++k) {
    const RecipeItemRecord& it = cur.items[static_cast<size_t>(k)];
    const int kind = std::clamp(it.itemKind, 0, 3);
    const StringList& units = kind == KIND_OTHER ? m.otherUnits : kind == KIND_YEAST ? m.yeastUnits : m.weightUnits;
    c.line("item[" + itos(k) + "]=" + kinds[kind] + "\t" + shown(it.itemName) + "\t" + plainText(it.quantity) + "\t" +
           listText(units, it.quantityUnits) + "\t" + plainText(it.rating) + "\t" + plainText(it.detail) + "\t" +
           (it.mashFlag != 0 ? "mash" : "-"));
  }
  for (size_t k = 0; k < 3; ++k)
    c.line("stage[" + std::to_string(k) + "]=" + plainText(r.fermentTime[k]) + " " +
           listText(m.timeUnits, r.fermentTimeUnits[k]) + "\t" + plainText(r.fermentTemp[k]) + "\t" +
           listText(m.vessels, r.fermentVessel[k]));
  c.line("primingComment=" + shown(r.primingComment));
}

int verbRead(Context& c) {
  long into = 0;
  const bool intoGiven = c.args.size() == 3 && c.args[1] == "--into";
  if (!(c.args.size() == 1 || (intoGiven && parseWhole(c.args[2], into) && into >= 1 && into <= 32767)))
    return c.usage("read FILE [--into N]");
  std::ifstream in(c.pathArg(0), std::ios::binary);
  if (!in) {
    std::fprintf(c.err, "read: cannot read %s\n", c.pathArg(0).c_str());
    return EXIT_REPORTED;
  }
  std::ostringstream buf;
  buf << in.rdbuf();
  std::string text = crlfText(buf.str());
  if (isUtf8Text(text)) text = utf8ToCp1252(text);

  Workbench& wb = c.wb;
  loadProgramTables(wb);
  RecipeEditor editor(wb);
  editor.initRecipeForm();
  long number = into;
  if (intoGiven) {
    if (!requireStoredRecipe(c, "read", into) || !editor.openRecipe(into)) return EXIT_REPORTED;
  } else {
    newRecipeRecord(wb);
    number = findNextRecipeSlot(wb);
    if (number < 1) return EXIT_REPORTED;
    wb.recipe.rec.recipeNo = static_cast<int>(number);
    editor.populateRecipeForm();
  }
  RecipeReader reader(editor);
  reader.txtComment = text;
  if (!reader.mnuFileExtractRecipe()) return EXIT_REPORTED;
  if (!editor.mnuFileSave_Click() || !loadRecipe(wb, number)) return EXIT_REPORTED;
  c.line(itos(number));
  printReadRecipe(c, wb.recipe);
  return wb.errors.reportCount > 0 ? EXIT_REPORTED : EXIT_DONE;
}

VerbRegistrar r1("instructions", "instructions N", verbInstructions);
VerbRegistrar r2("read", "read FILE [--into N]", verbRead);

}  // namespace
}  // namespace zy::cli
