#pragma once
// The program's printed reports, by the number the preview window is opened with. A window that
// owns a report's data hands the preview a request: the procedure that draws the report, and for
// the reports that have one, the procedure that writes its file form.
#include <functional>
#include <string>

#include "reports/ReportEngine.h"

namespace zy {

enum ReportNumber : int {
  kInventoryReport = 1,
  kRecipeListReport = 2,
  kRecipeReport = 3,
  kHopsUtilizationReport = 4,
  kBeerStylesReport = 5,
  kBatchLogReport = 6,
  kShoppingListReport = 7,
  kBrewingDayForm = 8,
};

struct ReportRequest {
  int number = 0;
  ReportProc draw;
  // Writes the report as a text file; true when written. Empty for reports without a file form.
  std::function<bool(const std::string& path)> toFile;
};

// A request the preview and the printer can take: a report number they know, with its procedure.
// Any other is answered with "This Report Not Implemented Yet" under "Reports".
inline bool reportAvailable(const ReportRequest& request) {
  return request.number >= kInventoryReport && request.number <= kBrewingDayForm && request.draw;
}
constexpr const char* kReportMissingText = "This Report Not Implemented Yet";
constexpr const char* kReportMissingTitle = "Reports";

}  // namespace zy
