#include "batchlog/BrewingDayForm.h"

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeCalculations.h"
#include "recipes/RecipeRecords.h"
#include "recipes/RecipeReport.h"
#include "reports/ReportLayout.h"

namespace zy {

namespace {

constexpr double kIndent = 1.0;
// A blank to write on is this long, unless the line ends first.
constexpr double kShortBlank = 1.2;

// "Label: ____" blanks in two columns across the line.
void blanks(Report& r, const std::vector<std::string>& labels, const std::string& heading) {
  const double right = reportRight(r);
  const double half = (right + kIndent) / 2;
  for (size_t i = 0; i < labels.size(); i += 2) {
    r.ensureRoom(1.6, heading);
    printBlank(r, kIndent, labels[i], half - 0.25);
    if (i + 1 < labels.size()) printBlank(r, half, labels[i + 1], right);
    r.newLine(1.6);
  }
}

void printTargets(Report& r, const RecipeRecord& rec, const RecipeSheet& sheet) {
  reportSection(r, "Recipe Targets", 4);
  const std::string vol = listText(measures().volumeUnits, rec.volumeUnits);
  const std::vector<std::pair<std::string, std::string>> left{
      {"Fermentation Volume:", trim(sheet.txtFermentVolume) + " " + vol},
      {"Initial Volume Boiled:", trim(sheet.txtInitalBoilVolume) + " " + vol},
      {"Boil Time:", formatNumber(rec.boilTime, "0") + " Minutes"},
      {"Mash Efficiency (%):", rec.mashType != 0 ? formatNumber(rec.mashEfficiency, "0") : std::string("N/A")}};
  const std::vector<std::pair<std::string, std::string>> right{{"Original Gravity:", sheet.lblOG},
                                                               {"Final Gravity:", sheet.lblFG},
                                                               {"Bitterness (IBU):", sheet.lblIBU},
                                                               {"Color (Lovi/SRM):", sheet.lblColor}};
  const double top = r.y;
  for (const auto& [label, value] : left) printLabelled(r, kIndent, 2.75, label, value);
  const double end = r.y;
  r.y = top;
  for (const auto& [label, value] : right) printLabelled(r, 4.4, 5.9, label, value);
  r.y = std::max(r.y, end);
}

void printIngredients(Report& r, const RecipeSheet& sheet) {
  const IngredientTable& g = sheet.grid;
  reportSection(r, "Ingredients", 3);
  for (int kind = 0; kind < IngredientTable::kSections; ++kind) {
    if (g.itemCount(kind) <= 0) continue;
    r.setFont("Arial", 10, false, false, true);
    r.ensureRoom(2, "Ingredients");
    r.printLine(kIndent - 0.25, IngredientTable::sectionTitle(kind));
    r.setFont("Arial", 10);
    for (int row = g.headerRow(kind) + 1; row < g.sectionEnd(kind) && row < g.rowCount(); ++row) {
      if (!g.isItemRow(row) || trim(g.cell(row, COL_NAME)).empty()) continue;
      r.ensureRoom(1.2, "Ingredients");
      r.printAt(kIndent, "[  ]");
      r.printRight(trim(g.cell(row, COL_QTY)), 2.35);
      r.printAt(2.45, trim(g.cell(row, COL_UNITS)));
      std::string what = trim(g.cell(row, COL_NAME));
      if (kind == 1) {
        what += "  (" + trim(g.cell(row, COL_RATING)) + "% alpha, " + trim(g.cell(row, COL_DETAIL)) + " min)";
      }
      r.printAt(3.1, fitText(r, what, reportRight(r) - 3.1));
      r.newLine(1.2);
    }
  }
}

void printMash(Report& r, const RecipeRecord& rec) {
  if (rec.mashType == 0) return;
  const std::string scale = temperatureLabel(rec.unitType);
  reportSection(r, listText(measures().mashTypes, rec.mashType) + " Mash", 4);
  const std::vector<ReportColumn> cols{{"Rest", kIndent, false, 1.75},
                                       {"Temp (" + scale + ")", 3.35, true},
                                       {"Time", 4.0, true},
                                       {"Reached (" + scale + ")", 4.3},
                                       {"Start", 5.55},
                                       {"End", 6.65}};
  bool any = false;
  for (size_t i = 0; i < rec.mashStepTime.size(); ++i) {
    if (!(rec.mashStepTime[i] > 0)) continue;
    if (!any) printColumnHeads(r, cols);
    any = true;
    if (r.ensureRoom(1.6, "Mash")) printColumnHeads(r, cols);
    printColumnCells(r, cols, {mashRestName(rec.mashStepTemp[i]), formatNumber(rec.mashStepTemp[i], "0"),
                               formatNumber(rec.mashStepTime[i], "0")});
    const double base = r.y + r.lineHeight() * 0.9;
    for (auto [from, to] : {std::pair{4.3, 5.35}, std::pair{5.55, 6.45}, std::pair{6.65, 7.65}})
      r.line(from, base, to, base, 1);
    r.newLine(1.6);
  }
  r.newLine(0.3);
  blanks(r, {"Total Mash Volume:", "Grain Mashed:", "Mash SG:", "at (" + scale + "):", "Sparge Water:",
             "at (" + scale + "):"},
         "Mash");
}

void printBoil(Report& r, const RecipeSheet& sheet) {
  reportSection(r, "Boil", 3);
  blanks(r, {"Initial Boil Volume:", "Boil Time (Minutes):", "Boil Started:", "Boil Ended:"}, "Boil");
  // The hop additions in the order of the table, with room for the time each went in.
  const IngredientTable& g = sheet.grid;
  bool any = false;
  for (int row = g.headerRow(1) + 1; row < g.sectionEnd(1) && row < g.rowCount(); ++row) {
    if (!g.isItemRow(row) || trim(g.cell(row, COL_NAME)).empty()) continue;
    if (!any) {
      r.setFont("Arial", 10, false, false, true);
      r.ensureRoom(2, "Boil");
      r.printLine(kIndent - 0.25, "Hop Additions");
      r.setFont("Arial", 10);
    }
    any = true;
    r.ensureRoom(1.6, "Boil");
    r.printAt(kIndent, "[  ]");
    r.printAt(1.45, fitText(r, trim(g.cell(row, COL_QTY)) + " " + trim(g.cell(row, COL_UNITS)) + " " +
                                   trim(g.cell(row, COL_NAME)) + " at " + trim(g.cell(row, COL_DETAIL)) + " min",
                            3.4));
    printBlank(r, 5.0, "Added at:", reportRight(r));
    r.newLine(1.6);
  }
}

}  // namespace

ReportProc printBrewingDayForm(const RecipeRecord& recipe, const RecipeSheet& sheet) {
  return [&recipe, &sheet](Report& r) {
    const std::string scale = temperatureLabel(recipe.unitType);
    reportTitle(r, kBrewingDayFormTitle, trim(recipe.recipeName));
    const double right = reportRight(r);
    const double half = (right + Report::kLeft) / 2;
    printBlank(r, Report::kLeft, "Batch #:", Report::kLeft + kShortBlank + 0.6);
    printBlank(r, half, "Date Brewed:", right);
    r.newLine(1.4);
    printTargets(r, recipe, sheet);
    printIngredients(r, sheet);
    printMash(r, recipe);
    printBoil(r, sheet);
    reportSection(r, "Fermentation", 3);
    blanks(r, {"Fermentation Volume:", "Wort for Kraeusening:", "Initial Fermentation SG:", "at (" + scale + "):",
               "Yeast Pitching Temp (" + scale + "):", "Yeast Pitched at (time):"},
           "Fermentation");
    // Lines for notes down to the foot of the page, four at least.
    reportSection(r, "Notes", 4);
    for (int lines = 0; lines < 60; ++lines) {
      if (lines >= 4 && r.y + r.lineHeight() * 1.6 > r.bottom()) break;
      r.ensureRoom(1.6, "Notes");
      r.newLine(1.6);
      r.rule(Report::kLeft, right, 0.5);
    }
  };
}

ReportRequest brewingDayFormRequest(const RecipeRecord& recipe, const RecipeSheet& sheet) {
  return {kBrewingDayForm, printBrewingDayForm(recipe, sheet), {}};
}

}  // namespace zy
