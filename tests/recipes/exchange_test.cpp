// The recipe exchange format: the writer's exact text, the reader's actions and older forms,
// every difference of a round trip, and the reader's behaviour on broken input.
#include <gtest/gtest.h>

#include <random>

#include "core/text.h"
#include "recipes/RecipeExchange.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;
using test::makeItem;

// A metric step-infusion lager with one item of every kind and every optional line.
void fillMaerzen(Workbench& wb) {
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.recipeType = 1, r.recipeName = "  Mike's M\xE4rzen ", r.boilTime = 60, r.dateCreated = "Oct-05-1998";
  r.idCode = "MZ1", r.labelName = "Oktober", r.beerStyle = "M\xE4rzen";
  r.unitType = METRIC_MEASURES, r.volumeUnits = LITER_CONST, r.boilVolume = 20.04, r.fermentVolume = 19;
  r.color = 11.6, r.bitterness = 24, r.originalGravity = 1.0556, r.finalGravity = 1.014, r.alcohol = 5.43;
  r.mashType = 3, r.mashEfficiency = 0, r.mashWaterRate = 0;
  r.mashStepTemp[0] = 52, r.mashStepTime[0] = 15, r.mashStepComment[0] = "Protein rest, thick";
  r.mashStepTemp[1] = 60;  // no time: no step
  r.mashStepTemp[2] = 65.5, r.mashStepTime[2] = 45;
  r.spargeVolume = 12.25, r.spargeVolumeUnits = US_QTS_CONST, r.spargeTemp = 77, r.spargeRate = 0;
  r.fermentTime = {7, 0, 4}, r.fermentTimeUnits = {0, 0, 1}, r.fermentTemp = {10, 0, 2}, r.fermentVessel = {1, 0, 2};
  r.container = 1, r.carbonation = 2, r.primingComment = "Keg, then wait";
  r.agingCount = 6, r.agingUnits = 1, r.agingTemp = 2;
  r.itemCount = 5;
  wb.recipe.items[0] = makeItem(KIND_MALT, "Munich, light", 4.5, UNIT_KG, 2.1, 1.037, 9, -1);
  wb.recipe.items[1] = makeItem(KIND_MALT, "Liquid Extract", 1, UNIT_LBS, 0, 1.036, 3, -1);
  wb.recipe.items[2] = makeItem(KIND_HOPS, "Hallertau ~ Mittelfr\xFCh", 28.35, UNIT_GR, 0.1, 4.25, 60);
  wb.recipe.items[3] = makeItem(KIND_OTHER, "Irish Moss", 1, 5, 0.5, 0, 0);
  wb.recipe.items[4] = makeItem(KIND_YEAST, "Lager Yeast", 1, 1, 6, 0.955, 0);
  wb.recipe.comment = "He said \"prost\"\r\nLine two   ";
}

const std::string kMaerzenText =
    "<Recipe_Format_1.0>\r\n"
    "<Recipe> Type=\"Lager\", Name=\"Mike's M\xE4rzen\", BoilTime=60, Date=\"Oct-05-1998\", Code=\"MZ1\", "
    "Label=\"Oktober\", Style=\"M\xE4rzen\"\r\n"
    "<Volume> Initial=20.0, Final=19.0, Units=\"Liters\"\r\n"
    "<Color> Value=12, Units=\"Lovi\"\r\n"
    "<Bitterness> Value=24, Units=\"IBU\"\r\n"
    "<Gravity> Original=1.056, Final=1.014, Alcohol=5.4\r\n"
    "<Malt> Type=\"Munich~ light\", Quantity=4.5, Units=\"Kg\", Extraction=1.037, Mash=\"Yes\", Color=9\r\n"
    "<Malt> Type=\"Liquid Extract\", Quantity=1.0, Units=\"Lbs\", Extraction=1.036, Mash=\"Yes\", Color=3\r\n"
    "<Hops> Type=\"Hallertau ~ Mittelfr\xFCh\", Quantity=28.35, Units=\"Gr\", Alpha=4.3, BoilTime=60\r\n"
    "<Other> Type=\"Irish Moss\", Quantity=1.0, Units=\"Tsp\"\r\n"
    "<Yeast> Type=\"Lager Yeast\", Quantity=1.0, Units=\"Slant\", Attenuation=96\r\n"
    "<Mash> Type=\"Step Infusion\", Efficiency=100, Rate=0.40\r\n"
    "<Mash> Index=0, Temp=52, Time=15, Comments=\"Protein rest\xB8 thick\"\r\n"
    "<Mash> Index=2, Temp=65.5, Time=45\r\n"
    "<Sparge> Volume=12.3, Units=\"Liters\", Temp=77, Rate=0.40\r\n"
    "<Fermentation> Primary=7, Units=\"Days\", Temp=10, Vessel=\"Glass\"\r\n"
    "<Fermentation> Tertiary=4, Units=\"Weeks\", Temp=2, Vessel=\"Stainless\"\r\n"
    "<Priming> Container=\"Kegs\", Carbonation=\"Forced CO2\", Comments=\"Keg\xB8 then wait\"\r\n"
    "<Aging> Count=6, Units=\"Weeks\", Temp=2\r\n"
    "<Comments_Start>\r\n"
    "\"He said \"\"prost\"\"\r\nLine two\"\r\n"
    "<Comments_End>\r\n"
    "<End_Recipe_Format>\r\n";

TEST(RecipeExchange, WriterProducesTheExactText) {
  Bench b;
  fillMaerzen(*b.wb);
  EXPECT_EQ(exportRecipeText(*b.wb), kMaerzenText);
  EXPECT_EQ(b.wb->recipe.rec.recipeName, "Mike's M\xE4rzen");  // the writer trims the record's texts

  // Costs only with "Include Cost", and only those above 0.
  b.wb->defaults.includeCost = 1;
  std::string withCost = kMaerzenText;
  for (const auto& [before, cost] : {std::pair{"Color=9\r\n", "2.10"}, {"BoilTime=60\r\n<Other>", "0.10"},
                                     {"Tsp\"\r\n", "0.50"}, {"Attenuation=96\r\n", "6.00"}}) {
    const size_t at = withCost.find(before) + std::string(before).find('\r');
    withCost.insert(at, ", UnitCost=" + std::string(cost));
  }
  EXPECT_EQ(exportRecipeText(*b.wb), withCost);

  // A recipe without mash writes the mash type only; no aging line without a count.
  Bench c;
  newRecipeRecord(*c.wb);
  RecipeRecord& s = c.wb->recipe.rec;
  s.recipeName = "Simple", s.dateCreated = "", s.mashStepTime[0] = 30, s.agingTemp = -9999.0;
  EXPECT_EQ(exportRecipeText(*c.wb), "<Recipe_Format_1.0>\r\n"
                                     "<Recipe> Type=\"Ale\", Name=\"Simple\", BoilTime=60, Date=\"\"\r\n"
                                     "<Volume> Initial=3.5, Final=5.0, Units=\"US Gallons\"\r\n"
                                     "<Color> Value=0, Units=\"Lovi\"\r\n"
                                     "<Bitterness> Value=0, Units=\"IBU\"\r\n"
                                     "<Gravity> Original=0.000, Final=0.000, Alcohol=0.0\r\n"
                                     "<Mash> Type=\"No Mash\"\r\n"
                                     "<Priming> Container=\"Bottles\", Carbonation=\"Priming\", Comments=\"\"\r\n"
                                     "<Comments_Start>\r\n"
                                     "\"\"\r\n"
                                     "<Comments_End>\r\n"
                                     "<End_Recipe_Format>\r\n");
}

TEST(RecipeExchange, RoundTripKeepsItsDocumentedDifferences) {
  Bench b;
  Workbench& wb = *b.wb;
  ASSERT_TRUE(test::storeAmber(wb, 1, "Mike's M\xE4rzen", ""));  // the name is in the tree already
  ASSERT_TRUE(wb.recipeList.mnuSortBy_Click(wb, SORT_BY_NAME));

  fillMaerzen(wb);
  // What the trip should give: the record as filled, with every difference of the format.
  CurrentRecipe want = wb.recipe;
  RecipeRecord& w = want.rec;
  w.recipeName = "Mike's M\xE4rzen (Duplicate)";
  // A metric recipe comes back as US measures in US Gallons, numbers unchanged.
  w.unitType = US_MEASURES, w.volumeUnits = US_GAL_CONST, w.boilVolume = 20.0;
  // Nothing is recomputed: the written roundings stand.
  w.color = 12, w.originalGravity = 1.056, w.alcohol = 5.4;
  // Efficiency and rates of 0 were written as 100 and 0.40; the step without time is dropped.
  w.mashEfficiency = 100, w.mashWaterRate = 0.4, w.spargeRate = 0.4;
  w.mashStepTemp[1] = 0;
  // The sparge unit is the recipe's volume unit, which is spelled as a list entry here.
  w.spargeVolume = 12.3, w.spargeVolumeUnits = LITER_CONST;
  // Trailing blanks of the comment are gone; the doubled quotes read as one.
  want.comment = "He said \"prost\"\r\nLine two";
  for (int k = 0; k < 5; ++k) want.items[k].unitCost = 0;  // costs were not written
  want.items[2].itemName = "Hallertau , Mittelfr\xFCh";    // a "~" comes back as a comma
  want.items[2].rating = 4.3;
  want.items[4].rating = 0.72;  // 0.955 -> 96 -> 0.96, above 0.95: the default
  // Mash="Yes" outweighs the "ext" in "Liquid Extract", whose flag stays -1.

  ImportOutcome o = importRecipe(wb, exportRecipeText(wb));
  EXPECT_TRUE(o.recognized && !o.endedByError);
  EXPECT_EQ(wb.recipe.rec.encode(), w.encode());
  EXPECT_EQ(wb.recipe.rec.recipeName, w.recipeName);
  EXPECT_EQ(wb.recipe.rec.mashStepComment[0], "Protein rest, thick");  // "\xB8" back to a comma
  EXPECT_EQ(wb.recipe.comment, want.comment);
  for (int k = 0; k < 5; ++k) EXPECT_EQ(wb.recipe.items[k].encode(), want.items[k].encode()) << k;
  EXPECT_EQ(wb.recipe.items[0].itemName + "|" + wb.recipe.items[2].itemName, "Munich, light|" + want.items[2].itemName);

  // With costs on, they survive.
  fillMaerzen(wb);
  wb.defaults.includeCost = 1;
  importRecipe(wb, exportRecipeText(wb));
  EXPECT_EQ(std::vector<double>({wb.recipe.items[0].unitCost, wb.recipe.items[1].unitCost}), std::vector<double>({2.1, 0}));
}

TEST(RecipeExchange, TildesAndSubstitutesDoNotSurviveTheTrip) {
  Bench b;
  Workbench& wb = *b.wb;
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.unitType = IMPERIAL_MEASURES, r.volumeUnits = IMPERIAL_GAL_CONST, r.boilVolume = 6.5, r.mashType = 0;
  r.mashStepTime[0] = 60, r.spargeVolume = 4;  // no mash: steps and sparge are not written
  importRecipe(wb, exportRecipeText(wb));
  // An Imperial recipe reads its unit name as the code 0: US measures in US Gallons.
  EXPECT_EQ(std::vector<double>({r.mashStepTime[0], r.spargeVolume, static_cast<double>(r.unitType),
                                 static_cast<double>(r.volumeUnits), r.boilVolume}),
            std::vector<double>({0, 0, US_MEASURES, US_GAL_CONST, 6.5}));

  // A "~" anywhere comes back as a comma; an efficiency or rate of 0 or below is written as
  // 100 and 0.40 and read back so.
  newRecipeRecord(wb);
  r.recipeName = "Tilde~Ale", r.mashType = 2, r.mashEfficiency = -5, r.mashWaterRate = -1, r.spargeRate = -2;
  r.mashStepTime[0] = 60, r.mashStepComment[0] = "hold~stir";
  const std::string text = exportRecipeText(wb);
  for (const char* line : {"<Recipe> Type=\"Ale\", Name=\"Tilde~Ale\", BoilTime=60,",
                           "<Mash> Type=\"Infusion\", Efficiency=100, Rate=0.40\r\n",
                           "<Sparge> Volume=0.0, Units=\"US Gallons\", Temp=0, Rate=0.40\r\n"})
    EXPECT_NE(text.find(line), std::string::npos) << line;
  importRecipe(wb, text);
  EXPECT_EQ(r.recipeName + "|" + r.mashStepComment[0], "Tilde,Ale|hold,stir");
  EXPECT_EQ(std::vector<double>({r.mashEfficiency, r.mashWaterRate, r.spargeRate}), std::vector<double>({100, 0.4, 0.4}));
}

ImportOutcome readText(Bench& b, const std::string& body) {
  return importRecipe(*b.wb, "<Recipe_Format_1.0>\r\n" + body);
}

TEST(RecipeExchange, ReaderRefusesFilesWithoutMarkerOrWithNothingBehindIt) {
  Bench b;
  for (const char* in : {"<Recipe> Type=\"Ale\", Name=\"X\"\r\n", "junk, more\r\n<Recipe_Format_1.0>\r\n\r\n", ""}) {
    b.prompter.shown.clear();
    EXPECT_FALSE(importRecipe(*b.wb, std::string(in)).recognized) << in;
    EXPECT_EQ(test::shownLines(b.prompter), std::vector<std::string>{"Zythara 2: Not a Recognized Zythara Recipe File"});
    // The new-recipe defaults, untouched.
    EXPECT_EQ(b.wb->recipe.rec.recipeName + std::to_string(b.wb->recipe.rec.volumeUnits), "A Beer Recipe1");
  }
}

TEST(RecipeExchange, ReaderActionsAndOlderForms) {
  Bench b;
  Workbench& wb = *b.wb;
  // Attributes before Name and Type are dropped; LF line ends read as well as CR LF.
  readText(b, "<Recipe> Code=\"early\", Type=\"mead\", Code=\"late\", BoilTime=60\n"
              "<Volume> Initial=4.5 gal, Final=junk\n"
              "<Malt> Type=\"Liquid Extract\", Quantity=3\n"
              "<Malt> Type=\"Next Pale\", Units=\"KG\"\n"
              "<Malt> Type=\"Pale\", Mash=\"yes\"\n"
              "<Malt> Type=\"Vienna\"\n"
              "<Hops> Type=\"Cascade\", BoilTime=90, Units=\"stone\"\n"
              "<Hops> Type=\"Saaz\", BoilTime=30\n"
              "<Other> Units=\"mL\"\n"
              "<Yeast> Attenuation=40, Units=\"tube\"\n"
              "<Yeast> Attenuation=75\n"
              "<Sparge> Quarts=3, Temp=168\n"
              "<Conditioning> Container=\"Bottles & Kegs\", Carbonation=\"None\", Comments=\"a\xB8 b\"\n"
              "<Aging> Count=2.5, Units=\"months\"\n"
              "<Mash> Type=\"infusion\", Index=13, Temp=150, Index=12, Time=5\n"
              "<Comments_Start>\n\"one, two\"\n<Comments_End>\n<End_Recipe_Format>\n");
  const RecipeRecord& r = wb.recipe.rec;
  EXPECT_EQ(r.idCode + "|" + r.primingComment + "|" + wb.recipe.comment, "late|a, b|one, two");
  ASSERT_EQ(r.itemCount, 9);
  // Type mead; no Units under <Volume>; the boil time raised by the hops, not lowered again;
  // sparge quarts times 4, as the older reader did; the aging count to the even neighbour.
  EXPECT_EQ(std::vector<double>({static_cast<double>(r.recipeType), r.boilVolume, r.fermentVolume,
                                 static_cast<double>(r.volumeUnits), r.boilTime, r.spargeVolume,
                                 static_cast<double>(r.spargeVolumeUnits), r.spargeTemp, static_cast<double>(r.container),
                                 static_cast<double>(r.carbonation), static_cast<double>(r.agingCount),
                                 static_cast<double>(r.agingUnits), static_cast<double>(r.mashType), r.mashStepTime[12]}),
            std::vector<double>({2, 4.5, 0, -1, 90, 12, 1, 168, 2, 3, 2, 2, 2, 5}));
  const auto& it = wb.recipe.items;
  // Mashed: "ext" in the name (Next Pale holds it too) says no, only "Yes" exactly says yes,
  // else the name decides; units: none, Kg, the hops default, mL; yeast: the default
  // attenuation for 40, a tube, 75 kept.
  EXPECT_EQ(std::vector<int>({it[0].mashFlag, it[1].mashFlag, it[2].mashFlag, it[3].mashFlag}),
            std::vector<int>({0, 0, 0, -1}));
  EXPECT_EQ(std::vector<int>({it[0].quantityUnits, it[1].quantityUnits, it[4].quantityUnits, it[6].quantityUnits,
                              it[7].quantityUnits}),
            std::vector<int>({-1, UNIT_KG, wb.defaults.hopsUnits, 10, 3}));
  EXPECT_EQ(std::vector<double>({it[7].rating, it[8].rating}), std::vector<double>({wb.defaults.yeastAttenuation, 0.75}));

  // A second <Recipe> after the end opens the flag again; its items add to the first ones.
  readText(b, "<Recipe> Name=\"First\"\r\n<Other> Type=\"A\"\r\n<End_Recipe_Format>\r\n"
              "<Other> Type=\"ignored\"\r\n<Recipe> Type=\"Ale\"\r\n<Other> Type=\"B\"\r\n");
  EXPECT_EQ(std::to_string(wb.recipe.rec.itemCount) + wb.recipe.items[1].itemName, "2B");

  // Sparge units spelled otherwise fall back to US Gallons; a unit-system code is read as such.
  readText(b, "<Recipe> Name=\"S\"\r\n<Volume> Units=2\r\n<Volume> Units=1\r\n<Sparge> Units=\"liters\"\r\n");
  // The volume unit is only set while still -1.
  EXPECT_EQ(std::vector<int>({wb.recipe.rec.unitType, wb.recipe.rec.volumeUnits, wb.recipe.rec.spargeVolumeUnits}),
            std::vector<int>({1, IMPERIAL_GAL_CONST, 1}));
  readText(b, "<Recipe> Name=\"S\"\r\n<Volume> Units=7\r\n");
  EXPECT_EQ(wb.recipe.rec.unitType, 0);
}

TEST(RecipeExchange, AnErrorEndsTheReaderWithWhatWasRead) {
  Bench b;
  Workbench& wb = *b.wb;
  std::string many = "<Recipe> Name=\"Big\"\r\n";
  for (int i = 0; i < 26; ++i) many += "<Other> Type=\"o" + itos(i) + "\"\r\n";
  many += "<Aging> Count=3\r\n";
  ImportOutcome o = readText(b, many);
  EXPECT_TRUE(o.endedByError && o.items == 25) << o.items;
  EXPECT_EQ(wb.recipe.rec.recipeName + " " + std::to_string(wb.recipe.rec.itemCount) + " " +
                std::to_string(wb.recipe.rec.agingCount),
            "Big 0 0");
  EXPECT_TRUE(b.prompter.shown.empty());  // no message of its own

  o = readText(b, "<Recipe> Name=\"X\", BoilTime=sixty\r\n<Other> Type=\"o\"\r\n");
  EXPECT_TRUE(o.endedByError);
  EXPECT_EQ(std::vector<double>({wb.recipe.rec.boilTime, static_cast<double>(wb.recipe.rec.itemCount)}), std::vector<double>({60, 0}));

  // A value beyond 16 bits; a fermentation stage that shares its variable with the mash step.
  for (const char* body : {"<Recipe> Name=\"X\"\r\n<Bitterness> Value=99999\r\n",
                           "<Recipe> Name=\"X\"\r\n<Mash> Index=7\r\n<Fermentation> Units=\"Weeks\"\r\n"})
    EXPECT_TRUE(readText(b, body).endedByError) << body;
}

TEST(RecipeExchange, FieldStreamReadsQuotesAndLineEnds) {
  ExchangeFieldReader in("  a , \"b, \"\"c\"\"\r\nd\" junk ,e\rf\n\n\ng,\"open");
  std::string f;
  std::vector<std::string> got;
  while (in.next(f)) got.push_back(f);
  EXPECT_EQ(got, (std::vector<std::string>{"a", "b, \"c\"\r\nd", "e", "f", "g", "open"}));
  EXPECT_TRUE(in.eof());

  // Over a file the text comes in pieces of 64 KiB: a line end, a doubled quote or a field cut
  // by the edge of a piece reads as in one piece.
  std::string f1;
  const std::string tail = "\r\nx,\"q\"\"r\"\r\ny  \r\n\r\n";
  for (size_t pad = 65530; pad <= 65537; ++pad) {
    const std::string text = std::string(pad, 'p') + tail;
    std::FILE* f = std::tmpfile();
    ASSERT_NE(f, nullptr);
    std::fwrite(text.data(), 1, text.size(), f);
    std::rewind(f);
    ExchangeFieldReader fromFile(f);
    std::vector<std::string> fields;
    while (fromFile.next(f1)) fields.push_back(f1);
    std::fclose(f);
    EXPECT_EQ(fields, (std::vector<std::string>{std::string(pad, 'p'), "x", "q\"r", "y"})) << pad;
  }
}

TEST(RecipeExchange, FileNameHelpers) {
  EXPECT_EQ(safeFileName("  My \"Best\" Ale: v1/2 | 'x' \\ ", true) + "|" + safeFileName(" Pale Ale ", false),
            "My_-Best-_Ale-_v1-2_-_-x-_-|Pale Ale");
  const std::pair<const char*, const char*> shortNames[] = {
      {"Amber Ale", "ambral"}, {"Oatmeal Stout", "oatmlstt"}, {"Club -- Irish Red Ale", "irshrdal"},
      {"Eisbock", "eisbck"},   {"...  ---", "beer"},          {"", "beer"},
      {"Strong Scotch Wee Heavy", "strngsct"}};
  for (const auto& [name, shortName] : shortNames) EXPECT_EQ(shortFileName(name), shortName) << name;
  EXPECT_EQ(escapeCommas("a,b,"), "a~b~");
  // Beyond the last index the fallback; no read past the list.
  const Measures& m = measures();
  EXPECT_EQ(std::vector<int>({findListIndex(m.mashTypes, 5, "  decoction ", 0), findListIndex(m.mashTypes, 3, "Decoction", 9),
                              findListIndex(m.vessels, 99, "Glass", 0)}),
            std::vector<int>({4, 9, 1}));
}

TEST(RecipeExchange, BrokenInputNeverCrashes) {
  Bench b;
  Workbench& wb = *b.wb;
  fillMaerzen(wb);
  const std::string good = exportRecipeText(wb);
  for (size_t n = 0; n <= good.size(); ++n) {
    importRecipe(wb, std::string_view(good).substr(0, n));
    ASSERT_TRUE(wb.recipe.rec.itemCount >= 0 && wb.recipe.rec.itemCount <= kMaxRecipeItems) << n;
  }
  std::mt19937 rng(1234);
  const std::vector<std::string> parts = {"<Recipe_Format_1.0>", "<Recipe>", "<Malt>", "<Hops>", "<Yeast>",
                                          "<Other>", "<Mash>", "<Fermentation>", "<Sparge>", "<Aging>",
                                          "<Comments_Start>", "<End_Recipe_Format>", "Name=", "Type=", "Index=",
                                          "Units=", "Count=", "Value=", "Tertiary=", "Quarts=", "\"", ",", "~",
                                          "\r\n", "\n", "\r", " ", "=", "<", ">", "99999999", "-3", "1e308",
                                          "\xB8", "abc", "Temp=", "BoilTime=", std::string(1, '\0')};
  for (int round = 0; round < 400; ++round) {
    std::string text = round % 2 ? "<Recipe_Format_1.0>\r\n" : "";
    int len = static_cast<int>(rng() % 120);
    for (int i = 0; i < len; ++i) text += parts[rng() % parts.size()];
    importRecipe(wb, text);
    ASSERT_TRUE(wb.recipe.rec.itemCount >= 0 && wb.recipe.rec.itemCount <= kMaxRecipeItems) << text;
    ASSERT_LE(wb.recipe.rec.recipeName.size(), 60u);
    std::string bytes;
    for (int i = 0; i < 200; ++i) bytes += static_cast<char>(rng() % 256);
    importRecipe(wb, "<Recipe_Format_1.0>\r\n" + bytes);
  }
  // Whatever the reader left can be written again.
  EXPECT_FALSE(exportRecipeText(wb).empty());
}

// Every value the writer writes comes back whole through the reader.
bool holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

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
  wb.recipe.items[0] = test::makeItem(KIND_MALT, "Pale\r\nMalt, 2-Row", 8, 0, 0, 1.036, 3, -1);
  wb.recipe.items[1] = test::makeItem(KIND_HOPS, "Say \"Hallertau\"", 1, 1, 0, 4.5, 60);
  const std::string text = exportRecipeText(wb);
  // Values that would end a plain field are quoted fields with their quotes doubled.
  for (const char* part : {", \"Style=\"\"Nut, \"\"Brown\"\"\"\"\"\r\n", "<Malt>, \"Type=\"\"Pale\r\nMalt~ 2-Row\"\"\", Quantity=8.0,",
                           "<Hops> Type=\"Say \"Hallertau\"\", Quantity=1.0,"})
    EXPECT_TRUE(holds(text, part)) << part << "\n" << text;

  importRecipe(wb, text);
  ASSERT_EQ(r.itemCount, 2);
  EXPECT_EQ(std::vector<std::string>({r.recipeName, r.beerStyle, r.idCode, r.labelName, r.dateCreated, r.mashStepComment[0],
                                      r.primingComment, wb.recipe.items[0].itemName, wb.recipe.items[1].itemName}),
            std::vector<std::string>({"Smith, \"Jones\" Ale", "Nut, \"Brown\"", "AB,1", "\"Big\", Bold", "Oct,05 1998",
                                      "hold\r\nthen, stir", "corn sugar\nboiled", "Pale\r\nMalt, 2-Row",
                                      "Say \"Hallertau\""}));
  EXPECT_EQ(std::vector<double>({wb.recipe.items[1].rating, r.boilVolume}), std::vector<double>({4.5, 6.5}));
}

TEST(ExchangeValues, EmptyDatesUnknownUnitsAndKindsAndExactNames) {
  Bench b;
  Workbench& wb = *b.wb;
  newRecipeRecord(wb);
  RecipeRecord& r = wb.recipe.rec;
  r.dateCreated = "", r.volumeUnits = 99, r.fermentTime[0] = 7, r.fermentTimeUnits[0] = -4;
  r.itemCount = 3;
  wb.recipe.items[0] = test::makeItem(KIND_MALT, "Pale", 8, 17);
  wb.recipe.items[1] = test::makeItem(7, "Mystery", 1);
  wb.recipe.items[2] = test::makeItem(KIND_OTHER, "Gypsum", 1, -1);
  const std::string text = exportRecipeText(wb);
  for (const char* part : {"BoilTime=60, Date=\"\"\r\n", "<Volume> Initial=3.5, Final=5.0, Units=\"US Gallons\"\r\n",
                           "<Malt> Type=\"Pale\", Quantity=8.0, Units=\"Lbs\",", "<Other> Type=\"Gypsum\", Quantity=1.0, Units=\"Tsp\"\r\n",
                           "<Fermentation> Primary=7, Units=\"Days\","})
    EXPECT_TRUE(holds(text, part)) << part;
  EXPECT_FALSE(holds(text, "Mystery"));
  EXPECT_EQ(test::shownLines(b.prompter), std::vector<std::string>{"Zythara 2: Item 2 (Mystery) has the unknown kind 7 and "
                                                             "was not written to the export file"});
  importRecipe(wb, text);
  EXPECT_EQ(r.dateCreated + std::to_string(r.itemCount), "2");  // not today's date

  // Attribute names compare exactly; only values are trimmed.
  importRecipe(wb, "<Recipe_Format_1.0>\r\n<Recipe> Type=\"Ale\", Name=\"P\", Style =\"Porter\", Code= \"X1\" \r\n"
                   "<End_Recipe_Format>\r\n");
  EXPECT_EQ(r.beerStyle + "|" + r.idCode, "|X1");
}

}  // namespace
}  // namespace zy
