// Pictures of the hops utilization and the recipe units/mash data windows at their default
// sizes, written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTest>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmUnitMashData.h"

namespace zy::test {
namespace {

TEST(Screenshots, ToolWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  Bench b;

  frmHopsUtilization hops(*b.wb);  // the Rager curve with its gravity adjustment
  hops.show();
  saveScreenshot(hops, dir, "hops-utilization");
  hops.close();

  RecipeEditor editor(*b.wb);
  newRecipeRecord(*b.wb);
  editor.initRecipeForm();
  CurrentRecipe& cur = b.wb->recipe;
  cur.rec.mashType = 3;
  cur.rec.boilTime = 90;
  cur.items[0] = makeItem(KIND_MALT, "Pale Malt", 8, UNIT_LBS, 1.10, 1.036, 3, -1);
  cur.items[1] = makeItem(KIND_HOPS, "Cascade", 1, UNIT_OZ, 1.25, 5.5, 60);
  cur.rec.itemCount = 2;
  editor.populateRecipeForm();
  frmUnitMashData mash(*b.wb, editor);
  mash.show();
  saveScreenshot(mash, dir, "unit-mash-data");
  mash.close();
}

}  // namespace
}  // namespace zy::test
