// stylebuild CATEGORIES.csv STYLES.csv DATADIR
// Writes DATADIR/ZYCategory.dat and DATADIR/ZYStyle.dat from the two style sheets.
#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "core/paths.h"
#include "core/records.h"
#include "styles/StyleSheets.h"
#include "styles/StyleStore.h"

namespace {
bool readText(const char* path, std::string& out) {
  std::ifstream f(path, std::ios::binary);
  if (!f) return false;
  std::stringstream ss;
  ss << f.rdbuf();
  out = ss.str();
  return true;
}
}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: stylebuild CATEGORIES.csv STYLES.csv DATADIR\n");
    return 2;
  }
  std::string categories, styles;
  if (!readText(argv[1], categories) || !readText(argv[2], styles)) {
    std::fprintf(stderr, "stylebuild: cannot read %s or %s\n", argv[1], argv[2]);
    return 1;
  }
  auto tables = std::make_unique<zy::StyleTables>();
  std::string error;
  if (!zy::buildStyleTablesFromSheets(categories, styles, *tables, error)) {
    std::fprintf(stderr, "stylebuild: %s\n", error.c_str());
    return 1;
  }
  const std::string dir = argv[3];
  zy::makeFolders(dir);
  try {
    zy::writeStyleFiles(*tables, zy::ProgramFolder::join(dir, zy::kCategoryFile),
                        zy::ProgramFolder::join(dir, zy::kStyleFile));
  } catch (const zy::FileError& e) {
    std::fprintf(stderr, "stylebuild: cannot write %s: %s\n", e.path.c_str(), e.description.c_str());
    return 1;
  }
  std::printf("stylebuild: %d categories, %d styles\n", tables->BeerCategoryCount, tables->BeerStyleCount);
  return 0;
}
