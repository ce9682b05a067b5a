#include "core/Properties.h"

#include "core/errorlog.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/paths.h"
#include "core/text.h"

namespace zy {

namespace {
enum Page { USER, UNITS, RECIPE, INCREMENTS, WATER, TREATMENT, QUILLMARK };
const char* const CUR = "Currency";

std::string el(const char* control, int i) { return std::string(control) + "(" + std::to_string(i) + ")"; }

const std::vector<std::string> kPositions = {"Top", "Center", "Bottom"};
const std::vector<std::string> kFontSizes = {"8",  "9",  "10", "11", "12", "14", "16", "18",
                                             "20", "22", "24", "26", "28", "36", "48", "72"};
const char* const kQuillChecks[5] = {"chkTitleText", "chkLabelText", "chkExtraText", "chkDate", "chkIDCode"};

double num(const std::string& t) { return lenientValue(t); }

// How each control stands for a default: a text box of text (cut to its length), of a number
// (shown by the box's pattern; a percent box shows a fraction times 100), of a whole number, a
// check box, or a list's selection.
struct Binding {
  enum Kind { Text, Number, Percent, Whole, Check, Combo };
  const char* control;
  Kind kind;
  std::string Defaults::*text;
  int Defaults::*whole;
  double Defaults::*number;
  int length;
};

const std::vector<Binding>& bindings() {
  using B = Binding;
  using D = Defaults;
  static const std::vector<Binding> b = {
      {"txtUserName", B::Text, &D::userName, nullptr, nullptr, 60},
      {"txtInitials", B::Text, &D::userInitials, nullptr, nullptr, 3},
      {"txtCompany", B::Text, &D::userCompany, nullptr, nullptr, 60},
      {"txtPhone", B::Text, &D::userPhone, nullptr, nullptr, 30},
      {"txtEMail", B::Text, &D::userEmail, nullptr, nullptr, 80},
      {"chkAutoUpdate", B::Check, nullptr, &D::autoUpdate, nullptr, 0},
      {"cboUnitType", B::Combo, nullptr, &D::unitMeasure, nullptr, 0},
      {"cboVolumeUnits", B::Combo, nullptr, &D::volumeUnits, nullptr, 0},
      {"cboMaltUnits", B::Combo, nullptr, &D::maltUnits, nullptr, 0},
      {"cboHopsUnits", B::Combo, nullptr, &D::hopsUnits, nullptr, 0},
      {"cboOtherUnits", B::Combo, nullptr, &D::otherUnits, nullptr, 0},
      {"cboYeastUnits", B::Combo, nullptr, &D::yeastUnits, nullptr, 0},
      {"cboSupplyUnits", B::Combo, nullptr, &D::supplyUnits, nullptr, 0},
      {"cboSpargeUnits", B::Combo, nullptr, &D::spargeUnits, nullptr, 0},
      {"chkShortNames", B::Check, nullptr, &D::shortFilenames, nullptr, 0},
      {"chkUnixNames", B::Check, nullptr, &D::unixFilenames, nullptr, 0},
      {"chkIncludeCost", B::Check, nullptr, &D::includeCost, nullptr, 0},
      {"txtMashEfficiency", B::Number, nullptr, nullptr, &D::mashEff, 0},
      {"txtBoilTime", B::Number, nullptr, nullptr, &D::boilTime, 0},
      {"txtInitialBoilVolume", B::Number, nullptr, nullptr, &D::initialBoil, 0},
      {"txtFermentVolume", B::Number, nullptr, nullptr, &D::initialFerm, 0},
      {"txtMaltDef(0)", B::Text, &D::maltName, nullptr, nullptr, 50},
      {"txtMaltDef(1)", B::Number, nullptr, nullptr, &D::maltQty, 0},
      {"txtMaltDef(2)", B::Number, nullptr, nullptr, &D::maltCost, 0},
      {"txtMaltDef(3)", B::Number, nullptr, nullptr, &D::maltExtraction, 0},
      {"txtMaltDef(4)", B::Number, nullptr, nullptr, &D::maltColor, 0},
      {"chkMash", B::Check, nullptr, &D::maltMash, nullptr, 0},
      {"txtHopsDef(0)", B::Text, &D::hopsName, nullptr, nullptr, 50},
      {"txtHopsDef(1)", B::Number, nullptr, nullptr, &D::hopsQty, 0},
      {"txtHopsDef(2)", B::Number, nullptr, nullptr, &D::hopsCost, 0},
      {"txtHopsDef(3)", B::Number, nullptr, nullptr, &D::hopsAlpha, 0},
      {"txtHopsDef(4)", B::Number, nullptr, nullptr, &D::hopsBoil, 0},
      {"txtOtherDef(0)", B::Text, &D::otherName, nullptr, nullptr, 50},
      {"txtOtherDef(1)", B::Number, nullptr, nullptr, &D::otherQty, 0},
      {"txtOtherDef(2)", B::Number, nullptr, nullptr, &D::otherCost, 0},
      {"txtYeastDef(0)", B::Text, &D::yeastName, nullptr, nullptr, 50},
      {"txtYeastDef(1)", B::Number, nullptr, nullptr, &D::yeastQty, 0},
      {"txtYeastDef(2)", B::Number, nullptr, nullptr, &D::yeastCost, 0},
      {"txtYeastDef(3)", B::Percent, nullptr, nullptr, &D::yeastAttenuation, 0},
      {"txtSupplyDef(0)", B::Text, &D::supplyName, nullptr, nullptr, 50},
      {"txtSupplyDef(1)", B::Number, nullptr, nullptr, &D::supplyQty, 0},
      {"txtSupplyDef(2)", B::Number, nullptr, nullptr, &D::supplyCost, 0},
      {"txtMaltIncr(0)", B::Number, nullptr, nullptr, &D::maltQtyIncr, 0},
      {"txtMaltIncr(1)", B::Number, nullptr, nullptr, &D::maltCostIncr, 0},
      {"txtMaltIncr(2)", B::Number, nullptr, nullptr, &D::maltExtractionIncr, 0},
      {"txtMaltIncr(3)", B::Number, nullptr, nullptr, &D::maltColorIncr, 0},
      {"txtHopsIncr(0)", B::Number, nullptr, nullptr, &D::hopsQtyIncr, 0},
      {"txtHopsIncr(1)", B::Number, nullptr, nullptr, &D::hopsCostIncr, 0},
      {"txtHopsIncr(2)", B::Number, nullptr, nullptr, &D::hopsAlphaIncr, 0},
      {"txtHopsIncr(3)", B::Number, nullptr, nullptr, &D::hopsBoilIncr, 0},
      {"txtOtherIncr(0)", B::Number, nullptr, nullptr, &D::otherQtyIncr, 0},
      {"txtOtherIncr(1)", B::Number, nullptr, nullptr, &D::otherCostIncr, 0},
      {"txtYeastIncr(0)", B::Number, nullptr, nullptr, &D::yeastQtyIncr, 0},
      {"txtYeastIncr(1)", B::Number, nullptr, nullptr, &D::yeastCostIncr, 0},
      {"txtYeastIncr(2)", B::Number, nullptr, nullptr, &D::yeastAttenuationIncr, 0},
      {"txtSupplyIncr(0)", B::Number, nullptr, nullptr, &D::supplyQtyIncr, 0},
      {"txtSupplyIncr(1)", B::Number, nullptr, nullptr, &D::supplyCostIncr, 0},
      {"txtEvaporationRate", B::Number, nullptr, nullptr, &D::evaporationRate, 0},
      {"txtMashPerLb", B::Number, nullptr, nullptr, &D::mashPerLbs, 0},
      {"txtWaterAbsorbtion", B::Number, nullptr, nullptr, &D::waterAbsorption, 0},
      {"txtSpargeRate", B::Number, nullptr, nullptr, &D::spargeRate, 0},
      {"txtLeftInKettle", B::Number, nullptr, nullptr, &D::leftInKettle, 0},
      {"txtKettleCapacity", B::Number, nullptr, nullptr, &D::kettleCapacity, 0},
      {"chkHoldInitialVolume", B::Check, nullptr, &D::holdInitialVolume, nullptr, 0},
      {"chkHoldFinalVolume", B::Check, nullptr, &D::holdFinalVolume, nullptr, 0},
      {"chkFullBoil", B::Check, nullptr, &D::fullBoil, nullptr, 0},
      {"txtCa", B::Whole, nullptr, &D::ionCa, nullptr, 0},
      {"txtCl", B::Whole, nullptr, &D::ionCl, nullptr, 0},
      {"txtCO3", B::Whole, nullptr, &D::ionCO3, nullptr, 0},
      {"txtMg", B::Whole, nullptr, &D::ionMg, nullptr, 0},
      {"txtNa", B::Whole, nullptr, &D::ionNa, nullptr, 0},
      {"txtSO4", B::Whole, nullptr, &D::ionSO4, nullptr, 0},
      {"txtGramInc", B::Number, nullptr, nullptr, &D::gramIncrement, 0},
      {"txtTspInc", B::Number, nullptr, nullptr, &D::tspIncrement, 0},
      {"txtThreshold", B::Percent, nullptr, nullptr, &D::threshold, 0},
      {"chkActivateQuillmark", B::Check, nullptr, &D::activateQuillmark, nullptr, 0},
      {"txtQuillmarkPath", B::Text, &D::quillmarkPath, nullptr, nullptr, 130},
  };
  return b;
}

const std::string& formatOf(const std::string& control) {
  static const std::string none;
  for (const auto& f : PropertiesModel::fields())
    if (f.name == control) return f.format;
  return none;
}
}  // namespace

const std::vector<std::string>& PropertiesModel::pageCaptions() {
  static const std::vector<std::string> p = {"User Defaults",         "Unit/Export Defaults", "Recipe Defaults",
                                             "Ingredient Increments", "Water Management",     "Water Treatment",
                                             "Quillmark"};
  return p;
}

const std::vector<PropertyField>& PropertiesModel::fields() {
  static const std::vector<PropertyField> f = [] {
    std::vector<PropertyField> v = {
        {"txtUserName", USER, "", 60},        {"txtInitials", USER, "", 3},   {"txtCompany", USER, "", 60},
        {"txtPhone", USER, "", 30},           {"txtEMail", USER, "", 80},
        {"txtMashEfficiency", RECIPE, "0", 8}, {"txtBoilTime", RECIPE, "0", 8},
        {"txtInitialBoilVolume", RECIPE, "0.0", 10}, {"txtFermentVolume", RECIPE, "0.0", 10},
    };
    auto add = [&](const char* c, int page, std::vector<std::string> formats) {
      for (size_t i = 0; i < formats.size(); ++i)
        v.push_back({el(c, static_cast<int>(i)), page, formats[i], formats[i].empty() ? 50 : 12});
    };
    add("txtMaltDef", RECIPE, {"", "0.0#", CUR, "0.000", "0.0"});
    add("txtHopsDef", RECIPE, {"", "0.0#", CUR, "0.#", "0"});
    add("txtOtherDef", RECIPE, {"", "0.0#", CUR});
    add("txtYeastDef", RECIPE, {"", "0.0#", CUR, "0.#"});
    add("txtSupplyDef", RECIPE, {"", "0.0#", CUR});
    add("txtMaltIncr", INCREMENTS, {"0.0#", CUR, "0.000", "0.0"});
    add("txtHopsIncr", INCREMENTS, {"0.0#", CUR, "0.#", "0"});
    add("txtOtherIncr", INCREMENTS, {"0.0#", CUR});
    add("txtYeastIncr", INCREMENTS, {"0.0#", CUR, "0.#"});
    add("txtSupplyIncr", INCREMENTS, {"0.0#", CUR});
    for (const char* n : {"txtEvaporationRate"}) v.push_back({n, WATER, "0", 8});
    for (const char* n : {"txtMashPerLb", "txtWaterAbsorbtion", "txtSpargeRate", "txtLeftInKettle", "txtKettleCapacity"})
      v.push_back({n, WATER, "0.00", 10});
    for (const char* n : {"txtCa", "txtCl", "txtCO3", "txtMg", "txtNa", "txtSO4"}) v.push_back({n, TREATMENT, "0", 6});
    v.push_back({"txtGramInc", TREATMENT, "0.0#", 8});
    v.push_back({"txtTspInc", TREATMENT, "0.0#", 8});
    v.push_back({"txtThreshold", TREATMENT, "0", 6});
    v.push_back({"txtQuillmarkPath", QUILLMARK, "", 130});
    v.push_back({"txtExtra", QUILLMARK, "", 120});
    return v;
  }();
  return f;
}

const std::vector<std::string>& PropertiesModel::checkNames() {
  static const std::vector<std::string> c = {
      "chkAutoUpdate", "chkShortNames",        "chkUnixNames", "chkIncludeCost", "chkMash",
      "chkHoldInitialVolume", "chkHoldFinalVolume", "chkFullBoil", "chkActivateQuillmark", "chkTitleText",
      "chkLabelText", "chkExtraText",         "chkDate",      "chkIDCode"};
  return c;
}

const std::vector<std::string>& PropertiesModel::comboNames() {
  static const std::vector<std::string> c = [] {
    std::vector<std::string> v = {"cboUnitType",  "cboRecipeType", "cboVolumeUnits", "cboMaltUnits", "cboHopsUnits",
                                  "cboOtherUnits", "cboYeastUnits", "cboSupplyUnits", "cboSpargeUnits"};
    for (int i = 0; i < 5; ++i) v.push_back(el("cboPosition", i));
    for (int i = 0; i < 5; ++i) v.push_back(el("cboFontSize", i));
    return v;
  }();
  return c;
}

std::vector<std::string> PropertiesModel::comboEntries(const std::string& name) {
  const Measures& m = measures();
  if (name == "cboUnitType") return m.unitTypes;
  if (name == "cboRecipeType") return m.recipeTypes;
  if (name == "cboVolumeUnits" || name == "cboSpargeUnits") return m.volumeUnits;
  if (name == "cboMaltUnits" || name == "cboHopsUnits") return m.weightUnits;
  if (name == "cboOtherUnits" || name == "cboSupplyUnits") return m.otherUnits;
  if (name == "cboYeastUnits") return m.yeastUnits;
  if (startsWith(name, "cboPosition")) return kPositions;
  if (startsWith(name, "cboFontSize")) return kFontSizes;
  return {};
}

std::string& PropertiesModel::text(const std::string& name) { return texts_[name]; }
const std::string& PropertiesModel::text(const std::string& name) const {
  static const std::string empty;
  auto it = texts_.find(name);
  return it == texts_.end() ? empty : it->second;
}
int& PropertiesModel::check(const std::string& name) { return checks_[name]; }
int PropertiesModel::check(const std::string& name) const {
  auto it = checks_.find(name);
  return it == checks_.end() ? 0 : it->second;
}
int& PropertiesModel::combo(const std::string& name) { return combos_[name]; }
int PropertiesModel::combo(const std::string& name) const {
  auto it = combos_.find(name);
  return it == combos_.end() ? 0 : it->second;
}
std::string PropertiesModel::comboText(const std::string& name) const {
  std::vector<std::string> e = comboEntries(name);
  int i = combo(name);
  return i >= 0 && i < static_cast<int>(e.size()) ? e[i] : std::string();
}

void PropertiesModel::fillFromDefaults(const Defaults& d) {
  loading = true;
  for (const Binding& b : bindings()) {
    switch (b.kind) {
      case Binding::Text: texts_[b.control] = trim(d.*b.text); break;
      case Binding::Number: texts_[b.control] = formatNumber(d.*b.number, formatOf(b.control)); break;
      case Binding::Percent: texts_[b.control] = formatNumber(d.*b.number * 100.0, formatOf(b.control)); break;
      case Binding::Whole: texts_[b.control] = formatNumber(d.*b.whole, formatOf(b.control)); break;
      case Binding::Check: checks_[b.control] = d.*b.whole != 0; break;
      case Binding::Combo: combos_[b.control] = d.*b.whole; break;
    }
  }
  // The recipe type has a list but is never applied.
  combos_["cboRecipeType"] = d.recipeType;
  const int includes[5] = {d.chkTitle, d.chkLabel, d.chkExtra, d.chkDate, d.chkIDCode};
  const std::string positions[5] = {d.posTitle, d.posLabel, d.posExtra, d.posDate, d.posIDCode};
  const std::string fonts[5] = {d.fontTitle, d.fontLabel, d.fontExtra, d.fontDate, d.fontIDCode};
  const int defaultPosition[5] = {0, 1, 1, 2, 2};
  const char* defaultFont[5] = {"24", "20", "20", "12", "10"};
  for (int i = 0; i < 5; ++i) {
    checks_[kQuillChecks[i]] = includes[i] != 0;
    combos_[el("cboPosition", i)] = findInList(kPositions, 2, positions[i], defaultPosition[i]);
    combos_[el("cboFontSize", i)] = findInList(
        kFontSizes, static_cast<int>(kFontSizes.size()) - 1, fonts[i],
        findInList(kFontSizes, static_cast<int>(kFontSizes.size()) - 1, defaultFont[i], 0));
  }
  texts_["txtExtra"] = trim(d.extraText);
  loading = false;
}

bool PropertiesModel::isNumericField(const std::string& fieldName) {
  for (const auto& f : fields())
    if (f.name == fieldName) return !f.format.empty();
  return false;
}

void PropertiesModel::reformat(const std::string& fieldName) {
  for (const auto& f : fields())
    if (f.name == fieldName && !f.format.empty()) {
      std::string& t = texts_[fieldName];
      // A money text keeps its value: the sign is read past.
      std::string raw = replaceAll(replaceAll(t, "$", ""), ",", "");
      t = formatNumber(num(raw), f.format);
    }
}

int PropertiesModel::filterKey(const std::string& fieldName, int keyAscii, Prompter* beeper) const {
  if (!isNumericField(fieldName)) return keyAscii;
  return numericKey(keyAscii, false, beeper);
}

void PropertiesModel::cboUnitType_Click(int unitType, Prompter& prompter) {
  combos_["cboUnitType"] = unitType;
  if (loading) return;
  Answer a = prompter.message("Change the other Measurement Units to match (reset to defaults for the units selected)?",
                              "Change Units", Icon::Question, Buttons::YesNo, Answer::Yes);
  if (a != Answer::Yes) return;
  switch (unitType) {
    case METRIC_MEASURES:
      combos_["cboVolumeUnits"] = LITER_CONST;
      combos_["cboMaltUnits"] = UNIT_KG;
      combos_["cboHopsUnits"] = UNIT_GR;
      combos_["cboSpargeUnits"] = LITER_CONST;
      break;
    case IMPERIAL_MEASURES:
      combos_["cboVolumeUnits"] = IMPERIAL_GAL_CONST;
      combos_["cboMaltUnits"] = UNIT_LBS;
      combos_["cboHopsUnits"] = UNIT_OZ;
      combos_["cboSpargeUnits"] = IMPERIAL_GAL_CONST;
      break;
    default:
      combos_["cboVolumeUnits"] = US_GAL_CONST;
      combos_["cboMaltUnits"] = UNIT_LBS;
      combos_["cboHopsUnits"] = UNIT_OZ;
      combos_["cboSpargeUnits"] = US_GAL_CONST;
      break;
  }
  cmdResetRecipe();
  cmdResetIngr();
}

namespace {
struct WeightFactors {
  double maltQty = 1, maltCost = 1, hopsQty = 1, hopsCost = 1;
};
// Malt defaults are per pound and hops defaults per ounce; under the Metric system they are
// converted to the weight units chosen in the lists.
WeightFactors weightFactors(const PropertiesModel& m) {
  WeightFactors w;
  if (m.combo("cboUnitType") != METRIC_MEASURES) return w;
  const auto& wc = measures().weightConvert;
  int malt = m.combo("cboMaltUnits"), hops = m.combo("cboHopsUnits");
  if (malt < 0 || malt > 3) malt = UNIT_LBS;
  if (hops < 0 || hops > 3) hops = UNIT_OZ;
  w.maltQty = wc[UNIT_LBS][malt];
  w.maltCost = wc[malt][UNIT_LBS];
  w.hopsQty = wc[UNIT_OZ][hops];
  w.hopsCost = wc[hops][UNIT_OZ];
  return w;
}
}  // namespace

void PropertiesModel::cmdResetRecipe() {
  const bool metric = combo("cboUnitType") == METRIC_MEASURES;
  const WeightFactors w = weightFactors(*this);
  texts_["txtMashEfficiency"] = "80";
  texts_["txtBoilTime"] = "60";
  texts_["txtInitialBoilVolume"] = metric ? "14.0" : "3.5";
  texts_["txtFermentVolume"] = metric ? "20.0" : "5.0";
  texts_["txtMaltDef(0)"] = "Malt";
  texts_["txtMaltDef(1)"] = formatNumber(1.0 * w.maltQty, "0.0#");
  texts_["txtMaltDef(2)"] = formatNumber(1.0 * w.maltCost, CUR);
  texts_["txtMaltDef(3)"] = formatNumber(1.032, "0.000");
  texts_["txtMaltDef(4)"] = formatNumber(4.0, "0.0");
  checks_["chkMash"] = 0;
  texts_["txtHopsDef(0)"] = "Hops";
  texts_["txtHopsDef(1)"] = formatNumber(1.0 * w.hopsQty, "0.0#");
  texts_["txtHopsDef(2)"] = formatNumber(1.25 * w.hopsCost, CUR);
  texts_["txtHopsDef(3)"] = formatNumber(5.5, "0.#");
  texts_["txtHopsDef(4)"] = formatNumber(60, "0");
  texts_["txtOtherDef(0)"] = "Other";
  texts_["txtOtherDef(1)"] = formatNumber(1.0, "0.0#");
  texts_["txtOtherDef(2)"] = formatNumber(2.0, CUR);
  texts_["txtYeastDef(0)"] = "Yeast";
  texts_["txtYeastDef(1)"] = formatNumber(1, "0.0#");
  texts_["txtYeastDef(2)"] = formatNumber(1.5, CUR);
  texts_["txtYeastDef(3)"] = formatNumber(72, "0.#");
  texts_["txtSupplyDef(0)"] = "Item";
  texts_["txtSupplyDef(1)"] = formatNumber(1.0, "0.0#");
  texts_["txtSupplyDef(2)"] = formatNumber(2.0, CUR);
}

void PropertiesModel::cmdResetIngr() {
  const WeightFactors w = weightFactors(*this);
  texts_["txtMaltIncr(0)"] = formatNumber(0.2 * w.maltQty, "0.0#");
  texts_["txtMaltIncr(1)"] = formatNumber(0.05 * w.maltCost, CUR);
  texts_["txtMaltIncr(2)"] = formatNumber(0.001, "0.000");
  texts_["txtMaltIncr(3)"] = formatNumber(1.0, "0.0");
  texts_["txtHopsIncr(0)"] = formatNumber(0.2 * w.hopsQty, "0.0#");
  texts_["txtHopsIncr(1)"] = formatNumber(0.05 * w.hopsCost, CUR);
  texts_["txtHopsIncr(2)"] = formatNumber(0.1, "0.#");
  texts_["txtHopsIncr(3)"] = formatNumber(5, "0");
  texts_["txtOtherIncr(0)"] = formatNumber(1, "0.0#");
  texts_["txtOtherIncr(1)"] = formatNumber(0.05, CUR);
  texts_["txtYeastIncr(0)"] = formatNumber(1, "0.0#");
  texts_["txtYeastIncr(1)"] = formatNumber(0.05, CUR);
  texts_["txtYeastIncr(2)"] = formatNumber(1, "0.#");
  texts_["txtSupplyIncr(0)"] = formatNumber(1.0, "0.0#");
  texts_["txtSupplyIncr(1)"] = formatNumber(1.0, CUR);
}

void PropertiesModel::cmdResetWater() {
  texts_["txtEvaporationRate"] = formatNumber(15, "0");
  texts_["txtMashPerLb"] = formatNumber(0.40, "0.00");
  texts_["txtWaterAbsorbtion"] = formatNumber(0.12, "0.00");
  texts_["txtSpargeRate"] = formatNumber(0.40, "0.00");
  texts_["txtLeftInKettle"] = formatNumber(0.12, "0.00");
  texts_["txtKettleCapacity"] = formatNumber(5.0, "0.00");
  checks_["chkHoldInitialVolume"] = 1;
  checks_["chkHoldFinalVolume"] = 1;
  checks_["chkFullBoil"] = 0;
}

void PropertiesModel::chkActivateQuillmark_Click(const std::string& programsFolder) {
  if (loading || check("chkActivateQuillmark") == 0) return;
  for (const char* rel : {"Quillmark 2/Quillmark2", "Quillmark 2/Quillmark2.exe", "Quilmk/Quilmk", "Quilmk/Quilmk.exe"}) {
    std::string candidate = ProgramFolder::join(programsFolder, rel);
    if (fileExists(candidate)) {
      texts_["txtQuillmarkPath"] = candidate;
      return;
    }
  }
}

bool PropertiesModel::applyNewDefaults(Defaults& d, ErrorLog& errors) const {
  bool ok = true;
  auto number = [&](const char* n) -> double {
    auto v = strictValue(text(n));
    if (!v) {
      if (ok) errors.reportError(ERR_TYPE_MISMATCH, 0, "frmProperties!applyNewDefaults", "", "Type mismatch");
      ok = false;
      return 0;
    }
    return *v;
  };
  auto whole = [&](const char* n) -> int {
    auto v = strictInt16(text(n));
    if (!v) {
      if (ok) errors.reportError(ERR_TYPE_MISMATCH, 0, "frmProperties!applyNewDefaults", "", "Type mismatch");
      ok = false;
      return 0;
    }
    return *v;
  };
  Defaults n = d;
  for (const Binding& b : bindings()) {
    switch (b.kind) {
      case Binding::Text: n.*b.text = fixedText(text(b.control), static_cast<size_t>(b.length)); break;
      case Binding::Number: n.*b.number = number(b.control); break;
      case Binding::Percent: n.*b.number = number(b.control) / 100.0; break;
      case Binding::Whole: n.*b.whole = whole(b.control); break;
      case Binding::Check: n.*b.whole = check(b.control); break;
      case Binding::Combo: n.*b.whole = combo(b.control); break;
    }
  }
  int* includes[5] = {&n.chkTitle, &n.chkLabel, &n.chkExtra, &n.chkDate, &n.chkIDCode};
  std::string* positions[5] = {&n.posTitle, &n.posLabel, &n.posExtra, &n.posDate, &n.posIDCode};
  std::string* fonts[5] = {&n.fontTitle, &n.fontLabel, &n.fontExtra, &n.fontDate, &n.fontIDCode};
  for (int i = 0; i < 5; ++i) {
    *includes[i] = check(kQuillChecks[i]);
    *positions[i] = fixedText(comboText(el("cboPosition", i)), 7);
    *fonts[i] = fixedText(comboText(el("cboFontSize", i)), 5);
  }
  n.extraText = fixedText(text("txtExtra"), 120);
  if (!ok) return false;
  d = n;
  return true;
}

bool PropertiesModel::cmdApply(Defaults& d, SettingsStore& store, ErrorLog& errors) const {
  if (!applyNewDefaults(d, errors)) return false;
  saveDefaults(store, d);
  return true;
}

}  // namespace zy
