// A long shopping list file: every row read once, a name met again within the file added to the
// row it made, and the total summed once at the end.
#include <gtest/gtest.h>

#include "inventory/ShoppingList.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

TEST(ShoppingListBulk, ALongFileMergesRepeatedNamesAndTotalsOnce) {
  test::Bench b;
  ExchangePorts ports{b.wb->folder, b.prompter, b.settings, b.clock, b.wb->errors};
  std::string csv = "Shopping List,Category,Item,Quantity,Units,Cost/Unit,Total\r\n";
  for (int pass = 0; pass < 2; ++pass)
    for (int i = 0; i < 3000; ++i) csv += "zy,Hops," + std::to_string(i) + ",1,Oz,$0.50,$0.50\r\n";
  csv += "zy,Malt,0,2,Lbs,$1.00,$2.00\r\nzyt,Total Cost,,,,,$1.00\r\n";
  const std::string path = b.dir.file("long.csv");
  test::writeFile(path, csv);

  for (bool kept : {false, true}) {
    SCOPED_TRACE(kept ? "kept file" : "import");
    ShoppingList l;
    l.addItem(INV_HOPS, "7", 0.5, false, "Oz", 0.5);
    if (kept)
      ASSERT_TRUE(l.loadFrom(path));  // the kept file replaces rows, each line setting its quantity
    else
      ASSERT_EQ(l.importList(ports, path), 6001);
    ASSERT_EQ(l.rows.size(), 3001u);
    const int seven = l.find("Hops", "7");
    ASSERT_EQ(seven, kept ? 7 : 0);
    EXPECT_EQ(l.rows[static_cast<size_t>(seven)].cells[2], kept ? "1.0" : "2.5");
    EXPECT_EQ(l.rows[3000].cells[1], "0");
    EXPECT_EQ(l.totalCost, kept ? "$1,502.00" : "$3,002.25");
  }
}

}  // namespace
}  // namespace zy
