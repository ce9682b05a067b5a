#include <gtest/gtest.h>

#include "reader/ReaderBench.h"

using namespace zy;
using namespace zy::test;

TEST(RecipeReaderHelpers, NumbersQuantitiesAndCapitals) {
  EXPECT_EQ(findNumber(8, "abc 12.5 x", 0), 5);  // backward: the first character of the run
  EXPECT_EQ(skipNumber(1, "1 1/2 lb"), 7);
  const std::vector<std::pair<std::string, double>> quantities = {
      {"1 1/2 lb", 1.5}, {"1-1/2", 1.5}, {"3-4 lbs", 3.5}, {"1/2", 0.5},  {".5 oz", 0.5}, {"0", 1.0},
      {"oz", 1.0},       {"2 lbs", 2.0}, {"10-12", 11.0},  {"3/4-1", 0.875}, {"2.25", 2.25}, {"1  1/2", 1.0}};
  for (const auto& [text, value] : quantities) EXPECT_DOUBLE_EQ(parseQuantity(text), value) << text;
  bool problem = false;
  parseQuantity("1/0", &problem);
  EXPECT_TRUE(problem);

  EXPECT_EQ(titleCaps("pale ale malt"), "Pale Ale Malt");
  EXPECT_EQ(titleCaps("saaz-hallertau mix(whole)-x (y)"), "Saaz-Hallertau Mix(Whole)-x (y)");
  EXPECT_EQ(crlfText("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd");
}

// One line each, and the ingredient it adds: kind|name|quantity|unit|rating|detail|mash.
TEST(RecipeReader, EachLineGivesItsIngredient) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"6 lbs Pale Malt", "0|Pale Malt|6.0|Lbs|1.033|2.0|Yes"},
      {"1 1/2 lb. Crystal 60L", "0|Crystal|1.5|Lbs|1.033|60.0|No"},
      {"1 oz Saaz 3.2% alpha 60 min", "1|Saaz|1.0|Oz|3.2|60|"},
      // No keyword names a kind: the weight makes it a malt.
      {"1 oz Cascade", "0|Cascade|1.0|Oz|1.033|2.0|No"},
      {"2 oz Fuggles pellets, finish", "1|Fuggles Pellets, Finish|2.0|Oz|6.5|15|"},
      {"1056 American Ale yeast", "3|1056 American Ale Yeast|1.0|Packet|70||"},
      {"2 cans extract", "0|Extract|6.6|Lbs|1.033|2.0|No"},
      {"1 tbs gypsum", "2|Gypsum|3.0|Tsp|||"},
      {"4 HBU Cascade hops", "1|Cascade Hops|0.8|Oz|5.0|60|"},
      {"10 IBU Chinook", "1|Chinook|0.1|Oz|12.0|60|"},  // Int(5 x 10 x 1.34 / 36) / 10
      // "malt" is the first keyword: a crystal malt by the cup is mashed, 3.5 cups a pound.
      {"1 cup crystal malt", "0|Crystal Malt|0.29|Lbs|1.033|40.0|Yes"},
      {"8 oz Chocolate malt (350 Lovibond)", "0|Chocolate Malt|8.0|Oz|1.033|350.0|Yes"},
      // 100 or more stays in the line, so the unit word is never met: 500 lbs by the "malt" default.
      {"500 g Munich malt", "0|500 G Munich Malt|500.0|Lbs|1.033|14.0|Yes"},
      {"1 oz Centennial, alpha 10.5, boil 45", "1|Centennial|1.0|Oz|10.5|45|"},
      {"Wyeast 1056 American Ale, attenuation: 75", "3|Wyeast 1056 American Ale, Attenuation: 75|1.0|Packet|75||"},
      {"1 lb honey", "0|Honey|1.0|Lbs|1.044|2.0|No"},
      {"oak chips", "2|Oak Chips|1.0|Oz|||"},
      {"12 oz Special B, color: 120", "0|Special B|12.0|Oz|1.033|120.0|No"},
      {"1 oz Willamette hops (4.8 alpha acid) aroma", "1|Willamette Hops Aroma|1.0|Oz|4.8|10|"},
      {"0.5 oz Saaz dry hop", "1|Saaz Dry Hop|0.5|Oz|3.5|0|"},
      // "row" is met in "brown" before "sugar": a mashed grain.
      {"1 lb dark brown sugar", "0|Dark Brown Sugar|1.0|Lbs|1.036|60.0|Yes"},
      {"250 grams corn sugar for brewing", "0|250 Grams Corn Sugar For Brewing|250.0|Lbs|1.033|1.0|No"},
  };
  for (const auto& [line, want] : cases) {
    ReaderBench t;
    t.r.extractRecipeLine(line);
    EXPECT_EQ(t.rows(), std::vector<std::string>{want}) << line;
    EXPECT_TRUE(t.b.prompter.shown.empty()) << line;
  }
}

TEST(RecipeReader, VolumesStagesAndPrimingFillTheRecipe) {
  ReaderBench t;
  RecipeEditor& e = t.e;
  t.r.extractRecipeLine("5 gallons");  // the batch: the kettle still holds the default, so it follows
  EXPECT_EQ(std::vector<std::string>({e.sheet.txtFermentVolume, e.sheet.txtInitalBoilVolume, e.lblVolumeUnits}),
            std::vector<std::string>({"5.0", "5.0", "US Gallons"}));
  t.r.extractRecipeLine("6.5 gallons boil");
  t.r.extractRecipeLine("20 liters final volume");
  // "Imperial Gallons" is no entry of the volume list: the default unit stays.
  t.r.extractRecipeLine("4 imperial gallons initial");
  EXPECT_EQ(std::vector<std::string>({e.sheet.txtFermentVolume, e.sheet.txtInitalBoilVolume, e.lblVolumeUnits}),
            std::vector<std::string>({"20.0", "4.0", "US Gallons"}));

  t.r.extractRecipeLine("Primary 7 days at 68 in glass");
  t.r.extractRecipeLine("Secondary: 2 weeks, 60 degrees, stainless");
  t.r.extractRecipeLine("Tertiary 1 month in plastic");
  t.r.extractRecipeLine("Ferment at 65 for 10 days");  // the first number is no time: only the temperature
  const FermentationForm& f = e.fermentation;
  EXPECT_EQ(std::vector<std::string>({f.txtValue[0], f.txtTemp[0], f.txtValue[1], f.txtTemp[1], f.txtValue[2]}),
            std::vector<std::string>({"7", "65.0", "2", "60.0", "1"}));
  EXPECT_EQ(std::vector<int>({f.cboValueUnits[0], f.cboVessel[0], f.cboValueUnits[1], f.cboVessel[1],
                              f.cboValueUnits[2], f.cboVessel[2]}),
            std::vector<int>({0, 1, 1, 2, 2, 0}));

  const std::vector<std::pair<std::string, std::string>> priming = {
      {"3/4 cup corn sugar for priming", "0.75 Cups - Corn Sugar"},
      {"4 oz corn sugar", "4.0 oz - Corn Sugar"},
      {"1 1/4 cups dry malt extract (priming)", "1.25 Cups - Dry Malt Extract ("},
      {"5 oz priming sugar", "5.0 oz - "},
  };
  for (const auto& [line, comment] : priming) {
    t.r.extractRecipeLine(line);
    EXPECT_EQ(f.txtConditioning, comment) << line;
  }
  EXPECT_TRUE(t.rows().empty());
}

TEST(RecipeReader, WholeTextNameWarningsAndHops) {
  ReaderBench t;
  t.r.mnuFileExtractRecipe();
  EXPECT_EQ(shownLines(t.b.prompter),
            std::vector<std::string>(
                {"Missing Text: Nothing to process, please cut 'n paste the recipe text into the text area."}));

  t.r.txtComment = "\"Summer Wheat\"\r\n\r\n  5 lbs wheat malt  \r\n1 oz Hallertau 4.5% 90 min\r\n";
  EXPECT_TRUE(t.r.mnuFileExtractRecipe());
  EXPECT_EQ(t.e.txtTitle, "Summer Wheat");
  EXPECT_EQ(t.rows(), std::vector<std::string>({"0|Wheat Malt|5.0|Lbs|1.037|2.0|Yes", "1|Hallertau|1.0|Oz|4.5|90|"}));
  EXPECT_EQ(t.e.txtBoilTime, "90");  // the longest hop boil lengthens the recipe's
  EXPECT_NE(t.e.sheet.lblIBU, "N/A");

  // A grid with ingredients asks first; Cancel keeps them.
  t.b.prompter.answers = {Answer::Cancel};
  t.r.txtComment = "Mr. Brown's Ale\r\n2 lbs rice";
  EXPECT_FALSE(t.r.mnuFileExtractRecipe());
  EXPECT_EQ(t.b.prompter.shown.back().text, "This Action Will Replace ALL ingredients in the Recipe");
  EXPECT_EQ(t.rows().size(), 2u);
  // OK replaces them. The point in "Mr." is taken for a number, so that first line is an ingredient,
  // and "row" in "Brown" makes it a mashed grain.
  t.b.prompter.answers = {Answer::OK};
  EXPECT_TRUE(t.r.mnuFileExtractRecipe());
  EXPECT_EQ(t.e.txtTitle, "Summer Wheat");
  EXPECT_EQ(t.rows(), std::vector<std::string>({"0|Brown's Ale|1.0|Lbs|1.033|2.0|Yes", "0|Rice|2.0|Lbs|1.037|1.0|Yes"}));

  // A text file's lines (UTF-8 or 8-bit, any line ends) are added to the text; the export writes it as it stands.
  writeFile(t.b.dir.file("in.txt"), "1 lb M\xC3\xA4rzen malt\n2 oz oak chips");
  ASSERT_TRUE(t.r.importText(t.b.dir.file("in.txt")));
  EXPECT_EQ(t.r.txtComment, "Mr. Brown's Ale\r\n2 lbs rice\r\n1 lb M\xE4rzen malt\r\n2 oz oak chips");
  EXPECT_EQ(t.b.settings.read("Comments", "File Path", ""), t.b.dir.path());
  ASSERT_TRUE(t.r.exportText(t.b.dir.file("out.txt")));
  EXPECT_EQ(readFile(t.b.dir.file("out.txt")), t.r.txtComment);

  // A recipe holds 25 ingredients: the lines beyond are left out, once said.
  t.r.txtComment.clear();
  for (int i = 1; i <= 27; ++i) t.r.txtComment += std::to_string(i) + " oz Malt number " + std::to_string(i) + "\r\n";
  EXPECT_TRUE(t.r.mnuFileExtractRecipe());
  EXPECT_EQ(t.e.sheet.grid.itemCount(), 25);
  EXPECT_EQ(t.b.prompter.shown.back().text, "The recipe holds 25 ingredients, the most it can take; the lines from "
                                            "\"26 oz Malt number 26\" on were not added.");
}
