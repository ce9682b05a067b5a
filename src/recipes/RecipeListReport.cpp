#include "recipes/RecipeListReport.h"

#include <memory>

#include "core/dates.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/paths.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeRecords.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
// Column stops in inches.
constexpr double kNameCol = 0.5, kTypeCol = 3.7, kGravityCol = 4.7, kColorCol = 5.8, kIbuCol = 6.45,
                 kAlcoholCol = 7.1;
constexpr int kRowsPerGroup = 5;
}  // namespace

void printRecListHeader(Report& r) {
  r.setFont("Arial", 10, true, true);
  r.printAt(kNameCol, "Recipe Name");
  r.printAt(kTypeCol, "Type");
  r.printAt(kGravityCol, "OG/FG");
  r.printAt(kColorCol, "Color");
  r.printAt(kIbuCol, "IBU");
  r.printAt(kAlcoholCol, "Alcohol");
  r.newLine(1.2);
  r.setFont("Arial", 10);
}

void printRecipeList(Report& r, Workbench& wb) {
  r.y = Report::kTop;
  r.setFont("Arial", 16, true);
  r.centerText("Zythara Recipe List");
  r.setFont("Arial", 9);
  r.centerText("Date: " + formatDateTime(wb.clock.now()));
  r.newLine(0.5);
  r.rule(kNameCol, r.pageWidth() - kNameCol, 2);
  r.newLine(0.5);
  printRecListHeader(r);

  std::unique_ptr<RecordFile> file;
  try {
    file = std::make_unique<RecordFile>(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
  } catch (const FileError&) {
    return;
  }
  const Measures& m = measures();
  std::string buf;
  int rows = 0;
  for (const RecipeNode* n : wb.recipeList.tree.displayOrder()) {
    if (!n->isLeaf()) continue;
    // Straight from the file into a local record: the current recipe is untouched.
    if (!file->read(RecipeList::recipeNumber(n->key), buf) || !controlCodesValid(buf)) break;
    const RecipeRecord rec = RecipeRecord::decode(buf);
    r.printAt(kNameCol, trim(rec.recipeName));
    r.printAt(kTypeCol, listText(m.mashTypes, rec.mashType));
    r.printAt(kGravityCol, formatNumber(rec.originalGravity, "0.000") + "/" + formatNumber(rec.finalGravity, "0.000"));
    r.printAt(kColorCol, formatNumber(rec.color, "0.0"));
    r.printAt(kIbuCol, formatNumber(rec.bitterness, "0.0"));
    r.printAt(kAlcoholCol, formatNumber(rec.alcohol, "0.0") + "%");
    r.newLine();
    if (r.y + r.lineHeight() > r.bottom()) {
      // A row that filled the page: the next page opens with the heads, and the count restarts.
      r.newPage();
      printRecListHeader(r);
      rows = 0;
    } else if (++rows == kRowsPerGroup) {
      r.newLine();
      rows = 0;
    }
  }
}

bool printRecipeListToFile(Workbench& wb, const std::string& path) {
  return wb.recipeList.printRecipeListToFile(wb, path);
}

ReportRequest recipeListReportRequest(Workbench& wb) {
  ReportRequest req;
  req.number = kRecipeListReport;
  req.draw = [&wb](Report& r) { printRecipeList(r, wb); };
  req.toFile = [&wb](const std::string& path) { return printRecipeListToFile(wb, path); };
  return req;
}

}  // namespace zy
