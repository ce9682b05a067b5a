// Pictures of the recipe windows with a real recipe of a dozen ingredients open, for a person to
// look at: written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTableView>

#include "ui/RecipeBench.h"
#include "ui/UiSupport.h"
#include "ui/dlgScale.h"
#include "ui/frmComments.h"
#include "ui/frmFermentation.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"

namespace zy::test {
namespace {

TEST(Screenshots, RecipeWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(1, "Copper Kettle Amber");
  b.storeDozen(2, "Harvest Pale");
  b.wb->recipe.rec.beerStyle = "";
  b.storeDozen(3, "Winter Porter");

  frmRecipeList& list = b.windows->recipeList();
  list.mnuSortBy_Click(SORT_BY_NAME);
  b.windows->showRecipeList();
  list.tvRecipes->setCurrentItem(list.itemOf("R1"));
  saveScreenshot(list, dir, "recipe-list");

  b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  frmRecipe& r = b.windows->recipe();
  r.selectGridRow(2);
  saveScreenshot(r, dir, "recipe");

  b.windows->showFermentation();
  saveScreenshot(b.windows->fermentation(), dir, "fermentation");
  b.windows->showComments();
  saveScreenshot(b.windows->comments(), dir, "comments");

  dlgScale& s = b.windows->scale();
  s.load();
  s.show();
  saveScreenshot(s, dir, "recipe-scale");
  s.hide();
}

}  // namespace
}  // namespace zy::test
