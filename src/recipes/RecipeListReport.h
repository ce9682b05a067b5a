#pragma once
// The recipe list as a printed report ("Zythara Recipe List") and as a text file: one row per
// recipe in the order the list shows them, each read straight from the recipe file.
#include <string>

#include "reports/ReportCatalog.h"

namespace zy {

class Workbench;

// The title, the date line, the column heads, then the rows; a blank line after every fifth row.
void printRecipeList(Report& r, Workbench& wb);
// The column heads "Recipe Name", "Type", "OG/FG", "Color", "IBU", "Alcohol" on the current line.
void printRecListHeader(Report& r);
// The file form (lines ended by CR LF); "Unable to Generate Output File" when it cannot be written.
bool printRecipeListToFile(Workbench& wb, const std::string& path);

// The report as the preview and the printer take it (report number 2, with its file form).
ReportRequest recipeListReportRequest(Workbench& wb);

}  // namespace zy
