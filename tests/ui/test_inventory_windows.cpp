// The inventory and shopping windows driven as a brewer would: adding an item through its
// dialog, sorting by a column head, hiding what is used up, deleting with the question, picking an
// ingredient for the open recipe, and the shopping list's dialog, delete and total.
#include <gtest/gtest.h>

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "core/text.h"
#include "inventory/InventoryStartup.h"
#include "recipes/RecipeEditor.h"
#include "support/TestSupport.h"
#include "ui/RecipeBench.h"
#include "ui/frmMain.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/UiSupport.h"
#include "ui/dlgAddToShopLst.h"
#include "ui/frmInvCheck.h"
#include "ui/frmFind.h"
#include "ui/frmInventory.h"
#include "ui/frmShoppingLst.h"

namespace zy::test {
namespace {

std::vector<std::string> column(QTreeWidget* list, int c) {
  std::vector<std::string> v;
  for (int i = 0; i < list->topLevelItemCount(); ++i) v.push_back(s8(list->topLevelItem(i)->text(c)));
  return v;
}

void stockHops(Workbench& wb) {
  InventoryList& hops = wb.inventory.list(INV_HOPS);
  hops.rows.push_back({"", {"Saaz", "    2.0", "Oz", "$1.50", "3.5", "", "", "", ""}});
  hops.rows.push_back({"", {"Cascade", "   12.0", "Oz", "$1.25", "5.5", "", "", "", "whole leaf"}});
  hops.rows.push_back({"", {"Amarillo", "    0.0", "Oz", "$2.25", "8.5", "", "", "", ""}});
}

TEST(InventoryWindow, AddSortHideAndDelete) {
  Bench b;
  stockHops(*b.wb);
  frmInventory w(*b.wb);
  w.show();
  w.tbsInventory->setCurrentIndex(INV_HOPS);
  EXPECT_EQ(column(w.lvInventory, 0), (std::vector<std::string>{"Amarillo", "Cascade", "Saaz"}));

  // Add: the dialog opens with the hops defaults; the name and quantity typed, then OK.
  whenModalOpens([&](QWidget*) {
    EXPECT_EQ(s8(w.itemDialog->windowTitle()), "Add Hops Item");
    EXPECT_FALSE(w.itemDialog->txtExtract->isVisible());
    w.itemDialog->txtName->setText("Northern Brewer");
    w.itemDialog->txtQty->setText("4.125");
    w.itemDialog->txtReorderThresh->setText("1");
    w.itemDialog->txtReorderQty->setText("4");
    QTest::mouseClick(w.itemDialog->cmdOK, Qt::LeftButton);
  });
  w.mnuEditAdd_Click();
  EXPECT_EQ(s8(w.lvInventory->currentItem()->text(0)), "Northern Brewer");
  EXPECT_EQ(s8(w.lvInventory->currentItem()->text(1)), "4.13");

  // The saved file reads back as the list shows it.
  Inventory again;
  InventoryStore(b.wb->folder, b.wb->errors, again).load(INV_HOPS);
  ASSERT_EQ(again.list(INV_HOPS).size(), 4u);
  EXPECT_EQ(again.list(INV_HOPS).rows[3].cells,
            (std::vector<std::string>{"Northern Brewer", "   4.13", "Oz", "$1.25", "5.5", "", "1.", "4.", ""}));

  // A click on Qty sorts by value; a second sort turns it round, and then only what is on hand shows.
  const int qty = 1;
  QTest::mouseClick(w.lvInventory->header()->viewport(), Qt::LeftButton, {},
                    QPoint(w.lvInventory->header()->sectionViewportPosition(qty) + 5, 5));
  EXPECT_EQ(column(w.lvInventory, 0), (std::vector<std::string>{"Amarillo", "Saaz", "Northern Brewer", "Cascade"}));
  w.model.sortBy(qty);
  w.mnuViewNonZero->trigger();
  EXPECT_EQ(column(w.lvInventory, 0), (std::vector<std::string>{"Cascade", "Northern Brewer", "Saaz"}));
  EXPECT_EQ(b.settings.read("Inventory", "Non Zero Only", ""), "1");

  // Delete asks; No keeps the row, Yes removes it from the list and the file.
  w.selectRow(0);  // Saaz
  b.prompter.answers = {Answer::No, Answer::Yes};
  w.mnuEditDelete_Click();
  EXPECT_EQ(w.lvInventory->topLevelItemCount(), 3);
  w.mnuEditDelete_Click();
  EXPECT_EQ(column(w.lvInventory, 0), (std::vector<std::string>{"Cascade", "Northern Brewer"}));
  InventoryStore(b.wb->folder, b.wb->errors, again).load(INV_HOPS);
  EXPECT_EQ(again.list(INV_HOPS).size(), 3u);
  EXPECT_EQ(shownLines(b.prompter).back(), "Delete Inventory Item: Do you want to Delete 'Saaz' from the Inventory?");

  // Find: the next name holding the letters, case-blind.
  w.findDialog->txtFind->setText("BREW");
  EXPECT_TRUE(w.findDialog->cmdFind_Click());
  EXPECT_EQ(s8(w.lvInventory->currentItem()->text(0)), "Northern Brewer");
}

TEST(InventoryWindow, AddToRecipePutsTheItemInTheEditor) {
  Bench b;
  stockHops(*b.wb);
  RecipeEditor editor(*b.wb);
  editor.initRecipeForm();
  frmInventory w(*b.wb);
  int repaints = 0;
  w.recipeChanged = [&] { ++repaints; };
  w.setAddToRecipe(&editor);
  w.show();
  EXPECT_TRUE(w.cmdAddToRecipe->isVisible());
  w.showCategory(INV_HOPS);
  w.selectRow(1);  // Cascade
  QTest::mouseClick(w.cmdAddToRecipe, Qt::LeftButton);
  EXPECT_EQ(repaints, 1);
  const IngredientTable& g = editor.sheet.grid;
  const int r = g.headerRow(KIND_HOPS) + 1;
  ASSERT_TRUE(g.isItemRow(r));
  EXPECT_EQ(g.cell(r, COL_NAME), "Cascade");
  EXPECT_EQ(g.cell(r, COL_UNITS), "Oz");
  EXPECT_EQ(g.cell(r, COL_COST), "$1.25");
  EXPECT_EQ(g.cell(r, COL_RATING), "5.5");
  w.showCategory(INV_SUPPLIES);
  EXPECT_FALSE(w.cmdAddToRecipe->isEnabled());
}

TEST(ShoppingWindow, DialogStepsAddsAndTheListDeletes) {
  Bench b;
  dlgAddToShopLst d(*b.wb);
  d.addToShoppingList(INV_HOPS, "Cascade", 0, -1, 1.25);
  EXPECT_EQ(s8(d.lblUnits->text()), "Undefined");
  EXPECT_EQ(s8(d.txtQty->text()), "1.0");
  d.addToShoppingList(INV_HOPS, "Cascade", 0, 1, 1.25);
  emit d.udcQty->stepped(1);  // the hops step, 0.2
  EXPECT_EQ(s8(d.txtQty->text()), "1.2");
  EXPECT_EQ(s8(d.txtUnitCost->text()), "$1.25");
  ASSERT_TRUE(d.cmdOK_Click());
  d.addToShoppingList(INV_MALT, "Pale", 10, 0, 1.1);
  ASSERT_TRUE(d.cmdOK_Click());

  frmShoppingLst w(*b.wb);
  w.show();
  EXPECT_EQ(column(w.lvShopList, 1), (std::vector<std::string>{"Cascade", "Pale"}));
  EXPECT_EQ(s8(w.lblTotalCost->text()), "Est. Total Cost: $12.50");
  EXPECT_FALSE(w.tbDelete->isEnabled());
  w.selectRow(0);
  EXPECT_TRUE(w.tbDelete->isEnabled());
  b.prompter.answers = {Answer::Yes};
  w.tbDelete->trigger();
  EXPECT_EQ(column(w.lvShopList, 1), (std::vector<std::string>{"Pale"}));
  EXPECT_EQ(s8(w.lblTotalCost->text()), "Est. Total Cost: $11.00");
  // Kept for the next run.
  ShoppingList kept;
  ASSERT_TRUE(kept.loadFrom(b.wb->folder.dataFile(kShoppingListFile)));
  ASSERT_EQ(kept.rows.size(), 1u);
  EXPECT_EQ(kept.rows[0].cells[5], "$11.00");
}

TEST(InventoryWindow, OpensFromTheMainWindowAndTheRecipeEditor) {
  RecipeBench b;
  b.storeDozen(1, "Copper Amber");
  ProgramWindows& w = *b.windows;
  EXPECT_TRUE(b.main->openChild(frmMain::Child::Inventory));
  EXPECT_TRUE(w.inventory().isVisible());
  EXPECT_FALSE(w.inventory().cmdAddToRecipe->isVisible());

  w.showRecipeList();
  b.openFromTree(w.recipeList().tvRecipes, w.recipeList().itemOf("R1"));
  frmRecipe& r = w.recipe();
  r.mnuShopListAddRecipe->trigger();
  ASSERT_TRUE(w.shoppingList().isVisible());
  EXPECT_EQ(w.shoppingList().lvShopList->topLevelItemCount(), 12);
  EXPECT_EQ(s8(w.shoppingList().lblTotalCost->text()), "Est. Total Cost: $27.43");

  QTest::mouseClick(r.cmdAddIngredients, Qt::LeftButton);
  EXPECT_TRUE(w.inventory().cmdAddToRecipe->isVisible());
  r.mnuShopListCheckInventories->trigger();
  EXPECT_EQ(w.invCheck().lvCheck->topLevelItemCount(), 12);
  EXPECT_EQ(s8(w.invCheck().lvCheck->topLevelItem(0)->text(6)), "Not in Stock");
}

}  // namespace
}  // namespace zy::test
