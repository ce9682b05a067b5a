// The recipe list model: the tree and its sort modes, the numbering of doubled names, the scan,
// the window's procedures and the list in its file form.
#include <gtest/gtest.h>

#include "batchlog/BatchLogCount.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeExchange.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using namespace test;

struct Stored {
  std::string name;
  std::string style = "";
  int type = 0;
  std::string date = "Oct-05-1998";
  int mash = 0;
};

// Saves a recipe at record `no` (the store fills a gap with free slots).
void store(Workbench& wb, int no, const Stored& s) {
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.recipeNo = no, r.recipeName = s.name, r.beerStyle = s.style, r.recipeType = s.type, r.dateCreated = s.date;
  r.mashType = s.mash;
  ASSERT_TRUE(saveCurrentRecipe(wb));
}

std::vector<std::string> shownTree(const RecipeList& list) {
  std::vector<std::string> v{list.lblTitle};
  for (const RecipeNode* n : list.tree.displayOrder()) v.push_back((n->isLeaf() ? "  " : "") + n->text);
  return v;
}

std::string recipeFile(const Bench& b) { return b.wb->folder.dataFile(kRecipeFile); }

// A workbench with its recipe list; `store` saves a recipe at record `no`.
struct ListTest : ::testing::Test {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeList& list = wb.recipeList;
  void store(int no, const Stored& s) { zy::store(wb, no, s); }
  std::vector<std::string> msgs() const { return test::shownLines(b.prompter); }
};

TEST(RecipeList, NumberingRuleReadsTheDigitsBackwards) {
  // Reversed "01" reads as 1, reversed "21" as 12 (the last two characters go), "-5" is below 1,
  // 2.5 read backwards goes to the even neighbour 2; no 16-bit number is an overflow.
  const std::pair<const char*, const char*> cases[] = {
      {"Amber", "Amber 1"},        {"Amber 1", "Amber 2"},          {"Amber 9", "Amber 10"},
      {"Amber 10", "Amber 12"},    {"Amber 12", "Amber 22"},        {"Amber 123", "Amber 1322"},
      {"Brew 1a", "Brew 1a 1"},    {"7", "8"},                      {"", " 1"},
      {"Beer 5-", "Beer 5- 1"},    {"Amber 99999", "<overflow>"},   {"Amber 66723", "Amber 66732767"},
      {"Amber 76723", "<overflow>"}, {"Amber 5.2", "Amber 5.3"}};
  for (const auto& [name, numbered] : cases)
    EXPECT_EQ(RecipeList::numberedName(name).value_or("<overflow>"), numbered) << name;
}

TEST_F(ListTest, DoubledNamesAreNumberedByTagWhileTheFileKeepsItsName) {
  for (int i = 1; i <= 12; ++i) store(i, {"Amber"});
  store(13, {"Amber 9"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  std::vector<std::string> tags;
  for (int i = 1; i <= 13; ++i) tags.push_back(list.tree.find("R" + itos(i))->tag);
  EXPECT_EQ(tags, (std::vector<std::string>{"Amber", "Amber 1", "Amber 2", "Amber 3", "Amber 4", "Amber 5", "Amber 6",
                                            "Amber 7", "Amber 8", "Amber 9", "Amber 10", "Amber 12", "Amber 22"}));
  EXPECT_EQ(list.lblTitle + "|" + list.tree.tag + "|" + list.currentRecipeKey, " Sorted By Name: 13|13|R13");
  // The scan never writes: record 2 still holds the plain name.
  ASSERT_TRUE(loadRecipe(wb, 2) && trim(wb.recipe.rec.recipeName) == "Amber");

  // A later add (the editor's save of a new recipe) takes the next free number and changes
  // the current recipe's name, which the caller then saves.
  newRecipeRecord(wb);
  wb.recipe.rec.recipeNo = 14, wb.recipe.rec.recipeName = "  Amber  ";
  ASSERT_TRUE(list.addToRecipeList(wb, true));
  EXPECT_EQ(wb.recipe.rec.recipeName + "|" + list.selectedKey + "|" + list.lblTitle, "Amber 23|R14| Sorted By Name: 14");
  EXPECT_TRUE(list.deleteEnabled && list.exportEnabled && list.genHTMLEnabled);
}

TEST_F(ListTest, AChainOfNumberedNamesEndsWhenItsNumberOutgrowsSixteenBits) {
  // Amber, Amber 1 ... Amber 10, Amber 12, 22, 23, 33, 34 ... 99, 100, 102, 1202, 122022: 31 names.
  list.sortMode = SORT_BY_NAME;
  for (int no = 1; no <= 32; ++no) {
    wb.recipe.rec = RecipeRecord{};
    wb.recipe.rec.recipeNo = no, wb.recipe.rec.recipeName = "Amber";
    EXPECT_EQ(list.addToRecipeList(wb, false), no <= 31) << no;
  }
  EXPECT_EQ(list.tree.find("R14")->tag + "|" + list.tree.find("R15")->tag + "|" + list.tree.find("R31")->tag + "|" +
                list.tree.tag,
            "Amber 23|Amber 33|Amber 122022|31");
  EXPECT_EQ(list.tree.find("R32"), nullptr);
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Error: In AddToRecipeList: Overflow"});
}

TEST_F(ListTest, ANumberedNameStaysWithinTheSixtyCharactersOfTheRecord) {
  const std::string full(60, 'x');
  for (int no = 1; no <= 3; ++no) store(no, {full});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(list.tree.find("R2")->tag + "|" + list.tree.find("R3")->tag,
            std::string(58, 'x') + " 1|" + std::string(58, 'x') + " 2");
}

TEST_F(ListTest, SortModesGroupAndOrderTheLeaves) {
  store(1, {"pale", "Pale Ale", 0, "Oct-05-1998", 2});
  store(2, {"Bock", "0", 1, "Mar-01-2001", 3});
  store(3, {"Cider Time", "", 3, "", 0});
  store(4, {"Amber", "Pale Ale", 0, "Jan-15-1998", 2});

  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Name: 4", "  Amber", "  Bock", "  Cider Time",
                                                       "  pale"}));
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_STYLE));
  EXPECT_EQ(shownTree(list),
            (std::vector<std::string>{" Sorted By Beer Style: 4", "<Not Specified>", "  Bock", "  Cider Time",
                                      "Pale Ale", "  Amber", "  pale"}));
  const RecipeNode* g = list.tree.find("Pale Ale");
  ASSERT_NE(g, nullptr);
  EXPECT_EQ(g->tag + " " + g->image + " " + list.tree.find("R1")->parent, "Parent ClosedBook Pale Ale");
  EXPECT_TRUE(list.tree.setExpanded("Pale Ale", true) && list.tree.find("Pale Ale")->image == "OpenBook");

  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_TYPE));
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Type: 4", "Ale", "  Amber", "  pale", "Cider",
                                                       "  Cider Time", "Lager", "  Bock"}));
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_DATE));
  EXPECT_EQ(shownTree(list),
            (std::vector<std::string>{" Sorted By Date: 4", "Unknown Creation Date", "  Cider Time", "Year 1998",
                                      "  1998-01-15 - Amber", "  1998-10-05 - pale", "Year 2001",
                                      "  2001-03-01 - Bock"}));
  // The date prefix never enters the Tag.
  EXPECT_EQ(list.tree.find("R4")->tag, "Amber");
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_MASH));
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Mash Type: 4", "Infusion", "  Amber", "  pale",
                                                       "No Mash", "  Cider Time", "Step Infusion", "  Bock"}));

  // Choosing the mode in force does nothing, not even a refresh.
  store(5, {"Zed"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_MASH));
  EXPECT_TRUE(list.lblTitle == " Sorted By Mash Type: 4" && !list.tree.find("R5"));
}

TEST_F(ListTest, GroupTagsNumberARecipeCalledParent) {
  store(1, {"Amber"});
  store(2, {"Parent", "", 1});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(list.tree.find("R2")->tag, "Parent");  // no groups by name
  // By type the group "Ale" (Tag "Parent") stands before the second recipe is checked.
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_TYPE));
  EXPECT_EQ(list.tree.find("R2")->tag + "|" + list.tree.find("R2")->text, "Parent 1|Parent 1");
  // uniqueName looks at leaves only.
  EXPECT_EQ(list.uniqueName("Parent") + "|" + list.uniqueName("Parent 1"), "Parent|Parent 1 (Duplicate)");
}

TEST_F(ListTest, UnreadableDateOrListCodeLeavesTheRecipeOutWithAMessage) {
  store(1, {"Good"});
  store(2, {"Bad Date", "", 0, "sometime"});
  store(3, {"Bad Type", "", 17});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_DATE));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Error: In AddToRecipeList: Type mismatch"});
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Date: 2", "Year 1998", "  1998-10-05 - Bad Type",
                                                       "  1998-10-05 - Good"}));

  b.prompter.shown.clear();
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_TYPE));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Error: In AddToRecipeList: Subscript out of range"});
  EXPECT_EQ(list.tree.tag, "2");
}

TEST_F(ListTest, ScanStopsAtACorruptedRecordAndSetsTheNextSlot) {
  // Missing file: empty tree, count 0, next slot 1.
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(list.lblTitle + " slot " + std::to_string(findNextRecipeSlot(wb)), " Sorted By Name: 0 slot 1");

  for (auto [no, name] : {std::pair{1, "One"}, {3, "Three"}, {4, "Four"}, {5, "Five"}}) store(no, {name});  // 2 is free
  list.sortMode = -1;
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(std::vector<long>({wb.recipeSlotPosition, list.recordCounter}), std::vector<long>({2, 6}));

  // Break the end code of record 4.
  test::patchRecord(recipeFile(b), RecipeRecord::kLength, 4, [](std::string& r) { putI16(r, RecipeRecord::kLength - 2, 298); });
  list.sortMode = -1;
  EXPECT_FALSE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Error: Corrupted Recipe Record in " + recipeFile(b) +
                                             " at Line 4, No More Recipes Loaded"});
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Name: 2", "  One", "  Three"}));

  // A full file: the slot lies one past the end.
  Bench c;
  for (int no : {1, 2}) zy::store(*c.wb, no, {"R" + itos(no)});
  ASSERT_TRUE(c.wb->recipeList.mnuSortBy_Click(*c.wb, SORT_BY_NAME) && c.wb->recipeSlotPosition == 3);
}

TEST_F(ListTest, TwoRecordsClaimingOneNumberGiveOneMessageAndOneLeaf) {
  store(1, {"Amber"});
  store(2, {"Amber"});
  // Record 2 claims number 1.
  test::patchRecord(recipeFile(b), RecipeRecord::kLength, 2, [](std::string& r) { putI16(r, 2, 1); });
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Zythara Recipes: Duplicate Recipe Name: Amber 1, Changed and Added"});
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Name: 1", "  Amber"}));
}

std::string batchLog(int recipeNo, bool sound = true) {
  return test::le16(200) + test::le16(recipeNo) + test::le16(1) + std::string(kBatchLogRecordLength - 8, ' ') +
         test::le16(sound ? 299 : 7);
}

TEST_F(ListTest, LogSuffixShowsBatchLogCountsWithoutTouchingTheTag) {
  store(1, {"Amber"});
  store(2, {"Stout"});
  list.mnuSortLogCount = true;
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_DATE));
  // No log file (and none made): no suffix.
  EXPECT_TRUE(list.tree.find("R1")->text == "1998-10-05 - Amber" && !fileExists(wb.folder.dataFile(kBatchLogFile)));

  test::writeFile(wb.folder.dataFile(kBatchLogFile),
                  batchLog(1) + batchLog(2, false) + batchLog(0) + batchLog(1) + batchLog(7));
  list.mnuSortLogCount = false;
  list.mnuSortLogCount_Click(wb);  // flips the check on and rebuilds in the same mode
  EXPECT_TRUE(list.mnuSortLogCount && list.sortMode == SORT_BY_DATE);
  EXPECT_EQ(list.tree.find("R1")->text + "|" + list.tree.find("R1")->tag + "|" + list.tree.find("R2")->text,
            "1998-10-05 - Amber - <Batch Log: 2>|Amber|1998-10-05 - Stout");
  // The bad record is reported once for the whole rebuild.
  EXPECT_EQ(msgs(), std::vector<std::string>{"Error: Corrupted BatchLog Record(s) in " +
                                             wb.folder.dataFile(kBatchLogFile) + ", Bad Records Ignored"});
  EXPECT_EQ(std::vector<long>({countBatchLogs(wb, 1), countBatchLogs(wb, 7)}), std::vector<long>({2, 1}));

  list.mnuSortLogCount_Click(wb);
  EXPECT_EQ(list.tree.find("R1")->text, "1998-10-05 - Amber");
}

TEST_F(ListTest, UniqueNameAddsDuplicateOnceAndReplaceTextScansFromTheLeft) {
  store(1, {"Amber"});
  store(2, {"Amber (Duplicate)"});
  ASSERT_TRUE(wb.recipeList.mnuSortBy_Click(wb, SORT_BY_STYLE));
  // No second check of "Amber (Duplicate)"; the names compare with case.
  EXPECT_EQ(uniqueName(wb, "Amber") + "|" + uniqueName(wb, "amber") + "|" + uniqueName(wb, "Stout"),
            "Amber (Duplicate)|amber|Stout");
  EXPECT_EQ(replaceText("a,b,,c", ",", "~") + "|" + replaceText("aaa", "aa", "bb") + "|" + replaceText("x", "", "y"),
            "a~b~~c|bba|x");
}

TEST_F(ListTest, DeleteAsksAndKeepsAnEmptiedGroupUntilTheRebuild) {
  store(1, {"Amber", "Red Ale"});
  store(2, {"Stout", "Dry Stout"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_STYLE));
  list.select("Red Ale");
  EXPECT_FALSE(list.deleteEnabled || list.mnuFileDelete_Click(wb) || !b.prompter.shown.empty());  // a group: nothing asked

  list.select("R1");
  EXPECT_TRUE(list.deleteEnabled);
  b.prompter.answers = {Answer::No, Answer::Yes};
  EXPECT_FALSE(list.mnuFileDelete_Click(wb));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Recipe Delete: Do you want to Delete the \"Amber\" Recipe?"});
  EXPECT_NE(list.tree.find("R1"), nullptr);

  EXPECT_TRUE(list.mnuFileDelete_Click(wb));
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Beer Style: 1", "Dry Stout", "  Stout", "Red Ale"}));
  EXPECT_FALSE(list.deleteEnabled);
  EXPECT_EQ(getI16(readFile(recipeFile(b)), 2), 0);
  // The name is free again.
  EXPECT_EQ(list.uniqueName("Amber"), "Amber");
  list.sortMode = -1;
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_STYLE));
  EXPECT_EQ(list.tree.find("Red Ale"), nullptr);
}

TEST_F(ListTest, FindSelectsTheNextNameHoldingThePartRoundToTheTop) {
  store(1, {"Amber Ale", "Red Ale"});
  store(2, {"Dark Amber", "Dry Stout"});
  store(3, {"Stout", "Dry Stout"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_STYLE));
  // Display order: Dry Stout (Dark Amber, Stout), Red Ale (Amber Ale).
  const std::vector<std::pair<std::string, std::string>> steps = {
      {"AMBER", "R2"}, {"amber", "R1"}, {" amber ", "R2"}, {"stout", "R3"}, {"out", "R3"}};
  for (const auto& [part, key] : steps) {
    EXPECT_TRUE(list.findRecipe(wb, part)) << part;
    EXPECT_EQ(list.selectedKey, key) << part;
  }
  EXPECT_TRUE(list.deleteEnabled);
  // Group names and the date prefix are no names; a miss keeps the selection.
  EXPECT_FALSE(list.findRecipe(wb, "Red Ale") || list.findRecipe(wb, ""));
  EXPECT_EQ(list.selectedKey, "R3");
  EXPECT_EQ(msgs(), (std::vector<std::string>{"Find Recipe: Recipe Not Found: Red Ale", "Find Recipe: Recipe Not Found: "}));
}

TEST_F(ListTest, OpenAsksAboutAChangedRecipeAndLoadsTheLeaf) {
  store(1, {"Amber"});
  store(2, {"Stout"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_TYPE));
  int saves = 0, prepared = 0, populated = 0;
  RecipeOpenHooks hooks{[] { return true; }, [&] { ++saves; }, [&] { ++prepared; }, [&] { ++populated; }};

  EXPECT_FALSE(list.openRecipe(wb, "Ale", hooks));  // a group opens nothing
  b.prompter.answers = {Answer::Cancel};
  EXPECT_FALSE(list.openRecipe(wb, "R1", hooks));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Save Recipe: Recipe has Changed, Save Changes?"});
  EXPECT_EQ(b.prompter.shown[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(prepared + populated + saves, 0);

  b.prompter.answers = {Answer::Yes};
  EXPECT_TRUE(list.openRecipe(wb, "R1", hooks));
  EXPECT_EQ(std::vector<int>({saves, populated}), std::vector<int>({1, 1}));
  EXPECT_EQ(list.currentRecipeKey + " " + trim(wb.recipe.rec.recipeName), "R1 Amber");

  b.prompter.answers = {Answer::No};
  EXPECT_TRUE(list.openRecipe(wb, "R2", hooks));
  EXPECT_EQ(std::to_string(saves) + " " + trim(wb.recipe.rec.recipeName), "1 Stout");
}

TEST_F(ListTest, NewTakesASlotButReachesNeitherTreeNorFile) {
  store(1, {"Amber"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  EXPECT_EQ(list.mnuFileNew_Click(wb), 2);
  EXPECT_EQ(std::to_string(wb.recipe.rec.recipeNo) + " " + wb.recipe.rec.recipeName + " " + wb.recipe.rec.dateCreated,
            "2 A Beer Recipe Nov-22-2026");
  EXPECT_EQ(list.tree.size(), 1u);
  EXPECT_EQ(readFile(recipeFile(b)).size(), RecipeRecord::kLength);

  // From the window, a changed recipe in the editor is offered for saving first.
  int saves = 0, populated = 0;
  RecipeOpenHooks hooks{[] { return true; }, [&] { ++saves; }, {}, [&] { ++populated; }};
  b.prompter.answers = {Answer::Cancel, Answer::No};
  wb.recipe.rec.recipeName = "Kept";
  EXPECT_EQ(list.newRecipe(wb, hooks), 0);
  EXPECT_EQ(wb.recipe.rec.recipeName, "Kept");
  EXPECT_EQ(list.newRecipe(wb, hooks), 2);
  EXPECT_EQ(std::vector<int>({saves, populated}), std::vector<int>({0, 1}));
  EXPECT_EQ(msgs(), std::vector<std::string>(2, "Save Recipe: Recipe has Changed, Save Changes?"));
}

TEST_F(ListTest, SettingsOfTheWindow) {
  store(1, {"Amber", "", 2});
  RecipeListSettings s = RecipeListSettings::read(wb);
  EXPECT_EQ(std::vector<long>({s.mainLeft, s.mainTop, s.mainWidth, s.mainHeight, s.sortBy}),
            std::vector<long>({1000, 2000, 4000, 6500, 0}));
  EXPECT_FALSE(s.showLogCount);

  b.settings.write("Recipe List", "Sort By", "2");
  b.settings.write("Recipe List", "Show Log Count", "True");
  list.formLoad(wb);
  EXPECT_TRUE(list.mnuSortLogCount);
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Type: 1", "Mead", "  Amber"}));

  list.mnuSortBy_Click(wb, SORT_BY_DATE);
  list.mnuSortLogCount_Click(wb);
  list.saveSettings(wb);
  EXPECT_EQ(b.settings.read("Recipe List", "Sort By", "") + " " + b.settings.read("Recipe List", "Show Log Count", ""),
            "3 False");
}

TEST(RecipeList, ASortByWithoutAMenuEntryIsAnIndexFailureThatEndsTheProgram) {
  for (const char* stored : {"5", "6", "-2", "40000"}) {
    Bench b;
    b.settings.write("Recipe List", "Sort By", stored);
    try {
      b.wb->recipeList.formLoad(*b.wb);
      ADD_FAILURE() << stored << ": the list was built";
    } catch (const Terminated& t) {
      EXPECT_EQ(t.errorNumber, 9) << stored;
    }
    EXPECT_EQ(test::shownLines(b.prompter),
              std::vector<std::string>{
                  "Terminate Program: Error #9(Subscript out of range) in RecipeList!mnuSortBy_Click at Line 0"})
        << stored;
    EXPECT_EQ(test::readLines(b.wb->folder.file(kErrorLog)).back(), "Terminating") << stored;
  }
  // -1 is the mode of an unbuilt list: the rebuild stops at once and the list stays empty.
  Bench b;
  b.settings.write("Recipe List", "Sort By", "-1");
  b.wb->recipeList.formLoad(*b.wb);
  EXPECT_TRUE(b.wb->recipeList.sortMode == -1 && b.prompter.shown.empty());
}

TEST_F(ListTest, ListFileHoldsTheRowsInTreeOrderWithCrLf) {
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.recipeNo = 1, r.recipeName = "Zed Pale", r.mashType = 2;
  r.originalGravity = 1.0504, r.finalGravity = 1.0125, r.color = 12.25, r.bitterness = 31, r.alcohol = 5.06;
  ASSERT_TRUE(saveCurrentRecipe(wb));
  store(2, {"Amber"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  wb.recipe.rec.recipeName = "untouched";
  const std::string path = b.dir.file("list.txt");
  ASSERT_TRUE(list.printRecipeListToFile(wb, path));
  EXPECT_EQ(readFile(path), "Zythara Recipe List\r\n"
                            "Date:         11/22/2026 10:30:00 AM\r\n"
                            "\r\n"
                            "Recipe Name,Type,OG/FG,Color,IBU,Alcohol\r\n" +
                                fixedText("Amber", 60) + ",No Mash,0.000/0.000,0.0,0.0,0.0%,\r\n" +
                                fixedText("Zed Pale", 60) + ",Infusion,1.050/1.013,12.3,31.0,5.1%,\r\n");
  EXPECT_EQ(wb.recipe.rec.recipeName, "untouched");

  EXPECT_FALSE(list.printRecipeListToFile(wb, b.dir.file("no/such/folder/list.txt")));
  EXPECT_EQ(msgs(), std::vector<std::string>{"Error: Unable to Generate Output File"});
}

TEST_F(ListTest, ImportSequenceNumbersSavesAndRemembersTheFolder) {
  store(1, {"Amber"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  const std::string file = b.dir.file("in.zyr");
  test::writeFile(file, "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Lager\", Name=\"Amber\", BoilTime=75\r\n"
                        "<Hops> Type=\"Saaz\", Quantity=1.5, Units=\"Oz\", Alpha=3.5, BoilTime=90\r\n"
                        "<End_Recipe_Format>\r\n");
  EXPECT_EQ(list.importRecipeFile(wb, file), 2);
  EXPECT_EQ(b.settings.read("Recipe List", "Import Path", "?"), b.dir.path());
  EXPECT_EQ(list.selectedKey + "|" + list.lblTitle, "R2| Sorted By Name: 2");
  ASSERT_TRUE(loadRecipe(wb, 2));
  const RecipeRecord& r = wb.recipe.rec;
  ASSERT_EQ(r.itemCount, 1);
  EXPECT_EQ(trim(r.recipeName) + "|" + std::to_string(r.recipeType) + "|" + std::to_string(static_cast<int>(r.boilTime)) + "|" +
                trim(wb.recipe.items[0].itemName),
            "Amber (Duplicate)|1|90|Saaz");

  // A file the reader refuses still adds the default recipe, numbered when its name is taken.
  test::writeFile(file, "just text\r\n");
  EXPECT_EQ(list.importRecipeFile(wb, file), 3);
  EXPECT_EQ(list.importRecipeFile(wb, file), 4);
  EXPECT_EQ(list.tree.find("R3")->tag + "|" + list.tree.find("R4")->tag, "A Beer Recipe|A Beer Recipe 1");
  ASSERT_TRUE(loadRecipe(wb, 4));
  EXPECT_EQ(wb.recipe.rec.recipeName, fixedText("A Beer Recipe 1", 60));
}

TEST_F(ListTest, ImportOfAnOverfullHugeFileLeavesTheStoredRecipesSound) {
  ASSERT_TRUE(test::storeAmber(wb, 1, "Stock Ale", "", [](CurrentRecipe& c) { c.comment = "keep me"; }));
  auto itemsAndComments = [&] {
    return readFile(wb.folder.dataFile(kRecipeItemsFile)) + readFile(wb.folder.dataFile(kCommentFile));
  };
  const std::string before = itemsAndComments();
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));

  // Thousands of items behind a label of a million characters and a line of a million fields:
  // the 26th item ends the reader, and the recipe is stored without items.
  std::string text = "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"Huge\", Label=\"" +
                     std::string(1 << 20, 'x') + "\"\r\n<Color> Value=7" + std::string(1 << 20, ',') + "\r\n";
  for (int i = 0; i < 5000; ++i) text += "<Malt> Type=\"Grain " + itos(i) + "\", Quantity=1, Units=\"Lbs\"\r\n";
  text += "<End_Recipe_Format>\r\n";
  const std::string file = b.dir.file("huge.zyr");
  test::writeFile(file, text);
  EXPECT_EQ(list.importRecipeFile(wb, file), 2);
  EXPECT_TRUE(b.prompter.shown.empty());

  EXPECT_EQ(itemsAndComments(), before);
  ASSERT_TRUE(loadRecipe(wb, 2));
  EXPECT_EQ(trim(wb.recipe.rec.recipeName) + " " + trim(wb.recipe.rec.labelName) + " " +
                std::to_string(wb.recipe.rec.color) + " " + std::to_string(wb.recipe.rec.itemCount),
            "Huge " + std::string(35, 'x') + " 7.000000 0");
  ASSERT_TRUE(loadRecipe(wb, 1));
  EXPECT_EQ(trim(wb.recipe.rec.recipeName) + " " + trim(wb.recipe.items[5].itemName) + " " + wb.recipe.comment,
            "Stock Ale American Ale keep me");
  EXPECT_EQ(shownTree(list), (std::vector<std::string>{" Sorted By Name: 2", "  Huge", "  Stock Ale"}));
}

TEST_F(ListTest, ExportSequenceProposesANameAndWritesTheFile) {
  store(1, {"Bob's \"Best\" Bitter: No/1"});
  ASSERT_TRUE(list.mnuSortBy_Click(wb, SORT_BY_NAME));
  ASSERT_TRUE(loadRecipe(wb, 1));
  std::vector<std::string> names = {list.proposedExportName(wb)};
  wb.defaults.unixFilenames = 0;
  names.push_back(list.proposedExportName(wb));
  wb.defaults.shortFilenames = 1;
  names.push_back(list.proposedExportName(wb));
  EXPECT_EQ(names, (std::vector<std::string>{"Bob-s_-Best-_Bitter-_No-1.zyr", "Bob-s -Best- Bitter- No-1.zyr",
                                             "bobsbstb.zyr"}));

  const std::string out = b.dir.file("out.zyr");
  EXPECT_FALSE(list.exportRecipeFile(wb, "R9", out));  // no such leaf
  ASSERT_TRUE(list.exportRecipeFile(wb, "R1", out));
  EXPECT_EQ(b.settings.read("Recipe List", "Export Path", "?"), b.dir.path());
  EXPECT_TRUE(readFile(out).starts_with("<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"Bob's \"Best\" Bitter: No/1\""));
}

}  // namespace
}  // namespace zy
