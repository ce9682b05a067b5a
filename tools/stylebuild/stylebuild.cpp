// stylebuild CATEGORIES.csv STYLES.csv DESCRIPTIONS.csv DATADIR
// Writes DATADIR/ZYCategory.dat and DATADIR/ZYStyle.dat from the two style sheets, with each
// style's description from the third sheet in its comment block.
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
  if (argc != 5) {
    std::fprintf(stderr, "usage: stylebuild CATEGORIES.csv STYLES.csv DESCRIPTIONS.csv DATADIR\n");
    return 2;
  }
  std::string categories, styles, descriptions;
  if (!readText(argv[1], categories) || !readText(argv[2], styles) || !readText(argv[3], descriptions)) {
    std::fprintf(stderr, "stylebuild: cannot read %s, %s or %s\n", argv[1], argv[2], argv[3]);
    return 1;
  }
  auto tables = std::make_unique<zy::StyleTables>();
  std::string error;
  if (!zy::buildStyleTablesFromSheets(categories, styles, *tables, error) ||
      !zy::mergeStyleDescriptions(descriptions, *tables, error)) {
    std::fprintf(stderr, "stylebuild: %s\n", error.c_str());
    return 1;
  }
  int undescribed = 0;
  for (int i = 0; i < tables->BeerStyleCount; ++i)
    if (tables->BeerStyles[static_cast<size_t>(i)].comments.empty()) ++undescribed;
  if (undescribed > 0) std::fprintf(stderr, "stylebuild: warning: %d style(s) without a description\n", undescribed);
  const std::string dir = argv[4];
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
