#include "core/measures.h"

#include <cmath>

#include "core/text.h"

namespace zy {

namespace {
Measures build() {
  Measures m{};
  m.unitTypes = {"US Measures", "Metric Measures", "Imperial Measures"};
  m.weightUnits = {"Lbs", "Oz", "Kg", "Gr"};
  m.otherUnits = {"Lbs",    "Oz", "Kg",      "Gr",     "Each",    "Tsp",     "US Gal",
                  "US Qts", "US Fl Oz", "Liters", "mL", "Imp Gal", "Imp Qts", "Imp Fl Oz"};
  m.yeastUnits = {"Packet", "Slant", "Starter", "Tube"};
  m.volumeUnits = {"US Barrels", "US Gallons",  "US Quarts",   "HectoLiters",
                   "Liters",     "Imp Barrels", "Imp Gallons", "Imp Quarts"};
  m.recipeTypes = {"Ale", "Lager", "Mead", "Cider", "Sake", "Wine", "Other"};
  m.mashTypes = {"No Mash", "Partial", "Infusion", "Step Infusion", "Decoction", "Other"};
  m.fermentStages = {"Primary", "Secondary", "Tertiary"};
  m.timeUnits = {"Days", "Weeks", "Months"};
  m.vessels = {"Plastic", "Glass", "Stainless"};
  m.batchStages = {"New", "Primary", "Secondary", "Tertiary", "Bottled"};

  const double w[4][4] = {{1.0, 16.0, 0.4535924, 453.5924},
                          {0.0625, 1.0, 0.028349525, 28.349525},
                          {2.204622476, 35.2739596, 1.0, 1000.0},
                          {0.002204622476, 0.0352739596, 0.001, 1.0}};
  // Stored entries, deliberately not derived: the pairs are not exact inverses.
  const double v[8][8] = {
      {1.0, 31.0, 124.0, 1.17347772, 117.347772, 0.717024697082, 25.812889095, 103.25155638},
      {0.032258064516, 1.0, 4.0, 0.037854118, 3.7854118, 0.023129828938, 0.832673841773, 3.330695367091},
      {0.008064516, 0.25, 1.0, 0.0094635295, 0.94635295, 0.005782457235, 0.208168460443, 0.832673841773},
      {0.852167862207, 26.417203728418, 105.668814913674, 1.0, 100.0, 0.611025437035, 21.996915733256,
       87.98766293302},
      {0.008521678622, 0.264172037284, 1.056688149137, 0.01, 1.0, 0.00611025437, 0.219969157333, 0.87987662933},
      {1.3946521, 43.23421512, 172.93686048, 1.6365930768, 163.65930768, 1.0, 36.0, 144.0},
      {0.038740336129, 1.20095042, 4.80380168, 0.0454609188, 4.54609188, 0.02777778, 1.0, 4.0},
      {0.009685084032, 0.300237605, 1.20095042, 0.0113652297, 1.13652297, 0.0069444444, 0.25, 1.0}};
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) m.weightConvert[i][j] = w[i][j];
  for (int i = 0; i < 8; ++i)
    for (int j = 0; j < 8; ++j) m.volume_convert[i][j] = v[i][j];
  return m;
}
}  // namespace

const Measures& measures() {
  static const Measures m = build();
  return m;
}

void initMeasures() { (void)measures(); }

int findInList(const StringList& list, int lastIndex, std::string_view text, int defaultIndex) {
  std::string t = lower(trim(text));
  for (int i = 0; i <= lastIndex && i < static_cast<int>(list.size()); ++i)
    if (lower(list[i]) == t) return i;
  return defaultIndex;
}

double roundQuantity(double x) {
  if (x <= 0.5) return x;
  return std::nearbyint((x + 0.005) * 20.0) / 20.0;  // whole-number rounding, halves to even
}

const std::string& listText(const StringList& list, int i) {
  static const std::string empty;
  return i >= 0 && i < static_cast<int>(list.size()) ? list[i] : empty;
}

std::string temperatureLabel(int unitType) { return unitType == METRIC_MEASURES ? "\xB0" "C" : "\xB0" "F"; }

}  // namespace zy
