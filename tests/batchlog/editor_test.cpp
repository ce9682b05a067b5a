// The batch log editor: corrected gravities, extraction points and the mash target, the gravity
// check, the status rules, the limits of the two lists, number and date entry, and closing.
#include <gtest/gtest.h>

#include <cmath>

#include "batchlog/BatchLogEditor.h"
#include "core/dates.h"
#include "core/measures.h"
#include "core/records.h"
#include "core/settings.h"
#include "recipes/IngredientTable.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;

TEST(AdjustSG, ThresholdsInDegreesFahrenheit) {
  const struct { double t, want; } cases[] = {
      {31.9, -0.0008}, {32, 32 * 0.00002846 - 0.0019}, {60, -0.0001924}, {60.5, 0.00005},
      {100, 0.006},    {150, 0.0183},                  {212, 0.04029648}, {213, 0.04}};
  for (const auto& c : cases) EXPECT_NEAR(adjustSG(c.t), c.want, 1e-12) << c.t;
}

// An ingredient grid: malts (qty, unit, extract, mashed), then the other sections' headers.
IngredientTable grid(std::initializer_list<std::tuple<const char*, int, const char*, bool>> malts) {
  IngredientTable g;
  for (const auto& [qty, unit, extract, mashed] : malts) {
    int r = g.insertItem(KIND_MALT);
    g.setCell(r, COL_QTY, qty);
    g.setUnitCode(r, unit);
    g.setCell(r, COL_RATING, extract);
    g.setCell(r, COL_MASH, mashed ? "Yes" : "No");
  }
  return g;
}

struct Editor : ::testing::Test {
  Bench b;
  Workbench& wb = *b.wb;
  BatchLogList list;
  BatchLogEditor ed{wb, list};
  IngredientTable g = grid({{"10", UNIT_LBS, "1.036", true}, {"16", UNIT_OZ, "1.036", true}, {"2", UNIT_LBS, "1.046", false}});
  std::string file() const { return wb.folder.dataFile(kBatchLogFile); }
  void start(int unitType = US_MEASURES) {
    ed.setRecipe({&g, 75, unitType, "Gallons"});
    list.loadBatchLogList(wb, 1);
    ASSERT_TRUE(ed.startNewLog());
  }
};

TEST_F(Editor, MashSumsAsTheWindowShowsThem) {
  start();
  EXPECT_EQ(ed.lblTargetExt, "27.0");  // 36 points a pound and gallon at 75%
  EXPECT_EQ(ed.txtLbsGrain, "11.0");   // the mashed malts only, in pounds
  EXPECT_EQ(ed.lblMash, "Lbs of Grain Mashed:");
  EXPECT_EQ(ed.lblTempUnits, "\xB0" "F");
  EXPECT_EQ(ed.lblQualPts, "N/A");
  ed.setField(LogField::GrainWeight, "10");
  ed.setField(LogField::MashVolume, "10");
  ed.setField(LogField::MashGravity, "1.050");
  EXPECT_EQ(ed.lblAdjSG1, "1.050");  // no temperature: as typed
  EXPECT_EQ(ed.lblQualPts, "50.0");
  ed.setField(LogField::MashTemp, "100");
  EXPECT_EQ(ed.lblAdjSG1, "1.056");
  EXPECT_EQ(ed.lblQualPts, "56.0");
  EXPECT_EQ(ed.actualEfficiency(), "156%");
  ed.setField(LogField::FermentGravity, "1.04");
  ed.setField(LogField::FermentTemp, "40");
  EXPECT_EQ(ed.lblAdjSG2, "1.039");

  // Metric: kilograms, and the typed temperature still goes in unconverted.
  ed.setRecipe({&g, 75, METRIC_MEASURES, "Liters"});
  EXPECT_EQ(ed.lblMash, "Kgs of Grain Mashed:");
  EXPECT_EQ(ed.lblVol[2], "(Liters)");
  EXPECT_EQ(ed.lblTargetExt, "27.0");
  // No mashed malt: no target, and the report prints no efficiency.
  IngredientTable none = grid({{"2", UNIT_LBS, "1.046", false}});
  ed.setRecipe({&none, 75, US_MEASURES, "Gallons"});
  EXPECT_EQ(ed.lblTargetExt, "N/A");
  EXPECT_EQ(ed.actualEfficiency(), "");
}

TEST_F(Editor, GravityReadingCheckAndNumberEntry) {
  start();
  ed.cmdToday_Click();
  const struct { const char* typed; const char* after; bool warned; } cases[] = {
      {"1.3", "1.300", false}, {"1.3001", "1.000", true}, {"0.94", "1.000", true}, {".95", "0.950", false}, {"", "", false}};
  for (const auto& c : cases) {
    b.prompter.shown.clear();
    ed.setField(LogField::ReadGravity, c.typed);
    ed.validateField(LogField::ReadGravity);
    EXPECT_EQ(ed.txtReadGravity, c.after) << c.typed;
    EXPECT_EQ(ed.lvReading[0].gravity, c.after) << c.typed;
    if (c.warned)
      EXPECT_EQ(test::shownLines(b.prompter), std::vector<std::string>{"Specific Gravity Problem: Unreasonable Specific "
                                                                         "Gravity Reading (" + std::string(c.typed) + "), reset to 1.000"});
    else
      EXPECT_TRUE(b.prompter.shown.empty()) << c.typed;
  }
  // A zero never stands in a box; validation gives each box its shape.
  const struct { LogField f; const char* typed; const char* shown; const char* validated; } entry[] = {
      {LogField::FermentVolume, "0", "", ""},        {LogField::FermentVolume, ".", ".", ""},
      {LogField::FermentVolume, "5.125", "5.125", "5.13"}, {LogField::Infusion, "0.", "0.", ""},
      {LogField::MashGravity, "1.05", "1.05", "1.050"}, {LogField::PitchingTemp, "68.5", "68.5", "68.5"},
      {LogField::BoilTime, "0", "", ""}};
  for (const auto& e : entry) {
    ed.setField(e.f, e.typed);
    EXPECT_EQ(ed.field(e.f), e.shown) << e.typed;
    ed.validateField(e.f);
    EXPECT_EQ(ed.field(e.f), e.validated) << e.typed;
  }
}

TEST_F(Editor, StatusFollowsReadingsAndBottling) {
  start();
  EXPECT_EQ(ed.cboLogStatus, LOG_NEW);
  ed.cmdToday_Click();  // the first reading is Primary and lifts New to Primary
  EXPECT_EQ(ed.lvReading[0].type, "Primary");
  EXPECT_EQ(ed.cboLogStatus, LOG_PRIMARY);
  ed.setFermType(READING_SECONDARY);
  EXPECT_EQ(ed.cboLogStatus, LOG_SECONDARY);
  ed.cmdToday_Click();  // the second row is Primary again, the third copies the row above
  EXPECT_EQ(ed.lvReading[1].type, "Primary");
  EXPECT_EQ(ed.cboLogStatus, LOG_SECONDARY);  // never moved back
  ed.setFermType(READING_TERTIARY);
  ed.cmdToday_Click();
  EXPECT_EQ(ed.lvReading[2].type, "Tertiary");
  ed.setStatus(LOG_PRIMARY);
  ed.setFermType(READING_FINAL);
  EXPECT_EQ(ed.cboLogStatus, LOG_BOTTLED);

  const struct { const char* date; int readings; int status; const char* after; } bottling[] = {
      {"12/28/2026", 3, LOG_BOTTLED, "Dec-28-2026"}, {"", 3, LOG_BOTTLED, ""},
      {"", 1, LOG_SECONDARY, ""}, {"", 0, LOG_NEW, ""}};
  for (const auto& c : bottling) {
    ed.lvReading.resize(static_cast<size_t>(c.readings));
    ed.setDate(DateField::Bottling, c.date);
    EXPECT_TRUE(ed.validateDate(DateField::Bottling));
    EXPECT_EQ(ed.txtDateCond, c.after);
    EXPECT_EQ(ed.cboLogStatus, c.status) << c.date << c.readings;
  }
}

TEST_F(Editor, ListLimitsDatesAndTheChangedState) {
  start();
  for (int i = 0; i < 12; ++i) ed.cmdAddMash_Click();
  EXPECT_EQ(ed.lvMash.size(), 11u);
  for (int i = 0; i < 17; ++i) ed.cmdToday_Click();
  EXPECT_EQ(ed.lvReading.size(), 16u);
  EXPECT_EQ(test::shownLines(b.prompter),
            (std::vector<std::string>{"Batch Log Error: Limited to 11 Mash Steps", "Batch Log Error: Limited to 15 Readings"}));
  b.prompter.answers = {Answer::Yes};
  ed.cmdDeleteMash_Click();
  EXPECT_EQ(b.prompter.shown.back().text, "Are you sure you want to Delete this Data Entry?");
  EXPECT_EQ(ed.lvMash.size(), 10u);
  EXPECT_FALSE(ed.mashFieldsEnabled());

  ed.setDate(DateField::DateBrewed, "Febtember 3");
  EXPECT_FALSE(ed.validateDate(DateField::DateBrewed));
  EXPECT_EQ(b.prompter.shown.back().text, "   Invalid or Ambiguous Date\n\nEnter Date as Month/Day/Year");
  EXPECT_EQ(ed.txtDateBrewed, "");
  EXPECT_EQ(ed.focusTo, "txtDateBrewed");
  const struct { int key, result; } keys[] = {{13, 9}, {'7', '7'}, {'/', '/'}, {'O', 'O'}, {'y', 'y'}, {'h', 0}, {'.', 0}, {8, 8}};
  for (const auto& k : keys) EXPECT_EQ(ed.dateKeyFilter(k.key), k.result) << k.key;
  EXPECT_EQ(b.prompter.beeps, 2);

  ed.showCalendar(DateField::Reading);
  EXPECT_EQ(ed.monDateTag, "Ferm Date");
  ed.calendarPicked(serialFromCivil(2026, 12, 1));
  EXPECT_EQ(ed.lvReading[ed.readingSelected].date, "Dec-01-2026");
  ed.setAgedIn("Kegs");
  EXPECT_EQ(ed.lblVolume, "Keg Volume");

  ed.mnuFileSave_Click();
  EXPECT_EQ(ed.saveButtonImage, "Save");
  EXPECT_EQ(ed.saveButtonTip, "Save Batch Log");
  ed.setCondition("Priming");
  EXPECT_EQ(ed.saveButtonImage, "Save-Changed");
  EXPECT_EQ(ed.saveButtonTip, "Save Batch Log - Changed");
}

TEST_F(Editor, DamagedNumbersInARecordOpenAsNone) {
  BatchLogRecord r;
  r.recipeNo = 1;
  r.mashGravity = std::nan("");
  r.fermentVolume = HUGE_VAL;
  r.mashTime[0] = std::nan(""), r.mashTime[1] = 30, r.mashTemp[1] = std::nan("");
  r.status = 9, r.readingCount = 40, r.containerUnits = {12, -7};
  ed.showLog(r);
  EXPECT_EQ(ed.txtMashGravity, "");
  EXPECT_EQ(ed.txtFermVol, "");
  ASSERT_EQ(ed.lvMash.size(), 1u);
  EXPECT_EQ(ed.lvMash[0].temp, "0");
  EXPECT_EQ(ed.cboLogStatus, LOG_BOTTLED);
  EXPECT_EQ(ed.lvReading.size(), 16u);
  EXPECT_EQ(ed.cboContainerUnits, (std::array<int, 2>{-1, -1}));
  EXPECT_EQ(ed.lblQualPts, "N/A");
}

TEST(BatchLogSettings, PlaceKeptInItsSectionAndCentredWithoutOne) {
  MemorySettingsStore s;
  EXPECT_FALSE(BatchLogWindowSettings::read(s).stored);
  BatchLogWindowSettings w;
  w.left = 1500, w.top = 900;
  w.write(s);
  EXPECT_EQ(s.writeCount, 3);
  for (auto [key, value] : {std::pair{"WindowState", "0"}, {"MainLeft", "1500"}, {"MainTop", "900"}})
    EXPECT_EQ(s.read("Batch Log", key, "-"), value) << key;
  const BatchLogWindowSettings back = BatchLogWindowSettings::read(s);
  EXPECT_TRUE(back.stored);
  EXPECT_EQ(back.left, 1500);
  w.windowState = 2;  // maximized: the place is not written
  w.left = 0;
  w.write(s);
  EXPECT_EQ(s.read("Batch Log", "MainLeft", ""), "1500");
}

TEST_F(Editor, SaveWritesTheListsFromTheFirstPositionAndANewLogAsksOnClose) {
  start();
  // A new log closed unsaved: No leaves no trace, Cancel keeps it open, Yes writes it.
  b.prompter.answers = {Answer::No, Answer::Cancel};
  EXPECT_TRUE(ed.queryClose());
  EXPECT_EQ(test::readFile(file()), "");
  EXPECT_FALSE(ed.queryClose());
  EXPECT_EQ(b.prompter.shown[0].title, "Save Batch Log");
  EXPECT_EQ(b.prompter.shown[0].text, "Batch Log has Changed, Save Changes?");

  ed.cmdAddMash_Click();
  ed.setField(LogField::MashTime, "60");
  ed.setField(LogField::MashStepTemp, "152");
  ed.setField(LogField::Infusion, "3.5");
  ed.cmdAddMash_Click();
  ed.setField(LogField::MashTime, "10");
  ed.setField(LogField::MashStepTemp, "168");
  ed.cmdToday_Click();
  ed.setField(LogField::ReadGravity, "1.012");
  ed.setReadNote("clear");
  b.prompter.answers = {Answer::Yes};
  EXPECT_TRUE(ed.queryClose());
  EXPECT_FALSE(ed.changed());

  const std::string bytes = test::readFile(file());
  ASSERT_EQ(bytes.size(), 2772u);
  const BatchLogRecord r = BatchLogRecord::decode(bytes);
  EXPECT_EQ(r.status, LOG_PRIMARY);
  EXPECT_EQ(r.mashTime[0], 60);
  EXPECT_EQ(r.mashInfusion[0], 3.5);
  EXPECT_EQ(r.mashTemp[1], 168);
  EXPECT_EQ(r.mashTime[2], 0);
  EXPECT_EQ(r.readingCount, 1);
  EXPECT_EQ(r.readingDate[0], "Nov-22-2026");
  EXPECT_EQ(r.readingGravity[0], 1.012);
  EXPECT_EQ(r.readingNote[0], "clear" + std::string(35, ' '));
  EXPECT_EQ(r.containerUnits[0], -1);

  // Reopened: the steps as the list shows them, zeros blank, gravities in three decimals.
  ASSERT_TRUE(ed.openLog(1));
  EXPECT_FALSE(ed.changed());
  EXPECT_EQ(ed.lvMash[0].infusion, "3.5");
  EXPECT_EQ(ed.lvMash[1].infusion, "");
  EXPECT_EQ(ed.lvReading[0].gravity, "1.012");
  EXPECT_EQ(ed.txtFermVol, "");
  EXPECT_EQ(list.entries.size(), 1u);
}

}  // namespace
}  // namespace zy
