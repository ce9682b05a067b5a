#pragma once
// The road from the first instruction to the first usable window, and back to the end: the
// steps of the main window's load in their fixed order, the splash wait, the help file check and
// the window placement kept in the settings (in twips, as the settings have always held it).
#include <functional>
#include <string>
#include <vector>

#include "core/paths.h"
#include "core/ports.h"
#include "core/settings.h"

namespace zy {

// ---- The load of the main window --------------------------------------------------------------

// The steps of the main window's load, in the order they run.
enum class LoadStep {
  WindowSettings,     // window state and position from section "Settings"
  OpenTopicStore,     // Reference/Zyth.enc; missing is error 53 and ends the program
  InitMeasures,       // unit lists and tables
  LoadInventories,    // the five stock files
  LoadDefaults,       // section "Defaults" into memory
  LoadTopicsAndBooks, // topic list from ZythTOC.enc, mini-books from ZythMB.enc
  LoadBeerStyles,     // categories and styles
  LoadHopsUtilization,
  LabelEntry,         // show or hide the label program entry
  BuildTreeAndTabs,   // topic tree, tabs, toolbar state, first topic shown
  CommandLineImport,  // the recipe exchange file named on the command line
  UpdateCheck,        // the version check, when it is due
};

const std::vector<LoadStep>& mainLoadOrder();
// A short stable name of the step ("WindowSettings", ...).
std::string loadStepName(LoadStep step);

// Runs the steps of the load in their fixed order. Each window part registers what it does for
// a step; a step that nothing in this build provides (a store that has not come yet) is passed
// and noted as such. `ran` records what happened, for the tests and for the start-up log.
class LoadSequence {
 public:
  void on(LoadStep step, std::function<void()> action);
  void run();
  // One line per step: the step name, or the name followed by " (not present)".
  const std::vector<std::string>& log() const { return log_; }
  const std::vector<LoadStep>& ran() const { return ran_; }

 private:
  std::vector<std::pair<LoadStep, std::function<void()>>> actions_;
  std::vector<std::string> log_;
  std::vector<LoadStep> ran_;
};

// ---- The splash window and the wait -------------------------------------------------------------

// The splash stays four seconds, counted in milliseconds on a clock that only goes forward, so
// that neither the whole seconds of the time of day nor a change of the clock shortens it.
constexpr long long kSplashMilliseconds = 4000;

// The command line as one text, trimmed: the arguments that are not options of ours, joined by
// blanks. Options (--home DIR, --settings FILE, and their "=" forms) are taken out.
struct CommandLine {
  std::string home;
  std::string settingsFile;
  std::string recipeFile;  // the trimmed rest, empty when none
  std::vector<std::string> unknownOptions;
};
CommandLine parseCommandLine(const std::vector<std::string>& args);

// With a command line there is no wait.
bool splashWaitWanted(const std::string& trimmedCommandLine);
// The wait is over when the splash was clicked or 4000 ms have passed since `startMs` (both read
// from the same monotonic clock).
bool splashWaitOver(long long startMs, long long nowMs, bool splashDone);

// "Version " + the version text, as the splash and the about box show it.
std::string splashVersionLine();

// ---- The help file --------------------------------------------------------------------------

// The program's help: HTML pages in the Help folder of the program folder, opened at this page.
std::string helpFilePath(const ProgramFolder& folder);
// Shows "WARNING: Missing Help File" when the help file is missing; true when it is there.
bool checkHelpFile(const ProgramFolder& folder, Prompter& prompter);

// ---- Window placement in the settings -----------------------------------------------------------

// 1440 twips to the inch and 96 pixels to the inch on a screen of normal density: 15 twips a
// pixel.
constexpr int kTwipsPerPixel = 15;
int twipsToPixels(long twips);
long pixelsToTwips(int pixels);

// WindowState values as stored: 0 normal, 1 minimised, 2 maximised.
constexpr int WINDOW_NORMAL = 0, WINDOW_MINIMIZED = 1, WINDOW_MAXIMIZED = 2;

struct WindowPlacement {
  int state = WINDOW_NORMAL;
  long left = 0, top = 0, width = 0, height = 0;  // twips
};

// Reads the five geometry keys of `section`. A stored width or height that is not more than
// 1000 twips is taken as damaged and the computed one used instead, so that a stored size never
// makes the window vanish.
WindowPlacement readPlacement(const SettingsStore& store, const std::string& section, const WindowPlacement& computed);
// Writes "WindowState" (always for the main window; otherwise not when minimised) and, when the
// window is in its normal state, "MainLeft", "MainTop", "MainWidth", "MainHeight".
void writePlacement(SettingsStore& store, const std::string& section, const WindowPlacement& p,
                    bool alwaysWriteState);

constexpr const char* kSettingsSection = "Settings";

// ---- The recipe file of the command line ------------------------------------------------------

class Workbench;
// Step 11 of the load: the recipe list is loaded when it was not yet, then, when the file
// exists, it is read by the exchange reader, given the next free slot, entered (selected) in the
// recipe list and saved. A file that does not exist is passed over silently; a file that is no
// recipe exchange file gets the reader's message and, as in the list's import, the new-recipe
// default is stored in its place. Returns the new record number, 0 when nothing was stored.
long importCommandLineRecipe(Workbench& wb, const std::string& path);

}  // namespace zy
