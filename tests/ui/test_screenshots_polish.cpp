// The recipe and style windows at their smallest and at the size they open with, written as
// pictures only when ZY_SCREENSHOT_DIR names a folder; and the recipe's style readable in the
// editor when the style filter hides it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>

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

TEST(ScreenshotsPolish, EachWindowAtItsSmallestAndAtItsOpeningSize) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(1, "Copper Kettle Amber");
  ProgramWindows& w = *b.windows;
  w.showRecipeList();
  b.openFromTree(w.recipeList().tvRecipes, w.recipeList().itemOf("R1"));
  w.recipe().selectGridRow(1);
  w.scale().load();
  StyleEditor styles(b.wb->styles, b.wb->folder, b.wb->errors, b.wb->prompter);
  QWidget* r = &w.recipe();
  const std::vector<std::pair<QString, QWidget*>> windows = {
      {"recipe", r}, {"recipe-list", &w.recipeList()}, {"find", new frmFind(frmFind::Mode::Recipe, {}, r)},
      {"scale", &w.scale()}, {"fermentation", &w.fermentation()}, {"comments", &w.comments()},
      {"hops-utilization", &w.hopsUtilization()}, {"unit-mash", &w.unitMashData()}, {"style-match", &w.styleMatch()},
      {"style-filter", new dlgFilterBeerStyles(*b.wb, r)}, {"style-stats", new dlgBeerStyleStats(*b.wb, r)},
      {"beer-styles", &w.beerStyles()}, {"style-edit", new dlgBeerStyleEdit(*b.wb, styles, -1, styles.newStyleForm(0), r)},
      {"categories", new dlgBeerCategories(*b.wb, styles, r)},
  };
  for (const auto& [name, win] : windows) {
    win->show();
    for (const char* size : {"default", "min"}) {
      if (QString(size) == "min") win->resize(win->minimumSize().expandedTo(win->minimumSizeHint()));
      QApplication::processEvents();
      const QString path = dir + "/" + name + "-" + size + ".png";
      ASSERT_TRUE(win->grab().save(path));
      EXPECT_TRUE(pictureIsNotBlank(path)) << path.toStdString();
    }
    win->hide();
  }
}

// A filter that hides the recipe's style: the box shows the style as placeholder text in the
// colour of ordinary text.
TEST(ScreenshotsPolish, TheRecipeStyleHiddenByTheFilterReadsAsText) {
  RecipeBench b;
  b.storeDozen(1, "Copper Kettle Amber");
  b.windows->showRecipeList();
  b.openFromTree(b.windows->recipeList().tvRecipes, b.windows->recipeList().itemOf("R1"));
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
