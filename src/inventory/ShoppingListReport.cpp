#include "inventory/ShoppingListReport.h"

#include "core/dates.h"
#include "inventory/ShoppingList.h"
#include "reports/ReportLayout.h"

namespace zy {

namespace {
// Quantity and unit at the left, the item in the middle, the cost ending at the right margin.
constexpr double kItemX = 3.0;
}  // namespace

ReportProc printShoppingListReport(const ShoppingList& list, double printedOn) {
  return [&list, printedOn](Report& r) {
    reportTitle(r, kShoppingReportTitle, formatDate(printedOn, "mmmm d, yyyy"));
    if (list.rows.empty()) {
      r.printLine(Report::kLeft, ShoppingList::kEmptyReport);
      return;
    }
    const double right = reportRight(r);
    const std::vector<ReportColumn> columns{{"Quantity", Report::kLeft}, {"Item", kItemX}, {"Est. Cost", right, true}};
    printColumnHeads(r, columns);
    for (const ShoppingReportLine& l : list.reportLines()) {
      if (r.ensureRoom(1.2)) printColumnHeads(r, columns);
      printColumnCells(r, columns, {l.quantity, l.item, l.cost});
      r.newLine(1.2);
    }
    r.ensureRoom(2);
    r.rule(kItemX, right, 1);
    r.y += r.lineHeight() * 0.3;
    r.setFont("Arial", 10, true);
    r.printAt(kItemX, "Est. Total Cost");
    r.printRight(list.reportTotal(), right);
    r.newLine();
    r.setFont("Arial", 10);
  };
}

ReportRequest shoppingListReportRequest(const ShoppingList& list, double printedOn) {
  return {kShoppingListReport, printShoppingListReport(list, printedOn), {}};
}

}  // namespace zy
