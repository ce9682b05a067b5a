// The keyboard in the recipe and style windows: every access key given once per window, and the
// keys a brewer uses without the mouse.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QTableView>
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

}  // namespace
}  // namespace zy::test
