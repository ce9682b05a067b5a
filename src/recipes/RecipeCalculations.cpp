#include "recipes/RecipeCalculations.h"

#include <algorithm>
#include <cmath>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "styles/StyleMatch.h"
#include "workbench/Workbench.h"

namespace zy {

const char* const kTooBitterMessage = "Do you actually think anyone\n  will drink a brew this bitter?";

namespace {
const char* const kColorFormat = "0.0;\\N\\/\\A;\\N\\/\\A";
const char* const kNA = "N/A";

const Rgb kColorTable[26] = {
    {255, 255, 255}, {254, 252, 210}, {254, 252, 80}, {252, 251, 3}, {231, 212, 18}, {215, 165, 46},
    {204, 150, 52},  {203, 137, 53},  {208, 126, 45}, {204, 116, 53}, {202, 101, 49}, {190, 94, 52},
    {177, 88, 50},   {167, 83, 49},   {154, 77, 50},  {142, 72, 46},  {128, 64, 36},  {115, 56, 26},
    {102, 52, 23},   {91, 46, 13},    {81, 43, 7},    {71, 38, 3},    {61, 31, 1},    {52, 25, 0},
    {45, 20, 0},     {40, 15, 0}};

// A unit code read from a file indexes a conversion table; a code past the table's end is an
// index failure, which the error routine treats as unknown (and which ends the program).
bool unitInRange(Workbench& wb, int unit, int count, const char* fn) {
  if (unit >= 0 && unit < count) return true;
  wb.errors.reportError(ERR_SUBSCRIPT, 0, fn, "", "Subscript out of range");
  return false;
}

// A sum that left the range of a double is an overflow.
bool finite(Workbench& wb, double v, const char* fn) {
  if (std::isfinite(v)) return true;
  wb.errors.reportError(ERR_OVERFLOW, 0, fn, "", "Overflow");
  return false;
}

double gallons(Workbench& wb, const std::string& text, const char* fn) {
  const int vu = wb.recipe.rec.volumeUnits;
  if (!unitInRange(wb, vu, 8, fn)) return 0;
  return cellValue(text) * measures().volume_convert[vu][US_GAL_CONST];
}
}  // namespace

const char* targetColourWord(TargetColour c) {
  switch (c) {
    case TargetColour::Green: return "green";
    case TargetColour::Yellow: return "yellow";
    case TargetColour::Red: return "red";
    default: return "none";
  }
}

double cellValue(const std::string& text) { return lenientValue(text); }

double moneyValue(const std::string& text) {
  if (auto v = strictValue(text)) return *v;
  std::string t;
  bool negative = false;
  for (char c : text) {
    if (c == '$' || c == ',' || c == ' ') continue;
    if (c == '(') {
      negative = true;
      continue;
    }
    t += c;
  }
  double v = lenientValue(t);
  return negative ? -v : v;
}

Rgb colorTableRow(int row) {
  row = std::clamp(row, 1, 26);
  return kColorTable[row - 1];
}

std::string lblExtPct(double rating) {
  if (rating >= 1.0 && rating < 2.0) return formatNumber((rating - 1.0) / 0.047, "(0%)");
  return "(0%)";
}

void computeRecipeColor(Workbench& wb, RecipeSheet& s) {
  static const char* const fn = "frmRecipe!computeRecipeColor";
  const IngredientTable& g = s.grid;
  const Measures& m = measures();
  const double fermentGallons = gallons(wb, s.txtFermentVolume, fn);
  if (!(fermentGallons > 0)) {
    s.lblColor = s.lblOG = s.lblFG = s.lblAlcohol = kNA;
    updateColorSample(s);
    updateStyleFlags(wb, s);
    return;
  }
  const double efficiency = wb.recipe.rec.mashEfficiency;
  double colorSum = 0, gravitySum = 0;
  const int last = g.totalRow();
  for (int r = 1; r < last && g.row(r).isItem(); ++r) {
    const IngredientRow& row = g.row(r);
    const double qty = cellValue(row.cells[COL_QTY]);
    if (!(qty > 0)) continue;
    if (!unitInRange(wb, row.unit, 4, fn)) return;
    const double pounds = qty * m.weightConvert[row.unit][UNIT_LBS];
    double extract = cellValue(row.cells[COL_RATING]);
    const double lovibond = cellValue(row.cells[COL_DETAIL]);
    double contribution;
    if (row.cells[COL_MASH] == "Yes") {
      // A mashed malt yields its extract at the mash efficiency, and its colour with it.
      extract = (extract - 1.0) * efficiency / 100.0 + 1.0;
      contribution = lovibond * pounds * efficiency / 100.0;
    } else {
      contribution = lovibond * pounds;
    }
    colorSum += contribution;
    if (extract > 0) gravitySum += (extract - 1.0) * pounds;
  }
  if (!finite(wb, colorSum, fn) || !finite(wb, gravitySum, fn)) return;

  // The most attenuative yeast wins; an implausible attenuation (or none) takes the default.
  double attenuation = 0;
  for (int r = last - 1; r > 0 && g.row(r).isItem(); --r)
    attenuation = std::max(attenuation, cellValue(g.row(r).cells[COL_RATING]));
  attenuation /= 100.0;
  if (attenuation < 0.5 || attenuation > 0.95) attenuation = wb.defaults.yeastAttenuation;

  s.lblColor = formatNumber(colorSum / fermentGallons, kColorFormat);
  s.ogPoints = gravitySum / fermentGallons;
  const double fgPoints = (1.0 - attenuation) * s.ogPoints;
  if (s.ogPoints != 0 && !(s.ogPoints > 0.2)) {
    s.lblOG = formatNumber(s.ogPoints + 1.0, "0.000");
    s.lblFG = formatNumber(fgPoints + 1.0, "0.000");
    s.lblAlcohol = formatNumber((s.ogPoints - fgPoints) * 132.5, "0.0");
  } else {
    s.lblOG = s.lblFG = s.lblAlcohol = kNA;
  }
  updateColorSample(s);
  updateStyleFlags(wb, s);
}

void computeRecipeBitterness(Workbench& wb, RecipeSheet& s) {
  static const char* const fn = "frmRecipe!computeRecipeBitterness";
  const IngredientTable& g = s.grid;
  const Measures& m = measures();
  const double fermentGallons = gallons(wb, s.txtFermentVolume, fn);
  const double boilGallons = gallons(wb, s.txtInitalBoilVolume, fn);
  if (!(fermentGallons > 0) || !(boilGallons > 0)) {
    s.lblIBU = kNA;
    updateStyleFlags(wb, s);
    return;
  }
  // The wort's gravity during the boil, as points above 1, from the finished gravity and the
  // ratio of the volumes; the same for every hops row.
  const double boilPoints = fermentGallons / boilGallons * s.ogPoints;
  const double divisor = wb.hops.gravityAdjustmentDivisor(boilPoints);
  double ibu = 0;
  const int end = g.sectionEnd(KIND_HOPS);
  for (int r = g.headerRow(KIND_HOPS) + 1; r < end; ++r) {
    const IngredientRow& row = g.row(r);
    if (!unitInRange(wb, row.unit, 4, fn)) return;
    const double ounces = cellValue(row.cells[COL_QTY]) * m.weightConvert[row.unit][UNIT_OZ];
    const double alpha = cellValue(row.cells[COL_RATING]) / 100.0;
    const double utilization = wb.hops.lookupUtilization(cellValue(row.cells[COL_DETAIL]));
    ibu += ounces * utilization * alpha * 7490.0 / (fermentGallons * divisor);
  }
  if (!finite(wb, ibu, fn)) return;
  s.lblIBU = ibu == 0 ? std::string(kNA) : formatNumber(ibu, "0");
  updateStyleFlags(wb, s);
  if (ibu > 300) wb.prompter.message(kTooBitterMessage, kApplicationName, Icon::Question, Buttons::OK);
}

void computeRecipeCost(Workbench& wb, RecipeSheet& s) {
  double total = 0;
  for (const IngredientRow& row : s.grid.rows())
    if (row.isItem()) total += cellValue(row.cells[COL_QTY]) * moneyValue(row.cells[COL_COST]);
  if (!finite(wb, total, "frmRecipe!computeRecipeCost")) return;
  s.totalCost = total;
  s.grid.setCell(s.grid.totalRow(), COL_COST, formatNumber(total, "Currency"));
}

void updateStyleFlags(Workbench& wb, RecipeSheet& s) {
  const BeerStyleRecord* style = wb.styles.currentStyle();
  if (!style) {
    for (TargetLabel& t : s.targets) t = TargetLabel{};
    s.cmdDetailsEnabled = false;
    return;
  }
  const auto judged = judgeStyle(
      *style, RecipeStyleValues::fromDisplay(s.lblOG, s.lblFG, s.lblIBU, s.lblColor, s.lblAlcohol));
  for (size_t k = 0; k < judged.size(); ++k) {
    const StyleDeviation& d = judged[k];
    s.targets[k].text = d.text();
    s.targets[k].colour = d.state == StyleState::OK ? TargetColour::Green
                          : d.nearMiss              ? TargetColour::Yellow
                                                    : TargetColour::Red;
  }
  s.cmdDetailsEnabled = true;
}

void updateColorSample(RecipeSheet& s) {
  const double c = std::clamp(cellValue(s.lblColor), 1.0, 26.0);
  const int low = static_cast<int>(c);
  const double f = c - low;
  const Rgb a = colorTableRow(low);
  if (f <= 0) {
    s.picColor = a;
    return;
  }
  const Rgb b = colorTableRow(low + 1);
  auto mix = [f](int lo, int hi) { return static_cast<int>(std::lround((hi - lo) * f + lo)); };
  s.picColor = {mix(a.r, b.r), mix(a.g, b.g), mix(a.b, b.b)};
}

Recompute recomputeFor(EditEvent e, int gravityAdjustment) {
  switch (e) {
    case EditEvent::Structure: return {true, true, true};
    case EditEvent::MaltQuantity: return {true, gravityAdjustment != 0, true};
    case EditEvent::HopsQuantity: return {false, true, true};
    case EditEvent::OtherQuantity: return {false, false, true};
    case EditEvent::MaltUnit: return {true, false, true};
    case EditEvent::HopsUnit: return {false, true, true};
    case EditEvent::Cost: return {false, false, true};
    case EditEvent::MaltRating: return {true, false, false};
    case EditEvent::HopsRating: return {false, true, false};
    case EditEvent::YeastAttenuation: return {true, false, false};
    case EditEvent::MashFlag: return {true, false, false};
    case EditEvent::Volume: return {false, true, false};
  }
  return {};
}

void recompute(Workbench& wb, RecipeSheet& s, EditEvent e) {
  const Recompute what = recomputeFor(e, wb.hops.GravityAdjustment);
  if (what.color) computeRecipeColor(wb, s);
  if (what.bitterness) computeRecipeBitterness(wb, s);
  if (what.cost) computeRecipeCost(wb, s);
}

}  // namespace zy
