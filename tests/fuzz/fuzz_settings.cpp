// The settings file: what a save writes of a file read, a read and a save write again the same.
#include "FuzzSupport.h"

using namespace zy;

ZY_FUZZ_HARNESS(settings) {
  fuzz::Env& e = fuzz::env();
  const std::string path = e.file("fuzz.ini");
  fuzz::writeAll(path, std::string(reinterpret_cast<const char*>(data), size));
  std::string first, second;
  {
    FileSettingsStore s(path);
    s.write("Fuzz", "Key", "1");
    first = fuzz::readAll(path);
  }
  {
    FileSettingsStore s(path);
    s.write("Fuzz", "Key", "1");
    second = fuzz::readAll(path);
  }
  fuzz::check(first == second, "the settings file changes on a second save:\n" + first + "\n---\n" + second);
  return 0;
}
