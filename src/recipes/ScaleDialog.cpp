#include "recipes/ScaleDialog.h"

#include <algorithm>

#include "core/measures.h"
#include "core/numfmt.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
// Other-ingredient units.
constexpr int OTHER_US_GAL = 6, OTHER_US_QTS = 7, OTHER_US_FLOZ = 8, OTHER_LITERS = 9, OTHER_ML = 10,
              OTHER_IMP_GAL = 11, OTHER_IMP_QTS = 12, OTHER_IMP_FLOZ = 13;

// A liquid measure of the other-ingredient list as a multiple of a volume unit of the volume
// table: fluid ounces are 1/32 of a US quart and 1/40 of an imperial quart, a millilitre 1/1000
// of a liter.
struct Liquid {
  int volumeCode;
  double multiple;
};
bool liquid(int unit, Liquid& out) {
  switch (unit) {
    case OTHER_US_GAL: out = {US_GAL_CONST, 1.0}; return true;
    case OTHER_US_QTS: out = {US_QTS_CONST, 1.0}; return true;
    case OTHER_US_FLOZ: out = {US_QTS_CONST, 1.0 / 32.0}; return true;
    case OTHER_LITERS: out = {LITER_CONST, 1.0}; return true;
    case OTHER_ML: out = {LITER_CONST, 0.001}; return true;
    case OTHER_IMP_GAL: out = {IMPERIAL_GAL_CONST, 1.0}; return true;
    case OTHER_IMP_QTS: out = {IMPERIAL_QTS_CONST, 1.0}; return true;
    case OTHER_IMP_FLOZ: out = {IMPERIAL_QTS_CONST, 1.0 / 40.0}; return true;
    default: return false;
  }
}

// The volume unit a unit system proposes.
int systemVolumeUnit(int system) {
  return system == METRIC_MEASURES ? LITER_CONST : system == IMPERIAL_MEASURES ? IMPERIAL_GAL_CONST : US_GAL_CONST;
}

bool validVolumeUnit(int u) { return u >= 0 && u < 8; }
}  // namespace

const std::array<const char*, 3>& ScaleDialog::unitCaptions() {
  static const std::array<const char*, 3> c = {"US (Gallons, Pounds, Ounces)", "Metric (Liters, Kilograms, Grams)",
                                               "British (Imperial Gallons, Pounds)"};
  return c;
}

int scaledUnit(int kind, int unit, int system) {
  if (kind == KIND_YEAST) return unit;
  const bool metric = system == METRIC_MEASURES;
  switch (unit) {
    case UNIT_LBS: return metric ? UNIT_KG : UNIT_LBS;
    case UNIT_OZ: return metric ? UNIT_GR : UNIT_OZ;
    case UNIT_KG: return metric ? UNIT_KG : UNIT_LBS;
    case UNIT_GR: return metric ? UNIT_GR : UNIT_OZ;
    default: break;
  }
  if (kind != KIND_OTHER) return unit;
  switch (system) {
    case METRIC_MEASURES:
      switch (unit) {
        case OTHER_US_GAL: case OTHER_US_QTS: case OTHER_IMP_GAL: case OTHER_IMP_QTS: return OTHER_LITERS;
        case OTHER_US_FLOZ: case OTHER_IMP_FLOZ: return OTHER_ML;
        default: return unit;
      }
    case IMPERIAL_MEASURES:
      switch (unit) {
        case OTHER_US_GAL: return OTHER_IMP_GAL;
        case OTHER_US_QTS: case OTHER_LITERS: return OTHER_IMP_QTS;
        case OTHER_US_FLOZ: case OTHER_ML: return OTHER_IMP_FLOZ;
        default: return unit;
      }
    default:
      switch (unit) {
        case OTHER_IMP_GAL: return OTHER_US_GAL;
        case OTHER_IMP_QTS: case OTHER_LITERS: return OTHER_US_QTS;
        case OTHER_IMP_FLOZ: case OTHER_ML: return OTHER_US_FLOZ;
        default: return unit;
      }
  }
}

double unitFactor(int kind, int fromUnit, int toUnit) {
  if (fromUnit == toUnit || kind == KIND_YEAST) return 1.0;
  const Measures& m = measures();
  if (fromUnit >= 0 && fromUnit < 4 && toUnit >= 0 && toUnit < 4) return m.weightConvert[fromUnit][toUnit];
  Liquid a, b;
  if (kind == KIND_OTHER && liquid(fromUnit, a) && liquid(toUnit, b))
    return a.multiple * m.volume_convert[a.volumeCode][b.volumeCode] / b.multiple;
  return 1.0;
}

void ScaleDialog::open(const RecipeEditor& editor) {
  const RecipeRecord& rec = editor.wb.recipe.rec;
  txtVolume = editor.sheet.txtFermentVolume;
  cboVolume = validVolumeUnit(rec.volumeUnits) ? rec.volumeUnits : US_GAL_CONST;
  optUnits = std::clamp(rec.unitType, 0, 2);
}

void ScaleDialog::setUnitSystem(int system) {
  optUnits = std::clamp(system, 0, 2);
  const int to = systemVolumeUnit(optUnits);
  if (validVolumeUnit(cboVolume) && cboVolume != to)
    txtVolume = formatNumber(lenientValue(txtVolume) * measures().volume_convert[cboVolume][to], "0.0");
  cboVolume = to;
}

bool ScaleDialog::apply(RecipeEditor& editor) const {
  Workbench& wb = editor.wb;
  RecipeRecord& rec = wb.recipe.rec;
  const Measures& m = measures();
  const int oldUnits = rec.volumeUnits;
  const double newVolume = lenientValue(txtVolume);
  const double oldGallons =
      validVolumeUnit(oldUnits) ? lenientValue(editor.sheet.txtFermentVolume) * m.volume_convert[oldUnits][US_GAL_CONST]
                                : 0.0;
  const double newGallons =
      validVolumeUnit(cboVolume) ? newVolume * m.volume_convert[cboVolume][US_GAL_CONST] : 0.0;
  if (!(oldGallons > 0)) {
    wb.prompter.message("The recipe has no Fermentation Volume to scale from", kCaption, Icon::Information);
    return false;
  }
  if (!(newGallons > 0)) {
    wb.prompter.message("Please enter a Fermentation Volume greater than zero", kCaption, Icon::Information);
    return false;
  }
  const double ratio = newGallons / oldGallons;

  IngredientTable& g = editor.sheet.grid;
  for (int r = 0; r < g.totalRow(); ++r) {
    if (!g.isItemRow(r)) continue;
    IngredientRow& row = g.row(r);
    const int kind = g.kindOfRow(r);
    const int to = scaledUnit(kind, row.unit, optUnits);
    double qty = lenientValue(row.cells[COL_QTY]) * ratio;
    double cost = moneyValue(row.cells[COL_COST]);
    if (to != row.unit) {
      const double f = unitFactor(kind, row.unit, to);
      qty = roundQuantity(qty * f);
      cost /= f;
      const StringList& list = kind == KIND_OTHER ? m.otherUnits : m.weightUnits;
      row.cells[COL_UNITS] = listText(list, to);
      row.unit = to;
    }
    row.cells[COL_QTY] = formatNumber(qty, "0.0#");
    row.cells[COL_COST] = formatNumber(cost, "Currency");
  }

  // The volumes: the fermenter takes the new volume, the boil keeps its share of it.
  const double boil = lenientValue(editor.sheet.txtInitalBoilVolume) * m.volume_convert[oldUnits][cboVolume] * ratio;
  const bool was = editor.filling;
  editor.filling = true;
  editor.sheet.txtFermentVolume = formatNumber(newVolume, "0.0");
  editor.sheet.txtInitalBoilVolume = formatNumber(boil, "0.0");
  rec.volumeUnits = cboVolume;
  rec.unitType = optUnits;
  editor.lblVolumeUnits = listText(m.volumeUnits, cboVolume);
  editor.lblUnitType = listText(m.unitTypes, optUnits);
  editor.fermentation.lblTempUnits = temperatureLabel(optUnits);
  editor.clearEditFields();
  editor.filling = was;
  editor.rescaled();
  return true;
}

}  // namespace zy
