// The style windows driven as a brewer would: choosing a style from the match list, filtering
// the editor's list, sorting the matches by a header click, adding a custom style in the browser.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "core/measures.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"
#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/dlgBeerStyleEdit.h"
#include "ui/dlgFilterBeerStyles.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmStyleMatch.h"

namespace zy::test {
namespace {

BeerStyleRecord style(const std::string& name, int source, std::array<double, 10> r) {
  BeerStyleRecord s;
  s.styleName = name;
  s.source = source;
  s.ogLow = r[0], s.ogHigh = r[1], s.fgLow = r[2], s.fgHigh = r[3], s.ibuLow = r[4], s.ibuHigh = r[5];
  s.srmLow = r[6], s.srmHigh = r[7], s.alcoholLow = r[8], s.alcoholHigh = r[9];
  return s;
}

// An amber of 5 US gallons opened in the recipe editor (OG 1.053, FG 1.013, IBU 30, SRM 15.8,
// 5.3 %), and five styles in the files.
struct StyleBench : Bench {
  RecipeEditor e{*wb};
  StyleBench() {
    StyleTables& t = wb->styles;
    t.BeerCategories[0].category = "Ales";
    t.BeerCategoryCount = 1;
    const std::vector<BeerStyleRecord> styles = {
        style("Wide Ale", STYLE_SOURCE_AOB, {1.030, 1.080, 1.000, 1.030, 0, 100, 0, 40, 0, 10}),
        style("American Amber Ale", STYLE_SOURCE_BJCP, {1.045, 1.060, 1.010, 1.015, 25, 40, 10, 17, 4.5, 6.0}),
        style("Strong Ale", STYLE_SOURCE_BJCP, {1.080, 1.100, 1.015, 1.025, 30, 60, 10, 20, 8, 10}),
        style("Mild Amber", STYLE_SOURCE_AOB, {1.030, 1.050, 1.008, 1.013, 10, 30, 12, 25, 3, 5.0}),
        style("Hoppy Amber", STYLE_SOURCE_BJCP, {1.050, 1.065, 1.010, 1.016, 32, 60, 11, 18, 5, 6.5}),
    };
    for (size_t i = 0; i < styles.size(); ++i) t.BeerStyles[i] = styles[i];
    t.BeerStyleCount = static_cast<int>(styles.size());
    EXPECT_TRUE(saveBeerStyles(*wb));
    EXPECT_TRUE(LoadBeerStyles(*wb));
    e.initRecipeForm();
    newRecipeRecord(*wb);
    CurrentRecipe& cur = wb->recipe;
    cur.rec.recipeNo = 1;
    cur.rec.recipeName = "Amber";
    cur.rec.volumeUnits = US_GAL_CONST;
    cur.rec.fermentVolume = 5;
    cur.rec.boilVolume = 5;
    cur.items[0] = makeItem(KIND_MALT, "Pale Malt", 8, UNIT_LBS, 1.10, 1.036, 3, -1);
    cur.items[1] = makeItem(KIND_MALT, "Crystal 60", 1, UNIT_LBS, 1.60, 1.034, 60, 0);
    cur.items[2] = makeItem(KIND_HOPS, "Cascade", 1, UNIT_OZ, 1.25, 5.5, 60);
    cur.items[3] = makeItem(KIND_HOPS, "Centennial", 0.5, UNIT_OZ, 1.50, 10.0, 15);
    cur.items[4] = makeItem(KIND_YEAST, "American Ale", 1, 0, 4.99, 0.75, 0);
    cur.rec.itemCount = 5;
    EXPECT_TRUE(saveCurrentRecipe(*wb));
    EXPECT_TRUE(e.openRecipe(1));
  }
  std::vector<std::string> targets() const {
    std::vector<std::string> out;
    for (const auto& l : e.sheet.targets) out.push_back(l.text);
    return out;
  }
};

QStringList column(QTreeWidget* lv, int c) {
  QStringList out;
  for (int i = 0; i < lv->topLevelItemCount(); ++i) out << lv->topLevelItem(i)->text(c);
  return out;
}

QTreeWidgetItem* itemNamed(QTreeWidget* lv, int c, const QString& text) {
  for (int i = 0; i < lv->topLevelItemCount(); ++i)
    if (lv->topLevelItem(i)->text(c) == text) return lv->topLevelItem(i);
  return nullptr;
}

void clickRow(QTreeWidget* lv, QTreeWidgetItem* item) {
  ASSERT_NE(item, nullptr);
  QTest::mouseClick(lv->viewport(), Qt::LeftButton, {}, lv->visualItemRect(item).center());
}

void clickHeader(QTreeWidget* lv, int section) {
  QHeaderView* h = lv->header();
  QTest::mouseClick(h->viewport(), Qt::LeftButton, {},
                    QPoint(h->sectionViewportPosition(section) + h->sectionSize(section) / 2, h->height() / 2));
}

TEST(StyleWindows, MatchListSortsByHeaderAndSetsTheRecipesStyle) {
  StyleBench b;
  EXPECT_EQ(b.targets(), (std::vector<std::string>(5, "N/A")));
  frmStyleMatch w(*b.wb, b.e);
  int repaints = 0;
  w.styleSet = [&] { ++repaints; };
  w.show();
  // Near misses stay with their cells; the strong ale misses by more than ten percent.
  EXPECT_EQ(column(w.lvStyle, 0), QStringList({"Wide Ale", "American Amber Ale", "Mild Amber", "Hoppy Amber"}));
  EXPECT_EQ(w.model.lines()[3], "Mild Amber\tHigh\tOK\tOK\tOK\tHigh");
  // Any header but the first: O.G. decides ("OK" before "High"), the later columns order ties.
  clickHeader(w.lvStyle, 3);
  EXPECT_EQ(column(w.lvStyle, 0), QStringList({"Wide Ale", "American Amber Ale", "Hoppy Amber", "Mild Amber"}));
  clickHeader(w.lvStyle, 0);
  EXPECT_EQ(column(w.lvStyle, 0), QStringList({"American Amber Ale", "Hoppy Amber", "Mild Amber", "Wide Ale"}));

  clickRow(w.lvStyle, itemNamed(w.lvStyle, 0, "Hoppy Amber"));
  QTest::mouseClick(w.cmdSetRecipe, Qt::LeftButton);
  EXPECT_EQ(b.e.cboBeerStyleText, "Hoppy Amber");
  EXPECT_EQ(b.wb->styles.CurrentStyleIndex, 4);
  EXPECT_EQ(b.targets(), (std::vector<std::string>{"OK", "OK", "Low", "OK", "OK"}));
  EXPECT_TRUE(b.e.recipeChanged());
  EXPECT_EQ(repaints, 1);
  EXPECT_FALSE(w.isVisible());
  // Shown again, the list is built anew with the recipe's style selected.
  w.show();
  ASSERT_NE(w.lvStyle->currentItem(), nullptr);
  EXPECT_EQ(w.lvStyle->currentItem()->text(0), "Hoppy Amber");
}

TEST(StyleWindows, AFilterHidesTheRecipesStyleYetTheRecipeKeepsIt) {
  StyleBench b;
  b.e.setStyleText("American Amber Ale");
  const auto flags = b.targets();
  dlgFilterBeerStyles d(*b.wb);
  whenModalOpens([&](QWidget*) {
    QTest::mouseClick(d.chkStyle[2], Qt::LeftButton);
    d.txtFilter->setFocus();
    QTest::keyClicks(d.txtFilter, "  AMBER ");
    QTest::mouseClick(d.cmdOK, Qt::LeftButton);
  });
  EXPECT_EQ(d.exec(), QDialog::Accepted);
  b.e.cmdFilterClosed();
  EXPECT_EQ(b.wb->styles.StyleSourceShown, (std::array<bool, 3>{true, true, false}));
  EXPECT_EQ(b.wb->styles.StyleFilterText, "AMBER");
  std::vector<std::string> offered;
  for (const auto& entry : b.e.styleList) offered.push_back(entry.text);
  EXPECT_EQ(offered, (std::vector<std::string>{"<Not A Recognized Beer Style>", "<Not Specified>", "Mild Amber"}));
  EXPECT_EQ(b.e.cboBeerStyleText, "American Amber Ale");
  EXPECT_EQ(b.wb->styles.CurrentStyleIndex, 1);
  EXPECT_EQ(b.targets(), flags);
  // Reset then Cancel stores nothing; the boxes showed the filter as it stood.
  whenModalOpens([&](QWidget*) {
    EXPECT_EQ(d.txtFilter->text(), "AMBER");
    EXPECT_FALSE(d.chkStyle[2]->isChecked());
    QTest::mouseClick(d.cmdReset, Qt::LeftButton);
    EXPECT_TRUE(d.chkStyle[2]->isChecked());
    QTest::mouseClick(d.cmdCancel, Qt::LeftButton);
  });
  EXPECT_EQ(d.exec(), QDialog::Rejected);
  EXPECT_EQ(b.wb->styles.StyleFilterText, "AMBER");
}

TEST(StyleWindows, BrowserAddsACustomStyleThatIsFoundAfterAReload) {
  StyleBench b;
  auto w = std::make_unique<frmBeerStyles>(*b.wb);
  w->show();
  EXPECT_FALSE(w->cmdNewRecipe->isEnabled());
  EXPECT_EQ(w->cmdNewRecipe->toolTip(), "Comes with the brewing calculators");
  w->showStyle("Mild Amber");
  EXPECT_FALSE(w->cmdChange->isEnabled());  // a published style
  whenModalOpens([&](QWidget* m) {
    auto* dlg = qobject_cast<dlgBeerStyleEdit*>(m);
    ASSERT_NE(dlg, nullptr);
    QTest::keyClicks(dlg->txtName, "House Amber");
    dlg->txtRange[9]->setText("5.5");
    QTest::mouseClick(dlg->cmdOK, Qt::LeftButton);
  });
  QTest::mouseClick(w->cmdNew, Qt::LeftButton);
  EXPECT_EQ(w->lblStyleName->text(), "House Amber");
  EXPECT_TRUE(w->cmdChange->isEnabled());
  w->cboSource->setCurrentIndex(BROWSE_CUSTOM);
  EXPECT_EQ(column(w->lvStyles, 2), QStringList({"House Amber"}));
  w->close();
  EXPECT_EQ(b.settings.read("Beer Styles", "Source Filter", ""), "1");

  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  w = std::make_unique<frmBeerStyles>(*b.wb);
  w->recipeValues = [&] { return b.e.styleValues(); };
  w->cboSource->setCurrentIndex(BROWSE_ALL);
  w->showStyle("House Amber");
  EXPECT_EQ(w->selectedRow(), 5);
  EXPECT_EQ(column(w->lvStyles, 1).last(), "Custom");
  // The ranges came from the style selected when New was pressed, the alcohol as typed; the
  // recipe's values are marked and judged.
  QStringList tips;
  for (QWidget* bar : w->bars) tips << bar->toolTip();
  EXPECT_EQ(tips, QStringList({"Original Gravity: 1.030 - 1.050\nRecipe: 1.053 (High)",
                               "Final Gravity: 1.008 - 1.013\nRecipe: 1.013 (OK)",
                               "Bitterness (IBU): 10 - 30\nRecipe: 30 (OK)", "Color (SRM): 12.0 - 25.0\nRecipe: 15.8 (OK)",
                               "Alcohol % by Volume: 3.0 - 5.5\nRecipe: 5.3 (OK)"}));
}

}  // namespace
}  // namespace zy::test
