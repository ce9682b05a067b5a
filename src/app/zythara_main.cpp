// The desktop program: `zythara [--home DIR] [--settings FILE] [RECIPE-FILE]`.
#include <QApplication>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "core/paths.h"
#include "core/settings.h"
#include "ui/ProgramWindows.h"
#include "ui/QtPrompter.h"
#include "ui/SubMain.h"
#include "ui/TopicIcons.h"
#include "ui/frmMain.h"
#include "workbench/Startup.h"
#include "workbench/Workbench.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(zy::kApplicationName);
  QApplication::setWindowIcon(zy::programIcon());

  std::vector<std::string> args;
  const QStringList qargs = QApplication::arguments();
  // Arguments stay in the file system's own encoding: they are paths, opened and never shown.
  for (int i = 1; i < qargs.size(); ++i) args.push_back(QFile::encodeName(qargs[i]).toStdString());
  zy::CommandLine cl = zy::parseCommandLine(args);
  if (!cl.unknownOptions.empty()) {
    std::fprintf(stderr, "zythara: unknown option %s\nusage: zythara [--home DIR] [--settings FILE] [RECIPE-FILE]\n",
                 cl.unknownOptions.front().c_str());
    return 2;
  }

  const std::string root = zy::chooseProgramFolder(cl.home, zy::executableDir());
  zy::ProgramFolder(root).ensureFolders();
  zy::FileSettingsStore settings(zy::chooseSettingsFile(cl.settingsFile));
  zy::QtPrompter prompter;
  zy::SystemClock clock;
  zy::Workbench wb(root, settings, prompter, clock);
  // A terminating error ends the process at once, saving nothing.
  wb.errors.setTerminationHook([](int) { std::_Exit(3); });

  // The other windows, created on first use; their openers are registered before the main
  // window's load, so that a recipe file named on the command line opens the recipe list.
  std::unique_ptr<zy::ProgramWindows> windows;
  zy::SubMain subMain(wb);
  zy::frmMain* main =
      subMain.run(cl.recipeFile, [&](zy::frmMain& m) { windows = std::make_unique<zy::ProgramWindows>(wb, m); });
  prompter.setParent(main);
  return app.exec();
}
