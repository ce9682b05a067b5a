// What the program writes as text (settings lines, plain numbers, dates) reads back as it was.
#include <gtest/gtest.h>

#include <cfloat>
#include <string>

#include "core/dates.h"
#include "core/numfmt.h"
#include "core/settings.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

TEST(SettingsFile, AStrayByteAtALineStartHidesNoSectionHead) {
  for (const std::string& stray : {std::string("\r"), std::string(1, '\0'), std::string("\t\r ")}) {
    TempFolder dir;
    const std::string path = dir.file("z.ini");
    writeFile(path, "[Defaults]\n" + stray + "[x=1\nUser Name=Bob\n");
    FileSettingsStore s(path);
    s.write("Defaults", "Mash Eff", "70");  // a save rewrites the file
    FileSettingsStore again(path);
    // The line reads as the head of a section "x=1", so Bob stands under it, before and after a save.
    EXPECT_EQ(again.read("x=1", "User Name", "?"), "Bob");
    EXPECT_EQ(again.read("Defaults", "Mash Eff", "?"), "70");
    EXPECT_EQ(readFile(path), "[x=1]\nUser Name=Bob\n\n[Defaults]\nMash Eff=70\n\n");
  }
}

TEST(SettingsFile, KeysThatWouldReadBackAsSomethingElseAreRefused) {
  TempFolder dir;
  const std::string path = dir.file("z.ini");
  FileSettingsStore s(path);
  s.write("Defaults", "User Name", "Bob");
  const struct { const char* section; const char* key; const char* why; } refused[] = {
      {"Defaults", "[x", "a key beginning with \"[\" would be read back as a section head or a comment."},
      {"Defaults", ";x", "a key beginning with \";\" would be read back as a section head or a comment."},
      {"Defaults", "#x", "a key beginning with \"#\" would be read back as a section head or a comment."},
      {"Defaults", "a=b", "a key must not hold \"=\" or a line break."},
      {"Defaults", " x", "a key must not be empty nor begin or end with blanks, tabs, line breaks or zero bytes."},
      {"Defaults", "", "a key must not be empty nor begin or end with blanks, tabs, line breaks or zero bytes."},
  };
  for (const auto& r : refused) {
    const std::string msg = FileSettingsStore::refusal(r.section, r.key);
    EXPECT_EQ(msg, std::string("The key \"") + r.key + "\" of section \"Defaults\" cannot be kept in the settings "
                                                       "file: " + r.why);
    s.write(r.section, r.key, "1");
  }
  EXPECT_EQ(FileSettingsStore::refusal("a]b", "k"),
            "The section name \"a]b\" cannot be kept in the settings file: it must not be empty, begin or end with a "
            "blank, nor hold \"]\" or a line break.");
  EXPECT_EQ(FileSettingsStore::refusal("Defaults", "User Name"), "");
  EXPECT_EQ(readFile(path), "[Defaults]\nUser Name=Bob\n\n");
}

TEST(NumberText, PlainTextReadsBackAsAFiniteDouble) {
  const struct { double v; const char* text; } cases[] = {
      {DBL_MAX, "1.7976931348623157E+308"},  // 15 digits would round past the largest double
      {-DBL_MAX, "-1.7976931348623157E+308"},
      {1.7976931348623e308, "1.7976931348623E+308"},
      {DBL_MIN, "2.2250738585072E-308"},
      {4.9406564584124654e-324, "4.94065645841247E-324"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(plainText(c.v), c.text);
    auto back = strictValue(plainText(c.v));
    ASSERT_TRUE(back) << c.text;
    EXPECT_EQ(plainText(*back), c.text);
  }
}

TEST(Dates, YearsBelowAThousandKeepFourDigitsAndReadBack) {
  for (int y : {100, 999, 1000}) {
    const double d = serialFromCivil(y, 3, 7);
    const std::string text = formatDateMDY(d);
    EXPECT_EQ(text, "Mar-07-" + std::string(y < 1000 ? "0" : "") + std::to_string(y));
    EXPECT_EQ(parseDate(text).value_or(-1), d) << text;
  }
  EXPECT_EQ(formatDate(serialFromCivil(999, 1, 2), "yyyy-mm-dd"), "0999-01-02");
}
