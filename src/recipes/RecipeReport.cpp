#include "recipes/RecipeReport.h"

#include <algorithm>

#include "calculators/WaterManagement.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {

// Columns of the sheet, in inches from the paper's left edge.
constexpr double kLeft = Report::kLeft;
constexpr double kRight = 7.75;
constexpr double kValue = 2.75;       // values beside their labels
constexpr double kIndent = 1.0;       // lines within a block
// The ingredient table: name, quantity (right edge), unit, cost (right edge), rating and detail
// (right edges), mash.
constexpr double kName = 0.9, kQty = 4.15, kUnit = 4.25, kCost = 5.55, kRating = 6.45, kDetail = 7.15,
                 kMash = 7.3;
// The mash schedule: rest name, temperature and time (right edges), comment.
constexpr double kRest = 1.0, kTemp = 3.35, kTime = 4.15, kStepComment = 4.45;

constexpr double kBody = 10, kSmall = 9;

const char* const kContainers[] = {"Bottled with ", "Kegged with ", "Kegged and Bottled with ",
                                   "Other container used with "};
const char* const kCarbonations[] = {"Priming", "Kraeusening", "Forced CO2", "No Carbonation"};

std::string pick(const char* const* list, int count, int i) { return i >= 0 && i < count ? list[i] : list[count - 1]; }

// A block's title: bold, a little larger, a thin rule under it. Keeps it with two lines of its
// block on one page.
void blockTitle(Report& r, const std::string& title) {
  r.setFont("Arial", kBody);
  r.newLine(0.5);
  r.setFont("Arial", 11, true);
  r.ensureRoom(3);
  r.printAt(kLeft, title);
  r.newLine();
  r.rule(kLeft, kRight, 1);
  r.newLine(0.25);
  r.setFont("Arial", kBody);
}

// "Label: value" with the values of a block in one column.
void labelValue(Report& r, const std::string& label, const std::string& value, const std::string& heading,
                double at = kLeft) {
  r.ensureRoom(1, heading);
  r.setFont("Arial", kBody, true);
  r.printAt(at, label + ":");
  const double gap = r.textWidth(" ");
  r.setFont("Arial", kBody);
  r.printAt(std::max(kValue, r.x + gap), value);
  r.newLine();
}

// A text cut to a width, so a long name keeps out of the next column.
std::string fitted(Report& r, std::string text, double width) {
  while (text.size() > 1 && r.textWidth(text) > width) text.pop_back();
  return text;
}

void printHeading(Report& r, const RecipeEditor& e, const RecipeRecord& rec) {
  r.setFont("Arial", 20, true);
  r.centerText(trim(rec.recipeName));
  r.setFont("Arial", kBody);
  r.printAt(kLeft, "Date Created: " + trim(rec.dateCreated));
  if (!trim(rec.idCode).empty()) r.printRight("ID Code: " + trim(rec.idCode), kRight);
  r.newLine();
  if (!trim(rec.labelName).empty()) {
    r.setFont("Arial", 11, false, false, true);
    r.centerText("(" + trim(rec.labelName) + ")");
  }
  r.setFont("Arial", kBody);
  r.newLine(0.3);
  r.rule(kLeft, kRight, 2);
  (void)e;
}

void printCharacteristics(Report& r, const RecipeEditor& e, const RecipeRecord& rec) {
  const std::string heading = "Recipe Characteristics";
  blockTitle(r, heading);
  const std::string& units = e.lblVolumeUnits;
  labelValue(r, "Fermentation Volume", formatNumber(cellValue(e.sheet.txtFermentVolume), "0.0") + " " + units, heading);
  labelValue(r, "Initial Volume Boiled", formatNumber(cellValue(e.sheet.txtInitalBoilVolume), "0.0") + " " + units,
             heading);
  labelValue(r, "Color (Lovi/SRM)", e.sheet.lblColor, heading);
  labelValue(r, "Bitterness (IBU)", e.sheet.lblIBU, heading);
  labelValue(r, "Original Gravity", e.sheet.lblOG, heading);
  labelValue(r, "Final Gravity", e.sheet.lblFG, heading);
  if (rec.mashType != 0) labelValue(r, "Mash Efficiency (%)", e.lblMashEff, heading);
  labelValue(r, "Alcohol (%)", e.sheet.lblAlcohol + "%", heading);
  if (!trim(rec.beerStyle).empty()) labelValue(r, "Beer Style", trim(rec.beerStyle), heading);
  if (e.wb.defaults.includeCost != 0) labelValue(r, "Approx Recipe Cost", formatNumber(e.sheet.totalCost, "Currency"), heading);
}

void printIngredients(Report& r, const RecipeEditor& e) {
  const std::string heading = "Ingredients";
  blockTitle(r, "Ingredients:");
  const IngredientTable& g = e.sheet.grid;
  for (int kind = KIND_MALT; kind <= KIND_YEAST; ++kind) {
    const int head = g.headerRow(kind);
    // The section's title and its column heads, kept with its first row.
    r.setFont("Arial", kSmall, true);
    r.ensureRoom(2.5, heading);
    r.printAt(kName - 0.15, IngredientTable::sectionTitle(kind));
    r.setFont("Arial", kSmall, false, true);
    if (!g.cell(head, COL_QTY).empty()) r.printRight(g.cell(head, COL_QTY), kQty);
    if (!g.cell(head, COL_UNITS).empty()) r.printAt(kUnit, g.cell(head, COL_UNITS));
    if (!g.cell(head, COL_COST).empty()) r.printRight(g.cell(head, COL_COST), kCost);
    if (!g.cell(head, COL_RATING).empty()) r.printRight(g.cell(head, COL_RATING), kRating);
    if (!g.cell(head, COL_DETAIL).empty()) r.printRight(g.cell(head, COL_DETAIL), kDetail);
    if (!g.cell(head, COL_MASH).empty()) r.printAt(kMash, g.cell(head, COL_MASH));
    r.newLine();
    r.setFont("Arial", kSmall);
    const int end = g.sectionEnd(kind);
    if (end == head + 1) {
      r.ensureRoom(1, heading);
      r.printLine(kName, "(none)");
    }
    for (int row = head + 1; row < end; ++row) {
      if (r.ensureRoom(1, heading)) r.setFont("Arial", kSmall);
      r.printAt(kName, fitted(r, g.cell(row, COL_NAME), kQty - kName - 0.75));
      r.printRight(g.cell(row, COL_QTY), kQty);
      r.printAt(kUnit, fitted(r, g.cell(row, COL_UNITS), kCost - kUnit - 0.6));
      r.printRight(g.cell(row, COL_COST), kCost);
      if (!g.cell(row, COL_RATING).empty()) r.printRight(g.cell(row, COL_RATING), kRating);
      if (!g.cell(row, COL_DETAIL).empty()) r.printRight(g.cell(row, COL_DETAIL), kDetail);
      if (!g.cell(row, COL_MASH).empty()) r.printAt(kMash, g.cell(row, COL_MASH));
      r.newLine();
    }
    r.newLine(0.35);
  }
  r.setFont("Arial", kBody);
}

std::string rateText(double rate, const std::string& volumeUnit, const std::string& maltUnit) {
  return formatNumber(rate, "0.00") + " " + volumeUnit + "/" + maltUnit + " of grain";
}

std::string volumeText(double volume, const std::string& unit) {
  if (volume < 0.01) return "<Unknown Quantity> " + unit;
  return formatNumber(volume, "0.0") + " " + unit;
}

void printMash(Report& r, const RecipeEditor& e, const RecipeRecord& rec) {
  const Measures& m = measures();
  const std::string heading = "Mash Data";
  blockTitle(r, "Mash Data:");
  r.ensureRoom(1, heading);
  if (rec.mashType == 0) {
    r.printLine(kIndent, listText(m.mashTypes, 0) + " Used");
    return;
  }
  r.printLine(kIndent, listText(m.mashTypes, rec.mashType) + " Mash Used");
  const std::string& volumeUnit = e.lblVolumeUnits;
  const std::string maltUnit = listText(m.weightUnits, e.wb.defaults.maltUnits);
  const std::string scale = temperatureLabel(rec.unitType);
  const double grain = mashableGrainWeight(e);
  r.newLine(0.3);
  labelValue(r, "Mash Water Rate", rateText(rec.mashWaterRate, volumeUnit, maltUnit), heading, kIndent);
  labelValue(r, "Mash Water Volume", volumeText(rec.mashWaterRate * grain, volumeUnit), heading, kIndent);

  // The schedule: each rest with a time.
  r.newLine(0.3);
  r.setFont("Arial", kBody, true);
  r.ensureRoom(3, heading);
  r.printLine(kIndent, "Mash Schedule");
  r.setFont("Arial", kSmall, false, true);
  r.printRight("Temp (" + scale + ")", kTemp);
  r.printRight("Time", kTime);
  r.printAt(kStepComment, "Comments");
  r.newLine();
  r.setFont("Arial", kSmall);
  for (size_t i = 0; i < rec.mashStepTime.size(); ++i) {
    if (!(rec.mashStepTime[i] > 0)) continue;
    if (r.ensureRoom(1, heading)) r.setFont("Arial", kSmall);
    r.printAt(kRest, mashRestName(rec.mashStepTemp[i]));
    r.printRight(formatNumber(rec.mashStepTemp[i], "0"), kTemp);
    r.printRight(formatNumber(rec.mashStepTime[i], "0"), kTime);
    r.printAt(kStepComment, fitted(r, trim(rec.mashStepComment[i]), kRight - kStepComment));
    r.newLine();
  }
  r.setFont("Arial", kBody);

  r.newLine(0.3);
  r.setFont("Arial", kBody, true);
  r.ensureRoom(4, heading);
  r.printLine(kIndent, "Sparge Instructions:");
  r.setFont("Arial", kBody);
  labelValue(r, "Sparge Rate", rateText(rec.spargeRate, volumeUnit, maltUnit), heading, kIndent + 0.25);
  labelValue(r, "Sparge Water Volume", volumeText(rec.spargeRate * grain, volumeUnit), heading, kIndent + 0.25);
  labelValue(r, "Sparge Water Temperature",
             rec.spargeTemp > 0 ? formatNumber(rec.spargeTemp, "0") + scale : std::string("<Unknown Temperature>"),
             heading, kIndent + 0.25);
}

void printFermentation(Report& r, const RecipeRecord& rec) {
  const Measures& m = measures();
  const std::string heading = "Fermentation Instructions";
  const std::string scale = temperatureLabel(rec.unitType);
  blockTitle(r, "Fermentation Instructions:");
  bool any = false;
  for (size_t i = 0; i < rec.fermentTime.size(); ++i) {
    if (!(rec.fermentTime[i] > 0)) continue;
    any = true;
    r.ensureRoom(1, heading);
    r.printLine(kIndent, listText(m.fermentStages, static_cast<int>(i)) + ": " + formatNumber(rec.fermentTime[i], "0") +
                             " " + listText(m.timeUnits, rec.fermentTimeUnits[i]) + " at " +
                             formatNumber(rec.fermentTemp[i], "0") + scale + " in " +
                             listText(m.vessels, rec.fermentVessel[i]));
  }
  if (!any) {
    r.ensureRoom(1, heading);
    r.printLine(kLeft, "    None");
  }
  // The packaging line.
  std::string packaging = pick(kContainers, 4, rec.container) + pick(kCarbonations, 4, rec.carbonation);
  if (!trim(rec.primingComment).empty()) packaging += " (" + trim(rec.primingComment) + ")";
  r.newLine(0.3);
  r.printWrapped(packaging, kIndent, kRight, 0, heading);

  if (rec.agingCount > 0) {
    blockTitle(r, "Aging/Lagering Data:");
    std::string aging = "After Fermentation, Age/Lager for " + itos(rec.agingCount) + " " +
                        listText(m.timeUnits, rec.agingUnits);
    if (rec.agingTemp > -9999.0) aging += " at " + formatNumber(rec.agingTemp, "0") + scale;
    r.ensureRoom(1, "Aging/Lagering Data");
    r.printLine(kIndent, aging);
  }
}

}  // namespace

std::string mashRestName(double t) {
  if (t < 90) return "Dough In";
  if (t < 110) return "Acid Rest";
  if (t < 135) return "Protein Rest";
  if (t < 165) return "Saccharification Rest";
  return "Mash Out";
}

void printRecipe(Report& r, const RecipeEditor& e) {
  const RecipeRecord& rec = e.wb.recipe.rec;
  r.y = Report::kTop;
  printHeading(r, e, rec);
  printCharacteristics(r, e, rec);
  printIngredients(r, e);
  printMash(r, e, rec);
  printFermentation(r, rec);
  const std::string& comment = e.wb.recipe.comment;
  if (!trimWhite(comment).empty()) {
    blockTitle(r, "Comments:");
    r.printWrapped(comment, kLeft, kRight, 0, "Comments");
  }
}

ReportRequest recipeReportRequest(const RecipeEditor& editor) {
  ReportRequest req;
  req.number = kRecipeReport;
  req.draw = [&editor](Report& r) { printRecipe(r, editor); };
  return req;
}

}  // namespace zy
