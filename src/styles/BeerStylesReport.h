#pragma once
// The printed beer style: its name, category and source, the ranges of original and final
// gravity, bitterness, colour and alcohol as the style browser shows them (with the open
// recipe's values beside them when there is one), and its description. A category prints each
// of its styles in turn.
#include <optional>
#include <string>
#include <vector>

#include "reports/ReportCatalog.h"
#include "styles/StyleMatch.h"

namespace zy {

struct StyleTables;

inline constexpr const char* kBeerStylesReportTitle = "Zythara Beer Styles";

// The styles at `rows` of the tables, one after the other; `heading` is the subtitle (the
// category's label for a category, empty for one style). With `recipe` each range shows the
// recipe's value and its judgement.
ReportProc printBeerStyles(const StyleTables& tables, std::vector<int> rows, const std::string& heading,
                           std::optional<RecipeStyleValues> recipe = std::nullopt);
// Report 5, without a file form.
ReportRequest beerStylesReportRequest(const StyleTables& tables, std::vector<int> rows, const std::string& heading,
                                      std::optional<RecipeStyleValues> recipe = std::nullopt);

// The rows of the styles of the category with key `categoryKey`, in table order.
std::vector<int> stylesOfCategory(const StyleTables& tables, int categoryKey);

}  // namespace zy
