#pragma once
// A recipe open in the editor model, for the calculators to work on.
#include <functional>
#include <string>
#include <vector>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

namespace zy::test {

struct CalcBench {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor editor{wb};

  // Shows a recipe of 5 US gallons (6.0 to the boil, 60 minutes) made of the given items.
  void open(const std::vector<RecipeItemRecord>& items, std::function<void(RecipeRecord&)> extra = {}) {
    newRecipeRecord(wb);
    CurrentRecipe& cur = wb.recipe;
    RecipeRecord& r = cur.rec;
    r.recipeNo = 1, r.volumeUnits = US_GAL_CONST, r.fermentVolume = 5, r.boilVolume = 6, r.boilTime = 60, r.mashType = 3;
    for (size_t k = 0; k < items.size(); ++k) cur.items[k] = items[k];
    cur.rec.itemCount = static_cast<int>(items.size());
    if (extra) extra(cur.rec);
    editor.initRecipeForm();
    editor.populateRecipeForm();
  }

  static RecipeItemRecord pale(double lbs = 8) { return makeItem(KIND_MALT, "Pale Malt", lbs, UNIT_LBS, 1.10, 1.036, 3, -1); }
  static RecipeItemRecord crystal(double lbs = 1) {
    return makeItem(KIND_MALT, "Crystal 60", lbs, UNIT_LBS, 1.60, 1.034, 60, 0);
  }
  static RecipeItemRecord hops(double oz) { return makeItem(KIND_HOPS, "Cascade", oz, UNIT_OZ, 1.25, 5.5, 60); }
};

}  // namespace zy::test
