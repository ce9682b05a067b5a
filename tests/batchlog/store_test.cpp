// The batch log store: the record byte for byte, the list, slot reuse, batch numbers, bad
// records, and what deleting a recipe does to its logs.
#include <gtest/gtest.h>

#include <cstring>

#include "batchlog/BatchLogStore.h"
#include "core/records.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;

// Little-endian bytes written by hand, independent of the record code.
struct Bytes {
  std::string b = std::string(BatchLogRecord::kLength, ' ');
  void i16(size_t off, int v) {
    b[off] = static_cast<char>(v & 0xFF);
    b[off + 1] = static_cast<char>((v >> 8) & 0xFF);
  }
  void f64(size_t off, double v) {
    uint64_t u;
    std::memcpy(&u, &v, 8);
    for (int i = 0; i < 8; ++i) b[off + i] = static_cast<char>((u >> (8 * i)) & 0xFF);
  }
  void text(size_t off, size_t len, const std::string& s) {
    for (size_t i = 0; i < len; ++i) b[off + i] = i < s.size() ? s[i] : ' ';
  }
};

TEST(BatchLogRecord, EveryFieldAtItsOffset) {
  BatchLogRecord r;
  r.recipeNo = 513;
  r.batchNo = -2;
  r.dateBrewed = "Nov-22-2026";
  r.status = 3;
  r.mashTime[0] = 60, r.mashTime[12] = 10.5;
  r.mashTemp[0] = 152, r.mashTemp[12] = 168;
  r.mashInfusion[0] = 3.25, r.mashInfusion[12] = 1;
  r.mashReserved[12] = "kept";
  const double singles[] = {4.5, 170, 7.25, 1.044, 148, 90, 0.5, 5.5, 1.052, 68, 66};
  double* fields[] = {&r.spargeVolume, &r.spargeTemp,   &r.boilVolume,      &r.mashGravity,
                      &r.mashGravityTemp, &r.boilTime, &r.kraeuseningWort, &r.fermentVolume,
                      &r.fermentGravity, &r.fermentGravityTemp, &r.pitchingTemp};
  for (size_t i = 0; i < 11; ++i) *fields[i] = singles[i];
  r.readingCount = 16;
  r.readingType[0] = 1, r.readingType[15] = 3;
  r.readingDate[0] = "Nov-23-2026", r.readingDate[15] = "Dec-24-2026";
  r.readingTemp[0] = 65, r.readingTemp[15] = 40;
  r.readingGravity[0] = 1.03, r.readingGravity[15] = 1.012;
  r.readingNote[0] = "krausen high", r.readingNote[15] = std::string(45, 'n');
  r.bottlingDate = "Dec-28-2026";
  r.agedIn = "Kegs", r.conditioning = "Forced CO2", r.conditionDetails = "12 psi";
  r.comments = "Smooth \xB0 brew";
  r.mashVolume = 6.5, r.grainsMashed = 11.25;
  r.quantity = {2, 48}, r.capacity = {5, 12};
  r.containerUnits = {1, 3};

  Bytes x;
  x.i16(0, 200), x.i16(2, 513), x.i16(4, -2), x.text(6, 11, "Nov-22-2026"), x.i16(17, 3);
  for (size_t i = 0; i < 13; ++i) {
    x.f64(19 + 8 * i, i == 0 ? 60 : i == 12 ? 10.5 : 0);
    x.f64(123 + 8 * i, i == 0 ? 152 : i == 12 ? 168 : 0);
    x.f64(227 + 8 * i, i == 0 ? 3.25 : i == 12 ? 1 : 0);
  }
  x.text(331 + 480, 40, "kept");
  for (size_t i = 0; i < 11; ++i) x.f64(851 + 8 * i, singles[i]);
  x.i16(939, 16);
  for (size_t i = 0; i < 16; ++i) {
    x.i16(941 + 2 * i, i == 0 ? 1 : i == 15 ? 3 : 0);
    x.f64(1149 + 8 * i, i == 0 ? 65 : i == 15 ? 40 : 0);
    x.f64(1277 + 8 * i, i == 0 ? 1.03 : i == 15 ? 1.012 : 0);
  }
  x.text(973, 11, "Nov-23-2026"), x.text(973 + 165, 11, "Dec-24-2026");
  x.text(1405, 40, "krausen high"), x.text(1405 + 600, 40, std::string(40, 'n'));
  x.text(2045, 11, "Dec-28-2026"), x.text(2056, 15, "Kegs"), x.text(2071, 15, "Forced CO2");
  x.text(2086, 40, "12 psi"), x.text(2126, 512, "Smooth \xB0 brew");
  x.f64(2638, 6.5), x.f64(2646, 11.25), x.f64(2654, 2), x.f64(2662, 48), x.f64(2670, 5), x.f64(2678, 12);
  x.i16(2686, 1), x.i16(2688, 3), x.i16(2770, 299);

  const std::string bytes = r.encode();
  ASSERT_EQ(bytes.size(), 2772u);
  EXPECT_EQ(bytes, x.b);
  EXPECT_EQ(BatchLogRecord::decode(bytes).encode(), bytes);
  EXPECT_EQ(BatchLogRecord().encode().substr(2686, 4), std::string("\xFF\xFF\xFF\xFF", 4));  // no unit: -1
}

struct LogStore : ::testing::Test {
  Bench b;
  Workbench& wb = *b.wb;
  BatchLogList list;
  std::string file() const { return wb.folder.dataFile(kBatchLogFile); }
  // A new log of `recipe`, saved as it was started; returns its record number.
  long addLog(int recipe) {
    list.loadBatchLogList(wb, recipe);
    auto r = list.newBatchLog(wb, 8.5);
    EXPECT_TRUE(r);
    EXPECT_TRUE(list.SaveBatchLog(wb, *r));
    return list.BatchLogRecordNo;
  }
  std::vector<std::string> shown(int recipe) {
    list.loadBatchLogList(wb, recipe);
    std::vector<std::string> v;
    for (const BatchLogEntry& e : list.entries) v.push_back(e.key + " #" + e.batchNo + " " + e.dateBrewed + " " + e.status);
    return v;
  }
};

TEST_F(LogStore, EmptyFileFirstLogThenSlotsAndBatchNumbers) {
  EXPECT_TRUE(shown(1).empty());
  EXPECT_EQ(test::readFile(file()), "");  // opening created the missing file, empty
  auto r = list.newBatchLog(wb, 8.5);
  ASSERT_TRUE(r);
  EXPECT_EQ(list.BatchLogRecordNo, 1);
  EXPECT_EQ(r->batchNo, 1);
  EXPECT_EQ(r->dateBrewed, "Nov-22-2026");
  EXPECT_EQ(r->grainsMashed, 8.5);
  EXPECT_EQ(test::readFile(file()), "");  // nothing is written before the save
  ASSERT_TRUE(list.SaveBatchLog(wb, *r));
  EXPECT_EQ(test::readFile(file()), r->encode());
  EXPECT_EQ(shown(1), (std::vector<std::string>{"B1 #1 Nov-22-2026 New"}));

  // The only log deleted and a new one added: the slot comes back; the batch number goes on
  // until the list is read again.
  ASSERT_TRUE(list.deleteBatchLog(wb, 1));
  EXPECT_FALSE(list.deleteEnabled);
  EXPECT_EQ(getI16(test::readFile(file()), 2), 0);
  auto again = list.newBatchLog(wb, 0);
  EXPECT_EQ(list.BatchLogRecordNo, 1);
  EXPECT_EQ(again->batchNo, 2);
  list.loadBatchLogList(wb, 1);
  EXPECT_EQ(list.newBatchLog(wb, 0)->batchNo, 1);

  // Batch 2 of 1, 2, 3 deleted: a gap, never filled by renumbering; its slot goes to any recipe.
  for (int i = 0; i < 3; ++i) addLog(4);
  ASSERT_TRUE(list.deleteBatchLog(wb, 2));
  EXPECT_EQ(shown(4), (std::vector<std::string>{"B1 #1 Nov-22-2026 New", "B3 #3 Nov-22-2026 New"}));
  EXPECT_EQ(list.newBatchLog(wb, 0)->batchNo, 4);
  EXPECT_EQ(list.BatchLogRecordNo, 2);
  EXPECT_EQ(addLog(9), 2);
  EXPECT_EQ(addLog(9), 4);
  EXPECT_EQ(countBatchLogs(wb, 4), 2);
  EXPECT_EQ(countBatchLogs(wb, 9), 2);
  EXPECT_TRUE(b.prompter.shown.empty());
}

TEST_F(LogStore, BadRecordInTheMiddleIsPassedOverAndReportedOncePerPass) {
  for (int i = 0; i < 3; ++i) addLog(5);
  list.deleteBatchLog(wb, 2);
  test::patchRecord(file(), BatchLogRecord::kLength, 2, [](std::string& r) { putI16(r, 2770, 298); });
  EXPECT_EQ(shown(5), (std::vector<std::string>{"B1 #1 Nov-22-2026 New", "B3 #3 Nov-22-2026 New"}));
  ASSERT_EQ(test::shownLines(b.prompter),
            (std::vector<std::string>{"Error: Corrupted BatchLog Record(s) in " + file() + ", Bad Records Ignored"}));
  // The bad record is not free: a new log goes behind the last record, and the file keeps it.
  list.newBatchLog(wb, 0);
  EXPECT_EQ(list.BatchLogRecordNo, 4);
  EXPECT_EQ(countBatchLogs(wb, 5), 2);
  EXPECT_EQ(b.prompter.shown.size(), 3u);
  EXPECT_EQ(getI16(test::readFile(file()).substr(2772, 2772), 2770), 298);
  EXPECT_FALSE(list.openBatchLog(wb, 2));
}

TEST_F(LogStore, SavingShowsTheCountBehindTheRecipeTitle) {
  newRecipeRecord(wb);
  wb.recipe.rec.recipeNo = 1;
  wb.recipe.rec.recipeName = "Amber";
  ASSERT_TRUE(saveCurrentRecipe(wb));
  wb.recipeList.mnuSortLogCount = true;
  ASSERT_TRUE(wb.recipeList.mnuSortBy_Click(wb, SORT_BY_NAME));
  addLog(1);
  EXPECT_EQ(wb.recipeList.tree.find("R1")->text, "Amber - <Batch Log: 1>");
  addLog(1);
  EXPECT_EQ(wb.recipeList.tree.find("R1")->text, "Amber - <Batch Log: 2>");
  list.deleteBatchLog(wb, 1);
  list.deleteBatchLog(wb, 2);
  EXPECT_EQ(wb.recipeList.tree.find("R1")->text, "Amber");
}

TEST_F(LogStore, DeletingARecipeTakesItsLogsSoItsNumberStartsClean) {
  for (int no : {1, 2}) {
    newRecipeRecord(wb);
    wb.recipe.rec.recipeNo = no;
    wb.recipe.rec.recipeName = no == 1 ? "Amber" : "Stout";
    ASSERT_TRUE(saveCurrentRecipe(wb));
  }
  addLog(1), addLog(1), addLog(2);
  RecipeList& rl = wb.recipeList;
  ASSERT_TRUE(rl.mnuSortBy_Click(wb, SORT_BY_NAME));
  rl.select("R1");
  // The second question names the logs; No keeps the recipe and its logs.
  b.prompter.answers = {Answer::Yes, Answer::No};
  EXPECT_FALSE(rl.mnuFileDelete_Click(wb));
  EXPECT_EQ(b.prompter.shown.back().text,
            "The \"Amber\" Recipe has 2 Batch Logs, which will be Deleted with it. Delete the Recipe and its Batch Logs?");
  EXPECT_EQ(countBatchLogs(wb, 1), 2);
  b.prompter.answers = {Answer::Yes, Answer::Yes};
  EXPECT_TRUE(rl.mnuFileDelete_Click(wb));
  EXPECT_EQ(countBatchLogs(wb, 1), 0);
  EXPECT_EQ(countBatchLogs(wb, 2), 1);
  // A later recipe stored at number 1 has no logs.
  newRecipeRecord(wb);
  wb.recipe.rec.recipeNo = 1;
  ASSERT_TRUE(saveCurrentRecipe(wb));
  EXPECT_TRUE(shown(1).empty());
  // The command line's delete frees them too.
  ASSERT_TRUE(deleteRecipe(wb, 2));
  EXPECT_EQ(countBatchLogs(wb, 2), 0);
}

}  // namespace
}  // namespace zy
