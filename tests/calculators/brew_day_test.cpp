// The brew-day calculators over the open recipe: the mash schedule and the yeast starter.
#include <gtest/gtest.h>

#include "calculators/CalcBench.h"
#include "calculators/MashSchedule.h"
#include "calculators/Starter.h"

using namespace zy;
using namespace zy::test;

namespace {
using Entries = std::vector<std::pair<std::string, std::string>>;  // time, temperature

Entries entries(const MashSchedule& m) {
  Entries e;
  for (const MashEntry& x : m.lvMash) e.emplace_back(x.time, x.temp);
  return e;
}

// A recipe with the given holds (minutes, degrees).
void openWithSteps(CalcBench& cb, const std::vector<std::pair<double, double>>& steps) {
  cb.open({CalcBench::pale(8)}, [&](RecipeRecord& r) {
    for (size_t i = 0; i < steps.size(); ++i) {
      r.mashStepTime[i] = steps[i].first;
      r.mashStepTemp[i] = steps[i].second;
      r.mashStepComment[i] = "Rest " + std::to_string(i + 1) + "   ";
    }
  });
}
}  // namespace

TEST(MashSchedule, HoldsConvertToPointsOfTheCurveAndBack) {
  struct Case {
    std::vector<std::pair<double, double>> holds;
    Entries points;
  };
  const std::vector<Case> cases = {
      {{{30.7, 122}, {60, 152}, {10, 170}}, {{"0", "122"}, {"30", "152"}, {"90", "170"}, {"100", "170"}}},
      {{{45, 150}}, {{"0", "150"}, {"45", "150"}}},
  };
  for (const Case& c : cases) {
    CalcBench cb;
    openWithSteps(cb, c.holds);
    MashSchedule m(cb.editor);
    m.load();
    const Entries holds = entries(m);
    EXPECT_EQ(m.lvMash[0].comment, "Rest 1");
    m.optTime(MashSchedule::FROM_START);
    EXPECT_EQ(entries(m), c.points);
    EXPECT_FALSE(m.cmdMoveUpEnabled || m.cmdMoveDnEnabled);
    m.optTime(MashSchedule::EACH_TEMP);
    EXPECT_EQ(entries(m), holds);
  }
}

TEST(MashSchedule, NewIsLimitedPerModeAndOkStoresDurations) {
  CalcBench cb;
  openWithSteps(cb, {{30, 122}, {60, 152}, {10, 170}});
  MashSchedule m(cb.editor);
  m.load();
  m.optTime(MashSchedule::FROM_START);
  m.select(3);
  while (m.lvMash.size() < 12) m.cmdNew();
  EXPECT_EQ(m.lvMash[4].temp, "170");  // a new entry starts at the temperature before it
  m.cmdNew();
  EXPECT_EQ(std::to_string(m.lvMash.size()) + " " + shownLines(cb.b.prompter).back(),
            "12 Mash Information: Limitied to 12 Time/Temp Entries in this Mode");

  // Back to five points; OK in the time-line mode stores holds, and clears the slots behind.
  m.lvMash.resize(5);
  m.select(4);
  m.setTime("115");
  m.cmdOK();
  const RecipeRecord& r = cb.wb.recipe.rec;
  EXPECT_EQ(m.mode, MashSchedule::EACH_TEMP);
  EXPECT_EQ((std::vector<double>(r.mashStepTime.begin(), r.mashStepTime.begin() + 5)),
            (std::vector<double>{30, 60, 10, 15, 0}));
  EXPECT_EQ(r.mashStepComment[3] + r.mashStepComment[4], std::string("Rest 3") + std::string(74, ' '));
  EXPECT_TRUE(cb.editor.recipeChanged());

  MashSchedule holds(cb.editor);
  holds.load();
  while (holds.lvMash.size() < 11) holds.cmdNew();
  holds.cmdNew();
  EXPECT_EQ(shownLines(cb.b.prompter).back(), "Mash Information: Limitied to 11 Time/Temp Entries in this Mode");
}

TEST(MashSchedule, PlotIsAStaircaseOfHoldsWithClampedTemperatures) {
  CalcBench cb;
  openWithSteps(cb, {{30, 122}, {60, 250}});
  MashSchedule m(cb.editor);
  m.load();
  MashPlot p = m.plotMash(9000, 4500);
  EXPECT_EQ(p.points, (std::vector<std::pair<double, double>>{{0, 122}, {30, 122}, {30, 200}, {90, 200}}));
  EXPECT_EQ(m.lvMash[1].temp, "250");
  // Time 0 to 90 over 15 parts: a step of 5 (6 rounds to 5), the top 90. Temperature 70 to 200
  // over 9 parts: 14.4 rounds to 15, the top 70 + 9 * 15.
  EXPECT_EQ((std::vector<double>{p.timeStep, p.timeMax, p.tempStep, p.tempMax}), (std::vector<double>{5, 90, 15, 205}));
  m.optTime(MashSchedule::FROM_START);
  EXPECT_EQ(m.plotMash(9000, 4500).points.size(), 3u);
}

TEST(MashSchedule, DeletingAsksAndClosingWithChangesAsks) {
  CalcBench cb;
  openWithSteps(cb, {{30, 122}, {60, 152}});
  MashSchedule m(cb.editor);
  m.load();
  m.select(0);
  cb.b.prompter.answers = {Answer::Yes, Answer::Cancel, Answer::No};
  m.cmdDelete();
  EXPECT_EQ(entries(m), (Entries{{"60", "152"}}));
  EXPECT_EQ(std::vector<bool>({m.queryClose(), m.queryClose()}), std::vector<bool>({false, true}));  // Cancel, No
  EXPECT_EQ(cb.wb.recipe.rec.mashStepTime[1], 60);  // No writes nothing
  EXPECT_EQ(shownLines(cb.b.prompter)[1], "Data Changed: Mash Data Changed.  Save to Recipe?");
}

TEST(StarterCalculator, ResultsByUnitSystem) {
  // Unit system, volume unit, volume, gravity and carbonation level; the two results shown and
  // whether the kraeusening volume can be added. 5 gallons: 16 ounces of starter, and
  // 5 * 12.8 * 0.04 / 0.05 = 51.2 of young beer; 20 liters: 0.5 liters, and 5.283 gallons * 0.1 *
  // 0.8 back in liters, 1.6; in British units the conversion pair shows, unformatted.
  struct Case {
    int unitType, volumeUnit;
    const char *volume, *gravity;
    int level;
    const char *starter, *kraeusen;
    bool enabled;
  };
  const char* us = "Yeast Starter Volume = 16 US Fl Oz";
  const std::vector<Case> cases = {
      {US_MEASURES, US_GAL_CONST, "5.0", "1.050", 1, us, " Kraeusening Volume = 51 US Fl Oz", true},
      {US_MEASURES, US_GAL_CONST, "5.0", "1.050", 2, us, " Kraeusening Volume = 60 US Fl Oz", true},
      {US_MEASURES, US_GAL_CONST, "5.0", "1.000", 1, us, " Kraeusening Volume = N/A", false},
      {US_MEASURES, US_GAL_CONST, "0.0", "1.050", 1, "Yeast Starter Volume = N/A", " Kraeusening Volume = N/A", false},
      {METRIC_MEASURES, LITER_CONST, "20.0", "1.050", 1, "Yeast Starter Volume = 0.5 Liters",
       " Kraeusening Volume = 1.6 Liters", true},
      {IMPERIAL_MEASURES, IMPERIAL_GAL_CONST, "5.0", "1.050", 0, "Yeast Starter Volume = 15.35 Imp Fl Oz",
       " Kraeusening Volume = 42.4000000000126 Imp Fl Oz", true},
  };
  for (const Case& c : cases) {
    CalcBench cb;
    cb.open({}, [&](RecipeRecord& r) {
      r.unitType = c.unitType;
      r.volumeUnits = c.volumeUnit;
    });
    StarterCalculator s(cb.editor);
    s.load();
    s.setVolume(c.volume);
    s.setGravity(c.gravity);
    s.setLevel(c.level);
    EXPECT_EQ(s.lblYbox + "|" + s.lblKbox, std::string(c.starter) + "|" + c.kraeusen) << c.volume << " " << c.gravity;
    EXPECT_EQ(s.cmdAddKraeusenEnabled, c.enabled) << c.volume << " " << c.gravity;
  }
}

TEST(StarterCalculator, AddToRecipeWritesThePrimingCommentAndTheComment) {
  CalcBench cb;
  cb.open({makeItem(KIND_YEAST, "American Ale", 0, 0)});
  cb.editor.sheet.grid.setCell(cb.editor.sheet.grid.headerRow(KIND_YEAST) + 1, COL_UNITS, "");
  StarterCalculator s(cb.editor);
  s.load();
  s.setGravity("1.050");
  s.cmdAddKraeusen();
  EXPECT_EQ(cb.editor.fermentation.txtConditioning, "Use 51 US Fl Oz for Medium carbonation.");
  s.cmdAddYeast();
  EXPECT_EQ(cb.editor.comments.comment, "Yeast Starter Volume: 16 US Fl Oz\r\n");
  const int yeast = cb.editor.sheet.grid.headerRow(KIND_YEAST) + 1;
  EXPECT_EQ(cb.editor.sheet.grid.cell(yeast, COL_QTY) + " " + cb.editor.sheet.grid.cell(yeast, COL_UNITS), "1 Packet");
  EXPECT_TRUE(cb.editor.recipeChanged());
  EXPECT_EQ(shownLines(cb.b.prompter),
            (std::vector<std::string>{
                "Starter/Kraeusening: Use 51 US Fl Oz for Medium carbonation. added to \n"
                "Fermentation/Priming Instructions Window",
                "Starter/Kraeusening: Yeast Starter Volume: 16 US Fl Oz added to Comments Window"}));
}
