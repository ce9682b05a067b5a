// The batch log windows driven as a brewer does: from the recipe editor's Batch Log entry to the
// list of logs, a new log typed in and saved, a log closed unsaved, and a log deleted.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include "batchlog/BatchLogRecord.h"
#include "core/records.h"
#include "core/text.h"
#include "ui/RecipeBench.h"
#include "ui/frmBatchLog.h"
#include "ui/frmBatchLogCmts.h"
#include "ui/frmBatchLogList.h"
#include "ui/frmRecipe.h"

namespace zy::test {
namespace {

void type(QWidget* w, const QString& text) {
  w->setFocus();
  QTest::keyClicks(w, text);
}
void leave(QLineEdit* e) { emit e->editingFinished(); }

TEST(BatchLogWindows, ABrewLoggedFromTheRecipeEditor) {
  RecipeBench b;
  b.storeDozen(1, "Copper Kettle Amber");
  frmRecipe& r = b.windows->recipe();
  ASSERT_TRUE(r.editor().openRecipe(1));
  b.windows->showRecipe();
  ASSERT_TRUE(r.mnuFileBatchLog->isEnabled());
  r.mnuFileBatchLog->trigger();
  frmBatchLogList& list = b.windows->batchLogList();
  ASSERT_TRUE(list.isVisible());
  EXPECT_EQ(list.lvBatchLog->topLevelItemCount(), 0);
  EXPECT_FALSE(list.cmdDelete->isEnabled());

  QTest::mouseClick(list.cmdNew, Qt::LeftButton);
  frmBatchLog& log = list.logWindow();
  ASSERT_TRUE(log.isVisible());
  EXPECT_EQ(log.lblBatchNo->text(), "1");
  EXPECT_EQ(log.lblTargetExt->text(), "28.9");  // 36.1 points a pound and gallon at the editor's 80%
  auto box = [&](LogField f) { return log.numberBoxes.at(f); };
  EXPECT_EQ(box(LogField::GrainWeight)->text(), "11.75");
  type(box(LogField::MashVolume), "8");
  type(box(LogField::MashGravity), "1.05");
  leave(box(LogField::MashGravity));
  type(box(LogField::MashTemp), "100");
  EXPECT_EQ(box(LogField::MashGravity)->text(), "1.050");
  EXPECT_EQ(log.lblAdjSG1->text(), "1.056");
  EXPECT_EQ(log.lblQualPts->text(), "38.1");
  EXPECT_EQ(log.mnuFileSave->toolTip(), "Save Batch Log - Changed");

  QTest::mouseClick(log.cmdAddMash, Qt::LeftButton);
  type(log.findChild<QLineEdit*>("txtTime"), "60");
  type(log.findChild<QLineEdit*>("txtTemp"), "152");
  EXPECT_EQ(log.lvMash->topLevelItem(0)->text(0), "60");
  QTest::mouseClick(log.cmdToday, Qt::LeftButton);
  type(box(LogField::ReadGravity), "1.4");
  leave(box(LogField::ReadGravity));
  EXPECT_EQ(b.prompter.shown.back().title, "Specific Gravity Problem");
  EXPECT_EQ(log.lvReading->topLevelItem(0)->text(3), "1.000");
  EXPECT_EQ(log.cboLogStatus->currentText(), "Primary");
  type(log.txtDateCond, "12/20/2026");
  leave(log.txtDateCond);
  EXPECT_EQ(log.txtDateCond->text(), "Dec-20-2026");
  EXPECT_EQ(log.cboLogStatus->currentText(), "Bottled");

  log.mnuEditComments_Click();
  type(log.comments().txtComments, "Hit the mash temperature.");
  QTest::mouseClick(log.tbToolBar->findChild<QToolButton*>("Save"), Qt::LeftButton);
  EXPECT_EQ(log.mnuFileSave->toolTip(), "Save Batch Log");
  const BatchLogRecord saved = BatchLogRecord::decode(readFile(b.wb->folder.dataFile(kBatchLogFile)));
  EXPECT_EQ(saved.recipeNo, 1);
  EXPECT_EQ(saved.mashTime[0], 60);
  EXPECT_EQ(saved.mashGravity, 1.05);
  EXPECT_EQ(saved.status, LOG_BOTTLED);
  EXPECT_EQ(saved.readingGravity[0], 1.0);
  EXPECT_EQ(rtrim(saved.comments), "Hit the mash temperature.");
  ASSERT_EQ(list.lvBatchLog->topLevelItemCount(), 1);
  EXPECT_EQ(list.lvBatchLog->topLevelItem(0)->text(2), "Bottled");

  // A second log closed unsaved: No leaves nothing in the file.
  QTest::mouseClick(list.cmdNew, Qt::LeftButton);
  EXPECT_EQ(log.lblBatchNo->text(), "2");
  b.prompter.answers = {Answer::No};
  log.close();
  EXPECT_FALSE(log.isVisible());
  EXPECT_EQ(b.prompter.shown.back().text, "Batch Log has Changed, Save Changes?");
  EXPECT_EQ(readFile(b.wb->folder.dataFile(kBatchLogFile)).size(), 2772u);

  // Deleting the log after its question frees the record.
  list.lvBatchLog->setCurrentItem(list.lvBatchLog->topLevelItem(0));
  b.prompter.answers = {Answer::Yes};
  QTest::mouseClick(list.cmdDelete, Qt::LeftButton);
  EXPECT_EQ(b.prompter.shown.back().title, "Delete Batch Log");
  EXPECT_EQ(list.lvBatchLog->topLevelItemCount(), 0);
  EXPECT_EQ(getI16(readFile(b.wb->folder.dataFile(kBatchLogFile)), 2), 0);
}

}  // namespace
}  // namespace zy::test
