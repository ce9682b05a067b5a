// Pictures of the batch log windows with a brew logged from the mash to the bottles, for a person
// to look at: written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/dates.h"
#include "core/numfmt.h"
#include "ui/RecipeBench.h"
#include "ui/frmBatchLog.h"
#include "ui/frmBatchLogCmts.h"
#include "ui/frmBatchLogList.h"
#include "ui/frmRecipe.h"

namespace zy::test {
namespace {

void shoot(QWidget& w, const QString& dir, const QString& name) {
  QApplication::processEvents();
  QTest::qWait(50);
  const QString path = QDir(dir).filePath(name + ".png");
  ASSERT_TRUE(w.grab().save(path)) << name.toStdString();
  const QImage img(path);
  ASSERT_FALSE(img.isNull());
  bool varied = false;
  for (int y = 0; y < img.height() && !varied; y += 7)
    for (int x = 0; x < img.width() && !varied; x += 7) varied = img.pixel(x, y) != img.pixel(0, 0);
  EXPECT_TRUE(varied) << name.toStdString() << " is one colour";
}

TEST(Screenshots, BatchLogWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b(true);
  b.storeDozen(1, "Copper Kettle Amber");
  frmRecipe& r = b.windows->recipe();
  ASSERT_TRUE(r.editor().openRecipe(1));
  b.windows->showRecipe();
  r.mnuFileBatchLog->trigger();
  frmBatchLogList& list = b.windows->batchLogList();
  BatchLogEditor& ed = list.editorModel();

  // Two earlier brews, then this one from mash to bottling.
  for (int day : {3, 17}) {
    QTest::mouseClick(list.cmdNew, Qt::LeftButton);
    ed.setDate(DateField::DateBrewed, formatDateMDY(serialFromCivil(2026, 9, day)));
    ed.setStatus(LOG_BOTTLED);
    ed.mnuFileSave_Click();
  }
  QTest::mouseClick(list.cmdNew, Qt::LeftButton);
  ed.setDate(DateField::DateBrewed, "Oct-24-2026");
  const struct { double minutes, temp, infusion; } steps[] = {{20, 122, 3.5}, {45, 152, 1.75}, {10, 168, 0}};
  for (const auto& s : steps) {
    ed.cmdAddMash_Click();
    ed.setField(LogField::MashTime, plainText(s.minutes));
    ed.setField(LogField::MashStepTemp, plainText(s.temp));
    if (s.infusion > 0) ed.setField(LogField::Infusion, plainText(s.infusion));
  }
  const struct { LogField f; const char* text; } boxes[] = {
      {LogField::SpargeVolume, "4.5"},  {LogField::SpargeTemp, "170"},   {LogField::MashVolume, "7.5"},
      {LogField::MashGravity, "1.042"}, {LogField::MashTemp, "104"},     {LogField::BoilVolume, "6.5"},
      {LogField::BoilTime, "60"},       {LogField::KraeuseningWort, "0"}, {LogField::FermentVolume, "5.25"},
      {LogField::FermentGravity, "1.052"}, {LogField::FermentTemp, "70"}, {LogField::PitchingTemp, "68"},
      {LogField::Quantity1, "48"},      {LogField::Capacity1, "12"},      {LogField::Quantity2, "4"},
      {LogField::Capacity2, "22"}};
  for (const auto& x : boxes) {
    ed.setField(x.f, x.text);
    ed.validateField(x.f);
  }
  ed.setContainerUnits(0, 3);
  ed.setContainerUnits(1, 3);
  const struct { int type; const char* date; const char* temp; const char* gravity; const char* note; } readings[] = {
      {READING_PRIMARY, "Oct-25-2026", "66", "1.040", "Krausen up overnight"},
      {READING_PRIMARY, "Oct-28-2026", "67", "1.018", "Krausen falling"},
      {READING_SECONDARY, "Nov-02-2026", "64", "1.014", "Racked to glass"},
      {READING_FINAL, "Nov-14-2026", "62", "1.012", "Clear and bright"}};
  for (const auto& rd : readings) {
    ed.cmdToday_Click();
    ed.setFermType(rd.type);
    ed.setDate(DateField::Reading, rd.date);
    ed.setField(LogField::ReadTemp, rd.temp);
    ed.setField(LogField::ReadGravity, rd.gravity);
    ed.setReadNote(rd.note);
  }
  ed.setDate(DateField::Bottling, "Nov-15-2026");
  ed.validateDate(DateField::Bottling);
  ed.setAgedIn("Bottles");
  ed.setCondition("Priming");
  ed.setConditionDetails("4.5 oz corn sugar");
  ed.setComments("Hit 152 on the nose after a protein rest.\r\nSparge ran clear; boil-off a little high.\r\n"
                 "Fermentation took off in eight hours and finished in three weeks.");
  ed.selectReading(1);
  ed.mnuFileSave_Click();

  frmBatchLog& log = list.logWindow();
  log.refreshFromModel();
  shoot(log, dir, "batch-log");
  list.refreshFromModel();
  shoot(list, dir, "batch-log-list");
  log.mnuEditComments_Click();
  shoot(log.comments(), dir, "batch-log-comments");
}

}  // namespace
}  // namespace zy::test
