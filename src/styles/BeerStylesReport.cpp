#include "styles/BeerStylesReport.h"

#include "core/text.h"
#include "reports/ReportLayout.h"
#include "styles/StyleEditor.h"
#include "styles/StyleTables.h"

namespace zy {

namespace {

void printStyle(Report& r, const StyleTables& t, int row, const std::optional<RecipeStyleValues>& recipe) {
  const BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(row)];
  const std::string name = trim(s.styleName);
  r.setFont("Arial", 13, true);
  r.ensureRoom(12);
  r.printLine(Report::kLeft, name);
  r.setFont("Arial", 10);
  const double valueX = 2.4;
  printLabelled(r, Report::kLeft + 0.25, valueX, "Category:", categoryLabel(t, s.categoryIndex, true));
  std::string source = styleSourceName(s.source);
  if (!trim(s.styleId).empty()) source += "   (Style ID " + trim(s.styleId) + ")";
  printLabelled(r, Report::kLeft + 0.25, valueX, "Source:", source);
  r.newLine(0.5);

  std::vector<ReportColumn> columns{{"Range", Report::kLeft + 0.25}, {"Low - High", 4.1, true}};
  if (recipe) {
    columns.push_back({"Recipe", 5.3, true});
    columns.push_back({"", 5.5});
  }
  printColumnHeads(r, columns);
  const RecipeStyleValues* values = recipe ? &*recipe : nullptr;
  for (const StyleRangeBar& b : styleRangeBars(s, values)) {
    std::vector<std::string> cells{b.caption, b.rangeText};
    if (recipe) {
      cells.push_back(b.valueText);
      cells.push_back(b.state);
    }
    printColumnCells(r, columns, cells);
    r.newLine();
  }
  r.newLine(0.5);
  const std::string comments = trim(s.comments);
  if (!comments.empty()) {
    r.setFont("Arial", 10, true);
    r.ensureRoom(3);
    r.printLine(Report::kLeft + 0.25, "Description:");
    r.setFont("Arial", 10);
    r.printWrapped(comments, Report::kLeft + 0.25, reportRight(r), 0, name);
  }
  r.newLine();
}

}  // namespace

ReportProc printBeerStyles(const StyleTables& tables, std::vector<int> rows, const std::string& heading,
                           std::optional<RecipeStyleValues> recipe) {
  return [&tables, rows = std::move(rows), heading, recipe](Report& r) {
    reportTitle(r, kBeerStylesReportTitle, heading);
    int shown = 0;
    for (int row : rows) {
      if (row < 0 || row >= tables.BeerStyleCount || row >= kStyleTableRows) continue;
      if (trim(tables.BeerStyles[static_cast<size_t>(row)].styleName).empty()) continue;
      if (shown++) {
        r.rule(Report::kLeft, reportRight(r), 0.5);
        r.newLine(0.5);
      }
      printStyle(r, tables, row, recipe);
    }
    if (!shown) r.printLine(Report::kLeft, "No beer style selected.");
  };
}

ReportRequest beerStylesReportRequest(const StyleTables& tables, std::vector<int> rows, const std::string& heading,
                                      std::optional<RecipeStyleValues> recipe) {
  return {kBeerStylesReport, printBeerStyles(tables, std::move(rows), heading, std::move(recipe)), {}};
}

std::vector<int> stylesOfCategory(const StyleTables& tables, int categoryKey) {
  std::vector<int> rows;
  for (int row = 0; row < tables.BeerStyleCount && row < kStyleTableRows; ++row)
    if (tables.BeerStyles[static_cast<size_t>(row)].categoryIndex == categoryKey) rows.push_back(row);
  return rows;
}

}  // namespace zy
