// The properties window driven offscreen as a person would: typing, leaving boxes, the unit
// question, the reset buttons, Apply, OK and Cancel.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "core/text.h"
#include "support/TestSupport.h"
#include "ui/QtPrompter.h"
#include "ui/frmProperties.h"

namespace zy::test {
namespace {

void showActive(QWidget& w) {
  w.show();
  w.activateWindow();
  QApplication::setActiveWindow(&w);
  (void)QTest::qWaitForWindowActive(&w, 1000);
}

void type(QLineEdit* e, const QString& text) {
  e->setFocus();
  e->selectAll();
  QTest::keyClicks(e, text);
}

TEST(Properties, SevenPagesFilledFromTheDefaults) {
  Bench b;
  frmProperties w(*b.wb);
  ASSERT_EQ(w.tbsOptions->count(), 7);
  EXPECT_EQ(w.tbsOptions->tabText(0), "User Defaults");
  EXPECT_EQ(w.tbsOptions->tabText(1), "Unit/Export Defaults");
  EXPECT_EQ(w.tbsOptions->tabText(6), "Quillmark");
  EXPECT_EQ(w.field("txtMashEfficiency")->text(), "80");
  EXPECT_EQ(w.field("txtFermentVolume")->text(), "5.0");
  EXPECT_EQ(w.field("txtMaltDef(2)")->text(), "$1.00");
  EXPECT_EQ(w.field("txtMaltDef(3)")->text(), "1.032");
  EXPECT_EQ(w.field("txtYeastDef(3)")->text(), "72.");  // "0.#" keeps its point
  EXPECT_EQ(w.field("txtThreshold")->text(), "25");
  EXPECT_EQ(w.field("txtMashPerLb")->text(), "0.40");
  EXPECT_EQ(w.comboBox("cboVolumeUnits")->currentText(), "US Gallons");
  EXPECT_EQ(w.comboBox("cboHopsUnits")->currentText(), "Oz");
  EXPECT_TRUE(w.checkBox("chkAutoUpdate")->isChecked());
  EXPECT_TRUE(w.checkBox("chkAutoUpdate")->text() == "Automatically Check for Zythara Updates");
  // The label rows follow the Quillmark check.
  EXPECT_FALSE(w.comboBox("cboPosition(0)")->isEnabled());
  EXPECT_EQ(w.comboBox("cboPosition(0)")->currentText(), "Top");
  EXPECT_EQ(w.comboBox("cboFontSize(0)")->currentText(), "24");
}

TEST(Properties, NumericBoxesFilterKeysAndReformatOnLeaving) {
  Bench b;
  frmProperties w(*b.wb);
  showActive(w);
  w.tbsOptions->setCurrentIndex(2);
  QLineEdit* volume = w.field("txtFermentVolume");
  type(volume, "6a-x");
  EXPECT_EQ(volume->text(), "6");
  EXPECT_EQ(b.prompter.beeps, 3);
  w.field("txtBoilTime")->setFocus();  // leaving the box reformats it by "0.0"
  QApplication::processEvents();
  EXPECT_EQ(volume->text(), "6.0");
  EXPECT_EQ(w.model.text("txtFermentVolume"), "6.0");

  QLineEdit* cost = w.field("txtHopsDef(2)");
  type(cost, "1.5");
  w.field("txtHopsDef(3)")->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(cost->text(), "$1.50");
  // A text box is not filtered.
  type(w.field("txtMaltDef(0)"), "Pale 2-Row");
  EXPECT_EQ(w.field("txtMaltDef(0)")->text(), "Pale 2-Row");
  // Pasted text goes through the same filter.
  QLineEdit* eff = w.field("txtMashEfficiency");
  eff->setFocus();
  eff->selectAll();
  eff->insert("7x5");
  emit eff->textEdited(eff->text());
  EXPECT_EQ(eff->text(), "75");
  // Delete comes with the character 127 on some keyboards; it edits, it is no key to refuse.
  const int beeps = b.prompter.beeps;
  eff->setCursorPosition(0);
  QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(QChar(127)));
  QApplication::sendEvent(eff, &del);
  EXPECT_EQ(eff->text(), "5");
  EXPECT_EQ(b.prompter.beeps, beeps);
}

TEST(Properties, UnitSystemQuestionAndResets) {
  Bench b;
  frmProperties w(*b.wb);
  showActive(w);
  w.tbsOptions->setCurrentIndex(1);
  QComboBox* units = w.comboBox("cboUnitType");
  b.prompter.answers = {Answer::Yes};
  units->setFocus();
  QTest::keyClick(units, Qt::Key_Down);  // US -> Metric
  ASSERT_EQ(b.prompter.shown.size(), 1u);
  EXPECT_EQ(b.prompter.shown[0].text,
            "Change the other Measurement Units to match (reset to defaults for the units selected)?");
  EXPECT_EQ(b.prompter.shown[0].title, "Change Units");
  EXPECT_EQ(units->currentText(), "Metric Measures");
  EXPECT_EQ(w.comboBox("cboVolumeUnits")->currentText(), "Liters");
  EXPECT_EQ(w.comboBox("cboMaltUnits")->currentText(), "Kg");
  EXPECT_EQ(w.comboBox("cboHopsUnits")->currentText(), "Gr");
  EXPECT_EQ(w.comboBox("cboSpargeUnits")->currentText(), "Liters");
  EXPECT_EQ(w.field("txtInitialBoilVolume")->text(), "14.0");
  EXPECT_EQ(w.field("txtFermentVolume")->text(), "20.0");
  EXPECT_EQ(w.field("txtMaltDef(1)")->text(), "0.45");   // 1 lb in kg
  EXPECT_EQ(w.field("txtHopsDef(1)")->text(), "28.35");  // 1 oz in grams
  EXPECT_EQ(w.field("txtMaltIncr(0)")->text(), "0.09");  // 0.2 lb in kg

  // No leaves the other lists alone.
  b.prompter.answers = {Answer::No};
  QTest::keyClick(units, Qt::Key_Down);  // Metric -> Imperial
  EXPECT_EQ(b.prompter.shown.size(), 2u);
  EXPECT_EQ(units->currentText(), "Imperial Measures");
  EXPECT_EQ(w.comboBox("cboVolumeUnits")->currentText(), "Liters");

  // The water page's reset.
  w.tbsOptions->setCurrentIndex(4);
  type(w.field("txtEvaporationRate"), "9");
  w.checkBox("chkFullBoil")->click();
  EXPECT_EQ(w.model.check("chkFullBoil"), 1);
  w.cmdResetWater->click();
  EXPECT_EQ(w.field("txtEvaporationRate")->text(), "15");
  EXPECT_EQ(w.field("txtKettleCapacity")->text(), "5.00");
  EXPECT_FALSE(w.checkBox("chkFullBoil")->isChecked());
}

TEST(Properties, ApplyRewrites92KeysAndCancelLosesEdits) {
  Bench b;
  {
    frmProperties w(*b.wb);
    showActive(w);
    type(w.field("txtUserName"), "Ada Brewer");
    b.settings.writeCount = 0;
    w.cmdCancel->click();
    EXPECT_EQ(b.settings.writeCount, 0);
    EXPECT_EQ(trim(b.wb->defaults.userName), "");
  }
  {
    frmProperties w(*b.wb);  // filled anew: the typing is gone
    EXPECT_EQ(w.field("txtUserName")->text(), "");
    showActive(w);
    b.settings.writeCount = 0;
    w.cmdApply->click();  // no change at all
    EXPECT_EQ(b.settings.writeCount, 92);
    EXPECT_EQ(b.settings.read("Defaults", "Threshold", ""), "25");
    EXPECT_EQ(b.settings.read("Defaults", "Sparge Temp", "missing"), "missing");

    w.tbsOptions->setCurrentIndex(0);
    type(w.field("txtUserName"), "Ada Brewer");
    w.tbsOptions->setCurrentIndex(5);
    type(w.field("txtCa"), "50");
    w.cmdOK->click();
    EXPECT_EQ(trim(b.wb->defaults.userName), "Ada Brewer");
    EXPECT_EQ(b.wb->defaults.ionCa, 50);
    EXPECT_EQ(b.settings.read("Defaults", "User Name", ""), "Ada Brewer");
    EXPECT_EQ(b.settings.read("Defaults", "ionCa", ""), "50");
    EXPECT_FALSE(w.isVisible());
  }
}

TEST(Properties, AnIonBeyond16BitsIsRefusedWithAMessageNotAnEnd) {
  Bench b;
  frmProperties w(*b.wb);
  showActive(w);
  w.tbsOptions->setCurrentIndex(5);
  type(w.field("txtSO4"), "99999");
  w.tbsOptions->setCurrentIndex(0);
  b.settings.writeCount = 0;
  w.cmdOK->click();
  EXPECT_EQ(b.settings.writeCount, 0);
  EXPECT_EQ(w.tbsOptions->currentIndex(), 5);
  ASSERT_EQ(b.prompter.shown.size(), 1u);
  EXPECT_EQ(b.prompter.shown[0].text,
            "\"99999\" is not a whole number from 0 to 32767. Please correct it before the values are kept.");
  EXPECT_EQ(b.wb->errors.reportCount, 0);
}

TEST(Properties, QuillmarkSearchAndBrowse) {
  Bench b;
  frmProperties w(*b.wb);
  showActive(w);
  w.tbsOptions->setCurrentIndex(6);
  b.prompter.texts = {std::string("/opt/labels/quillmark")};
  w.cmdBrowse->click();
  ASSERT_FALSE(b.prompter.shown.empty());
  EXPECT_EQ(b.prompter.shown.back().title, "Set Path to Quillmark Program");
  EXPECT_EQ(w.field("txtQuillmarkPath")->text(), "/opt/labels/quillmark");
  w.checkBox("chkActivateQuillmark")->click();
  EXPECT_TRUE(w.comboBox("cboPosition(0)")->isEnabled());
  EXPECT_TRUE(w.field("txtExtra")->isEnabled());
}

}  // namespace
}  // namespace zy::test
