// The style descriptions shipped in the comment blocks, and the refusals of the merge.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/text.h"
#include "styles/StyleSheets.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

TEST(StyleDescriptions, EveryShippedStyleHasAShortDescription) {
  const std::string dir = std::string(ZY_SOURCE_DIR) + "/data/styles/";
  auto t = std::make_unique<StyleTables>();
  std::string error;
  ASSERT_TRUE(buildStyleTablesFromSheets(test::readFile(dir + "categories.csv"), test::readFile(dir + "styles.csv"),
                                         *t, error))
      << error;
  ASSERT_TRUE(mergeStyleDescriptions(test::readFile(dir + "descriptions.csv"), *t, error)) << error;
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
