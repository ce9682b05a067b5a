#include "inventory/InventoryStore.h"

#include <cerrno>
#include <cstdio>

#include "core/numfmt.h"
#include "core/records.h"
#include "core/text.h"

namespace zy {

namespace {

const std::string kEmpty;

// Columns of the five lists. Numbers are checked as money-or-number texts in a CSV head of the
// present form; texts by their record lengths; the comment by its 16-bit length.
std::vector<InventoryColumn> makeColumns(int category) {
  std::vector<InventoryColumn> c;
  c.push_back({kColName, inventoryCategoryName(category), 50, false});
  c.push_back({kColQty, "Qty", -2, true});
  c.push_back({kColUnits, "Units", 10, false});
  c.push_back({kColCost, "Cost", -2, true});
  if (category == INV_MALT) {
    c.push_back({kColExtract, "Extract", -2, true});
    c.push_back({kColColor, "Color", -2, true});
    c.push_back({kColMash, "Mash", 3, false});
  } else if (category == INV_HOPS) {
    c.push_back({kColAlpha, "Alpha %", -2, true});
  } else if (category == INV_YEAST) {
    c.push_back({kColAtten, "Atten %", -2, true});
    c.push_back({kColType, "Type", 10, false});
  }
  c.push_back({kColVintage, "Vintage", 50, false});
  c.push_back({kColReorderThresh, "Reorder At", -2, true});
  c.push_back({kColReorderQty, "Reorder Qty", -2, true});
  c.push_back({kColComments, "Comments", 32767, false});
  return c;
}

double moneyCell(const std::string& text) {
  // Past the currency sign; digit grouping would stop the leading number at the first comma.
  std::string t = trim(text);
  if (!t.empty() && (t[0] == '$' || t[0] == '(')) t = t.substr(1);
  return lenientValue(replaceAll(t, ",", ""));
}

int unitIndex(int category, const std::string& text) {
  const StringList& units = inventoryUnits(category);
  for (size_t i = 0; i < units.size(); ++i)
    if (units[i] == text) return static_cast<int>(i);
  // Not one of the names as the list writes them: the nearest reading, else the first unit.
  return findInList(units, static_cast<int>(units.size()) - 1, text, 0);
}

}  // namespace

const StringList& inventoryCategoryNames() {
  static const StringList names = {"Malt", "Hops", "Other", "Yeast", "Supplies"};
  return names;
}

const std::string& inventoryCategoryName(int category) { return listText(inventoryCategoryNames(), category); }

const char* inventoryFileName(int category) {
  switch (category) {
    case INV_MALT: return kInvMaltFile;
    case INV_HOPS: return kInvHopsFile;
    case INV_OTHER: return kInvOtherFile;
    case INV_YEAST: return kInvYeastFile;
    case INV_SUPPLIES: return kInvSuppliesFile;
    default: return "";
  }
}

const StringList& inventoryUnits(int category) {
  const Measures& m = measures();
  if (category == INV_MALT || category == INV_HOPS) return m.weightUnits;
  if (category == INV_YEAST) return m.yeastUnits;
  return m.otherUnits;
}

int parseInventoryCategory(std::string_view text) {
  std::string t = trim(text);
  if (t.size() == 1 && t[0] >= '0' && t[0] <= '4') return t[0] - '0';
  const StringList& names = inventoryCategoryNames();
  for (size_t i = 0; i < names.size(); ++i)
    if (iequals(names[i], t)) return static_cast<int>(i);
  return -1;
}

const std::vector<InventoryColumn>& inventoryColumns(int category) {
  static const std::array<std::vector<InventoryColumn>, kInventoryCategories> all = {
      makeColumns(0), makeColumns(1), makeColumns(2), makeColumns(3), makeColumns(4)};
  if (category < 0 || category >= kInventoryCategories) return all[0];
  return all[static_cast<size_t>(category)];
}

const StringList& inventoryReportHeads(int category) {
  static const std::array<StringList, kInventoryCategories> heads = {
      StringList{"Variety", "Qty", "Units", "Vintage", "Color", "Extract", "Notes"},
      StringList{"Variety", "Qty", "Units", "Vintage", "Alpha %", "Notes"},
      StringList{"Item", "Qty", "Units", "Vintage", "Notes"},
      StringList{"Variety", "Qty", "Units", "Vintage", "Type", "Atten", "Notes"},
      StringList{"Item", "Qty", "Units", "Vintage", "Notes"}};
  if (category < 0 || category >= kInventoryCategories) return heads[0];
  return heads[static_cast<size_t>(category)];
}

// ---- Lists -------------------------------------------------------------------------------------

InventoryList::InventoryList(int category) : category_(category) {}

int InventoryList::columnIndex(std::string_view key) const {
  const auto& cols = columns();
  for (size_t i = 0; i < cols.size(); ++i)
    if (key == cols[i].key) return static_cast<int>(i);
  return -1;
}

const std::string& InventoryList::cell(size_t row, std::string_view key) const {
  int c = columnIndex(key);
  if (c < 0 || row >= rows.size() || static_cast<size_t>(c) >= rows[row].cells.size()) return kEmpty;
  return rows[row].cells[static_cast<size_t>(c)];
}

void InventoryList::setCell(size_t row, std::string_view key, std::string text) {
  int c = columnIndex(key);
  if (c < 0 || row >= rows.size()) return;
  auto& cells = rows[row].cells;
  if (cells.size() < columns().size()) cells.resize(columns().size());
  cells[static_cast<size_t>(c)] = std::move(text);
}

size_t InventoryList::addRow(const std::string& name) {
  InventoryRow r;
  r.key = "new";
  r.cells.assign(columns().size(), std::string());
  r.cells[0] = name;
  rows.push_back(std::move(r));
  return rows.size() - 1;
}

Inventory::Inventory()
    : lists{InventoryList(INV_MALT), InventoryList(INV_HOPS), InventoryList(INV_OTHER), InventoryList(INV_YEAST),
            InventoryList(INV_SUPPLIES)} {}

// ---- Records -----------------------------------------------------------------------------------

size_t inventoryRecordLength(int category) {
  if (category == INV_MALT) return 200;
  if (category == INV_HOPS || category == INV_YEAST) return 174;
  return 170;
}

std::string inventoryHeaderBytes() {
  std::string h(kInventoryHeaderLength, '\0');
  putI16(h, 0, 200);
  h[2] = '\r';
  putText(h, 3, 70, "Home Brewing Inventory Data");
  h[73] = '\x1A';
  return h;
}

std::string encodeInventoryItem(int category, const InventoryItem& it) {
  // Fields a kind does not use stay zero bytes, as an unfilled local record holds them.
  const size_t len = inventoryRecordLength(category);
  std::string r(len, '\0');
  putI16(r, 0, kControlStart);
  putText(r, 2, 50, it.name);
  if (category == INV_MALT) {
    putF64(r, 52, it.qty);
    putI16(r, 60, it.units);
    putF64(r, 62, it.cost);
    putF64(r, 70, it.extract);
    putI16(r, 78, 1);
    putF64(r, 80, it.color);
    putI16(r, 88, 1);
    putI16(r, 90, it.mash);
    putF64(r, 102, it.reorderThresh);
    putF64(r, 110, it.reorderQty);
    putText(r, 118, 50, it.vintage);
  } else {
    putF32(r, 52, static_cast<float>(it.qty));
    putI16(r, 56, it.units);
    putF32(r, 58, static_cast<float>(it.cost));
    size_t off = 62;
    if (category == INV_HOPS || category == INV_YEAST) {
      putF32(r, 62, static_cast<float>(category == INV_HOPS ? it.alpha : it.atten));
      if (category == INV_YEAST) putText(r, 66, 10, it.type);
      off = 66;
    }
    // The reorder pair follows a text of 10 (the yeast type, unused elsewhere).
    putF64(r, off + 10, it.reorderThresh);
    putF64(r, off + 18, it.reorderQty);
    putText(r, off + 26, 50, it.vintage);
  }
  putI16(r, len - 2, kControlEnd);
  return r;
}

InventoryItem decodeInventoryItem(int category, std::string_view r) {
  InventoryItem it;
  if (r.size() < inventoryRecordLength(category)) return it;
  it.name = getText(r, 2, 50);
  if (category == INV_MALT) {
    it.qty = getF64(r, 52);
    it.units = getI16(r, 60);
    it.cost = getF64(r, 62);
    it.extract = getF64(r, 70);
    it.color = getF64(r, 80);
    it.mash = getI16(r, 90);
    it.reorderThresh = getF64(r, 102);
    it.reorderQty = getF64(r, 110);
    it.vintage = getText(r, 118, 50);
    return it;
  }
  it.qty = getF32(r, 52);
  it.units = getI16(r, 56);
  it.cost = getF32(r, 58);
  size_t off = 62;
  if (category == INV_HOPS || category == INV_YEAST) {
    (category == INV_HOPS ? it.alpha : it.atten) = getF32(r, 62);
    if (category == INV_YEAST) it.type = getText(r, 66, 10);
    off = 66;
  }
  it.reorderThresh = getF64(r, off + 10);
  it.reorderQty = getF64(r, off + 18);
  it.vintage = getText(r, off + 26, 50);
  return it;
}

bool inventoryRecordValid(int category, std::string_view r) {
  const size_t len = inventoryRecordLength(category);
  return r.size() >= len && getI16(r, 0) == kControlStart && getI16(r, len - 2) == kControlEnd;
}

std::string inventoryQtyText(double qty) {
  std::string t = formatNumber(qty, "0.0#");
  if (t.size() < 7) t.insert(0, 7 - t.size(), ' ');
  return t;
}

std::vector<std::string> inventoryRowCells(int category, const InventoryItem& it, const std::string& comment) {
  InventoryList l(category);
  l.rows.push_back({"", std::vector<std::string>(l.columns().size())});
  l.setCell(0, kColName, trim(it.name));
  l.setCell(0, kColQty, inventoryQtyText(it.qty));
  l.setCell(0, kColUnits, listText(inventoryUnits(category), it.units));
  l.setCell(0, kColCost, formatNumber(it.cost, "Currency"));
  l.setCell(0, kColExtract, formatNumber(it.extract, "0.000"));
  l.setCell(0, kColColor, formatNumber(it.color, "0.0"));
  l.setCell(0, kColMash, it.mash == 1 ? "Yes" : "No");
  l.setCell(0, kColAlpha, formatNumber(it.alpha, "0.0"));
  l.setCell(0, kColAtten, formatNumber(it.atten * 100.0, "0.#"));
  l.setCell(0, kColType, trim(it.type));
  l.setCell(0, kColVintage, trim(it.vintage));
  if (it.reorderThresh >= 0) {
    l.setCell(0, kColReorderThresh, formatNumber(it.reorderThresh, "0.##"));
    l.setCell(0, kColReorderQty, formatNumber(it.reorderQty, "0.##"));
  } else {
    // A blank threshold was saved as -1; it comes back as a cell that is not blank.
    l.setCell(0, kColReorderThresh, "0.");
    l.setCell(0, kColReorderQty, "0.");
  }
  l.setCell(0, kColComments, comment);
  return l.rows[0].cells;
}

InventoryItem inventoryItemFromRow(int category, const InventoryRow& row) {
  InventoryList l(category);
  l.rows.push_back(row);
  auto num = [&](const char* key) { return lenientValue(l.cell(0, key)); };
  InventoryItem it;
  it.name = l.cell(0, kColName).substr(0, 50);
  it.qty = num(kColQty);
  it.units = unitIndex(category, l.cell(0, kColUnits));
  it.cost = moneyCell(l.cell(0, kColCost));
  it.extract = num(kColExtract);
  it.color = num(kColColor);
  it.mash = l.cell(0, kColMash) == "Yes" ? 1 : 0;
  it.alpha = num(kColAlpha);
  it.atten = num(kColAtten) / 100.0;
  it.type = l.cell(0, kColType).substr(0, 10);
  it.vintage = l.cell(0, kColVintage).substr(0, 50);
  if (trim(l.cell(0, kColReorderThresh)).empty()) {
    it.reorderThresh = -1;
    it.reorderQty = -1;
  } else {
    it.reorderThresh = num(kColReorderThresh);
    it.reorderQty = num(kColReorderQty);
  }
  return it;
}

// ---- Load and save ---------------------------------------------------------------------------

std::string InventoryStore::functionName(int category, bool saving) const {
  static const char* const kinds[kInventoryCategories] = {"Malt", "Hops", "Other", "Yeast", "Supply"};
  return std::string("frmInventory!") + (saving ? "save" : "load") + kinds[category] + "Data";
}

bool InventoryStore::saveInventory(int category) {
  if (category < 0 || category >= kInventoryCategories) return false;
  return save(category);
}

bool InventoryStore::load(int category) {
  if (category < 0 || category >= kInventoryCategories) return false;
  InventoryList& list = inventory_.list(category);
  list.clear();
  lastBadRecords = 0;
  const std::string path = folder_.dataFile(inventoryFileName(category));
  const std::string fn = functionName(category, false);
  // Opening for byte access creates a missing file empty.
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) f = std::fopen(path.c_str(), "a+b");
  if (!f) {
    errors_.reportFileError(fileErrorFromErrno(errno, path), 0, fn);
    return false;
  }
  std::string bytes;
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) bytes.append(buf, n);
  std::fclose(f);

  if (bytes.size() < kInventoryHeaderLength) {
    errors_.reportError(ERR_MISSING_INVENTORY, 0, fn, path);
    return false;
  }
  if (getI16(bytes, 0) != kControlStart) {
    errors_.reportError(ERR_INVENTORY_FORMAT, 1, fn, path);
    return false;
  }
  const size_t len = inventoryRecordLength(category);
  size_t pos = kInventoryHeaderLength;
  long item = 0, firstBad = 0;
  while (pos < bytes.size()) {
    ++item;
    std::string_view rec = std::string_view(bytes).substr(pos, len);
    pos += len;
    // The comment length follows, taken as it stands even after a bad record.
    int commentLength = pos + 2 <= bytes.size() ? getI16(bytes, pos) : 0;
    pos = std::min(pos + 2, bytes.size());
    std::string comment;
    if (commentLength >= 1) {
      size_t take = std::min(static_cast<size_t>(commentLength), bytes.size() - pos);
      comment = bytes.substr(pos, take);
      pos += take;
    }
    if (!inventoryRecordValid(category, rec)) {
      ++lastBadRecords;
      if (firstBad == 0) firstBad = item;
      continue;
    }
    InventoryRow row;
    row.cells = inventoryRowCells(category, decodeInventoryItem(category, rec), comment);
    list.rows.push_back(std::move(row));
  }
  if (lastBadRecords > 0) errors_.reportError(ERR_INVENTORY_CODE, firstBad, fn, path);
  return lastBadRecords == 0;
}

bool InventoryStore::save(int category) {
  if (category < 0 || category >= kInventoryCategories) return false;
  const InventoryList& list = inventory_.list(category);
  const std::string path = folder_.dataFile(inventoryFileName(category));
  const std::string fn = functionName(category, true);
  std::string bytes = inventoryHeaderBytes();
  for (const InventoryRow& row : list.rows) {
    bytes += encodeInventoryItem(category, inventoryItemFromRow(category, row));
    std::string comment = trim(list.columnIndex(kColComments) >= 0 && row.cells.size() == list.columns().size()
                                   ? row.cells.back()
                                   : std::string());
    if (comment.size() > 32767) comment.resize(32767);
    std::string lengthField(2, '\0');
    putI16(lengthField, 0, static_cast<int>(comment.size()));
    bytes += lengthField + comment;
  }
  // A new file first; the old one is replaced only by a whole new one.
  const std::string temp = path + ".new";
  std::FILE* f = std::fopen(temp.c_str(), "wb");
  if (!f) {
    errors_.reportFileError(fileErrorFromErrno(errno, path), 0, fn);
    return false;
  }
  bool ok = std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  int err = errno;
  if (std::fclose(f) != 0 && ok) {
    ok = false;
    err = errno;
  }
  if (ok && std::rename(temp.c_str(), path.c_str()) != 0) {
    ok = false;
    err = errno;
  }
  if (!ok) {
    std::remove(temp.c_str());
    errors_.reportFileError(fileErrorFromErrno(err, path), 0, fn);
  }
  return ok;
}

void loadInventories(const ProgramFolder& folder, ErrorLog& errors, Inventory& inventory) {
  InventoryStore store(folder, errors, inventory);
  for (int c = 0; c < kInventoryCategories; ++c) {
    const std::string path = folder.dataFile(inventoryFileName(c));
    if (!fileExists(path)) {
      inventory.list(c).clear();
      store.save(c);  // an empty list: the header alone
    }
    store.load(c);
  }
}

}  // namespace zy
