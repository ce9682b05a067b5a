#include <gtest/gtest.h>

#include "calculators/CalcBench.h"
#include "calculators/MashSchedule.h"

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
  EXPECT_EQ(m.lvMash.size(), 12u);
  EXPECT_EQ(shownLines(cb.b.prompter).back(), "Mash Information: Limitied to 12 Time/Temp Entries in this Mode");

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
