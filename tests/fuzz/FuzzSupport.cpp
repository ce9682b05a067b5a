#include "FuzzSupport.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/paths.h"

namespace zy::fuzz {

std::vector<Registered>& registry() {
  static std::vector<Registered> r;
  return r;
}

void fail(const std::string& what) {
#ifdef ZY_LIBFUZZER
  std::fprintf(stderr, "fuzz check failed: %s\n", what.c_str());
  std::abort();
#else
  throw std::runtime_error(what);
#endif
}

Env::Env() {
  std::string tmpl = (std::filesystem::temp_directory_path() / "zyfuzz-XXXXXX").string();
  root = mkdtemp(tmpl.data()) ? tmpl : std::string("/tmp/zyfuzz");
  ProgramFolder(root).ensureFolders();
  wb = std::make_unique<Workbench>(root, settings, prompter, clock);
  wb->errors.setTerminationHook([](int) {});
}

Env::~Env() {
  std::error_code ec;
  std::filesystem::remove_all(root, ec);
}

void Env::clearData() {
  std::error_code ec;
  for (const auto& e : std::filesystem::directory_iterator(root + "/Data", ec)) std::filesystem::remove_all(e.path(), ec);
}

Env& env() {
  static Env e;
  return e;
}

std::string readAll(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

void writeAll(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

}  // namespace zy::fuzz
