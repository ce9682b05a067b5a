#include "calculators/MashSchedule.h"

#include <algorithm>
#include <cmath>

#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
double val(const std::string& t) { return lenientValue(t); }
std::string wholeText(double v) { return plainText(std::trunc(v)); }

// A tick step of about one per `span` units of chart size, on a multiple of 5; the top of the
// axis raised to a whole number of steps.
void axis(double lo, double& hi, double& step, double chartSize, double span) {
  const double parts = chartSize / span;
  double s = parts > 0 ? (hi - lo) / parts : hi - lo;
  s = std::floor(s / 5.0 + 0.5) * 5.0;
  if (s <= 0) s = 5.0;  // a chart wide enough for a tick per minute still ticks every 5
  step = s;
  hi = std::floor((hi - lo) / s + 0.99) * s + lo;
}
}  // namespace

MashSchedule::MashSchedule(RecipeEditor& editor) : editor_(editor), wb_(editor.wb) {}

void MashSchedule::load() {
  filling = true;
  const RecipeRecord& rec = wb_.recipe.rec;
  lvMash.clear();
  for (size_t i = 0; i < kSteps; ++i)
    if (rec.mashStepTime[i] > 0)
      lvMash.push_back({wholeText(rec.mashStepTime[i]), wholeText(rec.mashStepTemp[i]), trim(rec.mashStepComment[i])});
  mode = EACH_TEMP;
  selected = -1;
  fillBoxes();
  ManageButtons(selected);
  changed = false;
  filling = false;
}

bool MashSchedule::getValues(int index, double& time, double& temp, std::string& comment) const {
  if (index < 1 || index > static_cast<int>(lvMash.size())) return false;
  const MashEntry& e = lvMash[static_cast<size_t>(index - 1)];
  time = val(e.time);
  temp = val(e.temp);
  comment = e.comment;
  return true;
}

void MashSchedule::ManageButtons(int index) {
  const int n = static_cast<int>(lvMash.size());
  const bool has = index >= 0 && index < n;
  editEnabled = has;
  cmdDeleteEnabled = has;
  // Entries are points of a time line in mode 0: they keep their order.
  cmdMoveUpEnabled = has && mode == EACH_TEMP && index > 0;
  cmdMoveDnEnabled = has && mode == EACH_TEMP && index < n - 1;
}

void MashSchedule::toFromStart() {
  const size_t n = lvMash.size();
  double r = val(lvMash[0].time);
  const MashEntry first = lvMash[0];
  for (size_t i = 1; i < n; ++i) {
    const double d = val(lvMash[i].time);
    lvMash[i - 1] = {plainText(r), lvMash[i].temp, lvMash[i].comment};
    r = d + r;
  }
  if (n > 1) lvMash[n - 1].time = plainText(r);
  lvMash.insert(lvMash.begin(), MashEntry{"0", first.temp, first.comment});
}

void MashSchedule::toEachTemp() {
  const size_t n = lvMash.size();
  for (size_t i = 1; i < n; ++i) lvMash[i - 1].time = plainText(val(lvMash[i].time) - val(lvMash[i - 1].time));
  if (n >= 2) lvMash.pop_back();
}

void MashSchedule::optTime(int m) {
  m = m == FROM_START ? FROM_START : EACH_TEMP;
  if (m != mode && !lvMash.empty()) {
    if (m == FROM_START) toFromStart();
    else toEachTemp();
  }
  mode = m;
  if (selected >= static_cast<int>(lvMash.size())) selected = -1;
  fillBoxes();
  ManageButtons(selected);
}

void MashSchedule::fillBoxes() {
  const bool was = filling;
  filling = true;
  if (selected >= 0 && selected < static_cast<int>(lvMash.size())) {
    const MashEntry& e = lvMash[static_cast<size_t>(selected)];
    txtTime = e.time, txtTemp = e.temp, txtComment = e.comment;
  } else {
    txtTime.clear(), txtTemp.clear(), txtComment.clear();
  }
  filling = was;
}

void MashSchedule::select(int index) {
  selected = index >= 0 && index < static_cast<int>(lvMash.size()) ? index : -1;
  fillBoxes();
  ManageButtons(selected);
}

void MashSchedule::cmdNew() {
  const int limit = mode == FROM_START ? 12 : 11;
  if (static_cast<int>(lvMash.size()) >= limit) {
    wb_.prompter.message("Limitied to " + itos(limit) + " Time/Temp Entries in this Mode", kCaption, Icon::Information,
                         Buttons::OK);
    return;
  }
  const int at = selected >= 0 && selected < static_cast<int>(lvMash.size()) ? selected + 1 : 0;
  const std::string temp = at > 0 ? lvMash[static_cast<size_t>(at - 1)].temp : std::string("70");
  lvMash.insert(lvMash.begin() + at, MashEntry{"", temp, ""});
  selected = at;
  fillBoxes();
  ManageButtons(selected);
  changed = true;
}

void MashSchedule::cmdDelete() {
  if (selected < 0 || selected >= static_cast<int>(lvMash.size())) return;
  if (wb_.prompter.message("Are you sure you want to Delete this Data Entry?", "Delete Data", Icon::Question,
                           Buttons::YesNo, Answer::No) != Answer::Yes)
    return;
  lvMash.erase(lvMash.begin() + selected);
  selected = -1;
  fillBoxes();
  ManageButtons(selected);
  changed = true;
}

void MashSchedule::cmdMoveUp() {
  if (mode != EACH_TEMP || selected <= 0 || selected >= static_cast<int>(lvMash.size())) return;
  std::swap(lvMash[static_cast<size_t>(selected)], lvMash[static_cast<size_t>(selected - 1)]);
  --selected;
  ManageButtons(selected);
  changed = true;
}

void MashSchedule::cmdMoveDn() {
  if (mode != EACH_TEMP || selected < 0 || selected + 1 >= static_cast<int>(lvMash.size())) return;
  std::swap(lvMash[static_cast<size_t>(selected)], lvMash[static_cast<size_t>(selected + 1)]);
  ++selected;
  ManageButtons(selected);
  changed = true;
}

void MashSchedule::edited() {
  if (filling || selected < 0 || selected >= static_cast<int>(lvMash.size())) return;
  lvMash[static_cast<size_t>(selected)] = {txtTime, txtTemp, txtComment};
  changed = true;
}

void MashSchedule::setTime(const std::string& text) {
  txtTime = text;
  edited();
}

void MashSchedule::setTemp(const std::string& text) {
  txtTemp = text;
  edited();
}

void MashSchedule::setComment(const std::string& text) {
  txtComment = text;
  edited();
}

MashPlot MashSchedule::plotMash(double width, double height) const {
  MashPlot p;
  size_t n = lvMash.size();
  if (n > kMaxPlotPoints) {
    wb_.prompter.message("Max plot points is limited to 100", kCaption, Icon::Information, Buttons::OK);
    n = kMaxPlotPoints;
  }
  auto clampTemp = [](double t) { return std::clamp(t, 70.0, 200.0); };
  p.staircase = mode == EACH_TEMP;
  double running = 0;
  for (size_t i = 0; i < n; ++i) {
    const double t = val(lvMash[i].time), temp = clampTemp(val(lvMash[i].temp));
    if (p.staircase) {
      p.points.emplace_back(running, temp);
      running += t;
      p.points.emplace_back(running, temp);
    } else {
      p.points.emplace_back(t, temp);
    }
  }
  for (const auto& [t, temp] : p.points) {
    p.timeMax = std::max(p.timeMax, t);
    p.tempMax = std::max(p.tempMax, temp);
  }
  axis(p.timeMin, p.timeMax, p.timeStep, width, 600);
  axis(p.tempMin, p.tempMax, p.tempStep, height, 500);
  return p;
}

void MashSchedule::cmdOK() {
  optTime(EACH_TEMP);
  RecipeRecord& rec = wb_.recipe.rec;
  for (size_t i = 0; i < kSteps; ++i) {
    if (i < lvMash.size()) {
      rec.mashStepTime[i] = val(lvMash[i].time);
      rec.mashStepTemp[i] = val(lvMash[i].temp);
      rec.mashStepComment[i] = fixedText(lvMash[i].comment, 40);
    } else {
      rec.mashStepTime[i] = 0;
      rec.mashStepTemp[i] = 0;
      rec.mashStepComment[i] = std::string(40, ' ');
    }
  }
  changed = false;
  editor_.recChanged();
}

bool MashSchedule::queryClose() {
  if (!changed) return true;
  const Answer a = wb_.prompter.message("Mash Data Changed.  Save to Recipe?", "Data Changed", Icon::Question,
                                        Buttons::YesNoCancel, Answer::Yes);
  if (a == Answer::Cancel) return false;
  if (a == Answer::Yes) cmdOK();
  return true;
}

}  // namespace zy
