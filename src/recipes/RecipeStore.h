#pragma once
// The recipe store: ZYRecipe.dat, ZYRItems.dat and ZYComment.dat below Data/. The record number
// in ZYRecipe.dat is a recipe's identity; its items and comment pieces carry that number as their
// owner. Every operation works on the workbench's current recipe and opens the files for the
// duration of the call only.
#include <functional>
#include <string>

#include "recipes/RecipeRecords.h"

namespace zy {

class Workbench;

// Resets the current recipe to a new recipe: the record filled from the defaults, dated today,
// recipeNo 0, 13 empty mash steps, no items and an empty comment.
void newRecipeRecord(Workbench& wb);

// The record number for a new recipe: the first free slot (recipeNo 0) at or after the
// remembered position, or one past the end of the file. The position stays there.
// Returns 0 when the search was stopped by a corrupted record, or when the file already holds
// the most recipes a 16-bit record number can name (kMaxRecipeNo), after saying so.
constexpr long kMaxRecipeNo = 32767;
long findNextRecipeSlot(Workbench& wb);

// Writes the current recipe's items and comment pieces, reusing free records from the front, and
// then its record at recipeNo. False when an error stopped it, or when the comment is longer than
// kMaxCommentLength (said so, nothing written).
constexpr size_t kMaxCommentLength = 32767 * 120;
bool saveCurrentRecipe(Workbench& wb);

// Fills the current recipe from record recipeNo, its items and its comment. False when an error
// stopped it (the error has been reported).
bool loadRecipe(Workbench& wb, long recipeNo);

// Frees a recipe's record, items and comment pieces (recipeNo 0), and its batch logs with them.
// Nothing is removed from a file.
bool deleteRecipe(Workbench& wb, long recipeNo);

// Reads ZYRecipe.dat from record 1; calls `visit` for each record with recipeNo above 0. A
// corrupted record raises 32020 through the error routine (in `functionName`) and ends the scan.
// False when the scan was stopped by an error.
bool scanRecipes(Workbench& wb, const std::function<void(long recordNo, const RecipeRecord&)>& visit,
                 const std::string& functionName = "RecipeList!mnuSortBy_Click");

// What record recipeNo of ZYRecipe.dat holds, read without touching the current recipe: nothing
// (past the end), a free slot, a recipe, or a record with bad control codes.
enum class RecipeSlot { Missing, Free, Stored, Corrupted };
RecipeSlot recipeSlotState(Workbench& wb, long recipeNo);

// commentCount of a comment: the integer part of length / 120 + 0.999.
int commentCountFor(size_t commentLength);

}  // namespace zy
