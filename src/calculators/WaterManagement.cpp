#include "calculators/WaterManagement.h"

#include <algorithm>

#include "core/measures.h"
#include "core/numfmt.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kComputeFn = "frmWaterMgmt!computeWaterVolumes";
const char* const kAdditionsFn = "frmWaterMgmt!computeWaterAdditions";

double val(const std::string& text) { return lenientValue(text); }
std::string f1(double v) { return formatNumber(v, "0.0"); }

// A setting passes through its decimal text on the way in.
double setting(double v) { return lenientValue(plainText(v)); }

// The factor that turns water wanted in the primary into water boiled with the wort: the part
// of the kettle that survives the boil, inverted. Nothing survives an evaporation of 100 percent
// or more, so there is no such factor; that is reported instead of computed.
bool survivalFactor(double evaporation, double boilTime, ErrorLog& errors, const char* fn, double& factor) {
  const double kept = 1.0 - evaporation / 100.0 * boilTime / 60.0;
  if (kept <= 0.0) {
    errors.reportError(ERR_DIVISION_BY_ZERO, 0, fn, "", "Division by zero");
    return false;
  }
  factor = 1.0 / kept;
  return true;
}

int weightUnit(int u) { return std::clamp(u, 0, 3); }
}  // namespace

std::string WaterReportLine::text() const {
  std::string t = caption + "\t" + value;
  if (!units.empty()) t += " " + units;
  return t + flag;
}

WaterAdditions computeWaterAdditions(const WaterBalanceInputs& in, const Defaults& d, ErrorLog& errors) {
  WaterAdditions out;
  const double evaporation = setting(d.evaporationRate), absorption = setting(d.waterAbsorption),
               left = setting(d.leftInKettle);
  const double mash = in.mashRate * in.grainWeight;
  const double absorbed = absorption * in.grainWeight;
  const double sparge = in.spargeRate * in.grainWeight;
  double kettle = 0, primary = 0;
  double initial = mash - absorbed + sparge + kettle;
  if (in.holdInitial) {
    kettle = std::max(0.0, in.boilVolume - ((mash - absorbed) + sparge));
    initial = mash - absorbed + sparge + kettle;
  }
  const double boiled = evaporation * initial / 100.0 * in.boilTime / 60.0;
  if (in.holdFinal) primary = std::max(0.0, in.fermentVolume - (initial - boiled - left));
  if (in.fullBoil && primary > 0) {
    double factor;
    if (!survivalFactor(evaporation, in.boilTime, errors, kAdditionsFn, factor)) return out;
    kettle = factor * primary;
    primary = 0;
  }
  out.kettleTopUp = std::max(0.0, kettle);
  out.fermenterTopUp = std::max(0.0, primary);
  return out;
}

double mashableGrainWeight(const RecipeEditor& editor) {
  const IngredientTable& g = editor.sheet.grid;
  const int to = weightUnit(editor.wb.defaults.maltUnits);
  double sum = 0;
  for (int r = g.headerRow(KIND_MALT) + 1; r < g.sectionEnd(KIND_MALT); ++r)
    if (g.cell(r, COL_MASH) == "Yes")
      sum += cellValue(g.cell(r, COL_QTY)) * measures().weightConvert[weightUnit(g.unitCode(r))][to];
  return sum;
}

double hopsWeightOunces(const RecipeEditor& editor) {
  const IngredientTable& g = editor.sheet.grid;
  double sum = 0;
  for (int r = g.headerRow(KIND_HOPS) + 1; r < g.sectionEnd(KIND_HOPS); ++r)
    sum += cellValue(g.cell(r, COL_QTY)) * measures().weightConvert[weightUnit(g.unitCode(r))][UNIT_OZ];
  return sum;
}

WaterBalanceInputs waterBalanceInputs(const RecipeEditor& editor) {
  const RecipeRecord& rec = editor.wb.recipe.rec;
  const Defaults& d = editor.wb.defaults;
  WaterBalanceInputs in;
  in.grainWeight = mashableGrainWeight(editor);
  in.hopsWeight = hopsWeightOunces(editor);
  in.boilVolume = cellValue(editor.sheet.txtInitalBoilVolume);
  in.fermentVolume = cellValue(editor.sheet.txtFermentVolume);
  in.mashRate = rec.mashWaterRate;
  in.spargeRate = rec.spargeRate;
  in.boilTime = rec.boilTime;
  in.holdInitial = d.holdInitialVolume != 0;
  in.holdFinal = d.holdFinalVolume != 0;
  in.fullBoil = d.fullBoil != 0;
  return in;
}

WaterManagement::WaterManagement(RecipeEditor& editor) : editor_(editor), wb_(editor.wb) {}

void WaterManagement::load() {
  const Measures& m = measures();
  const Defaults& d = wb_.defaults;
  const RecipeRecord& rec = wb_.recipe.rec;
  lblGrainMass = formatNumber(mashableGrainWeight(editor_), "0.0#");
  lblGrainUnits = listText(m.weightUnits, d.maltUnits);
  HopsWeight = hopsWeightOunces(editor_);
  txtBoilTime = formatNumber(rec.boilTime, "0");
  lblTargetFinalVolume = formatNumber(cellValue(editor_.sheet.txtFermentVolume), "0.0#");
  lblTargetInitialVolume = formatNumber(cellValue(editor_.sheet.txtInitalBoilVolume), "0.0#");
  txtMashRate = formatNumber(rec.mashWaterRate > 0 && rec.mashWaterRate <= 3.0 ? rec.mashWaterRate : d.mashPerLbs, "0.00");
  txtSpargeRate = formatNumber(rec.spargeRate > 0 && rec.spargeRate <= 3.0 ? rec.spargeRate : d.spargeRate, "0.00");
  txtSpargeTemp = formatNumber(rec.spargeTemp > 0 && rec.spargeTemp <= 220.0 ? rec.spargeTemp : d.spargeTemp, "0");
  txtAddToKettle = "0.0";
  txtAddToPrimary = "0.0";
  chkHoldInitialVolume = d.holdInitialVolume != 0;
  chkHoldFinalVolume = d.holdFinalVolume != 0;
  chkFullBoil = d.fullBoil != 0;
  lblVolumeUnits = listText(m.volumeUnits, rec.volumeUnits);
  lblVolMass = lblVolumeUnits + "/" + lblGrainUnits;
  lblTempUnits = temperatureLabel(rec.unitType);
  changed = false;
  computeWaterVolumes();
}

void WaterManagement::computeWaterVolumes() {
  const bool was = changed;
  const Defaults& d = wb_.defaults;
  const double evaporation = setting(d.evaporationRate), absorption = setting(d.waterAbsorption),
               left = setting(d.leftInKettle), capacity = setting(d.kettleCapacity);
  const double grains = val(lblGrainMass);
  const double boilTime = val(txtBoilTime);

  // 1. to 5. The runoff and what the kettle holds.
  if (chkFullBoil) txtAddToKettle = "0.0";
  mashVolume = val(txtMashRate) * grains;
  absorbed = absorption * grains;
  spargeVolume = val(txtSpargeRate) * grains;
  initial = mashVolume - absorbed + spargeVolume + val(txtAddToKettle);
  // 6. Holding the boil volume: the kettle water as the box shows it enters the sum.
  if (chkHoldInitialVolume) {
    txtAddToKettle = f1(val(lblTargetInitialVolume) - ((mashVolume - absorbed) + spargeVolume));
    if (val(txtAddToKettle) < 0) txtAddToKettle = "0.0";
    initial = mashVolume - absorbed + spargeVolume + val(txtAddToKettle);
  }
  // 7. to 9. The boil and the primary.
  boiledAway = evaporation * initial / 100.0 * boilTime / 60.0;
  // The hops keep 0.03 of a volume unit per ounce, whatever the recipe's units.
  hopsAbsorbed = HopsWeight * 0.03;
  toPrimary = initial - boiledAway - hopsAbsorbed - left + val(txtAddToPrimary);
  // 10. Holding the final volume. This balance leaves the hops out, as does the full boil below.
  if (chkHoldFinalVolume) {
    txtAddToPrimary = f1(val(lblTargetFinalVolume) - (initial - boiledAway - left));
    if (val(txtAddToPrimary) < 0) txtAddToPrimary = "0.0";
    toPrimary = initial - boiledAway - left + val(txtAddToPrimary);
  }
  // 11. A full boil moves the primary's water into the kettle, enough of it to survive the boil.
  if (chkFullBoil && val(txtAddToPrimary) > 0) {
    double factor;
    if (survivalFactor(evaporation, boilTime, wb_.errors, kComputeFn, factor)) {
      txtAddToKettle = f1(factor * val(txtAddToPrimary));
      initial = mashVolume - absorbed + spargeVolume + val(txtAddToKettle);
      boiledAway = evaporation * initial / 100.0 * boilTime / 60.0;
      txtAddToPrimary = "0.0";
      toPrimary = initial - boiledAway - left + val(txtAddToPrimary);
    }
  }

  // Over-limit tests, each with a tolerance of 0.05 against the value as shown.
  const double shownInitial = val(f1(initial));
  overCapacity = capacity + 0.05 < shownInitial;
  overTargetKettle = val(lblTargetInitialVolume) + 0.05 < shownInitial;
  overTargetPrimary = val(lblTargetFinalVolume) + 0.05 < toPrimary;

  // 12. The report, then the two results.
  report.clear();
  auto add = [&](const char* caption, const std::string& value, const std::string& units) {
    report.push_back({caption, value, units, false, {}});
  };
  add("  Mashable Grains:", f1(grains), lblGrainUnits);
  add("  Mash Water Volume:", f1(mashVolume), lblVolumeUnits);
  add("  Water Absorbed by Grains:", f1(absorbed), lblVolumeUnits);
  add("  Sparge Water Volume:", f1(spargeVolume), lblVolumeUnits);
  add("  Water Added to Kettle:", f1(val(txtAddToKettle)), lblVolumeUnits);
  add("  Initial Boil Volume:", f1(initial), lblVolumeUnits);
  if (overCapacity || overTargetKettle) {
    report.back().red = true;
    report.back().flag = overCapacity ? "  <- Over Kettle Capacity" : "  <- Over Target Volume";
  }
  add("  Boil Time:", formatNumber(boilTime, "0"), "Minutes");
  add("  Water Boiled Away:", f1(boiledAway), lblVolumeUnits);
  add("  Water Absorbed by Hops:", f1(hopsAbsorbed), lblVolumeUnits);
  add("  Volume Left in Kettle:", f1(left), lblVolumeUnits);
  add("  Water Added to Primary:", f1(val(txtAddToPrimary)), lblVolumeUnits);
  add("  Volume to Primary:", f1(toPrimary), lblVolumeUnits);
  if (overTargetPrimary) {
    report.back().red = true;
    report.back().flag = "  <- Over Target Volume";
  }
  initialText = plainText(initial);
  toPrimaryText = plainText(toPrimary);
  changed = was;
}

void WaterManagement::setFullBoil(bool on) {
  chkFullBoil = on;
  if (on) {
    chkHoldInitialVolume = false;
    chkHoldFinalVolume = true;
  }
  changed = true;
  computeWaterVolumes();
}

void WaterManagement::setHoldFinalVolume(bool on) {
  chkHoldFinalVolume = on;
  if (!on) {
    txtAddToPrimary = "0.0";
    chkFullBoil = false;
  }
  changed = true;
  computeWaterVolumes();
}

void WaterManagement::setHoldInitialVolume(bool on) {
  chkHoldInitialVolume = on;
  if (on) chkFullBoil = false;
  else txtAddToKettle = "0.0";
  changed = true;
  computeWaterVolumes();
}

std::string& WaterManagement::box(Box b) {
  switch (b) {
    case Box::MashRate: return txtMashRate;
    case Box::SpargeRate: return txtSpargeRate;
    case Box::SpargeTemp: return txtSpargeTemp;
    case Box::BoilTime: return txtBoilTime;
    case Box::AddToKettle: return txtAddToKettle;
    default: return txtAddToPrimary;
  }
}

void WaterManagement::editBox(Box b, const std::string& text) {
  box(b) = text;
  changed = true;
}

void WaterManagement::leaveBox(Box b) {
  const char* pattern = b == Box::MashRate || b == Box::SpargeRate                  ? "0.00"
                        : b == Box::SpargeTemp || b == Box::BoilTime                 ? "0"
                                                                                     : "0.0";
  box(b) = formatNumber(val(box(b)), pattern);
  computeWaterVolumes();
}

void WaterManagement::cmdOK() {
  RecipeRecord& rec = wb_.recipe.rec;
  if (val(initialText) > 0) {
    editor_.sheet.txtInitalBoilVolume = f1(val(initialText));
    editor_.sheet.txtFermentVolume = f1(val(toPrimaryText));
    // The bitterness follows the volumes; the recipe counts as changed only by the rule below.
    recompute(wb_, editor_.sheet, EditEvent::Volume);
  }
  rec.mashWaterRate = val(txtMashRate);
  rec.spargeRate = val(txtSpargeRate);
  rec.spargeTemp = val(txtSpargeTemp);
  rec.spargeVolume = spargeVolume;
  rec.mashWaterVolume = mashVolume;
  if (changed) editor_.recChanged();
}

}  // namespace zy
