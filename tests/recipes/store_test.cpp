#include <gtest/gtest.h>

#include <filesystem>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

namespace {
// Little-endian bytes written by hand, independent of the record code.
struct Bytes {
  std::string b;
  explicit Bytes(size_t n) : b(n, '\0') {}
  void i16(size_t off, int v) { b.replace(off, 2, le16(v)); }
  void f64(size_t off, double v) { b.replace(off, 8, le64(v)); }
  void text(size_t off, size_t len, const std::string& s) { b.replace(off, len, padded(s, len)); }
};

long recordCount(const std::string& path, size_t len) { return static_cast<long>(readFile(path).size() / len); }

int ownerOf(const std::string& path, size_t len, long n) {
  std::string all = readFile(path);
  return getI16(std::string_view(all).substr((n - 1) * len, len), 2);
}

// A workbench, the three recipe files, and a save of recipe `no` with the items and comment given.
struct StoreTest : ::testing::Test {
  Bench b;
  Workbench& wb = *b.wb;
  const std::string recipes = b.dir.file("Data/ZYRecipe.dat"), items = b.dir.file("Data/ZYRItems.dat"),
                    comments = b.dir.file("Data/ZYComment.dat");
  void save(int no, const std::vector<RecipeItemRecord>& its, const std::string& comment = "") {
    newRecipeRecord(wb);
    wb.recipe.rec.recipeNo = no;
    wb.recipe.rec.itemCount = static_cast<int>(its.size());
    for (size_t i = 0; i < its.size(); ++i) wb.recipe.items[i] = its[i];
    wb.recipe.comment = comment;
    ASSERT_TRUE(saveCurrentRecipe(wb));
  }
};
}  // namespace

TEST(RecipeRecords, ItemAndCommentBytesAtTheirOffsets) {
  RecipeItemRecord it = makeItem(1, "Cascade", 1.5, 1, 1.25, 5.5, 60, 0);
  it.recipeNo = 12;
  Bytes e(114);
  for (auto [off, v] : {std::pair{0, 200}, {2, 12}, {4, 1}, {64, 1}, {90, 0}, {112, 299}}) e.i16(off, v);
  for (auto [off, v] : {std::pair{56, 1.5}, {66, 1.25}, {74, 5.5}, {82, 60.0}}) e.f64(off, v);
  e.text(6, 50, "Cascade");
  e.text(92, 20, "");
  EXPECT_EQ(it.encode(), e.b);
  RecipeItemRecord back = RecipeItemRecord::decode(e.b);
  EXPECT_EQ(back.itemName + "|" + plainText(back.unitCost) + "|" + std::to_string(back.controlEnd),
            fixedText("Cascade", 50) + "|1.25|299");

  RecipeCommentRecord c;
  c.recipeNo = 3;
  c.commentText = "Dry hop \xB8 days";
  Bytes ce(126);
  for (auto [off, v] : {std::pair{0, 200}, {2, 3}, {124, 299}}) ce.i16(off, v);
  ce.text(4, 120, "Dry hop \xB8 days");
  EXPECT_EQ(c.encode(), ce.b);
  EXPECT_EQ(RecipeCommentRecord::decode(ce.b).recipeNo, 3);
}

TEST(RecipeRecords, RecipeBytesAtTheirOffsets) {
  RecipeRecord r;
  r.recipeNo = 4, r.recipeType = 1, r.unitType = 2, r.itemCount = 3, r.recipeName = "Amber", r.beerStyle = "K\xF6lsch";
  r.boilVolume = 3.5, r.fermentVolume = 5, r.volumeUnits = 1, r.color = 12.25, r.bitterness = 33;
  r.originalGravity = 1.05, r.finalGravity = 1.012, r.alcohol = 4.9, r.boilTime = 60, r.mashType = 3;
  r.mashStepTemp[0] = 122, r.mashStepTemp[12] = 170, r.mashStepTime[0] = 30, r.mashStepTime[12] = 10;
  r.mashStepComment[0] = "Protein rest", r.mashStepComment[12] = "Mash out";
  r.mashWaterRate = 1.25, r.mashWaterVolume = 10, r.mashEfficiency = 75;
  r.spargeVolume = 4.5, r.spargeVolumeUnits = 6, r.spargeTemp = 168, r.spargeRate = 0.5;
  r.fermentTime = {7, 2, 0}, r.fermentTimeUnits = {0, 1, 2}, r.fermentTemp = {65, 60, 0}, r.fermentVessel = {0, 1, 2};
  r.commentCount = 2, r.container = 2, r.carbonation = 1, r.primingComment = "3/4 cup corn sugar";
  r.dateCreated = "Oct-05-1998", r.idCode = "AM-1", r.labelName = "Amber Label";
  r.agingCount = 3, r.agingUnits = 1, r.agingTemp = -9999.0;
  Bytes e(1546);
  // Offset and value of every 16-bit and every 8-byte field that is not zero, then the texts.
  for (auto [off, v] : {std::pair{0, 200}, {2, 4}, {4, 1}, {6, 2}, {8, 3}, {146, 1}, {156, 33}, {190, 3},
                        {1152, 0}, {1162, 6}, {1204, 0}, {1206, 1}, {1208, 2}, {1234, 0}, {1236, 1}, {1238, 2},
                        {1240, 2}, {1242, 2}, {1244, 1}, {1382, 3}, {1384, 1}, {1544, 299}})
    e.i16(off, v);
  for (auto [off, v] : {std::pair{130, 3.5}, {138, 5.0}, {148, 12.25}, {158, 1.05}, {166, 1.012}, {174, 4.9},
                        {182, 60.0}, {192, 122.0}, {192 + 96, 170.0}, {296, 30.0}, {296 + 96, 10.0}, {920, 1.25},
                        {928, 10.0}, {936, 75.0}, {1154, 4.5}, {1164, 168.0}, {1172, 0.5}, {1180, 7.0},
                        {1188, 2.0}, {1210, 65.0}, {1218, 60.0}, {1386, -9999.0}})
    e.f64(off, v);
  for (int i = 0; i < 13; ++i) e.text(400 + 40 * i, 40, i == 0 ? "Protein rest" : i == 12 ? "Mash out" : "");
  for (auto [off, len, t] : {std::tuple{10, 60, "Amber"}, {70, 60, "K\xF6lsch"}, {1246, 80, "3/4 cup corn sugar"},
                             {1326, 11, "Oct-05-1998"}, {1337, 10, "AM-1"}, {1347, 35, "Amber Label"}, {1394, 150, ""}})
    e.text(off, len, t);
  const std::string got = r.encode();
  ASSERT_EQ(got.size(), 1546u);
  for (size_t i = 0; i < got.size(); ++i)
    ASSERT_EQ(static_cast<unsigned char>(got[i]), static_cast<unsigned char>(e.b[i])) << "byte " << i;
  RecipeRecord back = RecipeRecord::decode(e.b);
  EXPECT_EQ(back.encode(), e.b);
  EXPECT_EQ(back.mashStepComment[12] + std::to_string(back.fermentVessel[2]), fixedText("Mash out", 40) + "2");
}

TEST(RecipeStore, NewRecipeRecordHoldsTheDefaults) {
  Bench b;
  b.wb->recipe.comment = "old";
  b.wb->recipe.rec.recipeNo = 9;
  newRecipeRecord(*b.wb);
  const RecipeRecord& r = b.wb->recipe.rec;
  EXPECT_EQ(r.recipeName + "|" + r.dateCreated + "|" + trim(r.mashStepComment[5]) + "|" + b.wb->recipe.comment,
            "A Beer Recipe|Nov-22-2026||");
  EXPECT_EQ(std::vector<double>({static_cast<double>(r.recipeNo), r.boilVolume, r.fermentVolume,
                                 static_cast<double>(r.volumeUnits), r.boilTime, r.mashEfficiency, r.agingTemp,
                                 static_cast<double>(r.agingUnits), r.mashStepTime[12]}),
            std::vector<double>({0, 3.5, 5.0, 1, 60, 80, 0, 0, 0}));
}

TEST_F(StoreTest, SlotsAreReusedFromTheRememberedPosition) {
  auto add = [&](const char* name) {
    newRecipeRecord(wb);
    long slot = findNextRecipeSlot(wb);
    wb.recipe.rec.recipeNo = static_cast<int>(slot);
    wb.recipe.rec.recipeName = name;
    EXPECT_TRUE(saveCurrentRecipe(wb));
    return slot;
  };
  long slot = 0;
  for (const char* name : {"One", "Two", "Three", "Four"}) EXPECT_EQ(add(name), ++slot);
  EXPECT_TRUE(deleteRecipe(wb, 1));
  EXPECT_TRUE(deleteRecipe(wb, 3));
  // The search resumes at the remembered 4: the freed slots 1 and 3 lie before it.
  EXPECT_EQ(findNextRecipeSlot(wb), 5);
  EXPECT_EQ(recordCount(recipes, 1546), 4);
  // A fresh start searches from 1 again.
  wb.recipeSlotPosition = 1;
  EXPECT_EQ(add("Five"), 1);
  EXPECT_EQ(add("Six"), 3);
  EXPECT_EQ(add("Seven"), 5);
  std::vector<std::string> names;
  scanRecipes(wb, [&](long, const RecipeRecord& r) { names.push_back(trim(r.recipeName)); });
  EXPECT_EQ(names, (std::vector<std::string>{"Five", "Two", "Six", "Four", "Seven"}));
}

TEST_F(StoreTest, ItemsAndCommentsAreRewrittenAndFreed) {
  // Recipe 1 with three items and a 121-character comment, recipe 2 with one item after them.
  save(1, {makeItem(0, "Pale", 8), makeItem(1, "Cascade", 1), makeItem(3, "Ale Yeast", 1)},
       std::string(120, 'a') + "b");
  EXPECT_EQ(std::vector<long>({wb.recipe.rec.commentCount, findNextRecipeSlot(wb)}), std::vector<long>({2, 2}));
  save(2, {makeItem(0, "Munich", 2)});
  EXPECT_EQ(std::vector<long>({recordCount(items, 114), recordCount(comments, 126)}), std::vector<long>({4, 2}));

  // Recipe 1 saved again, shorter: one item and a 120-character comment.
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(std::to_string(wb.recipe.rec.itemCount) + trim(wb.recipe.items[1].itemName) + wb.recipe.comment,
            "3Cascade" + std::string(120, 'a') + "b");
  wb.recipe.rec.itemCount = 1, wb.recipe.comment = std::string(120, 'c');
  ASSERT_TRUE(saveCurrentRecipe(wb));
  EXPECT_EQ(wb.recipe.rec.commentCount, 1);
  // The owners of the four item records and of the second comment record.
  EXPECT_EQ(std::vector<int>({ownerOf(items, 114, 1), ownerOf(items, 114, 2), ownerOf(items, 114, 3),
                              ownerOf(items, 114, 4), ownerOf(comments, 126, 2)}),
            std::vector<int>({1, 0, 0, 2, 0}));

  // Recipe 2 grows to three items: the freed records 2 and 3 are reused, nothing appended.
  ASSERT_TRUE(loadRecipe(wb, 2));
  wb.recipe.rec.itemCount = 3, wb.recipe.items[1] = makeItem(0, "Crystal", 1), wb.recipe.items[2] = makeItem(1, "Fuggle", 1);
  ASSERT_TRUE(saveCurrentRecipe(wb));
  EXPECT_EQ(std::vector<long>({recordCount(items, 114), ownerOf(items, 114, 2)}), std::vector<long>({4, 2}));
  ASSERT_TRUE(loadRecipe(wb, 2));
  // The items go to the eligible records from the front in table order, and come back so.
  EXPECT_EQ(trim(wb.recipe.items[0].itemName) + "," + trim(wb.recipe.items[1].itemName) + "," +
                trim(wb.recipe.items[2].itemName),
            "Munich,Crystal,Fuggle");
  EXPECT_EQ(getText(readFile(items).substr(3 * 114, 114), 6, 6), "Fuggle");

  // An empty comment with none before leaves the comment file alone.
  const std::string before = readFile(comments);
  EXPECT_TRUE(saveCurrentRecipe(wb) && readFile(comments) == before);
  // Emptying recipe 1's comment frees its record.
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(wb.recipe.comment, std::string(120, 'c'));
  wb.recipe.comment.clear();
  ASSERT_TRUE(saveCurrentRecipe(wb));
  EXPECT_EQ(std::vector<long>({wb.recipe.rec.commentCount, ownerOf(comments, 126, 1)}), std::vector<long>({0, 0}));
  for (auto [len, count] : {std::pair{0, 0}, {1, 1}, {120, 1}, {121, 2}, {240, 2}})
    EXPECT_EQ(commentCountFor(len), count) << len;
}

TEST_F(StoreTest, SavingWithoutARecordNumberEndsTheProgram) {
  newRecipeRecord(wb);  // recipeNo 0: no slot was taken
  EXPECT_THROW(saveCurrentRecipe(wb), Terminated);
  EXPECT_EQ(b.prompter.shown.back().text, "Error #63(Bad record number) in frmRecipeList!saveCurrentRecipe at Line 0");
  EXPECT_EQ(readFile(recipes), "");
}

TEST_F(StoreTest, TwentyFiveItemsFillTwentyFiveRecordsAndMissingItemsWarn) {
  std::vector<RecipeItemRecord> its;
  for (int i = 0; i < 25; ++i) its.push_back(makeItem(i % 4, "Item " + std::to_string(i), i));
  save(1, its);
  EXPECT_EQ(recordCount(items, 114), 25);
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(std::to_string(wb.recipe.rec.itemCount) + " " + trim(wb.recipe.items[24].itemName) + " " +
                std::to_string(wb.recipe.items[24].recipeNo),
            "25 Item 24 1");
  EXPECT_TRUE(b.prompter.shown.empty());

  // Recipe 2 claims five items while two hang on it: a warning, and the count is one more.
  save(2, {makeItem(0, "Pale", 8), makeItem(1, "Hallertau", 1)});
  patchRecord(recipes, 1546, 2, [](std::string& r) { putI16(r, 8, 5); });
  ASSERT_TRUE(loadRecipe(wb, 2));
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Warning: Not all the Recipe Items where loaded for this Recipe"});
  EXPECT_EQ(wb.recipe.rec.itemCount, 3);
}

TEST_F(StoreTest, CorruptedRecordsStopTheOperationWithTheirErrors) {
  for (int n = 1; n <= 3; ++n) save(n, {makeItem(0, "Malt", n)}, "note " + std::to_string(n));
  patchRecord(recipes, 1546, 2, [](std::string& r) { putI16(r, 1544, 298); });  // record 2 ends badly
  std::vector<long> seen;
  EXPECT_FALSE(scanRecipes(wb, [&](long n, const RecipeRecord&) { seen.push_back(n); }));
  EXPECT_EQ(seen, std::vector<long>{1});
  const std::string corrupted = "Error: Corrupted Recipe Record in " + recipes + " at Line 2, No More Recipes Loaded";
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{corrupted});
  auto log = readLines(b.dir.file("ZYError.log"));
  EXPECT_EQ(std::vector<std::string>(log.begin() + 4, log.begin() + 8),
            (std::vector<std::string>{"Error #32020(Invalid Recipe Record Control Code)", "Line #2",
                                      "In Function RecipeList!mnuSortBy_Click", "Affecting File: " + recipes}));

  EXPECT_FALSE(loadRecipe(wb, 2));
  EXPECT_EQ(shownLines(b.prompter).back(), corrupted);

  patchRecord(items, 114, 2, [](std::string& r) { putI16(r, 0, 0); });  // item record 2 starts badly
  EXPECT_FALSE(loadRecipe(wb, 3));
  EXPECT_EQ(b.prompter.shown.back().text,
            "Corrupted Recipe Item in " + items + " at Line 2, No More Recipe Items Loaded");
  EXPECT_TRUE(loadRecipe(wb, 1));  // found before the bad record

  patchRecord(comments, 126, 1, [](std::string& r) { putI16(r, 0, 7); });
  patchRecord(items, 114, 2, [](std::string& r) { putI16(r, 0, 200); });
  EXPECT_FALSE(loadRecipe(wb, 3));
  EXPECT_EQ(b.prompter.shown.back().text,
            "Corrupted Recipe Comment Record in " + comments + " at Line 1, No More Recipe Comments Loaded");
  auto lines = readLines(b.dir.file("ZYError.log"));
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Error #32022(Invalid Comment Record Control Code)"), 1);
  EXPECT_TRUE(startsWith(lines[lines.size() - 8], "New Error "));
}

TEST_F(StoreTest, PartialTrailingRecordIsNotReadAndMissingFilesAreCreated) {
  int count = 0;
  auto counted = [&] { return scanRecipes(wb, [&](long, const RecipeRecord&) { ++count; }); };
  EXPECT_TRUE(counted() && count == 0 && fileExists(recipes));
  save(1, {});
  const std::string all = readFile(recipes);
  writeFile(recipes, all + all.substr(0, 700));
  EXPECT_TRUE(counted() && count == 1) << count;
  EXPECT_EQ(findNextRecipeSlot(wb), 2);
}

TEST_F(StoreTest, DeleteFreesEverythingButRemovesNothing) {
  save(1, {makeItem(0, "Pale", 8), makeItem(1, "Saaz", 1)}, std::string(130, 'x'));
  ASSERT_TRUE(deleteRecipe(wb, 1));
  EXPECT_EQ(std::vector<int>({ownerOf(recipes, 1546, 1), ownerOf(items, 114, 1), ownerOf(items, 114, 2),
                              ownerOf(comments, 126, 1), ownerOf(comments, 126, 2)}),
            std::vector<int>({0, 0, 0, 0, 0}));
  EXPECT_EQ(recordCount(comments, 126), 2);
  // The freed record keeps its other fields.
  EXPECT_EQ(getText(readFile(recipes), 1326, 11), "Nov-22-2026");
}

TEST_F(StoreTest, NoSlotPastTheLastSixteenBitNumber) {
  // A file of 32767 recipes, none free.
  RecipeRecord r;
  std::string all;
  all.reserve(1546u * 32767u);
  for (int n = 1; n <= 32767; ++n) {
    r.recipeNo = n;
    all += r.encode();
  }
  writeFile(recipes, all);
  EXPECT_EQ(findNextRecipeSlot(wb), 0);
  ASSERT_EQ(b.prompter.shown.size(), 1u);
  EXPECT_EQ(b.prompter.shown[0].title, "Zythara Recipes");
  EXPECT_EQ(readFile(recipes).size(), 1546u * 32767u);
  // Freeing one makes room again.
  ASSERT_TRUE(deleteRecipe(wb, 40));
  wb.recipeSlotPosition = 1;
  EXPECT_EQ(findNextRecipeSlot(wb), 40);
}

// A save that stops half way, or cannot be done at all, leaves no damaged recipe behind.
TEST(RecipeStoreFaults, AnInterruptedSaveOfANewRecipeListsNothing) {
  // The items' or the comment's file cannot be written: the save ends there (the error routine
  // ends the program), and the recipe record, written last, is not there to list a recipe
  // with missing items or comment.
  for (const char* blocked : {"ZYRItems.dat", "ZYComment.dat"}) {
    Bench b;
    Workbench& wb = *b.wb;
    std::filesystem::create_directory(b.dir.file(std::string("Data/") + blocked));
    newRecipeRecord(wb);
    wb.recipe.rec.recipeNo = 1, wb.recipe.rec.itemCount = 1, wb.recipe.comment = "Mash low";
    wb.recipe.items[0] = makeItem(KIND_MALT, "Pale", 8);
    EXPECT_THROW(saveCurrentRecipe(wb), Terminated) << blocked;
    int listed = 0;
    scanRecipes(wb, [&](long, const RecipeRecord&) { ++listed; });
    EXPECT_EQ(listed, 0) << blocked;
    EXPECT_EQ(readFile(b.dir.file("Data/ZYRecipe.dat")), "") << blocked;
  }
}

TEST(RecipeStoreFaults, ACommentBeyondSixteenBitsOfPiecesIsRefused) {
  Bench b;
  Workbench& wb = *b.wb;
  newRecipeRecord(wb);
  wb.recipe.rec.recipeNo = 1;
  wb.recipe.comment = std::string(kMaxCommentLength, 'x');
  ASSERT_TRUE(saveCurrentRecipe(wb));  // the longest comment that fits
  EXPECT_EQ(wb.recipe.rec.commentCount, 32767);
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(wb.recipe.comment.size(), kMaxCommentLength);

  const std::string before = readFile(b.dir.file("Data/ZYComment.dat"));
  wb.recipe.comment += "y";
  EXPECT_FALSE(saveCurrentRecipe(wb));
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Zythara Recipes: The comment of this recipe holds 3932041 characters, more than "
                                     "the 3932040 a recipe can keep. Shorten the comment and save again; nothing "
                                     "was saved."});
  EXPECT_EQ(readFile(b.dir.file("Data/ZYComment.dat")), before);
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(wb.recipe.comment.size(), kMaxCommentLength);
}
