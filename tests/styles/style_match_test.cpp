// Judging a recipe against styles: the limits, the match list and its sorts, the editor's style
// list, the filter dialog, the statistics and the category labels.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "styles/StyleMatch.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

BeerStyleRecord style(const std::string& name, int source, double ogLow = 0, double ogHigh = 0, double fgLow = 0,
                      double fgHigh = 0, double ibuLow = 0, double ibuHigh = 0, double srmLow = 0, double srmHigh = 0,
                      double abvLow = 0, double abvHigh = 0) {
  BeerStyleRecord s;
  s.styleName = name;
  s.source = source;
  s.ogLow = ogLow, s.ogHigh = ogHigh, s.fgLow = fgLow, s.fgHigh = fgHigh;
  s.ibuLow = ibuLow, s.ibuHigh = ibuHigh, s.srmLow = srmLow, s.srmHigh = srmHigh;
  s.alcoholLow = abvLow, s.alcoholHigh = abvHigh;
  return s;
}

std::unique_ptr<StyleTables> tablesOf(std::initializer_list<BeerStyleRecord> styles) {
  auto t = std::make_unique<StyleTables>();
  for (const BeerStyleRecord& s : styles) {
    t->BeerStyles[static_cast<size_t>(t->BeerStyleCount)] = s;
    t->BeerStyles[static_cast<size_t>(t->BeerStyleCount)].styleIndex = t->BeerStyleCount;
    ++t->BeerStyleCount;
  }
  return t;
}

std::string describe(const StyleDeviation& d) { return std::string(d.text()) + "/" + d.colorWord(); }

TEST(StyleDeviation, GravityLimitsFromPointNineOthersByTenPercent) {
  const auto G = LimitKind::Gravity, P = LimitKind::Plain;
  // 1.045 to 1.055: lower limit (0.145 * 0.9) + 0.9 = 1.0305, upper (0.155 * 1.1) + 0.9 = 1.0705.
  EXPECT_NEAR(styleLowerLimit(1.045, G), 1.0305, 1e-12);
  EXPECT_NEAR(styleUpperLimit(1.055, G), 1.0705, 1e-12);
  const double lo = styleLowerLimit(1.045, G), hi = styleUpperLimit(1.055, G);
  // 1.036 is a near miss with the 0.9 form; ten percent of the points would make it a full miss.
  // An upper value of 0 accepts only 0.
  const struct { double value, low, high; LimitKind kind; const char* judged; } cases[] = {
      {1.045, 1.045, 1.055, G, "OK/green"},      {1.055, 1.045, 1.055, G, "OK/green"},
      {1.050, 1.045, 1.055, G, "OK/green"},      {1.040, 1.045, 1.055, G, "Low/yellow"},
      {1.036, 1.045, 1.055, G, "Low/yellow"},    {lo, 1.045, 1.055, G, "Low/yellow"},
      {std::nextafter(lo, 0.0), 1.045, 1.055, G, "Low/red"}, {1.030, 1.045, 1.055, G, "Low/red"},
      {std::nextafter(1.055, 2.0), 1.045, 1.055, G, "High/yellow"}, {1.070, 1.045, 1.055, G, "High/yellow"},
      {hi, 1.045, 1.055, G, "High/yellow"},      {std::nextafter(hi, 2.0), 1.045, 1.055, G, "High/red"},
      {1.071, 1.045, 1.055, G, "High/red"},      {20, 20, 30, P, "OK/green"},
      {30, 20, 30, P, "OK/green"},               {19.99, 20, 30, P, "Low/yellow"},
      {18, 20, 30, P, "Low/yellow"},             {17.99, 20, 30, P, "Low/red"},
      {30.01, 20, 30, P, "High/yellow"},         {styleUpperLimit(30, P), 20, 30, P, "High/yellow"},
      {33.01, 20, 30, P, "High/red"},            {0, 0, 0, P, "OK/green"},
      {0.0001, 0, 0, P, "High/red"}};
  for (const auto& c : cases) EXPECT_EQ(describe(styleDeviation(c.value, c.low, c.high, c.kind)), c.judged) << c.value;
  using RGB = std::array<int, 3>;
  EXPECT_EQ(std::vector<RGB>({styleDeviation(50, 20, 30, P).color(), styleDeviation(31, 20, 30, P).color(),
                              styleDeviation(25, 20, 30, P).color()}),
            std::vector<RGB>({{255, 0, 0}, {255, 255, 0}, {0, 255, 0}}));
}

// Pale: all ranges; Stout: dark; Open: an empty name and every range wide.
std::unique_ptr<StyleTables> threeStyles() {
  return tablesOf({style("Pale Ale ", 1, 1.045, 1.055, 1.010, 1.014, 20, 30, 4, 9, 4.5, 5.5),
                   style("Stout", 2, 1.045, 1.055, 1.010, 1.014, 30, 40, 30, 40, 4.5, 5.5),
                   style("", 0, 1.000, 1.100, 1.000, 1.030, 0, 100, 0, 50, 0, 12)});
}

TEST(StyleMatch, NearMissesStayAndFullMissesGo) {
  auto t = threeStyles();
  // Values as the editor shows them; IBU 19 is a near miss for Pale Ale, a full miss for Stout.
  const auto v = RecipeStyleValues::fromDisplay("1.050", "1.012", "19", "5.0", "5.1");
  StyleMatchModel m;
  m.open(*t, v, "Pale Ale");
  // Every style is tried, also one without a name.
  ASSERT_EQ(m.rows.size(), 2u);
  EXPECT_TRUE(m.selected == 0 && m.cmdSetRecipeEnabled);
  EXPECT_EQ(m.setRecipeStyleText(), "Pale Ale");
  EXPECT_EQ(m.lines(), (std::vector<std::string>{"Beer Style\tO.G.\tF.G.\tBitter\tColor\tAlc %",
                                                "Pale Ale\tOK\tOK\tLow\tOK\tOK", "\tOK\tOK\tOK\tOK\tOK"}));

  // The editor's filter plays no part.
  t->StyleSourceShown = {false, false, false};
  t->StyleFilterText = "zzz";
  EXPECT_EQ(buildStyleMatchRows(*t, v).size(), 2u);

  test::ScriptedPrompter p;
  EXPECT_TRUE(m.doubleClick(0, p) == "Pale Ale" && p.shown.empty());
}

TEST(StyleMatch, NoMatchGivesOneRowAndADisabledButton) {
  auto empty = tablesOf({});
  StyleMatchModel m;
  m.open(*empty, RecipeStyleValues{1.05, 1.01, 20, 5, 5}, "");
  EXPECT_EQ(m.lines(), (std::vector<std::string>{"Beer Style\tO.G.\tF.G.\tBitter\tColor\tAlc %",
                                                "No Matching Styles Found\t\t\t\t\t"}));
  EXPECT_FALSE(m.cmdSetRecipeEnabled || m.setRecipeStyleText());
  test::ScriptedPrompter p;
  EXPECT_EQ(m.doubleClick(0, p), std::nullopt);
  EXPECT_EQ(test::shownLines(p), std::vector<std::string>{"Matching Beer Styles: No Matching Beer Styles Found"});

  // A recipe without malts shows "N/A": no style passes the gravity check with 0.
  auto t = threeStyles();
  m.open(*t, RecipeStyleValues::fromDisplay("N/A", "N/A", "N/A", "N/A", "N/A"), "");
  EXPECT_EQ(m.lines().size(), 2u);
  EXPECT_EQ(m.lines().at(1), "No Matching Styles Found\t\t\t\t\t");
}

TEST(StyleMatch, SortsByNameOrByEveryColumnDescending) {
  // Five styles that all match with different cells; values OG 1.050 FG 1.012 IBU 25 SRM 10 ABV 5.
  auto t = tablesOf({
      style("delta", 0, 1.051, 1.060, 1.010, 1.014, 20, 30, 5, 15, 4, 6),     // Low OK OK OK OK
      style("Alpha", 0, 1.040, 1.049, 1.010, 1.014, 20, 30, 5, 15, 4, 6),     // High OK OK OK OK
      style("charlie", 0, 1.040, 1.060, 1.013, 1.020, 20, 30, 5, 15, 4, 6),   // OK Low OK OK OK
      style("Bravo", 0, 1.040, 1.060, 1.010, 1.014, 20, 30, 5, 15, 5.2, 6),   // OK OK OK OK Low
      style("echo", 0, 1.040, 1.060, 1.010, 1.014, 26, 30, 5, 15, 4, 6),      // OK OK Low OK OK
  });
  StyleMatchModel m;
  m.open(*t, RecipeStyleValues{1.050, 1.012, 25, 10, 5}, "charlie");
  ASSERT_EQ(m.rows.size(), 5u);
  EXPECT_EQ(m.rows[m.selected].name, "charlie");

  auto names = [&] {
    std::string s;
    for (const auto& r : m.rows) s += r.name + " ";
    return s;
  };
  m.sortByColumn(0);
  EXPECT_EQ(names(), "Alpha Bravo charlie delta echo ");
  EXPECT_EQ(m.rows[m.selected].name, "charlie");

  // Whatever column is clicked, O.G. decides (OK, Low, High), the later columns order its ties.
  m.sortByColumn(4);
  EXPECT_EQ(names(), "Bravo echo charlie delta Alpha ");
  EXPECT_EQ(m.rows[m.selected].name, "charlie");
  m.sortByColumn(0);
  m.sortByColumn(1);
  EXPECT_EQ(names(), "Bravo echo charlie delta Alpha ");
}

TEST(RecipeStyleList, BracketedEntriesOnTopThenSortedFilteredStyles) {
  auto t = tablesOf({style(" Stout ", 2), style("pale ALE", 1), style("Amber Ale", 0), style("Bock", 7)});
  auto texts = [](const std::vector<StyleListEntry>& l) {
    std::string s;
    for (const auto& e : l) s += e.text + "=" + std::to_string(e.data) + ";";
    return s;
  };
  EXPECT_EQ(texts(buildRecipeStyleList(*t)),
            "<Not A Recognized Beer Style>=-1;<Not Specified>=-1;Amber Ale=2;pale ALE=1;Stout=0;");
  t->StyleFilterText = "aLe";
  EXPECT_EQ(texts(buildRecipeStyleList(*t)), "<Not A Recognized Beer Style>=-1;<Not Specified>=-1;Amber Ale=2;pale ALE=1;");
  t->StyleFilterText.clear();
  t->StyleSourceShown = {true, false, true};
  EXPECT_EQ(texts(buildRecipeStyleList(*t)), "<Not A Recognized Beer Style>=-1;<Not Specified>=-1;Amber Ale=2;Stout=0;");
  t->StyleSourceShown = {false, false, false};
  EXPECT_EQ(buildRecipeStyleList(*t).size(), 2u);
  initStyleFilter(*t);
  EXPECT_EQ(buildRecipeStyleList(*t).size(), 5u);

  // Choosing and opening.
  const auto list = buildRecipeStyleList(*t);
  EXPECT_EQ(std::vector<std::string>({chooseRecipeStyle(*t, list, 4), std::to_string(t->CurrentStyleIndex),
                                      chooseRecipeStyle(*t, list, 1), std::to_string(t->CurrentStyleIndex)}),
            std::vector<std::string>({"Stout", "0", "", "-1"}));
  test::ScriptedPrompter p;
  // The list entry chosen and the style in force for a known, an empty and an unknown name.
  std::vector<int> chosen;
  for (const char* name : {"Amber Ale", "", "Kellerbier"})
    chosen.insert(chosen.end(), {selectRecipeStyle(*t, list, name, p), t->CurrentStyleIndex});
  EXPECT_EQ(chosen, std::vector<int>({2, 2, 1, -1, 0, -1}));
  EXPECT_EQ(test::shownLines(p),
            std::vector<std::string>{"Unknown Beer Style: Beer Style 'Kellerbier' is Not Recognized by Zythara"});
}

TEST(StyleStatistics, CountsBySourceWithIllegalSourcesInTheTotalOnly) {
  auto t = tablesOf({style("a", 0), style("b", 2), style("c", 2), style("d", 9), style("e", 1)});
  t->BeerCategoryCount = 3;
  EXPECT_EQ(computeStyleStatistics(*t).lines(),
            (std::vector<std::string>{"Number of Beer Categories Loaded: 3", "Total Number of Beer Styles Loaded: 5",
                                      "Custom Beer Styles Loaded: 1", "AOB Beer Styles Loaded: 1",
                                      "BJCP Beer Styles Loaded: 2"}));
}

TEST(StyleLookups, CategoryLabelsAndKeySearches) {
  StyleTables t;
  auto cat = [&](int row, const char* id, const char* name, const char* sub, int key) {
    BeerCategoryRecord& c = t.BeerCategories[row];
    c.id = id, c.category = name, c.subCategory = sub, c.categoryIndex = key;
  };
  cat(0, " 1A ", " Light Lager ", " Lite ", 5);
  cat(1, "", "Stout", "", 7);
  cat(2, "", "Twin", "", 7);
  t.BeerCategoryCount = 3;
  // By row, then by key (the first match wins), and nothing for a row or key not there.
  EXPECT_EQ(std::vector<std::string>({categoryLabel(t, 0, false), categoryLabel(t, 1, false), categoryLabel(t, 5, true),
                                      categoryLabel(t, 7, true), categoryLabel(t, 8, true), categoryLabel(t, -1, false),
                                      categoryLabel(t, 500, false)}),
            std::vector<std::string>({"1A Light Lager - Lite", "Stout", "1A Light Lager - Lite", "Stout", "<None>",
                                      "<None>", "<None>"}));
  t.BeerStyles[0].styleIndex = 4;
  t.BeerStyles[1].styleIndex = 4;
  t.BeerStyleCount = 2;
  EXPECT_EQ(std::vector<int>({findCategoryRow(t, 7), findCategoryRow(t, 99), findStyleRow(t, 4), findStyleRow(t, 0)}),
            std::vector<int>({1, -1, 0, -1}));

  EXPECT_EQ(std::vector<bool>({rangeOutOfBounds(1.040, 1.050, 1.0, 1.2), rangeOutOfBounds(1.0, 1.2, 1.0, 1.2),
                               rangeOutOfBounds(5, 5, 0, 10), rangeOutOfBounds(1.050, 1.040, 1.0, 1.2),
                               rangeOutOfBounds(0.99, 1.05, 1.0, 1.2), rangeOutOfBounds(1.05, 1.21, 1.0, 1.2)}),
            std::vector<bool>({false, false, false, true, true, true}));
}

}  // namespace
}  // namespace zy
