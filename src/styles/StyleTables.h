#pragma once
// The beer style database in memory: the category and style records, the two program-wide fixed
// tables they live in, and the small look-ups over them. The tables are filled by LoadBeerStyles
// (styles/StyleStore.h) and belong to the Workbench (`wb.styles`).
//
// Texts are 8-bit (Windows-1252) as everywhere in the logic. Record text fields hold what the
// file holds (blank-padded to their width); use trim() where a name is shown or compared.
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace zy {

// Who defined a style or category. No other codes are legal.
constexpr int STYLE_SOURCE_CUSTOM = 0, STYLE_SOURCE_AOB = 1, STYLE_SOURCE_BJCP = 2;
constexpr int kStyleSourceCount = 3;
// "Custom", "AOB", "BJCP", indexed by source code.
const std::array<std::string, kStyleSourceCount>& StyleSourceNames();
// The name of a source code, empty text for an illegal code.
std::string styleSourceName(int source);

// Capacities of the tables (rows 0..50 and 0..250). A loaded file holds at most 50 categories
// and 250 styles; the row past that limit is what the loader reports as "Maximum ... Reached".
constexpr int kCategoryTableRows = 51;
constexpr int kStyleTableRows = 251;

// Record lengths in ZYCategory.dat and ZYStyle.dat.
constexpr size_t kCategoryRecordLength = 146;
constexpr size_t kStyleRecordLength = 188;
// Widths of the text fields.
constexpr size_t kCategoryIdWidth = 20, kCategoryNameWidth = 50, kSubCategoryWidth = 50;
constexpr size_t kStyleIdWidth = 20, kStyleNameWidth = 60;
constexpr size_t kRecordReservedWidth = 18;

// One row of ZYCategory.dat.
struct BeerCategoryRecord {
  int controlStart = 200;
  int source = STYLE_SOURCE_CUSTOM;  // "Category Source"
  std::string id;                    // "ID", 20
  std::string category;              // "Category", 50: blank marks a row that is not written
  std::string subCategory;           // "SubCategory", 50
  int categoryIndex = 0;             // "Category Index": the key (the row number after a load)
  std::string reserved = std::string(kRecordReservedWidth, '\0');  // 18 bytes, written back as held
  int controlEnd = 299;
};

// One row of ZYStyle.dat and the comment block that follows it.
struct BeerStyleRecord {
  int controlStart = 200;
  int source = STYLE_SOURCE_CUSTOM;  // "Style Source"
  std::string styleId;               // "Style ID", 20
  std::string styleName;             // "Style Name", 60: blank marks a deleted row
  int categoryIndex = 0;             // key of the style's category row
  double ogLow = 0, ogHigh = 0;      // specific gravity, as 1.048
  double fgLow = 0, fgHigh = 0;
  double ibuLow = 0, ibuHigh = 0;
  double srmLow = 0, srmHigh = 0;
  double alcoholLow = 0, alcoholHigh = 0;  // percent by volume
  int styleIndex = 0;                // the style's key (the row number after a load)
  std::string reserved = std::string(kRecordReservedWidth, '\0');
  int controlEnd = 299;
  std::string comments;              // "Comments": trimmed, any length a 16-bit count allows
};

// Field-by-field packing of one record (no comment block) and unpacking of a buffer of at least
// the record's length. Text is blank-padded or cut to its width; the reserved bytes are copied
// (padded with zero bytes when shorter than 18).
std::string packCategoryRecord(const BeerCategoryRecord& r);
BeerCategoryRecord unpackCategoryRecord(std::string_view bytes);
std::string packStyleRecord(const BeerStyleRecord& r);
BeerStyleRecord unpackStyleRecord(std::string_view bytes);  // comments left empty
// The comment block: a signed 16-bit count and the bytes. A comment longer than 32767 bytes is
// cut to that length.
std::string packStyleComment(const std::string& comment);

// The program-wide style state.
struct StyleTables {
  std::array<BeerCategoryRecord, kCategoryTableRows> BeerCategories{};
  std::array<BeerStyleRecord, kStyleTableRows> BeerStyles{};
  int BeerCategoryCount = 0;
  int BeerStyleCount = 0;
  // Row of BeerStyles chosen for the open recipe, -1 for none.
  int CurrentStyleIndex = -1;
  // Which styles the recipe editor offers (indexed by source code) and the text their name must
  // hold; reset by initStyleFilter, never stored.
  std::array<bool, kStyleSourceCount> StyleSourceShown{true, true, true};
  std::string StyleFilterText;

  // Empties both tables (counts 0, rows reset) and clears CurrentStyleIndex.
  void clear();
  // The style at CurrentStyleIndex, or null when none (or the index lies outside the count).
  const BeerStyleRecord* currentStyle() const;
};

// All three sources shown, no filter text. Run when a recipe editor loads and when the recipe
// list opens a recipe.
void initStyleFilter(StyleTables& t);

// The first row 0..count-1 whose key equals `key`, else -1 (linear, first match wins).
int findCategoryRow(const StyleTables& t, int key);
int findStyleRow(const StyleTables& t, int key);

// The display text of a category: "<None>" for a negative row; else the trimmed name, preceded
// by the ID and a blank when there is an ID, followed by " - " and the subcategory when there is
// one ("1A Light Lager - Lite"). With `isKey` the number is first turned into a row by
// findCategoryRow. A row past the table's capacity gives "<None>" as well.
std::string categoryLabel(const StyleTables& t, int number, bool isKey);

// True when a low/high pair is bad: false only when minimum <= low, high <= maximum and
// low <= high.
bool rangeOutOfBounds(double low, double high, double minimum, double maximum);

}  // namespace zy
