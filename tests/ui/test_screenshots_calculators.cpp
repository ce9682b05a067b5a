// Pictures of the brewing calculators over a real all-grain recipe, written only when
// ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QDir>
#include <QLineEdit>
#include <QTreeWidget>

#include "recipes/RecipeList.h"
#include "ui/RecipeBench.h"
#include "ui/dlgNewRecipe.h"
#include "ui/frmAdvMaltFormulator.h"
#include "ui/frmMash.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"
#include "ui/frmStarter.h"
#include "ui/frmWaterMgmt.h"
#include "ui/frmWaterTreatment.h"

namespace zy::test {
namespace {

void shoot(QWidget& w, const QString& dir, const QString& name) {
  QApplication::processEvents();
  QTest::qWait(50);
  const QString path = QDir(dir).filePath(name + ".png");
  ASSERT_TRUE(w.grab().save(path));
  EXPECT_TRUE(pictureIsNotBlank(path)) << name.toStdString() << " is one colour";
}

TEST(Screenshots, CalculatorWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(1, "Copper Kettle Amber");
  const double times[] = {30, 60, 10}, temps[] = {122, 152, 170};
  const char* notes[] = {"Protein Rest", "Saccharification Rest", "Mash Out"};
  for (size_t i = 0; i < 3; ++i) {
    b.wb->recipe.rec.mashStepTime[i] = times[i];
    b.wb->recipe.rec.mashStepTemp[i] = temps[i];
    b.wb->recipe.rec.mashStepComment[i] = notes[i];
  }
  ASSERT_TRUE(saveCurrentRecipe(*b.wb));
  frmRecipeList& list = b.windows->recipeList();
  b.windows->showRecipeList();
  b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  frmRecipe& r = b.windows->recipe();
  ASSERT_TRUE(r.isVisible());

  r.mnuInstructWaterMgmt->trigger();
  shoot(b.windows->waterMgmt(), dir, "water-management");
  r.mnuToolsWaterTreatment->trigger();
  frmWaterTreatment& t = b.windows->waterTreatment();
  t.txtTsp[3]->setText("1.5");
  emit t.txtTsp[3]->textEdited("1.5");
  shoot(t, dir, "water-treatment");
  r.mnuInstructMashInfo->trigger();
  frmMash& m = b.windows->mash();
  m.lvMash->setCurrentItem(m.lvMash->topLevelItem(1));
  shoot(m, dir, "mash");
  r.mnuToolsAdvanced->trigger();
  frmAdvMaltFormulator& f = b.windows->maltFormulator();
  f.mnuComputeOGColor_Click();
  shoot(f, dir, "malt-formulator");
  r.mnuToolsStarterKraeusening->trigger();
  shoot(b.windows->starter(), dir, "starter");
  dlgNewRecipe d(*b.wb, 0);
  d.show();
  shoot(d, dir, "new-recipe");
  d.reject();
  b.prompter.answers = {Answer::No, Answer::No, Answer::No, Answer::No, Answer::No, Answer::No};
}

}  // namespace
}  // namespace zy::test
