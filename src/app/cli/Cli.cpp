#include "app/cli/Cli.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "core/numfmt.h"
#include "calculators/HopsUtilization.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"
#include "core/text.h"

namespace zy::cli {

namespace {
std::vector<Verb>& registry() {
  static std::vector<Verb> v;
  return v;
}

void printUsage(std::FILE* f) {
  std::fprintf(f, "usage: zythara-cli [--home DIR] [--settings FILE] [--yes|--no] VERB ...\nverbs:\n");
  std::vector<Verb> sorted = registry();
  std::sort(sorted.begin(), sorted.end(), [](const Verb& a, const Verb& b) { return std::string(a.name) < b.name; });
  for (const Verb& v : sorted) std::fprintf(f, "  %s\n", v.usage);
}
}  // namespace

VerbRegistrar::VerbRegistrar(const char* name, const char* usage, VerbFn fn) {
  registry().push_back({name, usage, fn});
}

const std::vector<Verb>& verbs() { return registry(); }

void Context::print(const std::string& text8bit) const {
  std::string u = displayUtf8(text8bit);
  std::fwrite(u.data(), 1, u.size(), out);
}

int Context::usage(const std::string& text) const {
  std::fprintf(err, "usage: zythara-cli %s\n", text.c_str());
  return EXIT_USAGE;
}

bool requireStoredRecipe(Context& c, const char* verb, long n) {
  // A corrupted record goes on to the load, which reports it.
  const RecipeSlot state = recipeSlotState(c.wb, n);
  if (state == RecipeSlot::Stored || state == RecipeSlot::Corrupted) return true;
  std::fprintf(c.err, "zythara-cli: %s: there is no recipe %ld\n", verb, n);
  return false;
}

void loadProgramTables(Workbench& wb) {
  LoadBeerStyles(wb);
  LoadHopsUtilization(wb.hops, wb.settings);
}

int openStoredRecipe(Context& c, RecipeEditor& editor, const std::string& arg, const char* verb,
                     const std::string& usage) {
  long n;
  if (!parseWhole(arg, n) || n < 1 || n > 32767) return c.usage(usage);
  if (!requireStoredRecipe(c, verb, n)) return EXIT_REPORTED;
  loadProgramTables(c.wb);
  editor.initRecipeForm();
  return editor.openRecipe(n) ? EXIT_DONE : EXIT_REPORTED;
}

bool parseWhole(const std::string& text, long& value) {
  std::string t = trim(text);
  if (t.empty()) return false;
  size_t i = (t[0] == '-' || t[0] == '+') ? 1 : 0;
  if (i == t.size()) return false;
  for (size_t k = i; k < t.size(); ++k)
    if (t[k] < '0' || t[k] > '9') return false;
  if (t.size() > 10) return false;
  value = std::strtol(t.c_str(), nullptr, 10);
  return true;
}

int run(const std::vector<std::string>& argv, std::FILE* out, std::FILE* err) {
  std::string home, settingsFile;
  bool yes = true;
  size_t i = 0;
  for (; i < argv.size(); ++i) {
    const std::string& a = argv[i];
    if ((a == "--home" || a == "--settings") && i + 1 < argv.size()) {
      (a == "--home" ? home : settingsFile) = argv[++i];
    } else if (startsWith(a, "--home=")) {
      home = a.substr(7);
    } else if (startsWith(a, "--settings=")) {
      settingsFile = a.substr(11);
    } else if (a == "--yes") {
      yes = true;
    } else if (a == "--no") {
      yes = false;
    } else if (a == "--help" || a == "-h") {
      printUsage(out);
      return EXIT_DONE;
    } else if (startsWith(a, "--")) {
      std::fprintf(err, "zythara-cli: unknown option %s\n", a.c_str());
      printUsage(err);
      return EXIT_USAGE;
    } else {
      break;
    }
  }
  if (i >= argv.size()) {
    printUsage(err);
    return EXIT_USAGE;
  }
  const std::string verbName = argv[i];
  const Verb* verb = nullptr;
  for (const Verb& v : registry())
    if (verbName == v.name) verb = &v;
  if (!verb) {
    std::fprintf(err, "zythara-cli: unknown verb %s\n", verbName.c_str());
    printUsage(err);
    return EXIT_USAGE;
  }

  std::string root = chooseProgramFolder(home, executableDir());
  ProgramFolder(root).ensureFolders();
  FileSettingsStore settings(chooseSettingsFile(settingsFile));
  ConsolePrompter prompter(err, yes);
  SystemClock clock;
  Workbench wb(root, settings, prompter, clock);
  wb.errors.setTerminationHook([](int n) { throw Terminated(n); });

  Context ctx{wb, out, err, {}, yes, {}};
  for (size_t k = i + 1; k < argv.size(); ++k) {
    ctx.args.push_back(utf8ToCp1252(argv[k]));
    ctx.rawArgs.push_back(argv[k]);
  }
  int status;
  try {
    wb.loadDefaults();
    status = verb->fn(ctx);
  } catch (const Terminated&) {
    std::fflush(out);
    return EXIT_TERMINATED;
  }
  std::fflush(out);
  if (status == EXIT_DONE && wb.errors.reportCount > 0) status = EXIT_REPORTED;
  return status;
}

}  // namespace zy::cli
