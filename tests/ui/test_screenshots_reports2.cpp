// Pictures of the print preview on the hops curves and the brewing day form, and of the list of
// logs with its brewing day entries: written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>

#include "ui/RecipeBench.h"
#include "ui/ReportActions.h"
#include "ui/UiSupport.h"
#include "ui/frmBatchLogList.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmPreview.h"
#include "ui/frmRecipe.h"

namespace zy::test {
namespace {

TEST(Screenshots, OtherReportsInThePreview) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(1, "Copper Kettle Amber");
  RecipeRecord& rec = b.wb->recipe.rec;
  const double temps[] = {122, 152, 168}, times[] = {20, 60, 10};
  for (size_t i = 0; i < 3; ++i) rec.mashStepTemp[i] = temps[i], rec.mashStepTime[i] = times[i];
  ASSERT_TRUE(saveCurrentRecipe(*b.wb));
  frmRecipe& r = b.windows->recipe();
  ASSERT_TRUE(r.editor().openRecipe(1));
  b.windows->showRecipe();
  r.mnuFileBatchLog->trigger();
  frmBatchLogList& list = b.windows->batchLogList();
  saveScreenshot(list, dir, "batch-log-list");

  QTest::mouseClick(list.cmdBrewDay, Qt::LeftButton);
  frmPreview* p = previewWindow(false);
  ASSERT_TRUE(p && p->isVisible());
  p->resize(900, 1000);
  p->cboViewSize->lineEdit()->setText("75");
  p->cboViewSize_Commit("75");
  saveScreenshot(*p, dir, "preview-brewing-day-form");

  b.windows->showHopsUtilization();
  QTest::mouseClick(b.windows->hopsUtilization().cmdPrint, Qt::LeftButton);
  EXPECT_EQ(p->model().request().number, kHopsUtilizationReport);
  saveScreenshot(*p, dir, "preview-hops-utilization");
}

}  // namespace
}  // namespace zy::test
