#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/dates.h"
#include "core/text.h"

TEST(Text, TrimAndFixedFields) {
  // trim takes only blanks, as fixed fields are padded with them.
  EXPECT_EQ(zy::trim("  Pale Ale  ") + "|" + zy::trim("\tx\t") + "|" + zy::trimWhite("\t x \r\n"), "Pale Ale|\tx\t|x");
  EXPECT_EQ(zy::fixedText("abc", 5) + "|" + zy::fixedText("abcdef", 3), "abc  |abc");
}

TEST(Text, Windows1252RoundTrip) {
  const std::string k8 = "K\xF6lsch M\xE4rzen 10\xB0 \x80 \xB8";
  EXPECT_EQ(zy::cp1252ToUtf8(k8), "K\u00f6lsch M\u00e4rzen 10\u00b0 \u20ac \u00b8");
  EXPECT_EQ(zy::utf8ToCp1252(zy::cp1252ToUtf8(k8)), k8);
  EXPECT_EQ(zy::utf8ToCp1252("\u4e2d") + "|" + zy::utf8ToCp1252("a\xff" "b"), "?|a?b");  // no 8-bit form; not UTF-8
  EXPECT_EQ(zy::lower("K\xD6LSCH"), "k\xF6lsch");
}

TEST(Text, DisplayTextTakesFileNamesAsTheyAre) {
  // 8-bit text and a UTF-8 path.
  for (const auto& [text, shown] : {std::pair{"K\xF6lsch", "K\u00f6lsch"}, {"/home/k\xC3\xB6lsch/Data", "/home/k\u00f6lsch/Data"},
                                    {"plain", "plain"}, {"10\xB0" "F", "10\u00b0F"}})
    EXPECT_EQ(zy::displayUtf8(text), shown) << text;
}

TEST(Text, CollationPutsAccentedNamesBesideTheirPlainOnes) {
  std::vector<std::string> names = {"Munich Helles", "M\xE4rzen", "Maibock", "k\xF6lsch", "Kellerbier",
                                    "Bi\xE8re de Garde", "Berliner Weisse", "\xC6" "bleskiver"};
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return zy::collationKey(a) < zy::collationKey(b); });
  EXPECT_EQ(names, (std::vector<std::string>{"\xC6" "bleskiver", "Berliner Weisse", "Bi\xE8re de Garde", "Kellerbier",
                                             "k\xF6lsch", "Maibock", "M\xE4rzen", "Munich Helles"}));
}

TEST(Dates, SerialsAndFormats) {
  EXPECT_EQ(std::vector<double>({zy::serialFromCivil(1899, 12, 30), zy::serialFromCivil(1900, 1, 1),
                                 zy::serialFromCivil(1998, 10, 5)}),
            std::vector<double>({0, 2, 36073}));
  const double d = zy::serialFromCivil(1998, 10, 5);
  EXPECT_EQ(zy::formatDateMDY(d) + "|" + zy::formatDate(d, "yyyy-mm-dd - "), "Oct-05-1998|1998-10-05 - ");
  EXPECT_EQ(zy::formatDateTime(zy::serialFromCivil(2026, 11, 22, 15, 4, 5)) + "|" +
                zy::formatDateTime(zy::serialFromCivil(2026, 1, 2, 0, 30, 0)),
            "11/22/2026 3:04:05 PM|1/2/2026 12:30:00 AM");
  EXPECT_EQ(zy::formatDateMDY(-1.25), "Dec-29-1899");
  // A damaged date in a record (no date at all) shows as day 0 instead of an impossible year.
  for (double bad : {1e300, -1e300, 3e6, std::nan("")}) EXPECT_EQ(zy::formatDateMDY(bad), "Dec-30-1899") << bad;
}

TEST(Dates, ReadingAcceptsTheUsualForms) {
  const double d = zy::serialFromCivil(1998, 10, 5);
  for (const char* t : {"Oct-05-1998", "10/5/1998", "10-05-1998", "October 5, 1998", "5 Oct 1998", "1998-10-05",
                        "oct-5-98", " Oct-05-1998 "})
    EXPECT_EQ(zy::parseDate(t).value_or(-1), d) << t;
  // Two-digit years to 2029 and from 1930.
  EXPECT_EQ(std::vector<double>({zy::parseDate("1/1/2007").value(), zy::parseDate("1/1/07").value(), zy::parseDate("1/1/45").value()}),
            std::vector<double>({zy::serialFromCivil(2007, 1, 1), zy::serialFromCivil(2007, 1, 1), zy::serialFromCivil(1945, 1, 1)}));
  EXPECT_NEAR(zy::parseDate("11/22/2026 3:04:05 PM").value(), zy::serialFromCivil(2026, 11, 22, 15, 4, 5), 1e-9);
  for (const char* t : {"", "yesterday", "13/1/2000", "2/30/2001", "Foo-05-1998", "1998", "1/2/3/4"})
    EXPECT_FALSE(zy::parseDate(t)) << t;
}

TEST(Dates, YearsBelowAThousandKeepFourDigitsAndReadBack) {
  for (int y : {100, 999, 1000}) {
    const double d = zy::serialFromCivil(y, 3, 7);
    const std::string text = zy::formatDateMDY(d);
    EXPECT_EQ(text, "Mar-07-" + std::string(y < 1000 ? "0" : "") + std::to_string(y));
    EXPECT_EQ(zy::parseDate(text).value_or(-1), d) << text;
  }
  EXPECT_EQ(zy::formatDate(zy::serialFromCivil(999, 1, 2), "yyyy-mm-dd"), "0999-01-02");
}
