// The print preview's model: the reports it refuses, the view sizes, the pages, and Save to File.
#include <gtest/gtest.h>

#include "reports/PreviewModel.h"
#include "reports/RecordingTarget.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

// A prompter that also keeps what the save dialog was given.
struct DialogPrompter : test::ScriptedPrompter {
  std::optional<std::string> saveFile(const std::string& title, const std::string& filter,
                                      const std::string& initial) override {
    asked = {title, filter, initial};
    return test::ScriptedPrompter::saveFile(title, filter, initial);
  }
  std::vector<std::string> asked;
};

// A report of `pages` pages, each saying its number.
ReportRequest pagesReport(int number, int pages) {
  ReportRequest req;
  req.number = number;
  req.draw = [pages](Report& r) {
    for (int p = 1; p <= pages; ++p) {
      if (p > 1) r.newPage();
      r.printLine(Report::kLeft, "Body " + std::to_string(p));
    }
  };
  return req;
}

struct PreviewTest : ::testing::Test {
  DialogPrompter prompter;
  MemorySettingsStore settings;
  PreviewModel m{prompter, settings};
  std::vector<std::string> msgs() const { return test::shownLines(prompter); }
};

TEST_F(PreviewTest, ReportsOutsideTheCatalogOrWithoutAProcedureAreRefused) {
  for (const ReportRequest& req : {pagesReport(0, 1), pagesReport(9, 1), ReportRequest{3, {}, {}}}) {
    EXPECT_FALSE(m.open(req));
    EXPECT_FALSE(m.isOpen());
  }
  EXPECT_EQ(msgs(), std::vector<std::string>(3, "Reports: This Report Not Implemented Yet"));
  EXPECT_TRUE(m.open(pagesReport(8, 1)));
}

TEST_F(PreviewTest, ViewSizeMustLieBetween10And150Percent) {
  struct Case { const char* typed; bool taken; const char* shown; };
  for (const Case& c : std::vector<Case>{{"9", false, "100%"}, {"10", true, "10%"}, {"150%", true, "150%"},
                                         {"151", false, "150%"}, {"abc", false, "150%"}, {" 75 %", true, "75%"}}) {
    EXPECT_EQ(m.setViewSize(c.typed), c.taken) << c.typed;
    EXPECT_EQ(m.viewSizeText(), c.shown) << c.typed;
  }
  EXPECT_EQ(msgs(), std::vector<std::string>(3, "Print Preview: Scaling Factor Must be Between 10% - 150%"));
  for (int p : PreviewModel::viewSizes()) EXPECT_TRUE(p >= 10 && p <= 150);
}

TEST_F(PreviewTest, PagesStepWithinTheReportAndTheEndsDisableTheirCommand) {
  RecordingTarget t;
  ASSERT_TRUE(m.open(pagesReport(3, 1)));
  m.draw(t);
  EXPECT_EQ(m.pageText(), "Pg 1 of 1");
  EXPECT_FALSE(m.previousEnabled() || m.nextEnabled() || m.nextPage() || m.previousPage());

  ASSERT_TRUE(m.open(pagesReport(3, 3)));
  EXPECT_EQ(m.pageText(), "Pg 1 of 1");  // the count is learnt by drawing
  m.draw(t);
  EXPECT_EQ(m.pageText(), "Pg 1 of 3");
  EXPECT_TRUE(!m.previousEnabled() && m.nextEnabled());
  ASSERT_TRUE(m.nextPage() && m.nextPage());
  RecordingTarget third;
  m.draw(third);
  EXPECT_EQ(third.texts().front(), "Body 3");
  EXPECT_EQ(m.pageText(), "Pg 3 of 3");
  EXPECT_TRUE(m.previousEnabled() && !m.nextEnabled() && !m.nextPage());
  EXPECT_TRUE(m.previousPage());
  EXPECT_EQ(m.pageText(), "Pg 2 of 3");

  RecordingTarget paper;  // the printer gets every page at scale 1, whatever the view
  ASSERT_TRUE(m.setViewSize("50"));
  EXPECT_EQ(PreviewModel::printAll(m.request(), paper), 3);
  EXPECT_EQ(paper.sheets(), 3);
}

TEST_F(PreviewTest, SaveRefusesReportsWithoutAFileFormElseAsksAndRemembersTheFolder) {
  ASSERT_TRUE(m.open(pagesReport(3, 1)));
  EXPECT_FALSE(m.saveToFile());
  EXPECT_EQ(msgs(), std::vector<std::string>{"Save to File: Function Not Available. Try Export"});
  EXPECT_TRUE(prompter.asked.empty());

  ReportRequest req = pagesReport(2, 1);
  std::vector<std::string> written;
  req.toFile = [&](const std::string& path) {
    written.push_back(path);
    return true;
  };
  ASSERT_TRUE(m.open(req));
  settings.write("Save To File", "File Path", "/home/brewer/lists");
  prompter.texts = {"/tmp/out/recipes", std::nullopt, "/tmp/other/list.txt"};
  EXPECT_TRUE(m.saveToFile());
  EXPECT_EQ(prompter.asked, (std::vector<std::string>{"Save Report to CSV File",
                                                      "CSV Files (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*",
                                                      "/home/brewer/lists/Report.csv"}));
  EXPECT_EQ(settings.read("Save To File", "File Path", ""), "/tmp/out");
  EXPECT_FALSE(m.saveToFile());  // cancelled: nothing written, the folder stays
  EXPECT_EQ(settings.read("Save To File", "File Path", ""), "/tmp/out");
  EXPECT_TRUE(m.saveToFile());
  EXPECT_EQ(prompter.asked.back(), "/tmp/out/Report.csv");
  EXPECT_EQ(written, (std::vector<std::string>{"/tmp/out/recipes.csv", "/tmp/other/list.txt"}));
}

}  // namespace
}  // namespace zy
