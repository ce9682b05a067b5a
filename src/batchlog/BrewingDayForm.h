#pragma once
// The brewing day form: a sheet the brewer takes to the brew kettle and fills in by hand. It
// names the recipe and what it aims at (volumes, gravities, bitterness, colour), lists the
// ingredients with a box to tick as each is weighed out, the mash steps with room for the
// temperatures and times really reached, and blank lines for the readings the batch log asks for
// afterwards: mash gravity, sparge water, boil volume and times, fermentation volume and
// gravity, pitching temperature, and notes.
#include "reports/ReportCatalog.h"

namespace zy {

struct RecipeRecord;
struct RecipeSheet;

inline constexpr const char* kBrewingDayFormTitle = "Brewing Day Form";

// The recipe's saved fields and the editor's table and result labels.
ReportProc printBrewingDayForm(const RecipeRecord& recipe, const RecipeSheet& sheet);
// Report 8, without a file form.
ReportRequest brewingDayFormRequest(const RecipeRecord& recipe, const RecipeSheet& sheet);

}  // namespace zy
