#pragma once
// The mash schedule ("Mash Information"): the recipe's time and temperature steps as a list with
// a live plot of the mash curve.
//
// The list has two meanings. In "For Each Temp Separately" (mode 1, the stored one) an entry is a
// hold: this temperature for this many minutes. In "From the Start of the Mash" (mode 0) an entry
// is a point of the curve: at this many minutes the mash is at this temperature, so the same
// schedule has one entry more. Switching the mode converts the list.
#include <string>
#include <utility>
#include <vector>

namespace zy {

class RecipeEditor;
class Workbench;

struct MashEntry {
  std::string time, temp, comment;
};

// What the chart draws: points in minutes and degrees, the scale of both axes and their titles.
struct MashPlot {
  std::vector<std::pair<double, double>> points;
  bool staircase = false;  // holds drawn as steps (mode 1); else points joined by lines
  double timeMin = 0, timeMax = 60, timeStep = 0;
  double tempMin = 70, tempMax = 175, tempStep = 0;
  std::string xTitle = "Time (Min)", yTitle = "Temp Deg";
};

class MashSchedule {
 public:
  static constexpr const char* kCaption = "Mash Information";
  static constexpr int kSteps = 13;       // steps a recipe keeps
  static constexpr int kMaxPlotPoints = 100;
  enum Mode { FROM_START = 0, EACH_TEMP = 1 };

  explicit MashSchedule(RecipeEditor& editor);

  // Opening: the recipe's steps with a time above 0, in mode 1, unchanged.
  void load();

  // Entry `index` (from 1) by the numeric value of its texts; false past the list.
  bool getValues(int index, double& time, double& temp, std::string& comment) const;
  // The enabled states from the selection (0-based, -1 for none) and the mode.
  void ManageButtons(int index);

  // Choosing a meaning; a non-empty list is converted.
  void optTime(int mode);
  void select(int index);
  void cmdNew();
  // Asks, then removes the selected entry.
  void cmdDelete();
  void cmdMoveUp();
  void cmdMoveDn();
  // Live editing of the selected entry.
  void setTime(const std::string& text);
  void setTemp(const std::string& text);
  void setComment(const std::string& text);

  // The chart's content for a drawing area of `width` by `height` twips (1/15 of a pixel at the
  // usual resolution), by whose size the tick steps go.
  MashPlot plotMash(double width, double height) const;

  // OK: back to the stored meaning, the steps into the recipe, recChanged. The window closes.
  void cmdOK();
  // Closing: with changes, asks whether to save. False when the user cancelled.
  bool queryClose();

  // ---- State ---------------------------------------------------------------------------------
  std::vector<MashEntry> lvMash;
  int selected = -1;
  int mode = EACH_TEMP;
  std::string txtTime, txtTemp, txtComment;
  bool cmdMoveUpEnabled = false, cmdMoveDnEnabled = false, editEnabled = false, cmdDeleteEnabled = false;
  bool changed = false;
  bool filling = false;

 private:
  void toFromStart();
  void toEachTemp();
  void fillBoxes();
  void edited();
  RecipeEditor& editor_;
  Workbench& wb_;
};

}  // namespace zy
