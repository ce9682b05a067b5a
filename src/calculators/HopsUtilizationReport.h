#pragma once
// The printed hops utilization curves: the graph of the curve in use (and, with a gravity
// adjustment, the curves of two higher gravities) over the boil time, the table of its 18
// points, and the adjustment with its factors, as the window shows them at the moment of
// printing.
#include "reports/ReportCatalog.h"

namespace zy {

class HopsUtilizationEditor;

inline constexpr const char* kHopsReportTitle = "Hops Utilization Curves";

ReportProc printHopsUtilization(const HopsUtilizationEditor& editor);
// Report 4, without a file form.
ReportRequest hopsUtilizationReportRequest(const HopsUtilizationEditor& editor);

}  // namespace zy
