// The recipe and style windows at their smallest and at the size they open with, written as
// pictures only when ZY_SCREENSHOT_DIR names a folder; and the recipe's style readable in the
// editor when the style filter hides it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLayout>
#include <functional>

#include "ui/RecipeBench.h"
#include "ui/dlgBeerCategories.h"
#include "ui/dlgBeerStyleEdit.h"
#include "ui/dlgBeerStyleStats.h"
#include "ui/dlgFilterBeerStyles.h"
#include "ui/dlgScale.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmComments.h"
#include "ui/frmFermentation.h"
#include "ui/frmFind.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"
#include "ui/frmStyleMatch.h"
#include "ui/frmUnitMashData.h"

namespace zy::test {
namespace {

void shoot(QWidget& w, const QString& path) {
  QApplication::processEvents();
  QTest::qWait(30);
  ASSERT_TRUE(w.grab().save(path)) << path.toStdString();
  EXPECT_TRUE(pictureIsNotBlank(path)) << path.toStdString();
}

TEST(ScreenshotsPolish, EachWindowAtItsSmallestAndAtItsOpeningSize) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(1, "Copper Kettle Amber");
  b.storeDozen(2, "Harvest Pale");
  ProgramWindows& w = *b.windows;
  frmRecipeList& list = w.recipeList();
  w.showRecipeList();
  b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  w.recipe().selectGridRow(1);
  StyleEditor styles(b.wb->styles, b.wb->folder, b.wb->errors, b.wb->prompter);
  frmFind find(frmFind::Mode::Recipe, {}, &w.recipe());
  dlgFilterBeerStyles filter(*b.wb, &w.recipe());
  dlgBeerStyleStats stats(*b.wb, &w.recipe());
  dlgBeerStyleEdit edit(*b.wb, styles, -1, styles.newStyleForm(0), &w.recipe());
  dlgBeerCategories categories(*b.wb, styles, &w.recipe());
  w.scale().load();
  const std::vector<std::pair<QString, QWidget*>> windows = {
      {"recipe", &w.recipe()},         {"recipe-list", &list},          {"find", &find},
      {"scale", &w.scale()},           {"fermentation", &w.fermentation()}, {"comments", &w.comments()},
      {"hops-utilization", &w.hopsUtilization()}, {"unit-mash", &w.unitMashData()},
      {"style-match", &w.styleMatch()}, {"style-filter", &filter},     {"style-stats", &stats},
      {"beer-styles", &w.beerStyles()}, {"style-edit", &edit},         {"categories", &categories},
  };
  for (const auto& [name, win] : windows) {
    win->show();
    shoot(*win, dir + "/" + name + "-default.png");
    win->resize(win->minimumSize().expandedTo(win->minimumSizeHint()));
    shoot(*win, dir + "/" + name + "-min.png");
    win->hide();
  }
}

// A filter that hides the recipe's style: the box shows the style as placeholder text in the
// colour of ordinary text.
TEST(ScreenshotsPolish, TheRecipeStyleHiddenByTheFilterReadsAsText) {
  RecipeBench b;
  b.storeDozen(1, "Copper Kettle Amber");
  frmRecipeList& list = b.windows->recipeList();
  b.windows->showRecipeList();
  b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  frmRecipe& r = b.windows->recipe();
  b.wb->styles.StyleFilterText = "stout";
  r.editor().cmdFilterClosed();
  r.refreshFromModel();
  EXPECT_EQ(r.cboBeerStyle->currentIndex(), -1);
  EXPECT_EQ(r.cboBeerStyle->placeholderText(), "American Amber Ale");
  const QPalette p = r.cboBeerStyle->palette();
  EXPECT_EQ(p.color(QPalette::PlaceholderText), p.color(QPalette::ButtonText));
}

}  // namespace
}  // namespace zy::test
