#pragma once
// The recipe report: the recipe open in the editor as a printed recipe sheet, from its name and
// characteristics through the ingredients, the mash, the fermentation, the packaging and aging
// to the comments. It reads the saved fields of the current recipe and what the editor shows
// (the ingredient table, the computed characteristics).
#include <string>

#include "reports/ReportCatalog.h"

namespace zy {

class RecipeEditor;

// Draws the whole report into `r`; the engine keeps the page wanted.
void printRecipe(Report& r, const RecipeEditor& editor);

// The report as the preview and the printer take it (report number 3, no file form).
ReportRequest recipeReportRequest(const RecipeEditor& editor);

// The name of a mash rest by its temperature read as degrees F, whatever the recipe's scale.
std::string mashRestName(double temperature);

}  // namespace zy
