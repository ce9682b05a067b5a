#pragma once
// The model of the hops utilization window (frmHopsUtilization): the grid of 18 values as the
// texts it shows, the curve's title, the adjustment mode with its three factor boxes, the
// formula labels, the graph's points, and the commands. It works on a copy: nothing reaches the
// program-wide state or the settings until saveHopsUtilization (Accept); Cancel just drops it.
#include <array>
#include <string>
#include <vector>

#include "calculators/HopsUtilization.h"
#include "core/settings.h"

namespace zy {

inline constexpr const char* kInvalidFactorMessage = "ERROR: Invalid Factor Value Entered";

// One curve of the graph: the height of each row's point, counted down from a baseline of 2400
// at 48 units per percent (40 percent at the top).
struct UtilGraphCurve {
  std::string label;                      // "Base", or the gravity formatted "0.000"
  std::array<int, kUtilRows> heights{};   // rows 1..18 at 0..17
};

class HopsUtilizationEditor {
 public:
  static constexpr int kBaseline = 2400;
  static constexpr int kUnitsPerPercent = 48;

  // Window load: the grid from UtilTable ("0.0"), the mode, the factor boxes from the stored
  // factors passed through the factor validation, the title.
  void load(const HopsUtilization& h);

  // ---- the grid
  // Minutes column text of row 1..18: "5" ... "90".
  static std::string minutesText(int row);
  // Editing a cell as the cell editor does: remembers the cell's previous value, puts the text
  // in formatted "0.0" and commits it through applyUtilEdit.
  void editCell(int row, const std::string& text);
  // Row 1..18: clamps the cell to 0..40, shows it "#0.0", marks the curve custom (unless the
  // remembered value is the -1.0 sentinel of a preset), and keeps the curve from falling on
  // both sides of the row. Nothing further when the value equals the remembered one.
  void applyUtilEdit(int row);
  double cellValue(int row) const;  // the cell read as a single-precision number

  // ---- the commands
  void cmdRager();
  void cmdTinseth();
  void cmdGaretz();
  void cmdReset();
  // Selecting an adjustment mode (0 "None", 1 "Rager/Garetz", 2 "Tinseth") applies its presets
  // to the factor boxes, also when it is already chosen.
  void setMode(int mode);

  // ---- the factor boxes (index 0, 1, 2)
  // Typing into a box: the text changes and the formula labels are rewritten.
  void setFactorText(int index, const std::string& text);
  // The box gains the focus: its value is remembered, in the same place as a cell's.
  void focusFactor(int index);
  // Leaving a box: the value is mended by the validation rules (1.0 at least for box 0, the
  // Tinseth base 0.000125 for box 1 in mode 2, else 0.2 for zero or less; the graph increment
  // 0 to 0.1, else 0.02 and box 2 "0.020"); a changed value re-applies row 18 through
  // applyUtilEdit (which marks the curve custom) and redraws the graph.
  void validateFactor(int index);

  // ---- the graph
  // The curves for the present grid and factors: the base curve, then in modes 1 and 2 one curve
  // at each of the gravities Factor1 + increment and Factor1 + 2 * increment. Empty, with
  // graphError set to "ERROR: Invalid Factor Value Entered", when a factor makes them incomputable.
  std::vector<UtilGraphCurve> graphPoints() const;
  void redrawGraph();

  // ---- Accept and Cancel
  // Accept: title, rows, mode and factors into the program-wide state and the settings, then
  // the derived arrays rebuilt. In mode 0 the boxes read "N/A" and the factors become 0.
  void saveHopsUtilization(HopsUtilization& h, SettingsStore& settings) const;

  // The window's state.
  std::array<std::string, kUtilRows + 1> cells;  // grid column "Util %", rows 1..18
  std::string lblTitle;                           // the curve's title
  int mode = GRAVITY_ADJUST_RAGER;                // optGravity
  std::array<std::string, 3> txtFactor{"1.050", "0.200", "0.020"};
  std::array<bool, 3> factorEnabled{true, true, true};
  std::array<bool, 3> factorLocked{false, false, false};  // shown but not editable
  std::array<int, 3> factorMaxLength{0, 5, 0};            // 0: no limit
  double graphIncrement = 0.02;
  // The formula labels, one copy for mode 1 (index 0) and one for mode 2 (index 1).
  std::array<std::string, 2> lblBottom{"0.200", "0.000125"};
  std::array<std::string, 2> lblGravity{"(for gravities >= 1.050)", "(for gravities >= 1.000)"};
  std::array<std::string, 2> lblTop{"(Gravity - 1.050)", "(Gravity - 1.000)"};
  std::array<std::string, 2> lblIncrement{"(graph by 0.020)", "(graph by 0.030)"};
  std::string lblBlue, lblGreen;  // the two gravities of the graph, "N/A" in mode 0
  std::vector<UtilGraphCurve> graph;
  std::string graphError;         // the message shown when the graph could not be drawn

  // The previous value of the cell or factor box being edited, one for both (-1.0: a preset).
  double rememberedValue = -1.0;
  bool applyingPreset = false;    // blocks the formula labels while a preset fills the boxes

 private:
  // Rows above `row` that stand higher than it are lowered to its text, rows below that stand
  // lower are raised to it.
  void keepMonotonic(int row);
  void fillCurve(const std::array<double, kUtilRows>& curve, int newMode, const char* title);
  void updateFormulaLabels();
  void updateGravityLabels();
};

}  // namespace zy
