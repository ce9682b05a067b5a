// The shipped style sheets and descriptions turned into the style files, and the refusals of
// the sheet reader and the description merge.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/text.h"
#include "styles/StyleSheets.h"
#include "styles/StyleStore.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

const std::string kSheets = std::string(ZY_SOURCE_DIR) + "/data/styles/";

const BeerStyleRecord* byName(const StyleTables& t, const std::string& name) {
  for (int i = 0; i < t.BeerStyleCount; ++i)
    if (trim(t.BeerStyles[static_cast<size_t>(i)].styleName) == name) return &t.BeerStyles[static_cast<size_t>(i)];
  return nullptr;
}

// The data lines of a sheet (after its header) split into cells.
std::vector<std::vector<std::string>> sheetRows(const std::string& path) {
  std::vector<std::vector<std::string>> rows;
  const auto lines = split(test::readFile(path), '\n');
  for (size_t i = 1; i < lines.size(); ++i)
    if (!trimWhite(lines[i]).empty()) rows.push_back(splitCsvLine(trimWhite(lines[i])));
  return rows;
}

TEST(ShippedStyles, SheetsBuildFilesThatLoadWithoutAWord) {
  auto t = std::make_unique<StyleTables>();
  std::string error;
  ASSERT_TRUE(buildStyleTablesFromSheets(test::readFile(kSheets + "categories.csv"), test::readFile(kSheets + "styles.csv"),
                                         *t, error))
      << error;
  EXPECT_EQ(std::vector<int>({t->BeerCategoryCount, t->BeerStyleCount}), std::vector<int>({46, 237}));

  test::Bench b;
  writeStyleFiles(*t, b.wb->folder.dataFile(kCategoryFile), b.wb->folder.dataFile(kStyleFile));
  EXPECT_EQ(std::vector<size_t>({test::readFile(b.wb->folder.dataFile(kCategoryFile)).size(),
                                 test::readFile(b.wb->folder.dataFile(kStyleFile)).size()}),
            std::vector<size_t>({46u * 146u, 237u * 190u}));  // empty comments
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  EXPECT_TRUE(b.prompter.shown.empty());
  const StyleTables& s = b.wb->styles;

  // The category labels of a BJCP and an AOB style (the rows below check every other field).
  const BeerStyleRecord* koelsch = byName(s, "K\xF6lsch");
  const BeerStyleRecord* esb = byName(s, "Extra Special Bitter");
  ASSERT_TRUE(koelsch && esb);
  EXPECT_EQ(categoryLabel(s, koelsch->categoryIndex, true) + "|" + categoryLabel(s, esb->categoryIndex, true),
            "5 Pale Bitter European Beer|1 British Origin Ale Styles - Ale Styles");

  // Every line of both sheets lands in its row of the files, in sheet order: names in
  // Windows-1252, quoted names with commas, and a range the guideline leaves open as 0 to 0.
  const auto cats = sheetRows(kSheets + "categories.csv");
  ASSERT_EQ(static_cast<int>(cats.size()), s.BeerCategoryCount);
  for (size_t i = 0; i < cats.size(); ++i) {
    const auto& c = cats[i];
    ASSERT_EQ(c.size(), 4u);
    const BeerCategoryRecord& r = s.BeerCategories[i];
    EXPECT_EQ(std::vector<std::string>({styleSourceName(r.source), trim(r.id), cp1252ToUtf8(trim(r.category)),
                                        cp1252ToUtf8(trim(r.subCategory))}),
              c) << i;
  }
  const auto styles = sheetRows(kSheets + "styles.csv");
  ASSERT_EQ(static_cast<int>(styles.size()), s.BeerStyleCount);
  for (size_t i = 0; i < styles.size(); ++i) {
    const auto& c = styles[i];
    ASSERT_EQ(c.size(), 14u);
    const BeerStyleRecord& r = s.BeerStyles[i];
    EXPECT_EQ(styleSourceName(r.source), c[0]) << i;
    const BeerCategoryRecord& cat = s.BeerCategories[static_cast<size_t>(findCategoryRow(s, r.categoryIndex))];
    EXPECT_EQ(cat.source, r.source) << i;
    EXPECT_EQ(std::vector<std::string>({trim(cat.id), trim(r.styleId), cp1252ToUtf8(trim(r.styleName))}),
              std::vector<std::string>(c.begin() + 1, c.begin() + 4)) << i;
    const double ranges[10] = {r.ogLow, r.ogHigh, r.fgLow, r.fgHigh, r.ibuLow, r.ibuHigh,
                               r.srmLow, r.srmHigh, r.alcoholLow, r.alcoholHigh};
    for (size_t k = 0; k < 10; ++k) EXPECT_EQ(ranges[k], c[4 + k].empty() ? 0.0 : std::stod(c[4 + k])) << i << " " << k;
  }
}

TEST(ShippedStyles, SheetsThatDoNotFitAreRefusedWithTheirLine) {
  const std::string cats = "source,category_id,category_name,subcategory\nBJCP,1,Light,\nAOB,1,Ales,Ale Styles\n";
  const std::string head =
      "source,category_id,style_id,style_name,og_low,og_high,fg_low,fg_high,ibu_low,ibu_high,srm_low,srm_high,"
      "abv_low,abv_high\n";
  auto t = std::make_unique<StyleTables>();
  std::string error;
  ASSERT_TRUE(buildStyleTablesFromSheets(cats, head + "AOB,1,9,\"Say \"\"Hi\"\"\",1,2,1,1,,,3,4,5,6\r\n", *t, error));
  // The AOB category, not the BJCP one with the same id; an open range as 0.
  EXPECT_EQ(trim(t->BeerStyles[0].styleName), "Say \"Hi\"");
  EXPECT_TRUE(t->BeerStyles[0].categoryIndex == 1 && t->BeerStyles[0].ibuHigh == 0.0);

  EXPECT_FALSE(buildStyleTablesFromSheets(cats, head + "BJCP,1,1A,X,a,2,1,1,1,1,1,1,1,1\n", *t, error));
  EXPECT_EQ(error, "styles line 2: bad range a to 2");
  EXPECT_FALSE(buildStyleTablesFromSheets(cats, head + "BJCP,9,1A,X,1,2,1,1,1,1,1,1,1,1\n", *t, error));
  EXPECT_EQ(error, "styles line 2: unknown category BJCP 9");
  EXPECT_FALSE(buildStyleTablesFromSheets(cats, head + "BA,1,1A,X,1,2,1,1,1,1,1,1,1,1\n", *t, error));
  EXPECT_FALSE(buildStyleTablesFromSheets(cats, head + "BJCP,1,1A," + std::string(61, 'n') + ",1,2,1,1,1,1,1,1,1,1\n",
                                          *t, error));
  std::string many = head;
  for (int i = 0; i < 251; ++i) many += "BJCP,1,1A,X,1,2,1,1,1,1,1,1,1,1\n";
  EXPECT_FALSE(buildStyleTablesFromSheets(cats, many, *t, error));
  EXPECT_EQ(error, "styles line 252: more than 250 styles");
}

// The style descriptions shipped in the comment blocks, and the refusals of the merge.
TEST(StyleDescriptions, EveryShippedStyleHasAShortDescription) {
  auto t = std::make_unique<StyleTables>();
  std::string error;
  ASSERT_TRUE(buildStyleTablesFromSheets(test::readFile(kSheets + "categories.csv"), test::readFile(kSheets + "styles.csv"),
                                         *t, error))
      << error;
  ASSERT_TRUE(mergeStyleDescriptions(test::readFile(kSheets + "descriptions.csv"), *t, error)) << error;
  for (int i = 0; i < t->BeerStyleCount; ++i) {
    const BeerStyleRecord& s = t->BeerStyles[static_cast<size_t>(i)];
    const BeerCategoryRecord& c = t->BeerCategories[static_cast<size_t>(s.categoryIndex)];
    if (trim(c.category).ends_with("Mead")) continue;  // meads are not described
    const std::string name = trim(s.styleName);
    // Two to four sentences: count the full stops that end one.
    const size_t stops = split(s.comments + " ", '.').size() - 1;
    EXPECT_TRUE(stops >= 2 && stops <= 4 && s.comments.size() < 1000) << name << ": " << s.comments;
  }
}

TEST(StyleDescriptions, RowsThatDoNotFitAreRefusedWithTheirStyle) {
  const std::string categories = "h\nBJCP,1,Standard American Beer,\n";
  const std::string styles = "h\nBJCP,1,1A,American Lager,,,,,,,,,,\n";
  const struct {
    std::string sheet, error;
  } cases[] = {
      {"h\nBJCP,Pale Lagerr,Crisp.\n", "descriptions line 2: no style BJCP Pale Lagerr"},
      {"h\nAOB,American Lager,Crisp.\n", "descriptions line 2: no style AOB American Lager"},
      {"h\nBJCP,American Lager,Crisp.\nBJCP,American Lager,Again.\n",
       "descriptions line 3: a second description for American Lager"},
      {"h\nBJCP,American Lager, \n", "descriptions line 2: the description of American Lager is empty or too long"},
      {"h\nBJCP,American Lager\n", "descriptions line 2: expected 3 cells"},
  };
  for (const auto& c : cases) {
    auto t = std::make_unique<StyleTables>();
    std::string error;
    ASSERT_TRUE(buildStyleTablesFromSheets(categories, styles, *t, error)) << error;
    EXPECT_FALSE(mergeStyleDescriptions(c.sheet, *t, error));
    EXPECT_EQ(error, c.error);
  }
  auto t = std::make_unique<StyleTables>();
  std::string error;
  ASSERT_TRUE(buildStyleTablesFromSheets(categories, styles, *t, error));
  ASSERT_TRUE(mergeStyleDescriptions("h\nBJCP,American Lager,\"Pale, crisp, \"\"clean\"\".\"\n", *t, error));
  EXPECT_EQ(t->BeerStyles[0].comments, "Pale, crisp, \"clean\".");
}

}  // namespace
}  // namespace zy
