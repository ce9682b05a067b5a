// The style files on disk: exact bytes written, loading with its keys, limits and reports; and
// the brewer's own styles and categories, what the files hold after each change.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <initializer_list>

#include "core/paths.h"
#include "core/text.h"
#include "styles/StyleEditor.h"
#include "styles/StyleStore.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;
using test::readFile;
using test::writeFile;

// Hand-made record bytes.
struct Bytes {
  std::string b;
  Bytes& raw(std::initializer_list<int> v) {
    for (int x : v) b += static_cast<char>(x);
    return *this;
  }
  Bytes& text(const std::string& s, size_t width) {
    b += test::padded(s, width);
    return *this;
  }
  Bytes& zeros(size_t n) {
    b.append(n, '\0');
    return *this;
  }
};

// 146 bytes: start 200, source 2, "1A", "Light Lager", "Lite", key 7, 18 zero bytes, end 299.
std::string categoryBytes(int keyLow = 0x07, int codeLow = 0xC8) {
  Bytes x;
  x.raw({codeLow, 0x00, 0x02, 0x00}).text("1A", 20).text("Light Lager", 50).text("Lite", 50);
  x.raw({keyLow, 0x00}).zeros(18).raw({0x2B, 0x01});
  return x.b;
}

// 188 bytes and the comment block "Crisp." : the style "Pale Ale" (0xE4 is a-umlaut), category
// key 3, OG 1.048-1.056, FG 1.010-1.014, IBU 25-40, SRM 4.5-9, alcohol 4.6-6.2, key 12.
std::string styleBytes(const std::string& name = "P\xE4le Ale", int codeEndLow = 0x2B) {
  Bytes x;
  x.raw({0xC8, 0x00, 0x01, 0x00}).text("10A", 20).text(name, 60).raw({0x03, 0x00});
  for (double v : {1.048, 1.056, 1.010, 1.014, 25.0, 40.0, 4.5, 9.0, 4.6, 6.2}) x.b += test::le64(v);
  x.raw({0x0C, 0x00}).zeros(18).raw({codeEndLow, 0x01});
  return x.b;
}

std::string commentBytes(const std::string& text) {
  Bytes x;
  x.raw({static_cast<int>(text.size() & 0xFF), static_cast<int>(text.size() >> 8)});
  x.b += text;
  return x.b;
}

BeerCategoryRecord lightLager() {
  BeerCategoryRecord c;
  c.source = STYLE_SOURCE_BJCP, c.id = "1A", c.category = "   Light Lager   ", c.subCategory = "Lite";
  c.categoryIndex = 7;
  return c;
}

BeerStyleRecord paleAle() {
  BeerStyleRecord s;
  s.source = STYLE_SOURCE_AOB, s.styleId = "10A", s.styleName = "  P\xE4le Ale ", s.categoryIndex = 3;
  s.ogLow = 1.048, s.ogHigh = 1.056, s.fgLow = 1.010, s.fgHigh = 1.014;
  s.ibuLow = 25, s.ibuHigh = 40, s.srmLow = 4.5, s.srmHigh = 9;
  s.alcoholLow = 4.6, s.alcoholHigh = 6.2;
  s.styleIndex = 12;
  s.comments = "  Crisp.  ";
  return s;
}

std::string catPath(const Bench& b) { return b.wb->folder.dataFile(kCategoryFile); }
std::string stylePath(const Bench& b) { return b.wb->folder.dataFile(kStyleFile); }

TEST(StyleFiles, SaveWritesEveryFieldAtItsOffset) {
  Bench b;
  StyleTables& t = b.wb->styles;
  t.BeerCategories[0] = lightLager();
  t.BeerCategories[0].controlStart = 5;  // the codes are set on writing
  t.BeerCategories[1] = lightLager();
  t.BeerCategories[1].category = "    ";  // a blank name is not written
  t.BeerCategoryCount = 2;
  t.BeerStyles[0] = paleAle();
  t.BeerStyles[0].controlEnd = 0;
  t.BeerStyleCount = 1;

  ASSERT_TRUE(saveBeerStyles(*b.wb));
  EXPECT_EQ(readFile(catPath(b)) + readFile(stylePath(b)), categoryBytes() + styleBytes() + commentBytes("Crisp."));
  // The names were trimmed in the table as well; no temporary file stays behind.
  EXPECT_EQ(t.BeerCategories[0].category + "|" + t.BeerStyles[0].styleName, "Light Lager|P\xE4le Ale");
  EXPECT_FALSE(fileExists(catPath(b) + ".new") || fileExists(stylePath(b) + ".new") || !b.prompter.shown.empty());
}

TEST(StyleFiles, ReservedBytesAndLongTextsAreWrittenAsHeld) {
  BeerCategoryRecord c = lightLager();
  c.reserved = std::string("abc\0\x01", 5);
  c.category = std::string(70, 'x');
  const std::string bytes = packCategoryRecord(c);
  ASSERT_EQ(bytes.size(), 146u);
  EXPECT_EQ(bytes.substr(24, 50) + bytes.substr(126, 18), std::string(50, 'x') + std::string("abc\0\x01", 5) + std::string(13, '\0'));
  // Unpacking gives every field back as stored.
  const BeerCategoryRecord back = unpackCategoryRecord(bytes);
  EXPECT_EQ(back.reserved + back.subCategory, bytes.substr(126, 18) + "Lite" + std::string(46, ' '));

  // A comment longer than a 16-bit count can say is cut to 32767 bytes.
  const std::string big = packStyleComment(std::string(40000, 'c'));
  EXPECT_TRUE(big.size() == 2u + 32767u && big.substr(0, 2) == std::string("\xFF\x7F", 2));
}

TEST(StyleFiles, LoadOverwritesKeysAndReadsComments) {
  Bench b;
  // Two categories with keys 7 and 9 in the file; three styles: one with a comment, one with a
  // count of 0, one with a negative count, then half a record.
  writeFile(catPath(b), categoryBytes(7) + categoryBytes(9));
  std::string styles = styleBytes() + commentBytes("  Crisp and\r\ndry.  ");
  styles += styleBytes("Second") + std::string("\0\0", 2);
  styles += styleBytes("Third") + std::string("\xFF\xFF", 2);
  styles += styleBytes("Torn").substr(0, 100);
  writeFile(stylePath(b), styles);

  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  const StyleTables& t = b.wb->styles;
  EXPECT_TRUE(b.prompter.shown.empty());
  ASSERT_TRUE(t.BeerCategoryCount == 2 && t.BeerStyleCount == 3);
  // The keys become the rows (12 in the file for the first style); the category key is taken as read.
  EXPECT_EQ(std::vector<int>({t.BeerCategories[0].categoryIndex, t.BeerCategories[1].categoryIndex,
                              t.BeerStyles[0].styleIndex, t.BeerStyles[2].styleIndex, t.BeerStyles[0].categoryIndex,
                              t.BeerStyles[0].source}),
            std::vector<int>({0, 1, 0, 2, 3, STYLE_SOURCE_AOB}));
  const BeerStyleRecord& s = t.BeerStyles[0];
  EXPECT_EQ(s.styleName, "P\xE4le Ale" + std::string(52, ' '));
  EXPECT_EQ(std::vector<double>({s.ogLow, s.alcoholHigh}), std::vector<double>({1.048, 6.2}));
  EXPECT_EQ(s.comments + "|" + t.BeerStyles[1].comments + "|" + t.BeerStyles[2].comments, "Crisp and\r\ndry.||");
  EXPECT_EQ(trim(t.BeerStyles[3].styleName), "");  // the torn piece is no row

  // Category 3 does not exist after the load: the label is "<None>".
  const auto entry = styleBrowserEntry(t, 0);
  EXPECT_EQ(entry.categoryText + " " + entry.key + " " + entry.sourceName, "<None> B0 AOB");
}

TEST(StyleFiles, LoadThenSaveGivesBackTheSameBytes) {
  Bench b;
  // Keys already equal to the rows, reserved bytes that are not zero: nothing may change.
  std::string cat = categoryBytes(0x00);
  cat.replace(126, 18, "reserved-category!");
  std::string style = styleBytes();
  style[166] = '\0';
  style.replace(168, 18, std::string("\x01\x02reserved-style\xFF\x00", 18));
  const std::string styles = style + commentBytes("Line one\r\nline two");
  writeFile(catPath(b), cat);
  writeFile(stylePath(b), styles);
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  ASSERT_TRUE(saveBeerStyles(*b.wb));
  EXPECT_EQ(readFile(catPath(b)) + readFile(stylePath(b)), cat + styles);
}

TEST(StyleFiles, MissingFilesAreCreatedEmpty) {
  Bench b;
  ASSERT_FALSE(fileExists(catPath(b)));
  b.wb->styles.BeerStyleCount = 9;
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  EXPECT_EQ(b.wb->styles.BeerCategoryCount + b.wb->styles.BeerStyleCount, 0);
  EXPECT_TRUE(fileExists(catPath(b)) && fileExists(stylePath(b)) && b.prompter.shown.empty());
  EXPECT_EQ(readFile(catPath(b)) + readFile(stylePath(b)), "");
}

TEST(StyleFiles, BadControlCodesAreReportedButTheRowsKept) {
  Bench b;
  writeFile(catPath(b), categoryBytes(1) + categoryBytes(2, 0xC9));
  writeFile(stylePath(b), styleBytes("Bad", 0x2C) + commentBytes("kept") + styleBytes("Good") + commentBytes(""));
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  const StyleTables& t = b.wb->styles;
  EXPECT_EQ(t.BeerCategoryCount + t.BeerStyleCount, 4);
  EXPECT_EQ(t.BeerCategories[1].controlStart, 201);
  EXPECT_EQ(t.BeerStyles[0].comments + " " + trim(t.BeerStyles[1].styleName), "kept Good");
  EXPECT_EQ(test::shownLines(b.prompter),
            (std::vector<std::string>{"Error: Corrupted Beer Category Record(s) in " + catPath(b) + ", Bad Records Ignored",
                                      "Error: Corrupted Beer Style Record(s) in " + stylePath(b) + ", Bad Records Ignored"}));
  const std::string log = readFile(b.wb->folder.file(kErrorLog));
  for (const char* line : {"Error #32013(Invalid Beer Category Control Code)", "In Function LoadBeerStyles",
                           "Error #32015(Invalid Beer Style Control Code)"})
    EXPECT_NE(log.find(line), std::string::npos) << line;
}

// One row past the limit is reported with its own code (too many styles as corrupted ones, under
// 32015), and then the read into the row behind the table ends the program.
TEST(StyleFiles, OneRowPastTheLimitIsReportedAndEndsTheProgram) {
  struct Case {
    int categories, styles;
    std::string message;  // the limit report, before the path
    std::string tail;
    std::string logged;
  };
  const std::string longest(32767, 'k');
  const std::vector<Case> cases = {
      {51, 0, "Maximum Beer Category Records Reached in ", ", Additional Records Ignored",
       "Error #32014(Maximum Beer Categories Reached)"},
      {50, 251, "Corrupted Beer Style Record(s) in ", ", Bad Records Ignored",
       "Error #32015(Invalid Beer Style Control Code)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.logged);
    Bench b;
    writeFile(catPath(b), test::repeated(categoryBytes(), c.categories));
    // The longest comments a count can give, then a megabyte of junk: never read past the tables.
    writeFile(stylePath(b), test::repeated(styleBytes() + commentBytes(longest), c.styles) + std::string(1 << 20, '\x7F'));
    try {
      LoadBeerStyles(*b.wb);
      ADD_FAILURE() << "the load went on";
    } catch (const Terminated& t) {
      EXPECT_EQ(t.errorNumber, 9);
    }
    const std::string path = c.styles ? stylePath(b) : catPath(b);
    const int row = c.styles ? 251 : 51;
    EXPECT_EQ(test::shownLines(b.prompter),
              (std::vector<std::string>{"Error: " + c.message + path + c.tail,
                                        "Terminate Program: Error #9(Subscript out of range) in LoadBeerStyles at Line " +
                                            std::to_string(row)}));
    const std::string log = readFile(b.wb->folder.file(kErrorLog));
    EXPECT_TRUE(log.find(c.logged) != std::string::npos &&
                log.find("Line #" + std::to_string(row) + "\nIn Function LoadBeerStyles\nTerminating") != std::string::npos);
  }
}

TEST(StyleFiles, ABlankStyleIsCountedOnLoadAndDroppedOnSave) {
  Bench b;
  writeFile(catPath(b), categoryBytes());
  writeFile(stylePath(b), styleBytes("First") + commentBytes("") + styleBytes("") + commentBytes("gone") +
                              styleBytes("Third") + commentBytes("3"));
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  EXPECT_EQ(b.wb->styles.BeerStyleCount, 3);
  ASSERT_TRUE(saveBeerStyles(*b.wb));
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  const StyleTables& t = b.wb->styles;
  ASSERT_EQ(t.BeerStyleCount, 2);
  EXPECT_EQ(trim(t.BeerStyles[1].styleName) + " " + std::to_string(t.BeerStyles[1].styleIndex) + " " +
                t.BeerStyles[1].comments,
            "Third 1 3");
  // The file holds the key as it was when written: row 2 of the earlier load.
  EXPECT_EQ(readFile(stylePath(b)).substr(190 + 166, 2), std::string("\x02\x00", 2));
}

TEST(StyleFiles, AFailedSaveLeavesTheOldFilesInPlace) {
  Bench b;
  writeFile(catPath(b), categoryBytes());
  writeFile(stylePath(b), styleBytes() + commentBytes("old"));
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  b.wb->styles.BeerStyles[0].comments = "new";
  // The new style file cannot be created (its name is taken by a folder).
  std::filesystem::create_directory(stylePath(b) + ".new");
  EXPECT_THROW(saveBeerStyles(*b.wb), Terminated);
  EXPECT_EQ(readFile(catPath(b)) + readFile(stylePath(b)), categoryBytes() + styleBytes() + commentBytes("old"));
  EXPECT_FALSE(fileExists(catPath(b) + ".new"));
  EXPECT_NE(shownLines(b.prompter).at(0).find("saveBeerStyles"), std::string::npos);
}

TEST(StyleFiles, CorruptedFilesNeverCrash) {
  Bench b;
  std::string junk;
  for (int i = 0; i < 20000; ++i) junk += static_cast<char>((i * 7919) & 0xFF);
  writeFile(catPath(b), junk.substr(0, 7000));  // fewer than 50 records: more would end the program
  writeFile(stylePath(b), junk);
  ASSERT_TRUE(LoadBeerStyles(*b.wb));
  EXPECT_TRUE(b.wb->styles.BeerCategoryCount == 47 && b.wb->styles.BeerStyleCount <= 250);
  for (int r = 0; r < b.wb->styles.BeerStyleCount; ++r) (void)styleBrowserEntry(b.wb->styles, r);
}

// The brewer's own styles and categories: what the files hold after each change, the refusals
// with their messages, and the room the loader's limits leave.
struct EditorBench {
  test::Bench b;
  StyleTables& t = b.wb->styles;
  StyleEditor ed{t, b.wb->folder, b.wb->errors, b.prompter};

  // Category 0 "1 Pale Ales" (BJCP) with the style "Pale One"; category 1 "Mine" (Custom).
  EditorBench() {
    t.BeerCategories[0].source = STYLE_SOURCE_BJCP, t.BeerCategories[0].id = "1", t.BeerCategories[0].category = "Pale Ales";
    t.BeerCategories[1].category = "Mine", t.BeerCategories[1].categoryIndex = 1;
    t.BeerCategoryCount = 2;
    BeerStyleRecord& s = t.BeerStyles[0];
    s.source = STYLE_SOURCE_BJCP, s.styleName = "Pale One", s.ogLow = 1.044, s.ogHigh = 1.052;
    t.BeerStyleCount = 1;
  }
  StyleForm form(const std::string& name, int category = 1) {
    StyleForm f;
    f.txtName = name, f.category = category;
    f.txtRange = {"1.050", "1.060", "1.010", "1.014", "30", "45", "8", "14", "5", "6.2"};
    return f;
  }
  void reload() { ASSERT_TRUE(LoadBeerStyles(*b.wb)); }
  std::vector<std::string> names() {
    std::vector<std::string> n;
    for (const auto& e : ed.entries()) n.push_back(e.sourceName + "|" + e.categoryText + "|" + e.styleName);
    return n;
  }
};

TEST(StyleEditor, ACustomStyleIsFoundAfterAReloadOfTheFiles) {
  EditorBench x;
  StyleForm f = x.form("  Hoppy House Ale ");
  f.txtId = "H1";
  f.txtComments = " Our own.\r\nDry hopped. ";
  f.txtRange[2] = f.txtRange[3] = "";  // FG left open
  ASSERT_EQ(x.ed.acceptStyle(-1, f), 1);
  x.reload();
  const BeerStyleRecord& s = x.t.BeerStyles[1];
  EXPECT_EQ(trim(s.styleName) + "|" + trim(s.styleId) + "|" + s.comments, "Hoppy House Ale|H1|Our own.\r\nDry hopped.");
  EXPECT_EQ(s.source, STYLE_SOURCE_CUSTOM);
  EXPECT_EQ((std::array<double, 5>{s.ogLow, s.ogHigh, s.fgLow, s.fgHigh, s.alcoholHigh}),
            (std::array<double, 5>{1.05, 1.06, 0, 0, 6.2}));
  x.ed.sourceFilter = BROWSE_CUSTOM;
  EXPECT_EQ(x.names(), (std::vector<std::string>{"Custom|Mine|Hoppy House Ale"}));
  x.ed.sourceFilter = BROWSE_ALL;
  EXPECT_EQ(x.names(), (std::vector<std::string>{"BJCP|1 Pale Ales|Pale One", "Custom|Mine|Hoppy House Ale"}));
  // The form shows it back in the measures' formats, the open range as empty boxes.
  EXPECT_EQ(x.ed.formOf(1).txtRange,
            (std::array<std::string, 10>{"1.050", "1.060", "", "", "30", "45", "8.0", "14.0", "5.0", "6.2"}));
  // Changed, then deleted: the blank row is dropped by the save.
  f.txtName = "House Ale";
  ASSERT_EQ(x.ed.acceptStyle(1, f), 1);
  x.b.prompter.answers = {Answer::Yes};
  ASSERT_TRUE(x.ed.deleteStyle(1));
  x.reload();
  EXPECT_EQ(x.t.BeerStyleCount, 1);
  EXPECT_EQ(test::shownLines(x.b.prompter), (std::vector<std::string>{"Delete Beer Style: Delete the Beer Style 'House Ale'?"}));
}

TEST(StyleEditor, BadFormsAreRefusedWithAMessageAndNothingWritten) {
  struct Case {
    std::function<void(StyleForm&)> edit;
    int row;
    std::string message;
  } cases[] = {
      {[](StyleForm& f) { f.txtName = "  "; }, -1, "Please enter the Name of the Beer Style"},
      {[](StyleForm& f) { f.txtName = std::string(61, 'x'); }, -1, "The Name of a Beer Style holds at most 60 characters"},
      {[](StyleForm& f) { f.txtName = "PALE ONE"; }, -1, "A Beer Style named 'PALE ONE' already exists"},
      {[](StyleForm& f) { f.category = 5; }, -1, "Please choose the Category of the Beer Style"},
      {[](StyleForm& f) { f.txtRange[4] = "3O"; }, -1, "IBU Low must be a number"},
      {[](StyleForm& f) { f.txtRange[1] = "1.040"; }, -1, "The O.G. range must run from Low to High between 1.000 and 1.200"},
      {[](StyleForm& f) { f.txtRange[9] = "30"; }, -1, "The Alcohol % range must run from Low to High between 0.0 and 25.0"},
      {[](StyleForm& f) { f.txtRange[7] = ""; }, -1, "The Color (SRM) range must run from Low to High between 0.0 and 100.0"},
      {[](StyleForm&) {}, 0, "Only Custom Beer Styles can be changed. Use New Style to make a custom copy of this style."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    EditorBench x;
    StyleForm f = x.form("New One");
    c.edit(f);
    EXPECT_EQ(x.ed.acceptStyle(c.row, f), -1);
    EXPECT_EQ(test::shownLines(x.b.prompter), (std::vector<std::string>{"Beer Styles: " + c.message}));
    EXPECT_FALSE(fileExists(x.b.wb->folder.dataFile(kStyleFile)));
  }
}

TEST(StyleEditor, TheTablesNeverGrowPastWhatTheLoaderTakes) {
  EditorBench x;
  for (int i = 2; i < kMaxCategories; ++i) x.t.BeerCategories[static_cast<size_t>(i)].category = "C" + itos(i);
  x.t.BeerCategoryCount = kMaxCategories;
  for (int i = 1; i < kMaxStyles; ++i) x.t.BeerStyles[static_cast<size_t>(i)].styleName = "S" + itos(i);
  x.t.BeerStyleCount = kMaxStyles;
  EXPECT_EQ(x.ed.acceptStyle(-1, x.form("One Too Many")), -1);
  // A deleted style leaves its row free for the next one.
  x.t.BeerStyles[7].styleName = "";
  EXPECT_EQ(x.ed.acceptStyle(-1, x.form("Fits")), 7);
  EXPECT_EQ(x.ed.acceptCategory(-1, {"", "Extra", ""}), -1);
  EXPECT_EQ(test::shownLines(x.b.prompter),
            (std::vector<std::string>{
                "Beer Styles: There is no room for another Beer Style: Zythara holds at most 250 Beer Styles. "
                "Delete a style you no longer use first.",
                "Beer Styles: There is no room for another Beer Category: Zythara holds at most 50 Beer Categories. "
                "Delete a category you no longer use first."}));
  x.reload();  // the full files load without a word
  EXPECT_EQ(std::vector<int>({x.t.BeerStyleCount, x.t.BeerCategoryCount}), std::vector<int>({250, 50}));
  EXPECT_EQ(x.b.prompter.shown.size(), 2u);
}

TEST(StyleEditor, DeletingACategoryKeepsEveryStyleInItsCategory) {
  EditorBench x;
  ASSERT_EQ(x.ed.acceptCategory(-1, {"X9", " Smoked ", "Beech"}), 2);
  ASSERT_EQ(x.ed.acceptStyle(-1, x.form("Smoky", 2)), 1);
  EXPECT_EQ(x.ed.acceptCategory(-1, {"x9", "smoked", "beech"}), -1);
  EXPECT_FALSE(x.ed.deleteCategory(0) || x.ed.deleteCategory(2));  // a published one; one still holding Smoky
  x.b.prompter.answers = {Answer::Yes};
  ASSERT_TRUE(x.ed.deleteCategory(1));
  x.reload();
  EXPECT_EQ(x.names(), (std::vector<std::string>{"BJCP|1 Pale Ales|Pale One", "Custom|X9 Smoked - Beech|Smoky"}));
  EXPECT_EQ(test::shownLines(x.b.prompter),
            (std::vector<std::string>{"Beer Styles: A Beer Category 'x9 smoked - beech' already exists",
                                      "Beer Styles: Only Custom Beer Categories can be deleted",
                                      "Beer Styles: The Beer Category 'X9 Smoked - Beech' still holds 1 Beer Style(s) and "
                                      "cannot be deleted",
                                      "Delete Beer Category: Delete the Beer Category 'Mine'?"}));
}

TEST(StyleEditor, RangeBarsShowTheRangeAndJudgeTheRecipe) {
  EditorBench x;
  BeerStyleRecord s = x.t.BeerStyles[0];
  s.ibuLow = 20, s.ibuHigh = 40, s.srmHigh = 60;
  const RecipeStyleValues v{1.0425, 1.012, 45, 5, 0};
  const auto bars = styleRangeBars(s, &v);
  std::vector<std::string> got;
  for (const auto& b : bars) got.push_back(b.caption + " " + b.rangeText + " " + b.valueText + " " + b.state);
  EXPECT_EQ(got, (std::vector<std::string>{"Original Gravity 1.044 - 1.052 1.043 Low", "Final Gravity Not given 1.012 High",
                                           "Bitterness (IBU) 20 - 40 45 High", "Color (SRM) 0.0 - 60.0 5.0 OK",
                                           "Alcohol % by Volume Not given 0.0 OK"}));
  EXPECT_EQ(bars[0].color, (std::array<int, 3>{255, 255, 0}));
  EXPECT_EQ(bars[2].color, (std::array<int, 3>{255, 0, 0}));  // above 40 x 1.1
  EXPECT_GT(bars[3].axisMax, 60);
}

}  // namespace
}  // namespace zy
