// "Control HTML Generation" driven as a brewer would: opened from the recipe list on the
// selected recipe, a box ticked with its file left empty, Generate, then the page written.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QPushButton>

#include "ui/RecipeBench.h"
#include "ui/frmGenHTML.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"

namespace zy::test {
namespace {

TEST(GenHtmlWindow, FromTheRecipeListToTheWrittenPage) {
  RecipeBench b;
  b.storeDozen(1, "Copper Amber");
  ProgramWindows& w = *b.windows;
  w.showRecipeList();
  frmRecipeList& list = w.recipeList();
  EXPECT_FALSE(list.tbGenHTML->isEnabled());  // nothing selected yet
  clickItem(list.tvRecipes, list.itemOf("R1"));
  ASSERT_TRUE(list.tbGenHTML->isEnabled());

  const std::string out = b.dir.file("amber.htm");
  std::vector<std::string> clashes;
  std::string shown;
  bool closedByFirstTry = true;
  whenModalOpens([&](QWidget* m) {
    auto* g = qobject_cast<frmGenHTML*>(m);
    ASSERT_NE(g, nullptr);
    EXPECT_EQ(g->windowTitle(), "Control HTML Generation");
    clashes = accessKeyClashes(g);
    g->chkAfter->click();  // ticked, its file left empty
    QTest::mouseClick(g->cmdGenerate, Qt::LeftButton);
    shown = shownLines(b.prompter).empty() ? "" : shownLines(b.prompter).back();
    closedByFirstTry = !g->isVisible();
    g->chkAfter->click();
    b.prompter.texts.push_back(out);  // the file dialog's answer
    QTest::mouseClick(g->cmdGenerate, Qt::LeftButton);
  });
  list.tbGenHTML->trigger();
  EXPECT_EQ(clashes, std::vector<std::string>{});
  EXPECT_EQ(shown, "Missing Filename: No File Specified for After Recipe Title");
  EXPECT_FALSE(closedByFirstTry);
  EXPECT_NE(readFile(out).find("<HEAD><TITLE>Copper Amber -- Ale</TITLE></HEAD>\r\n"), std::string::npos);
  // Written on close: the folder of the page and the box as left.
  EXPECT_EQ(b.settings.read("HTMLgen", "HTML Path", "?"), b.dir.path());
  EXPECT_EQ(b.settings.read("HTMLgen", "After Check", "?"), "0");

  // Esc closes the window without a page, and the settings are kept all the same.
  whenModalOpens([&](QWidget* m) {
    auto* g = qobject_cast<frmGenHTML*>(m);
    g->chkCosts->click();
    QTest::keyClick(g, Qt::Key_Escape);
  });
  w.recipe().mnuFileGenHTML->trigger();
  EXPECT_EQ(b.settings.read("HTMLgen", "Include Costs", "?"), "1");
}

}  // namespace
}  // namespace zy::test
