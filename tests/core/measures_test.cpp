#include <gtest/gtest.h>

#include "core/measures.h"

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
