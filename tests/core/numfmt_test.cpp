#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "core/measures.h"
#include "core/numfmt.h"

using zy::formatNumber;

struct FormatCase {
  double value;
  const char* pattern;
  const char* text;
};

TEST(NumberFormat, PatternsGiveTheShownTexts) {
  const FormatCase cases[] = {
      // quantities: at least one decimal, at most two
      {5, "0.0#", "5.0"}, {5.25, "0.0#", "5.25"}, {5.255, "0.0#", "5.26"}, {0.4535924, "0.0#", "0.45"},
      {28.349525, "0.0#", "28.35"},
      // gravities
      {1.05, "0.000", "1.050"}, {1.0495, "0.000", "1.050"}, {1.04949, "0.000", "1.049"},
      // half away from zero on the decimal text: 2.675 is stored as 2.67499999... in binary
      {2.675, "0.00", "2.68"}, {-2.675, "0.00", "-2.68"}, {0.125, "0.00", "0.13"}, {0.5, "0", "1"},
      {1.5, "0", "2"}, {2.5, "0", "3"}, {-0.5, "0", "-1"}, {0.45, "0.0", "0.5"},
      {1.0005, "0.000", "1.001"}, {9.995, "0.0#", "10.0"}, {0.995, "0.0#", "1.0"},
      {5, "0.0", "5.0"}, {45.4, "0", "45"}, {0.4, "0.00", "0.40"}, {12.34, "#0.0", "12.3"}, {0.3, "#0.0", "0.3"},
      // optional decimals keep the point when nothing follows it
      {5, "0.##", "5."}, {0, "0.##", "0."}, {5.5, "0.##", "5.5"}, {72, "0.#", "72."}, {5.5, "0.#", "5.5"},
      {0.04, "0.#", "0."}, {2.999, "0.##", "3."},
      {5.04, "0.0##", "5.04"}, {5.0, "0.0##", "5.0"},
      // percent
      {0.25, "0%", "25%"}, {0.256, "(0%)", "(26%)"}, {1.0, "(0%)", "(100%)"},
      // fixed digits
      {5, "000", "005"}, {7, "00", "07"}, {123, "00", "123"}, {17, "B0", "B17"}, {3, "0) ", "3) "},
      // a blank zero section prints nothing
      {0, "0; ; ", ""}, {12, "0; ; ", "12"}, {0, "0.0; ; ", ""}, {2.25, "0.0#; ; ", "2.25"}, {0, "0.0#; ; ", ""},
      // literal sections
      {0, "0.0;\\N\\/\\A;\\N\\/\\A", "N/A"}, {-3, "0.0;\\N\\/\\A;\\N\\/\\A", "N/A"}, {3, "0.0;\\N\\/\\A;\\N\\/\\A", "3.0"},
      {0, "0;\\1\\0\\0;\\1\\0\\0", "100"}, {-1, "0;\\1\\0\\0;\\1\\0\\0", "100"}, {60, "0;\\1\\0\\0;\\1\\0\\0", "60"},
      {0, "0.00;\\0\\.\\4\\0;\\0\\.\\4\\0", "0.40"}, {0.3, "0.00;\\0\\.\\4\\0;\\0\\.\\4\\0", "0.30"},
      // money in the US form
      {1.25, "Currency", "$1.25"}, {0, "Currency", "$0.00"}, {1234.5, "Currency", "$1,234.50"},
      {-1.25, "Currency", "($1.25)"}, {0.0440924, "Currency", "$0.04"}, {2.204622476, "Currency", "$2.20"},
      {1e6, "Currency", "$1,000,000.00"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(formatNumber(c.value, c.pattern), c.text) << c.value << " with " << c.pattern;
}

TEST(NumberFormat, PlainTextOfDoubles) {
  // 15 significant digits: 0.1 + 0.2 and 0.07 * 100 read as the decimals meant.
  const std::pair<double, const char*> cases[] = {
      {0.5, "0.5"}, {5.0, "5"},    {-3, "-3"}, {1.032, "1.032"}, {0.1 + 0.2, "0.3"}, {0.07 * 100, "7"},
      {0.00001, "1E-05"}, {123456789012.5, "123456789012.5"}, {0, "0"}, {-9999, "-9999"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(zy::plainText(value), text) << text;
}

TEST(NumberReading, LenientTakesTheLeadingNumber) {
  // Blanks are skipped, "&H" is hexadecimal, and no infinity gets in.
  const std::pair<const char*, double> cases[] = {
      {"12.5 lbs", 12.5}, {"  1 2 3", 123}, {"-0.5", -0.5}, {"abc", 0},    {"", 0},      {"$5", 0},
      {"1,000", 1},       {"1.5e2x", 150},  {"1e", 1},      {".25", 0.25}, {"&H1F", 31}, {"1e999", 0}};
  for (const auto& [text, value] : cases) EXPECT_DOUBLE_EQ(zy::lenientValue(text), value) << text;
}

TEST(NumberReading, StrictWantsTheWholeText) {
  const std::pair<const char*, double> read[] = {
      {" 80 ", 80}, {"$1.25", 1.25}, {"($1,234.50)", -1234.5}, {"-0.5", -0.5}, {"1E-05", 1e-5}};
  for (const auto& [text, value] : read) EXPECT_EQ(zy::strictValue(text).value_or(-9), value) << text;
  for (const char* text : {"", "   ", "12 lbs", "abc", "1e"}) EXPECT_FALSE(zy::strictValue(text)) << text;
  // Halves go to the even neighbour; beyond 16 bits and no number give nothing.
  EXPECT_EQ(std::vector<int>({zy::strictInt16("2.5").value_or(-9), zy::strictInt16("3.5").value_or(-9),
                              zy::strictInt16("40000").value_or(-9), zy::strictInt16("x").value_or(-9)}),
            std::vector<int>({2, 4, -9, -9}));
}

TEST(NumberText, PlainTextReadsBackAsAFiniteDouble) {
  const struct { double v; const char* text; } cases[] = {
      {DBL_MAX, "1.7976931348623157E+308"},  // 15 digits would round past the largest double
      {-DBL_MAX, "-1.7976931348623157E+308"},
      {1.7976931348623e308, "1.7976931348623E+308"},
      {std::nextafter(std::nextafter(DBL_MAX, 0.0), 0.0), "1.7976931348623153E+308"},  // reads back as itself
      {DBL_MIN, "2.2250738585072E-308"},
      {4.9406564584124654e-324, "4.94065645841247E-324"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(zy::plainText(c.v), c.text);
    auto back = zy::strictValue(zy::plainText(c.v));
    ASSERT_TRUE(back) << c.text;
    EXPECT_EQ(zy::plainText(*back), c.text);
  }
}

// The measures: unit lists, conversion tables and the rounding of converted quantities.
TEST(Measures, ListsKeepTheirFileOrder) {
  const auto& m = zy::measures();
  EXPECT_EQ(m.otherUnits.size(), 14u);
  EXPECT_EQ(std::vector<std::string>({m.otherUnits[5], m.otherUnits[13], m.volumeUnits[3], m.mashTypes[3],
                                      m.batchStages[4], m.yeastUnits[2]}),
            std::vector<std::string>({"Tsp", "Imp Fl Oz", "HectoLiters", "Step Infusion", "Bottled", "Starter"}));
  EXPECT_EQ(zy::listText(m.recipeTypes, 7), "");  // never past a table
  EXPECT_EQ(zy::temperatureLabel(1) + zy::temperatureLabel(2), "\xB0" "C" "\xB0" "F");
}

TEST(Measures, ConversionTablesAreStoredEntries) {
  const double weight[4][4] = {{1.0, 16.0, 0.4535924, 453.5924},
                               {0.0625, 1.0, 0.028349525, 28.349525},
                               {2.204622476, 35.2739596, 1.0, 1000.0},
                               {0.002204622476, 0.0352739596, 0.001, 1.0}};
  const double volume[8][8] = {
      {1.0, 31.0, 124.0, 1.17347772, 117.347772, 0.717024697082, 25.812889095, 103.25155638},
      {0.032258064516, 1.0, 4.0, 0.037854118, 3.7854118, 0.023129828938, 0.832673841773, 3.330695367091},
      {0.008064516, 0.25, 1.0, 0.0094635295, 0.94635295, 0.005782457235, 0.208168460443, 0.832673841773},
      {0.852167862207, 26.417203728418, 105.668814913674, 1.0, 100.0, 0.611025437035, 21.996915733256, 87.98766293302},
      {0.008521678622, 0.264172037284, 1.056688149137, 0.01, 1.0, 0.00611025437, 0.219969157333, 0.87987662933},
      {1.3946521, 43.23421512, 172.93686048, 1.6365930768, 163.65930768, 1.0, 36.0, 144.0},
      {0.038740336129, 1.20095042, 4.80380168, 0.0454609188, 4.54609188, 0.02777778, 1.0, 4.0},
      {0.009685084032, 0.300237605, 1.20095042, 0.0113652297, 1.13652297, 0.0069444444, 0.25, 1.0}};
  const auto& m = zy::measures();
  for (int a = 0; a < 4; ++a)
    for (int b = 0; b < 4; ++b) EXPECT_EQ(m.weightConvert[a][b], weight[a][b]) << a << "," << b;
  for (int a = 0; a < 8; ++a)
    for (int b = 0; b < 8; ++b) EXPECT_EQ(m.volume_convert[a][b], volume[a][b]) << a << "," << b;
  // A gallon to liters and back is close to, but not exactly, one gallon.
  const double back = m.volume_convert[zy::US_GAL_CONST][zy::LITER_CONST] * m.volume_convert[zy::LITER_CONST][zy::US_GAL_CONST];
  EXPECT_NE(back, 1.0);
  EXPECT_NEAR(back, 1.0, 1e-7);
}

TEST(Measures, FindInList) {
  const auto& w = zy::measures().weightUnits;
  // Any case, trimmed; past lastIndex is not searched.
  EXPECT_EQ(std::vector<int>({zy::findInList(w, 3, "lbs", 9), zy::findInList(w, 3, "  LBS ", 9),
                              zy::findInList(w, 3, "gr", 9), zy::findInList(w, 3, "pounds", 9),
                              zy::findInList(w, 2, "gr", 1), zy::findInList(zy::measures().otherUnits, 13, "us fl oz", -1)}),
            std::vector<int>({0, 0, 3, 9, 1, 8}));
}

TEST(Measures, RoundQuantity) {
  // (x + 0.005) * 20 landing on a half goes to the even whole number, as a conversion to an
  // integer does: 0.525 * 20 = 10.5 gives 10, 0.575 * 20 = 11.5 gives 12.
  const std::pair<double, double> cases[] = {{0.5, 0.5},  {0.3, 0.3},  {0.51, 0.5}, {2.204622476, 2.2}, {28.349525, 28.35},
                                             {0.9, 0.9},  {1.0, 1.0},  {0.52, 0.5}, {0.57, 0.6},        {1.02, 1.0}};
  for (const auto& [in, out] : cases) EXPECT_EQ(zy::roundQuantity(in), out) << in;
}
