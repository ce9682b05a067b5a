#pragma once
// The three recipe files: one of them from the input, the others sound. A recipe that loads is
// saved and loaded again, and must come back the same.
#include "FuzzSupport.h"
#include "core/records.h"
#include "recipes/RecipeStore.h"

namespace zy::fuzz {

inline int recipeFileHarness(const char* file, const uint8_t* data, size_t size) {
  Env& e = env();
  Workbench& wb = *e.wb;
  e.clearData();
  // Recipe 1 claims the most items and comment pieces, so that the input file is read through.
  RecipeRecord r;
  r.recipeNo = 1, r.itemCount = kMaxRecipeItems, r.commentCount = 32767, r.recipeName = "Fuzz";
  writeAll(e.data(kRecipeFile), r.encode());
  writeAll(e.data(file), text(data, size));
  try {
    scanRecipes(wb, [](long, const RecipeRecord&) {});
    wb.recipeSlotPosition = 1;
    findNextRecipeSlot(wb);
    // The first save settles what a load adjusts (the count of items found, the comment pieces);
    // from there a save and a load change nothing.
    if (!loadRecipe(wb, 1) || !saveCurrentRecipe(wb) || !loadRecipe(wb, 1)) return 0;
    const std::string rec = wb.recipe.rec.encode();
    const std::string comment = wb.recipe.comment;
    std::vector<std::string> items;
    for (int k = 0; k < wb.recipe.rec.itemCount; ++k) items.push_back(wb.recipe.items[k].itemName);
    if (!saveCurrentRecipe(wb)) return 0;
    check(loadRecipe(wb, 1), "a saved recipe does not load");
    check(wb.recipe.rec.encode() == rec, "the recipe record changed through a save");
    check(wb.recipe.comment == comment, "the comment changed through a save");
    for (int k = 0; k < wb.recipe.rec.itemCount && k < static_cast<int>(items.size()); ++k)
      check(wb.recipe.items[k].itemName == items[static_cast<size_t>(k)],
            "an item changed through a save");
    deleteRecipe(wb, 1);
  } catch (const Terminated&) {
  }
  return 0;
}

}  // namespace zy::fuzz
