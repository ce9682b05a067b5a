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
  auto set = [&](const std::string& n, double v) {
    for (const auto& f : fields())
      if (f.name == n) { texts_[n] = formatNumber(v, f.format); return; }
  };
  texts_["txtUserName"] = trim(d.userName);
  texts_["txtInitials"] = trim(d.userInitials);
  texts_["txtCompany"] = trim(d.userCompany);
  texts_["txtPhone"] = trim(d.userPhone);
  texts_["txtEMail"] = trim(d.userEmail);
  checks_["chkAutoUpdate"] = d.autoUpdate != 0;
  combos_["cboUnitType"] = d.unitMeasure;
  combos_["cboRecipeType"] = d.recipeType;
  combos_["cboVolumeUnits"] = d.volumeUnits;
  combos_["cboMaltUnits"] = d.maltUnits;
  combos_["cboHopsUnits"] = d.hopsUnits;
  combos_["cboOtherUnits"] = d.otherUnits;
  combos_["cboYeastUnits"] = d.yeastUnits;
  combos_["cboSupplyUnits"] = d.supplyUnits;
  combos_["cboSpargeUnits"] = d.spargeUnits;
  checks_["chkShortNames"] = d.shortFilenames != 0;
  checks_["chkUnixNames"] = d.unixFilenames != 0;
  checks_["chkIncludeCost"] = d.includeCost != 0;
  set("txtMashEfficiency", d.mashEff);
  set("txtBoilTime", d.boilTime);
  set("txtInitialBoilVolume", d.initialBoil);
  set("txtFermentVolume", d.initialFerm);
  texts_["txtMaltDef(0)"] = trim(d.maltName);
  set("txtMaltDef(1)", d.maltQty);
  set("txtMaltDef(2)", d.maltCost);
  set("txtMaltDef(3)", d.maltExtraction);
  set("txtMaltDef(4)", d.maltColor);
  checks_["chkMash"] = d.maltMash != 0;
  texts_["txtHopsDef(0)"] = trim(d.hopsName);
  set("txtHopsDef(1)", d.hopsQty);
  set("txtHopsDef(2)", d.hopsCost);
  set("txtHopsDef(3)", d.hopsAlpha);
  set("txtHopsDef(4)", d.hopsBoil);
  texts_["txtOtherDef(0)"] = trim(d.otherName);
  set("txtOtherDef(1)", d.otherQty);
  set("txtOtherDef(2)", d.otherCost);
  texts_["txtYeastDef(0)"] = trim(d.yeastName);
  set("txtYeastDef(1)", d.yeastQty);
  set("txtYeastDef(2)", d.yeastCost);
  set("txtYeastDef(3)", d.yeastAttenuation * 100.0);
  texts_["txtSupplyDef(0)"] = trim(d.supplyName);
  set("txtSupplyDef(1)", d.supplyQty);
  set("txtSupplyDef(2)", d.supplyCost);
  set("txtMaltIncr(0)", d.maltQtyIncr);
  set("txtMaltIncr(1)", d.maltCostIncr);
  set("txtMaltIncr(2)", d.maltExtractionIncr);
  set("txtMaltIncr(3)", d.maltColorIncr);
  set("txtHopsIncr(0)", d.hopsQtyIncr);
  set("txtHopsIncr(1)", d.hopsCostIncr);
  set("txtHopsIncr(2)", d.hopsAlphaIncr);
  set("txtHopsIncr(3)", d.hopsBoilIncr);
  set("txtOtherIncr(0)", d.otherQtyIncr);
  set("txtOtherIncr(1)", d.otherCostIncr);
  set("txtYeastIncr(0)", d.yeastQtyIncr);
  set("txtYeastIncr(1)", d.yeastCostIncr);
  set("txtYeastIncr(2)", d.yeastAttenuationIncr);
  set("txtSupplyIncr(0)", d.supplyQtyIncr);
  set("txtSupplyIncr(1)", d.supplyCostIncr);
  set("txtEvaporationRate", d.evaporationRate);
  set("txtMashPerLb", d.mashPerLbs);
  set("txtWaterAbsorbtion", d.waterAbsorption);
  set("txtSpargeRate", d.spargeRate);
  set("txtLeftInKettle", d.leftInKettle);
  set("txtKettleCapacity", d.kettleCapacity);
  checks_["chkHoldInitialVolume"] = d.holdInitialVolume != 0;
  checks_["chkHoldFinalVolume"] = d.holdFinalVolume != 0;
  checks_["chkFullBoil"] = d.fullBoil != 0;
  set("txtCa", d.ionCa);
  set("txtCl", d.ionCl);
  set("txtCO3", d.ionCO3);
  set("txtMg", d.ionMg);
  set("txtNa", d.ionNa);
  set("txtSO4", d.ionSO4);
  set("txtGramInc", d.gramIncrement);
  set("txtTspInc", d.tspIncrement);
  set("txtThreshold", d.threshold * 100.0);
  checks_["chkActivateQuillmark"] = d.activateQuillmark != 0;
  texts_["txtQuillmarkPath"] = trim(d.quillmarkPath);
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
  n.userName = fixedText(text("txtUserName"), 60);
  n.userInitials = fixedText(text("txtInitials"), 3);
  n.userCompany = fixedText(text("txtCompany"), 60);
  n.userPhone = fixedText(text("txtPhone"), 30);
  n.userEmail = fixedText(text("txtEMail"), 80);
  n.autoUpdate = check("chkAutoUpdate");
  n.unitMeasure = combo("cboUnitType");
  n.volumeUnits = combo("cboVolumeUnits");
  n.maltUnits = combo("cboMaltUnits");
  n.hopsUnits = combo("cboHopsUnits");
  n.otherUnits = combo("cboOtherUnits");
  n.yeastUnits = combo("cboYeastUnits");
  n.supplyUnits = combo("cboSupplyUnits");
  n.spargeUnits = combo("cboSpargeUnits");
  n.shortFilenames = check("chkShortNames");
  n.unixFilenames = check("chkUnixNames");
  n.includeCost = check("chkIncludeCost");
  n.mashEff = number("txtMashEfficiency");
  n.boilTime = number("txtBoilTime");
  n.initialBoil = number("txtInitialBoilVolume");
  n.initialFerm = number("txtFermentVolume");
  n.maltName = fixedText(text("txtMaltDef(0)"), 50);
  n.maltQty = number("txtMaltDef(1)");
  n.maltCost = number("txtMaltDef(2)");
  n.maltExtraction = number("txtMaltDef(3)");
  n.maltColor = number("txtMaltDef(4)");
  n.maltMash = check("chkMash");
  n.hopsName = fixedText(text("txtHopsDef(0)"), 50);
  n.hopsQty = number("txtHopsDef(1)");
  n.hopsCost = number("txtHopsDef(2)");
  n.hopsAlpha = number("txtHopsDef(3)");
  n.hopsBoil = number("txtHopsDef(4)");
  n.otherName = fixedText(text("txtOtherDef(0)"), 50);
  n.otherQty = number("txtOtherDef(1)");
  n.otherCost = number("txtOtherDef(2)");
  n.yeastName = fixedText(text("txtYeastDef(0)"), 50);
  n.yeastQty = number("txtYeastDef(1)");
  n.yeastCost = number("txtYeastDef(2)");
  n.yeastAttenuation = number("txtYeastDef(3)") / 100.0;
  n.supplyName = fixedText(text("txtSupplyDef(0)"), 50);
  n.supplyQty = number("txtSupplyDef(1)");
  n.supplyCost = number("txtSupplyDef(2)");
  n.maltQtyIncr = number("txtMaltIncr(0)");
  n.maltCostIncr = number("txtMaltIncr(1)");
  n.maltExtractionIncr = number("txtMaltIncr(2)");
  n.maltColorIncr = number("txtMaltIncr(3)");
  n.hopsQtyIncr = number("txtHopsIncr(0)");
  n.hopsCostIncr = number("txtHopsIncr(1)");
  n.hopsAlphaIncr = number("txtHopsIncr(2)");
  n.hopsBoilIncr = number("txtHopsIncr(3)");
  n.otherQtyIncr = number("txtOtherIncr(0)");
  n.otherCostIncr = number("txtOtherIncr(1)");
  n.yeastQtyIncr = number("txtYeastIncr(0)");
  n.yeastCostIncr = number("txtYeastIncr(1)");
  n.yeastAttenuationIncr = number("txtYeastIncr(2)");
  n.supplyQtyIncr = number("txtSupplyIncr(0)");
  n.supplyCostIncr = number("txtSupplyIncr(1)");
  n.evaporationRate = number("txtEvaporationRate");
  n.mashPerLbs = number("txtMashPerLb");
  n.waterAbsorption = number("txtWaterAbsorbtion");
  n.spargeRate = number("txtSpargeRate");
  n.leftInKettle = number("txtLeftInKettle");
  n.kettleCapacity = number("txtKettleCapacity");
  n.holdInitialVolume = check("chkHoldInitialVolume");
  n.holdFinalVolume = check("chkHoldFinalVolume");
  n.fullBoil = check("chkFullBoil");
  n.ionCa = whole("txtCa");
  n.ionCl = whole("txtCl");
  n.ionCO3 = whole("txtCO3");
  n.ionMg = whole("txtMg");
  n.ionNa = whole("txtNa");
  n.ionSO4 = whole("txtSO4");
  n.gramIncrement = number("txtGramInc");
  n.tspIncrement = number("txtTspInc");
  n.threshold = number("txtThreshold") / 100.0;
  n.activateQuillmark = check("chkActivateQuillmark");
  n.quillmarkPath = fixedText(text("txtQuillmarkPath"), 130);
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
