// RecipeItemsFile read by the recipe store.
#include "RecipeFileHarness.h"

ZY_FUZZ_HARNESS(recipe_items) { return zy::fuzz::recipeFileHarness(zy::kRecipeItemsFile, data, size); }
