// The recipe text reader: any text, 8-bit or UTF-8, read into a new recipe that is then saved and
// loaded again.
#include "FuzzSupport.h"
#include "calculators/HopsUtilization.h"
#include "core/records.h"
#include "core/text.h"
#include "reader/RecipeReader.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"

using namespace zy;

ZY_FUZZ_HARNESS(recipe_reader) {
  fuzz::Env& e = fuzz::env();
  Workbench& wb = *e.wb;
  e.clearData();
  std::string text = crlfText(std::string(reinterpret_cast<const char*>(data), size));
  if (isUtf8Text(text)) text = utf8ToCp1252(text);
  try {
    static const bool tables = (LoadBeerStyles(wb), LoadHopsUtilization(wb.hops, wb.settings), true);
    (void)tables;
    RecipeEditor editor(wb);
    editor.initRecipeForm();
    newRecipeRecord(wb);
    wb.recipeSlotPosition = 1;
    const long number = findNextRecipeSlot(wb);
    if (number < 1) return 0;
    wb.recipe.rec.recipeNo = static_cast<int>(number);
    editor.populateRecipeForm();
    RecipeReader reader(editor);
    reader.txtComment = text;
    if (!reader.mnuFileExtractRecipe() || !editor.mnuFileSave_Click()) return 0;
    const int items = wb.recipe.rec.itemCount;
    const std::string name = rtrim(wb.recipe.rec.recipeName);
    fuzz::check(items >= 0 && items <= kMaxRecipeItems, "a read recipe holds more items than a recipe can");
    fuzz::check(loadRecipe(wb, number), "a read recipe does not load after its save");
    fuzz::check(wb.recipe.rec.itemCount == items && rtrim(wb.recipe.rec.recipeName) == name,
                "a read recipe changed through its save");
  } catch (const Terminated&) {
  }
  return 0;
}
