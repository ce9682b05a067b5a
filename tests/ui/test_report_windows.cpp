// The print entries of the stock, shopping, hops, style and batch log windows: each opens the
// preview on its own report, and each window still gives every access key once.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QPushButton>

#include "ui/RecipeBench.h"
#include "ui/ReportActions.h"
#include "ui/frmBatchLog.h"
#include "ui/frmBatchLogList.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmInventory.h"
#include "ui/frmPreview.h"
#include "ui/frmRecipe.h"
#include "ui/frmShoppingLst.h"

namespace zy::test {
namespace {

TEST(ReportWindows, EachPrintPreviewEntryOpensThePreviewOnItsReport) {
  RecipeBench b;
  b.storeDozen(1, "Copper Kettle Amber");
  ProgramWindows& w = *b.windows;
  frmRecipe& r = w.recipe();
  ASSERT_TRUE(r.editor().openRecipe(1));
  w.showRecipe();
  r.mnuFileBatchLog->trigger();
  frmBatchLogList& list = w.batchLogList();
  QTest::mouseClick(list.cmdNew, Qt::LeftButton);
  frmBatchLog& log = list.logWindow();
  ASSERT_TRUE(log.isVisible());

  w.showShoppingList();
  w.showInventory(false);
  w.showBeerStyles();
  w.showHopsUtilization();
  const std::vector<std::tuple<const char*, QWidget*, std::function<void()>, int>> entries = {
      {"shopping", &w.shoppingList(), [&] { w.shoppingList().tbPreview->trigger(); }, kShoppingListReport},
      {"inventory", &w.inventory(), [&] { w.inventory().mnuFilePreview->trigger(); }, kInventoryReport},
      {"styles", &w.beerStyles(), [&] { w.beerStyles().mnuFilePreview->trigger(); }, kBeerStylesReport},
      {"hops", &w.hopsUtilization(), [&] { QTest::mouseClick(w.hopsUtilization().cmdPrint, Qt::LeftButton); },
       kHopsUtilizationReport},
      {"log", &log, [&] { log.mnuFilePreview->trigger(); }, kBatchLogReport},
      {"brewday", &list, [&] { QTest::mouseClick(list.cmdBrewDay, Qt::LeftButton); }, kBrewingDayForm},
  };
  for (const auto& [name, window, press, number] : entries) {
    window->show();
    QApplication::processEvents();
    EXPECT_EQ(accessKeyClashes(window), std::vector<std::string>{}) << name;
    press();
    frmPreview* p = previewWindow(false);
    ASSERT_TRUE(p && p->isVisible()) << name;
    EXPECT_EQ(p->model().request().number, number) << name;
    EXPECT_TRUE(p->txtPageNum->text().startsWith("Pg 1 of ")) << name;
    // The reports with a file form can be saved to one.
    EXPECT_EQ(p->model().saveEnabled(), number == kInventoryReport || number == kBatchLogReport) << name;
    p->close();
  }
  EXPECT_TRUE(b.prompter.shown.empty()) << b.prompter.shown.front().text;
}

}  // namespace
}  // namespace zy::test
