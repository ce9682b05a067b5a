#include <gtest/gtest.h>

#include <algorithm>

#include "core/text.h"
#include "reader/ReaderBench.h"

using namespace zy;
using namespace zy::test;

namespace {
struct TextCase {
  const char* file;
  // name|ferment|boil|volume unit|boil time|priming|primary|secondary, then malts,hops,others,yeast
  const char* summary;
  const char* keyRow;  // one row the text must give: kind|name|qty|unit|rating|detail|mash
};
}  // namespace

// Recipes as brewers write them, each read as a whole. Where the keyword order gives an odd
// ingredient, that ingredient is what the reader makes, and the row says so.
TEST(RecipeReaderTexts, EachTextBecomesItsRecipe) {
  const std::vector<TextCase> cases = {
      {"01-harbor-pale.txt", "Harbor Pale Ale|5.0|5.0|US Gallons|60|0.75 Cups - Corn Sugar|0.0|0.0 2,3,1,1",
       "1|Cascade|1.0|Oz|5.5|15|"},
      {"02-backyard-brown.txt", "Backyard Brown Ale|5.0|3.5|US Gallons|60||5|10 3,2,0,1",
       "0|Amber Malt Extract Syrup|6.6|Lbs|1.031|30.0|Yes"},  // "malt" comes first: mashed
      {"03-winter-stout.txt", "Winter Stout|5.0|5.0|US Gallons|60||0.0|0.0 3,2,1,1",
       "1|Northern Brewer Hops|0.53|Oz|7.5|60|"},  // 4 HBU at 7.5 percent
      {"04-metric-helles.txt", "Metric Helles|23.0|23.0|Liters|60||2|6 2,2,0,1",
       "1|G Hallertau|30.0|Oz|4.2|60|"},  // a bare "g" is no unit word
      {"05-raspberry-wheat.txt", "Raspberry Wheat|5.0|3.5|US Gallons|60|1.0 Cups - Corn Sugar|0.0|0.0 4,1,0,0",
       "0|American Wheat Yeast Culture|1.0|Lbs|1.037|2.0|Yes"},  // "wheat" before "yeast"
      {"06-big-red-ipa.txt", "Big Red IPA|5.0|5.0|US Gallons|60||0.0|0.0 3,4,2,1", "1|Cascade Hops, Steep|1.0|Oz|5.0|0|"},
      {"07-oaked-porter.txt", "Oaked Porter|5.0|3.5|US Gallons|60||1|3 3,1,1,1", "2|Oak Chips|2.0|Oz|||"},
      {"08-spiced-holiday.txt", "Spiced Holiday Ale|5.0|3.5|US Gallons|60||0.0|0.0 4,1,3,1",
       "0|Crystal Malt|1.0|Lbs|1.033|80.0|Yes"},
      {"09-lemon-shandy.txt", "Lemon Shandy|5.0|3.5|US Gallons|60||0.0|0.0 3,1,0,1",
       "1|Saaz|0.6|Oz|3.5|60|"},  // 10 IBU in 5 gallons: Int(5 x 10 x 1.34 / 10.5) / 10
      {"10-scottish-80.txt", "A Beer Recipe|5.0|3.5|US Gallons|90|3.0 oz - |14|0.0 3,1,0,2",
       "3|Shilling|80.0|Packet|70||"},  // a first line with a digit is an ingredient
      {"11-cream-ale.txt", "Cream Ale|5.0|5.0|US Gallons|60||0.0|0.0 3,2,0,1",
       "3|Wyeast 2035 American Lager, Attenuation: 75|1.0|Packet|75||"},
      {"12-quick-bitter.txt", "Quick Extract Bitter|5.0|3.5|US Gallons|60|4.0 oz - Corn Sugar|0.0|0.0 1,1,0,2",
       "3|Munton's Bitter Kit|1.0|Packet|70||"},  // a can is no weight: undecided lines are yeast
      {"13-cherry-juice.txt", "Cherry Juice Ale|0.5|0.5|US Gallons|60||0.0|0.0 2,2,0,1",
       "0|Cherries|1.0|Lbs|1.033|2.0|No"},  // half a gallon of juice is taken for the batch size
      {"14-rye-pale.txt", "Rye Pale Ale|5.0|5.5|US Gallons|60||0.0|0.0 3,2,1,1", "3|Dry Yeast|5.0|Packet|70||"},
      {"15-dunkelweizen.txt", "Dunkelweizen|5.0|3.5|US Gallons|60||0.0|0.0 4,1,0,0", "1|Tettnang|1.0|Oz|4.0|60|"},
      {"16-spruce-beer.txt", "Spruce Beer|5.0|3.5|US Gallons|60||0.0|0.0 2,1,2,1", "2|Polyclar|0.5|Tsp|||"},
      {"17-vienna-lager.txt", "Vienna Lager|5.0|3.5|US Gallons|60||3|0.0 3,2,0,1", "0|Caramunich|0.5|Lbs|1.033|14.0|Yes"},
      {"18-honey-blonde.txt", "Honey Blonde|5.0|3.5|US Gallons|60|1.25 Cups - Dry Malt Extract|0.0|0.0 2,2,0,1",
       "3|Nottingham Yeast, Attenuation: 78|1.0|Packet|70||"},  // 78 is read as the quantity
      {"19-imperial-batch.txt", "Imperial Batch|4.0|4.0|US Gallons|60||0.0|0.0 2,1,0,1",
       "0|500 G Crystal Malt|500.0|Lbs|1.033|40.0|Yes"},
      {"20-milk-stout.txt", "Chocolate Milk Stout|5.0|3.5|US Gallons|60||0.0|0.0 5,1,1,1",
       "0|Lactose Sugar|1.0|Lbs|1.047|1.0|No"},
      {"21-smoked-amber.txt", "Smoked Amber|5.0|3.5|US Gallons|60||10|0.0 2,2,0,1",
       "1|Hersbrucker Hops (Aroma)|0.5|Oz|5.0|10|"},
      {"22-marzen-utf8.txt", "Oktoberfest M\xE4rzen|5.0|3.5|US Gallons|60||0.0|0.0 2,1,0,1",
       "3|Wyeast 2206 Bavarian Lager Yeast|1.0|Packet|70||"},
      {"23-kolsch-8bit.txt", "K\xF6lsch Light|5.0|3.5|US Gallons|60||0.0|0.0 1,1,0,1", "3|K\xF6lsch Yeast|1.0|Packet|70||"},
  };
  for (const TextCase& c : cases) {
    ReaderBench t;
    std::string text = crlfText(readFile(std::string(ZY_SOURCE_DIR) + "/tests/data/recipes-text/" + c.file));
    t.r.txtComment = isUtf8Text(text) ? utf8ToCp1252(text) : text;
    ASSERT_TRUE(t.r.mnuFileExtractRecipe()) << c.file;
    const FermentationForm& f = t.e.fermentation;
    std::string summary = t.e.txtTitle + "|" + t.e.sheet.txtFermentVolume + "|" + t.e.sheet.txtInitalBoilVolume + "|" +
                          t.e.lblVolumeUnits + "|" + t.e.txtBoilTime + "|" + f.txtConditioning + "|" + f.txtValue[0] +
                          "|" + f.txtValue[1] + " ";
    for (int k = 0; k < 4; ++k) summary += std::to_string(t.e.sheet.grid.itemCount(k)) + (k < 3 ? "," : "");
    EXPECT_EQ(summary, c.summary) << c.file;
    const std::vector<std::string> rows = t.rows();
    EXPECT_NE(std::find(rows.begin(), rows.end(), c.keyRow), rows.end()) << c.file << ": " << c.keyRow;
    EXPECT_TRUE(t.b.prompter.shown.empty()) << c.file;
  }
}
