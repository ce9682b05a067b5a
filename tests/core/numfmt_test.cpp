#include <gtest/gtest.h>

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
  EXPECT_EQ(zy::plainText(0.5), "0.5");
  EXPECT_EQ(zy::plainText(5.0), "5");
  EXPECT_EQ(zy::plainText(-3), "-3");
  EXPECT_EQ(zy::plainText(1.032), "1.032");
  EXPECT_EQ(zy::plainText(0.1 + 0.2), "0.3");  // 15 significant digits
  EXPECT_EQ(zy::plainText(0.07 * 100), "7");
  EXPECT_EQ(zy::plainText(0.00001), "1E-05");
  EXPECT_EQ(zy::plainText(123456789012.5), "123456789012.5");
  EXPECT_EQ(zy::plainText(0), "0");
  EXPECT_EQ(zy::plainText(-9999), "-9999");
}

TEST(NumberReading, LenientTakesTheLeadingNumber) {
  EXPECT_DOUBLE_EQ(zy::lenientValue("12.5 lbs"), 12.5);
  EXPECT_DOUBLE_EQ(zy::lenientValue("  1 2 3"), 123);  // blanks are skipped
  EXPECT_DOUBLE_EQ(zy::lenientValue("-0.5"), -0.5);
  EXPECT_DOUBLE_EQ(zy::lenientValue("abc"), 0);
  EXPECT_DOUBLE_EQ(zy::lenientValue(""), 0);
  EXPECT_DOUBLE_EQ(zy::lenientValue("$5"), 0);
  EXPECT_DOUBLE_EQ(zy::lenientValue("1,000"), 1);
  EXPECT_DOUBLE_EQ(zy::lenientValue("1.5e2x"), 150);
  EXPECT_DOUBLE_EQ(zy::lenientValue("1e"), 1);
  EXPECT_DOUBLE_EQ(zy::lenientValue(".25"), 0.25);
  EXPECT_DOUBLE_EQ(zy::lenientValue("&H1F"), 31);
  EXPECT_DOUBLE_EQ(zy::lenientValue("1e999"), 0);  // no infinity gets in
}

TEST(NumberReading, StrictWantsTheWholeText) {
  EXPECT_EQ(zy::strictValue(" 80 ").value(), 80);
  EXPECT_EQ(zy::strictValue("$1.25").value(), 1.25);
  EXPECT_EQ(zy::strictValue("($1,234.50)").value(), -1234.5);
  EXPECT_EQ(zy::strictValue("-0.5").value(), -0.5);
  EXPECT_EQ(zy::strictValue("1E-05").value(), 1e-5);
  EXPECT_FALSE(zy::strictValue(""));
  EXPECT_FALSE(zy::strictValue("   "));
  EXPECT_FALSE(zy::strictValue("12 lbs"));
  EXPECT_FALSE(zy::strictValue("abc"));
  EXPECT_FALSE(zy::strictValue("1e"));
  EXPECT_EQ(zy::strictInt16("2.5").value(), 2);  // halves to the even neighbour
  EXPECT_EQ(zy::strictInt16("3.5").value(), 4);
  EXPECT_FALSE(zy::strictInt16("40000"));
  EXPECT_FALSE(zy::strictInt16("x"));
}
