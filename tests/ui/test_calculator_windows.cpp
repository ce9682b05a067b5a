// The brewing calculators driven as a brewer would, over a stored all-grain recipe open in the
// editor: what each hands to the recipe, and what its questions do.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QInputDialog>
#include <QTableWidget>
#include <QToolButton>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "core/numfmt.h"
#include "inventory/InventoryStore.h"
#include "ui/RecipeBench.h"
#include "ui/RecipeIcons.h"
#include "ui/dlgNewRecipe.h"
#include "ui/frmAdvMaltFormulator.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmMash.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"
#include "ui/frmStarter.h"
#include "ui/frmWaterMgmt.h"
#include "ui/frmWaterTreatment.h"

namespace zy::test {
namespace {

// A click on the box or circle of a check or option button, where a person aims.
void tick(QAbstractButton* b) { QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(8, b->height() / 2)); }

struct CalcWindows : RecipeBench {
  CalcWindows() {
    storeDozen(1, "Copper Amber");
    frmRecipeList& list = windows->recipeList();
    windows->showRecipeList();
    openFromTree(list.tvRecipes, list.itemOf("R1"));
  }
  frmRecipe& r() { return windows->recipe(); }
  void type(QLineEdit* e, const QString& text) {
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, text);
    emit e->editingFinished();
  }
  // The item rows of one section of the editor's grid, as "name qty units".
  std::vector<std::string> rows(int kind) {
    const IngredientTable& g = r().editor().sheet.grid;
    std::vector<std::string> out;
    for (int i = g.headerRow(kind) + 1; i < g.sectionEnd(kind); ++i)
      out.push_back(g.cell(i, COL_NAME) + " " + g.cell(i, COL_QTY) + " " + g.cell(i, COL_UNITS));
    return out;
  }
};

TEST(CalculatorWindows, WaterManagementOkWritesTheVolumeBoxes) {
  CalcWindows b;
  b.r().mnuInstructWaterMgmt->trigger();
  frmWaterMgmt& w = b.windows->waterMgmt();
  ASSERT_TRUE(w.isVisible());
  EXPECT_EQ(w.lblGrainMass->text(), "11.75");
  // Cancel writes nothing.
  b.type(w.txtMashRate, "1.5");
  QTest::mouseClick(w.cmdCancel, Qt::LeftButton);
  EXPECT_FALSE(w.isVisible());
  EXPECT_EQ(b.r().txtInitalBoilVolume->text(), "6.0");
  // Without the holds, a litre-and-a-half more in the kettle; the box is reformatted on leaving.
  b.r().mnuInstructWaterMgmt->trigger();
  EXPECT_EQ(w.txtMashRate->text(), "0.40");
  for (QCheckBox* c : {w.chkHoldInitialVolume, w.chkHoldFinalVolume})
    if (c->isChecked()) tick(c);
  b.type(w.txtAddToKettle, "1.5");
  EXPECT_EQ(w.txtAddToKettle->text(), "1.5");
  b.type(w.txtSpargeRate, ".5");
  EXPECT_EQ(w.txtSpargeRate->text(), "0.50");
  // 4.7 of mash water less 1.41 kept by the grains, 5.875 of sparge and 1.5 added: 10.665 boil,
  // of which 15 percent boils away in the hour, 0.105 stays in the hops and the kettle keeps its own.
  EXPECT_EQ(w.model.report[5].text(), "  Initial Boil Volume:\t10.7 US Gallons  <- Over Kettle Capacity");
  QTest::mouseClick(w.cmdOK, Qt::LeftButton);
  EXPECT_FALSE(w.isVisible());
  EXPECT_EQ(b.r().txtInitalBoilVolume->text(), "10.7");
  EXPECT_EQ(b.r().txtFermentVolume->text(), "8.8");  // 10.665 - 1.59975 - 0.105 - 0.12
  EXPECT_EQ(b.wb->recipe.rec.spargeRate, 0.5);
  EXPECT_NEAR(b.wb->recipe.rec.spargeVolume, 5.875, 1e-9);
  EXPECT_TRUE(b.r().editor().recipeChanged());
}

TEST(CalculatorWindows, WaterTreatmentAcceptWritesTeaspoonRows) {
  CalcWindows b;
  b.r().mnuToolsWaterTreatment->trigger();
  frmWaterTreatment& w = b.windows->waterTreatment();
  ASSERT_TRUE(w.isVisible());
  QTest::keyClicks(w.txtGrams[6], "8");  // table salt in grams
  EXPECT_EQ(w.txtTsp[6]->text(), "1.5");
  EXPECT_EQ(w.grdChemical->item(5, frmWaterTreatment::kFirstIonColumn + 4)->text(), "166");  // Na
  // The spinner steps teaspoons: twice up from nothing.
  QTest::mouseClick(w.udcDelta[3]->up, Qt::LeftButton);
  QTest::mouseClick(w.udcDelta[3]->up, Qt::LeftButton);
  EXPECT_EQ(w.txtTsp[3]->text().toStdString(), formatNumber(2 * b.wb->defaults.tspIncrement, "0.0; ; "));
  // Closing asks; No leaves the recipe alone.
  b.prompter.answers = {Answer::No};
  w.close();
  EXPECT_EQ(shownLines(b.prompter).back(),
            "Zythara Water Treatment: Water Treatment Values have Changed.  Save Changes to Recipe?");
  EXPECT_EQ(b.rows(KIND_OTHER).size(), 2u);
  b.r().mnuToolsWaterTreatment->trigger();
  QTest::keyClicks(w.txtTsp[3], "2");
  w.cboFamous->setCurrentIndex(7);
  emit w.cboFamous->activated(7);
  QTest::mouseClick(w.cmdAccept, Qt::LeftButton);
  EXPECT_FALSE(w.isVisible());
  EXPECT_EQ(b.rows(KIND_OTHER), (std::vector<std::string>{"Irish Moss 1.0 Tsp", "Yeast Nutrient 0.5 Tsp", "Gypsum 2.0 Tsp"}));
  EXPECT_EQ(b.settings.read("Water Treatment", "Famous Water", ""), "7");
  // Opened again, the recipe's gypsum fills its row.
  b.r().mnuToolsWaterTreatment->trigger();
  EXPECT_EQ(w.txtTsp[3]->text(), "2.0");
  EXPECT_EQ(w.txtGrams[3]->text(), "9.6");
}

TEST(CalculatorWindows, MashStepsAreTypedConvertedAndStoredAsHolds) {
  CalcWindows b;
  b.r().tb["Mash"]->trigger();
  frmMash& w = b.windows->mash();
  ASSERT_TRUE(w.isVisible());
  EXPECT_FALSE(w.cmdDelete->isEnabled());
  const char* steps[][2] = {{"30", "122"}, {"60", "152"}, {"10", "170"}};
  for (const auto& s : steps) {
    QTest::mouseClick(w.cmdNew, Qt::LeftButton);
    QTest::keyClicks(w.txtTime, s[0]);
    QTest::keyClick(w.txtTime, Qt::Key_Return);  // moves on, as Tab
    w.txtTemp->selectAll();
    QTest::keyClicks(w.txtTemp, s[1]);
  }
  auto list = [&] {
    std::string out;
    for (int i = 0; i < w.lvMash->topLevelItemCount(); ++i)
      out += "(" + w.lvMash->topLevelItem(i)->text(0).toStdString() + "," + w.lvMash->topLevelItem(i)->text(1).toStdString() + ")";
    return out;
  };
  EXPECT_EQ(list(), "(30,122)(60,152)(10,170)");
  EXPECT_TRUE(w.cmdMoveUp->isEnabled());
  EXPECT_FALSE(w.cmdMoveDn->isEnabled());
  tick(w.optTime[0]);
  EXPECT_EQ(list(), "(0,122)(30,152)(90,170)(100,170)");
  w.lvMash->setCurrentItem(w.lvMash->topLevelItem(1));
  EXPECT_FALSE(w.cmdMoveUp->isEnabled());  // points of a time line keep their order
  EXPECT_TRUE(w.cmdDelete->isEnabled());
  // OK while reading from the start stores durations.
  QTest::mouseClick(w.cmdOK, Qt::LeftButton);
  EXPECT_FALSE(w.isVisible());
  const RecipeRecord& rec = b.wb->recipe.rec;
  EXPECT_EQ(std::vector<double>(rec.mashStepTime.begin(), rec.mashStepTime.begin() + 4), (std::vector<double>{30, 60, 10, 0}));
  EXPECT_EQ(std::vector<double>(rec.mashStepTemp.begin(), rec.mashStepTemp.begin() + 3), (std::vector<double>{122, 152, 170}));
  // Delete asks; a changed schedule asks on closing, and Cancel keeps the window.
  b.r().tb["Mash"]->trigger();
  w.lvMash->setCurrentItem(w.lvMash->topLevelItem(0));
  b.prompter.answers = {Answer::Yes, Answer::Cancel};
  QTest::mouseClick(w.cmdDelete, Qt::LeftButton);
  EXPECT_EQ(list(), "(60,152)(10,170)");
  w.close();
  EXPECT_TRUE(w.isVisible());
  EXPECT_EQ(shownLines(b.prompter), (std::vector<std::string>{"Delete Data: Are you sure you want to Delete this Data Entry?",
                                                              "Data Changed: Mash Data Changed.  Save to Recipe?"}));
}

TEST(CalculatorWindows, FormulatorSolveAndExportReplaceTheMalts) {
  CalcWindows b;
  b.r().mnuToolsAdvanced->trigger();
  frmAdvMaltFormulator& w = b.windows->maltFormulator();
  ASSERT_TRUE(w.isVisible());
  EXPECT_EQ(w.lblQuantity->text(), "Malt Formulation for 5.0 US Gallons");
  // Nothing computed: nothing to export.
  w.tb["Save"]->trigger();
  EXPECT_EQ(shownLines(b.prompter).back(),
            "Advanced Malt Formulator: No Calculations Performed, There are No Changes to Export");
  QTest::mouseClick(w.udcTargetOG->up, Qt::LeftButton);
  EXPECT_EQ(w.txtTargetOG->text(), "1.046");
  w.tb["Calculate2"]->trigger();
  std::vector<std::string> solved;
  for (const FormulatorMalt& m : w.model.lvMalts) solved.push_back(m.name + " " + m.quantity + " Lbs");
  b.prompter.answers = {Answer::OK};
  w.tb["Save"]->trigger();
  EXPECT_EQ(shownLines(b.prompter).back(), "Warning: This Action Will Replace ALL Current Malt Entries in the Recipe");
  std::vector<std::string> exported = b.rows(KIND_MALT);
  for (std::string& s : exported) s = s.substr(0, s.find(" Lbs") + 4);
  // The grid shows quantities in "0.0#", as the list does.
  EXPECT_EQ(exported, solved);
  EXPECT_NE(b.r().lblOG->text(), "");
  EXPECT_TRUE(b.r().editor().recipeChanged());
  // Percentages off 100 stop the OG computation with the message.
  w.model.selectMalt(0);
  QTest::keyClicks(w.txtPct, "9");
  w.tb["Calculate1"]->trigger();
  EXPECT_EQ(shownLines(b.prompter).back(), "Error: Percentages must total to 100% for this calculation");
  // Add picks a malt of the inventory by name.
  InventoryItem otter;
  otter.name = "Maris Otter", otter.color = 3.5, otter.extract = 1.038, otter.mash = 1;
  b.wb->inventory.list(INV_MALT).rows.push_back({"new", inventoryRowCells(INV_MALT, otter, "")});
  whenModalOpens([](QWidget* d) {
    auto* pick = qobject_cast<QInputDialog*>(d);
    ASSERT_NE(pick, nullptr);
    EXPECT_EQ(pick->windowTitle(), "Add To Recipe");
    pick->setTextValue("Maris Otter");
    pick->accept();
  });
  w.tb["Add"]->trigger();
  ASSERT_EQ(w.lvMalts->topLevelItemCount(), 5);
  EXPECT_EQ(w.lvMalts->topLevelItem(4)->text(frmAdvMaltFormulator::COL_COLOR), "3.5");
}

TEST(CalculatorWindows, StarterAddsThePrimingComment) {
  CalcWindows b;
  b.r().mnuToolsStarterKraeusening->trigger();
  frmStarter& w = b.windows->starter();
  ASSERT_TRUE(w.isVisible());
  EXPECT_EQ(w.lblYbox->text(), "Yeast Starter Volume = 16 US Fl Oz");
  b.type(w.txtGravity, "1");
  EXPECT_EQ(w.lblKbox->text(), " Kraeusening Volume = N/A");
  EXPECT_FALSE(w.cmdAddKraeusen->isEnabled());
  b.type(w.txtGravity, "1.05");
  EXPECT_EQ(w.txtGravity->text(), "1.050");
  EXPECT_EQ(w.lblKbox->text(), " Kraeusening Volume = 51 US Fl Oz");
  tick(w.optLevel[2]);
  EXPECT_EQ(w.lblKbox->text(), " Kraeusening Volume = 60 US Fl Oz");  // 5 x 15 x 0.04 / 0.05
  QTest::mouseClick(w.cmdAddKraeusen, Qt::LeftButton);
  EXPECT_EQ(b.r().editor().fermentation.txtConditioning, "Use 60 US Fl Oz for High carbonation.");
  EXPECT_EQ(shownLines(b.prompter).back(), "Starter/Kraeusening: Use 60 US Fl Oz for High carbonation. added to \n"
                                           "Fermentation/Priming Instructions Window");
  QTest::mouseClick(w.cmdAddYeast, Qt::LeftButton);
  EXPECT_NE(b.r().editor().comments.comment.find("Yeast Starter Volume: 16 US Fl Oz\r\n"), std::string::npos);
}

TEST(CalculatorWindows, NewRecipeFromAStyleOpensTheEditorAndTheFormulator) {
  CalcWindows b;
  b.windows->showBeerStyles();
  frmBeerStyles& s = b.windows->beerStyles();
  s.lvStyles->setCurrentItem(s.lvStyles->topLevelItem(0));
  ASSERT_TRUE(s.cmdNewRecipe->isEnabled());
  whenModalOpens([](QWidget* d) {
    auto* dlg = qobject_cast<dlgNewRecipe*>(d);
    ASSERT_NE(dlg, nullptr);
    EXPECT_EQ(dlg->lblStyle->text(), "American Amber Ale");
    tick(dlg->optMash[NewRecipeDialog::NO_MASH]);
    EXPECT_EQ(dlg->txtMashEff->text(), "N/A");
    QTest::mouseClick(dlg->cmdOK, Qt::LeftButton);
  });
  QTest::mouseClick(s.cmdNewRecipe, Qt::LeftButton);
  EXPECT_EQ(b.r().txtTitle->text(), "New American Amber Ale Recipe");
  EXPECT_EQ(b.wb->recipe.rec.mashType, 0);
  frmAdvMaltFormulator& f = b.windows->maltFormulator();
  ASSERT_TRUE(f.isVisible());
  ASSERT_EQ(f.lvMalts->topLevelItemCount(), 2);
  EXPECT_EQ(f.lvMalts->topLevelItem(1)->text(frmAdvMaltFormulator::COL_MALT), "Dark DME");
  EXPECT_EQ(f.txtTargetOG->text(), "1.050");
  EXPECT_EQ(f.txtTargetColor->text(), "13.5");
}

TEST(CalculatorWindows, AccessKeysAreDistinctAndPlacesAreRemembered) {
  CalcWindows b;
  b.r().mnuInstructWaterMgmt->trigger();
  b.r().mnuToolsWaterTreatment->trigger();
  b.r().mnuInstructMashInfo->trigger();
  b.r().mnuToolsAdvanced->trigger();
  b.r().mnuToolsStarterKraeusening->trigger();
  dlgNewRecipe d(*b.wb, 0);
  for (QWidget* w : std::initializer_list<QWidget*>{&b.windows->waterMgmt(), &b.windows->waterTreatment(),
                                                    &b.windows->mash(), &b.windows->maltFormulator(),
                                                    &b.windows->starter(), &d}) {
    EXPECT_EQ(accessKeyClashes(w), std::vector<std::string>{}) << w->objectName().toStdString();
    w->close();
  }
  for (const char* section : {"Water Management", "Water Treatment", "Mash Information", "Malt Formulator", "Starter"})
    EXPECT_NE(b.settings.read(section, "MainWidth", ""), "") << section;
  // Closing the editor closes the calculators with it.
  b.r().mnuInstructMashInfo->trigger();
  b.r().close();
  EXPECT_FALSE(b.windows->mash().isVisible());
}

}  // namespace
}  // namespace zy::test
