#pragma once
// The published style tables the program ships with, kept as two CSV sheets (UTF-8):
//   categories: source,category_id,category_name,subcategory
//   styles:     source,category_id,style_id,style_name,og_low,og_high,fg_low,fg_high,
//               ibu_low,ibu_high,srm_low,srm_high,abv_low,abv_high
// turned into the style tables, from which writeStyleFiles makes ZYCategory.dat and ZYStyle.dat.
#include <string>
#include <string_view>
#include <vector>

#include "styles/StyleTables.h"

namespace zy {

// One CSV line split into its cells: commas separate, double quotes enclose a cell that holds
// commas, a doubled quote inside is one quote.
std::vector<std::string> splitCsvLine(std::string_view line);

// The source code of a source name ("Custom" 0, "AOB" 1, "BJCP" 2), -1 for any other.
int styleSourceCode(std::string_view name);

// Fills the tables from the two sheets' texts. Categories take their row as key; a style's
// Category Index is the row of the category with the same source and category_id. Names are
// turned into Windows-1252. A pair of empty cells is a range the guideline leaves open, stored
// as 0 to 0. Comments stay empty. False, with a message naming the line, when a sheet does not
// fit: an unknown source or category, a number that is no number, a text too long for its
// field, or more than 50 categories or 250 styles.
bool buildStyleTablesFromSheets(std::string_view categoriesCsv, std::string_view stylesCsv, StyleTables& t,
                                std::string& error);

// Puts the shipped style descriptions into the comments of the styles already in the tables.
// The sheet (UTF-8): source,style_name,description. A row is keyed by source and style name;
// a row whose style is not in the tables, a second row for the same style, or a description
// that is empty or longer than a comment block holds is refused, with a message naming the
// line and the style. Styles without a row keep their comment.
bool mergeStyleDescriptions(std::string_view descriptionsCsv, StyleTables& t, std::string& error);

}  // namespace zy
