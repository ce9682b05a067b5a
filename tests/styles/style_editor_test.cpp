// The brewer's own styles and categories: what the files hold after each change, the refusals
// with their messages, and the room the loader's limits leave.
#include <gtest/gtest.h>

#include <functional>

#include "core/text.h"
#include "styles/StyleEditor.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

struct EditorBench {
  test::Bench b;
  StyleTables& t = b.wb->styles;
  StyleEditor ed{t, b.wb->folder, b.wb->errors, b.prompter};

  // Category 0 "1 Pale Ales" (BJCP) with the style "Pale One"; category 1 "Mine" (Custom).
  EditorBench() {
    t.BeerCategories[0].source = STYLE_SOURCE_BJCP, t.BeerCategories[0].id = "1", t.BeerCategories[0].category = "Pale Ales";
    t.BeerCategories[1].category = "Mine", t.BeerCategories[1].categoryIndex = 1;
    t.BeerCategoryCount = 2;
    BeerStyleRecord& s = t.BeerStyles[0];
    s.source = STYLE_SOURCE_BJCP, s.styleName = "Pale One", s.ogLow = 1.044, s.ogHigh = 1.052;
    t.BeerStyleCount = 1;
  }
  StyleForm form(const std::string& name, int category = 1) {
    StyleForm f;
    f.txtName = name, f.category = category;
    f.txtRange = {"1.050", "1.060", "1.010", "1.014", "30", "45", "8", "14", "5", "6.2"};
    return f;
  }
  void reload() { ASSERT_TRUE(LoadBeerStyles(*b.wb)); }
  std::vector<std::string> names() {
    std::vector<std::string> n;
    for (const auto& e : ed.entries()) n.push_back(e.sourceName + "|" + e.categoryText + "|" + e.styleName);
    return n;
  }
};

TEST(StyleEditor, ACustomStyleIsFoundAfterAReloadOfTheFiles) {
  EditorBench x;
  StyleForm f = x.form("  Hoppy House Ale ");
  f.txtId = "H1";
  f.txtComments = " Our own.\r\nDry hopped. ";
  f.txtRange[2] = f.txtRange[3] = "";  // FG left open
  ASSERT_EQ(x.ed.acceptStyle(-1, f), 1);
  x.reload();
  const BeerStyleRecord& s = x.t.BeerStyles[1];
  EXPECT_EQ(trim(s.styleName) + "|" + trim(s.styleId) + "|" + s.comments, "Hoppy House Ale|H1|Our own.\r\nDry hopped.");
  EXPECT_EQ(s.source, STYLE_SOURCE_CUSTOM);
  EXPECT_EQ((std::array<double, 5>{s.ogLow, s.ogHigh, s.fgLow, s.fgHigh, s.alcoholHigh}),
            (std::array<double, 5>{1.05, 1.06, 0, 0, 6.2}));
  x.ed.sourceFilter = BROWSE_CUSTOM;
  EXPECT_EQ(x.names(), (std::vector<std::string>{"Custom|Mine|Hoppy House Ale"}));
  x.ed.sourceFilter = BROWSE_ALL;
  EXPECT_EQ(x.names(), (std::vector<std::string>{"BJCP|1 Pale Ales|Pale One", "Custom|Mine|Hoppy House Ale"}));
  // The form shows it back in the measures' formats, the open range as empty boxes.
  EXPECT_EQ(x.ed.formOf(1).txtRange,
            (std::array<std::string, 10>{"1.050", "1.060", "", "", "30", "45", "8.0", "14.0", "5.0", "6.2"}));
  // Changed, then deleted: the blank row is dropped by the save.
  f.txtName = "House Ale";
  ASSERT_EQ(x.ed.acceptStyle(1, f), 1);
  x.b.prompter.answers = {Answer::Yes};
  ASSERT_TRUE(x.ed.deleteStyle(1));
  x.reload();
  EXPECT_EQ(x.t.BeerStyleCount, 1);
  EXPECT_EQ(test::shownLines(x.b.prompter), (std::vector<std::string>{"Delete Beer Style: Delete the Beer Style 'House Ale'?"}));
}

TEST(StyleEditor, BadFormsAreRefusedWithAMessageAndNothingWritten) {
  struct Case {
    std::function<void(StyleForm&)> edit;
    int row;
    std::string message;
  } cases[] = {
      {[](StyleForm& f) { f.txtName = "  "; }, -1, "Please enter the Name of the Beer Style"},
      {[](StyleForm& f) { f.txtName = std::string(61, 'x'); }, -1, "The Name of a Beer Style holds at most 60 characters"},
      {[](StyleForm& f) { f.txtName = "PALE ONE"; }, -1, "A Beer Style named 'PALE ONE' already exists"},
      {[](StyleForm& f) { f.category = 5; }, -1, "Please choose the Category of the Beer Style"},
      {[](StyleForm& f) { f.txtRange[4] = "3O"; }, -1, "IBU Low must be a number"},
      {[](StyleForm& f) { f.txtRange[1] = "1.040"; }, -1, "The O.G. range must run from Low to High between 1.000 and 1.200"},
      {[](StyleForm& f) { f.txtRange[9] = "30"; }, -1, "The Alcohol % range must run from Low to High between 0.0 and 25.0"},
      {[](StyleForm& f) { f.txtRange[7] = ""; }, -1, "The Color (SRM) range must run from Low to High between 0.0 and 100.0"},
      {[](StyleForm&) {}, 0, "Only Custom Beer Styles can be changed. Use New Style to make a custom copy of this style."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    EditorBench x;
    StyleForm f = x.form("New One");
    c.edit(f);
    EXPECT_EQ(x.ed.acceptStyle(c.row, f), -1);
    EXPECT_EQ(test::shownLines(x.b.prompter), (std::vector<std::string>{"Beer Styles: " + c.message}));
    EXPECT_FALSE(fileExists(x.b.wb->folder.dataFile(kStyleFile)));
  }
}

TEST(StyleEditor, TheTablesNeverGrowPastWhatTheLoaderTakes) {
  EditorBench x;
  for (int i = 2; i < kMaxCategories; ++i) x.t.BeerCategories[static_cast<size_t>(i)].category = "C" + itos(i);
  x.t.BeerCategoryCount = kMaxCategories;
  for (int i = 1; i < kMaxStyles; ++i) x.t.BeerStyles[static_cast<size_t>(i)].styleName = "S" + itos(i);
  x.t.BeerStyleCount = kMaxStyles;
  EXPECT_EQ(x.ed.acceptStyle(-1, x.form("One Too Many")), -1);
  // A deleted style leaves its row free for the next one.
  x.t.BeerStyles[7].styleName = "";
  EXPECT_EQ(x.ed.acceptStyle(-1, x.form("Fits")), 7);
  EXPECT_EQ(x.ed.acceptCategory(-1, {"", "Extra", ""}), -1);
  EXPECT_EQ(test::shownLines(x.b.prompter),
            (std::vector<std::string>{
                "Beer Styles: There is no room for another Beer Style: Zythara holds at most 250 Beer Styles. "
                "Delete a style you no longer use first.",
                "Beer Styles: There is no room for another Beer Category: Zythara holds at most 50 Beer Categories. "
                "Delete a category you no longer use first."}));
  x.reload();  // the full files load without a word
  EXPECT_EQ(std::vector<int>({x.t.BeerStyleCount, x.t.BeerCategoryCount}), std::vector<int>({250, 50}));
  EXPECT_EQ(x.b.prompter.shown.size(), 2u);
}

TEST(StyleEditor, DeletingACategoryKeepsEveryStyleInItsCategory) {
  EditorBench x;
  ASSERT_EQ(x.ed.acceptCategory(-1, {"X9", " Smoked ", "Beech"}), 2);
  ASSERT_EQ(x.ed.acceptStyle(-1, x.form("Smoky", 2)), 1);
  EXPECT_EQ(x.ed.acceptCategory(-1, {"x9", "smoked", "beech"}), -1);
  EXPECT_FALSE(x.ed.deleteCategory(0) || x.ed.deleteCategory(2));  // a published one; one still holding Smoky
  x.b.prompter.answers = {Answer::Yes};
  ASSERT_TRUE(x.ed.deleteCategory(1));
  x.reload();
  EXPECT_EQ(x.names(), (std::vector<std::string>{"BJCP|1 Pale Ales|Pale One", "Custom|X9 Smoked - Beech|Smoky"}));
  EXPECT_EQ(test::shownLines(x.b.prompter),
            (std::vector<std::string>{"Beer Styles: A Beer Category 'x9 smoked - beech' already exists",
                                      "Beer Styles: Only Custom Beer Categories can be deleted",
                                      "Beer Styles: The Beer Category 'X9 Smoked - Beech' still holds 1 Beer Style(s) and "
                                      "cannot be deleted",
                                      "Delete Beer Category: Delete the Beer Category 'Mine'?"}));
}

TEST(StyleEditor, RangeBarsShowTheRangeAndJudgeTheRecipe) {
  EditorBench x;
  BeerStyleRecord s = x.t.BeerStyles[0];
  s.ibuLow = 20, s.ibuHigh = 40, s.srmHigh = 60;
  const RecipeStyleValues v{1.0425, 1.012, 45, 5, 0};
  const auto bars = styleRangeBars(s, &v);
  std::vector<std::string> got;
  for (const auto& b : bars) got.push_back(b.caption + " " + b.rangeText + " " + b.valueText + " " + b.state);
  EXPECT_EQ(got, (std::vector<std::string>{"Original Gravity 1.044 - 1.052 1.043 Low", "Final Gravity Not given 1.012 High",
                                           "Bitterness (IBU) 20 - 40 45 High", "Color (SRM) 0.0 - 60.0 5.0 OK",
                                           "Alcohol % by Volume Not given 0.0 OK"}));
  EXPECT_EQ(bars[0].color, (std::array<int, 3>{255, 255, 0}));
  EXPECT_EQ(bars[2].color, (std::array<int, 3>{255, 0, 0}));  // above 40 x 1.1
  EXPECT_GT(bars[3].axisMax, 60);
}

}  // namespace
}  // namespace zy
