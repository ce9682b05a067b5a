#pragma once
// The model of the properties window: the texts of its boxes, the states of its checks and the
// selections of its lists, filled from the in-memory defaults and applied back to them.
#include <map>
#include <string>
#include <vector>

#include "core/defaults.h"
#include "core/ports.h"

namespace zy {

class ErrorLog;

// A text box of the window: its control name ("txtMaltDef(1)" for element 1 of a control
// array), the page it sits on, the number pattern it is reformatted with when it loses focus
// (empty for plain text) and its length limit.
struct PropertyField {
  std::string name;
  int page;
  std::string format;
  int maxLength;
};

class PropertiesModel {
 public:
  // Pages of the tab strip tbsOptions, in order.
  static const std::vector<std::string>& pageCaptions();
  // Every text box, in tab order.
  static const std::vector<PropertyField>& fields();
  // Check boxes and lists, by control name.
  static const std::vector<std::string>& checkNames();
  static const std::vector<std::string>& comboNames();
  // The entries of a list ("cboUnitType", "cboVolumeUnits", "cboPosition(0)", ...).
  static std::vector<std::string> comboEntries(const std::string& comboName);

  // Fills every control from the in-memory defaults (the window's load); `loading` is set while
  // it runs so that a list's change does not ask about the unit system.
  void fillFromDefaults(const Defaults& d);

  std::string& text(const std::string& name);
  const std::string& text(const std::string& name) const;
  int& check(const std::string& name);
  int check(const std::string& name) const;
  int& combo(const std::string& name);          // selected index
  int combo(const std::string& name) const;
  std::string comboText(const std::string& name) const;  // the selected entry's text

  // Focus loss: reformats a numeric box by its pattern (lenient reading of what was typed).
  void reformat(const std::string& fieldName);
  // Key filter for a box: the key, or 0 when swallowed (with a beep through `beeper`).
  int filterKey(const std::string& fieldName, int keyAscii, Prompter* beeper) const;
  static bool isNumericField(const std::string& fieldName);

  // A click on cboUnitType choosing `unitType` (not while loading): asks whether the other units
  // should follow and, on Yes, sets the lists and resets the recipe defaults and increments.
  void cboUnitType_Click(int unitType, Prompter& prompter);
  void cmdResetRecipe();
  void cmdResetIngr();
  void cmdResetWater();

  // Switching chkActivateQuillmark on looks for the label program in the folder of installed
  // programs: programsFolder + "/Quillmark 2/Quillmark2", then + "/Quilmk/Quilmk".
  void chkActivateQuillmark_Click(const std::string& programsFolder);

  // Copies every control to the in-memory defaults, numbers read strictly (skips the recipe
  // type and the sparge temperature). False when a box held no number (reported as a type
  // mismatch through the error routine).
  bool applyNewDefaults(Defaults& d, ErrorLog& errors) const;
  // Apply: applyNewDefaults, then the defaults saver.
  bool cmdApply(Defaults& d, SettingsStore& store, ErrorLog& errors) const;

  bool loading = false;

 private:
  std::map<std::string, std::string> texts_;
  std::map<std::string, int> checks_;
  std::map<std::string, int> combos_;
};

}  // namespace zy
