#pragma once
// The two style files: one from the input, the other empty. A save drops the rows with a blank
// name, and the next load numbers the rows that follow anew, so the keys of a file with such holes
// change once; from then on a load and a save write the files again byte for byte.
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
    roundTrip();
    const std::string second = roundTrip();
    check(roundTrip() == second, "the style files change on a third load and save");
  } catch (const Terminated&) {
  }
  return 0;
}

}  // namespace zy::fuzz
