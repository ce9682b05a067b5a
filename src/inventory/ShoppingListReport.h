#pragma once
// The printed shopping list: "Zythara Shopping List", a box to tick before each item, the
// quantity to buy with its unit, the item and its estimated cost, and the total at the foot.
// With the list's whole-unit rounding set, each quantity is taken up to the next whole unit
// and costed again for that quantity.
#include "reports/ReportCatalog.h"

namespace zy {

class ShoppingList;

inline constexpr const char* kShoppingReportTitle = "Zythara Shopping List";

// The report over the list as it stands when drawn; `printedOn` (a date serial) dates the page.
ReportProc printShoppingListReport(const ShoppingList& list, double printedOn);
// The request the preview is opened with (report 7, no file form).
ReportRequest shoppingListReportRequest(const ShoppingList& list, double printedOn);

}  // namespace zy
