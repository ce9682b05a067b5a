#pragma once
// A program with its recipe windows for the window tests: the main window loaded over a test
// folder, the holder of the other windows, one beer style and a stored recipe of a dozen
// ingredients.
#include <QFile>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include "core/measures.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"
#include "support/TestSupport.h"
#include "ui/ProgramWindows.h"
#include "ui/UiSupport.h"
#include "ui/frmMain.h"

namespace zy::test {

struct RecipeBench : Bench {
  explicit RecipeBench(bool realStyles = false) {
    writeTestReference(dir.path());
    copyHelpPages(dir.path());
    settings.write("Settings", "Check Update", "1/1/2099");
    wb->errors.setTerminationHook([](int n) { throw Terminated(n); });
    const QString stage = QString(ZY_STAGE_DIR) + "/Data/";
    if (realStyles)
      for (const char* f : {kCategoryFile, kStyleFile})
        QFile::copy(stage + f, QString::fromStdString(wb->folder.dataFile(f)));
    main = std::make_unique<frmMain>(*wb);
    main->quitOnClose = false;
    windows = std::make_unique<ProgramWindows>(*wb, *main);
    main->load("");
    if (wb->styles.BeerStyleCount == 0) {
      BeerStyleRecord st;
      st.styleName = "American Amber Ale";
      st.ogLow = 1.043, st.ogHigh = 1.056, st.fgLow = 1.008, st.fgHigh = 1.016;
      st.ibuLow = 20, st.ibuHigh = 40, st.srmLow = 10, st.srmHigh = 17, st.alcoholLow = 4.5, st.alcoholHigh = 5.7;
      wb->styles.BeerStyles[0] = st;
      wb->styles.BeerStyleCount = 1;
    }
  }
  ~RecipeBench() { windows.reset(); }

  // Recipe `no`: four malts, four hops, two others and two yeasts, 5 US gallons, all-grain.
  void storeDozen(int no, const std::string& name) {
    newRecipeRecord(*wb);
    CurrentRecipe& cur = wb->recipe;
    cur.rec.recipeNo = no;
    cur.rec.recipeName = name;
    cur.rec.beerStyle = "American Amber Ale";
    cur.rec.volumeUnits = US_GAL_CONST;
    cur.rec.fermentVolume = 5;
    cur.rec.boilVolume = 6;
    cur.rec.mashType = 2;
    cur.rec.mashEfficiency = 75;
    const RecipeItemRecord items[12] = {
        makeItem(KIND_MALT, "Pale Ale Malt", 8, UNIT_LBS, 1.10, 1.037, 3, -1),
        makeItem(KIND_MALT, "Munich Malt", 1.5, UNIT_LBS, 1.30, 1.035, 9, -1),
        makeItem(KIND_MALT, "Crystal 60", 2, UNIT_LBS, 1.60, 1.034, 60, -1),
        makeItem(KIND_MALT, "Chocolate Malt", 0.25, UNIT_LBS, 1.80, 1.030, 350, -1),
        makeItem(KIND_HOPS, "Willamette", 1, UNIT_OZ, 1.20, 4.8, 5),
        makeItem(KIND_HOPS, "Cascade", 1, UNIT_OZ, 1.25, 5.5, 60),
        makeItem(KIND_HOPS, "Centennial", 0.5, UNIT_OZ, 1.50, 10.0, 15),
        makeItem(KIND_HOPS, "Amarillo", 1, UNIT_OZ, 1.75, 8.5, 0),
        makeItem(KIND_OTHER, "Irish Moss", 1, 5, 0.35),
        makeItem(KIND_OTHER, "Yeast Nutrient", 0.5, 5, 0.50),
        makeItem(KIND_YEAST, "American Ale", 1, 0, 4.99, 0.75),
        makeItem(KIND_YEAST, "Dry Ale Yeast", 1, 0, 2.49, 0.72),
    };
    for (size_t k = 0; k < 12; ++k) cur.items[k] = items[k];
    cur.rec.itemCount = 12;
    cur.comment = "A malty amber with a citrus finish.";
    ASSERT_TRUE(saveCurrentRecipe(*wb));
  }

  // A double click on the recipe list's leaf of recipe `no`.
  void openFromTree(QTreeWidget* tree, QTreeWidgetItem* item) {
    tree->scrollToItem(item);
    const QPoint at = tree->visualItemRect(item).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, at);
  }

  std::unique_ptr<frmMain> main;
  std::unique_ptr<ProgramWindows> windows;
};

}  // namespace zy::test
