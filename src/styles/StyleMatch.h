#pragma once
// Judging a recipe against the styles: the Low/OK/High rule with its ten-percent margins, the
// style list the recipe editor offers, the match window's list (frmStyleMatch), the style filter
// dialog (dlgFilterBeerStyles) and the statistics dialog (dlgBeerStyleStats), as plain models.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/ports.h"
#include "styles/StyleTables.h"

namespace zy {

// ---- The judgement of one value ---------------------------------------------------------------

// Gravities (original and final) get their ten-percent margins measured from 0.9:
//   lower limit (low - 0.9) * 0.9 + 0.9, upper limit (high - 0.9) * 1.1 + 0.9.
// Bitterness, colour and alcohol get plain margins: low * 0.9 and high * 1.1.
enum class LimitKind { Gravity, Plain };
enum class StyleState { Low, OK, High };

struct StyleDeviation {
  StyleState state = StyleState::OK;
  // Outside low..high yet within the margin (a value exactly on a limit is a near miss).
  bool nearMiss = false;
  bool fullMiss() const { return state != StyleState::OK && !nearMiss; }
  // "Low", "OK" or "High".
  const char* text() const;
  // The indicator colour: "green" for OK, "yellow" for a near miss, "red" for a full miss.
  const char* colorWord() const;
  // The same as red, green, blue: (0,255,0), (255,255,0), (255,0,0).
  std::array<int, 3> color() const;
};

StyleDeviation styleDeviation(double value, double low, double high, LimitKind kind);
double styleLowerLimit(double low, LimitKind kind);
double styleUpperLimit(double high, LimitKind kind);

// The five recipe values a style is judged on, as the recipe editor shows them.
enum StyleMeasure { MEASURE_OG = 0, MEASURE_FG = 1, MEASURE_IBU = 2, MEASURE_COLOR = 3, MEASURE_ALCOHOL = 4 };
struct RecipeStyleValues {
  double og = 0, fg = 0, ibu = 0, color = 0, alcohol = 0;
  // From the display texts of lblOG, lblFG, lblIBU, lblColor, lblAlcohol, read leniently
  // ("N/A" counts 0).
  static RecipeStyleValues fromDisplay(const std::string& lblOG, const std::string& lblFG,
                                       const std::string& lblIBU, const std::string& lblColor,
                                       const std::string& lblAlcohol);
};
// The five judgements in the order OG, FG, IBU, colour, alcohol (gravity limits for the first two).
std::array<StyleDeviation, 5> judgeStyle(const BeerStyleRecord& style, const RecipeStyleValues& v);

// ---- The recipe editor's style list (cboBeerStyle) ---------------------------------------------

inline constexpr const char* kNotRecognizedStyleEntry = "<Not A Recognized Beer Style>";
inline constexpr const char* kNotSpecifiedStyleEntry = "<Not Specified>";

struct StyleListEntry {
  std::string text;  // trimmed style name, or one of the two bracketed entries
  int data = -1;     // row of BeerStyles, -1 for the bracketed entries
};

// The list the recipe editor's style box shows, built from the tables and the filter: position 0
// "<Not A Recognized Beer Style>", position 1 "<Not Specified>" (both data -1), then every style
// row whose source is shown and whose lower-cased trimmed name holds the lower-cased filter text,
// sorted by name without regard to case. The editor selects position 1 after a rebuild.
std::vector<StyleListEntry> buildRecipeStyleList(const StyleTables& t);

// The position of the entry whose text equals `text` (trimmed; without regard to case, as a list
// box finds its text), else -1.
int findStyleListPosition(const std::vector<StyleListEntry>& list, const std::string& text);

// Choosing position `pos` in the list: positions 0 and 1 (and an invalid position) mean no style:
// the returned name is empty and CurrentStyleIndex becomes -1; any other position returns the
// entry's text as the recipe's style name and sets CurrentStyleIndex to its data.
std::string chooseRecipeStyle(StyleTables& t, const std::vector<StyleListEntry>& list, int pos);

// Opening a recipe whose style field holds `styleName`: the list position that shows it. An empty
// name gives position 1. A name the list does not hold shows "Beer Style '<name>' is Not
// Recognized by Zythara" titled "Unknown Beer Style" and gives position 0. CurrentStyleIndex
// becomes the data of that position.
int selectRecipeStyle(StyleTables& t, const std::vector<StyleListEntry>& list, const std::string& styleName,
                      Prompter& prompter);

// ---- Matching (frmStyleMatch) ----------------------------------------------------------------

inline constexpr const char* kNoMatchingStyles = "No Matching Styles Found";

struct StyleMatchRow {
  std::string name;                  // trimmed style name, or "No Matching Styles Found"
  std::array<std::string, 5> cells;  // "OK", "Low" or "High"; empty in the no-match row
  int styleRow = -1;                 // row of BeerStyles, -1 for the no-match row
};

// The match list of every style tried against the values: a style is listed unless one of the
// five values is a full miss (near misses stay, showing "Low" or "High"). Every loaded row is
// tried, whatever the editor's filter and even with an empty name. Rows keep the table's order.
// An empty result is the single row "No Matching Styles Found".
std::vector<StyleMatchRow> buildStyleMatchRows(const StyleTables& t, const RecipeStyleValues& v);

class StyleMatchModel {
 public:
  static constexpr const char* kCaption = "Matching Beer Styles";
  // "Beer Style", "O.G.", "F.G.", "Bitter", "Color", "Alc %".
  static const std::array<std::string, 6>& columnHeaders();

  // Builds the list when the window opens, selecting the row whose name equals the current
  // style text exactly.
  void open(const StyleTables& t, const RecipeStyleValues& v, const std::string& currentStyleText);

  // A click on a column header: column 0 sorts ascending by name; any other column sorts
  // descending on every column from the last back to the second, so that O.G. decides first and
  // the others order the ties ("OK" ahead of "Low" ahead of "High"). The selection stays on its row.
  void sortByColumn(int column);

  // cmdSetRecipe: the trimmed text of the selected row, which the editor puts into its style box;
  // none when the button is disabled or nothing is selected.
  std::optional<std::string> setRecipeStyleText() const;

  // A double click on row `row`: with matches, the style name the style browser is to show; with
  // none, the message "No Matching Beer Styles Found" titled "Matching Beer Styles" and no name.
  std::optional<std::string> doubleClick(int row, Prompter& prompter);

  // The list as tab-separated lines: the header row, then one line a row.
  std::vector<std::string> lines() const;

  std::vector<StyleMatchRow> rows;
  int selected = -1;            // selected row of `rows`, -1 for none
  bool cmdSetRecipeEnabled = true;
};

// ---- The filter dialog (dlgFilterBeerStyles) --------------------------------------------------

struct StyleFilterDialog {
  static constexpr const char* kCaption = "Filter the Beer Styles";
  std::array<bool, kStyleSourceCount> chkStyle{true, true, true};  // "Custom", "AOB", "BJCP"
  std::string txtFilter;

  // Fills the boxes from StyleSourceShown and StyleFilterText.
  void open(const StyleTables& t);
  // All three checked, text empty; nothing is stored until OK.
  void reset();
  // Stores the boxes (checked is shown) and the trimmed text.
  void ok(StyleTables& t) const;
  // Cancel stores nothing.
  void cancel() const {}
};

// ---- The statistics dialog (dlgBeerStyleStats) ------------------------------------------------

struct StyleStatistics {
  static constexpr const char* kCaption = "Beer Style Statistics";
  int categories = 0;  // lblCategories: BeerCategoryCount
  int total = 0;       // lblTotal: BeerStyleCount
  int custom = 0, aob = 0, bjcp = 0;  // rows of source 0, 1, 2; other sources count in total only
  // "Number of Beer Categories Loaded: 41" and so on, in the dialog's order.
  std::vector<std::string> lines() const;
};
StyleStatistics computeStyleStatistics(const StyleTables& t);

}  // namespace zy
