#pragma once
// The fixed vocabulary of measures. A unit code in a file is the zero-based position in one of
// these lists, so the order of every list is part of the file formats.
#include <string>
#include <string_view>
#include <vector>

namespace zy {

using StringList = std::vector<std::string>;

struct Measures {
  StringList unitTypes;        // "US Measures", "Metric Measures", "Imperial Measures"
  StringList weightUnits;      // malt and hops: "Lbs", "Oz", "Kg", "Gr"
  StringList otherUnits;       // fourteen; the first four are the weight units
  StringList yeastUnits;       // "Packet", "Slant", "Starter", "Tube"
  StringList volumeUnits;      // "US Barrels" ... "Imp Quarts"
  StringList recipeTypes;      // "Ale" ... "Other"
  StringList mashTypes;        // "No Mash" ... "Other"
  StringList fermentStages;    // "Primary", "Secondary", "Tertiary"
  StringList timeUnits;        // "Days", "Weeks", "Months"
  StringList vessels;          // "Plastic", "Glass", "Stainless"
  StringList batchStages;      // "New" ... "Bottled"
  double weightConvert[4][4];  // weightConvert[from][to]: `to` units in one `from` unit
  double volume_convert[8][8];
};

// Unit systems.
constexpr int US_MEASURES = 0, METRIC_MEASURES = 1, IMPERIAL_MEASURES = 2;
// Weight units.
constexpr int UNIT_LBS = 0, UNIT_OZ = 1, UNIT_KG = 2, UNIT_GR = 3;
// Volume units.
constexpr int US_BBL_CONST = 0, US_GAL_CONST = 1, US_QTS_CONST = 2, HECTOLITER_CONST = 3, LITER_CONST = 4,
              IMPERIAL_BBL_CONST = 5, IMPERIAL_GAL_CONST = 6, IMPERIAL_QTS_CONST = 7;
// Item kinds of a recipe.
constexpr int KIND_MALT = 0, KIND_HOPS = 1, KIND_OTHER = 2, KIND_YEAST = 3;

// The one set of tables, filled on first use (initMeasures).
const Measures& measures();
void initMeasures();

// Index of the first entry (0..lastIndex) equal to the trimmed text, ignoring case, else
// defaultIndex.
int findInList(const StringList& list, int lastIndex, std::string_view text, int defaultIndex);

// A converted quantity over a half is brought to a multiple of 0.05.
double roundQuantity(double x);

// The entry at index i, or empty text when i lies outside the list (codes in files are trusted
// but never allowed to read past a table).
const std::string& listText(const StringList& list, int i);

// The temperature label of a unit system: "°C" for Metric, "°F" otherwise (8-bit text).
std::string temperatureLabel(int unitType);

}  // namespace zy
