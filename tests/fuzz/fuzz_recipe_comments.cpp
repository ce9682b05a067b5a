// CommentFile read by the recipe store.
#include "RecipeFileHarness.h"

ZY_FUZZ_HARNESS(recipe_comments) { return zy::fuzz::recipeFileHarness(zy::kCommentFile, data, size); }
