// The report verb's stock, shopping, hops, style, batch log and brewing day entries.
#include <gtest/gtest.h>

#include "batchlog/BatchLogRecord.h"
#include "batchlog/BatchLogStore.h"
#include "cli/CliRunner.h"
#include "core/paths.h"

using namespace zy;
using namespace zy::test;

namespace {

// True when the lines of `text` hold `wanted` in this order.
bool inOrder(const std::string& text, const std::vector<std::string>& wanted) {
  size_t at = 0;
  for (const std::string& w : wanted) {
    at = text.find("\n" + w + "\n", at);
    if (at == std::string::npos) return false;
    at += w.size() + 1;
  }
  return true;
}

TEST(ReportOtherVerbs, EachReportPrintsItsPagesOrSaysWhyNot) {
  CliBench b;
  ASSERT_TRUE(storeAmber(b.wb, 1, "Amber", ""));
  BatchLogRecord log;
  log.recipeNo = 1, log.batchNo = 2, log.dateBrewed = "Nov-01-2026", log.comments = "Clear.";
  writeFile(b.home.data(kBatchLogFile), log.encode());

  struct Case { std::vector<std::string> args; int status; std::vector<std::string> lines; std::string err; };
  for (const Case& c : std::vector<Case>{
           {{"report", "shopping"}, 0, {"--- Page 1 of 1", "Zythara Shopping List",
                                        "There are currently no items in the Shopping List."}, ""},
           {{"report", "inventory", "hops"}, 0, {"Zythara Inventory", "There are no Hops items in the Inventory."}, ""},
           {{"report", "hops"}, 0, {"Hops Utilization Curves", "Rager", "Gravity Adjustments"}, ""},
           {{"report", "batchlog", "1", "2"}, 0, {"Zythara Batch Log", "Amber", "Batch #:  2", "Comments:", "Clear."}, ""},
           {{"report", "brewday", "1"}, 0, {"Brewing Day Form", "Amber", "Recipe Targets", "Ingredients"}, ""},
           {{"report", "batchlog", "1", "5"}, 1, {}, "zythara-cli: report: recipe 1 has no batch log 5\n"},
           {{"report", "style", "Nothing"}, 1, {}, "zythara-cli: report: there is no style or category Nothing\n"},
           {{"report", "brewday", "7"}, 1, {}, "zythara-cli: report: there is no recipe 7\n"},
           {{"report", "inventory", "beer"}, 2, {}, "usage: zythara-cli report inventory CATEGORY\n"},
           {{"report", "hops", "--file", b.home.dir.file("h.csv")}, 1, {}, "[Save to File] Function Not Available. Try Export\n"},
       }) {
    CliResult r = b.home.run(c.args);
    EXPECT_EQ(r.status, c.status) << c.args[1] << ": " << r.err;
    EXPECT_TRUE(inOrder("\n" + r.out, c.lines)) << r.out;
    EXPECT_EQ(r.err, c.err);
  }
  // The batch log's file form.
  const std::string path = b.home.dir.file("log.csv");
  EXPECT_EQ(b.home.run({"report", "batchlog", "1", "2", "--file", path}).all(), "0||");
  EXPECT_EQ(readFile(path).substr(0, 50), "Zythara Batch Log\r\nRecipe:,Amber\r\nBatch #:,2\r\nDate");
}

}  // namespace
