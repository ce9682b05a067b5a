#pragma once
// Runs zythara-cli in-process over a temporary program folder and settings file.
#include <cstdio>
#include <string>
#include <vector>

#include "app/cli/Cli.h"
#include "support/TestSupport.h"

namespace zy::test {

struct CliResult {
  int status;
  std::string out, err;
  // The whole outcome as "status|standard output|standard error", for one comparison.
  std::string all() const { return std::to_string(status) + "|" + out + "|" + err; }
};

inline std::string slurp(std::FILE* f) {
  std::string s;
  std::rewind(f);
  char buf[4096];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) s.append(buf, n);
  std::fclose(f);
  return s;
}

struct CliHome {
  TempFolder dir;
  CliHome() { ProgramFolder(dir.path()).ensureFolders(); }
  std::string data(const std::string& name) const { return dir.file("Data/" + name); }
  CliResult run(std::vector<std::string> args, std::vector<std::string> options = {}) const {
    std::vector<std::string> argv = {"--home", dir.path(), "--settings", dir.file("settings.ini")};
    argv.insert(argv.end(), options.begin(), options.end());
    argv.insert(argv.end(), args.begin(), args.end());
    std::FILE* out = std::tmpfile();
    std::FILE* err = std::tmpfile();
    int status = zy::cli::run(argv, out, err);
    return {status, slurp(out), slurp(err)};
  }
};

// A program folder for the command line with a workbench of its own over it, to write the data
// files through the stores; terminating errors throw zy::Terminated.
struct CliBench {
  CliHome home;
  MemorySettingsStore settings;
  ScriptedPrompter prompter;
  FixedClock clock{46000.0};
  Workbench wb{home.dir.path(), settings, prompter, clock};
  CliBench() { wb.errors.setTerminationHook([](int n) { throw Terminated(n); }); }
};

}  // namespace zy::test
