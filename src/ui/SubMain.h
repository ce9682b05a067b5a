#pragma once
// The start of the process (Sub Main): the splash window, the main window's load behind it, the
// wait of four seconds that a click on the splash cuts short (none with a command line), the
// help file check, and the main window shown.
#include <functional>
#include <memory>
#include <string>

#include "workbench/Workbench.h"

namespace zy {

class frmMain;
class frmSplash;

class SubMain {
 public:
  explicit SubMain(Workbench& wb) : wb_(wb) {}
  ~SubMain();

  // Runs the steps in order and returns the main window, shown. `commandLine` is the trimmed
  // command line (a recipe exchange file), empty for none. `prepare` is called with the main
  // window before its load (the program gives it its child windows, tests their fakes).
  frmMain* run(const std::string& commandLine, const std::function<void(frmMain&)>& prepare = {});

  // What happened, for the tests.
  bool waited = false;        // the wait for the splash ran
  double waitedSeconds = 0;   // how long it lasted
  bool helpFileFound = false;
  // Called once the splash is on screen (tests click it from here).
  std::function<void(frmSplash&)> splashShown;
  std::unique_ptr<frmMain> mainWindow;

 private:
  Workbench& wb_;
};

}  // namespace zy
