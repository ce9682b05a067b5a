#pragma once
// The two style files: one from the input, the other empty. What a save writes of the tables
// read, a load and a save write again the same.
#include "FuzzSupport.h"
#include "styles/StyleStore.h"

namespace zy::fuzz {

inline int styleFileHarness(const char* file, const uint8_t* data, size_t size) {
  Env& e = env();
  Workbench& wb = *e.wb;
  e.clearData();
  writeAll(e.data(file), text(data, size));
  try {
    auto roundTrip = [&] {
      StyleTables t;
      LoadBeerStyles(t, wb.folder, wb.errors);
      saveBeerStyles(t, wb.folder, wb.errors);
      return readAll(e.data(kCategoryFile)) + "|" + readAll(e.data(kStyleFile));
    };
    const std::string first = roundTrip();
    check(roundTrip() == first, "the style files change on a second load and save");
  } catch (const Terminated&) {
  }
  return 0;
}

}  // namespace zy::fuzz
