// Every value the exchange writer writes comes back whole through the reader.
#include <gtest/gtest.h>

#include "core/text.h"
#include "recipes/RecipeExchange.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

namespace {
bool holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
}  // namespace

TEST(ExchangeValues, CommasQuotesAndLineBreaksComeBackWhole) {
  Bench b;
  Workbench& wb = *b.wb;
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.recipeName = "Smith, \"Jones\" Ale", r.beerStyle = "Nut, \"Brown\"", r.idCode = "AB,1";
  r.labelName = "\"Big\", Bold", r.dateCreated = "Oct,05 1998", r.boilVolume = 6.5, r.volumeUnits = LITER_CONST;
  r.mashType = 2, r.mashStepTime[0] = 60, r.mashStepComment[0] = "hold\r\nthen, stir";
  r.primingComment = "corn sugar\nboiled";
  r.itemCount = 2;
  wb.recipe.items[0] = makeItem(KIND_MALT, "Pale\r\nMalt, 2-Row", 8, 0, 0, 1.036, 3, -1);
  wb.recipe.items[1] = makeItem(KIND_HOPS, "Say \"Hallertau\"", 1, 1, 0, 4.5, 60);
  const std::string text = exportRecipeText(wb);
  // Values that would end a plain field are quoted fields with their quotes doubled.
  EXPECT_TRUE(holds(text, ", \"Style=\"\"Nut, \"\"Brown\"\"\"\"\"\r\n")) << text;
  EXPECT_TRUE(holds(text, "<Malt>, \"Type=\"\"Pale\r\nMalt~ 2-Row\"\"\", Quantity=8.0,")) << text;
  EXPECT_TRUE(holds(text, "<Hops> Type=\"Say \"Hallertau\"\", Quantity=1.0,")) << text;

  importRecipe(wb, text);
  ASSERT_EQ(r.itemCount, 2);
  EXPECT_EQ(std::vector<std::string>({r.recipeName, r.beerStyle, r.idCode, r.labelName, r.dateCreated, r.mashStepComment[0],
                                      r.primingComment, wb.recipe.items[0].itemName, wb.recipe.items[1].itemName}),
            std::vector<std::string>({"Smith, \"Jones\" Ale", "Nut, \"Brown\"", "AB,1", "\"Big\", Bold", "Oct,05 1998",
                                      "hold\r\nthen, stir", "corn sugar\nboiled", "Pale\r\nMalt, 2-Row",
                                      "Say \"Hallertau\""}));
  EXPECT_DOUBLE_EQ(wb.recipe.items[1].rating, 4.5);
  EXPECT_DOUBLE_EQ(r.boilVolume, 6.5);
}

TEST(ExchangeValues, EmptyDatesUnknownUnitsAndKindsAndExactNames) {
  Bench b;
  Workbench& wb = *b.wb;
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.dateCreated = "", r.volumeUnits = 99, r.fermentTime[0] = 7, r.fermentTimeUnits[0] = -4;
  r.itemCount = 3;
  wb.recipe.items[0] = makeItem(KIND_MALT, "Pale", 8, 17);
  wb.recipe.items[1] = makeItem(7, "Mystery", 1);
  wb.recipe.items[2] = makeItem(KIND_OTHER, "Gypsum", 1, -1);
  const std::string text = exportRecipeText(wb);
  EXPECT_TRUE(holds(text, "BoilTime=60, Date=\"\"\r\n"));
  EXPECT_TRUE(holds(text, "<Volume> Initial=3.5, Final=5.0, Units=\"US Gallons\"\r\n"));
  EXPECT_TRUE(holds(text, "<Malt> Type=\"Pale\", Quantity=8.0, Units=\"Lbs\","));
  EXPECT_TRUE(holds(text, "<Other> Type=\"Gypsum\", Quantity=1.0, Units=\"Tsp\"\r\n"));
  EXPECT_TRUE(holds(text, "<Fermentation> Primary=7, Units=\"Days\","));
  EXPECT_FALSE(holds(text, "Mystery"));
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Zythara 2: Item 2 (Mystery) has the unknown kind 7 and "
                                                             "was not written to the export file"});
  importRecipe(wb, text);
  EXPECT_EQ(r.dateCreated + std::to_string(r.itemCount), "2");  // not today's date

  // Attribute names compare exactly; only values are trimmed.
  importRecipe(wb, "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"P\", Style =\"Porter\", Code= \"X1\" \r\n"
                   "<End_Recipe_Format>\r\n");
  EXPECT_EQ(r.beerStyle + "|" + r.idCode, "|X1");
}
