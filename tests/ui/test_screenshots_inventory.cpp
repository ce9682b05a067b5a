// Pictures of the inventory and shopping windows over a stock of eight items of each kind and a
// recipe of six ingredients: written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QTest>

#include "core/measures.h"
#include "inventory/InventoryStartup.h"
#include "recipes/RecipeEditor.h"
#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/dlgAddToShopLst.h"
#include "ui/frmFind.h"
#include "ui/frmInvCheck.h"
#include "ui/frmInventory.h"
#include "ui/frmShoppingLst.h"

namespace zy::test {
namespace {

void save(QWidget& w, const QString& dir, const QString& name) {
  QApplication::processEvents();
  QTest::qWait(50);
  const QString path = QDir(dir).filePath(name + ".png");
  ASSERT_TRUE(w.grab().save(path));
  const QImage img(path);
  ASSERT_FALSE(img.isNull());
  bool varied = false;
  for (int y = 0; y < img.height() && !varied; y += 3)
    for (int x = 0; x < img.width() && !varied; x += 3) varied = img.pixel(x, y) != img.pixel(0, 0);
  EXPECT_TRUE(varied) << name.toStdString() << " is one colour";
}

using Cells = std::vector<std::string>;

void stock(Inventory& inv) {
  const std::vector<Cells> malt = {
      {"2-Row Pale Malt", "   22.0", "Lbs", "$1.10", "1.037", "2.0", "Yes", "Briess 2025", "10.", "50.", ""},
      {"Munich Malt", "    5.5", "Lbs", "$1.40", "1.035", "9.0", "Yes", "", "2.", "10.", ""},
      {"Crystal 60", "    1.25", "Lbs", "$1.60", "1.034", "60.0", "Yes", "", "0.", "0.", "for ambers"},
      {"Crystal 120", "    0.5", "Lbs", "$1.60", "1.033", "120.0", "Yes", "", "0.", "0.", ""},
      {"Victory Malt", "    2.0", "Lbs", "$1.50", "1.034", "28.0", "Yes", "", "0.", "0.", ""},
      {"Chocolate Malt", "    0.0", "Lbs", "$1.90", "1.028", "350.0", "Yes", "", "1.", "2.", ""},
      {"Light Dry Extract", "    3.0", "Lbs", "$4.25", "1.044", "2.0", "No", "", "0.", "0.", ""},
      {"Flaked Oats", "    1.0", "Kg", "$2.10", "1.033", "1.0", "Yes", "", "0.", "0.", ""}};
  const std::vector<Cells> hops = {
      {"Cascade", "    8.0", "Oz", "$1.25", "5.5", "2025", "2.", "8.", "whole leaf"},
      {"Centennial", "    4.0", "Oz", "$1.75", "10.0", "2025", "0.", "0.", ""},
      {"Amarillo", "    2.0", "Oz", "$2.25", "8.5", "2024", "0.", "0.", ""},
      {"Saaz", "  100.0", "Gr", "$0.05", "3.5", "2025", "0.", "0.", ""},
      {"Hallertau", "    1.0", "Oz", "$1.50", "4.0", "", "0.", "0.", ""},
      {"Fuggle", "    0.0", "Oz", "$1.40", "4.5", "", "0.", "0.", ""},
      {"East Kent Goldings", "    3.0", "Oz", "$1.60", "5.0", "", "0.", "0.", ""},
      {"Magnum", "    0.5", "Lbs", "$18.00", "13.5", "", "0.", "0.", ""}};
  const std::vector<Cells> other = {
      {"Irish Moss", "    4.0", "Tsp", "$0.35", "", "0.", "0.", ""},
      {"Yeast Nutrient", "    6.0", "Tsp", "$0.40", "", "0.", "0.", ""},
      {"Gypsum", "   50.0", "Gr", "$0.02", "", "0.", "0.", ""},
      {"Calcium Chloride", "   30.0", "Gr", "$0.03", "", "0.", "0.", ""},
      {"Whirlfloc", "   10.0", "Each", "$0.25", "", "0.", "0.", ""},
      {"Corn Sugar", "    1.0", "Lbs", "$1.99", "", "0.", "0.", ""},
      {"Lactose", "    0.0", "Lbs", "$3.50", "", "0.", "0.", ""},
      {"Coriander", "    1.0", "Oz", "$1.20", "", "0.", "0.", ""}};
  const std::vector<Cells> yeast = {
      {"American Ale Yeast", "    2.0", "Packet", "$6.99", "75.", "Liquid", "", "0.", "0.", ""},
      {"London Ale", "    1.0", "Packet", "$6.99", "73.", "Liquid", "", "0.", "0.", ""},
      {"Safale US-05", "    3.0", "Packet", "$3.99", "78.", "Dry", "", "1.", "3.", ""},
      {"Nottingham", "    2.0", "Packet", "$3.49", "77.", "Dry", "", "0.", "0.", ""},
      {"Bavarian Lager", "    0.0", "Tube", "$7.50", "73.", "Liquid", "", "0.", "0.", ""},
      {"Kolsch", "    1.0", "Slant", "$2.00", "75.", "Liquid", "", "0.", "0.", ""},
      {"Belgian Wit", "    1.0", "Starter", "$6.99", "74.", "Liquid", "", "0.", "0.", ""},
      {"Saison", "    1.0", "Packet", "$6.99", "80.", "Liquid", "", "0.", "0.", ""}};
  const std::vector<Cells> supplies = {
      {"Bottle Caps", "  144.0", "Each", "$0.04", "", "50.", "144.", ""},
      {"Sanitizer", "   16.0", "US Fl Oz", "$0.80", "", "0.", "0.", ""},
      {"Bottles", "   48.0", "Each", "$0.50", "", "0.", "0.", ""},
      {"Priming Sugar", "    5.0", "Oz", "$0.30", "", "0.", "0.", ""},
      {"Tubing", "    6.0", "Each", "$0.75", "", "0.", "0.", ""},
      {"Grain Bags", "    3.0", "Each", "$1.50", "", "0.", "0.", ""},
      {"Campden Tablets", "   20.0", "Each", "$0.10", "", "0.", "0.", ""},
      {"Labels", "    0.0", "Each", "$0.05", "", "0.", "0.", ""}};
  const std::vector<Cells>* all[] = {&malt, &hops, &other, &yeast, &supplies};
  for (int c = 0; c < kInventoryCategories; ++c)
    for (const Cells& cells : *all[c]) inv.list(c).rows.push_back({"", cells});
}

TEST(Screenshots, InventoryWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  Bench b;
  stock(b.wb->inventory);

  RecipeEditor e(*b.wb);
  e.initRecipeForm();
  e.txtTitle = "Copper Kettle Amber";
  e.AddIngredient(KIND_MALT, "2-Row Pale Malt", 4, UNIT_KG, 2.42, 1.037, 2, -1);
  e.AddIngredient(KIND_MALT, "Crystal 60", 0.75, UNIT_LBS, 1.6, 1.034, 60, -1);
  e.AddIngredient(KIND_MALT, "Chocolate Malt", 2, UNIT_OZ, 0.12, 1.028, 350, -1);
  e.AddIngredient(KIND_HOPS, "Cascade", 1.5, UNIT_OZ, 1.25, 5.5, 20, 0);
  e.AddIngredient(KIND_HOPS, "Centennial", 28, UNIT_GR, 0.06, 10, 60, 0);
  e.AddIngredient(KIND_OTHER, "Irish Moss", 1, 5, 0.35, 0, 0, 0);
  e.AddIngredient(KIND_YEAST, "London Ale", 1, 0, 6.99, 0.73, 0, 0);

  frmInventory inv(*b.wb);
  inv.show();
  inv.selectRow(2);
  save(inv, dir, "inventory");

  inv.selectRow(0);
  inv.itemDialog->load(INV_MALT, inv.model.fieldsOf(0), false);
  inv.itemDialog->show();
  save(*inv.itemDialog, dir, "inventory-edit");
  inv.itemDialog->hide();

  inv.showCategory(INV_HOPS);
  inv.findDialog->txtFind->setText("cent");
  inv.findDialog->cmdFind_Click();
  inv.findDialog->show();
  save(*inv.findDialog, dir, "inventory-find");

  frmInvCheck check(*b.wb, e);
  check.show();
  check.refresh();
  save(check, dir, "inventory-check");

  check.cmdAddShort_Click();
  b.wb->shopping.addItem(INV_SUPPLIES, "Bottle Caps", 144, false, "Each", 0.04);
  b.wb->shopping.addItem(INV_OTHER, "Whirlfloc", 2, false, "Each", 0.25);
  frmShoppingLst list(*b.wb);
  list.show();
  list.selectRow(1);
  save(list, dir, "shopping-list");

  dlgAddToShopLst add(*b.wb);
  add.addToShoppingList(INV_HOPS, "Cascade", 2, 1, 1.25);
  add.show();
  save(add, dir, "add-to-shopping");
}

}  // namespace
}  // namespace zy::test
