// The print preview driven as a person does: paging with the buttons and the keys, a view size
// typed by hand, and Esc.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTest>

#include "support/TestSupport.h"
#include "ui/ReportActions.h"
#include "ui/UiSupport.h"
#include "ui/frmPreview.h"

namespace zy::test {
namespace {

ReportRequest threePages() {
  ReportRequest req;
  req.number = kBatchLogReport;
  req.draw = [](Report& r) {
    for (int p = 1; p <= 3; ++p) {
      if (p > 1) r.newPage();
      r.printLine(Report::kLeft, "Page body " + std::to_string(p));
    }
  };
  return req;
}

TEST(PreviewWindow, PagesSizesAndEscape) {
  Bench b;
  installReportActions(*b.wb);
  previewReport(nullptr, ReportRequest{42, threePages().draw, {}});
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Reports: This Report Not Implemented Yet"});
  ASSERT_FALSE(previewWindow(false) && previewWindow(false)->isVisible());

  previewReport(nullptr, threePages());
  frmPreview* w = previewWindow(false);
  ASSERT_TRUE(w && w->isVisible());
  EXPECT_EQ(w->windowTitle(), "Print Preview");
  EXPECT_EQ(accessKeyClashes(w), std::vector<std::string>{});
  EXPECT_EQ(w->txtPageNum->text(), "Pg 1 of 3");
  EXPECT_TRUE(!w->tbPrevious->isEnabled() && w->tbNext->isEnabled());
  const QSize page100 = w->picPageImage->size();

  w->tbNext->trigger();
  w->tbNext->trigger();
  EXPECT_EQ(w->txtPageNum->text(), "Pg 3 of 3");
  EXPECT_TRUE(w->tbPrevious->isEnabled() && !w->tbNext->isEnabled() && !w->mnuViewNext->isEnabled());
  w->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(w));
  QTest::keyClick(w->picViewPort, Qt::Key_PageUp);
  EXPECT_EQ(w->txtPageNum->text(), "Pg 2 of 3");
  QTest::keyClick(w->picViewPort, Qt::Key_PageDown);
  EXPECT_EQ(w->txtPageNum->text(), "Pg 3 of 3");

  // A size out of range is refused and the old one shown again; a good one redraws smaller.
  QLineEdit* size = w->cboViewSize->lineEdit();
  for (const char* typed : {"9", "50"}) {
    size->selectAll();
    QTest::keyClicks(size, typed);
    QTest::keyClick(size, Qt::Key_Return);
  }
  EXPECT_EQ(shownLines(b.prompter).back(), "Print Preview: Scaling Factor Must be Between 10% - 150%");
  EXPECT_EQ(shownLines(b.prompter).size(), 2u);
  EXPECT_EQ(w->cboViewSize->currentText(), "50%");
  EXPECT_LT(w->picPageImage->width(), page100.width() * 0.6);
  EXPECT_EQ(w->txtPageNum->text(), "Pg 3 of 3");

  w->tbSave->trigger();  // no file form
  EXPECT_EQ(shownLines(b.prompter).back(), "Save to File: Function Not Available. Try Export");

  QTest::keyClick(w->picViewPort, Qt::Key_Escape);
  EXPECT_FALSE(w->isVisible());
  EXPECT_FALSE(b.settings.read("Preview", "MainWidth", "").empty());

  // Printing to a PDF file: every page on the program's paper.
  const std::string pdf = b.dir.file("report.pdf");
  ASSERT_TRUE(printReportToPdf(threePages(), QString::fromStdString(pdf)));
  EXPECT_EQ(readFile(pdf).substr(0, 5), "%PDF-");
  uninstallReportActions();
}

}  // namespace
}  // namespace zy::test
