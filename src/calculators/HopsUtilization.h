#pragma once
// The hops utilization curve: the percentage of alpha acid utilized by boil minutes, held in 18
// points at 5-minute steps, with one of three high-gravity adjustment modes. The program-wide
// state lives in the Workbench (`wb.hops`) and is kept in the settings section
// "Hops Utilization". The recipe bitterness computation is its one consumer, through
// lookupUtilization and gravityAdjustmentDivisor.
#include <array>
#include <string>

#include "core/settings.h"

namespace zy {

constexpr int kUtilRows = 18;  // rows 1..18 are 5, 10, ... 90 minutes

// Gravity adjustment modes.
constexpr int GRAVITY_ADJUST_NONE = 0, GRAVITY_ADJUST_RAGER = 1, GRAVITY_ADJUST_TINSETH = 2;

inline constexpr const char* kHopsSection = "Hops Utilization";
inline constexpr const char* kCustomCurveTitle = "Custom Utilization Curve";

// The predefined curves, rows 1..18 at index 0..17.
const std::array<double, kUtilRows>& ragerCurve();
const std::array<double, kUtilRows>& tinsethCurve();
const std::array<double, kUtilRows>& garetzCurve();

// The settings key of row i (1..18): "Utilization 1" ... "Utilization 18".
std::string utilizationKey(int row);

struct HopsUtilization {
  // Index 1..18 as the rows; index 0 is unused and stays 0.
  std::array<double, kUtilRows + 1> UtilTable{};
  std::array<double, kUtilRows + 1> UtilBase{};   // derived: 0, then the row above's value
  std::array<double, kUtilRows + 1> UtilSlope{};  // derived: percent per minute ending at the row
  std::string UtilTitle = "Rager";
  int GravityAdjustment = GRAVITY_ADJUST_RAGER;
  double Factor1 = 1.050;  // gravity at which the adjustment begins
  double Factor2 = 0.200;  // divisor (mode 1) or base of the power (mode 2)
  double Factor3 = 0.020;  // gravity step between the graph's curves

  HopsUtilization();  // the Rager defaults, derived arrays built

  // Rebuilds UtilBase and UtilSlope from UtilTable, each value passing through its decimal text.
  void rebuildDerived();

  // Utilization as a fraction for boil minutes: 0 at 0 minutes or less (and for a value that is
  // no number), straight lines between the rows, row 18 from 90 minutes on.
  double lookupUtilization(double minutes) const;

  // The divisor for the boil-gravity excess (boil gravity - 1): 1.0 up to Factor1 - 1; above it
  // (excess + 1 - Factor1) / Factor2 + 1 in mode 1, 1 / Factor2 ^ (excess - Factor1 + 1) in mode 2,
  // 1.0 in any other mode. Never 0: a result of 0, or one that is no finite number (a zero
  // Factor2), gives 1.0.
  double gravityAdjustmentDivisor(double excess) const;
};

// The boil-gravity excess: (recipe volume / boil volume) * (starting gravity - 1), the ratio
// taken first; 0 when the boil volume is not above 0.
double boilGravityExcess(double recipeVolume, double boilVolume, double gravityPoints);

// Fills the Rager defaults, reads every key of "Hops Utilization", rebuilds the derived arrays.
void LoadHopsUtilization(HopsUtilization& h, const SettingsStore& settings);

// Writes the state's keys (title, the 18 rows, mode, the three factors) as decimal text.
void writeHopsUtilizationSettings(const HopsUtilization& h, SettingsStore& settings);

}  // namespace zy
