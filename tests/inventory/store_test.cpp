// The five stock files: exact bytes of each kind, the display forms a save reads back, and the
// reports of missing, unknown and corrupted files.
#include <gtest/gtest.h>

#include <cstring>

#include "core/paths.h"
#include "inventory/InventoryStore.h"
#include "support/TestSupport.h"

namespace zy {
namespace {

using test::Bench;
using test::readFile;
using test::shownLines;
using test::writeFile;

// Record bytes as another program following the layouts would write them.
struct Bytes {
  std::string b;
  Bytes& i16(int v) { return put(static_cast<int16_t>(v)); }
  Bytes& f32(float v) { return put(v); }
  Bytes& f64(double v) { return put(v); }
  Bytes& text(const std::string& s, size_t n) {
    b += s;
    b.append(n - s.size(), ' ');
    return *this;
  }
  Bytes& zeros(size_t n) {
    b.append(n, '\0');
    return *this;
  }
  template <class T>
  Bytes& put(T v) {
    char c[sizeof v];
    std::memcpy(c, &v, sizeof v);
    b.append(c, sizeof v);
    return *this;
  }
};

std::string header() {
  return Bytes().i16(200).b + "\r" + Bytes().text("Home Brewing Inventory Data", 70).b + "\x1A";
}

struct Store {
  Bench bench;
  InventoryStore store{bench.wb->folder, bench.wb->errors, bench.wb->inventory};
  InventoryList& list(int c) { return bench.wb->inventory.list(c); }
  std::string file(int c) { return bench.wb->folder.dataFile(inventoryFileName(c)); }
  void row(int c, std::vector<std::pair<const char*, std::string>> cells) {
    size_t r = list(c).addRow("");
    for (auto& [k, v] : cells) list(c).setCell(r, k, v);
  }
};

TEST(InventoryStore, EachKindWritesItsRecordByteForByte) {
  Store s;
  s.row(INV_MALT, {{kColName, "Pale Ale"}, {kColQty, "  10.25"}, {kColUnits, "Kg"}, {kColCost, "$1.60"},
                   {kColExtract, "1.037"}, {kColColor, "3.5"}, {kColMash, "Yes"}, {kColVintage, "2025"},
                   {kColReorderThresh, "2"}, {kColReorderQty, "5"}, {kColComments, " base "}});
  s.row(INV_HOPS, {{kColName, "Cascade"}, {kColQty, "4.5"}, {kColUnits, "Oz"}, {kColCost, "$2.25"},
                   {kColAlpha, "5.5"}, {kColVintage, "2024"}, {kColReorderThresh, "1"}, {kColReorderQty, "2"}});
  s.row(INV_OTHER, {{kColName, "Irish Moss"}, {kColQty, "1"}, {kColUnits, "Tsp"}, {kColCost, "$0.50"},
                    {kColReorderThresh, ""}, {kColReorderQty, "3"}});
  s.row(INV_YEAST, {{kColName, "London Ale"}, {kColQty, "2"}, {kColUnits, "Slant"}, {kColCost, "$6.00"},
                    {kColAtten, "75"}, {kColType, "Liquid"}, {kColReorderThresh, "0."}, {kColReorderQty, "0."}});
  s.row(INV_SUPPLIES, {{kColName, "Caps"}, {kColQty, "144"}, {kColUnits, "Each"}, {kColCost, "$0.04"},
                       {kColVintage, "box"}, {kColReorderThresh, "50"}, {kColReorderQty, "144"}});
  for (int c = 0; c < kInventoryCategories; ++c) ASSERT_TRUE(s.store.saveInventory(c));
  EXPECT_FALSE(s.store.saveInventory(5));

  const std::string noComment = Bytes().i16(0).b;
  const std::vector<std::string> expected = {
      Bytes().i16(200).text("Pale Ale", 50).f64(10.25).i16(2).f64(1.6).f64(1.037).i16(1).f64(3.5).i16(1).i16(1)
              .zeros(10).f64(2).f64(5).text("2025", 50).zeros(30).i16(299).i16(4).b + "base",
      Bytes().i16(200).text("Cascade", 50).f32(4.5f).i16(1).f32(2.25f).f32(5.5f).zeros(10).f64(1).f64(2)
              .text("2024", 50).zeros(30).i16(299).b + noComment,
      // A blank threshold makes both reorder fields -1, whatever the quantity cell holds.
      Bytes().i16(200).text("Irish Moss", 50).f32(1).i16(5).f32(0.5f).zeros(10).f64(-1).f64(-1).text("", 50)
              .zeros(30).i16(299).b + noComment,
      Bytes().i16(200).text("London Ale", 50).f32(2).i16(1).f32(6).f32(0.75f).text("Liquid", 10).f64(0).f64(0)
              .text("", 50).zeros(30).i16(299).b + noComment,
      Bytes().i16(200).text("Caps", 50).f32(144).i16(4).f32(0.04f).zeros(10).f64(50).f64(144).text("box", 50)
              .zeros(30).i16(299).b + noComment};
  const size_t lengths[] = {200, 174, 170, 174, 170};
  for (int c = 0; c < kInventoryCategories; ++c) {
    SCOPED_TRACE(inventoryCategoryName(c));
    EXPECT_EQ(expected[static_cast<size_t>(c)].size(), lengths[c] + (c == 0 ? 6 : 2));
    EXPECT_EQ(readFile(s.file(c)), header() + expected[static_cast<size_t>(c)]);
  }
}

TEST(InventoryStore, LoadShowsTheDisplayFormsAndASaveReadsThemBack) {
  Store s;
  s.row(INV_OTHER, {{kColName, "Gypsum"}, {kColQty, "0.1"}, {kColUnits, "Gr"}, {kColCost, "$1,234.50"},
                    {kColReorderThresh, ""}, {kColReorderQty, "7"}});
  s.row(INV_MALT, {{kColName, "Munich"}, {kColQty, "1.005"}, {kColUnits, "Lbs"}, {kColMash, "No"}});
  s.row(INV_YEAST, {{kColName, "Lager"}, {kColQty, "1"}, {kColUnits, "Packet"}, {kColAtten, "73"},
                    {kColReorderThresh, "1.5"}, {kColReorderQty, "2.25"}});
  for (int c : {INV_OTHER, INV_MALT, INV_YEAST}) ASSERT_TRUE(s.store.save(c));
  for (int c : {INV_OTHER, INV_MALT, INV_YEAST}) ASSERT_TRUE(s.store.load(c));

  // Single-precision 0.1 still shows as 0.1; -1 reorder fields come back as "0." in both cells.
  EXPECT_EQ(s.list(INV_OTHER).rows[0].cells,
            (std::vector<std::string>{"Gypsum", "    0.1", "Gr", "$1,234.50", "", "0.", "0.", ""}));
  EXPECT_EQ(s.list(INV_MALT).rows[0].cells,
            (std::vector<std::string>{"Munich", "   1.01", "Lbs", "$0.00", "0.000", "0.0", "No", "", "0.", "0.", ""}));
  EXPECT_EQ(s.list(INV_YEAST).rows[0].cells,
            (std::vector<std::string>{"Lager", "    1.0", "Packet", "$0.00", "73.", "", "", "1.5", "2.25", ""}));

  // The next save stores what the cells show: 1.01, and 0 for the thresholds that were blank.
  ASSERT_TRUE(s.store.save(INV_MALT));
  ASSERT_TRUE(s.store.save(INV_OTHER));
  const std::string malt = readFile(s.file(INV_MALT)), other = readFile(s.file(INV_OTHER));
  double qty, thresh;
  std::memcpy(&qty, malt.data() + 74 + 52, 8);
  std::memcpy(&thresh, other.data() + 74 + 72, 8);
  EXPECT_EQ(qty, 1.01);
  EXPECT_EQ(thresh, 0.0);
  EXPECT_TRUE(s.bench.prompter.shown.empty());
}

TEST(InventoryStore, EmptyMissingUnknownAndCorruptedFiles) {
  Store s;
  // An empty list: the 74 bytes of the header, loading as an empty list.
  ASSERT_TRUE(s.store.saveHopsData());
  EXPECT_EQ(readFile(s.file(INV_HOPS)), header());
  s.row(INV_HOPS, {{kColName, "stale"}});
  EXPECT_TRUE(s.store.loadHopsData());
  EXPECT_TRUE(s.list(INV_HOPS).empty());

  // Missing: created empty, reported; a header that does not start with 200: nothing loaded.
  EXPECT_FALSE(s.store.loadYeastData());
  EXPECT_TRUE(fileExists(s.file(INV_YEAST)));
  writeFile(s.file(INV_OTHER), Bytes().i16(201).b + header().substr(2) +
                                   Bytes().i16(200).text("x", 50).zeros(116).i16(299).i16(0).b);
  EXPECT_FALSE(s.store.loadOtherData());
  EXPECT_TRUE(s.list(INV_OTHER).empty());

  // Three supply records, the second with a bad end code and a comment: one report, two rows.
  auto rec = [](const std::string& name, int end) {
    return Bytes().i16(200).text(name, 50).f32(1).i16(4).f32(0).zeros(10).f64(-1).f64(-1).text("", 50).zeros(30)
        .i16(end).b;
  };
  writeFile(s.file(INV_SUPPLIES), header() + rec("Caps", 299) + Bytes().i16(2).b + "ok" + rec("Bad", 300) +
                                      Bytes().i16(3).b + "xyz" + rec("Tubing", 299) + Bytes().i16(0).b);
  EXPECT_FALSE(s.store.loadSupplyData());
  ASSERT_EQ(s.list(INV_SUPPLIES).size(), 2u);
  EXPECT_EQ(s.list(INV_SUPPLIES).cell(0, kColComments), "ok");
  EXPECT_EQ(s.list(INV_SUPPLIES).cell(1, kColName), "Tubing");

  EXPECT_EQ(shownLines(s.bench.prompter),
            (std::vector<std::string>{
                "Error: Missing Inventory File " + s.file(INV_YEAST),
                "Error: Unknown Inventory Format in " + s.file(INV_OTHER) + " at Line 1, No Data Loaded",
                "Error: Corrupted Inventory Record in " + s.file(INV_SUPPLIES) + " at Line 2, Not Loaded"}));
  const std::string log = readFile(s.bench.wb->folder.file(kErrorLog));
  EXPECT_NE(log.find("In Function frmInventory!loadSupplyData"), std::string::npos);
}

TEST(InventoryStore, AFirstStartWritesEmptyFilesQuietly) {
  Store s;
  loadInventories(s.bench.wb->folder, s.bench.wb->errors, s.bench.wb->inventory);
  for (int c = 0; c < kInventoryCategories; ++c) EXPECT_EQ(readFile(s.file(c)), header());
  EXPECT_TRUE(s.bench.prompter.shown.empty());
}

}  // namespace
}  // namespace zy
