// The CSV engine and the inventory's CSV: field splitting, rules, the status log word for word,
// both head forms, and a wrong head that clears nothing.
#include <gtest/gtest.h>

#include "core/text.h"
#include "inventory/InventoryCsv.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;
using test::readFile;
using test::readLines;
using test::shownLines;
using test::writeFile;

TEST(CsvEngine, SplitsFieldsAndChecksRules) {
  struct Split {
    std::string line;
    std::vector<std::string> fields;
  };
  const Split splits[] = {
      {"\"a\",b,c", {"a", "", "b", "c"}},
      {"\"no close,x", {"no close,x"}},
      {"a,,b", {"a", "", "b"}},
      {"1,5", {"1", "5"}},
      {"\"say \"\"hi\"\"\"", {"say ", "hi", ""}},
  };
  for (const Split& s : splits) {
    std::string rest = s.line;
    std::vector<std::string> got;
    for (int guard = 0; guard < 20 && !rest.empty(); ++guard) got.push_back(nextCsvField(rest));
    EXPECT_EQ(got, s.fields) << s.line;
  }
  std::string empty;
  EXPECT_EQ(nextCsvField(empty), "");

  struct Rule {
    std::string text;
    int rule, result;
  };
  const Rule rules[] = {{"", -2, 0},     {"$1.50", -2, 0}, {"$1.50", -1, -1}, {"1x", -1, -1}, {"-1", -1, -1},
                        {"abc", 3, 0},   {"abcd", 3, -1},  {"", 0, 0},        {"a", 0, -1}};
  for (const Rule& r : rules) EXPECT_EQ(checkFieldFormat(r.text, r.rule), r.result) << r.text << " " << r.rule;
}

TEST(CsvEngine, LeavesAtTheEndStringWithWarningAndBadFlags) {
  StatusLog status;
  CsvEngine e(status);
  e.resetImportCounters();
  CsvSource src("zy,1x\r\nzz,2\r\n\r\nend,here\r\nzy,3\r\n");
  int added = 0;
  CsvEngine::Target t;
  t.addImportedRecord = [&] { ++added, ++e.importedRecords; };
  EXPECT_EQ(e.importCsvRecords(src, "Qty", 1, 1, {"", "Qty"}, {0, -1}, "zy", "end", t), 6);
  EXPECT_EQ(added, 1);
  EXPECT_EQ(e.blankRecords, 1);
  EXPECT_FALSE(src.atEnd());  // the line after the end string is not read

  // A file that ends after its head imports nothing and gives 1 alone.
  CsvSource none("");
  e.resetImportCounters();
  EXPECT_EQ(e.importCsvRecords(none, "Qty", 1, 1, {"", "Qty"}, {0, -1}, "zy", "", t), 1);

  struct Refusal {
    int method;
    std::string message, clearLine, addLine;
  };
  const Refusal refusals[] = {
      {METHOD_OLD_STYLES, "Error - Import Method not supported, Data Ignored",
       "Error - Nothing Cleared, Old Beer Style process format Not Supported",
       "Error - Line 7 skipped, Old Beer Style process format Not Supported"},
      {METHOD_NEW_STYLES, "Error - Import Method not supported, Data Ignored",
       "Error - Nothing Cleared, New Beer Style process format Not Supported",
       "Error - Line 7 skipped, New Beer Style process format Not Supported"},
      {9, "", "Error - Nothing Cleared, Unknown process format", "Error - Line 7 skipped, unknown process format"},
      {METHOD_INVENTORY, "", "", ""}};
  for (const Refusal& r : refusals) {
    EXPECT_EQ(clearRefusal(r.method).message, r.message);
    EXPECT_EQ(clearRefusal(r.method).logLine, r.clearLine);
    EXPECT_EQ(addRefusal(r.method, 7), r.addLine);
  }
}

struct CsvBench {
  Bench b;
  ExchangePorts p{b.wb->folder, b.prompter, b.settings, b.clock, b.wb->errors};
  InventoryList& malt() { return b.wb->inventory.list(INV_MALT); }
  std::vector<std::string> status() { return readLines(b.wb->folder.file(kStatusLog)); }
};

TEST(InventoryCsv, OlderFormImportWritesEveryWarningToTheStatusLog) {
  CsvBench c;
  const std::string name60(60, 'N');
  const std::string path = c.b.dir.file("old.csv");
  writeFile(path,
            "Malt,Variety,Qty,Units,Vintage,Type,Color,Extract,Notes\r\n"
            "zy," + name60 + ",10,lbs,2025,Grain,3,1.037,base\r\n"
            "\r\n"
            "xx,bad\r\n"
            "zy,Crystal,1x,Lbs,,Extract,60,1.034,\"sweet, red\"\r\n"
            "zy,Munich,1,5,Lbs\r\n");
  c.malt().addRow("Kept");
  ImportResult r = importInventory(c.p, c.b.wb->inventory, INV_MALT, path, false);
  EXPECT_EQ(r.flags, 1);
  EXPECT_EQ(c.status(),
            (std::vector<std::string>{
                "Import Inventory Status Log", "11/22/2026 10:30:00 AM", "",
                "Importing Malt Items from File: " + path,
                "Warning: Line 1, Field format Problem with field:Variety='" + name60 + "' - truncated to 50 characters",
                "Warning: Line 2 is blank, ignored",
                "Warning: Line 3 has invalid Beginning of Line (BOL) string, ignored (see below)", "xx,bad", "^^",
                "||", "++--- Expected the string 'zy'",
                "Warning: Line 4, Field format Problem with field:Qty='1x' - invalid characters, number expected",
                "", "2 Format Warnings", "1 Blank Records Skipped", "1 Bad Records Skipped", "3 Records Imported",
                "No Fatal Errors"}));
  EXPECT_EQ(shownLines(c.b.prompter),
            (std::vector<std::string>{"Import Success:        Successfully Imported 3 Records\r\n\r\n1 Bad Records "
                                      "Skipped, See ZYstatus.log for Details"}));
  ASSERT_EQ(c.malt().size(), 4u);
  EXPECT_EQ(c.malt().rows[1].cells,
            (std::vector<std::string>{std::string(50, 'N'), "   10.0", "Lbs", "$0.00", "1.037", "3.0", "Yes", "2025",
                                      "0.", "0.", "base"}));
  EXPECT_EQ(c.malt().rows[2].cells,
            (std::vector<std::string>{"Crystal", "    1.0", "Lbs", "$0.00", "1.034", "60.0", "No", "", "0.", "0.",
                                      "sweet, red"}));
  // "1,5" splits in two fields: the 5 stands for the unit, and the unit for the vintage.
  EXPECT_EQ(c.malt().rows[3].cells,
            (std::vector<std::string>{"Munich", "    1.0", "Lbs", "$0.00", "0.000", "0.0", "No", "Lbs", "0.", "0.", ""}));
  EXPECT_EQ(c.malt().rows[3].key, "new");
}

TEST(InventoryCsv, ExportThenReplacingImportInThePresentForm) {
  CsvBench c;
  InventoryList& hops = c.b.wb->inventory.list(INV_HOPS);
  // Line breaks in a comment become blanks, and none is left at either end.
  hops.rows.push_back({"", {"Cascade", "    4.5", "Oz", "$2.25", "5.5", "2024", "1", "2", "\r\nfresh, \"leaf\"\n"}});
  hops.rows.push_back({"", {"\"Saaz, Czech\"", "   1.25", "Gr", "$1,200.00", "3.0", "", "", "", "\r\n"}});
  const std::string path = c.b.dir.file("hops.csv");
  EXPECT_EQ(exportInventory(c.p, hops, path), 2);
  EXPECT_EQ(readFile(path),
            "Inventory,Hops,Qty,Units,Cost,Alpha %,Vintage,Reorder At,Reorder Qty,Comments\r\n"
            "zy,Cascade,4.5,Oz,$2.25,5.5,2024,1,2,\"fresh, 'leaf'\"\r\n"
            "zy,'Saaz; Czech',1.25,Gr,$1200.00,3.0,,,,\r\n");
  EXPECT_EQ(c.status(), (std::vector<std::string>{"Export Inventory Status Log", "11/22/2026 10:30:00 AM", "",
                                                  "Exporting to File: " + path, "1) Cascade", "2) \"Saaz, Czech\"", "",
                                                  "2 Records Exported", "No Errors"}));

  c.b.prompter.answers = {Answer::Yes};
  ASSERT_TRUE(confirmInventoryReplace(c.b.prompter, INV_HOPS));
  EXPECT_EQ(importInventory(c.p, c.b.wb->inventory, INV_HOPS, path, true).flags, 1);
  ASSERT_EQ(hops.size(), 2u);
  EXPECT_EQ(hops.rows[0].cells,
            (std::vector<std::string>{"Cascade", "    4.5", "Oz", "$2.25", "5.5", "2024", "1.", "2.", "fresh, 'leaf'"}));
  EXPECT_EQ(hops.rows[1].cells,
            (std::vector<std::string>{"'Saaz; Czech'", "   1.25", "Gr", "$1,200.00", "3.0", "", "", "", ""}));
  EXPECT_EQ(shownLines(c.b.prompter),
            (std::vector<std::string>{
                "Export Success: Succesfully Exported 2 Records",
                "Replace Existing Inventory: WARNING: This will DELETE all the existing Hops Inventory Items!\r\n"
                "       Are you sure you want to proceed?",
                "Import Success: Successfully Imported 2 Records"}));
}

TEST(InventoryCsv, AWrongHeadEndsTheImportAndClearsNothing) {
  CsvBench c;
  c.malt().addRow("Kept");
  const std::string field = c.b.dir.file("field.csv"), kind = c.b.dir.file("kind.csv");
  writeFile(field, "Inventory,Malt,Qty,Unit,Cost\r\nzy,New,1\r\n");
  writeFile(kind, "Hops,Variety,Qty\r\n");
  EXPECT_EQ(importInventory(c.p, c.b.wb->inventory, INV_MALT, field, true).flags, 16);
  ASSERT_EQ(c.malt().size(), 1u);
  std::vector<std::string> log = c.status();
  const std::vector<std::string> picture = {
      "", "*** Error Found on line 1, Invalid Field Name ***", "", "The following was read from the file...",
      "Inventory,Malt,Qty,Unit,Cost", "", "                   ^", "                   |",
      "                   +--- Expected the string 'Units'", "", "0 Format Warnings", "0 Blank Records Skipped",
      "0 Bad Records Skipped", "0 Records Imported", "Fatal Errors Encountered", "Import processing was terminated",
      "", "Suggested corrective actions:"};
  ASSERT_GE(log.size(), 4 + picture.size() + 7);
  EXPECT_EQ(std::vector<std::string>(log.begin() + 4, log.begin() + 4 + static_cast<long>(picture.size())), picture);
  EXPECT_EQ(log.back(), "Note: you can export your old data to a file to get an idea of the format required.");

  EXPECT_EQ(importInventory(c.p, c.b.wb->inventory, INV_MALT, kind, true).flags, 8);
  EXPECT_EQ(c.malt().size(), 1u);
  log = c.status();
  EXPECT_EQ(log[5], "*** Error Found on line 1, Invalid file format ***");
  EXPECT_EQ(log[10], "^");
  EXPECT_EQ(shownLines(c.b.prompter),
            (std::vector<std::string>{
                "Import Error: Invalid Field, Expected 'Units' but Read 'Unit', Import Aborted (See Log File)",
                "Import Error: Wrong File Structure Type, Expected 'Malt' but Read 'Hops', Import Aborted (See Log "
                "File)"}));
}

}  // namespace
}  // namespace zy
