// RecipeFile read by the recipe store.
#include "RecipeFileHarness.h"

ZY_FUZZ_HARNESS(recipe_recipe) { return zy::fuzz::recipeFileHarness(zy::kRecipeFile, data, size); }
