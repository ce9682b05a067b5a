// A picture of the print preview on the recipe report of a real recipe, for a person to look at:
// written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLineEdit>

#include "ui/RecipeBench.h"
#include "ui/ReportActions.h"
#include "ui/UiSupport.h"
#include "ui/frmPreview.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"

namespace zy::test {
namespace {

TEST(Screenshots, RecipeReportPreview) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(2, "Harvest Pale");
  b.storeDozen(3, "Winter Porter");
  b.storeDozen(1, "Copper Kettle Amber");
  RecipeRecord& rec = b.wb->recipe.rec;
  rec.dateCreated = "Nov-22-2026", rec.idCode = "CKA-07", rec.labelName = "Copper Kettle";
  rec.mashWaterRate = 1.25, rec.spargeRate = 1.5, rec.spargeTemp = 170;
  const double temps[] = {104, 122, 152, 168}, times[] = {15, 20, 60, 10};
  const char* notes[] = {"Rest for the acidity", "Short protein rest", "Full-bodied conversion", "Raise for the sparge"};
  for (size_t i = 0; i < 4; ++i) rec.mashStepTemp[i] = temps[i], rec.mashStepTime[i] = times[i], rec.mashStepComment[i] = notes[i];
  rec.fermentTime = {7, 2, 0}, rec.fermentTimeUnits = {0, 1, 0}, rec.fermentTemp = {66, 62, 0}, rec.fermentVessel = {0, 1, 0};
  rec.carbonation = 0, rec.container = 0, rec.primingComment = "3/4 cup corn sugar";
  rec.agingCount = 3, rec.agingUnits = 1, rec.agingTemp = 50;
  b.wb->recipe.comment =
      "Mash the grains in the water at 154 degrees for an hour, stirring now and then. Boil 60 minutes; add the "
      "Cascade at the start, the Centennial with 15 minutes left and the Willamette for the last five. Chill "
      "quickly and pitch the yeast at 66 degrees.";
  ASSERT_TRUE(saveCurrentRecipe(*b.wb));

  frmRecipeList& list = b.windows->recipeList();
  list.mnuSortBy_Click(SORT_BY_NAME);
  b.windows->showRecipeList();
  b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  frmRecipe& r = b.windows->recipe();
  ASSERT_TRUE(r.mnuFilePreview->isEnabled());
  r.mnuFilePreview->trigger();
  frmPreview* p = previewWindow(false);
  ASSERT_TRUE(p && p->isVisible());
  p->resize(900, 1000);
  p->cboViewSize->lineEdit()->setText("75");
  p->cboViewSize_Commit("75");
  saveScreenshot(*p, dir, "preview");

  list.mnuFilePreview->trigger();
  EXPECT_EQ(p->model().request().number, kRecipeListReport);
  saveScreenshot(*p, dir, "preview-recipe-list");
}

}  // namespace
}  // namespace zy::test
