#include "ui/SubMain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

#include "core/paths.h"
#include "core/text.h"
#include "ui/frmMain.h"
#include "ui/frmSplash.h"
#include "workbench/Startup.h"

namespace zy {

SubMain::~SubMain() = default;

frmMain* SubMain::run(const std::string& commandLine, const std::function<void(frmMain&)>& prepare) {
  // 1. The version text is built by versionText(). 2. The splash, painted before the load.
  auto splash = std::make_unique<frmSplash>();
  splash->show();
  splash->raise();
  QApplication::processEvents();
  if (splashShown) splashShown(*splash);
  // 3. The start of the wait, on the monotonic clock.
  QElapsedTimer elapsed;
  elapsed.start();

  // 4. The main window, loaded while the splash is on screen.
  mainWindow = std::make_unique<frmMain>(wb_);
  if (prepare) prepare(*mainWindow);
  mainWindow->load(commandLine);

  // 5. With no command line, the rest of the four seconds or a click on the splash.
  if (splashWaitWanted(commandLine)) {
    waited = true;
    splash->splashDone = false;
    while (!splashWaitOver(0, elapsed.elapsed(), splash->splashDone)) {
      QApplication::processEvents(QEventLoop::AllEvents, 20);
      QThread::msleep(5);
    }
    waitedSeconds = elapsed.elapsed() / 1000.0;
  }

  // 6. The splash goes.
  splash->close();
  splash.reset();
  wb_.appClosing = false;

  // 7. The help file.
  helpFileFound = checkHelpFile(wb_.folder, wb_.prompter);

  // 8. The main window.
  mainWindow->showFromSettings();

  // 9. With a command line, the recipe list (when this build has it).
  if (!trim(commandLine).empty()) mainWindow->openChild(frmMain::Child::RecipeList);
  return mainWindow.get();
}

}  // namespace zy
