#include "calculators/HopsUtilization.h"

#include <cmath>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

const std::array<double, kUtilRows>& ragerCurve() {
  static const std::array<double, kUtilRows> c{5.0,  6.0,  8.0,  10.1, 12.1, 15.3, 18.8, 22.8, 26.9,
                                               28.1, 30.0, 30.0, 30.0, 30.0, 30.0, 30.0, 30.0, 30.0};
  return c;
}

const std::array<double, kUtilRows>& tinsethCurve() {
  static const std::array<double, kUtilRows> c{7.2,  13.1, 17.9, 21.9, 25.1, 27.8, 30.0, 31.7, 33.2,
                                               34.4, 35.4, 36.2, 36.8, 37.3, 37.8, 38.1, 38.4, 38.7};
  return c;
}

const std::array<double, kUtilRows>& garetzCurve() {
  static const std::array<double, kUtilRows> c{0.0,  0.0,  1.0,  4.0,  6.0,  11.0, 13.0, 19.0, 23.0,
                                               24.0, 24.5, 25.0, 25.0, 25.0, 25.0, 25.0, 25.0, 25.0};
  return c;
}

std::string utilizationKey(int row) { return "Utilization " + itos(row); }

HopsUtilization::HopsUtilization() {
  for (int i = 1; i <= kUtilRows; ++i) UtilTable[static_cast<size_t>(i)] = ragerCurve()[static_cast<size_t>(i - 1)];
  rebuildDerived();
}

void HopsUtilization::rebuildDerived() {
  // Each value enters the interpolation through its decimal text, so the segments carry the
  // precision of the shown and stored value, not the last bits of the double.
  std::array<double, kUtilRows + 1> v{};
  for (int i = 1; i <= kUtilRows; ++i) {
    const double x = UtilTable[static_cast<size_t>(i)];
    v[static_cast<size_t>(i)] = std::isfinite(x) ? lenientValue(plainText(x)) : 0.0;
  }
  UtilBase[0] = UtilSlope[0] = 0.0;
  UtilBase[1] = 0.0;
  UtilSlope[1] = v[1] / 5.0;
  for (size_t i = 2; i <= static_cast<size_t>(kUtilRows); ++i) {
    UtilBase[i] = v[i - 1];
    UtilSlope[i] = (v[i] - UtilBase[i]) / 5.0;
  }
}

double HopsUtilization::lookupUtilization(double minutes) const {
  if (std::isnan(minutes) || minutes <= 0) return 0.0;
  double u;
  if (minutes >= 90) {
    u = UtilTable[kUtilRows];
  } else {
    // Minutes from 5k up to 5k + 5 lie on the segment that ends at row k + 1, which starts at
    // UtilBase[k + 1] (row k, or 0 before row 1): on the Rager curve 2.5 minutes is 2.5 percent,
    // 5 minutes row 1's 5.0, and 7.5 minutes halfway from row 1 to row 2, 5.5.
    int k = static_cast<int>(minutes / 5.0);  // 0..17
    if (k < 0) k = 0;
    if (k > kUtilRows - 1) k = kUtilRows - 1;
    const double r = minutes - k * 5.0;
    const size_t row = static_cast<size_t>(k + 1);
    u = r * UtilSlope[row] + UtilBase[row];
  }
  return u / 100.0;
}

double HopsUtilization::gravityAdjustmentDivisor(double excess) const {
  // The adjustment starts above Factor1; up to there, and in every mode, nothing is divided.
  if (Factor1 - 1.0 >= excess) return 1.0;
  double d = 1.0;
  if (GravityAdjustment == GRAVITY_ADJUST_RAGER) {
    d = (excess + 1.0 - Factor1) / Factor2 + 1.0;
  } else if (GravityAdjustment == GRAVITY_ADJUST_TINSETH) {
    d = 1.0 / std::pow(Factor2, excess - Factor1 + 1.0);
  }
  if (d == 0.0 || !std::isfinite(d)) d = 1.0;
  return d;
}

double boilGravityExcess(double recipeVolume, double boilVolume, double gravityPoints) {
  if (!(boilVolume > 0)) return 0.0;
  const double ratio = recipeVolume / boilVolume;
  return ratio * gravityPoints;
}

void LoadHopsUtilization(HopsUtilization& h, const SettingsStore& s) {
  h = HopsUtilization();
  h.UtilTitle = s.read(kHopsSection, "Title", "Rager");
  for (int i = 1; i <= kUtilRows; ++i) {
    const size_t k = static_cast<size_t>(i);
    double v = readDouble(s, kHopsSection, utilizationKey(i), h.UtilTable[k]);
    h.UtilTable[k] = std::isfinite(v) ? v : h.UtilTable[k];
  }
  // The mode is a 16-bit number; text that is none keeps the default.
  const auto mode = strictInt16(s.read(kHopsSection, "Gravity Adjustment", ""));
  h.GravityAdjustment = mode ? *mode : GRAVITY_ADJUST_RAGER;
  auto factor = [&](const char* key, const char* fallback) {
    double v = lenientValue(s.read(kHopsSection, key, fallback));
    return std::isfinite(v) ? v : lenientValue(fallback);
  };
  h.Factor1 = factor("Factor 1", "1.050");
  h.Factor2 = factor("Factor 2", "0.200");
  h.Factor3 = factor("Factor 3", "0.020");
  h.rebuildDerived();
}

void writeHopsUtilizationSettings(const HopsUtilization& h, SettingsStore& s) {
  s.write(kHopsSection, "Title", h.UtilTitle);
  for (int i = 1; i <= kUtilRows; ++i) s.write(kHopsSection, utilizationKey(i), plainText(h.UtilTable[static_cast<size_t>(i)]));
  s.write(kHopsSection, "Gravity Adjustment", itos(h.GravityAdjustment));
  s.write(kHopsSection, "Factor 1", plainText(h.Factor1));
  s.write(kHopsSection, "Factor 2", plainText(h.Factor2));
  s.write(kHopsSection, "Factor 3", plainText(h.Factor3));
}

}  // namespace zy
