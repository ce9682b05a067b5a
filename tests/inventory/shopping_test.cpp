// The shopping list: rows by category and name, the total, the printed list in whole units, its
// CSV both ways; and the check of a recipe against the stock.
#include <gtest/gtest.h>

#include "inventory/ShoppingList.h"
#include "inventory/StockCheck.h"
#include "recipes/IngredientTable.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;
using test::readFile;
using test::readLines;
using test::shownLines;
using test::writeFile;

using Cells = std::array<std::string, 6>;

TEST(ShoppingList, RowsAreKnownByCategoryAndNameAndAddUp) {
  ShoppingList l;
  struct Step {
    int category;
    std::string name;
    double qty;
    bool add;
    double cost;
    Cells row;  // the row of (category, name) afterwards
    std::string total;
  };
  const Step steps[] = {
      {INV_MALT, "Pale", 2, false, 1.5, {"Malt", "Pale", "2.0", "Lbs", "$1.50", "$3.00"}, "$3.00"},
      {INV_MALT, "Pale", 3, false, 1.5, {"Malt", "Pale", "3.0", "Lbs", "$1.50", "$4.50"}, "$4.50"},
      {INV_MALT, "Pale", 1.25, true, 2, {"Malt", "Pale", "4.25", "Lbs", "$2.00", "$8.50"}, "$8.50"},
      {INV_HOPS, "Pale", 1, true, 0.333, {"Hops", "Pale", "1.0", "Lbs", "$0.33", "$0.33"}, "$8.83"},
  };
  for (const Step& s : steps) {
    l.addItem(s.category, s.name, s.qty, s.add, "Lbs", s.cost);
    int r = l.find(inventoryCategoryName(s.category), s.name);
    ASSERT_GE(r, 0);
    EXPECT_EQ(l.rows[static_cast<size_t>(r)].cells, s.row);
    EXPECT_EQ(l.lblTotalCost, "Est. Total Cost: " + s.total);
  }
  EXPECT_EQ(l.rows.size(), 2u);

  // Adding a whole recipe: every ingredient in grid order, a repeated one added up.
  IngredientTable grid;
  auto item = [&](int kind, const char* name, const char* qty, const char* unit, const char* cost) {
    int r = grid.insertItem(kind);
    grid.setCell(r, COL_NAME, name);
    grid.setCell(r, COL_QTY, qty);
    grid.setCell(r, COL_UNITS, unit);
    grid.setCell(r, COL_COST, cost);
  };
  item(KIND_MALT, "Pale", "1.5", "Lbs", "$2.00");
  item(KIND_YEAST, "London Ale", "1", "Packet", "$6.50");
  item(KIND_MALT, "Pale", "0.5", "Lbs", "$2.00");
  EXPECT_EQ(l.addRecipe(grid), 3);
  EXPECT_EQ(l.rows[0].cells, (Cells{"Malt", "Pale", "6.25", "Lbs", "$2.00", "$12.50"}));
  EXPECT_EQ(l.rows[2].cells, (Cells{"Yeast", "London Ale", "1.0", "Packet", "$6.50", "$6.50"}));
  EXPECT_EQ(l.totalCost, "$19.33");
}

TEST(ShoppingList, PrintsInWholeUnitsAndAsksBeforeDeleting) {
  ShoppingList l;
  EXPECT_EQ(l.reportLines()[0].quantity, "There are currently no items in the Shopping List.");
  l.addItem(INV_OTHER, "Irish Moss", 1.2, false, "Tsp", 0.5);
  l.addItem(INV_MALT, "Pale", 1.005, false, "Lbs", 2);
  struct Want {
    bool whole;
    std::string q1, c1, q2, c2, total;
  };
  const Want wants[] = {{false, "[  ] - 1.2 Tsp", "$0.60", "[  ] - 1.01 Lbs", "$2.01", "$2.61"},
                        {true, "[  ] - 2 Tsp", "$1.00", "[  ] - 1 Lbs", "$2.00", "$3.00"}};
  for (const Want& w : wants) {
    l.roundToWholeUnits = w.whole;
    auto lines = l.reportLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].quantity, w.q1);
    EXPECT_EQ(lines[0].cost, w.c1);
    EXPECT_EQ(lines[1].quantity, w.q2);
    EXPECT_EQ(lines[1].item, "Pale");
    EXPECT_EQ(lines[1].cost, w.c2);
    EXPECT_EQ(l.reportTotal(), w.total);
  }

  test::ScriptedPrompter p;
  p.answers = {Answer::No, Answer::Yes, Answer::Yes};
  EXPECT_FALSE(l.deleteItem(0, p));
  EXPECT_TRUE(l.deleteItem(0, p));
  EXPECT_EQ(l.totalCost, "$2.01");
  EXPECT_TRUE(l.clearList(p));
  EXPECT_EQ(l.lblTotalCost, "Est. Total Cost: $0.00");
  EXPECT_EQ(shownLines(p), (std::vector<std::string>{
                               "Delete from List: Do you want to Delete 'Irish Moss' from Shopping List?",
                               "Delete from List: Do you want to Delete 'Irish Moss' from Shopping List?",
                               "Clear Shopping List: Are you sure you want Clear the Shopping List?"}));
}

TEST(ShoppingList, ExportAndImportSkipTheTotalLine) {
  Bench b;
  ExchangePorts ports{b.wb->folder, b.prompter, b.settings, b.clock, b.wb->errors};
  ShoppingList l;
  const std::string path = b.dir.file("list.csv");
  EXPECT_EQ(l.exportList(ports, path), 0);
  EXPECT_EQ(readFile(path), "Shopping List,Category,Item,Quantity,Units,Cost/Unit,Total\r\nzyt,Total Cost,,,,,$0.00\r\n");

  l.addItem(INV_HOPS, "Cascade", 2, false, "Oz", 1.25);
  l.addItem(INV_SUPPLIES, "Caps", 1000, false, "Each", 1.5);
  EXPECT_EQ(l.exportList(ports, path), 2);
  const std::string csv = "Shopping List,Category,Item,Quantity,Units,Cost/Unit,Total\r\n"
                          "zy,Hops,Cascade,2.0,Oz,$1.25,$2.50\r\n"
                          "zy,Supplies,Caps,1000.0,Each,$1.50,$1500.00\r\n"
                          "zyt,Total Cost,,,,,$1502.50\r\n";
  EXPECT_EQ(readFile(path), csv);
  EXPECT_EQ(readLines(b.wb->folder.file(kStatusLog)),
            (std::vector<std::string>{"Export Shopping List Status Log", "11/22/2026 10:30:00 AM", "",
                                      "Exporting to File: " + path, "1) Cascade", "2) Caps", "",
                                      "2 Records Exported", "No Errors"}));

  // Added to the existing rows: quantities sum; a bad line is counted; the total line is no item.
  writeFile(path, csv + "xx,Hops,Bad\r\n\r\nzy,Nonsense,Gadget,1,Each,$2.00,$2.00\r\n");
  EXPECT_EQ(l.importList(ports, path), 3);
  ASSERT_EQ(l.rows.size(), 3u);
  EXPECT_EQ(l.rows[0].cells, (Cells{"Hops", "Cascade", "4.0", "Oz", "$1.25", "$5.00"}));
  EXPECT_EQ(l.rows[2].cells, (Cells{"Malt", "Gadget", "1.0", "Each", "$2.00", "$2.00"}));
  EXPECT_EQ(l.totalCost, "$3,007.00");
  std::vector<std::string> log = readLines(b.wb->folder.file(kStatusLog));
  EXPECT_EQ(std::vector<std::string>(log.begin() + 3, log.end()),
            (std::vector<std::string>{"Importing Shopping List Items from File: " + path,
                                      "WARNING: Expected 'zy' or 'zyt' and read 'xx'",
                                      "Warning: Line 5 is blank, ignored", "", "0 Format Warnings",
                                      "1 Blank Records Skipped", "1 Bad Records Skipped", "3 Records Imported",
                                      "No Fatal Errors"}));

  // A file of another kind stops at its head; the list stays as it was.
  writeFile(path, "Inventory,Malt\r\nzy,Hops,X,1,Oz,$1.00,$1.00\r\n");
  EXPECT_FALSE(l.importList(ports, path));
  EXPECT_EQ(l.rows.size(), 3u);
  EXPECT_EQ(readLines(b.wb->folder.file(kStatusLog)).back(),
            "4. Verify that no data is present in a column without a Field Name (1st Row of Entries)");

  // Kept between runs in the export form.
  ASSERT_TRUE(l.saveTo(b.dir.file("kept.csv")));
  ShoppingList again;
  ASSERT_TRUE(again.loadFrom(b.dir.file("kept.csv")));
  ASSERT_EQ(again.rows.size(), 3u);
  EXPECT_EQ(again.rows[1].cells, l.rows[1].cells);
  EXPECT_EQ(again.totalCost, "$3,007.00");

  auto lines = shownLines(b.prompter);
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[2],
            "Import Success:        Successfully Imported 3 Records\r\n\r\n1 Bad Record(s) Skipped, See Log for Details");
  EXPECT_EQ(lines[3],
            "Import Error: Wrong File Structure Type, Expected 'Shopping List' but Read 'Inventory', Import Aborted "
            "(See Log File)");
}

TEST(StockCheck, ComparesEachIngredientWithTheStockOfItsKind) {
  Inventory inv;
  auto stock = [&](int c, const char* name, const char* qty, const char* unit, const char* cost) {
    size_t r = inv.list(c).addRow(name);
    inv.list(c).setCell(r, kColQty, qty);
    inv.list(c).setCell(r, kColUnits, unit);
    inv.list(c).setCell(r, kColCost, cost);
  };
  stock(INV_MALT, "Pale Ale", "   10.0", "Lbs", "$1.00");
  stock(INV_HOPS, "Cascade", "    1.0", "Oz", "$2.00");
  stock(INV_OTHER, "Irish Moss", "    3.0", "Tsp", "$0.10");
  IngredientTable grid;
  auto item = [&](int kind, const char* name, const char* qty, const char* unit) {
    int r = grid.insertItem(kind);
    grid.setCell(r, COL_NAME, name);
    grid.setCell(r, COL_QTY, qty);
    grid.setCell(r, COL_UNITS, unit);
    grid.setCell(r, COL_COST, "$3.00");
  };
  item(KIND_MALT, "pale ale", "2.0", "Kg");
  item(KIND_HOPS, "Cascade", "2.5", "Oz");
  item(KIND_OTHER, "Irish Moss", "1", "Each");
  item(KIND_YEAST, "London Ale", "1", "Packet");
  struct Want {
    std::string have, need, shortBy, units, status;
  };
  const Want wants[] = {{"10.0", "4.41", "0.0", "Lbs", "OK"},
                        {"1.0", "2.5", "1.5", "Oz", "Short"},
                        {"3.0", "1.0", "1.0", "Each", "Units Differ"},
                        {"0.0", "1.0", "1.0", "Packet", "Not in Stock"}};
  auto rows = checkStock(grid, inv);
  ASSERT_EQ(rows.size(), 4u);
  for (size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i].name);
    EXPECT_EQ(rows[i].haveText, wants[i].have);
    EXPECT_EQ(rows[i].needText, wants[i].need);
    EXPECT_EQ(rows[i].shortText, wants[i].shortBy);
    EXPECT_EQ(rows[i].units, wants[i].units);
    EXPECT_EQ(rows[i].status, wants[i].status);
  }
  ShoppingList l;
  EXPECT_EQ(addShortages(rows, l), 3);
  EXPECT_EQ(l.rows[0].cells, (Cells{"Hops", "Cascade", "1.5", "Oz", "$2.00", "$3.00"}));
}

}  // namespace
}  // namespace zy
