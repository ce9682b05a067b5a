#include "batchlog/BatchLogRecord.h"

#include "core/records.h"

namespace zy {

namespace {
// Offsets of the arrays and of the fields behind them.
constexpr size_t kMashTime = 19, kMashTemp = 123, kMashInfusion = 227, kMashReserved = 331;
constexpr size_t kReadType = 941, kReadDate = 973, kReadTemp = 1149, kReadGravity = 1277, kReadNote = 1405;
}  // namespace

std::string BatchLogRecord::encode() const {
  std::string r(kLength, ' ');
  putI16(r, 0, controlStart);
  putI16(r, 2, recipeNo);
  putI16(r, 4, batchNo);
  putText(r, 6, 11, dateBrewed);
  putI16(r, 17, status);
  for (size_t i = 0; i < kLogMashSlots; ++i) {
    putF64(r, kMashTime + 8 * i, mashTime[i]);
    putF64(r, kMashTemp + 8 * i, mashTemp[i]);
    putF64(r, kMashInfusion + 8 * i, mashInfusion[i]);
    putText(r, kMashReserved + 40 * i, 40, mashReserved[i]);
  }
  putF64(r, 851, spargeVolume);
  putF64(r, 859, spargeTemp);
  putF64(r, 867, boilVolume);
  putF64(r, 875, mashGravity);
  putF64(r, 883, mashGravityTemp);
  putF64(r, 891, boilTime);
  putF64(r, 899, kraeuseningWort);
  putF64(r, 907, fermentVolume);
  putF64(r, 915, fermentGravity);
  putF64(r, 923, fermentGravityTemp);
  putF64(r, 931, pitchingTemp);
  putI16(r, 939, readingCount);
  for (size_t i = 0; i < kLogReadingSlots; ++i) {
    putI16(r, kReadType + 2 * i, readingType[i]);
    putText(r, kReadDate + 11 * i, 11, readingDate[i]);
    putF64(r, kReadTemp + 8 * i, readingTemp[i]);
    putF64(r, kReadGravity + 8 * i, readingGravity[i]);
    putText(r, kReadNote + 40 * i, 40, readingNote[i]);
  }
  putText(r, 2045, 11, bottlingDate);
  putText(r, 2056, 15, agedIn);
  putText(r, 2071, 15, conditioning);
  putText(r, 2086, 40, conditionDetails);
  putText(r, 2126, 512, comments);
  putF64(r, 2638, mashVolume);
  putF64(r, 2646, grainsMashed);
  for (size_t k = 0; k < 2; ++k) {
    putF64(r, 2654 + 8 * k, quantity[k]);
    putF64(r, 2670 + 8 * k, capacity[k]);
    putI16(r, 2686 + 2 * k, containerUnits[k]);
  }
  putText(r, 2690, 80, reserved);
  putI16(r, 2770, controlEnd);
  return r;
}

BatchLogRecord BatchLogRecord::decode(std::string_view r) {
  BatchLogRecord x;
  if (r.size() < kLength) return x;
  x.controlStart = getI16(r, 0);
  x.recipeNo = getI16(r, 2);
  x.batchNo = getI16(r, 4);
  x.dateBrewed = getText(r, 6, 11);
  x.status = getI16(r, 17);
  for (size_t i = 0; i < kLogMashSlots; ++i) {
    x.mashTime[i] = getF64(r, kMashTime + 8 * i);
    x.mashTemp[i] = getF64(r, kMashTemp + 8 * i);
    x.mashInfusion[i] = getF64(r, kMashInfusion + 8 * i);
    x.mashReserved[i] = getText(r, kMashReserved + 40 * i, 40);
  }
  x.spargeVolume = getF64(r, 851);
  x.spargeTemp = getF64(r, 859);
  x.boilVolume = getF64(r, 867);
  x.mashGravity = getF64(r, 875);
  x.mashGravityTemp = getF64(r, 883);
  x.boilTime = getF64(r, 891);
  x.kraeuseningWort = getF64(r, 899);
  x.fermentVolume = getF64(r, 907);
  x.fermentGravity = getF64(r, 915);
  x.fermentGravityTemp = getF64(r, 923);
  x.pitchingTemp = getF64(r, 931);
  x.readingCount = getI16(r, 939);
  for (size_t i = 0; i < kLogReadingSlots; ++i) {
    x.readingType[i] = getI16(r, kReadType + 2 * i);
    x.readingDate[i] = getText(r, kReadDate + 11 * i, 11);
    x.readingTemp[i] = getF64(r, kReadTemp + 8 * i);
    x.readingGravity[i] = getF64(r, kReadGravity + 8 * i);
    x.readingNote[i] = getText(r, kReadNote + 40 * i, 40);
  }
  x.bottlingDate = getText(r, 2045, 11);
  x.agedIn = getText(r, 2056, 15);
  x.conditioning = getText(r, 2071, 15);
  x.conditionDetails = getText(r, 2086, 40);
  x.comments = getText(r, 2126, 512);
  x.mashVolume = getF64(r, 2638);
  x.grainsMashed = getF64(r, 2646);
  for (size_t k = 0; k < 2; ++k) {
    x.quantity[k] = getF64(r, 2654 + 8 * k);
    x.capacity[k] = getF64(r, 2670 + 8 * k);
    x.containerUnits[k] = getI16(r, 2686 + 2 * k);
  }
  x.reserved = getText(r, 2690, 80);
  x.controlEnd = getI16(r, 2770);
  return x;
}

const std::array<std::string, 5>& batchLogStatusNames() {
  static const std::array<std::string, 5> names = {"New", "Primary", "Secondary", "Tertiary", "Bottled"};
  return names;
}

const std::array<std::string, 4>& readingTypeNames() {
  static const std::array<std::string, 4> names = {"Primary", "Secondary", "Tertiary", "Final"};
  return names;
}

const std::array<std::string, 10>& containerUnitNames() {
  static const std::array<std::string, 10> names = {"US Barrels",  "US Gallons", "US Quarts",   "US Oz",
                                                    "HectoLiters", "Liters",     "Imp Barrels", "Imp Gallons",
                                                    "Imp Quarts",  "Imp Oz"};
  return names;
}

std::string statusName(int status) {
  return status >= 0 && status < 5 ? batchLogStatusNames()[static_cast<size_t>(status)] : std::string();
}

std::string readingTypeName(int type) {
  return type >= 0 && type < 4 ? readingTypeNames()[static_cast<size_t>(type)] : std::string();
}

}  // namespace zy
