#pragma once
// The style browser (frmBeerStyles) and its editors as a model: the list of styles narrowed by
// source, the details of a style drawn as five range bars, and the editing of the brewer's own
// (Custom) styles and categories. Every accepted change is written at once with saveBeerStyles.
//
// The published lists (AOB, BJCP) are read-only here: a brewer copies a published style into a
// custom one to change it. The editor never lets the tables grow past what the loader accepts
// (50 categories, 250 styles), so the program never writes a file it would refuse at the next
// start.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/errorlog.h"
#include "core/paths.h"
#include "core/ports.h"
#include "core/settings.h"
#include "styles/StyleMatch.h"
#include "styles/StyleStore.h"

namespace zy {

// The most rows the loader accepts from the files.
constexpr int kMaxCategories = kCategoryTableRows - 1;  // 50
constexpr int kMaxStyles = kStyleTableRows - 1;         // 250

// The source filter of the browser: "All", "Custom", "AOB", "BJCP".
enum BrowserSource { BROWSE_ALL = 0, BROWSE_CUSTOM = 1, BROWSE_AOB = 2, BROWSE_BJCP = 3 };
const std::array<std::string, 4>& browserSourceNames();

// One of the five ranges of a style, as the details draw it: the style's range on a scale,
// with the open recipe's value marked on it.
struct StyleRangeBar {
  std::string caption;            // "Original Gravity", "Final Gravity", "Bitterness (IBU)", ...
  double low = 0, high = 0;       // the style's range
  double axisMin = 0, axisMax = 1;  // the scale of the bar, wide enough for range and value
  bool open = false;              // the style gives no range (0 to 0)
  std::string rangeText;          // "1.044 - 1.052", "20 - 40", or "Not given"
  bool hasValue = false;          // the recipe's value is marked
  double value = 0;
  std::string valueText;          // the value in the measure's format, "1.050"
  std::string state;              // "Low", "OK", "High" (empty without a value)
  std::array<int, 3> color{0, 0, 0};  // the judgement's colour: green, yellow or red
};
// The five bars of style `s`; with `recipe` the recipe's values are marked and judged.
std::array<StyleRangeBar, 5> styleRangeBars(const BeerStyleRecord& s, const RecipeStyleValues* recipe);

// The boxes of the style editor dialog (dlgBeerStyleEdit), all as text.
struct StyleForm {
  std::string txtName;
  std::string txtId;
  int category = -1;  // row of BeerCategories, -1 for none
  // OG low, OG high, FG low, FG high, IBU low, IBU high, SRM low, SRM high, alcohol low, high.
  std::array<std::string, 10> txtRange;
  std::string txtComments;
};

// The boxes of the category editor.
struct CategoryForm {
  std::string txtId;
  std::string txtCategory;
  std::string txtSubCategory;
};

// The settings of the browser in the section "Beer Styles" besides its geometry.
struct StyleBrowserSettings {
  int sourceFilter = BROWSE_ALL;              // "Source Filter"
  std::array<int, 3> columnWidths{190, 70, 260};  // "Column Width 1" .. "Column Width 3", pixels
  static constexpr const char* kSection = "Beer Styles";
  static StyleBrowserSettings read(const SettingsStore& s);
  void write(SettingsStore& s) const;
};

class StyleEditor {
 public:
  StyleEditor(StyleTables& t, const ProgramFolder& folder, ErrorLog& errors, Prompter& prompter)
      : t_(t), folder_(folder), errors_(errors), prompter_(prompter) {}

  // ---- The list ---------------------------------------------------------------------------
  int sourceFilter = BROWSE_ALL;
  // The styles the list shows: every named row of the source filter, in table order.
  std::vector<StyleBrowserEntry> entries() const;
  // Named rows (a deleted style leaves a blank row until the next load).
  int styleCount() const;
  int categoryCount() const;

  // ---- Styles -------------------------------------------------------------------------------
  bool isCustomStyle(int row) const;
  // The form of a style; a new style starts from the style at `fromRow` (its category and
  // ranges, a blank name), or blank when `fromRow` is -1.
  StyleForm formOf(int row) const;
  StyleForm newStyleForm(int fromRow) const;
  // May a style be added? Says "There is no room for another Beer Style ..." when not.
  bool mayAddStyle();
  // Checks the form and stores it as a custom style: into `row`, or a new row when `row` is -1.
  // Saves the files. The style's row, or -1 when the form was refused (with its message) or the
  // save failed.
  int acceptStyle(int row, const StyleForm& f);
  // Asks "Delete the Beer Style 'name'?" and blanks the row, then saves. The recipe that named
  // the style keeps the name. False when refused or not confirmed.
  bool deleteStyle(int row);

  // ---- Categories ---------------------------------------------------------------------------
  bool isCustomCategory(int row) const;
  // Named category rows whose source is Custom, in table order.
  std::vector<int> customCategoryRows() const;
  CategoryForm categoryFormOf(int row) const;
  bool mayAddCategory();
  // Stores a custom category into `row` or a new row (-1); saves. The row or -1.
  int acceptCategory(int row, const CategoryForm& f);
  // Refused while styles belong to it; else asks, removes the row, moves the rows behind it up
  // and keeps every style pointing at its category; saves.
  bool deleteCategory(int row);

  // Texts of the messages (title "Beer Styles" unless said otherwise).
  static constexpr const char* kTitle = "Beer Styles";

 private:
  bool fail(const std::string& text);
  bool save();
  // The first blank style row below the count, else the next row.
  int freeStyleRow() const;
  std::optional<double> rangeNumber(const std::string& text, const std::string& caption);

  StyleTables& t_;
  const ProgramFolder& folder_;
  ErrorLog& errors_;
  Prompter& prompter_;
};

}  // namespace zy
