#pragma once
// Helpers shared by the tests: a temporary program folder, a scripted prompter that records
// every message, and a workbench over both.
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/ports.h"
#include "core/settings.h"
#include "workbench/Workbench.h"

namespace zy::test {

struct ShownMessage {
  std::string text, title;
  Icon icon;
  Buttons buttons;
};

class ScriptedPrompter : public Prompter {
 public:
  Answer message(const std::string& text, const std::string& title, Icon icon, Buttons buttons,
                 Answer defaultAnswer) override;
  std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                   const std::string& initial) override;
  std::optional<std::string> openFile(const std::string& title, const std::string&, const std::string&) override {
    return dialog(title);
  }
  std::optional<std::string> saveFile(const std::string& title, const std::string&, const std::string&) override {
    return dialog(title);
  }
  std::optional<std::string> chooseFolder(const std::string& title, const std::string&) override { return dialog(title); }
  void beep() override { ++beeps; }

  // Answers given in turn to questions (message boxes with more than an OK button); when none
  // is left, the default answer.
  std::deque<Answer> answers;
  // Texts given in turn to input boxes and file dialogs; an empty optional is a Cancel.
  std::deque<std::optional<std::string>> texts;
  std::vector<ShownMessage> shown;
  int beeps = 0;

 private:
  std::optional<std::string> nextText(const std::string& fallback);
  std::optional<std::string> dialog(const std::string& title);
};

// A fresh folder below the system's temporary folder, removed with the object.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

// A workbench over a temporary program folder (with Data/ and Reference/), a memory settings
// store, a scripted prompter and a clock fixed at 2026-11-22 10:30:00. Terminating errors
// throw zy::Terminated.
struct Bench {
  Bench();
  TempFolder dir;
  MemorySettingsStore settings;
  ScriptedPrompter prompter;
  FixedClock clock;
  std::unique_ptr<Workbench> wb;
};

// An item record with every field a recipe's ingredient carries.
RecipeItemRecord makeItem(int kind, const std::string& name, double qty, int units = 0, double cost = 0,
                          double rating = 0, double detail = 0, int mash = 0);

// Saves recipe `no` as the tests' amber: 5 US gallons (boil 5), infusion at 75 percent, 8 lbs of
// mashed pale malt, 1 lb of crystal, 1 oz of Cascade (60 min), 0.5 oz of Centennial (15 min), a
// teaspoon of Irish moss and a packet of ale yeast, with the comment "A fine amber.". `extra`
// changes the recipe before the save. False when the save failed.
bool storeAmber(Workbench& wb, int no, const std::string& name, const std::string& style,
                const std::function<void(CurrentRecipe&)>& extra = {});

// Every message shown so far as "title: text", in order.
std::vector<std::string> shownLines(const ScriptedPrompter& p);

std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& bytes);
std::vector<std::string> readLines(const std::string& path);
// The lines of a text, without their line ends (LF or CR LF) and without an empty last line.
std::vector<std::string> textLines(const std::string& text);
// Record bytes written by hand, independent of the record code: a little-endian 16-bit number,
// a little-endian 8-byte double, a text padded with blanks (or cut) to its width.
std::string le16(int v);
std::string le64(double v);
std::string padded(const std::string& text, size_t width);
// Repeats `s` `n` times.
std::string repeated(const std::string& s, int n);

// Rewrites the bytes of record `no` (1-based) of a file of `length`-byte records through `edit`.
void patchRecord(const std::string& path, size_t length, long no, const std::function<void(std::string&)>& edit);

}  // namespace zy::test
