#include "calculators/Starter.h"

#include <algorithm>

#include "core/measures.h"
#include "core/numfmt.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
double val(const std::string& t) { return lenientValue(t); }
}  // namespace

StarterCalculator::StarterCalculator(RecipeEditor& editor) : editor_(editor), wb_(editor.wb) {}

const char* StarterCalculator::levelCaption(int level) {
  switch (level) {
    case LOW: return "Low";
    case HIGH: return "High";
    default: return "Medium";
  }
}

void StarterCalculator::load() {
  const RecipeRecord& rec = wb_.recipe.rec;
  unitType = std::clamp(rec.unitType, 0, 2);
  volumeUnit = rec.volumeUnits >= 0 && rec.volumeUnits < 8 ? rec.volumeUnits : US_GAL_CONST;
  txtVolume = formatNumber(cellValue(editor_.sheet.txtFermentVolume), "0.0");
  txtGravity = formatNumber(cellValue(editor_.sheet.lblOG), "0.000");
  computeStarter();
  computeKraeusen();
}

// The unit of both results, by the recipe's unit system: fluid ounces, liters or imperial fluid
// ounces.
std::string StarterCalculator::outputUnit() const {
  const int index = unitType == METRIC_MEASURES ? 9 : unitType == IMPERIAL_MEASURES ? 13 : 8;
  return listText(measures().otherUnits, index);
}

std::string StarterCalculator::format(double v) const {
  if (unitType == METRIC_MEASURES) return formatNumber(v, "0.0");
  if (unitType == IMPERIAL_MEASURES) return plainText(v);
  return formatNumber(v, "0");
}

void StarterCalculator::computeStarter() {
  const double v = val(txtVolume);
  if (v <= 0) {
    lblYbox = "Yeast Starter Volume = N/A";
    lblKbox = " Kraeusening Volume = N/A";
    starterText.clear();
    return;
  }
  const double factor = unitType == METRIC_MEASURES ? 3.2 / 128.0 : unitType == IMPERIAL_MEASURES ? 3.07 : 3.2;
  starterText = format(v * factor) + " " + outputUnit();
  lblYbox = "Yeast Starter Volume = " + starterText;
}

void StarterCalculator::computeKraeusen() {
  const double g = val(txtGravity), v = val(txtVolume);
  if (g <= 1.0 || v <= 0) {
    lblKbox = " Kraeusening Volume = N/A";
    cmdAddKraeusenEnabled = false;
    kraeusenText.clear();
    return;
  }
  const Measures& m = measures();
  const double gallons = v * m.volume_convert[volumeUnit][US_GAL_CONST];
  double co2 = optLevel * 2.2 + 10.6;
  if (unitType == METRIC_MEASURES) co2 /= 128.0;
  double k = gallons * co2 * 0.04 / (g - 1.0);
  k *= m.volume_convert[US_GAL_CONST][volumeUnit];
  kraeusenText = format(k) + " " + outputUnit();
  lblKbox = " Kraeusening Volume = " + kraeusenText;
  cmdAddKraeusenEnabled = true;
}

void StarterCalculator::setVolume(const std::string& text) {
  txtVolume = text;
  computeStarter();
  computeKraeusen();
}

void StarterCalculator::setGravity(const std::string& text) {
  txtGravity = text;
  computeKraeusen();
}

void StarterCalculator::setLevel(int level) {
  optLevel = std::clamp(level, 0, 2);
  computeKraeusen();
}

void StarterCalculator::leaveVolume() { setVolume(formatNumber(val(txtVolume), "0.0")); }
void StarterCalculator::leaveGravity() { setGravity(formatNumber(val(txtGravity), "0.000")); }

void StarterCalculator::cmdAddKraeusen() {
  if (!cmdAddKraeusenEnabled) return;
  const std::string text = "Use " + kraeusenText + " for " + levelCaption(optLevel) + " carbonation.";
  editor_.fermentation.setConditioning(text);
  editor_.recChanged();
  wb_.prompter.message(text + " added to \nFermentation/Priming Instructions Window", kCaption, Icon::Information,
                       Buttons::OK);
}

void StarterCalculator::cmdAddYeast() {
  if (starterText.empty()) return;
  // insertStarterVolume: the comment line, and a yeast row without a unit takes one packet.
  const std::string text = "Yeast Starter Volume: " + starterText;
  editor_.comments.comment += text + "\r\n";
  IngredientTable& g = editor_.sheet.grid;
  const int r = g.headerRow(KIND_YEAST) + 1;
  if (r < g.sectionEnd(KIND_YEAST) && g.cell(r, COL_UNITS).empty()) {
    g.setCell(r, COL_UNITS, listText(measures().yeastUnits, 0));
    g.setUnitCode(r, 0);
    g.setCell(r, COL_QTY, "1");
  }
  editor_.recChanged();
  wb_.prompter.message(text + " added to Comments Window", kCaption, Icon::Information, Buttons::OK);
}

}  // namespace zy
