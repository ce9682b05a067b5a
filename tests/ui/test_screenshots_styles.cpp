// Pictures of the style windows over the shipped style tables and a recipe of a dozen
// ingredients: written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTest>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleSheets.h"
#include "styles/StyleStore.h"
#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/dlgBeerStyleStats.h"
#include "ui/dlgFilterBeerStyles.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmStyleMatch.h"

namespace zy::test {
namespace {

TEST(Screenshots, StyleWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  Bench b;
  const std::string src = std::string(ZY_SOURCE_DIR) + "/data/styles/";
  std::string error;
  ASSERT_TRUE(buildStyleTablesFromSheets(readFile(src + "categories.csv"), readFile(src + "styles.csv"), b.wb->styles, error));
  ASSERT_TRUE(saveBeerStyles(*b.wb));
  ASSERT_TRUE(LoadBeerStyles(*b.wb));

  // An American amber of 5.5 gallons: six malts, four hops, a fining, a nutrient and a yeast.
  RecipeEditor e(*b.wb);
  e.initRecipeForm();
  newRecipeRecord(*b.wb);
  CurrentRecipe& cur = b.wb->recipe;
  cur.rec.recipeNo = 1;
  cur.rec.recipeName = "Copper Kettle Amber";
  cur.rec.beerStyle = "American Amber Ale";
  cur.rec.volumeUnits = US_GAL_CONST;
  cur.rec.fermentVolume = 5.5;
  cur.rec.boilVolume = 6.5;
  cur.rec.mashType = 2;
  const RecipeItemRecord items[] = {
      makeItem(KIND_MALT, "2-Row Pale Malt", 9, UNIT_LBS, 1.10, 1.037, 2, -1),
      makeItem(KIND_MALT, "Munich Malt", 1, UNIT_LBS, 1.40, 1.035, 9, -1),
      makeItem(KIND_MALT, "Crystal 60", 0.75, UNIT_LBS, 1.60, 1.034, 60, -1),
      makeItem(KIND_MALT, "Crystal 120", 0.25, UNIT_LBS, 1.60, 1.033, 120, -1),
      makeItem(KIND_MALT, "Victory Malt", 0.5, UNIT_LBS, 1.50, 1.034, 28, -1),
      makeItem(KIND_MALT, "Chocolate Malt", 2, UNIT_OZ, 0.12, 1.028, 350, -1),
      makeItem(KIND_HOPS, "Centennial", 0.75, UNIT_OZ, 1.75, 10.0, 60),
      makeItem(KIND_HOPS, "Cascade", 0.5, UNIT_OZ, 1.25, 5.5, 20),
      makeItem(KIND_HOPS, "Cascade", 0.5, UNIT_OZ, 1.25, 5.5, 5),
      makeItem(KIND_HOPS, "Amarillo", 0.5, UNIT_OZ, 2.25, 8.5, 0),
      makeItem(KIND_OTHER, "Irish Moss", 1, 5, 0.35, 0, 0),
      makeItem(KIND_OTHER, "Yeast Nutrient", 0.5, 5, 0.40, 0, 0),
      makeItem(KIND_YEAST, "American Ale Yeast", 1, 0, 6.99, 0.75, 0),
  };
  for (const RecipeItemRecord& it : items) cur.items[static_cast<size_t>(cur.rec.itemCount++)] = it;
  ASSERT_TRUE(saveCurrentRecipe(*b.wb));
  ASSERT_TRUE(e.openRecipe(1));

  frmStyleMatch match(*b.wb, e);
  match.show();
  saveScreenshot(match, dir, "style-match");

  dlgFilterBeerStyles filter(*b.wb);
  b.wb->styles.StyleSourceShown = {true, false, true};
  b.wb->styles.StyleFilterText = "ale";
  whenModalOpens([&](QWidget*) {
    saveScreenshot(filter, dir, "style-filter");
    filter.reject();
  });
  filter.exec();

  frmBeerStyles browser(*b.wb);
  browser.recipeValues = [&] { return e.styleValues(); };
  browser.show();
  browser.showStyle("American Amber Ale");
  saveScreenshot(browser, dir, "beer-styles");

  dlgBeerStyleStats stats(*b.wb, &browser);
  stats.show();
  saveScreenshot(stats, dir, "style-stats");
}

}  // namespace
}  // namespace zy::test
