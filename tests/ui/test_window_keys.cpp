// The keyboard in the recipe and style windows: each access key given once per window, Tab in
// reading order, Return and Esc as in a dialog, the ingredient grid without the mouse.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>

#include "ui/RecipeBench.h"
#include "ui/dlgBeerCategories.h"
#include "ui/dlgBeerStyleEdit.h"
#include "ui/dlgBeerStyleStats.h"
#include "ui/dlgFilterBeerStyles.h"
#include "ui/dlgScale.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmComments.h"
#include "ui/frmFermentation.h"
#include "ui/frmFind.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"
#include "ui/frmStyleMatch.h"
#include "ui/frmUnitMashData.h"

namespace zy::test {
namespace {

struct KeysTest : ::testing::Test {
  RecipeBench b;
  ProgramWindows& w = *b.windows;
  StyleEditor styles{b.wb->styles, b.wb->folder, b.wb->errors, b.wb->prompter};
  void SetUp() override {
    b.storeDozen(1, "Copper Amber");
    w.showRecipeList();
    b.openFromTree(w.recipeList().tvRecipes, w.recipeList().itemOf("R1"));
  }
  frmRecipe& recipe() { return w.recipe(); }
};

TEST_F(KeysTest, EveryWindowGivesEachAccessKeyOnce) {
  // The recipe list's File menu keeps two entries on I, both captions of the system's own (a
  // second press of I moves on to the next). The editor's strip changes with the row's kind.
  const std::vector<std::string> none, listFile = {"&File: Alt+I: &Import Recipe... | Propert&ies"};
  QWidget* r = &recipe();
  const std::vector<std::tuple<const char*, int, QWidget*, const std::vector<std::string>*>> windows = {
      {"malt", 1, r, &none}, {"hop", 6, r, &none}, {"other", 11, r, &none}, {"yeast", 14, r, &none},
      {"list", -1, &w.recipeList(), &listFile},
      {"find", -1, new frmFind(frmFind::Mode::Recipe, {}, r), &none},
      {"scale", -1, &w.scale(), &none}, {"fermentation", -1, &w.fermentation(), &none},
      {"comments", -1, &w.comments(), &none}, {"hops", -1, &w.hopsUtilization(), &none},
      {"units", -1, &w.unitMashData(), &none}, {"match", -1, &w.styleMatch(), &none},
      {"filter", -1, new dlgFilterBeerStyles(*b.wb, r), &none}, {"stats", -1, new dlgBeerStyleStats(*b.wb, r), &none},
      {"styles", -1, &w.beerStyles(), &none},
      {"edit", -1, new dlgBeerStyleEdit(*b.wb, styles, -1, styles.newStyleForm(0), r), &none},
      {"categories", -1, new dlgBeerCategories(*b.wb, styles, r), &none},
  };
  for (const auto& [name, row, win, kept] : windows) {
    if (row >= 0) recipe().selectGridRow(row);
    win->show();
    QApplication::processEvents();
    EXPECT_EQ(accessKeyClashes(win), *kept) << name;
    win->hide();
  }
}

// The outermost group box around `w`, or `w`: two frames side by side are read one after the other.
QWidget* frameOf(QWidget* w) {
  QWidget* frame = w;
  for (QWidget* p = w->parentWidget(); p && !p->isWindow(); p = p->parentWidget())
    if (qobject_cast<QGroupBox*>(p)) frame = p;
  return frame;
}

// Tab from the first stop until the focus comes round: each stop lies right of the one before
// on its line, or lower down; a text box or a grid passes Tab on.
TEST_F(KeysTest, TabFollowsTheScreenLeftToRightTopToBottom) {
  dlgFilterBeerStyles filter(*b.wb, &recipe());
  dlgBeerStyleEdit edit(*b.wb, styles, -1, styles.newStyleForm(0), &recipe());
  dlgBeerCategories categories(*b.wb, styles, &recipe());
  recipe().selectGridRow(1);
  const std::vector<QWidget*> windows = {&recipe(), &w.scale(), &w.fermentation(), &w.comments(),
                                         &w.hopsUtilization(), &w.unitMashData(), &w.styleMatch(), &filter,
                                         &w.beerStyles(), &edit, &categories};
  for (QWidget* win : windows) {
    win->show();
    QApplication::processEvents();
    QWidget* at = win->nextInFocusChain();
    while (!(at->focusPolicy() & Qt::TabFocus) || !at->isVisible() || !at->isEnabled()) at = at->nextInFocusChain();
    at->activateWindow();
    at->setFocus(Qt::TabFocusReason);
    std::vector<QWidget*> chain{at};
    for (int i = 0; i < 60; ++i) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      QWidget* next = QApplication::focusWidget();
      if (!next || std::find(chain.begin(), chain.end(), next) != chain.end()) break;
      chain.push_back(next);
    }
    // Every control a person can reach is on the way round.
    size_t stops = 0;
    for (QWidget* c : win->findChildren<QWidget*>())
      if (c->window() == win && c->isVisible() && c->isEnabled() && (c->focusPolicy() & Qt::TabFocus) &&
          !c->focusProxy()) {
        ++stops;
        EXPECT_NE(std::find(chain.begin(), chain.end(), c), chain.end())
            << win->objectName().toStdString() << ": Tab never reaches " << c->objectName().toStdString() << " ("
            << c->metaObject()->className() << ")";
      }
    EXPECT_EQ(chain.size(), stops) << win->objectName().toStdString();
    for (size_t i = 1; i < chain.size(); ++i) {
      QWidget *pa = frameOf(chain[i - 1]), *pb = frameOf(chain[i]);
      if (pa == pb) pa = chain[i - 1], pb = chain[i];
      const QRect a(pa->mapToGlobal(QPoint()), pa->size()), r(pb->mapToGlobal(QPoint()), pb->size());
      const bool sameLine = r.top() < a.bottom() - 4 && a.top() < r.bottom() - 4;
      EXPECT_TRUE(sameLine ? r.left() > a.left() : r.top() >= a.top())
          << win->objectName().toStdString() << ": " << pa->objectName().toStdString() << " then "
          << pb->objectName().toStdString();
    }
    win->hide();
  }
}

// Return does what the default button does, or the button in focus; Esc what Cancel does.
TEST_F(KeysTest, ReturnAndEscActAsTheDefaultAndCancelButtons) {
  std::vector<std::string> asked;
  frmFind find(frmFind::Mode::Recipe, [&](const std::string& part) { asked.push_back(part); return true; }, &recipe());
  dlgFilterBeerStyles filter(*b.wb, &recipe());
  dlgBeerCategories categories(*b.wb, styles, &recipe());
  frmUnitMashData& units = w.unitMashData();
  frmHopsUtilization& hops = w.hopsUtilization();
  auto boil = [this] { return recipe().lblBoilTime->text().toStdString(); };
  struct Case {
    QWidget *window, *box;  // the keys go to the box, after the text typed there
    const char* typed;
    Qt::Key key;
    std::function<void()> check;
    bool staysOpen;
  };
  const std::vector<Case> cases = {
      {&find, find.txtFind, "amb", Qt::Key_Return, [&] { EXPECT_EQ(asked, std::vector<std::string>{"amb"}); }, true},
      {&find, find.txtFind, "", Qt::Key_Escape, [&] { EXPECT_EQ(asked.size(), 1u); }, false},
      {&w.scale(), w.scale().txtVolume, "10", Qt::Key_Return, [&] { EXPECT_EQ(recipe().txtFermentVolume->text(), "10.0"); }, false},
      {&units, units.txtBoilTime, "75", Qt::Key_Escape, [&] { EXPECT_EQ(boil(), "60"); }, false},
      {&units, units.txtBoilTime, "75", Qt::Key_Return, [&] { EXPECT_EQ(boil(), "75"); }, false},
      {&filter, filter.txtFilter, "amber", Qt::Key_Return, [&] { EXPECT_EQ(b.wb->styles.StyleFilterText, "amber"); }, false},
      {&categories, categories.txtCategory, "House Ales", Qt::Key_Return, [&] { EXPECT_EQ(categories.lstCategories->count(), 1); }, true},
      {&w.fermentation(), w.fermentation().txtValue[0], "", Qt::Key_Escape, [] {}, false},
      {&w.styleMatch(), w.styleMatch().lvStyle, "", Qt::Key_Escape, [] {}, false},
      {&hops, hops.cmdCancel, "", Qt::Key_Return, [] {}, false},
      {&hops, hops.grdUtil, "", Qt::Key_Escape, [] {}, false},
  };
  for (size_t i = 0; i < cases.size(); ++i) {
    const Case& c = cases[i];
    if (c.window == &w.scale()) w.scale().load();
    c.window->show();
    c.window->activateWindow();
    c.box->setFocus();
    if (auto* e = qobject_cast<QLineEdit*>(c.box); e && *c.typed) {
      e->selectAll();
      QTest::keyClicks(e, c.typed);
    }
    QTest::keyClick(c.box, c.key);
    c.check();
    EXPECT_EQ(c.window->isVisible(), c.staysOpen) << "case " << i;
    c.window->hide();
  }
}

// The arrows choose a row and fill the edit strip, Return goes to the quantity and back, Delete
// asks before the row goes.
TEST_F(KeysTest, TheGridIsDrivenByTheKeyboard) {
  frmRecipe& r = recipe();
  r.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&r));
  r.selectGridRow(1);
  QTest::keyClick(r.grdIngredients, Qt::Key_Down);
  EXPECT_EQ(r.txtItem->text(), "Munich Malt");
  QTest::keyClick(r.grdIngredients, Qt::Key_Return);
  ASSERT_EQ(QApplication::focusWidget(), r.txtQty);
  QTest::keyClicks(r.txtQty, "2.5");
  QTest::keyClick(r.txtQty, Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), r.grdIngredients);
  EXPECT_EQ(r.gridModel->index(2, COL_QTY).data().toString(), "2.5");
  b.prompter.answers = {Answer::No, Answer::Yes};
  for (int i = 0; i < 2; ++i) QTest::keyClick(r.grdIngredients, Qt::Key_Delete);
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>(2, "Delete Ingredient: Do you want to Delete \"Munich Malt\" from the Recipe?"));
  EXPECT_EQ(r.gridModel->index(2, COL_NAME).data().toString(), "Crystal 60");
}

}  // namespace
}  // namespace zy::test
