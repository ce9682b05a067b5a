#include "batchlog/BatchLogReport.h"

#include "batchlog/BatchLogEditor.h"
#include "core/text.h"
#include "reports/ReportLayout.h"

namespace zy {

namespace {

// A value with its unit, or nothing when the box is empty.
std::string withUnit(const std::string& value, const std::string& unit) {
  const std::string v = trim(value);
  return v.empty() || unit.empty() ? v : v + " " + unit;
}
// A gravity and the temperature its sample was read at.
std::string gravityAt(const std::string& gravity, const std::string& temp, const std::string& scale) {
  std::string g = trim(gravity);
  if (!g.empty() && !trim(temp).empty()) g += " at " + trim(temp) + " " + scale;
  return g;
}
std::string containerText(const BatchLogEditor& e, size_t k) {
  const std::string qty = trim(e.txtQuantity[k]);
  if (qty.empty()) return {};
  std::string t = qty;
  const std::string cap = trim(e.txtCapacity[k]);
  const int unit = e.cboContainerUnits[k];
  if (!cap.empty()) {
    t += " x " + cap;
    if (unit >= 0 && unit < 10) t += " " + containerUnitNames()[static_cast<size_t>(unit)];
  }
  return t;
}

// The log as labelled values, section by section, in the order both forms print them.
struct Field {
  std::string label, value;
};
struct Section {
  std::string heading;
  std::vector<Field> fields;
};

std::vector<Section> logSections(const BatchLogEditor& e) {
  const std::string vol = e.lblVol[0], scale = e.lblTempUnits;
  std::vector<Section> s;
  s.push_back({"Mash", {{"Total Mash Volume:", withUnit(e.txtMashVol, vol)},
                        {e.lblMash, withUnit(e.txtLbsGrain, e.lblWeightUnits)},
                        {"Sparge Water:", withUnit(e.txtSpargeVol, vol) +
                                              (trim(e.txtSpargeTemp).empty() ? "" : " at " + trim(e.txtSpargeTemp) + " " + scale)},
                        {"Mash SG:", gravityAt(e.txtMashGravity, e.txtMashTemp, scale)},
                        {"Adjusted:", e.lblAdjSG1},
                        {"Mash Extraction Points:", e.lblQualPts},
                        {"Target:", e.lblTargetExt}}});
  // The efficiency reached is known only against a target from the recipe's grain bill.
  const std::string eff = e.actualEfficiency();
  if (!eff.empty()) s.back().fields.push_back({"Actual Mash Efficiency:", eff});
  s.push_back({"Boil", {{"Initial Boil Volume:", withUnit(e.txtBoilVol, vol)},
                        {"Boil Time (Minutes):", trim(e.txtBoilTime)},
                        {"Wort for Kraeusening:", withUnit(e.txtKraeusen, vol)}}});
  s.push_back({"Fermentation", {{"Fermentation Volume:", withUnit(e.txtFermVol, vol)},
                                {"Initial Fermentation SG:", gravityAt(e.txtFinalGravity, e.txtFGTemp, scale)},
                                {"Adjusted:", e.lblAdjSG2},
                                {"Yeast Pitching Temp:", withUnit(e.txtPitchTemp, scale)}}});
  Section pack{"Packaging", {{"Bottling Date:", trim(e.txtDateCond)},
                             {"Aged In:", trim(e.cboAgedIn)},
                             {"Conditioning:", trim(e.cboCondition)},
                             {"Conditioning Details:", trim(e.txtCondDetails)}}};
  for (size_t k = 0; k < 2; ++k)
    if (const std::string c = containerText(e, k); !c.empty()) pack.fields.push_back({"Quantity Produced:", c});
  s.push_back(pack);
  return s;
}

constexpr double kLabelX = 1.0, kValueX = 3.2;

void printMashSteps(Report& r, const BatchLogEditor& e) {
  if (e.lvMash.empty()) return;
  r.ensureRoom(3);
  const std::vector<ReportColumn> cols{{"Step", kLabelX}, {"Minutes", 2.6, true},
                                       {"Temp (" + e.lblTempUnits + ")", 3.7, true},
                                       {"Infusion " + e.lblVol[2], 5.2, true}};
  printColumnHeads(r, cols);
  int n = 0;
  for (const MashRow& m : e.lvMash) {
    if (r.ensureRoom(1, "Mash Steps")) printColumnHeads(r, cols);
    printColumnCells(r, cols, {itos(++n), m.minutes, m.temp, m.infusion});
    r.newLine();
  }
  r.newLine(0.4);
}

void printReadings(Report& r, const BatchLogEditor& e) {
  if (e.lvReading.empty()) return;
  r.ensureRoom(3);
  const std::vector<ReportColumn> cols{{"Reading", kLabelX}, {"Date", 2.1}, {"Temp (" + e.lblTempUnits + ")", 3.95, true},
                                       {"Gravity", 4.8, true}, {"Note", 5.0}};
  printColumnHeads(r, cols);
  for (const ReadingRow& g : e.lvReading) {
    if (r.ensureRoom(1, "Fermentation Readings")) printColumnHeads(r, cols);
    printColumnCells(r, cols, {g.type, g.date, g.temp, g.gravity, g.note});
    r.newLine();
  }
  r.newLine(0.4);
}

}  // namespace

ReportProc printBatchLogReport(const BatchLogEditor& editor, const std::string& recipeName) {
  return [&editor, recipeName](Report& r) {
    const BatchLogEditor& e = editor;
    reportTitle(r, kBatchLogReportTitle, trim(recipeName));
    printLabelled(r, Report::kLeft, 1.95, "Batch #:", e.lblBatchNo);
    printLabelled(r, Report::kLeft, 1.95, "Date Brewed:", trim(e.txtDateBrewed));
    printLabelled(r, Report::kLeft, 1.95, "Status:", statusName(e.cboLogStatus));
    for (const Section& s : logSections(e)) {
      reportSection(r, s.heading, 3);
      if (s.heading == "Mash") printMashSteps(r, e);
      for (const Field& f : s.fields) {
        r.ensureRoom(1, s.heading);
        printLabelled(r, kLabelX, kValueX, f.label, f.value);
      }
      if (s.heading == "Fermentation") {
        r.newLine(0.4);
        printReadings(r, e);
      }
    }
    const std::string comments = trim(e.txtComments);
    if (!comments.empty()) {
      reportSection(r, "Comments:", 2);
      r.printWrapped(comments, kLabelX, reportRight(r), 0, "Comments");
    }
  };
}

std::string batchLogReportText(const BatchLogEditor& e, const std::string& recipeName) {
  std::string t = reportCsvLine({kBatchLogReportTitle});
  t += reportCsvLine({"Recipe:", trim(recipeName)});
  t += reportCsvLine({"Batch #:", e.lblBatchNo});
  t += reportCsvLine({"Date Brewed:", trim(e.txtDateBrewed)});
  t += reportCsvLine({"Status:", statusName(e.cboLogStatus)});
  int n = 0;
  for (const Section& s : logSections(e)) {
    if (s.heading == "Mash")
      for (const MashRow& m : e.lvMash) t += reportCsvLine({"Mash Step " + itos(++n) + ":", m.minutes, m.temp, m.infusion});
    for (const Field& f : s.fields) t += reportCsvLine({f.label, f.value});
    if (s.heading == "Fermentation")
      for (const ReadingRow& g : e.lvReading) t += reportCsvLine({"Reading:", g.type, g.date, g.temp, g.gravity, g.note});
  }
  t += reportCsvLine({"Comments:", trim(e.txtComments)});
  return t;
}

bool printBatchLogReportToFile(const std::string& path, const BatchLogEditor& editor, const std::string& recipeName,
                               Prompter& prompter) {
  return writeReportFile(path, batchLogReportText(editor, recipeName), prompter);
}

ReportRequest batchLogReportRequest(const BatchLogEditor& editor, const std::string& recipeName, Prompter& prompter) {
  ReportRequest req;
  req.number = kBatchLogReport;
  req.draw = printBatchLogReport(editor, recipeName);
  req.toFile = [&editor, recipeName, &prompter](const std::string& path) {
    return printBatchLogReportToFile(path, editor, recipeName, prompter);
  };
  return req;
}

}  // namespace zy
