#pragma once
// The editor's ingredient grid as plain data: rows of eight text cells plus a unit code per row.
//
// The table always holds four sections, malts, hops, other ingredients and yeast, each opened by
// a header row that carries a title in column 0, and ends in the total row "Estimated Total
// Cost". Item rows keep column 0 empty: that is how every calculation and the save find the
// section borders, so a row is an item exactly when its column 0 is empty.
//
// The numbers live in the cells as the grid shows them ("1.25", "$1.60", "Yes"); whoever needs a
// value reads it back from that text.
#include <array>
#include <string>
#include <vector>

namespace zy {

struct IngredientRow {
  static constexpr int kColumns = 8;
  std::array<std::string, kColumns> cells;
  int unit = 0;  // the unit code of an item row, in the unit list of its kind

  bool isItem() const { return cells[0].empty(); }
};

// Column numbers of an item row.
constexpr int COL_TITLE = 0;     // empty on item rows
constexpr int COL_NAME = 1;
constexpr int COL_QTY = 2;
constexpr int COL_UNITS = 3;
constexpr int COL_COST = 4;
constexpr int COL_RATING = 5;    // extraction, alpha %, attenuation %
constexpr int COL_DETAIL = 6;    // malt colour, hops boil time
constexpr int COL_MASH = 7;      // "Yes" / "No"

inline constexpr const char* kTotalCaption = "Estimated Total Cost";

class IngredientTable {
 public:
  static constexpr int kSections = 4;

  IngredientTable() { clear(); }

  // Back to the four header rows and the total row with "$0.00".
  void clear();

  int rowCount() const { return static_cast<int>(rows_.size()); }
  const IngredientRow& row(int r) const { return rows_[static_cast<size_t>(r)]; }
  IngredientRow& row(int r) { return rows_[static_cast<size_t>(r)]; }
  const std::vector<IngredientRow>& rows() const { return rows_; }

  // A cell's text; empty for a row or column outside the table.
  const std::string& cell(int r, int c) const;
  void setCell(int r, int c, std::string text);
  int unitCode(int r) const { return valid(r) ? row(r).unit : 0; }
  void setUnitCode(int r, int unit) {
    if (valid(r)) row(r).unit = unit;
  }

  bool valid(int r) const { return r >= 0 && r < rowCount(); }
  bool isItemRow(int r) const { return valid(r) && row(r).isItem(); }
  int totalRow() const { return rowCount() - 1; }

  // The header row of a section (kind 0 malt .. 3 yeast), found by walking the borders.
  int headerRow(int kind) const;
  // One past the last item row of a section: the next section's header or the total row.
  int sectionEnd(int kind) const;
  // Kind of the section that holds row r (0..3), -1 for the total row or outside the table.
  int kindOfRow(int r) const;
  // Number of item rows, all sections.
  int itemCount() const;
  int itemCount(int kind) const { return sectionEnd(kind) - headerRow(kind) - 1; }

  // Inserts an empty item row at the end of a section; returns its row number.
  int insertItem(int kind);
  // Removes an item row (header and total rows stay).
  bool removeRow(int r);
  // Exchanges two rows with all their cells and unit codes.
  void swapRows(int a, int b);

  // The title of a section as its header row carries it: "Malts", "Hops", "Other Ingredients",
  // "Yeast".
  static const char* sectionTitle(int kind);

 private:
  std::vector<IngredientRow> rows_;
};

}  // namespace zy
