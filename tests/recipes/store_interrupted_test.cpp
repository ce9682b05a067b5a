// A save that stops half way, or cannot be done at all, leaves no damaged recipe behind.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/errorlog.h"
#include "core/measures.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

TEST(RecipeStoreFaults, AnInterruptedSaveOfANewRecipeListsNothing) {
  // The items' or the comment's file cannot be written: the save ends there (the error routine
  // ends the program), and the recipe record, written last, is not there to list a recipe
  // with missing items or comment.
  for (const char* blocked : {"ZYRItems.dat", "ZYComment.dat"}) {
    Bench b;
    Workbench& wb = *b.wb;
    std::filesystem::create_directory(b.dir.file(std::string("Data/") + blocked));
    newRecipeRecord(wb);
    wb.recipe.rec.recipeNo = 1;
    wb.recipe.rec.itemCount = 1;
    wb.recipe.items[0] = makeItem(KIND_MALT, "Pale", 8);
    wb.recipe.comment = "Mash low";
    EXPECT_THROW(saveCurrentRecipe(wb), Terminated) << blocked;
    int listed = 0;
    scanRecipes(wb, [&](long, const RecipeRecord&) { ++listed; });
    EXPECT_EQ(listed, 0) << blocked;
    EXPECT_EQ(readFile(b.dir.file("Data/ZYRecipe.dat")), "") << blocked;
  }
}

TEST(RecipeStoreFaults, ACommentBeyondSixteenBitsOfPiecesIsRefused) {
  Bench b;
  Workbench& wb = *b.wb;
  newRecipeRecord(wb);
  wb.recipe.rec.recipeNo = 1;
  wb.recipe.comment = std::string(kMaxCommentLength, 'x');
  ASSERT_TRUE(saveCurrentRecipe(wb));  // the longest comment that fits
  EXPECT_EQ(wb.recipe.rec.commentCount, 32767);
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(wb.recipe.comment.size(), kMaxCommentLength);

  const std::string before = readFile(b.dir.file("Data/ZYComment.dat"));
  wb.recipe.comment += "y";
  EXPECT_FALSE(saveCurrentRecipe(wb));
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Zythara Recipes: The comment of this recipe holds 3932041 characters, more than "
                                     "the 3932040 a recipe can keep. Shorten the comment and save again; nothing "
                                     "was saved."});
  EXPECT_EQ(readFile(b.dir.file("Data/ZYComment.dat")), before);
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(wb.recipe.comment.size(), kMaxCommentLength);
}
