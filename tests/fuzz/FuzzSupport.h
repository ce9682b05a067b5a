#pragma once
// One harness per parser of outside input. Built with libFuzzer (ZY_LIBFUZZER) a harness is the
// fuzzer's entry point; built as an ordinary test it registers itself, and the replay test feeds
// it every file of its corpus folder tests/fuzz/corpus/<name>/.
//
// A harness reads the input, and where a writer exists writes what it read and reads that again:
// the two readings must agree. A reported error or an ending through the error routine is a
// normal outcome; a failed check is a fault.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/errorlog.h"
#include "core/ports.h"
#include "core/settings.h"
#include "workbench/Workbench.h"

namespace zy::fuzz {

using Harness = int (*)(const uint8_t*, size_t);
struct Registered {
  const char* name;
  Harness fn;
};
std::vector<Registered>& registry();
struct Registrar {
  Registrar(const char* name, Harness fn) { registry().push_back({name, fn}); }
};

// A fault found: the fuzzer stops on it; the replay test reports it.
[[noreturn]] void fail(const std::string& what);
inline void check(bool ok, const std::string& what) {
  if (!ok) fail(what);
}

// A prompter that answers every question with its default and keeps nothing.
class SilentPrompter : public Prompter {
 public:
  Answer message(const std::string&, const std::string&, Icon, Buttons, Answer d) override { return d; }
  std::optional<std::string> input(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> openFile(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> saveFile(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> chooseFolder(const std::string&, const std::string&) override { return {}; }
};

// A workbench over a fresh program folder of its own (removed at exit); the error routine's
// ending throws Terminated instead of ending the process.
struct Env {
  Env();
  ~Env();
  std::string root;
  MemorySettingsStore settings;
  SilentPrompter prompter;
  FixedClock clock{46348.4375};  // 2026-11-22 10:30
  std::unique_ptr<Workbench> wb;
  std::string data(const std::string& name) const { return root + "/Data/" + name; }
  std::string file(const std::string& name) const { return root + "/" + name; }
  // Empties the data folder.
  void clearData();
};
Env& env();

std::string readAll(const std::string& path);
void writeAll(const std::string& path, const std::string& bytes);
inline std::string text(const uint8_t* data, size_t size) { return std::string(reinterpret_cast<const char*>(data), size); }

// Writes the input to `path`; what `trip` (a read of the file and its writing as text) gives,
// written back to the file, must give the same again. A read error is a normal outcome.
template <class ReadError, class Trip>
int fileRoundTrip(const std::string& path, const uint8_t* data, size_t size, Trip trip, const std::string& what) {
  writeAll(path, text(data, size));
  try {
    const std::string first = trip(path);
    writeAll(path, first);
    check(trip(path) == first, what + " changes on a second trip");
  } catch (const ReadError&) {
  } catch (const Terminated&) {
  }
  return 0;
}

}  // namespace zy::fuzz

#ifdef ZY_LIBFUZZER
#define ZY_FUZZ_HARNESS(name)                                                          \
  static int zyFuzz_##name(const uint8_t* data, size_t size);                          \
  extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {            \
    return zyFuzz_##name(data, size);                                                  \
  }                                                                                    \
  static int zyFuzz_##name(const uint8_t* data, size_t size)
#else
#define ZY_FUZZ_HARNESS(name)                                                          \
  static int zyFuzz_##name(const uint8_t* data, size_t size);                          \
  static zy::fuzz::Registrar zyFuzzRegistrar_##name(#name, zyFuzz_##name);             \
  static int zyFuzz_##name(const uint8_t* data, size_t size)
#endif
