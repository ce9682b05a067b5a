// The user defaults: every key of section "Defaults", its spelling, its place in the order of
// reading and the value a first start takes, and what is held in memory from them.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/defaults.h"
#include "support/TestSupport.h"

namespace zy::test {
namespace {

// Answers every read with its fallback and notes (key, fallback) in the order of the reads.
struct RecordingStore : SettingsStore {
  mutable std::vector<std::pair<std::string, std::string>> reads;
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) const override {
    if (section == "Defaults") reads.emplace_back(key, fallback);
    return fallback;
  }
  void write(const std::string&, const std::string&, const std::string&) override {}
};

TEST(Defaults, NinetyFiveKeysReadInOrderWithTheirFirstStartValues) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"User Name", ""}, {"User Initials", ""}, {"User Company", ""}, {"User Phone", ""}, {"User Email", ""},
      {"Auto Update", "1"}, {"Unit Measure", "0"}, {"Recipe Type", "0"}, {"Volume Units", "1"}, {"Malt Units", "0"},
      {"Hops Units", "1"}, {"Other Units", "5"}, {"Yeast Units", "0"}, {"Supply Units", "4"}, {"Sparge Units", "1"},
      {"Short Filenames", "0"}, {"Unix Filenames", "1"}, {"Include Cost", "0"}, {"Mash Eff", "80"},
      {"Boil Time", "60"}, {"Initial Boil", "3.5"}, {"Initial Ferm", "5.0"}, {"Malt Name", "Malt"},
      {"Malt Qty", "1.0"}, {"Malt Cost", "1.00"}, {"Malt Extraction", "1.032"}, {"Malt Color", "4.0"},
      {"Malt Mash", "0"}, {"Hops Name", "Hops"}, {"Hops Qty", "1.0"}, {"Hops Cost", "1.25"}, {"Hops Alpha", "5.5"},
      {"Hops Boil", "60"}, {"Other Name", "Other"}, {"Other Qty", "1.0"}, {"Other Cost", "2.00"},
      {"Yeast Name", "Yeast"}, {"Yeast Qty", "1"}, {"Yeast Cost", "1.50"}, {"Yeast Attenuation", "0.72"},
      {"Supply Name", "Item"}, {"Supply Qty", "1.0"}, {"Supply Cost", "2.00"}, {"Malt Qty Incement", "0.2"},
      {"Malt Cost Incement", "0.05"}, {"Malt Extraction Incement", "0.001"}, {"Malt Color Incement", "1.0"},
      {"Hops Qty Incement", "0.2"}, {"Hops Cost Incement", "0.05"}, {"Hops Alpha Incement", "0.1"},
      {"Hops Boil Incement", "5"}, {"Other Qty Incement", "1"}, {"Other Cost Incement", "0.05"},
      {"Yeast Qty Incement", "1"}, {"Yeast Cost Incement", "0.05"}, {"Yeast Attenuation Incement", "1"},
      {"Supply Qty Incement", "1.0"}, {"Supply Cost Incement", "1.00"}, {"Evaporation Rate", "15"},
      {"Mash Per Lbs", "0.40"}, {"Water Absorption", "0.12"}, {"Sparge Rate", "0.40"}, {"Sparge Temp", "170"},
      {"Left In Kettle", "0.12"}, {"Kettle Capacity", "5.0"}, {"Hold Initial Volume", "1"},
      {"Hold Final Volume", "1"}, {"Full Boil", "0"}, {"ionCa", "0"}, {"ionCl", "0"}, {"ionCO3", "0"}, {"ionMg", "0"},
      {"ionNa", "0"}, {"ionSO4", "0"}, {"Gram Increment", "0.5"}, {"Tsp Increment", "0.5"}, {"Threshold", "25"},
      {"Activate Quillmark", "0"}, {"Quillmark Path", ""}, {"chkTitle", "1"}, {"chkLabel", "0"}, {"chkExtra", "0"},
      {"chkDate", "1"}, {"chkIDCode", "0"}, {"posTitle", "Top"}, {"posLabel", "Center"}, {"posExtra", "Center"},
      {"posDate", "Bottom"}, {"posIDCode", "Bottom"}, {"fontTitle", "24"}, {"fontLabel", "20"}, {"fontExtra", "20"},
      {"fontDate", "12"}, {"fontIDCode", "10"}, {"Extra Text", ""},
  };
  Bench b;
  RecordingStore store;
  Defaults d;
  d.threshold = d.yeastAttenuation = -1;
  loadDefaults(store, d, b.wb->errors);
  EXPECT_EQ(store.reads, expected);
  // "Threshold" is stored as a percent and held as a fraction.
  EXPECT_DOUBLE_EQ(d.threshold, 0.25);
  EXPECT_DOUBLE_EQ(d.yeastAttenuation, 0.72);
  EXPECT_TRUE(b.prompter.shown.empty());
}

}  // namespace
}  // namespace zy::test
