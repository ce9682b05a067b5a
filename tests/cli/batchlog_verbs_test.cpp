// The batch log verbs: logs (a recipe's logs) and log-show (one log as the window shows it).
#include <gtest/gtest.h>

#include "batchlog/BatchLogRecord.h"
#include "cli/CliRunner.h"
#include "core/measures.h"
#include "recipes/RecipeStore.h"

using namespace zy;
using namespace zy::test;

namespace {

BatchLogRecord brew(int recipe, int batch, int status) {
  BatchLogRecord r;
  r.recipeNo = recipe;
  r.batchNo = batch;
  r.dateBrewed = "Nov-01-2026";
  r.status = status;
  return r;
}

struct LogFiles : ::testing::Test {
  CliHome home;
  MemorySettingsStore settings;
  ScriptedPrompter prompter;
  FixedClock clock{46000.0};
  Workbench wb{home.dir.path(), settings, prompter, clock};

  void SetUp() override {
    newRecipeRecord(wb);
    RecipeRecord& r = wb.recipe.rec;
    r.recipeNo = 1;
    r.recipeName = "Amber";
    r.mashType = 1;
    r.mashEfficiency = 80;
    r.volumeUnits = US_GAL_CONST;
    r.fermentVolume = 5;
    r.itemCount = 2;
    wb.recipe.items[0] = makeItem(KIND_MALT, "Pale", 10, UNIT_LBS, 0, 1.036, 3, 1);
    wb.recipe.items[1] = makeItem(KIND_MALT, "Crystal", 1, UNIT_LBS, 0, 1.034, 60, 0);
    ASSERT_TRUE(saveCurrentRecipe(wb));

    BatchLogRecord full = brew(1, 2, 1);
    full.mashTime[0] = 60, full.mashTemp[0] = 152, full.mashInfusion[0] = 3.5;
    full.mashGravity = 1.05, full.mashGravityTemp = 100, full.mashVolume = 10, full.grainsMashed = 10;
    full.fermentGravity = 1.048, full.fermentGravityTemp = 68, full.fermentVolume = 5.25;
    full.readingCount = 1, full.readingType[0] = 0, full.readingDate[0] = "Nov-02-2026";
    full.readingTemp[0] = 66, full.readingGravity[0] = 1.03, full.readingNote[0] = "active";
    full.agedIn = "Bottles";
    full.comments = "Line one\r\nLine two";
    full.quantity[0] = 50, full.capacity[0] = 12, full.containerUnits[0] = 3;
    writeFile(home.data(kBatchLogFile), brew(1, 1, 0).encode() + brew(2, 1, 4).encode() + full.encode());
  }
};

TEST_F(LogFiles, LogsListsARecipesLogsTabSeparated) {
  CliResult r = home.run({"logs", "1"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "1\t1\tNov-01-2026\tNew\n3\t2\tNov-01-2026\tPrimary\n");
  EXPECT_EQ(home.run({"logs", "2"}).out, "2\t1\tNov-01-2026\tBottled\n");
  EXPECT_EQ(home.run({"logs", "x"}).status, 2);
}

TEST_F(LogFiles, LogShowPrintsEveryFieldAndTheMashSums) {
  CliResult r = home.run({"log-show", "3"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out,
            "record=3\nrecipeNo=1\nrecipeName=Amber\nbatchNo=2\ndateBrewed=Nov-01-2026\nstatus=Primary\n"
            "mashTime[0]=60\nmashTemp[0]=152\nmashInfusion[0]=3.5\n"
            "spargeVolume=\nspargeTemp=\nboilVolume=\nmashGravity=1.050\nmashGravityTemp=100\n"
            "adjustedMashGravity=1.056\nboilTime=\nkraeuseningWort=\nfermentVolume=5.25\nfermentGravity=1.048\n"
            "fermentGravityTemp=68\nadjustedFermentGravity=1.049\npitchingTemp=\nreadingCount=1\n"
            "readingType[0]=Primary\nreadingDate[0]=Nov-02-2026\nreadingTemp[0]=66\nreadingGravity[0]=1.030\n"
            "readingNote[0]=active\nbottlingDate=\nagedIn=Bottles\nconditioning=\nconditionDetails=\n"
            "comments=Line one\\nLine two\nmashVolume=10.0\ngrainsMashed=10.0\n"
            "quantity[0]=50.0\ncapacity[0]=12.0\ncontainerUnits[0]=US Oz\nquantity[1]=\ncapacity[1]=\ncontainerUnits[1]=\n"
            "weightUnits=Lbs\ntempUnits=\xC2\xB0" "F\nmashExtractionPoints=56.0\ntargetExtraction=28.8\nmashEfficiency=156%\n");
  // A free or missing record is no log.
  patchRecord(home.data(kBatchLogFile), BatchLogRecord::kLength, 1, [](std::string& b) { b[2] = 0; });
  for (const char* n : {"1", "9"}) {
    CliResult none = home.run({"log-show", n});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.err, std::string("[Batch Log Error] There is no Batch Log at record ") + n + "\n");
  }
}

}  // namespace
