// The hops utilization window and the recipe units/mash data window, driven offscreen as a
// person would: keys in the grid's cell editor, the preset buttons, the factor boxes, the
// combo boxes, OK, Accept and Cancel.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/frmHelp.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmUnitMashData.h"

namespace zy::test {
namespace {

void showActive(QWidget& w) {
  w.show();
  w.activateWindow();
  QApplication::setActiveWindow(&w);
  (void)QTest::qWaitForWindowActive(&w, 1000);
}

std::string column(const frmHopsUtilization& w) {
  QStringList v;
  for (int r = 0; r < kUtilRows; ++r) v << w.grdUtil->item(r, 1)->text();
  return v.join(' ').toStdString();
}

void typeInto(QLineEdit* e, const QString& text) {
  e->setFocus();
  e->selectAll();
  QTest::keyClicks(e, text);
}

TEST(HopsWindow, CellEditorKeysAndTheMonotonicRepair) {
  Bench b;
  frmHopsUtilization w(*b.wb);
  showActive(w);
  w.grdUtil->setFocus();
  w.grdUtil->setCurrentCell(2, 1);  // 15 minutes
  QTest::keyClicks(w.grdUtil, "2");  // a typed digit replaces the value
  ASSERT_TRUE(w.txtEdit->isVisible());
  EXPECT_EQ(w.txtEdit->text(), "2");
  QTest::keyClicks(w.txtEdit, "0");
  QTest::keyClick(w.txtEdit, Qt::Key_Down);  // commits and moves on
  EXPECT_FALSE(w.txtEdit->isVisible());
  EXPECT_EQ(w.grdUtil->currentRow(), 3);
  EXPECT_EQ(column(w), "5.0 6.0 20.0 20.0 20.0 20.0 20.0 22.8 26.9 28.1 30.0 30.0 30.0 30.0 30.0 30.0 30.0 30.0");
  EXPECT_EQ(w.lblTitle->text(), "Custom Utilization Curve");

  // Space keeps the text with the caret at its end; 50 is clamped to 40 and lowers nothing above.
  w.grdUtil->setCurrentCell(0, 1);
  QTest::keyClick(w.grdUtil, Qt::Key_Space);
  EXPECT_EQ(w.txtEdit->text(), "5.0");
  EXPECT_EQ(w.txtEdit->cursorPosition(), 3);
  QTest::keyClick(w.txtEdit, Qt::Key_Escape);  // dropped
  EXPECT_FALSE(w.txtEdit->isVisible());
  EXPECT_TRUE(w.isVisible());
  EXPECT_EQ(w.grdUtil->item(0, 1)->text(), "5.0");
  w.grdUtil->setCurrentCell(16, 1);
  QTest::keyClicks(w.grdUtil, "50");
  QTest::keyClick(w.txtEdit, Qt::Key_Return);
  EXPECT_EQ(column(w), "5.0 6.0 20.0 20.0 20.0 20.0 20.0 22.8 26.9 28.1 30.0 30.0 30.0 30.0 30.0 30.0 40.0 40.0");
}

TEST(HopsWindow, PresetsFactorsAndTheGraphError) {
  Bench b;
  frmHopsUtilization w(*b.wb);
  showActive(w);
  QTest::mouseClick(w.cmdTinseth, Qt::LeftButton);
  EXPECT_EQ(w.lblTitle->text(), "Tinseth");
  EXPECT_EQ(w.grdUtil->item(17, 1)->text(), "38.7");
  EXPECT_TRUE(w.optGravity[2]->isChecked());
  EXPECT_TRUE(w.txtFactor[0]->isReadOnly());
  EXPECT_EQ(w.txtFactor[1]->text().toStdString(), "0.000125");
  EXPECT_EQ(w.lblBottom[1]->text(), "0.000125");
  ASSERT_EQ(w.picGraph->curves.size(), 3u);
  EXPECT_EQ(UtilGraphView::legendText(w.picGraph->curves[2]), "Gravity 1.060");

  QTest::mouseClick(w.cmdReset, Qt::LeftButton);
  EXPECT_EQ(w.lblTitle->text(), "None");
  EXPECT_FALSE(w.txtFactor[1]->isEnabled());
  EXPECT_EQ(w.picGraph->curves.size(), 1u);
  QTest::mouseClick(w.optGravity[1], Qt::LeftButton);
  EXPECT_EQ(w.txtFactor[2]->text(), "0.020");

  // A divisor too small for its box reads as zero and cannot be drawn: the message stands in the
  // graph, the window carries on.
  QTest::mouseClick(w.cmdRager, Qt::LeftButton);
  typeInto(w.txtFactor[1], ".0004");
  typeInto(w.txtFactor[0], "1.07");
  EXPECT_EQ(w.txtFactor[1]->text().toStdString(), "0.000");
  EXPECT_EQ(w.picGraph->error.toStdString(), "ERROR: Invalid Factor Value Entered");
  EXPECT_FALSE(w.picGraph->grab().isNull());
  typeInto(w.txtFactor[1], "0.2");
  typeInto(w.txtFactor[0], "1.07");
  EXPECT_TRUE(w.picGraph->error.isEmpty());
  QTest::keyClick(w.txtFactor[0], Qt::Key_Return);
  EXPECT_EQ(w.lblTop[0]->text(), "(Gravity - 1.070)");
  EXPECT_EQ(w.lblTitle->text(), "Custom Utilization Curve");
  EXPECT_EQ(w.picGraph->curves[1].label, "1.090");
}

TEST(HopsWindow, AcceptStoresCancelDrops) {
  Bench b;
  frmHopsUtilization w(*b.wb);
  int accepted = 0;
  w.accepted = [&] { ++accepted; };
  showActive(w);
  QTest::mouseClick(w.cmdGaretz, Qt::LeftButton);
  QTest::mouseClick(w.cmdCancel, Qt::LeftButton);
  EXPECT_FALSE(w.isVisible());
  EXPECT_EQ(b.wb->hops.UtilTitle, "Rager");
  EXPECT_EQ(b.settings.read("Hops Utilization", "Title", "?"), "?");
  EXPECT_EQ(accepted, 0);
  EXPECT_NE(b.settings.read("Hops Utilization", "MainWidth", "?"), "?");

  showActive(w);  // opens on the curve in use again
  EXPECT_EQ(w.lblTitle->text(), "Rager");
  QTest::mouseClick(w.cmdGaretz, Qt::LeftButton);
  QTest::mouseClick(w.cmdAccept, Qt::LeftButton);
  EXPECT_FALSE(w.isVisible());
  EXPECT_EQ(accepted, 1);
  EXPECT_EQ(b.wb->hops.UtilTitle, "Garetz");
  EXPECT_EQ(b.wb->hops.lookupUtilization(20), 0.04);
  for (auto [key, value] : {std::pair{"Title", "Garetz"}, {"Utilization 3", "1"}, {"Utilization 18", "25"},
                            {"Gravity Adjustment", "1"}, {"Factor 2", "0.2"}})
    EXPECT_EQ(b.settings.read("Hops Utilization", key, "?"), value) << key;

  // Help opens the window's own page.
  copyHelpPages(b.dir.path());
  showActive(w);
  QTest::mouseClick(w.cmdHelp, Qt::LeftButton);
  auto* help = w.findChild<frmHelp*>();
  ASSERT_NE(help, nullptr);
  EXPECT_EQ(help->currentPage().toStdString(), "hops-utilization.html");
}

// A recipe open in the editor: a mashed malt and a hop boiled 60 minutes.
struct MashRecipe {
  Bench b;
  RecipeEditor e{*b.wb};
  MashRecipe() {
    newRecipeRecord(*b.wb);
    e.initRecipeForm();
    CurrentRecipe& cur = b.wb->recipe;
    cur.rec.mashType = 2;
    cur.items[0] = makeItem(KIND_MALT, "Pale Malt", 8, UNIT_LBS, 1.10, 1.036, 3, -1);
    cur.items[1] = makeItem(KIND_HOPS, "Cascade", 1, UNIT_OZ, 1.25, 5.5, 60);
    cur.rec.itemCount = 2;
    e.populateRecipeForm();
  }
};

TEST(UnitMashWindow, ChoicesReachTheRecipeAndTheEditor) {
  MashRecipe t;
  frmUnitMashData w(*t.b.wb, t.e);
  int applied = 0;
  w.applied = [&] { ++applied; };
  showActive(w);
  EXPECT_EQ(w.windowTitle().toStdString(), "Recipe Units/Mash Data");
  QString helpPage;
  w.openHelp = [&](const QString& page) { helpPage = page; };
  QTest::keyClick(&w, Qt::Key_F1);
  EXPECT_EQ(helpPage.toStdString(), "unit-mash-data.html");
  EXPECT_EQ(w.cboMashType->currentText().toStdString(), "Infusion");
  EXPECT_EQ(w.txtMashEfficiency->text().toStdString(), "80");
  w.cboMashType->setCurrentIndex(4);
  typeInto(w.txtMashEfficiency, "70");
  w.cboRecipeUnitType->setCurrentIndex(METRIC_MEASURES);
  w.cboRecipeVolumeUnits->setCurrentIndex(LITER_CONST);
  typeInto(w.txtBoilTime, "45");
  QTest::mouseClick(w.cmdOK, Qt::LeftButton);

  const RecipeRecord& r = t.b.wb->recipe.rec;
  EXPECT_EQ(r.mashType, 4);
  EXPECT_EQ(r.mashEfficiency, 70);
  EXPECT_EQ(r.unitType, METRIC_MEASURES);
  EXPECT_EQ(r.volumeUnits, LITER_CONST);
  EXPECT_EQ(r.boilTime, 60);  // not below the hop's 60 minutes
  ASSERT_EQ(t.b.prompter.shown.size(), 1u);
  EXPECT_EQ(t.b.prompter.shown[0].title, "Warning");
  EXPECT_EQ(t.e.lblMashType, "Decoction");
  EXPECT_EQ(t.e.lblMashEff, "70");
  EXPECT_EQ(t.e.lblUnitType, "Metric Measures");
  EXPECT_EQ(t.e.txtBoilTime, "60");
  EXPECT_EQ(applied, 1);
  EXPECT_FALSE(w.isVisible());

  // An efficiency of 0 is refused and the window stays; Cancel leaves the recipe alone.
  showActive(w);
  EXPECT_EQ(w.txtBoilTime->text(), "60");
  typeInto(w.txtMashEfficiency, "0");
  QTest::mouseClick(w.cmdOK, Qt::LeftButton);
  EXPECT_TRUE(w.isVisible());
  EXPECT_EQ(shownLines(t.b.prompter).back(),
            "Recipe Units/Mash Data: The mash efficiency must be a whole number of percent from 1 to 100.");
  w.cboMashType->setCurrentIndex(0);
  QTest::mouseClick(w.cmdCancel, Qt::LeftButton);
  EXPECT_EQ(r.mashType, 4);
  EXPECT_EQ(r.mashEfficiency, 70);
  EXPECT_EQ(applied, 1);

  // No mash: the recipe takes the default efficiency and the editor shows "N/A".
  showActive(w);
  w.cboMashType->setCurrentIndex(0);
  EXPECT_FALSE(w.txtMashEfficiency->isEnabled());
  QTest::mouseClick(w.cmdOK, Qt::LeftButton);
  EXPECT_EQ(r.mashEfficiency, 80);
  EXPECT_EQ(t.e.lblMashEff, "N/A");
}

}  // namespace
}  // namespace zy::test
