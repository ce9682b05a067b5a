#include "workbench/Workbench.h"

#include "core/measures.h"

namespace zy {

Workbench::Workbench(const std::string& programFolder, SettingsStore& settingsStore, Prompter& prompterPort,
                     const Clock& clockPort)
    : folder(programFolder), settings(settingsStore), prompter(prompterPort), clock(clockPort),
      errors(folder, prompter, clock) {
  initMeasures();
}

void Workbench::loadDefaults() { zy::loadDefaults(settings, defaults, errors); }

}  // namespace zy
