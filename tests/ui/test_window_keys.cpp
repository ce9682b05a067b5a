// The keyboard in the recipe and style windows: every access key given once per window, and the
// keys a brewer uses without the mouse.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>
#include <functional>

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

// Grid rows of the stored dozen: a malt, a hop, another ingredient, a yeast.
constexpr int kMaltRow = 1, kHopsRow = 6, kOtherRow = 11, kYeastRow = 14;

struct KeysTest : ::testing::Test {
  RecipeBench b;
  void SetUp() override {
    b.storeDozen(1, "Copper Amber");
    frmRecipeList& list = b.windows->recipeList();
    b.windows->showRecipeList();
    b.openFromTree(list.tvRecipes, list.itemOf("R1"));
  }
  frmRecipe& recipe() { return b.windows->recipe(); }
};

TEST_F(KeysTest, EveryWindowGivesEachAccessKeyOnce) {
  StyleEditor styles(b.wb->styles, b.wb->folder, b.wb->errors, b.wb->prompter);
  ProgramWindows& w = *b.windows;
  // A window (with the grid row selected in the editor first: its edit strip changes by kind).
  // The recipe list's File menu keeps two entries on I, both captions of the system's own; a
  // second press of I moves on to the next.
  const std::vector<std::string> none, listFile = {"&File: Alt+I: &Import Recipe... | Propert&ies"};
  struct Case {
    std::string name;
    std::function<QWidget*()> open;
    const std::vector<std::string>& kept;
  };
  const std::vector<Case> windows = {
      {"recipe, a malt", [&]() -> QWidget* { recipe().selectGridRow(kMaltRow); return &recipe(); }, none},
      {"recipe, a hop", [&]() -> QWidget* { recipe().selectGridRow(kHopsRow); return &recipe(); }, none},
      {"recipe, other", [&]() -> QWidget* { recipe().selectGridRow(kOtherRow); return &recipe(); }, none},
      {"recipe, a yeast", [&]() -> QWidget* { recipe().selectGridRow(kYeastRow); return &recipe(); }, none},
      {"recipe list", [&]() -> QWidget* { return &w.recipeList(); }, listFile},
      {"find", [&]() -> QWidget* { return new frmFind(frmFind::Mode::Recipe, {}, &recipe()); }, none},
      {"scale", [&]() -> QWidget* { w.scale().load(); return &w.scale(); }, none},
      {"fermentation", [&]() -> QWidget* { return &w.fermentation(); }, none},
      {"comments", [&]() -> QWidget* { return &w.comments(); }, none},
      {"hops utilization", [&]() -> QWidget* { return &w.hopsUtilization(); }, none},
      {"units/mash", [&]() -> QWidget* { return &w.unitMashData(); }, none},
      {"style match", [&]() -> QWidget* { return &w.styleMatch(); }, none},
      {"style filter", [&]() -> QWidget* { return new dlgFilterBeerStyles(*b.wb, &recipe()); }, none},
      {"style statistics", [&]() -> QWidget* { return new dlgBeerStyleStats(*b.wb, &recipe()); }, none},
      {"beer styles", [&]() -> QWidget* { return &w.beerStyles(); }, none},
      {"style edit", [&]() -> QWidget* { return new dlgBeerStyleEdit(*b.wb, styles, -1, styles.newStyleForm(0), &recipe()); }, none},
      {"categories", [&]() -> QWidget* { return new dlgBeerCategories(*b.wb, styles, &recipe()); }, none},
  };
  for (const Case& c : windows) {
    QWidget* win = c.open();
    win->show();
    QApplication::processEvents();
    EXPECT_EQ(accessKeyClashes(win), c.kept) << c.name;
    win->hide();
  }
}

// Presses Tab from `first` until the focus comes back (at most 60 times); the widgets in turn.
std::vector<QWidget*> tabChain(QWidget* first) {
  first->activateWindow();
  first->setFocus(Qt::TabFocusReason);
  std::vector<QWidget*> out{first};
  for (int i = 0; i < 60; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* w = QApplication::focusWidget();
    if (!w || std::find(out.begin(), out.end(), w) != out.end()) break;
    out.push_back(w);
  }
  return out;
}

// The outermost group box around `w`, or `w` itself.
QWidget* outerFrame(QWidget* w) {
  QWidget* frame = w;
  for (QWidget* p = w->parentWidget(); p && !p->isWindow(); p = p->parentWidget())
    if (qobject_cast<QGroupBox*>(p)) frame = p;
  return frame;
}

QString describe(QWidget* w) {
  auto* b = qobject_cast<QAbstractButton*>(w);
  return w->metaObject()->className() + QString(" ") + (w->objectName().isEmpty() && b ? b->text() : w->objectName());
}

// Tab walks the screen as it is read: each stop lies to the right of the one before on the same
// line, or lower down; a text box or the grid passes Tab on.
TEST_F(KeysTest, TabFollowsTheScreenLeftToRightTopToBottom) {
  ProgramWindows& w = *b.windows;
  recipe().selectGridRow(kMaltRow);
  dlgFilterBeerStyles filter(*b.wb, &recipe());
  StyleEditor styles(b.wb->styles, b.wb->folder, b.wb->errors, b.wb->prompter);
  dlgBeerStyleEdit edit(*b.wb, styles, -1, styles.newStyleForm(0), &recipe());
  dlgBeerCategories categories(*b.wb, styles, &recipe());
  const std::vector<std::pair<QWidget*, size_t>> windows = {  // a window and its count of stops
      {&recipe(), 21},           {&w.scale(), 5},        {&w.fermentation(), 18}, {&w.comments(), 4},
      {&w.hopsUtilization(), 12}, {&w.unitMashData(), 8}, {&w.styleMatch(), 3},    {&filter, 8},
      {&w.beerStyles(), 6},      {&edit, 17},            {&categories, 8},
  };
  for (const auto& [win, stops] : windows) {
    win->show();
    QApplication::processEvents();
    QWidget* first = win;
    while (first->focusProxy()) first = first->focusProxy();
    first = win->nextInFocusChain();
    while (!(first->focusPolicy() & Qt::TabFocus) || !first->isVisible() || !first->isEnabled())
      first = first->nextInFocusChain();
    const std::vector<QWidget*> chain = tabChain(first);
    EXPECT_EQ(chain.size(), stops) << win->objectName().toStdString();
    for (size_t i = 1; i < chain.size(); ++i) {
      // Two frames side by side are read one after the other: stops in different frames compare
      // as their frames.
      QWidget *pa = outerFrame(chain[i - 1]), *pb = outerFrame(chain[i]);
      if (pa == pb) pa = chain[i - 1], pb = chain[i];
      const QRect a(pa->mapToGlobal(QPoint()), pa->size());
      const QRect r(pb->mapToGlobal(QPoint()), pb->size());
      const bool sameLine = r.top() < a.bottom() - 4 && a.top() < r.bottom() - 4;
      EXPECT_TRUE(sameLine ? r.left() > a.left() : r.top() >= a.top())
          << win->objectName().toStdString() << ": " << describe(chain[i - 1]).toStdString() << " then "
          << describe(chain[i]).toStdString();
    }
    win->hide();
  }
}

// Return does what the window's default button does, Esc what its cancel button does.
TEST_F(KeysTest, ReturnAndEscActAsTheDefaultAndCancelButtons) {
  ProgramWindows& w = *b.windows;
  std::vector<std::string> asked;
  frmFind find(frmFind::Mode::Recipe, [&](const std::string& part) { asked.push_back(part); return true; }, &recipe());
  dlgFilterBeerStyles filter(*b.wb, &recipe());
  StyleEditor styles(b.wb->styles, b.wb->folder, b.wb->errors, b.wb->prompter);
  dlgBeerCategories categories(*b.wb, styles, &recipe());
  frmUnitMashData& units = w.unitMashData();
  struct Case {
    QWidget* window;
    QWidget* box;            // where the keys go
    const char* typed;       // typed into the box first, when it is a text box
    Qt::Key key;
    std::function<void()> check;
    bool staysOpen;
  };
  const std::vector<Case> cases = {
      {&find, find.txtFind, "amb", Qt::Key_Return, [&] { EXPECT_EQ(asked, std::vector<std::string>{"amb"}); }, true},
      {&find, find.txtFind, "", Qt::Key_Escape, [&] { EXPECT_EQ(asked.size(), 1u); }, false},
      {&w.scale(), w.scale().txtVolume, "10", Qt::Key_Return,
       [&] { EXPECT_EQ(recipe().txtFermentVolume->text(), "10.0"); }, false},
      {&w.scale(), w.scale().txtVolume, "20", Qt::Key_Escape,
       [&] { EXPECT_EQ(recipe().txtFermentVolume->text(), "10.0"); }, false},
      {&units, units.txtBoilTime, "75", Qt::Key_Escape, [&] { EXPECT_EQ(recipe().lblBoilTime->text(), "60"); }, false},
      {&units, units.cboMashType, "", Qt::Key_Return, [&] { EXPECT_EQ(recipe().lblBoilTime->text(), "60"); }, false},
      {&units, units.txtBoilTime, "75", Qt::Key_Return, [&] { EXPECT_EQ(recipe().lblBoilTime->text(), "75"); }, false},
      {&filter, filter.txtFilter, "amber", Qt::Key_Return, [&] { EXPECT_EQ(b.wb->styles.StyleFilterText, "amber"); }, false},
      {&filter, filter.txtFilter, "stout", Qt::Key_Escape, [&] { EXPECT_EQ(b.wb->styles.StyleFilterText, "amber"); }, false},
      {&categories, categories.txtCategory, "House Ales", Qt::Key_Return,
       [&] { EXPECT_EQ(categories.lstCategories->count(), 1); }, true},
      {&w.fermentation(), w.fermentation().txtValue[0], "", Qt::Key_Escape, [] {}, false},
      {&w.styleMatch(), w.styleMatch().lvStyle, "", Qt::Key_Escape, [] {}, false},
      {&w.hopsUtilization(), w.hopsUtilization().cmdCancel, "", Qt::Key_Return, [] {}, false},
      {&w.hopsUtilization(), w.hopsUtilization().grdUtil, "", Qt::Key_Escape, [] {}, false},
  };
  int n = 0;
  for (const Case& c : cases) {
    SCOPED_TRACE(n++);
    if (c.window == &w.scale()) w.scale().load();
    c.window->show();
    c.window->activateWindow();
    c.box->setFocus();
    if (auto* e = qobject_cast<QLineEdit*>(c.box); e && *c.typed) {
      e->selectAll();
      QTest::keyClicks(e, c.typed);
    }
    QTest::keyClick(c.box, c.key);
    QApplication::processEvents();
    c.check();
    EXPECT_EQ(c.window->isVisible(), c.staysOpen);
    c.window->hide();
  }
}

// The ingredient grid without the mouse: the arrows choose a row and fill the edit strip, Return
// goes to the quantity and back, Delete asks before the row goes.
TEST_F(KeysTest, TheGridIsDrivenByTheKeyboard) {
  frmRecipe& r = recipe();
  r.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&r));
  r.selectGridRow(kMaltRow);
  QTest::keyClick(r.grdIngredients, Qt::Key_Down);
  EXPECT_EQ(r.txtItem->text(), "Munich Malt");
  QTest::keyClick(r.grdIngredients, Qt::Key_Return);
  ASSERT_EQ(QApplication::focusWidget(), r.txtQty);
  QTest::keyClicks(r.txtQty, "2.5");
  QTest::keyClick(r.txtQty, Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), r.grdIngredients);
  EXPECT_EQ(r.gridModel->index(kMaltRow + 1, COL_QTY).data().toString(), "2.5");
  b.prompter.answers = {Answer::No, Answer::Yes};
  for (int i = 0; i < 2; ++i) QTest::keyClick(r.grdIngredients, Qt::Key_Delete);
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>(2, "Delete Ingredient: Do you want to Delete \"Munich Malt\" from the Recipe?"));
  EXPECT_EQ(r.gridModel->index(kMaltRow + 1, COL_NAME).data().toString(), "Crystal 60");
}

}  // namespace
}  // namespace zy::test
