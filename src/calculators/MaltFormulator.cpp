#include "calculators/MaltFormulator.h"

#include <algorithm>
#include <cmath>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "inventory/InventoryStore.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
double val(const std::string& t) { return lenientValue(t); }
double rounded(double v, const char* pattern) { return lenientValue(formatNumber(v, pattern)); }
int weightUnit(int u) { return std::clamp(u, 0, 3); }
double toPounds(const FormulatorMalt& m) { return measures().weightConvert[weightUnit(m.unit)][UNIT_LBS]; }

// A malt of colour 0 (a sugar) would ask for an endless share of the colour; it is counted as
// the faintest colour a malt list shows.
constexpr double kFaintestColor = 0.1;
// Partial-mash recipes keep their grains under two pounds for five gallons.
constexpr double kPartialMashGrainsPerGallon = 2.0 / 5.0;
// A search can never run longer than this many steps, whatever the numbers.
constexpr int kMaxSearchSteps = 100000;
}  // namespace

MaltFormulator::MaltFormulator(RecipeEditor& editor) : editor_(editor), wb_(editor.wb) {}

void MaltFormulator::loadEmpty() {
  const RecipeRecord& rec = wb_.recipe.rec;
  lvMalts.clear();
  volumeUnit = rec.volumeUnits >= 0 && rec.volumeUnits < 8 ? rec.volumeUnits : US_GAL_CONST;
  Volume = cellValue(editor_.sheet.txtFermentVolume);
  gallons = Volume * measures().volume_convert[volumeUnit][US_GAL_CONST];
  MashType = rec.mashType;
  txtMashEff = rec.mashType != 0 && rec.mashEfficiency >= 30 && rec.mashEfficiency <= 100
                   ? formatNumber(rec.mashEfficiency, "0")
                   : std::string("85");
  txtCompOG = "1.000";
  txtCompColor = "0.0";
  computed = false;
  setVolume();
  computeTotalPct();
  maltsReset();
}

void MaltFormulator::load() {
  loadEmpty();
  const IngredientTable& g = editor_.sheet.grid;
  double total = 0;
  for (int r = g.headerRow(KIND_MALT) + 1; r < g.sectionEnd(KIND_MALT); ++r) {
    FormulatorMalt m;
    m.name = g.cell(r, COL_NAME);
    m.quantity = g.cell(r, COL_QTY);
    m.unit = weightUnit(g.unitCode(r));
    m.cost = g.cell(r, COL_COST);
    m.extraction = g.cell(r, COL_RATING);
    m.color = g.cell(r, COL_DETAIL);
    m.mash = g.cell(r, COL_MASH) == "Yes";
    total += val(m.quantity) * toPounds(m);
    lvMalts.push_back(m);
  }
  for (FormulatorMalt& m : lvMalts) {
    const double share = total > 0 ? val(m.quantity) * toPounds(m) / total * 100.0 : 0.0;
    m.targetPct = formatNumber(share, "0.0");
    m.computedPct = formatNumber(share, "0");
  }
  computeTotalPct();
  if (gallons > 0) computeFormulation();
  maltsReset();
}

void MaltFormulator::maltsChanged() {
  changed = true;
  saveImage = "Save-Changed";
  saveTip = "Save Recipe - Changed";
}

void MaltFormulator::maltsReset() {
  changed = false;
  saveImage = "Save";
  saveTip = "Save Recipe";
}

void MaltFormulator::computeTotalPct() {
  double sum = 0;
  for (const FormulatorMalt& m : lvMalts) sum += val(m.targetPct);
  lblTotal = formatNumber(sum / 100.0, "(0%)");
}

void MaltFormulator::setVolume() {
  lblQuantity = "Malt Formulation for " + formatNumber(Volume, "0.0") + " " + listText(measures().volumeUnits, volumeUnit);
}

void MaltFormulator::addMalt(const std::string& name, double quantity, int unit, double cost, double color,
                             double extraction, bool mash, double percent) {
  FormulatorMalt m;
  m.name = trim(name);
  m.quantity = formatNumber(quantity, "0.0#");
  m.unit = weightUnit(unit);
  m.cost = formatNumber(cost, "Currency");
  m.color = formatNumber(color, "0.0");
  m.extraction = formatNumber(extraction, "0.000");
  m.mash = mash;
  m.targetPct = formatNumber(percent, "0.0#");
  lvMalts.push_back(m);
  computeTotalPct();
  maltsChanged();
}

bool MaltFormulator::addInventoryMalt(int category, const InventoryItem& item) {
  if (category != INV_MALT || trim(item.name).empty()) return false;
  addMalt(item.name, 0.0, item.units, item.cost, item.color, item.extract, item.mash != 0, 0.0);
  return true;
}

void MaltFormulator::deleteMalt(int row) {
  if (row < 0 || row >= static_cast<int>(lvMalts.size())) return;
  const std::string& name = lvMalts[static_cast<size_t>(row)].name;
  if (wb_.prompter.message("Are you sure you want to Delete \"" + name + "\"?", "Delete Item", Icon::Question,
                           Buttons::YesNo, Answer::No) != Answer::Yes)
    return;
  lvMalts.erase(lvMalts.begin() + row);
  selectMalt(-1);
  computeTotalPct();
  maltsChanged();
}

void MaltFormulator::setTargetPct(int row, const std::string& text) {
  if (row < 0 || row >= static_cast<int>(lvMalts.size())) return;
  lvMalts[static_cast<size_t>(row)].targetPct = text;
  computeTotalPct();
}

void MaltFormulator::selectMalt(int row) {
  selectedRow = row >= 0 && row < static_cast<int>(lvMalts.size()) ? row : -1;
  txtPct = selectedRow >= 0 ? lvMalts[static_cast<size_t>(selectedRow)].targetPct : std::string();
}

void MaltFormulator::setPct(const std::string& text) {
  txtPct = text;
  setTargetPct(selectedRow, text);
}

void MaltFormulator::leaveTargetOG() { txtTargetOG = formatNumber(val(txtTargetOG), "0.000"); }
void MaltFormulator::leaveTargetColor() { txtTargetColor = formatNumber(val(txtTargetColor), "0.0"); }
void MaltFormulator::leaveMashEff() { txtMashEff = formatNumber(std::clamp(val(txtMashEff), 30.0, 100.0), "0"); }

void MaltFormulator::spinTargetOG(int direction) {
  txtTargetOG = formatNumber(std::clamp(val(txtTargetOG) + (direction >= 0 ? 0.001 : -0.001), 1.0, 1.2), "0.000");
}

void MaltFormulator::spinTargetColor(int direction) {
  txtTargetColor = formatNumber(std::clamp(val(txtTargetColor) + (direction >= 0 ? 0.5 : -0.5), 0.0, 500.0), "0.0");
}

RangeBar MaltFormulator::setRange1() const {
  RangeBar b;
  const int s = wb_.styles.CurrentStyleIndex;
  if (s >= 0 && s < kStyleTableRows) {
    b.low = wb_.styles.BeerStyles[static_cast<size_t>(s)].ogLow;
    b.high = wb_.styles.BeerStyles[static_cast<size_t>(s)].ogHigh;
  }
  b.label = "OG Range: " + formatNumber(b.low, "0.000") + " - " + formatNumber(b.high, "0.000");
  b.value = txtTargetOG == "N/A" ? 1.036 : val(txtTargetOG);
  return b;
}

RangeBar MaltFormulator::setRange2() const {
  RangeBar b;
  const int s = wb_.styles.CurrentStyleIndex;
  if (s >= 0 && s < kStyleTableRows) {
    b.low = wb_.styles.BeerStyles[static_cast<size_t>(s)].srmLow;
    b.high = wb_.styles.BeerStyles[static_cast<size_t>(s)].srmHigh;
  }
  b.label = "Color Range: " + formatNumber(b.low, "0.0") + " - " + formatNumber(b.high, "0.0");
  b.value = txtTargetColor == "N/A" ? 3.5 : val(txtTargetColor);
  return b;
}

double MaltFormulator::efficiency() const { return val(txtMashEff); }

double MaltFormulator::effectiveExtraction(const FormulatorMalt& m) const {
  const double e = val(m.extraction);
  return m.mash ? (e - 1.0) * efficiency() / 100.0 + 1.0 : e;
}

void MaltFormulator::computeFormulation() {
  double total = 0;
  for (const FormulatorMalt& m : lvMalts) total += val(m.quantity) * toPounds(m);
  double gravity = 0, colour = 0;
  const double eff = efficiency();
  for (FormulatorMalt& m : lvMalts) {
    const double w = val(m.quantity) * toPounds(m);
    m.computedPct = formatNumber(total > 0 ? w / total * 100.0 : 0.0, "0");
    const double c = val(m.color);
    colour += m.mash ? c * w * eff / 100.0 : c * w;
    const double e = effectiveExtraction(m);
    if (!(e > 0)) continue;
    gravity += (e - 1.0) * w;
  }
  if (gallons <= 0) return;
  txtCompOG = formatNumber(1 + gravity / gallons, "0.000");
  txtCompColor = formatNumber(colour / gallons, "0.0");
}

bool MaltFormulator::sharedChecks(bool solver) {
  auto stop = [&](const std::string& text) {
    wb_.prompter.message(text, "Error", Icon::Critical, Buttons::OK);
    return false;
  };
  if (solver && lvMalts.size() > kMaxMalts) return stop("Limited to using 20 malts for Malt Formulator");
  if (Volume == 0 || gallons <= 0) return stop("Must have a Non-Zero Volume quantity");
  const double og = val(txtTargetOG);
  if (og < 1.001) return stop("OG less than 1.001 will not be computed");
  if (og > 1.200) return stop("OG greater than 1.200 will not be computed");
  if (solver) {
    const double c = val(txtTargetColor);
    if (c < 1.0) {
      wb_.prompter.message("Color less than 1 will not be computed, adjusted to 3.0", "Error", Icon::Warning, Buttons::OK);
      txtTargetColor = "3.0";
    } else if (c > 500) {
      wb_.prompter.message("Color greater than 500 will not be computed, adjusted to 500.0", "Error", Icon::Warning,
                           Buttons::OK);
      txtTargetColor = "500.0";
    }
  }
  const double eff = efficiency();
  if (eff < 30) return stop("Mash Efficiencies less than 30% are not reasonable");
  if (eff > 100) return stop("Mash Efficiencies greater than 100% are not reasonable");
  if (lvMalts.empty()) return stop("There are no malts in the list to formulate");
  return true;
}

bool MaltFormulator::quantitiesFromPercents(const std::vector<double>& pct, bool pickBase, int& base) {
  for (const FormulatorMalt& m : lvMalts)
    if (val(m.extraction) <= 1.0) {
      wb_.prompter.message(m.name + " Extraction must be greater than 1.000", "Error - Invlaid Extraction",
                           Icon::Critical, Buttons::OK);
      return false;
    }
  double x = 0;
  for (size_t i = 0; i < lvMalts.size(); ++i) x += pct[i] / 100.0 * (effectiveExtraction(lvMalts[i]) - 1.0);
  if (!(x > 0)) return false;  // no percent anywhere: nothing to weigh
  const double t = rounded((val(txtTargetOG) - 1.0) * gallons / x, "0.00");
  const double grid = coarse ? 10.0 : 20.0;
  double largest = -1;
  for (size_t i = 0; i < lvMalts.size(); ++i) {
    FormulatorMalt& m = lvMalts[i];
    const double perPound = measures().weightConvert[UNIT_LBS][weightUnit(m.unit)];
    const double q = rounded(t * pct[i] / 100.0 * perPound * grid, "0") / grid;
    m.quantity = formatNumber(q, "0.0#");
    if (pickBase && q * toPounds(m) > largest) {
      largest = q * toPounds(m);
      base = static_cast<int>(i);
      if (t > 0) m.targetPct = formatNumber(q * toPounds(m) / t * 100.0, "0");
    }
  }
  return true;
}

// The partial-mash spread. A partial mash keeps its grains small (under two pounds for five
// gallons) and takes the rest of its extract from extract malts. The extract the recipe needs is
// about (OG - 1) / 0.03 pounds per gallon of wort; the mash malts' part of it follows their part
// of the shares. When that part weighs more than the grains allowed, the mash malts' shares are
// scaled down to the allowance and what they gave up is spread over the extract malts in
// proportion to their own shares (evenly when those are all zero).
bool MaltFormulator::spreadPartialMashShares(std::vector<double>& share) {
  double total = 0, mashShare = 0, extractShare = 0;
  int extractCount = 0;
  for (size_t i = 0; i < lvMalts.size(); ++i) {
    total += share[i];
    if (lvMalts[i].mash) mashShare += share[i];
    else extractShare += share[i], ++extractCount;
  }
  if (!(total > 0) || !(mashShare > 0)) return true;
  const double needed = (val(txtTargetOG) - 1.0) / 0.03 * gallons;
  const double mashPounds = needed * mashShare / total;
  const double allowed = kPartialMashGrainsPerGallon * gallons;
  if (mashPounds <= allowed) return true;
  if (extractCount == 0) {
    wb_.prompter.message("Partial Mash not possible with no extract malts", "Error", Icon::Critical, Buttons::OK);
    return false;
  }
  const double keep = allowed / mashPounds;
  const double excess = mashShare * (1.0 - keep);
  for (size_t i = 0; i < lvMalts.size(); ++i) {
    if (lvMalts[i].mash) share[i] *= keep;
    else share[i] += extractShare > 0 ? excess * share[i] / extractShare : excess / extractCount;
  }
  return true;
}

bool MaltFormulator::mnuComputeOG() {
  if (!sharedChecks(false)) return false;
  std::vector<double> pct;
  double sum = 0;
  for (const FormulatorMalt& m : lvMalts) {
    pct.push_back(val(m.targetPct));
    sum += pct.back();
  }
  if (std::fabs(sum - 100.0) > 0.001) {
    wb_.prompter.message("Percentages must total to 100% for this calculation", "Error", Icon::Critical, Buttons::OK);
    return false;
  }
  int base = -1;
  if (!quantitiesFromPercents(pct, false, base)) return false;
  computeFormulation();
  computed = true;
  maltsChanged();
  return true;
}

bool MaltFormulator::mnuComputeOGColor() {
  if (!sharedChecks(true)) return false;
  const double step = coarse ? 0.1 : 0.05;
  const double targetColor = val(txtTargetColor);
  const double eff = efficiency() / 100.0;
  const size_t n = lvMalts.size();

  // Demand: each malt's share of the colour.
  std::vector<double> share(n);
  for (size_t i = 0; i < n; ++i) {
    share[i] = targetColor / std::max(val(lvMalts[i].color), kFaintestColor) * gallons;
    if (lvMalts[i].mash) share[i] /= eff;
  }
  if (MashType == 1 && !spreadPartialMashShares(share)) return false;
  double total = 0;
  for (double s : share) total += s;
  std::vector<double> pct(n);
  for (size_t i = 0; i < n; ++i) {
    pct[i] = total > 0 ? share[i] / total * 100.0 : 0.0;
    lvMalts[i].targetPct = formatNumber(pct[i], "0.0#");
    lvMalts[i].computedPct = formatNumber(pct[i], "0.0");
  }
  int base = 0;
  if (!quantitiesFromPercents(pct, true, base)) return false;
  computeFormulation();
  computed = true;
  maltsChanged();

  // The colour search trades the base malt for darker ones, a step at a time, from the last row
  // up. Only malts darker than the base malt can raise the colour; the others are skipped. At
  // each step the quantities follow the new percentages, so that the gravity stays on target
  // while the colour climbs. The base malt's percent falls at every step, which ends the search.
  const double baseColor = val(lvMalts[static_cast<size_t>(base)].color);
  std::vector<int> darker;
  for (int i = static_cast<int>(n) - 1; i >= 0; --i)
    if (i != base && val(lvMalts[static_cast<size_t>(i)].color) > baseColor) darker.push_back(i);
  auto requantify = [&] {
    std::vector<double> p(n);
    for (size_t i = 0; i < n; ++i) p[i] = val(lvMalts[i].targetPct);
    int unused = base;
    const bool ok = quantitiesFromPercents(p, false, unused);
    computeFormulation();
    return ok;
  };
  auto closeEnough = [&] {
    computeTotalPct();
    wb_.prompter.message(kCloseEnough, kCaption, Icon::Information, Buttons::OK);
    return true;
  };
  size_t next = 0;
  for (int steps = 0; val(txtCompColor) < targetColor - 0.5; ++steps) {
    if (darker.empty() || steps >= kMaxSearchSteps) return closeEnough();
    FormulatorMalt& raise = lvMalts[static_cast<size_t>(darker[next])];
    raise.targetPct = formatNumber(val(raise.targetPct) + step, "0.0#");
    if (!requantify()) return false;
    FormulatorMalt& b = lvMalts[static_cast<size_t>(base)];
    if (val(b.targetPct) <= 0) return closeEnough();
    b.targetPct = formatNumber(std::max(0.0, val(b.targetPct) - step), "0.0#");
    if (!requantify()) return false;
    next = (next + 1) % darker.size();
  }
  computeTotalPct();
  return true;
}

void MaltFormulator::cmdCopyPct() {
  for (FormulatorMalt& m : lvMalts) m.targetPct = m.computedPct;
  computeTotalPct();
}

bool MaltFormulator::mnuFileExport() {
  if (!computed) {
    wb_.prompter.message("No Calculations Performed, There are No Changes to Export", kCaption, Icon::Information,
                         Buttons::OK);
    return false;
  }
  if (wb_.prompter.message("This Action Will Replace ALL Current Malt Entries in the Recipe", "Warning", Icon::Warning,
                           Buttons::OKCancel, Answer::OK) != Answer::OK)
    return false;
  IngredientTable& g = editor_.sheet.grid;
  while (g.itemCount(KIND_MALT) > 0) g.removeRow(g.headerRow(KIND_MALT) + 1);
  for (const FormulatorMalt& m : lvMalts)
    editor_.AddIngredient(KIND_MALT, m.name, val(m.quantity), m.unit, moneyValue(m.cost), val(m.extraction),
                          val(m.color), m.mash ? -1 : 0);
  maltsReset();
  recompute(wb_, editor_.sheet, EditEvent::Structure);
  editor_.recChanged();
  return true;
}

bool MaltFormulator::queryClose() {
  if (!changed) return true;
  const Answer a = wb_.prompter.message("Malt Formulation NOT Saved to Recipe. Save Changes?", "Exit Advanced Formulator",
                                        Icon::Question, Buttons::YesNoCancel, Answer::Yes);
  if (a == Answer::Cancel) return false;
  if (a == Answer::Yes) mnuFileExport();
  return true;
}

}  // namespace zy
