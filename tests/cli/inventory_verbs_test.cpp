#include <gtest/gtest.h>

#include "cli/CliRunner.h"
#include "core/measures.h"
#include "recipes/RecipeStore.h"

using namespace zy;
using namespace zy::test;

namespace {

// A recipe of two malts (one twice), a hop and a yeast, stored as recipe 1.
void storeRecipe(const CliHome& home) {
  MemorySettingsStore settings;
  ScriptedPrompter prompter;
  FixedClock clock{46000.0};
  Workbench wb{home.dir.path(), settings, prompter, clock};
  newRecipeRecord(wb);
  CurrentRecipe& c = wb.recipe;
  c.rec.recipeNo = 1;
  c.rec.recipeName = "Amber";
  auto item = [&](int k, int kind, const char* name, double q, int u, double cost) {
    RecipeItemRecord& it = c.items[static_cast<size_t>(k)];
    it.itemKind = kind, it.itemName = name, it.quantity = q, it.quantityUnits = u, it.unitCost = cost;
  };
  item(0, KIND_MALT, "Pale Malt", 4, UNIT_KG, 1.10);
  item(1, KIND_MALT, "Pale Malt", 1, UNIT_KG, 1.10);
  item(2, KIND_HOPS, "Cascade", 1.5, UNIT_OZ, 1.25);
  item(3, KIND_YEAST, "American Ale", 1, 0, 4.99);
  c.rec.itemCount = 4;
  ASSERT_TRUE(saveCurrentRecipe(wb));
}

}  // namespace

TEST(InventoryVerbs, ListImportExportAndCheck) {
  CliHome h;
  const std::string csv = h.dir.file("malt.csv");
  writeFile(csv, "Malt,Variety,Qty,Units,Vintage,Type,Color,Extract,Notes\r\nzy,Pale Malt,10,Lbs,,Grain,2,1.036,\r\n"
                 "zy,Crystal 60,1x,Lbs,,Grain,60,1.034,sweet\r\n");
  struct Case {
    std::vector<std::string> args;
    int status;
    std::string out, err;
  };
  const Case cases[] = {
      {{"inventory", "list", "Malt"}, 0, "", ""},
      {{"inventory", "import", "0", csv}, 0, "", "[Import Success] Successfully Imported 2 Records\n"},
      {{"inventory", "list", "malt"},
       0,
       "Pale Malt\t   10.0\tLbs\t$0.00\t1.036\t2.0\tYes\t\t0.\t0.\t\n"
       "Crystal 60\t    1.0\tLbs\t$0.00\t1.034\t60.0\tYes\t\t0.\t0.\tsweet\n",
       ""},
      {{"inventory", "export", "0", h.dir.file("out.csv")}, 0, "", "[Export Success] Succesfully Exported 2 Records\n"},
      {{"inventory", "import", "Hops", csv},
       1,
       "",
       "[Import Error] Wrong File Structure Type, Expected 'Hops' but Read 'Malt', Import Aborted (See Log File)\n"},
      {{"inventory", "list", "Grain"}, 2, "", "usage: zythara-cli inventory list CATEGORY\n"},
      {{"inventory", "check", "1"},
       0,
       "Malt\tPale Malt\t10.0\t8.82\t0.0\tLbs\tOK\nMalt\tPale Malt\t10.0\t2.2\t0.0\tLbs\tOK\n"
       "Hops\tCascade\t0.0\t1.5\t1.5\tOz\tNot in Stock\nYeast\tAmerican Ale\t0.0\t1.0\t1.0\tPacket\tNot in Stock\n",
       ""},
  };
  storeRecipe(h);
  for (const Case& c : cases) {
    CliResult r = h.run(c.args);
    SCOPED_TRACE(c.args[1] + " " + c.args[2]);
    EXPECT_EQ(r.status, c.status);
    EXPECT_EQ(r.out, c.out);
    EXPECT_EQ(r.err, c.err);
  }
  EXPECT_EQ(readFile(h.dir.file("out.csv")),
            "Inventory,Malt,Qty,Units,Cost,Extract,Color,Mash,Vintage,Reorder At,Reorder Qty,Comments\r\n"
            "zy,Pale Malt,10.0,Lbs,$0.00,1.036,2.0,Yes,,0.,0.,\r\n"
            "zy,Crystal 60,1.0,Lbs,$0.00,1.034,60.0,Yes,,0.,0.,\"sweet\"\r\n");
  EXPECT_EQ(readLines(h.dir.file("ZYStatus.log"))[5], "*** Error Found on line 1, Invalid file format ***");
}

TEST(ShoppingVerbs, AddRecipeListExportImportClear) {
  CliHome h;
  storeRecipe(h);
  const std::string added = "Malt\tPale Malt\t5.0\tKg\t$1.10\t$5.50\nHops\tCascade\t1.5\tOz\t$1.25\t$1.88\n"
                            "Yeast\tAmerican Ale\t1.0\tPacket\t$4.99\t$4.99\nEst. Total Cost: $12.37\n";
  CliResult r = h.run({"shopping", "add-recipe", "1"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, added);
  EXPECT_EQ(h.run({"shopping", "list"}).out, added);  // kept between runs
  const std::string file = h.dir.file("list.csv");
  EXPECT_EQ(h.run({"shopping", "export", file}).err, "[Export Success] Succesfully Exported 3 Records\n");
  EXPECT_EQ(h.run({"shopping", "import", file, "--replace"}, {"--no"}).err,
            "[Replace Existing Shopping List] WARNING: This will DELETE all the existing Shopping List Items!\r\n"
            "       Are you sure you want to proceed?\n");
  r = h.run({"shopping", "import", file});
  EXPECT_EQ(r.err, "[Import Success] Successfully Imported 3 Record(s)\n");
  EXPECT_EQ(h.run({"shopping", "list"}).out.substr(0, 38), "Malt\tPale Malt\t10.0\tKg\t$1.10\t$11.00\nHo");
  EXPECT_EQ(h.run({"shopping", "clear"}, {"--no"}).status, 0);
  EXPECT_EQ(h.run({"shopping", "clear"}).err,
            "[Clear Shopping List] Are you sure you want Clear the Shopping List?\n");
  EXPECT_EQ(h.run({"shopping", "list"}).out, "Est. Total Cost: $0.00\n");
  EXPECT_EQ(h.run({"shopping", "add-recipe", "7"}).status, 1);
}
