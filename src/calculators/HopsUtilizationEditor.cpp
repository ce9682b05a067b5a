#include "calculators/HopsUtilizationEditor.h"

#include <cmath>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

namespace {

bool validRow(int row) { return row >= 1 && row <= kUtilRows; }

// A box's number as the window holds it: single precision, 0 for text that is no number.
float singleValue(const std::string& text) {
  const double d = lenientValue(text);
  if (std::isnan(d)) return 0.0f;
  if (d > 3.0e38) return 3.0e38f;
  if (d < -3.0e38) return -3.0e38f;
  return static_cast<float>(d);
}

// The height of a graph point; false when it is no usable number (a factor that divides by zero
// or leads nowhere).
bool pointHeight(double percentUnits, int& height) {
  if (!std::isfinite(percentUnits) || std::fabs(percentUnits) > 1.0e9) return false;
  height = HopsUtilizationEditor::kBaseline - static_cast<int>(std::floor(percentUnits));
  return true;
}

}  // namespace

std::string HopsUtilizationEditor::minutesText(int row) { return formatNumber(row * 5.0, "0"); }

double HopsUtilizationEditor::cellValue(int row) const {
  if (!validRow(row)) return 0.0;
  return singleValue(cells[static_cast<size_t>(row)]);
}

void HopsUtilizationEditor::load(const HopsUtilization& h) {
  for (int i = 1; i <= kUtilRows; ++i) cells[static_cast<size_t>(i)] = formatNumber(h.UtilTable[static_cast<size_t>(i)], "0.0");
  cells[0].clear();
  setMode(h.GravityAdjustment);
  if (mode != GRAVITY_ADJUST_NONE) {
    // The stored factors replace the presets and pass through the same mending as typed ones.
    setFactorText(0, plainText(h.Factor1));
    setFactorText(1, plainText(h.Factor2));
    setFactorText(2, plainText(h.Factor3));
    for (int i = 0; i < 3; ++i) {
      focusFactor(i);
      validateFactor(i);
    }
  }
  lblTitle = h.UtilTitle;
  rememberedValue = -1.0;
  redrawGraph();
}

void HopsUtilizationEditor::editCell(int row, const std::string& text) {
  if (!validRow(row)) return;
  rememberedValue = cellValue(row);
  // The grid takes the editor's text at one decimal ("12.34" enters as 12.3); a text that is no
  // number goes in as typed and reads as 0.
  const auto typed = strictValue(text);
  cells[static_cast<size_t>(row)] = typed && std::isfinite(*typed) ? formatNumber(*typed, "0.0") : text;
  applyUtilEdit(row);
}

void HopsUtilizationEditor::keepMonotonic(int row) {
  const float v = static_cast<float>(cellValue(row));
  const std::string& text = cells[static_cast<size_t>(row)];
  // Rows above may not stand higher than the edited one, rows below not lower.
  for (int r = row - 1; r >= 1; --r)
    if (cellValue(r) > v) cells[static_cast<size_t>(r)] = text;
  for (int r = row + 1; r <= kUtilRows; ++r)
    if (cellValue(r) < v) cells[static_cast<size_t>(r)] = text;
}

void HopsUtilizationEditor::applyUtilEdit(int row) {
  if (!validRow(row)) return;
  float v = singleValue(cells[static_cast<size_t>(row)]);
  if (v < 0) v = 0;
  if (v > 40) v = 40;
  cells[static_cast<size_t>(row)] = formatNumber(v, "#0.0");
  if (v == static_cast<float>(rememberedValue)) return;
  // A predefined curve fills the table after setting the sentinel -1.0, and keeps its own title.
  if (rememberedValue > -0.5) lblTitle = kCustomCurveTitle;
  keepMonotonic(row);
  redrawGraph();
}

void HopsUtilizationEditor::fillCurve(const std::array<double, kUtilRows>& curve, int newMode, const char* title) {
  rememberedValue = -1.0;
  for (int i = 1; i <= kUtilRows; ++i) {
    cells[static_cast<size_t>(i)] = formatNumber(curve[static_cast<size_t>(i - 1)], "0.0");
    applyUtilEdit(i);
  }
  setMode(newMode);
  lblTitle = title;
}

void HopsUtilizationEditor::cmdRager() { fillCurve(ragerCurve(), GRAVITY_ADJUST_RAGER, "Rager"); }
void HopsUtilizationEditor::cmdTinseth() { fillCurve(tinsethCurve(), GRAVITY_ADJUST_TINSETH, "Tinseth"); }
void HopsUtilizationEditor::cmdGaretz() { fillCurve(garetzCurve(), GRAVITY_ADJUST_RAGER, "Garetz"); }

void HopsUtilizationEditor::cmdReset() {
  // Row 18 at zero pulls every row above it down to zero.
  rememberedValue = -1.0;
  cells[kUtilRows] = "0.0";
  applyUtilEdit(kUtilRows);
  setMode(GRAVITY_ADJUST_NONE);
  lblTitle = "None";
}

void HopsUtilizationEditor::setMode(int newMode) {
  if (newMode < GRAVITY_ADJUST_NONE || newMode > GRAVITY_ADJUST_TINSETH) newMode = GRAVITY_ADJUST_NONE;
  mode = newMode;
  applyingPreset = true;
  switch (mode) {
    case GRAVITY_ADJUST_NONE:
      for (int i = 0; i < 3; ++i) setFactorText(i, "N/A");
      factorEnabled = {false, false, false};
      factorLocked = {false, false, false};
      factorMaxLength = {0, 0, 0};
      graphIncrement = 0;
      break;
    case GRAVITY_ADJUST_RAGER:
      setFactorText(0, "1.050");
      setFactorText(1, "0.200");
      setFactorText(2, "0.020");
      factorEnabled = {true, true, true};
      factorLocked = {false, false, false};
      factorMaxLength = {0, 5, 0};
      graphIncrement = 0.02;
      break;
    default:
      setFactorText(0, "1.000");
      setFactorText(1, "0.000125");
      setFactorText(2, "0.030");
      factorEnabled = {true, true, true};
      factorLocked = {true, false, false};
      factorMaxLength = {0, 8, 0};
      graphIncrement = 0.03;
      break;
  }
  applyingPreset = false;
  redrawGraph();
}

void HopsUtilizationEditor::setFactorText(int index, const std::string& text) {
  if (index < 0 || index > 2) return;
  txtFactor[static_cast<size_t>(index)] = text;
  if (!applyingPreset) updateFormulaLabels();
}

void HopsUtilizationEditor::focusFactor(int index) {
  if (index < 0 || index > 2) return;
  // The window keeps one "previous value" for whichever editor the user is in: the cell editor
  // stores the cell's value there, a factor box its own. So when a changed factor re-applies the
  // last row below, that row is compared with the factor's old value, and a hand-set factor
  // makes the curve "Custom Utilization Curve": a named curve comes with its own factors.
  rememberedValue = singleValue(txtFactor[static_cast<size_t>(index)]);
}

void HopsUtilizationEditor::validateFactor(int index) {
  if (index < 0 || index > 2 || !factorEnabled[static_cast<size_t>(index)]) return;
  float f = singleValue(txtFactor[static_cast<size_t>(index)]);
  if (index == 0 && f <= 1.0f) f = 1.0f;
  if (index == 1 && mode == GRAVITY_ADJUST_TINSETH) {
    if (f <= 0) f = 0.000125f;
    setFactorText(1, formatNumber(f, "0.000000"));
  } else {
    // A zero in box 0 has become 1.0 above; in box 2 it becomes 0.2, which as an increment is
    // out of range and so ends as 0.020.
    if (f <= 0) f = 0.2f;
    setFactorText(index, formatNumber(f, "0.000"));
    double inc = lenientValue(txtFactor[2]);
    if (!(inc >= 0 && inc <= 0.1)) {
      inc = 0.02;
      setFactorText(2, "0.020");
    }
    graphIncrement = inc;
  }
  if (f != static_cast<float>(rememberedValue)) {
    applyUtilEdit(kUtilRows);
    // applyUtilEdit stops early when the last row happens to equal the factor's old value; the
    // graph must show the new factor all the same.
    redrawGraph();
  }
}

void HopsUtilizationEditor::updateFormulaLabels() {
  if (mode != GRAVITY_ADJUST_RAGER && mode != GRAVITY_ADJUST_TINSETH) return;
  const size_t k = static_cast<size_t>(mode - 1);
  const double f1 = lenientValue(txtFactor[0]), f2 = lenientValue(txtFactor[1]), f3 = lenientValue(txtFactor[2]);
  lblBottom[k] = formatNumber(f2, mode == GRAVITY_ADJUST_RAGER ? "0.000" : "0.000000");
  lblGravity[k] = "(for gravities >= " + formatNumber(f1, "0.000") + ")";
  lblTop[k] = "(Gravity - " + formatNumber(f1, "0.000") + ")";
  lblIncrement[k] = "(graph by " + formatNumber(f3, "0.000") + ")";
}

void HopsUtilizationEditor::updateGravityLabels() {
  if (mode == GRAVITY_ADJUST_NONE) {
    lblBlue = lblGreen = "N/A";
    return;
  }
  const double f1 = lenientValue(txtFactor[0]);
  lblBlue = formatNumber(f1 + graphIncrement, "0.000");
  lblGreen = formatNumber(f1 + 2 * graphIncrement, "0.000");
}

std::vector<UtilGraphCurve> HopsUtilizationEditor::graphPoints() const {
  std::vector<UtilGraphCurve> curves;
  UtilGraphCurve base;
  base.label = "Base";
  for (int i = 1; i <= kUtilRows; ++i)
    if (!pointHeight(cellValue(i) * kUnitsPerPercent, base.heights[static_cast<size_t>(i - 1)])) return {};
  curves.push_back(base);
  if (mode != GRAVITY_ADJUST_RAGER && mode != GRAVITY_ADJUST_TINSETH) return curves;

  const double f1 = lenientValue(txtFactor[0]), f2 = lenientValue(txtFactor[1]);
  for (double g : {f1 + graphIncrement, f1 + 2 * graphIncrement}) {
    UtilGraphCurve c;
    c.label = formatNumber(g, "0.000");
    for (int i = 1; i <= kUtilRows; ++i) {
      const double units = cellValue(i) * kUnitsPerPercent;
      double scaled;
      if (mode == GRAVITY_ADJUST_RAGER) {
        if (f2 == 0) return {};  // a division by a zero factor
        const double denominator = 1 + (g - f1) / f2;
        if (denominator == 0) return {};
        scaled = units / denominator;
      } else {
        scaled = units * std::pow(f2, g - f1);
      }
      if (!pointHeight(scaled, c.heights[static_cast<size_t>(i - 1)])) return {};
    }
    curves.push_back(c);
  }
  return curves;
}

void HopsUtilizationEditor::redrawGraph() {
  updateGravityLabels();
  graph = graphPoints();
  graphError = graph.empty() ? kInvalidFactorMessage : "";
}

void HopsUtilizationEditor::saveHopsUtilization(HopsUtilization& h, SettingsStore& settings) const {
  h.UtilTitle = lblTitle;
  for (int i = 1; i <= kUtilRows; ++i) {
    const double v = lenientValue(cells[static_cast<size_t>(i)]);
    h.UtilTable[static_cast<size_t>(i)] = std::isfinite(v) ? v : 0.0;
  }
  h.GravityAdjustment = mode;
  // In mode 0 the boxes read "N/A", so the factors become 0.
  auto factor = [](const std::string& text) {
    const double v = lenientValue(text);
    return std::isfinite(v) ? v : 0.0;
  };
  h.Factor1 = factor(txtFactor[0]);
  h.Factor2 = factor(txtFactor[1]);
  h.Factor3 = factor(txtFactor[2]);
  writeHopsUtilizationSettings(h, settings);
  h.rebuildDerived();
}

}  // namespace zy
