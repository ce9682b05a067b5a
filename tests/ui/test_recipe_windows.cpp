// The recipe windows driven as a person would: the list's tree, menus and dialogs, the editor's
// grid, edit strip and pop-ups, saving and closing, scaling and the fermentation window.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTableView>

#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeRecords.h"
#include "ui/RecipeBench.h"
#include "ui/RecipeIcons.h"
#include "workbench/Startup.h"
#include "recipes/RecipeExchange.h"
#include "ui/dlgFilterBeerStyles.h"
#include "ui/dlgScale.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmStyleMatch.h"
#include "ui/frmUnitMashData.h"
#include "ui/frmHelp.h"
#include "ui/frmFermentation.h"
#include "ui/frmFind.h"
#include "ui/frmInvCheck.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"

namespace zy::test {
namespace {

// Grid rows of the stored dozen: malts 1-4, hops 6-9, others 11-12, yeasts 14-15.
constexpr int kCrystalRow = 3, kCascadeRow = 7;

struct WindowsTest : ::testing::Test {
  RecipeBench b;
  frmRecipeList* list = nullptr;
  void SetUp() override {
    b.storeDozen(1, "Copper Amber");
    b.storeDozen(2, "Harvest Pale");
    list = &b.windows->recipeList();
    b.windows->showRecipeList();
  }
  frmRecipe& editor() { return b.windows->recipe(); }
  RecipeEditor& model() { return editor().editor(); }
  void open(const char* key) { b.openFromTree(list->tvRecipes, list->itemOf(key)); }
  QStringList treeTexts() {
    QStringList out;
    for (QTreeWidgetItemIterator it(list->tvRecipes); *it; ++it) out << (*it)->text(0);
    return out;
  }
  void clickRow(int row) {
    QTableView* g = editor().grdIngredients;
    g->scrollTo(editor().gridModel->index(row, COL_NAME));
    QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(editor().gridModel->index(row, COL_NAME)).center());
  }
  void type(QLineEdit* e, const char* text) {
    e->selectAll();
    QTest::keyClicks(e, text);
  }
  QString cell(int row, int col) { return editor().gridModel->index(row, col).data().toString(); }
  std::vector<std::string> msgs() const { return shownLines(b.prompter); }
};

TEST_F(WindowsTest, DoubleClickOpensAndTheStripEditsRecomputeAndMarkChanged) {
  EXPECT_EQ(list->lblTitle->text(), " Sorted By Name: 2");
  EXPECT_EQ(treeTexts(), QStringList({"Copper Amber", "Harvest Pale"}));
  open("R1");
  frmRecipe& r = editor();
  ASSERT_TRUE(r.isVisible());
  EXPECT_EQ(r.txtTitle->text(), "Copper Amber");
  EXPECT_EQ(r.cboBeerStyle->currentText(), "American Amber Ale");
  EXPECT_EQ(r.lblMashEff->text(), "80");  // the stored 75 opens as the default
  EXPECT_EQ(r.tb["Save"]->toolTip(), "Save Recipe");
  EXPECT_EQ(r.lblCost->text(), "$27.43");

  // A hop's quantity: bitterness follows as the user types, the recipe is marked changed.
  clickRow(kCascadeRow);
  EXPECT_EQ(r.txtItem->text(), "Cascade");
  EXPECT_EQ(r.lblExtraction->text(), "Alpha %:");
  EXPECT_EQ(r.lblColorCaption->text(), "Boil Time:");
  EXPECT_TRUE(r.chkMash->isHidden());
  const QString ibu = r.lblIBU->text();
  type(r.txtQty, "2");
  EXPECT_EQ(cell(kCascadeRow, COL_QTY), "2.0");
  EXPECT_NE(r.lblIBU->text(), ibu);
  EXPECT_EQ(r.tb["Save"]->toolTip(), "Save Recipe - Changed");

  // A malt from pounds to ounces: 2.0 Lbs at $1.60 become 32.0 Oz at $0.10; the gravity stays.
  clickRow(kCrystalRow);
  EXPECT_EQ(r.lblExtPct->text(), "(72%)");
  const QString og = r.lblOG->text();
  emit r.cboUnits->activated(UNIT_OZ);
  EXPECT_EQ(r.txtQty->text(), "32.0");
  EXPECT_EQ(r.txtCost->text(), "$0.10");
  EXPECT_EQ(cell(kCrystalRow, COL_UNITS), "Oz");
  EXPECT_EQ(r.lblOG->text(), og);

  // The quantity pop-up: 1.3 to the next half is 1.5, to the previous quarter 1.25.
  type(r.txtQty, "1.3");
  r.mnuQtyNext[1]->trigger();
  EXPECT_EQ(r.txtQty->text(), "1.5");
  r.mnuQtyPrev[2]->trigger();
  EXPECT_EQ(cell(kCrystalRow, COL_QTY), "1.25");
  // The spinner steps by the "Malt Qty Incement" default (0.2).
  r.udcQty->up->click();
  EXPECT_EQ(r.txtQty->text(), "1.45");
}

TEST_F(WindowsTest, GridPopUpSortsAndMovesWithinTheSection) {
  open("R1");
  frmRecipe& r = editor();
  r.mnuSortRecipe->trigger();
  const QStringList hops = {cell(6, 1), cell(7, 1), cell(8, 1), cell(9, 1)};
  EXPECT_EQ(hops, QStringList({"Cascade", "Centennial", "Willamette", "Amarillo"}));  // boil time, highest first
  EXPECT_EQ(cell(1, 1), "Pale Ale Malt");
  EXPECT_EQ(cell(2, 1), "Crystal 60");  // then by quantity
  r.mnuSortAlpha->trigger();
  EXPECT_EQ(QStringList({cell(6, 1), cell(7, 1), cell(8, 1), cell(9, 1)}),
            QStringList({"Amarillo", "Cascade", "Centennial", "Willamette"}));
  clickRow(6);
  r.mnuSortUp->trigger();  // the first of its section stays
  EXPECT_EQ(cell(6, 1), "Amarillo");
  r.mnuSortDown->trigger();
  EXPECT_EQ(cell(7, 1), "Amarillo");
  EXPECT_EQ(r.txtItem->text(), "Amarillo");
}

TEST_F(WindowsTest, SaveRenamesTheLeafAndWritesTheFile) {
  open("R1");
  frmRecipe& r = editor();
  type(r.txtTitle, "Big Amber");
  clickRow(kCascadeRow);
  type(r.txtQty, "1.5");
  r.tb["Save"]->trigger();
  EXPECT_EQ(r.tb["Save"]->toolTip(), "Save Recipe");
  EXPECT_EQ(treeTexts(), QStringList({"Big Amber", "Harvest Pale"}));
  ASSERT_TRUE(loadRecipe(*b.wb, 1));
  EXPECT_EQ(trim(b.wb->recipe.rec.recipeName), "Big Amber");
  EXPECT_EQ(b.wb->recipe.rec.itemCount, 12);
  EXPECT_DOUBLE_EQ(b.wb->recipe.items[5].quantity, 1.5);
  EXPECT_EQ(trim(b.wb->recipe.items[5].itemName), "Cascade");
  EXPECT_TRUE(msgs().empty());
}

TEST_F(WindowsTest, ClosingWithChangesAsksYesNoOrCancel) {
  struct Case {
    Answer answer;
    bool staysOpen;
    const char* stored;
  };
  const Case cases[] = {{Answer::Cancel, true, "Copper Amber"}, {Answer::No, false, "Copper Amber"},
                        {Answer::Yes, false, "Renamed"}};
  for (const Case& c : cases) {
    open("R1");
    frmRecipe& r = editor();
    type(r.txtTitle, "Renamed");
    b.prompter.shown.clear();
    b.prompter.answers = {c.answer};
    r.mnuFileClose->trigger();
    EXPECT_EQ(msgs(), std::vector<std::string>{"Save Recipe: Recipe has Changed, Save Changes?"});
    EXPECT_EQ(r.isVisible(), c.staysOpen);
    ASSERT_TRUE(loadRecipe(*b.wb, 1));
    EXPECT_EQ(trim(b.wb->recipe.rec.recipeName), c.stored);
    if (c.staysOpen) {
      model().recReset();
      r.close();
    }
  }
  EXPECT_EQ(b.settings.read("Recipe", "MainWidth", ""), std::to_string(pixelsToTwips(editor().width())));
}

TEST_F(WindowsTest, NewDeleteAndFindFromTheList) {
  list->tbNew->trigger();
  EXPECT_EQ(editor().txtTitle->text(), "A Beer Recipe");
  EXPECT_EQ(model().wb.recipe.rec.recipeNo, 3);
  EXPECT_EQ(treeTexts().size(), 2);  // nothing reaches the tree before the save
  editor().cmdAddNew[KIND_YEAST]->click();
  editor().mnuFileSave->trigger();
  EXPECT_EQ(treeTexts(), QStringList({"A Beer Recipe", "Copper Amber", "Harvest Pale"}));
  EXPECT_EQ(list->lblTitle->text(), " Sorted By Name: 3");

  // Find: part of a name, case aside; the match is selected.
  whenModalOpens([](QWidget* w) {
    auto* f = qobject_cast<frmFind*>(w);
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "Find Recipe");
    QTest::keyClicks(f->txtFind, "PALE");
    f->cmdFind->click();
    f->reject();
  });
  list->tbFind->trigger();
  EXPECT_EQ(list->tvRecipes->currentItem()->text(0), "Harvest Pale");
  EXPECT_TRUE(list->tbDelete->isEnabled());

  // Delete asks; No keeps the recipe, Yes removes leaf and record.
  b.prompter.answers = {Answer::No, Answer::Yes};
  list->tbDelete->trigger();
  list->tbDelete->trigger();
  EXPECT_EQ(msgs(), std::vector<std::string>(2, "Recipe Delete: Do you want to Delete the \"Harvest Pale\" Recipe?"));
  EXPECT_EQ(treeTexts(), QStringList({"A Beer Recipe", "Copper Amber"}));
  EXPECT_FALSE(list->tbDelete->isEnabled());
  EXPECT_EQ(getI16(readFile(b.wb->folder.dataFile(kRecipeFile)), RecipeRecord::kLength + 2), 0);  // record 2 freed
}

TEST_F(WindowsTest, ExportAndImportRememberTheirFoldersAndSortByStyle) {
  list->tvRecipes->setCurrentItem(list->itemOf("R1"));
  const std::string file = b.dir.file("amber.zyr");
  b.prompter.texts = {file, std::nullopt, file};
  list->tbExport->trigger();
  EXPECT_FALSE(readFile(file).empty());
  EXPECT_EQ(b.settings.read("Recipe List", "Export Path", ""), b.dir.path());
  list->tbOpen->trigger();  // cancelled: nothing happens
  list->tbOpen->trigger();
  EXPECT_EQ(b.settings.read("Recipe List", "Import Path", ""), b.dir.path());
  EXPECT_EQ(treeTexts(), QStringList({"Copper Amber", "Copper Amber (Duplicate)", "Harvest Pale"}));
  EXPECT_EQ(list->tvRecipes->currentItem()->text(0), "Copper Amber (Duplicate)");

  list->tbSortdes->trigger();
  EXPECT_EQ(list->lblTitle->text(), " Sorted By Beer Style: 3");
  EXPECT_TRUE(list->mnuSortBy[SORT_BY_STYLE]->isChecked());
  QTreeWidgetItem* group = list->tvRecipes->topLevelItem(0);
  EXPECT_EQ(group->text(0), "American Amber Ale");
  EXPECT_TRUE(group->isExpanded());  // opened to show the selection
  group->setExpanded(false);
  EXPECT_EQ(b.wb->recipeList.tree.find("American Amber Ale")->image, "ClosedBook");
  list->close();
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(b.settings.read("Recipe List", "Sort By", ""), "1");
}

TEST_F(WindowsTest, ToolsWithoutAWindowStayDisabledWithATip) {
  open("R1");
  frmRecipe& r = editor();
  EXPECT_FALSE(r.mnuToolsGenerateLabel->isEnabled());
  EXPECT_EQ(r.mnuToolsGenerateLabel->toolTip(), "Comes with the label tools");
  EXPECT_EQ(r.tb["Preview"]->toolTip(), "Preview the recipe report");  // the reports have come
  EXPECT_TRUE(r.cmdAddIngredients->isEnabled());  // the inventory has come
  int opened = 0;
  r.setToolOpener(RecipeTool::PrintPreview, [&] { ++opened; });
  r.setToolOpener(RecipeTool::MashInfo, [&] { ++opened; });
  EXPECT_TRUE(r.tb["Preview"]->isEnabled());
  r.tb["Preview"]->trigger();
  r.tb["Mash"]->trigger();
  EXPECT_EQ(opened, 2);
  // The mash entry follows the recipe's mash type.
  b.wb->recipe.rec.mashType = 0;
  model().mashDataChanged();
  r.refreshFromModel();
  EXPECT_FALSE(r.mnuInstructMashInfo->isEnabled());
  EXPECT_FALSE(r.tb["WaterMgmt"]->isEnabled());
  EXPECT_TRUE(r.mnuInstructWaterMgmt->isEnabled());
  EXPECT_EQ(r.lblMashEff->text(), "N/A");

  // Help opens each window's own page.
  r.tb["Help"]->trigger();
  EXPECT_EQ(b.main->help()->currentPage(), "recipe-editor.html");
  list->tbHelp->trigger();
  EXPECT_EQ(b.main->help()->currentPage(), "recipe-list.html");
  // The small dialogs reach their part of a page through their Help button.
  const std::pair<QPushButton*, QString> small[] = {{b.windows->scale().cmdHelp, "recipe-editor.html"},
                                                    {b.windows->invCheck().cmdHelp, "inventory.html"}};
  for (const auto& [button, page] : small) {
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(b.main->help()->currentPage(), page);
  }
}

TEST_F(WindowsTest, TheEditorOpensTheHopsUnitsAndStyleWindows) {
  open("R1");
  frmRecipe& r = editor();
  r.tb["Hops"]->trigger();
  EXPECT_TRUE(b.windows->hopsUtilization().isVisible());

  // Units/mash data: No Mash reaches the recipe and the editor's labels.
  QTest::mouseClick(r.cmdUnitMash, Qt::LeftButton);
  frmUnitMashData& u = b.windows->unitMashData();
  ASSERT_TRUE(u.isVisible());
  u.cboMashType->setCurrentIndex(0);
  QTest::mouseClick(u.cmdOK, Qt::LeftButton);
  EXPECT_EQ(b.wb->recipe.rec.mashType, 0);
  EXPECT_EQ(r.lblMashEff->text(), "N/A");
  EXPECT_FALSE(r.mnuInstructMashInfo->isEnabled());

  // The match window lists the styles near the recipe; the View menu shows the recipe's style in
  // the browser.
  QTest::mouseClick(r.cmdSearch, Qt::LeftButton);
  EXPECT_TRUE(b.windows->styleMatch().isVisible());
  EXPECT_GT(b.windows->styleMatch().lvStyle->topLevelItemCount(), 0);
  r.mnuViewBeerStyles->trigger();
  frmBeerStyles& bs = b.windows->beerStyles();
  EXPECT_TRUE(bs.isVisible());
  EXPECT_EQ(bs.lblStyleName->text(), "American Amber Ale");

  // A filter that hides every style leaves the recipe its style.
  whenModalOpens([](QWidget* w) {
    auto* d = qobject_cast<dlgFilterBeerStyles*>(w);
    ASSERT_NE(d, nullptr);
    d->txtFilter->setText("nothing like it");
    QTest::mouseClick(d->cmdOK, Qt::LeftButton);
  });
  QTest::mouseClick(r.cmdFilter, Qt::LeftButton);
  EXPECT_EQ(r.cboBeerStyle->currentIndex(), -1);
  EXPECT_EQ(r.cboBeerStyle->placeholderText(), "American Amber Ale");
  EXPECT_EQ(model().styleList.size(), 2u);  // the two bracketed entries
}

TEST_F(WindowsTest, ScaleDialogDoublesTheBatch) {
  open("R1");
  whenModalOpens([](QWidget* w) {
    auto* d = qobject_cast<dlgScale*>(w);
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->txtVolume->text(), "5.0");
    d->txtVolume->selectAll();
    QTest::keyClicks(d->txtVolume, "10");
    d->cmdOK->click();
  });
  editor().tb["Rescale"]->trigger();
  EXPECT_EQ(editor().txtFermentVolume->text(), "10.0");
  EXPECT_EQ(cell(1, COL_QTY), "16.0");
  EXPECT_EQ(cell(kCascadeRow, COL_QTY), "2.0");
  EXPECT_EQ(editor().tb["Save"]->toolTip(), "Save Recipe - Changed");
}

TEST_F(WindowsTest, FermentationAgingBoxFollowsIncludeAndMarksChanged) {
  open("R1");
  editor().tb["Ferment"]->trigger();
  frmFermentation& f = b.windows->fermentation();
  ASSERT_TRUE(f.isVisible());
  EXPECT_FALSE(f.chkAge->isChecked());
  EXPECT_FALSE(f.txtAgeValue->isEnabled());
  EXPECT_EQ(f.optBottling[2]->text(), "Bottles && Kegs");
  f.chkAge->click();
  for (QWidget* w : std::initializer_list<QWidget*>{f.txtAgeValue, f.cboAgeUnits, f.txtAgeTemp})
    EXPECT_TRUE(w->isEnabled());
  EXPECT_EQ(editor().tb["Save"]->toolTip(), "Save Recipe - Changed");
  QTest::keyClicks(f.txtAgeValue, "3");
  emit f.cboAgeUnits->activated(1);
  f.cmdOK->click();
  EXPECT_FALSE(f.isVisible());
  editor().mnuFileSave->trigger();
  ASSERT_TRUE(loadRecipe(*b.wb, 1));
  EXPECT_EQ(b.wb->recipe.rec.agingCount, 3);
  EXPECT_EQ(b.wb->recipe.rec.agingUnits, 1);
  // Closing the editor closes its companions.
  editor().tb["Ferment"]->trigger();
  editor().close();
  EXPECT_FALSE(f.isVisible());
}

TEST(RecipeWindowsStartup, ARecipeFileOnTheCommandLineOpensTheListWithTheImportSelected) {
  RecipeBench b;
  b.storeDozen(1, "Copper Amber");
  const std::string file = b.dir.file("amber.zyr");
  std::FILE* f = std::fopen(file.c_str(), "wb");
  ASSERT_TRUE(exportRecipe(*b.wb, f));
  std::fclose(f);

  frmMain m(*b.wb);
  m.quitOnClose = false;
  ProgramWindows w(*b.wb, m);
  m.load(file);
  EXPECT_EQ(m.importedRecipe, 2);
  frmRecipeList& l = w.recipeList();
  EXPECT_TRUE(l.isVisible());
  EXPECT_EQ(l.tvRecipes->currentItem()->text(0), "Copper Amber (Duplicate)");
  // The main window's close closes the others for good.
  m.show();
  m.close();
  EXPECT_TRUE(b.wb->appClosing);
  EXPECT_FALSE(l.isVisible());
}

}  // namespace
}  // namespace zy::test
