// refbuild SOURCE_DIR OUTPUT_DIR [PICTURE_DIR...]: compiles the encyclopedia sources (topics/,
// books/, images/) into Zyth.enc, ZythTOC.enc, ZythMB.enc and the pictures of OUTPUT_DIR. A picture
// not in images/ is looked for in each PICTURE_DIR in turn (those drawn at build time).
#include <cstdio>
#include <string>
#include <vector>

#include "reference/ReferenceBuild.h"

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: refbuild SOURCE_DIR OUTPUT_DIR [PICTURE_DIR...]\n");
    return 2;
  }
  std::vector<std::string> pictureDirs(argv + 3, argv + argc);
  zy::BuildReport report = zy::buildReferenceFromFolder(argv[1], argv[2], pictureDirs);
  for (const std::string& w : report.warnings) std::fprintf(stderr, "refbuild: warning: %s\n", w.c_str());
  for (const std::string& e : report.errors) std::fprintf(stderr, "refbuild: error: %s\n", e.c_str());
  if (!report.ok()) {
    std::fprintf(stderr, "refbuild: nothing written, %zu error(s)\n", report.errors.size());
    return 1;
  }
  std::printf("refbuild: %d topics, %d mini-books, %d pictures written to %s\n", report.topicCount,
              report.bookCount, report.imageCount, argv[2]);
  return 0;
}
