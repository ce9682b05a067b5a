// The recipe reader and the comment window's smart instructions, driven as a person would.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "ui/RecipeBench.h"
#include "ui/frmComments.h"
#include "ui/frmRecReader.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"

namespace zy::test {
namespace {

TEST(TextWindows, TheReaderFillsTheOpenRecipeAndSmartInstructionsFillTheComment) {
  RecipeBench b;
  b.storeDozen(1, "Copper Amber");
  frmRecipeList& list = b.windows->recipeList();
  b.windows->showRecipeList();
  b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  frmRecipe& r = b.windows->recipe();
  ASSERT_TRUE(r.mnuToolsRecipeReader->isEnabled());
  r.mnuToolsRecipeReader->trigger();
  frmRecReader& reader = b.windows->recReader();

  reader.txtComment->setFocus();
  QTest::keyClicks(reader.txtComment, "\"Porch Pale\"");
  QTest::keyClick(reader.txtComment, Qt::Key_Return);
  reader.txtComment->insertPlainText("9 lbs Pale Malt\n2 oz Cascade 6% alpha 60 min\n1 pkg Safale US-05\n"
                                     "Primary 7 days at 68 in glass\n");
  b.prompter.answers = {Answer::Cancel};  // the dozen stays
  reader.cmdExtract->click();
  EXPECT_EQ(b.prompter.shown.back().text, "This Action Will Replace ALL ingredients in the Recipe");
  EXPECT_EQ(r.editor().sheet.grid.itemCount(), 12);
  b.prompter.answers = {Answer::OK};
  reader.mnuFileExtractRecipe->trigger();
  const RecipeEditor& e = r.editor();
  EXPECT_EQ(r.txtTitle->text(), "Porch Pale");
  EXPECT_EQ(e.sheet.grid.itemCount(), 3);
  EXPECT_EQ(e.fermentation.txtValue[0], "7");
  EXPECT_EQ(r.tb["Save"]->toolTip(), "Save Recipe - Changed");

  // The comment window: "No" appends the instructions to the comment that is there.
  r.openComments();
  frmComments& c = b.windows->comments();
  b.prompter.answers = {Answer::No};
  c.mnuSmartInstructions->trigger();
  const QString comment = c.txtComment->toPlainText();
  EXPECT_TRUE(comment.startsWith("A malty amber with a citrus finish.\n\nLightly crack the Pale Malt, mash according"));
  EXPECT_TRUE(comment.endsWith("Pitch the yeast when the mixture is cool."));
  b.prompter.answers = {Answer::Cancel};
  c.mnuSmartInstructions->trigger();
  EXPECT_EQ(c.txtComment->toPlainText(), comment);

  // The reader keeps its place; closing only hides it.
  reader.close();
  EXPECT_FALSE(reader.isVisible());
  EXPECT_NE(b.settings.read("Recipe Reader", "MainWidth", ""), "");
}

}  // namespace
}  // namespace zy::test
