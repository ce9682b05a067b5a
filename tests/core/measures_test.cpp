#include <gtest/gtest.h>

#include "core/measures.h"

TEST(Measures, ListsKeepTheirFileOrder) {
  const auto& m = zy::measures();
  EXPECT_EQ(m.otherUnits.size(), 14u);
  EXPECT_EQ(m.otherUnits[5], "Tsp");
  EXPECT_EQ(m.otherUnits[13], "Imp Fl Oz");
  EXPECT_EQ(m.volumeUnits[3], "HectoLiters");
  EXPECT_EQ(m.mashTypes[3], "Step Infusion");
  EXPECT_EQ(m.batchStages[4], "Bottled");
  EXPECT_EQ(m.yeastUnits[2], "Starter");
  EXPECT_EQ(zy::listText(m.recipeTypes, 7), "");  // never past a table
  EXPECT_EQ(zy::temperatureLabel(1), "\xB0" "C");
  EXPECT_EQ(zy::temperatureLabel(2), "\xB0" "F");
}

TEST(Measures, ConversionTablesAreStoredEntries) {
  const auto& m = zy::measures();
  EXPECT_EQ(m.weightConvert[zy::UNIT_KG][zy::UNIT_LBS], 2.204622476);
  EXPECT_EQ(m.weightConvert[zy::UNIT_OZ][zy::UNIT_GR], 28.349525);
  EXPECT_EQ(m.volume_convert[zy::US_BBL_CONST][zy::US_GAL_CONST], 31.0);
  EXPECT_EQ(m.volume_convert[zy::IMPERIAL_BBL_CONST][zy::IMPERIAL_GAL_CONST], 36.0);
  EXPECT_EQ(m.volume_convert[6][5], 0.02777778);
  // A gallon to liters and back is close to, but not exactly, one gallon.
  const double back = 1.0 * m.volume_convert[zy::US_GAL_CONST][zy::LITER_CONST] *
                      m.volume_convert[zy::LITER_CONST][zy::US_GAL_CONST];
  EXPECT_EQ(back, 3.7854118 * 0.264172037284);
  EXPECT_NE(back, 1.0);
  EXPECT_NEAR(back, 1.0, 1e-7);
}

TEST(Measures, FindInList) {
  const auto& w = zy::measures().weightUnits;
  EXPECT_EQ(zy::findInList(w, 3, "lbs", 9), 0);
  EXPECT_EQ(zy::findInList(w, 3, "  LBS ", 9), 0);
  EXPECT_EQ(zy::findInList(w, 3, "gr", 9), 3);
  EXPECT_EQ(zy::findInList(w, 3, "pounds", 9), 9);
  EXPECT_EQ(zy::findInList(w, 2, "gr", 1), 1);  // past lastIndex is not searched
  EXPECT_EQ(zy::findInList(zy::measures().otherUnits, 13, "us fl oz", -1), 8);
}

TEST(Measures, RoundQuantity) {
  EXPECT_EQ(zy::roundQuantity(0.5), 0.5);
  EXPECT_EQ(zy::roundQuantity(0.3), 0.3);
  EXPECT_EQ(zy::roundQuantity(0.51), 0.5);
  EXPECT_EQ(zy::roundQuantity(2.204622476), 2.2);
  EXPECT_EQ(zy::roundQuantity(28.349525), 28.35);
  EXPECT_EQ(zy::roundQuantity(0.9), 0.9);
  EXPECT_EQ(zy::roundQuantity(1.0), 1.0);
  // (x + 0.005) * 20 landing on a half goes to the even whole number, as a conversion to an
  // integer does: 0.525 * 20 = 10.5 gives 10, 0.575 * 20 = 11.5 gives 12.
  EXPECT_EQ(zy::roundQuantity(0.52), 0.5);
  EXPECT_EQ(zy::roundQuantity(0.57), 0.6);
  EXPECT_EQ(zy::roundQuantity(1.02), 1.0);
}
