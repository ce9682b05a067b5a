#pragma once
// The brewer's stock in five categories, each in a file of its own below Data/. The inventory
// has no table of its own: each category is a list of rows whose cells are the texts the
// inventory window shows ("   5.25", "$1.60", "0."), and a save parses those texts back. So a
// quantity that the list rounds to two decimals is saved rounded, and a blank reorder threshold
// comes back from the file as "0." that the next save stores as 0.
//
// A file is a byte stream: a 74-byte header, then per item one fixed record followed by a 16-bit
// comment length and the comment itself. Malt keeps doubles, the other kinds single-precision.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/errorlog.h"
#include "core/measures.h"
#include "core/paths.h"

namespace zy {

constexpr int INV_MALT = 0, INV_HOPS = 1, INV_OTHER = 2, INV_YEAST = 3, INV_SUPPLIES = 4;
constexpr int kInventoryCategories = 5;

// "Malt", "Hops", "Other", "Yeast", "Supplies"; empty text outside 0..4.
const std::string& inventoryCategoryName(int category);
const StringList& inventoryCategoryNames();
// The data file of a category (ZYInvMalt.dat ...).
const char* inventoryFileName(int category);
// The unit names a category's quantities are counted in: weights for malt and hops, the
// fourteen other units for other and supplies, the yeast units for yeast.
const StringList& inventoryUnits(int category);
// Category by its number "0".."4" or its name, case-blind; -1 when neither.
int parseInventoryCategory(std::string_view text);

// Column keys of the lists.
inline constexpr const char* kColName = "Name";
inline constexpr const char* kColQty = "Qty";
inline constexpr const char* kColUnits = "Units";
inline constexpr const char* kColCost = "Cost";
inline constexpr const char* kColExtract = "Extract";
inline constexpr const char* kColColor = "Color";
inline constexpr const char* kColMash = "Mash";
inline constexpr const char* kColAlpha = "Alpha";
inline constexpr const char* kColAtten = "Atten";
inline constexpr const char* kColType = "Type";
inline constexpr const char* kColVintage = "Vintage";
inline constexpr const char* kColReorderThresh = "ReorderThresh";
inline constexpr const char* kColReorderQty = "ReorderQty";
inline constexpr const char* kColComments = "Comments";

// One column of a category's list: its key, the head the window shows (and the CSV head line
// carries), and the rule a CSV field under that head must pass (see checkFieldFormat).
struct InventoryColumn {
  const char* key;
  std::string head;
  int csvRule;
  bool numeric;  // sorted by value in the window
};
// The columns of a category's list, the item's name first (headed by the category name) and the
// hidden comment last; at most 11.
const std::vector<InventoryColumn>& inventoryColumns(int category);
// The column heads of the printed inventory: the name's head, "Qty", "Units", "Vintage", then by
// kind "Type", "Color", "Extract", "Alpha %", "Atten", and "Notes".
const StringList& inventoryReportHeads(int category);

struct InventoryRow {
  std::string key;                 // "new" for a row added by hand or by an import
  std::vector<std::string> cells;  // one per column of the category; cells[0] is the name
};

// A category's list: the working copy of its file.
class InventoryList {
 public:
  explicit InventoryList(int category = INV_MALT);
  int category() const { return category_; }
  const std::vector<InventoryColumn>& columns() const { return inventoryColumns(category_); }
  int columnIndex(std::string_view key) const;  // -1 when the kind has no such column

  std::vector<InventoryRow> rows;
  size_t size() const { return rows.size(); }
  bool empty() const { return rows.empty(); }
  // A cell by column key; empty text for a column the kind lacks or a row outside the list.
  const std::string& cell(size_t row, std::string_view key) const;
  void setCell(size_t row, std::string_view key, std::string text);
  // Appends a row keyed "new" with every cell empty but the name; returns its index.
  size_t addRow(const std::string& name);
  void clear() { rows.clear(); }

 private:
  int category_;
};

// The five lists.
struct Inventory {
  Inventory();
  std::array<InventoryList, kInventoryCategories> lists;
  InventoryList& list(int category) { return lists[static_cast<size_t>(category)]; }
  const InventoryList& list(int category) const { return lists[static_cast<size_t>(category)]; }
};

// ---- Records ---------------------------------------------------------------------------------

// The fields of an item record of any kind (a kind ignores what it does not keep).
struct InventoryItem {
  std::string name;
  double qty = 0;
  int units = 0;
  double cost = 0;
  double extract = 0, color = 0;  // malt
  int mash = 0;                   // malt: 1 for "Yes"
  double alpha = 0;               // hops, percent
  double atten = 0;               // yeast, a fraction
  std::string type;               // yeast
  double reorderThresh = -1, reorderQty = -1;
  std::string vintage;
};

constexpr size_t kInventoryHeaderLength = 74;
// Byte length of an item record: 200 malt, 174 hops and yeast, 170 other and supplies.
size_t inventoryRecordLength(int category);
// The header shared by the five files: 200, code 13, "Home Brewing Inventory Data", code 26.
std::string inventoryHeaderBytes();
std::string encodeInventoryItem(int category, const InventoryItem& item);
InventoryItem decodeInventoryItem(int category, std::string_view bytes);
// Both control codes (200 and 299) in place.
bool inventoryRecordValid(int category, std::string_view bytes);

// A row's display texts from a record, and a record parsed back from a row's texts.
std::vector<std::string> inventoryRowCells(int category, const InventoryItem& item, const std::string& comment);
InventoryItem inventoryItemFromRow(int category, const InventoryRow& row);
// The quantity as the lists show it: "0.0#", blanks in front up to 7 characters, so that the
// text sorts by number.
std::string inventoryQtyText(double qty);

// ---- The ten procedures and the dispatcher ---------------------------------------------------

// Loads and saves the lists of an Inventory. A load replaces the list's rows; errors go to the
// error routine: 32009 when the file ends inside its header (a missing file is created empty, so
// it gets this too), 32010 when the header does not start with 200 (nothing loaded), 32011 once
// after the load when records with bad control codes were skipped. A save writes the header and
// every row to a new file that replaces the old one only when it was written whole.
class InventoryStore {
 public:
  InventoryStore(const ProgramFolder& folder, ErrorLog& errors, Inventory& inventory)
      : folder_(folder), errors_(errors), inventory_(inventory) {}

  bool saveMaltData() { return save(INV_MALT); }
  bool loadMaltData() { return load(INV_MALT); }
  bool saveHopsData() { return save(INV_HOPS); }
  bool loadHopsData() { return load(INV_HOPS); }
  bool saveOtherData() { return save(INV_OTHER); }
  bool loadOtherData() { return load(INV_OTHER); }
  bool saveYeastData() { return save(INV_YEAST); }
  bool loadYeastData() { return load(INV_YEAST); }
  bool saveSupplyData() { return save(INV_SUPPLIES); }
  bool loadSupplyData() { return load(INV_SUPPLIES); }

  // The dispatcher: saves category 0..4; any other index does nothing (and gives false).
  bool saveInventory(int category);
  bool load(int category);
  bool save(int category);
  // Records skipped by the last load.
  int lastBadRecords = 0;

 private:
  std::string functionName(int category, bool saving) const;
  const ProgramFolder& folder_;
  ErrorLog& errors_;
  Inventory& inventory_;
};

// The start-up step: a category file that does not exist yet is written empty (a header only),
// so that a first start is quiet; then all five are loaded.
void loadInventories(const ProgramFolder& folder, ErrorLog& errors, Inventory& inventory);

}  // namespace zy
