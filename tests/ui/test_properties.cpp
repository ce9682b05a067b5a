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

// The text of each named box or list, "on"/"off" for a check box.
QStringList shown(frmProperties& w, const QStringList& names) {
  QStringList out;
  for (const QString& n : names) {
    const std::string name = n.toStdString();
    if (n.startsWith("cbo")) out << w.comboBox(name)->currentText();
    else if (n.startsWith("chk")) out << (w.checkBox(name)->isChecked() ? "on" : "off");
    else out << w.field(name)->text();
  }
  return out;
}

TEST(Properties, SevenPagesFilledFromTheDefaults) {
  Bench b;
  frmProperties w(*b.wb);
  ASSERT_EQ(w.tbsOptions->count(), 7);
  EXPECT_EQ(w.tbsOptions->tabText(1) + "|" + w.tbsOptions->tabText(6), "Unit/Export Defaults|Quillmark");
  // "0.#" keeps its point.
  EXPECT_EQ(shown(w, {"txtMashEfficiency", "txtFermentVolume", "txtMaltDef(2)", "txtMaltDef(3)", "txtYeastDef(3)",
                      "txtThreshold", "txtMashPerLb", "cboVolumeUnits", "cboHopsUnits", "chkAutoUpdate",
                      "cboPosition(0)", "cboFontSize(0)"}),
            QStringList({"80", "5.0", "$1.00", "1.032", "72.", "25", "0.40", "US Gallons", "Oz", "on", "Top", "24"}));
  EXPECT_EQ(w.checkBox("chkAutoUpdate")->text(), "Automatically Check for Zythara Updates");
  EXPECT_FALSE(w.comboBox("cboPosition(0)")->isEnabled());  // the label rows follow the Quillmark check
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
  // 1 lb, 1 oz and 0.2 lb in kilograms and grams.
  EXPECT_EQ(shown(w, {"cboUnitType", "cboVolumeUnits", "cboMaltUnits", "cboHopsUnits", "cboSpargeUnits",
                      "txtInitialBoilVolume", "txtFermentVolume", "txtMaltDef(1)", "txtHopsDef(1)", "txtMaltIncr(0)"}),
            QStringList({"Metric Measures", "Liters", "Kg", "Gr", "Liters", "14.0", "20.0", "0.45", "28.35", "0.09"}));

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
  EXPECT_EQ(shown(w, {"txtEvaporationRate", "txtKettleCapacity", "chkFullBoil"}), QStringList({"15", "5.00", "off"}));
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
