#include <gtest/gtest.h>

#include <utility>

#include "core/Properties.h"
#include "core/defaults.h"
#include "core/errorlog.h"
#include "core/text.h"
#include "core/paths.h"
#include "core/measures.h"
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
    EXPECT_EQ(again.read("x=1", "User Name", "?") + " " + again.read("Defaults", "Mash Eff", "?"), "Bob 70");
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

namespace {
// The texts of the named boxes of a properties window, in the order given.
std::vector<std::string> texts(const PropertiesModel& m, const std::vector<std::string>& names) {
  std::vector<std::string> v;
  for (const std::string& n : names) v.push_back(m.text(n));
  return v;
}

// Answers every read with its fallback and notes (key, fallback) in the order of the reads.
struct RecordingStore : SettingsStore {
  mutable std::vector<std::pair<std::string, std::string>> reads;
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) const override {
    if (section == "Defaults") reads.emplace_back(key, fallback);
    return fallback;
  }
  void write(const std::string&, const std::string&, const std::string&) override {}
};
}  // namespace

// The user defaults: every key of section "Defaults", its spelling, its place in the order of
// reading and the value a first start takes, and what is held in memory from them.
TEST(Defaults, NinetyFiveKeysReadInOrderWithTheirFirstStartValues) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"User Name", ""}, {"User Initials", ""}, {"User Company", ""}, {"User Phone", ""}, {"User Email", ""},
      {"Auto Update", "1"}, {"Unit Measure", "0"}, {"Recipe Type", "0"}, {"Volume Units", "1"}, {"Malt Units", "0"},
      {"Hops Units", "1"}, {"Other Units", "5"}, {"Yeast Units", "0"}, {"Supply Units", "4"}, {"Sparge Units", "1"},
      {"Short Filenames", "0"}, {"Unix Filenames", "1"}, {"Include Cost", "0"}, {"Mash Eff", "80"},
      {"Boil Time", "60"}, {"Initial Boil", "3.5"}, {"Initial Ferm", "5.0"}, {"Malt Name", "Malt"},
      {"Malt Qty", "1.0"}, {"Malt Cost", "1.00"}, {"Malt Extraction", "1.032"}, {"Malt Color", "4.0"},
      {"Malt Mash", "0"}, {"Hops Name", "Hops"}, {"Hops Qty", "1.0"}, {"Hops Cost", "1.25"}, {"Hops Alpha", "5.5"},
      {"Hops Boil", "60"}, {"Other Name", "Other"}, {"Other Qty", "1.0"}, {"Other Cost", "2.00"},
      {"Yeast Name", "Yeast"}, {"Yeast Qty", "1"}, {"Yeast Cost", "1.50"}, {"Yeast Attenuation", "0.72"},
      {"Supply Name", "Item"}, {"Supply Qty", "1.0"}, {"Supply Cost", "2.00"}, {"Malt Qty Incement", "0.2"},
      {"Malt Cost Incement", "0.05"}, {"Malt Extraction Incement", "0.001"}, {"Malt Color Incement", "1.0"},
      {"Hops Qty Incement", "0.2"}, {"Hops Cost Incement", "0.05"}, {"Hops Alpha Incement", "0.1"},
      {"Hops Boil Incement", "5"}, {"Other Qty Incement", "1"}, {"Other Cost Incement", "0.05"},
      {"Yeast Qty Incement", "1"}, {"Yeast Cost Incement", "0.05"}, {"Yeast Attenuation Incement", "1"},
      {"Supply Qty Incement", "1.0"}, {"Supply Cost Incement", "1.00"}, {"Evaporation Rate", "15"},
      {"Mash Per Lbs", "0.40"}, {"Water Absorption", "0.12"}, {"Sparge Rate", "0.40"}, {"Sparge Temp", "170"},
      {"Left In Kettle", "0.12"}, {"Kettle Capacity", "5.0"}, {"Hold Initial Volume", "1"},
      {"Hold Final Volume", "1"}, {"Full Boil", "0"}, {"ionCa", "0"}, {"ionCl", "0"}, {"ionCO3", "0"}, {"ionMg", "0"},
      {"ionNa", "0"}, {"ionSO4", "0"}, {"Gram Increment", "0.5"}, {"Tsp Increment", "0.5"}, {"Threshold", "25"},
      {"Activate Quillmark", "0"}, {"Quillmark Path", ""}, {"chkTitle", "1"}, {"chkLabel", "0"}, {"chkExtra", "0"},
      {"chkDate", "1"}, {"chkIDCode", "0"}, {"posTitle", "Top"}, {"posLabel", "Center"}, {"posExtra", "Center"},
      {"posDate", "Bottom"}, {"posIDCode", "Bottom"}, {"fontTitle", "24"}, {"fontLabel", "20"}, {"fontExtra", "20"},
      {"fontDate", "12"}, {"fontIDCode", "10"}, {"Extra Text", ""},
  };
  Bench b;
  RecordingStore store;
  Defaults d;
  d.threshold = d.yeastAttenuation = -1;
  loadDefaults(store, d, b.wb->errors);
  EXPECT_EQ(store.reads, expected);
  // "Threshold" is stored as a percent and held as a fraction.
  EXPECT_TRUE(d.threshold == 0.25 && d.yeastAttenuation == 0.72 && b.prompter.shown.empty());
}

TEST(Defaults, AnEmptyStoreGivesTheTableValues) {
  Bench b;
  const Defaults& d = b.wb->defaults;
  EXPECT_EQ(std::vector<double>({d.mashEff, static_cast<double>(d.otherUnits), d.hopsBoilIncr, d.spargeTemp}),
            std::vector<double>({80, 5, 5, 170}));
  EXPECT_EQ(d.maltName, std::string("Malt") + std::string(46, ' '));  // text of 50
  EXPECT_EQ(d.posTitle + "|" + d.userInitials + "|", "Top    |   |");
}

TEST(Defaults, TextsAreCutAndThresholdIsAFraction) {
  Bench b;
  b.settings.write("Defaults", "User Initials", "ABCDE");
  b.settings.write("Defaults", "Threshold", "40");
  b.settings.write("Defaults", "Supply Units", "9");
  b.wb->loadDefaults();
  EXPECT_EQ(b.wb->defaults.userInitials, "ABC");
  EXPECT_EQ(std::vector<double>({b.wb->defaults.threshold, static_cast<double>(b.wb->defaults.supplyUnits)}),
            std::vector<double>({0.4, 9}));
}

TEST(Defaults, AValueThatIsNoNumberEndsThroughTheErrorRoutine) {
  Bench b;
  b.settings.write("Defaults", "Boil Time", "sixty");
  EXPECT_THROW(b.wb->loadDefaults(), Terminated);
  EXPECT_EQ(shownLines(b.prompter).back(), "Terminate Program: Error #13(Type mismatch) in frmMain!loadDefaults at Line 0");
  // A whole number beyond 16 bits overflows; an empty number is no number.
  for (const char* v : {"99999", ""}) {
    Bench o;
    o.settings.write("Defaults", "Auto Update", v);
    EXPECT_THROW(o.wb->loadDefaults(), Terminated);
    EXPECT_EQ(o.prompter.shown.back().text, *v ? "Error #6(Overflow) in frmMain!loadDefaults at Line 0"
                                               : "Error #13(Type mismatch) in frmMain!loadDefaults at Line 0");
  }
}

TEST(Defaults, SaverWritesNinetyTwoKeysInTheirPlainForms) {
  Bench b;
  b.settings.values.clear();
  b.settings.writeCount = 0;
  b.wb->defaults.threshold = 0.07;
  b.wb->defaults.userName = fixedText("Ann Brewer", 60);
  saveDefaults(b.settings, b.wb->defaults);
  EXPECT_EQ(b.settings.writeCount, 92);
  std::string held;
  for (const char* key : {"Threshold", "User Name", "Initial Ferm", "Malt Extraction", "posDate"})
    held += b.settings.read("Defaults", key, "?") + "|";
  EXPECT_EQ(held, "7|Ann Brewer|5|1.032|Bottom|");
  for (const char* never : {"Recipe Type", "Supply Units", "Sparge Temp"})
    EXPECT_EQ(b.settings.read("Defaults", never, "absent"), "absent") << never;
}

TEST(SettingsFile, KeepsSectionsAndSurvivesReopening) {
  TempFolder dir;
  const std::string path = dir.file("conf/Zythara 2.ini");
  {
    FileSettingsStore s(path);
    s.write("Settings", "MainLeft", "500");
    s.write("Recipe List", "Sort By", "3");
    s.write("Defaults", "User Name", "K\xF6lsch Fan");
    s.write("Defaults", "Extra Text", "two\nlines");
    s.write("settings", "mainleft", "600");  // keys are matched without regard to case
  }
  FileSettingsStore s(path);
  EXPECT_EQ(s.read("Settings", "MainLeft", "") + "|" + s.read("Defaults", "User Name", "") + "|" +
                s.read("Defaults", "Extra Text", "") + "|" + s.read("Defaults", "Missing", "fallback"),
            "600|K\xF6lsch Fan|two\nlines|fallback");
  EXPECT_EQ(readFile(path),
            "[Settings]\nMainLeft=600\n\n[Recipe List]\nSort By=3\n\n[Defaults]\nUser Name=K\xF6lsch Fan\n"
            "Extra Text=two\\nlines\n\n");
}

TEST(SettingsFile, ForgivesAHandEditedFile) {
  TempFolder dir;
  const std::string path = dir.file("Zythara 2.ini");
  writeFile(path,
            "\xEF\xBB\xBF[Defaults]\r\n"
            "; a comment\r\n"
            "  Mash Eff = 72\r\n"
            "Boil Time=60\r\n"
            "BOIL TIME=75\r\n"
            "no equals sign here\r\n"
            "=orphan\r\n"
            "Quillmark Path=C:\\\\new\\\\table\r\n"  // as the program writes a backslash
            "Extra Text=a\\nb\\z\r\n"
            " [ Settings ] \r\n"
            "MainLeft=1e300\r\n"
            "MainTop=\x01\x02\xff\r\n");
  FileSettingsStore s(path);
  // The last of a doubled key counts; an unknown escape stays; numbers out of reach are no window position.
  std::string read;
  for (const char* key : {"Mash Eff", "Boil Time", "Quillmark Path", "Extra Text"}) read += s.read("Defaults", key, "") + "|";
  EXPECT_EQ(read, " 72|75|C:\\new\\table|a\nb\\z|");
  EXPECT_EQ(std::vector<long>({readLong(s, "Settings", "MainLeft", 500), readLong(s, "Settings", "MainTop", 500)}),
            std::vector<long>({500, 500}));
  // A write reaches the key that reads count; backslashes survive the round trip.
  s.write("defaults", "boil time", "90");
  s.write("Defaults", "Quillmark Path", "C:\\new\\table\\rx");
  FileSettingsStore again(path);
  read.clear();
  for (const char* key : {"Boil Time", "Quillmark Path", "Extra Text"}) read += again.read("Defaults", key, "") + "|";
  EXPECT_EQ(read, "90|C:\\new\\table\\rx|a\nb\\z|");

  // Bytes that are no settings file at all read as an empty store.
  std::string junk;
  for (int i = 0; i < 4096; ++i) junk += static_cast<char>((i * 131 + 7) % 256);
  writeFile(path, junk);
  FileSettingsStore j(path);
  EXPECT_EQ(j.read("Defaults", "Mash Eff", "80"), "80");
}

TEST(Properties, FilledFromTheDefaultsWithTheirFormats) {
  Bench b;
  PropertiesModel m;
  m.fillFromDefaults(b.wb->defaults);
  EXPECT_EQ(texts(m, {"txtMashEfficiency", "txtInitialBoilVolume", "txtFermentVolume", "txtMaltDef(0)", "txtMaltDef(2)",
                      "txtMaltDef(3)", "txtHopsDef(3)", "txtYeastDef(3)", "txtMashPerLb", "txtThreshold"}),
            (std::vector<std::string>{"80", "3.5", "5.0", "Malt", "$1.00", "1.032", "5.5", "72.", "0.40", "25"}));
  EXPECT_EQ(std::to_string(m.combo("cboOtherUnits")) + " " + m.comboText("cboOtherUnits") + "|" +
                m.comboText("cboPosition(3)") + "|" + m.comboText("cboFontSize(0)"),
            "5 Tsp|Bottom|24");
  EXPECT_EQ(m.check("chkTitleText") + m.check("chkUnixNames"), 2);
}

TEST(Properties, ReformatAndKeyFilter) {
  PropertiesModel m;
  const std::vector<std::vector<std::string>> cases = {{"txtMaltDef(2)", "2.5", "$2.50"},
                                                       {"txtMaltDef(2)", "$1,234.567", "$1,234.57"},
                                                       {"txtMaltDef(1)", "3", "3.0"},
                                                       {"txtUserName", " Ann ", " Ann "}};
  for (const auto& c : cases) {
    m.text(c[0]) = c[1];
    m.reformat(c[0]);
    EXPECT_EQ(m.text(c[0]), c[2]) << c[1];
  }
  ScriptedPrompter p;
  EXPECT_EQ(std::vector<int>({m.filterKey("txtBoilTime", 'x', &p), m.filterKey("txtBoilTime", '-', &p),
                              m.filterKey("txtUserName", 'x', &p), p.beeps}),
            std::vector<int>({0, 0, 'x', 2}));
}

TEST(Properties, UnitSystemChangeToMetricResetsWithConvertedValues) {
  Bench b;
  PropertiesModel m;
  m.fillFromDefaults(b.wb->defaults);
  b.prompter.answers = {Answer::Yes};
  m.cboUnitType_Click(METRIC_MEASURES, b.prompter);
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{
                "Change Units: Change the other Measurement Units to match (reset to defaults for the units selected)?"});
  EXPECT_EQ(b.prompter.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(std::vector<int>({m.combo("cboVolumeUnits"), m.combo("cboMaltUnits"), m.combo("cboHopsUnits"),
                              m.combo("cboSpargeUnits")}),
            std::vector<int>({LITER_CONST, UNIT_KG, UNIT_GR, LITER_CONST}));
  EXPECT_EQ(texts(m, {"txtInitialBoilVolume", "txtFermentVolume", "txtMaltDef(1)", "txtMaltDef(2)", "txtHopsDef(1)",
                      "txtHopsDef(2)", "txtMaltIncr(0)", "txtHopsIncr(0)", "txtMaltIncr(1)"}),
            (std::vector<std::string>{"14.0", "20.0", "0.45", "$2.20", "28.35", "$0.04", "0.09", "5.67", "$0.11"}));

  // Answering No changes only the unit system.
  b.prompter.answers = {Answer::No};
  m.cboUnitType_Click(IMPERIAL_MEASURES, b.prompter);
  EXPECT_EQ(std::vector<int>({m.combo("cboUnitType"), m.combo("cboVolumeUnits")}),
            std::vector<int>({IMPERIAL_MEASURES, LITER_CONST}));
  b.prompter.answers = {Answer::Yes};
  m.cboUnitType_Click(IMPERIAL_MEASURES, b.prompter);
  EXPECT_EQ(m.combo("cboVolumeUnits"), IMPERIAL_GAL_CONST);
  EXPECT_EQ(texts(m, {"txtMaltDef(1)", "txtFermentVolume"}), (std::vector<std::string>{"1.0", "5.0"}));

  // While the window loads no question is asked.
  m.loading = true;
  m.cboUnitType_Click(US_MEASURES, b.prompter);
  EXPECT_EQ(b.prompter.shown.size(), 3u);
}

TEST(Properties, ResetWaterAndApply) {
  Bench b;
  PropertiesModel m;
  m.fillFromDefaults(b.wb->defaults);
  m.text("txtEvaporationRate") = "9";
  m.text("txtKettleCapacity") = "7.5";
  m.check("chkFullBoil") = 1;
  m.cmdResetWater();
  EXPECT_EQ(texts(m, {"txtEvaporationRate", "txtKettleCapacity"}), (std::vector<std::string>{"15", "5.00"}));
  EXPECT_EQ(m.check("chkFullBoil"), 0);

  m.text("txtUserName") = "Ann";
  m.text("txtYeastDef(3)") = "75";
  m.text("txtThreshold") = "30";
  m.combo("cboSupplyUnits") = 7;
  m.combo("cboRecipeType") = 3;  // has no effect
  m.text("txtHopsDef(2)") = "$1.10";
  b.settings.writeCount = 0;
  ASSERT_TRUE(m.cmdApply(b.wb->defaults, b.settings, b.wb->errors));
  EXPECT_EQ(b.settings.writeCount, 92);
  const Defaults& d = b.wb->defaults;
  EXPECT_EQ(std::vector<double>({d.yeastAttenuation, d.threshold, static_cast<double>(d.supplyUnits),
                                 static_cast<double>(d.recipeType), d.hopsCost}),
            std::vector<double>({0.75, 0.3, 7, 0, 1.1}));
  EXPECT_EQ(trim(d.userName), "Ann");
  EXPECT_EQ(b.settings.read("Defaults", "Yeast Attenuation", "") + " " + b.settings.read("Defaults", "Threshold", ""),
            "0.75 30");
  // The supply unit is applied but never saved: the next start has the old one.
  b.wb->loadDefaults();
  EXPECT_EQ(std::vector<double>({static_cast<double>(b.wb->defaults.supplyUnits), b.wb->defaults.yeastAttenuation}),
            std::vector<double>({4, 0.75}));
}

TEST(Properties, QuillmarkPathIsFoundInTheProgramsFolder) {
  TempFolder dir;
  makeFolders(dir.file("Quilmk"));
  writeFile(dir.file("Quilmk/Quilmk"), "x");
  PropertiesModel m;
  m.check("chkActivateQuillmark") = 1;
  m.chkActivateQuillmark_Click(dir.path());
  EXPECT_EQ(m.text("txtQuillmarkPath"), dir.file("Quilmk/Quilmk"));
}

// The program folder: where the settings and data live, filled from the shipped files.
TEST(ProgramFolder, AChosenFolderGetsTheShippedFilesButNoRecipes) {
  TempFolder shipped, home;
  ProgramFolder s(shipped.path());
  s.ensureFolders();
  makeFolders(shipped.file("Help"));
  writeFile(s.referenceFile("Zyth.enc"), "topics");
  writeFile(s.referenceFile("hop-cone.png"), "png");
  writeFile(shipped.file("Help/index.html"), "<html>");
  writeFile(s.dataFile("ZYStyle.dat"), "styles");
  writeFile(s.dataFile("ZYCategory.dat"), "categories");
  writeFile(s.dataFile("ZYRecipe.dat"), "the build tree's own recipes");

  // The executable's folder holds the encyclopedia: it is the program folder unless one is named.
  EXPECT_EQ(chooseProgramFolder("", shipped.path()), shipped.path());
  const std::string mine = home.file("Brewing");
  EXPECT_EQ(chooseProgramFolder(mine, shipped.path()), mine);
  ProgramFolder m(mine);
  EXPECT_EQ(readFile(m.referenceFile("Zyth.enc")) + "|" + readFile(m.referenceFile("hop-cone.png")) + "|" +
                readFile(home.file("Brewing/Help/index.html")) + "|" + readFile(m.dataFile("ZYStyle.dat")),
            "topics|png|<html>|styles");
  EXPECT_FALSE(fileExists(m.dataFile("ZYRecipe.dat")));

  // A folder that has its files keeps them: nothing is copied over the brewer's edits.
  writeFile(m.dataFile("ZYStyle.dat"), "my styles");
  writeFile(s.referenceFile("Zyth.enc"), "newer topics");
  chooseProgramFolder(mine, shipped.path());
  EXPECT_EQ(readFile(m.dataFile("ZYStyle.dat")) + "|" + readFile(m.referenceFile("Zyth.enc")), "my styles|topics");
}
