#include "calculators/WaterTreatment.h"

#include <cmath>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/settings.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kIonsFn = "frmWaterTreatment!ComputeIons";
const char* const kPpm = "0; ; ";
const char* const kQty = "0.0; ; ";
constexpr int TSP_UNIT = 5;  // "Tsp" in the other-units list

const std::array<const char*, 6> kUserKeys = {"User Ca", "User Cl", "User CO3", "User Mg", "User Na", "User SO4"};

double val(const std::string& t) { return lenientValue(t); }

// A whole number of 16 bits, or none when the value lies outside that range.
bool toInt16(double v, int& out) {
  const double r = std::nearbyint(v);
  if (!(r >= -32768 && r <= 32767)) return false;
  out = static_cast<int>(r);
  return true;
}
}  // namespace

const std::array<WaterChemicalInfo, kChemicalCount>& waterChemicals() {
  static const std::array<WaterChemicalInfo, kChemicalCount> t = {{
      {"CaCO3", "Calcium Carbonate", "Chalk", 1.8, {106, 0, 159, 0, 0, 0}},
      {"CaCl2", "Calcium Chloride", "", 5.2, {72, 127, 0, 0, 0, 0}},
      {"CaSO4", "Calcium Sulphate", "Gypsum", 4.8, {62, 0, 0, 0, 0, 148}},
      {"MgSO4", "Magnesium Sulphate", "Epsom", 3.4, {0, 0, 0, 26, 0, 103}},
      {"KCl", "Potassium Chloride", "", 5.1, {0, 126, 0, 0, 0, 0}},
      {"NaCl", "Sodium Chloride", "Table Salt", 5.3, {0, 160, 0, 0, 104, 0}},
  }};
  return t;
}

const std::array<FamousWaterInfo, 11>& famousWaters() {
  static const std::array<FamousWaterInfo, 11> t = {{
      {"(User Defined)", {0, 0, 0, 0, 0, 0}},
      {"Burton-on-Trent", {295, 25, 300, 45, 55, 725}},
      {"Dortmund", {250, 100, 550, 25, 70, 280}},
      {"Dublin", {115, 19, 200, 4, 12, 55}},
      {"Dusseldorf", {40, 45, 60, 0, 25, 80}},
      {"Edinburgh", {120, 20, 225, 25, 55, 140}},
      {"Koln", {104, 109, 152, 15, 52, 86}},
      {"London", {90, 10, 82, 6, 22, 24}},
      {"Munich", {75, 2, 200, 20, 10, 10}},
      {"Pilzen", {7, 5, 15, 2, 2, 5}},
      {"Vienna", {200, 12, 120, 60, 8, 125}},
  }};
  return t;
}

const std::array<const char*, kIonCount>& ionNames() {
  static const std::array<const char*, kIonCount> n = {"Ca", "Cl", "CO3", "Mg", "Na", "SO4"};
  return n;
}

int WaterChemical(const std::string& ingredientName) {
  const auto& t = waterChemicals();
  for (int pass = 0; pass < 3; ++pass)
    for (int i = 0; i < kChemicalCount; ++i) {
      const WaterChemicalInfo& c = t[static_cast<size_t>(i)];
      const std::string entry = pass == 0 ? c.formula : pass == 1 ? c.name : c.commonName;
      if (!entry.empty() && ingredientName.find(entry) != std::string::npos) return i + 1;
    }
  return 0;
}

WaterTreatment::WaterTreatment(RecipeEditor& editor) : editor_(editor), wb_(editor.wb) {}

void WaterTreatment::load() {
  Loading = true;
  const Defaults& d = wb_.defaults;
  const auto& chems = waterChemicals();
  // Headings and the chemical rows' names.
  grdChemical[0] = {"Formula", "Water Treatment Chemical", "Ca", "Cl", "CO3", "Mg", "Na", "SO4"};
  for (int i = 1; i <= kChemicalCount; ++i) {
    const WaterChemicalInfo& c = chems[static_cast<size_t>(i - 1)];
    auto& row = grdChemical[static_cast<size_t>(i)];
    row.fill("");
    row[0] = c.formula;
    row[1] = *c.commonName ? std::string(c.name) + " (" + c.commonName + ")" : std::string(c.name) + " ";
    txtTsp[static_cast<size_t>(i)].clear();
    txtGrams[static_cast<size_t>(i)].clear();
    ItemRow[static_cast<size_t>(i)] = 0;
  }
  static const std::array<const char*, 4> labels = {"     Local Water (ppm)", "     Totals (ppm)",
                                                    "     Target Concentrations (ppm)", "    Ionic Level Within Range"};
  for (size_t r = 0; r < 4; ++r) {
    grdTotals[r].fill("");
    grdTotals[r][0] = labels[r];
  }
  // The user's own water, then the local water.
  for (size_t j = 0; j < kIonCount; ++j)
    userValues[j] = static_cast<int>(readLong(wb_.settings, kSection, kUserKeys[j], 0));
  const std::array<int, kIonCount> local = {d.ionCa, d.ionCl, d.ionCO3, d.ionMg, d.ionNa, d.ionSO4};
  for (size_t j = 0; j < kIonCount; ++j) grdTotals[ROW_LOCAL][j + 1] = formatNumber(local[j], kPpm);
  for (size_t j = 0; j < kIonCount; ++j) grdTotals[ROW_TOTALS][j + 1] = formatNumber(local[j], kPpm);
  long famous = readLong(wb_.settings, kSection, "Famous Water", 1);
  selectFamous(famous >= 0 && famous < 11 ? static_cast<int>(famous) : 1);
  // The volume in US gallons.
  const int vu = wb_.recipe.rec.volumeUnits;
  Volume = cellValue(editor_.sheet.txtFermentVolume) * (vu >= 0 && vu < 8 ? measures().volume_convert[vu][US_GAL_CONST] : 1.0);
  txtVolume = formatNumber(Volume, "0.0");
  lblVolumeUnits = listText(measures().volumeUnits, US_GAL_CONST);
  optIncrement(0);
  // The salts the recipe holds already; a later row naming the same chemical wins.
  const IngredientTable& g = editor_.sheet.grid;
  for (int r = g.headerRow(KIND_OTHER) + 1; r < g.sectionEnd(KIND_OTHER); ++r) {
    const int i = WaterChemical(g.cell(r, COL_NAME));
    if (i == 0) continue;
    const double gpt = chems[static_cast<size_t>(i - 1)].gramsPerTsp;
    const double q = cellValue(g.cell(r, COL_QTY));
    ItemRow[static_cast<size_t>(i)] = r;
    const double grams = g.unitCode(r) == TSP_UNIT ? q * gpt : q;
    txtTsp[static_cast<size_t>(i)] = formatNumber(g.unitCode(r) == TSP_UNIT ? q : q / gpt, kQty);
    txtGrams[static_cast<size_t>(i)] = formatNumber(grams, kQty);
    ComputeIons(i, grams);
  }
  ComputeRanges();
  Loading = false;
  Changed = false;
}

void WaterTreatment::ComputeIons(int chemical, double grams) {
  if (chemical < 1 || chemical > kChemicalCount) return;
  if (Volume == 0) {
    wb_.errors.reportError(ERR_DIVISION_BY_ZERO, 0, kIonsFn, "", "Division by zero");
    return;
  }
  const WaterChemicalInfo& c = waterChemicals()[static_cast<size_t>(chemical - 1)];
  auto& row = grdChemical[static_cast<size_t>(chemical)];
  for (size_t j = 0; j < kIonCount; ++j) row[j + 2] = formatNumber(grams * c.ppm[j] / Volume, kPpm);
  // Totals in 16 bits, from the cells as they read.
  for (size_t j = 0; j < kIonCount; ++j) {
    int total;
    bool ok = toInt16(val(grdTotals[ROW_LOCAL][j + 1]), total);
    for (size_t i = 1; ok && i <= kChemicalCount; ++i) {
      int cell;
      ok = toInt16(val(grdChemical[i][j + 2]), cell) && toInt16(static_cast<double>(total) + cell, total);
    }
    if (!ok) {
      wb_.errors.reportError(ERR_OVERFLOW, 0, kIonsFn, "", "Overflow");
      return;
    }
    grdTotals[ROW_TOTALS][j + 1] = formatNumber(total, kPpm);
  }
  ComputeRanges();
}

void WaterTreatment::ComputeRanges() {
  for (int j = 0; j < kIonCount; ++j)
    SetRange(static_cast<int>(std::trunc(val(grdTotals[ROW_TOTALS][static_cast<size_t>(j) + 1]))),
             static_cast<int>(std::trunc(val(grdTotals[ROW_TARGET][static_cast<size_t>(j) + 1]))), j);
}

void WaterTreatment::SetRange(int actual, int target, int column) {
  if (column < 0 || column >= kIonCount) return;
  const double t = wb_.defaults.threshold;
  std::string& cell = grdTotals[ROW_RANGE][static_cast<size_t>(column) + 1];
  if ((1.0 - t) * target > actual) cell = "Low";
  else if ((1.0 + t) * target < actual) cell = "High";
  else cell = "OK";
}

void WaterTreatment::linkChanged() {
  if (!Loading) Changed = true;
}

void WaterTreatment::setGrams(int chemical, const std::string& text) {
  if (chemical < 1 || chemical > kChemicalCount) return;
  const size_t i = static_cast<size_t>(chemical);
  txtGrams[i] = text;
  const double grams = val(text);
  txtTsp[i] = formatNumber(grams / waterChemicals()[i - 1].gramsPerTsp, kQty);
  ComputeIons(chemical, grams);
  linkChanged();
}

void WaterTreatment::setTsp(int chemical, const std::string& text) {
  if (chemical < 1 || chemical > kChemicalCount) return;
  const size_t i = static_cast<size_t>(chemical);
  txtTsp[i] = text;
  const double grams = val(text) * waterChemicals()[i - 1].gramsPerTsp;
  txtGrams[i] = formatNumber(grams, kQty);
  ComputeIons(chemical, grams);
  linkChanged();
}

void WaterTreatment::udcDelta(int chemical, int direction) {
  if (chemical < 1 || chemical > kChemicalCount) return;
  const size_t i = static_cast<size_t>(chemical);
  std::string& box = IncrementMode == 0 ? txtTsp[i] : txtGrams[i];
  double v = val(box) + (direction >= 0 ? Increment : -Increment);
  if (v < 0.001) v = 0;
  const std::string text = formatNumber(v, kQty);
  if (IncrementMode == 0) setTsp(chemical, text);
  else setGrams(chemical, text);
  // The ions follow the grams as the box shows them.
  ComputeIons(chemical, val(txtGrams[i]));
}

void WaterTreatment::optIncrement(int index) {
  IncrementMode = index == 1 ? 1 : 0;
  Increment = IncrementMode == 0 ? wb_.defaults.tspIncrement : wb_.defaults.gramIncrement;
}

void WaterTreatment::selectFamous(int index) {
  if (index < 0 || index >= 11) return;
  cboFamous = index;
  const auto& v = index == 0 ? userValues : famousWaters()[static_cast<size_t>(index)].ppm;
  for (size_t j = 0; j < kIonCount; ++j) grdTotals[ROW_TARGET][j + 1] = itos(v[j]);
  ComputeRanges();
}

void WaterTreatment::editTarget(int column, const std::string& text) {
  if (column < 0 || column >= kIonCount) return;
  grdTotals[ROW_TARGET][static_cast<size_t>(column) + 1] = text;
  cboFamous = 0;
  for (size_t j = 0; j < kIonCount; ++j) {
    int v = 0;
    toInt16(val(grdTotals[ROW_TARGET][j + 1]), v);
    userValues[j] = v;
  }
  ComputeRanges();
}

void WaterTreatment::cmdAccept() {
  SettingsStore& s = wb_.settings;
  s.write(kSection, "Famous Water", itos(cboFamous));
  for (size_t j = 0; j < kIonCount; ++j) s.write(kSection, kUserKeys[j], itos(userValues[j]));
  IngredientTable& g = editor_.sheet.grid;
  const std::string tspText = listText(measures().otherUnits, TSP_UNIT);
  for (int i = 1; i <= kChemicalCount; ++i) {
    const size_t k = static_cast<size_t>(i);
    const WaterChemicalInfo& c = waterChemicals()[k - 1];
    const double tsp = val(txtTsp[k]);
    if (ItemRow[k] == 0) {
      if (tsp > 0) editor_.AddIngredient(KIND_OTHER, *c.commonName ? c.commonName : c.name, tsp, TSP_UNIT, 0, 0, 0, 0);
    } else if (g.isItemRow(ItemRow[k])) {
      g.setCell(ItemRow[k], COL_QTY, formatNumber(tsp, "0.0#"));
      g.setCell(ItemRow[k], COL_UNITS, tspText);
      g.setUnitCode(ItemRow[k], TSP_UNIT);
    }
  }
  Changed = false;
  recompute(wb_, editor_.sheet, EditEvent::Structure);
  editor_.recChanged();
}

void WaterTreatment::cmdReset() {
  for (int i = 1; i <= kChemicalCount; ++i) setGrams(i, "");
}

bool WaterTreatment::queryClose() {
  if (!Changed) return true;
  const Answer a = wb_.prompter.message("Water Treatment Values have Changed.  Save Changes to Recipe?",
                                        "Zythara Water Treatment", Icon::Question, Buttons::YesNoCancel, Answer::Yes);
  if (a == Answer::Cancel) return false;
  if (a == Answer::Yes) cmdAccept();
  return true;
}

}  // namespace zy
