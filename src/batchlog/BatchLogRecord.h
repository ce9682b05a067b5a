#pragma once
// The record of ZYBatchLog.dat: one brew of a recipe as really made, 2772 bytes, written and read
// field by field at its offsets. The owning recipe is named by its record number in ZYRecipe.dat
// alone; 0 marks a free slot.
#include <array>
#include <string>
#include <string_view>

namespace zy {

// Statuses of a brew, by position: "New", "Primary", "Secondary", "Tertiary", "Bottled".
constexpr int LOG_NEW = 0, LOG_PRIMARY = 1, LOG_SECONDARY = 2, LOG_TERTIARY = 3, LOG_BOTTLED = 4;
// Kinds of fermentation reading: "Primary", "Secondary", "Tertiary", "Final".
constexpr int READING_PRIMARY = 0, READING_SECONDARY = 1, READING_TERTIARY = 2, READING_FINAL = 3;

constexpr int kLogMashSlots = 13;     // room in the record for mash steps
constexpr int kLogReadingSlots = 16;  // room in the record for fermentation readings

struct BatchLogRecord {
  static constexpr size_t kLength = 2772;
  int controlStart = 200;
  int recipeNo = 0;
  int batchNo = 0;                 // "Batch #"
  std::string dateBrewed;          // 11, "mmm-dd-yyyy"
  int status = LOG_NEW;
  std::array<double, kLogMashSlots> mashTime{}, mashTemp{}, mashInfusion{};
  std::array<std::string, kLogMashSlots> mashReserved;  // 40 each, never written from the editor
  double spargeVolume = 0, spargeTemp = 0;
  double boilVolume = 0;           // "Initial Boil Volume"
  double mashGravity = 0, mashGravityTemp = 0;
  double boilTime = 0;
  double kraeuseningWort = 0;      // "Wort for Kraeusening"
  double fermentVolume = 0;
  double fermentGravity = 0, fermentGravityTemp = 0;  // "Initial Fermentation SG" and its temperature
  double pitchingTemp = 0;
  int readingCount = 0;
  std::array<int, kLogReadingSlots> readingType{};
  std::array<std::string, kLogReadingSlots> readingDate;   // 11 each
  std::array<double, kLogReadingSlots> readingTemp{}, readingGravity{};
  std::array<std::string, kLogReadingSlots> readingNote;   // 40 each
  std::string bottlingDate;        // 11
  std::string agedIn;              // 15
  std::string conditioning;        // 15
  std::string conditionDetails;    // 40
  std::string comments;            // 512, "General Comments"
  double mashVolume = 0;           // "Total Mash Volume"
  double grainsMashed = 0;         // "Grains Mashed"
  std::array<double, 2> quantity{}, capacity{};
  std::array<int, 2> containerUnits{-1, -1};
  std::string reserved;            // 80
  int controlEnd = 299;

  std::string encode() const;
  static BatchLogRecord decode(std::string_view rec);
};

// The status names in position order.
const std::array<std::string, 5>& batchLogStatusNames();
// The reading types in position order.
const std::array<std::string, 4>& readingTypeNames();
// The container units of the "Quantity Produced" fields: "US Barrels", "US Gallons", "US Quarts",
// "US Oz", "HectoLiters", "Liters", "Imp Barrels", "Imp Gallons", "Imp Quarts", "Imp Oz".
const std::array<std::string, 10>& containerUnitNames();
// A status or reading type by position, empty outside the list.
std::string statusName(int status);
std::string readingTypeName(int type);

}  // namespace zy
