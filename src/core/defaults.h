#pragma once
// The user's defaults: section "Defaults" of the settings, mirrored in memory. Read once at
// start; everything reads the in-memory copy; the properties window edits it and writes it back.
#include <string>
#include <vector>

#include "core/settings.h"

namespace zy {

class ErrorLog;

struct Defaults {
  std::string userName, userInitials, userCompany, userPhone, userEmail;
  int autoUpdate = 1, unitMeasure = 0, recipeType = 0, volumeUnits = 1, maltUnits = 0, hopsUnits = 1,
      otherUnits = 5, yeastUnits = 0, supplyUnits = 4, spargeUnits = 1, shortFilenames = 0, unixFilenames = 1,
      includeCost = 0;
  double mashEff = 80, boilTime = 60, initialBoil = 3.5, initialFerm = 5.0;
  std::string maltName;
  double maltQty = 1.0, maltCost = 1.0, maltExtraction = 1.032, maltColor = 4.0;
  int maltMash = 0;
  std::string hopsName;
  double hopsQty = 1.0, hopsCost = 1.25, hopsAlpha = 5.5, hopsBoil = 60;
  std::string otherName;
  double otherQty = 1.0, otherCost = 2.0;
  std::string yeastName;
  double yeastQty = 1, yeastCost = 1.5, yeastAttenuation = 0.72;
  std::string supplyName;
  double supplyQty = 1.0, supplyCost = 2.0;
  double maltQtyIncr = 0.2, maltCostIncr = 0.05, maltExtractionIncr = 0.001, maltColorIncr = 1.0;
  double hopsQtyIncr = 0.2, hopsCostIncr = 0.05, hopsAlphaIncr = 0.1, hopsBoilIncr = 5;
  double otherQtyIncr = 1, otherCostIncr = 0.05;
  double yeastQtyIncr = 1, yeastCostIncr = 0.05, yeastAttenuationIncr = 1;
  double supplyQtyIncr = 1.0, supplyCostIncr = 1.0;
  double evaporationRate = 15, mashPerLbs = 0.40, waterAbsorption = 0.12, spargeRate = 0.40, spargeTemp = 170,
         leftInKettle = 0.12, kettleCapacity = 5.0;
  int holdInitialVolume = 1, holdFinalVolume = 1, fullBoil = 0;
  int ionCa = 0, ionCl = 0, ionCO3 = 0, ionMg = 0, ionNa = 0, ionSO4 = 0;
  double gramIncrement = 0.5, tspIncrement = 0.5, threshold = 0.25;
  int activateQuillmark = 0;
  std::string quillmarkPath;
  int chkTitle = 1, chkLabel = 0, chkExtra = 0, chkDate = 1, chkIDCode = 0;
  std::string posTitle, posLabel, posExtra, posDate, posIDCode;
  std::string fontTitle, fontLabel, fontExtra, fontDate, fontIDCode;
  std::string extraText;
};

enum class DefaultKind { Text, Int16, Double };

// One key of the "Defaults" section, in load order.
struct DefaultKey {
  const char* key;
  const char* fallback;
  DefaultKind kind;
  int length;    // text fields: bytes held in memory
  bool saved;    // false for "Recipe Type", "Supply Units", "Sparge Temp"
  std::string Defaults::*text = nullptr;
  int Defaults::*whole = nullptr;
  double Defaults::*number = nullptr;
};

// The 95 keys in load order.
const std::vector<DefaultKey>& defaultKeys();

constexpr const char* kDefaultsSection = "Defaults";

// Reads all 95 keys into `d`. A stored value that is not a number of its type fails the strict
// conversion through the error routine (which ends the program).
void loadDefaults(const SettingsStore& store, Defaults& d, ErrorLog& errors);
// Writes the 92 saved keys: doubles in their plain text, flags as numbers, texts trimmed,
// "Threshold" as a percent.
void saveDefaults(SettingsStore& store, const Defaults& d);

// The in-memory value of a key as `defaults` prints it: texts trimmed, numbers in plain text.
std::string defaultValueText(const Defaults& d, const DefaultKey& k);

}  // namespace zy
