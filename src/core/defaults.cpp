#include "core/defaults.h"

#include "core/errorlog.h"
#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

namespace {
DefaultKey T(const char* k, const char* f, int len, std::string Defaults::*m) {
  DefaultKey d{k, f, DefaultKind::Text, len, true};
  d.text = m;
  return d;
}
DefaultKey I(const char* k, const char* f, int Defaults::*m, bool saved = true) {
  DefaultKey d{k, f, DefaultKind::Int16, 0, saved};
  d.whole = m;
  return d;
}
DefaultKey D(const char* k, const char* f, double Defaults::*m, bool saved = true) {
  DefaultKey d{k, f, DefaultKind::Double, 0, saved};
  d.number = m;
  return d;
}
}  // namespace

const std::vector<DefaultKey>& defaultKeys() {
  using S = Defaults;
  static const std::vector<DefaultKey> keys = {
      T("User Name", "", 60, &S::userName),
      T("User Initials", "", 3, &S::userInitials),
      T("User Company", "", 60, &S::userCompany),
      T("User Phone", "", 30, &S::userPhone),
      T("User Email", "", 80, &S::userEmail),
      I("Auto Update", "1", &S::autoUpdate),
      I("Unit Measure", "0", &S::unitMeasure),
      I("Recipe Type", "0", &S::recipeType, false),
      I("Volume Units", "1", &S::volumeUnits),
      I("Malt Units", "0", &S::maltUnits),
      I("Hops Units", "1", &S::hopsUnits),
      I("Other Units", "5", &S::otherUnits),
      I("Yeast Units", "0", &S::yeastUnits),
      I("Supply Units", "4", &S::supplyUnits, false),
      I("Sparge Units", "1", &S::spargeUnits),
      I("Short Filenames", "0", &S::shortFilenames),
      I("Unix Filenames", "1", &S::unixFilenames),
      I("Include Cost", "0", &S::includeCost),
      D("Mash Eff", "80", &S::mashEff),
      D("Boil Time", "60", &S::boilTime),
      D("Initial Boil", "3.5", &S::initialBoil),
      D("Initial Ferm", "5.0", &S::initialFerm),
      T("Malt Name", "Malt", 50, &S::maltName),
      D("Malt Qty", "1.0", &S::maltQty),
      D("Malt Cost", "1.00", &S::maltCost),
      D("Malt Extraction", "1.032", &S::maltExtraction),
      D("Malt Color", "4.0", &S::maltColor),
      I("Malt Mash", "0", &S::maltMash),
      T("Hops Name", "Hops", 50, &S::hopsName),
      D("Hops Qty", "1.0", &S::hopsQty),
      D("Hops Cost", "1.25", &S::hopsCost),
      D("Hops Alpha", "5.5", &S::hopsAlpha),
      D("Hops Boil", "60", &S::hopsBoil),
      T("Other Name", "Other", 50, &S::otherName),
      D("Other Qty", "1.0", &S::otherQty),
      D("Other Cost", "2.00", &S::otherCost),
      T("Yeast Name", "Yeast", 50, &S::yeastName),
      D("Yeast Qty", "1", &S::yeastQty),
      D("Yeast Cost", "1.50", &S::yeastCost),
      D("Yeast Attenuation", "0.72", &S::yeastAttenuation),
      T("Supply Name", "Item", 50, &S::supplyName),
      D("Supply Qty", "1.0", &S::supplyQty),
      D("Supply Cost", "2.00", &S::supplyCost),
      D("Malt Qty Incement", "0.2", &S::maltQtyIncr),
      D("Malt Cost Incement", "0.05", &S::maltCostIncr),
      D("Malt Extraction Incement", "0.001", &S::maltExtractionIncr),
      D("Malt Color Incement", "1.0", &S::maltColorIncr),
      D("Hops Qty Incement", "0.2", &S::hopsQtyIncr),
      D("Hops Cost Incement", "0.05", &S::hopsCostIncr),
      D("Hops Alpha Incement", "0.1", &S::hopsAlphaIncr),
      D("Hops Boil Incement", "5", &S::hopsBoilIncr),
      D("Other Qty Incement", "1", &S::otherQtyIncr),
      D("Other Cost Incement", "0.05", &S::otherCostIncr),
      D("Yeast Qty Incement", "1", &S::yeastQtyIncr),
      D("Yeast Cost Incement", "0.05", &S::yeastCostIncr),
      D("Yeast Attenuation Incement", "1", &S::yeastAttenuationIncr),
      D("Supply Qty Incement", "1.0", &S::supplyQtyIncr),
      D("Supply Cost Incement", "1.00", &S::supplyCostIncr),
      D("Evaporation Rate", "15", &S::evaporationRate),
      D("Mash Per Lbs", "0.40", &S::mashPerLbs),
      D("Water Absorption", "0.12", &S::waterAbsorption),
      D("Sparge Rate", "0.40", &S::spargeRate),
      D("Sparge Temp", "170", &S::spargeTemp, false),
      D("Left In Kettle", "0.12", &S::leftInKettle),
      D("Kettle Capacity", "5.0", &S::kettleCapacity),
      I("Hold Initial Volume", "1", &S::holdInitialVolume),
      I("Hold Final Volume", "1", &S::holdFinalVolume),
      I("Full Boil", "0", &S::fullBoil),
      I("ionCa", "0", &S::ionCa),
      I("ionCl", "0", &S::ionCl),
      I("ionCO3", "0", &S::ionCO3),
      I("ionMg", "0", &S::ionMg),
      I("ionNa", "0", &S::ionNa),
      I("ionSO4", "0", &S::ionSO4),
      D("Gram Increment", "0.5", &S::gramIncrement),
      D("Tsp Increment", "0.5", &S::tspIncrement),
      D("Threshold", "25", &S::threshold),
      I("Activate Quillmark", "0", &S::activateQuillmark),
      T("Quillmark Path", "", 130, &S::quillmarkPath),
      I("chkTitle", "1", &S::chkTitle),
      I("chkLabel", "0", &S::chkLabel),
      I("chkExtra", "0", &S::chkExtra),
      I("chkDate", "1", &S::chkDate),
      I("chkIDCode", "0", &S::chkIDCode),
      T("posTitle", "Top", 7, &S::posTitle),
      T("posLabel", "Center", 7, &S::posLabel),
      T("posExtra", "Center", 7, &S::posExtra),
      T("posDate", "Bottom", 7, &S::posDate),
      T("posIDCode", "Bottom", 7, &S::posIDCode),
      T("fontTitle", "24", 5, &S::fontTitle),
      T("fontLabel", "20", 5, &S::fontLabel),
      T("fontExtra", "20", 5, &S::fontExtra),
      T("fontDate", "12", 5, &S::fontDate),
      T("fontIDCode", "10", 5, &S::fontIDCode),
      T("Extra Text", "", 120, &S::extraText),
  };
  return keys;
}

void loadDefaults(const SettingsStore& store, Defaults& d, ErrorLog& errors) {
  // The log names the settings file, so that a hand-edited value can be found again.
  const auto* file = dynamic_cast<const FileSettingsStore*>(&store);
  const std::string where = file ? file->path() : std::string();
  for (const DefaultKey& k : defaultKeys()) {
    std::string v = store.read(kDefaultsSection, k.key, k.fallback);
    switch (k.kind) {
      case DefaultKind::Text: d.*k.text = fixedText(v, static_cast<size_t>(k.length)); break;
      case DefaultKind::Int16: {
        auto n = strictInt16(v);
        if (!n) {
          auto isNumber = strictValue(v);
          errors.reportError(isNumber ? ERR_OVERFLOW : ERR_TYPE_MISMATCH, 0, "frmMain!loadDefaults", where,
                             isNumber ? "Overflow" : "Type mismatch");
          break;
        }
        d.*k.whole = *n;
        break;
      }
      case DefaultKind::Double: {
        auto n = strictValue(v);
        if (!n) {
          errors.reportError(ERR_TYPE_MISMATCH, 0, "frmMain!loadDefaults", where, "Type mismatch");
          break;
        }
        d.*k.number = *n;
        break;
      }
    }
  }
  d.threshold = d.threshold / 100.0;
}

void saveDefaults(SettingsStore& store, const Defaults& d) {
  auto* batched = dynamic_cast<FileSettingsStore*>(&store);
  if (batched) batched->beginBatch();
  for (const DefaultKey& k : defaultKeys()) {
    if (!k.saved) continue;
    std::string v;
    switch (k.kind) {
      case DefaultKind::Text: v = trim(d.*k.text); break;
      case DefaultKind::Int16: v = itos(d.*k.whole); break;
      case DefaultKind::Double:
        v = plainText(k.number == &Defaults::threshold ? d.threshold * 100.0 : d.*k.number);
        break;
    }
    store.write(kDefaultsSection, k.key, v);
  }
  if (batched) batched->endBatch();
}

std::string defaultValueText(const Defaults& d, const DefaultKey& k) {
  switch (k.kind) {
    case DefaultKind::Text: return trim(d.*k.text);
    case DefaultKind::Int16: return itos(d.*k.whole);
    case DefaultKind::Double: return plainText(d.*k.number);
  }
  return {};
}

}  // namespace zy
