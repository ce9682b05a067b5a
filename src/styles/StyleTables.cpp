#include "styles/StyleTables.h"

#include <algorithm>

#include "core/records.h"
#include "core/text.h"

namespace zy {

const std::array<std::string, kStyleSourceCount>& StyleSourceNames() {
  static const std::array<std::string, kStyleSourceCount> names{"Custom", "AOB", "BJCP"};
  return names;
}

std::string styleSourceName(int source) {
  if (source < 0 || source >= kStyleSourceCount) return {};
  return StyleSourceNames()[static_cast<size_t>(source)];
}

namespace {
// The reserved bytes as written: what the row holds, cut or padded with zero bytes to 18.
std::string reservedBytes(const std::string& held) {
  std::string r = held.substr(0, kRecordReservedWidth);
  r.resize(kRecordReservedWidth, '\0');
  return r;
}
}  // namespace

// Category record layout: 0 start code, 2 source, 4 ID (20), 24 Category (50),
// 74 SubCategory (50), 124 Category Index, 126 reserved (18), 144 end code.
std::string packCategoryRecord(const BeerCategoryRecord& r) {
  std::string b(kCategoryRecordLength, '\0');
  putI16(b, 0, r.controlStart);
  putI16(b, 2, r.source);
  putText(b, 4, kCategoryIdWidth, r.id);
  putText(b, 24, kCategoryNameWidth, r.category);
  putText(b, 74, kSubCategoryWidth, r.subCategory);
  putI16(b, 124, r.categoryIndex);
  b.replace(126, kRecordReservedWidth, reservedBytes(r.reserved));
  putI16(b, 144, r.controlEnd);
  return b;
}

BeerCategoryRecord unpackCategoryRecord(std::string_view b) {
  BeerCategoryRecord r;
  if (b.size() < kCategoryRecordLength) return r;
  r.controlStart = getI16(b, 0);
  r.source = getI16(b, 2);
  r.id = getText(b, 4, kCategoryIdWidth);
  r.category = getText(b, 24, kCategoryNameWidth);
  r.subCategory = getText(b, 74, kSubCategoryWidth);
  r.categoryIndex = getI16(b, 124);
  r.reserved = std::string(b.substr(126, kRecordReservedWidth));
  r.controlEnd = getI16(b, 144);
  return r;
}

// Style record layout: 0 start code, 2 source, 4 Style ID (20), 24 Style Name (60),
// 84 Category Index, 86..158 ten doubles (OG, FG, IBU, SRM, alcohol; low then high),
// 166 the style's key, 168 reserved (18), 186 end code.
std::string packStyleRecord(const BeerStyleRecord& r) {
  std::string b(kStyleRecordLength, '\0');
  putI16(b, 0, r.controlStart);
  putI16(b, 2, r.source);
  putText(b, 4, kStyleIdWidth, r.styleId);
  putText(b, 24, kStyleNameWidth, r.styleName);
  putI16(b, 84, r.categoryIndex);
  putF64(b, 86, r.ogLow);
  putF64(b, 94, r.ogHigh);
  putF64(b, 102, r.fgLow);
  putF64(b, 110, r.fgHigh);
  putF64(b, 118, r.ibuLow);
  putF64(b, 126, r.ibuHigh);
  putF64(b, 134, r.srmLow);
  putF64(b, 142, r.srmHigh);
  putF64(b, 150, r.alcoholLow);
  putF64(b, 158, r.alcoholHigh);
  putI16(b, 166, r.styleIndex);
  b.replace(168, kRecordReservedWidth, reservedBytes(r.reserved));
  putI16(b, 186, r.controlEnd);
  return b;
}

BeerStyleRecord unpackStyleRecord(std::string_view b) {
  BeerStyleRecord r;
  if (b.size() < kStyleRecordLength) return r;
  r.controlStart = getI16(b, 0);
  r.source = getI16(b, 2);
  r.styleId = getText(b, 4, kStyleIdWidth);
  r.styleName = getText(b, 24, kStyleNameWidth);
  r.categoryIndex = getI16(b, 84);
  r.ogLow = getF64(b, 86);
  r.ogHigh = getF64(b, 94);
  r.fgLow = getF64(b, 102);
  r.fgHigh = getF64(b, 110);
  r.ibuLow = getF64(b, 118);
  r.ibuHigh = getF64(b, 126);
  r.srmLow = getF64(b, 134);
  r.srmHigh = getF64(b, 142);
  r.alcoholLow = getF64(b, 150);
  r.alcoholHigh = getF64(b, 158);
  r.styleIndex = getI16(b, 166);
  r.reserved = std::string(b.substr(168, kRecordReservedWidth));
  r.controlEnd = getI16(b, 186);
  return r;
}

std::string packStyleComment(const std::string& comment) {
  const size_t n = std::min<size_t>(comment.size(), 32767);
  std::string b(2, '\0');
  putI16(b, 0, static_cast<int>(n));
  b.append(comment, 0, n);
  return b;
}

void StyleTables::clear() {
  BeerCategories.fill(BeerCategoryRecord{});
  BeerStyles.fill(BeerStyleRecord{});
  BeerCategoryCount = 0;
  BeerStyleCount = 0;
  CurrentStyleIndex = -1;
}

const BeerStyleRecord* StyleTables::currentStyle() const {
  if (CurrentStyleIndex < 0 || CurrentStyleIndex >= BeerStyleCount || CurrentStyleIndex >= kStyleTableRows)
    return nullptr;
  return &BeerStyles[static_cast<size_t>(CurrentStyleIndex)];
}

void initStyleFilter(StyleTables& t) {
  t.StyleSourceShown = {true, true, true};
  t.StyleFilterText.clear();
}

int findCategoryRow(const StyleTables& t, int key) {
  const int n = std::clamp(t.BeerCategoryCount, 0, kCategoryTableRows);
  for (int i = 0; i < n; ++i)
    if (t.BeerCategories[static_cast<size_t>(i)].categoryIndex == key) return i;
  return -1;
}

int findStyleRow(const StyleTables& t, int key) {
  const int n = std::clamp(t.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < n; ++i)
    if (t.BeerStyles[static_cast<size_t>(i)].styleIndex == key) return i;
  return -1;
}

std::string categoryLabel(const StyleTables& t, int number, bool isKey) {
  const int row = isKey ? findCategoryRow(t, number) : number;
  if (row < 0 || row >= kCategoryTableRows) return "<None>";
  const BeerCategoryRecord& c = t.BeerCategories[static_cast<size_t>(row)];
  const std::string id = trim(c.id), name = trim(c.category), sub = trim(c.subCategory);
  std::string label = name;
  if (!id.empty()) label = id + " " + label;
  if (!sub.empty()) label += " - " + sub;
  return label;
}

bool rangeOutOfBounds(double low, double high, double minimum, double maximum) {
  return !(minimum <= low && high <= maximum && low <= high);
}

}  // namespace zy
