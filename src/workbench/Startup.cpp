#include "workbench/Startup.h"

#include <cerrno>
#include <cmath>
#include <cstdio>

#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeExchange.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"
#include "workbench/Workbench.h"

namespace zy {

const std::vector<LoadStep>& mainLoadOrder() {
  static const std::vector<LoadStep> order = {
      LoadStep::WindowSettings,     LoadStep::OpenTopicStore,  LoadStep::InitMeasures,
      LoadStep::LoadInventories,    LoadStep::LoadDefaults,    LoadStep::LoadTopicsAndBooks,
      LoadStep::LoadBeerStyles,     LoadStep::LoadHopsUtilization, LoadStep::LabelEntry,
      LoadStep::BuildTreeAndTabs,   LoadStep::CommandLineImport, LoadStep::UpdateCheck,
  };
  return order;
}

std::string loadStepName(LoadStep step) {
  switch (step) {
    case LoadStep::WindowSettings: return "WindowSettings";
    case LoadStep::OpenTopicStore: return "OpenTopicStore";
    case LoadStep::InitMeasures: return "InitMeasures";
    case LoadStep::LoadInventories: return "LoadInventories";
    case LoadStep::LoadDefaults: return "LoadDefaults";
    case LoadStep::LoadTopicsAndBooks: return "LoadTopicsAndBooks";
    case LoadStep::LoadBeerStyles: return "LoadBeerStyles";
    case LoadStep::LoadHopsUtilization: return "LoadHopsUtilization";
    case LoadStep::LabelEntry: return "LabelEntry";
    case LoadStep::BuildTreeAndTabs: return "BuildTreeAndTabs";
    case LoadStep::CommandLineImport: return "CommandLineImport";
    case LoadStep::UpdateCheck: return "UpdateCheck";
  }
  return "?";
}

void LoadSequence::on(LoadStep step, std::function<void()> action) {
  for (auto& a : actions_)
    if (a.first == step) {
      a.second = std::move(action);
      return;
    }
  actions_.emplace_back(step, std::move(action));
}

void LoadSequence::run() {
  log_.clear();
  ran_.clear();
  for (LoadStep step : mainLoadOrder()) {
    std::function<void()>* action = nullptr;
    for (auto& a : actions_)
      if (a.first == step && a.second) action = &a.second;
    if (!action) {
      log_.push_back(loadStepName(step) + " (not present)");
      continue;
    }
    log_.push_back(loadStepName(step));
    ran_.push_back(step);
    (*action)();
  }
}

CommandLine parseCommandLine(const std::vector<std::string>& args) {
  CommandLine c;
  std::string rest;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if ((a == "--home" || a == "--settings") && i + 1 < args.size()) {
      (a == "--home" ? c.home : c.settingsFile) = args[++i];
    } else if (startsWith(a, "--home=")) {
      c.home = a.substr(7);
    } else if (startsWith(a, "--settings=")) {
      c.settingsFile = a.substr(11);
    } else if (startsWith(a, "--") && rest.empty()) {
      c.unknownOptions.push_back(a);
    } else {
      if (!rest.empty()) rest += ' ';
      rest += a;
    }
  }
  c.recipeFile = trim(rest);
  return c;
}

bool splashWaitWanted(const std::string& trimmedCommandLine) { return trim(trimmedCommandLine).empty(); }

bool splashWaitOver(long long startMs, long long nowMs, bool splashDone) {
  return splashDone || nowMs - startMs >= kSplashMilliseconds;
}

std::string splashVersionLine() { return "Version " + versionText(); }

std::string helpFilePath(const ProgramFolder& folder) {
  return ProgramFolder::join(folder.helpFolder(), std::string(kProgramName) + ".html");
}

bool checkHelpFile(const ProgramFolder& folder, Prompter& prompter) {
  if (fileExists(helpFilePath(folder))) return true;
  prompter.message("WARNING: Missing Help File", kApplicationName, Icon::Warning, Buttons::OK, Answer::OK);
  return false;
}

int twipsToPixels(long twips) { return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel)); }
long pixelsToTwips(int pixels) { return static_cast<long>(pixels) * kTwipsPerPixel; }

WindowPlacement readPlacement(const SettingsStore& store, const std::string& section, const WindowPlacement& computed) {
  WindowPlacement p;
  p.state = static_cast<int>(readLong(store, section, "WindowState", computed.state));
  if (p.state < WINDOW_NORMAL || p.state > WINDOW_MAXIMIZED) p.state = WINDOW_NORMAL;
  p.left = readLong(store, section, "MainLeft", computed.left);
  p.top = readLong(store, section, "MainTop", computed.top);
  p.width = readLong(store, section, "MainWidth", computed.width);
  p.height = readLong(store, section, "MainHeight", computed.height);
  if (p.width - 1000 <= 0) p.width = computed.width;
  if (p.height - 1000 <= 0) p.height = computed.height;
  return p;
}

void writePlacement(SettingsStore& store, const std::string& section, const WindowPlacement& p, bool alwaysWriteState) {
  if (alwaysWriteState || p.state != WINDOW_MINIMIZED) store.write(section, "WindowState", itos(p.state));
  if (p.state != WINDOW_NORMAL) return;
  store.write(section, "MainLeft", itos(p.left));
  store.write(section, "MainTop", itos(p.top));
  store.write(section, "MainWidth", itos(p.width));
  store.write(section, "MainHeight", itos(p.height));
}

long importCommandLineRecipe(Workbench& wb, const std::string& path) {
  if (wb.recipeList.sortMode < 0) wb.recipeList.formLoad(wb);
  if (!fileExists(path)) return 0;
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) {
    wb.errors.reportFileError(fileErrorFromErrno(errno, path), 0, "frmMain!Form_Load");
    return 0;
  }
  // As the list's import: a file the reader refused still leaves the new-recipe default, which
  // is entered and saved like any other.
  const long slot = wb.recipeList.importAndSave(wb, f);
  std::fclose(f);
  return slot;
}

}  // namespace zy
