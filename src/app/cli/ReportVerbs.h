#pragma once
// Reports offered by the `report` verb. Each report's verb file registers how to build its
// request from the arguments that follow the report's name, with a static ReportVerbRegistrar:
//   ReportVerbRegistrar r("recipe", "recipe N", buildRecipeReport);
// A builder that cannot build (a bad argument, no such recipe) says why and returns its exit
// status; EXIT_DONE lets the verb draw or write the report.
#include "app/cli/Cli.h"
#include "reports/ReportCatalog.h"

namespace zy::cli {

using ReportBuildFn = int (*)(Context& c, ReportRequest& request);

struct ReportVerb {
  const char* name;
  const char* usage;
  ReportBuildFn build;
};

struct ReportVerbRegistrar {
  ReportVerbRegistrar(const char* name, const char* usage, ReportBuildFn build);
};

}  // namespace zy::cli
