// The settings file: what a save writes of a file read, a read and a save write again the same.
#include "FuzzSupport.h"

using namespace zy;

ZY_FUZZ_HARNESS(settings) {
  struct NoReadError {};
  return fuzz::fileRoundTrip<NoReadError>(
      fuzz::env().file("fuzz.ini"), data, size,
      [](const std::string& path) {
        FileSettingsStore s(path);
        s.write("Fuzz", "Key", "1");
        return fuzz::readAll(path);
      },
      "the settings file");
}
