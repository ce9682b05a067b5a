#include "calculators/HopsUtilizationReport.h"

#include <algorithm>
#include <cmath>

#include "calculators/HopsUtilizationEditor.h"
#include "core/numfmt.h"
#include "reports/ReportLayout.h"

namespace zy {

namespace {

// The graph's frame on the page, in inches: 40 percent at the top, 0 at the bottom, 0 to 90
// minutes across.
constexpr double kGraphLeft = 1.45, kGraphWidth = 4.9, kGraphHeight = 3.2;
constexpr double kTopPercent = 40.0, kMaxMinutes = 90.0;
// Each curve is told apart by the width of its line.
constexpr double kCurveWidths[3] = {3, 1.5, 1};

std::string modeName(int mode) {
  switch (mode) {
    case GRAVITY_ADJUST_RAGER: return "Rager/Garetz";
    case GRAVITY_ADJUST_TINSETH: return "Tinseth";
    default: return "None";
  }
}

// The curves' names: the base curve holds for the gravities up to where the adjustment begins.
std::vector<std::string> curveLegends(const HopsUtilizationEditor& e, size_t curves) {
  std::vector<std::string> legends;
  if (e.mode == GRAVITY_ADJUST_NONE) {
    legends.push_back("Gravity 1.000 and above");
    return legends;
  }
  legends.push_back("Gravity 1.000 to " + formatNumber(lenientValue(e.txtFactor[0]), "0.000"));
  for (size_t i = 1; i < curves; ++i) legends.push_back("Gravity " + (i == 1 ? e.lblBlue : e.lblGreen));
  return legends;
}

void drawGraph(Report& r, const HopsUtilizationEditor& e) {
  const double top = r.y + 0.1;
  const double bottom = top + kGraphHeight;
  const double right = kGraphLeft + kGraphWidth;
  auto yOf = [&](double percent) { return bottom - std::clamp(percent, 0.0, kTopPercent) / kTopPercent * kGraphHeight; };
  auto xOf = [&](double minutes) { return kGraphLeft + minutes / kMaxMinutes * kGraphWidth; };

  // The frame, the grid every 10 percent and 15 minutes, and the scales.
  r.setFont("Arial", 8);
  for (int p = 0; p <= 40; p += 10) {
    const double y = yOf(p);
    r.line(kGraphLeft, y, right, y, p == 0 || p == 40 ? 1.5 : 0.5);
    r.y = y - r.lineHeight() / 2;
    r.printRight(p == 40 ? "40% " : formatNumber(p, "0") + "% ", kGraphLeft);
  }
  for (int m = 0; m <= 90; m += 15) {
    const double x = xOf(m);
    r.line(x, top, x, bottom, m == 0 || m == 90 ? 1.5 : 0.5);
    r.y = bottom + 0.04;
    const std::string t = formatNumber(m, "0");
    r.printAt(x - r.textWidth(t) / 2, t);
  }
  r.y = bottom + 0.04 + r.lineHeight();
  r.setFont("Arial", 9, true);
  r.printAt(kGraphLeft + (kGraphWidth - r.textWidth("BoilTime (Minutes)")) / 2, "BoilTime (Minutes)");
  r.newLine();
  r.setFont("Arial", 8);

  const std::vector<UtilGraphCurve> curves = e.graphPoints();
  if (curves.empty()) {
    r.y = top + kGraphHeight / 2;
    r.setFont("Arial", 10, true);
    r.printAt(kGraphLeft + (kGraphWidth - r.textWidth(kInvalidFactorMessage)) / 2, kInvalidFactorMessage);
    r.y = bottom + 0.5;
    r.setFont("Arial", 10);
    return;
  }
  const std::vector<std::string> legends = curveLegends(e, curves.size());
  double lastLabelY = -1;
  for (size_t c = 0; c < curves.size() && c < 3; ++c) {
    // A point's height counts down from the baseline: 2400 units is 0 percent, 48 units 1 percent.
    auto percent = [&](size_t i) {
      return (HopsUtilizationEditor::kBaseline - curves[c].heights[i]) /
             static_cast<double>(HopsUtilizationEditor::kUnitsPerPercent);
    };
    for (size_t i = 0; i + 1 < curves[c].heights.size(); ++i)
      r.line(xOf(5.0 * static_cast<double>(i + 1)), yOf(percent(i)), xOf(5.0 * static_cast<double>(i + 2)),
             yOf(percent(i + 1)), kCurveWidths[c]);
    // The curve's name at its right end, kept clear of the name above it.
    double labelY = yOf(percent(curves[c].heights.size() - 1)) - r.lineHeight() / 2;
    if (lastLabelY >= 0 && labelY < lastLabelY + r.lineHeight()) labelY = lastLabelY + r.lineHeight();
    lastLabelY = labelY;
    r.y = labelY;
    r.printAt(right + 0.08, legends[c].substr(8));  // the gravity part; the legend below says it whole
  }

  // The legend: a sample of each line and the gravities it stands for.
  r.y = bottom + 0.5;
  r.setFont("Arial", 9);
  for (size_t c = 0; c < curves.size() && c < 3; ++c) {
    const double mid = r.y + r.lineHeight() / 2;
    r.line(kGraphLeft, mid, kGraphLeft + 0.5, mid, kCurveWidths[c]);
    r.printLine(kGraphLeft + 0.65, legends[c]);
  }
  r.setFont("Arial", 10);
}

// The 18 points in three blocks of six rows side by side: "Time" and "Util %".
void printTable(Report& r, const HopsUtilizationEditor& e) {
  reportSection(r, "Utilization by Boil Time", 8);
  const double blockX[3] = {Report::kLeft + 0.25, 3.15, 5.55};
  const double start = r.y;
  r.setFont("Arial", 10, true);
  for (double x : blockX) {
    r.printAt(x, "Time");
    r.printRight("Util %", x + 1.6);
  }
  r.newLine();
  for (double x : blockX) r.line(x, r.y, x + 1.6, r.y, 1);
  r.setFont("Arial", 10);
  const double rowsTop = r.y + 0.03;
  for (int row = 1; row <= kUtilRows; ++row) {
    const int block = (row - 1) / 6;
    r.y = rowsTop + r.lineHeight() * ((row - 1) % 6);
    const double x = blockX[block];
    r.printAt(x, HopsUtilizationEditor::minutesText(row) + " min");
    r.printRight(formatNumber(e.cellValue(row), "0.0"), x + 1.6);
  }
  r.y = std::max(r.y, start) + r.lineHeight();
}

void printAdjustment(Report& r, const HopsUtilizationEditor& e) {
  reportSection(r, "Gravity Adjustments", 4);
  const double valueX = 2.6;
  printLabelled(r, Report::kLeft + 0.25, valueX, "Adjustment:", modeName(e.mode));
  if (e.mode != GRAVITY_ADJUST_RAGER && e.mode != GRAVITY_ADJUST_TINSETH) {
    r.printLine(Report::kLeft + 0.25, "The utilization is the same at every gravity.");
    return;
  }
  const size_t m = e.mode == GRAVITY_ADJUST_RAGER ? 0 : 1;
  const std::string f1 = formatNumber(lenientValue(e.txtFactor[0]), "0.000");
  r.printLine(Report::kLeft + 0.25, "For gravities greater than or equal to " + f1 + ":");
  if (e.mode == GRAVITY_ADJUST_RAGER)
    printLabelled(r, Report::kLeft + 0.5, valueX, "Utilization:",
                  "Util % / (1 + " + e.lblTop[m] + " / " + e.lblBottom[m] + ")");
  else
    printLabelled(r, Report::kLeft + 0.5, valueX, "Utilization:", "Util % x " + e.lblBottom[m] + " ^ " + e.lblTop[m]);
  printLabelled(r, Report::kLeft + 0.25, valueX, "Factor 1:", e.txtFactor[0]);
  printLabelled(r, Report::kLeft + 0.25, valueX, "Factor 2:", e.txtFactor[1]);
  printLabelled(r, Report::kLeft + 0.25, valueX, "Graph Increment:", e.txtFactor[2] + "  " + e.lblIncrement[m]);
}

}  // namespace

ReportProc printHopsUtilization(const HopsUtilizationEditor& editor) {
  return [&editor](Report& r) {
    reportTitle(r, kHopsReportTitle, editor.lblTitle);
    drawGraph(r, editor);
    r.newLine();
    printTable(r, editor);
    printAdjustment(r, editor);
  };
}

ReportRequest hopsUtilizationReportRequest(const HopsUtilizationEditor& editor) {
  return {kHopsUtilizationReport, printHopsUtilization(editor), {}};
}

}  // namespace zy
