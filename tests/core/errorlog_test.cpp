#include <gtest/gtest.h>

#include "core/errorlog.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

TEST(ErrorLog, FirstErrorStartsTheLogAndLaterOnesAppend) {
  Bench b;
  writeFile(b.dir.file("ZYError.log"), "old run\n");
  b.wb->errors.reportError(32020, 7, "frmRecipeList!loadRecipe", "/x/Data/ZYRecipe.dat");
  b.clock.set(b.clock.now() + 1.0 / 24);
  b.wb->errors.reportError(32013, 0, "", "");
  const std::vector<std::string> expected = {
      "Zythara 2 Error Log",
      "Zythara Version " + versionText(),
      "Log Created 11/22/2026 10:30:00 AM",
      "",
      "Error #32020(Invalid Recipe Record Control Code)",
      "Line #7",
      "In Function frmRecipeList!loadRecipe",
      "Affecting File: /x/Data/ZYRecipe.dat",
      "Program Continued Execution",
      "",
      "New Error 11/22/2026 11:30:00 AM",
      "",
      "Error #32013(Invalid Beer Category Control Code)",
      "Program Continued Execution",
      "",
  };
  EXPECT_EQ(readLines(b.dir.file("ZYError.log")), expected);
  EXPECT_EQ(shownLines(b.prompter),
            (std::vector<std::string>{"Error: Corrupted Recipe Record in /x/Data/ZYRecipe.dat at Line 7, No More Recipes Loaded",
                                      "Error: Corrupted Beer Category Record(s) in , Bad Records Ignored"}));
}

TEST(ErrorLog, MessagesTitlesAndButtonsByNumber) {
  // The file affected is "/p/Z.enc", the line 3.
  const struct Case { int number; const char *title, *text; Buttons buttons; bool ends; } cases[] = {
      {53, "Terminating", "/p/Z.enc Not Found in frmMain!Form_Load", Buttons::OK, true},
      {55, "Error", "/p/Z.enc Is Already Open in frmMain!Form_Load at Line 3", Buttons::OK, true},
      {61, "Error", "The Disk is Full", Buttons::OKCancel, false},
      {70, "Error", "Permission Denied on File /p/Z.enc", Buttons::OK, false},
      {71, "Error", "Disk Drive is Not Ready", Buttons::OKCancel, false},
      {76, "Error", "Path /p/Z.enc Not Found", Buttons::OKCancel, false},
      {32009, "Error", "Missing Inventory File /p/Z.enc", Buttons::OK, false},
      {32010, "Error", "Unknown Inventory Format in /p/Z.enc at Line 3, No Data Loaded", Buttons::OK, false},
      {32011, "Error", "Corrupted Inventory Record in /p/Z.enc at Line 3, Not Loaded", Buttons::OK, false},
      {32012, "Error", "Corrupted BatchLog Record(s) in /p/Z.enc, Bad Records Ignored", Buttons::OK, false},
      {32014, "Error", "Maximum Beer Category Records Reached in /p/Z.enc, Additional Records Ignored", Buttons::OK, false},
      {32015, "Error", "Corrupted Beer Style Record(s) in /p/Z.enc, Bad Records Ignored", Buttons::OK, false},
      {32021, "Error", "Corrupted Recipe Item in /p/Z.enc at Line 3, No More Recipe Items Loaded", Buttons::OK, false},
      {32016, "Error", "Maximum Beer Style Records Reached in /p/Z.enc, Additional Records Ignored", Buttons::OK, false},
      {32022, "Error", "Corrupted Recipe Comment Record in /p/Z.enc at Line 3, No More Recipe Comments Loaded",
       Buttons::OK, false},
      {9, "Terminate Program", "Error #9(Subscript out of range) in frmMain!Form_Load at Line 3", Buttons::OK, true},
  };
  for (const Case& c : cases) {
    Bench b;
    bool ended = false;
    try {
      b.wb->errors.reportError(c.number, 3, "frmMain!Form_Load", "/p/Z.enc",
                               c.number == 9 ? "Subscript out of range" : "platform text");
    } catch (const Terminated& t) {
      ended = true;
      EXPECT_EQ(t.errorNumber, c.number);
    }
    EXPECT_EQ(ended, c.ends) << c.number;
    EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{std::string(c.title) + ": " + c.text}) << c.number;
    EXPECT_EQ(b.prompter.shown.at(0).buttons, c.buttons) << c.number;
    auto lines = readLines(b.dir.file("ZYError.log"));
    EXPECT_EQ(lines.back().empty() ? lines[lines.size() - 2] : lines.back(),
              c.ends ? "Terminating" : "Program Continued Execution");
  }
}

TEST(ErrorLog, OutOfMemoryMentionsInitialisationWhileFilling) {
  Bench b;
  b.wb->errors.fillingControls = true;
  EXPECT_THROW(b.wb->errors.reportError(7, 0, "", ""), Terminated);
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Terminating: Out of Memory During Initialization"});
  // Line 0 and no function or file: only the error line and the closing line.
  auto lines = readLines(b.dir.file("ZYError.log"));
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_EQ(std::vector<std::string>(lines.begin() + 3, lines.end()),
            (std::vector<std::string>{"", "Error #7()", "Terminating"}));
}

TEST(SharedHelpers, CsvQuoteAndNumericKey) {
  // Trimmed; a comma, quote or line break quotes the field, and inner quotes become apostrophes.
  const std::pair<const char*, const char*> quoted[] = {
      {"  Cascade  ", "Cascade"}, {"Malt, \"Best\"", "\"Malt, 'Best'\""}, {"a\rb", "\"a\rb\""}, {"say \"hi\"", "\"say 'hi'\""}};
  for (const auto& [in, out] : quoted) EXPECT_EQ(csvQuote(in), out) << in;
  ScriptedPrompter p;
  EXPECT_EQ(std::vector<int>({numericKey('7', false, &p), numericKey('.', false, &p), numericKey(8, false, &p), p.beeps}),
            std::vector<int>({'7', '.', 8, 0}));
  EXPECT_EQ(std::vector<int>({numericKey('-', false, &p), numericKey('-', true, &p), numericKey('a', true, &p), p.beeps}),
            std::vector<int>({0, '-', 0, 2}));
}

TEST(SharedHelpers, StrictNumberReportsATypeMismatch) {
  Bench b;
  EXPECT_EQ(strictNumber(b.wb->errors, " $2.50 ", "frmX!y"), 2.5);
  EXPECT_THROW(strictNumber(b.wb->errors, "2.5 lbs", "frmX!y"), Terminated);
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Terminate Program: Error #13(Type mismatch) in frmX!y at Line 0"});
}
