#pragma once
// Water treatment ("Water Treatment Calculator"): how much of six brewing salts brings the ions
// of the local water to those of a chosen water. The salts already in the recipe's other
// ingredients are read in at opening; Accept writes the salts back in teaspoons.
//
// Ions are always in the column order Ca, Cl, CO3, Mg, Na, SO4. The grids hold their cells as
// text, and the totals are summed from that text, so each salt's share enters already rounded.
#include <array>
#include <string>

namespace zy {

class RecipeEditor;
class Workbench;

constexpr int kIonCount = 6;
constexpr int kChemicalCount = 6;

struct WaterChemicalInfo {
  const char* formula;
  const char* name;
  const char* commonName;  // may be empty
  double gramsPerTsp;
  std::array<int, kIonCount> ppm;  // per gram in one US gallon
};
// Chemicals 1 to 6 at indexes 0 to 5.
const std::array<WaterChemicalInfo, kChemicalCount>& waterChemicals();

struct FamousWaterInfo {
  const char* name;
  std::array<int, kIonCount> ppm;
};
// The eleven entries of the famous-water list; entry 0, "(User Defined)", holds zeros (its values
// come from the settings).
const std::array<FamousWaterInfo, 11>& famousWaters();

// The ion names of the columns: "Ca", "Cl", "CO3", "Mg", "Na", "SO4".
const std::array<const char*, kIonCount>& ionNames();

// Which chemical (1..6) an ingredient name is, 0 for none. Formulas are tried first, then names,
// then common names, each pass over chemicals 1 to 6; the name must contain the entry, case
// respected.
int WaterChemical(const std::string& ingredientName);

class WaterTreatment {
 public:
  static constexpr const char* kCaption = "Water Treatment Calculator";
  static constexpr const char* kSection = "Water Treatment";
  // Rows of grdTotals.
  enum TotalsRow { ROW_LOCAL = 0, ROW_TOTALS = 1, ROW_TARGET = 2, ROW_RANGE = 3 };

  explicit WaterTreatment(RecipeEditor& editor);

  // Opening: tables, headings, the user row, the local water, the famous water, the volume,
  // the recipe's salts. Leaves Loading off and Changed false.
  void load();

  void ComputeIons(int chemical, double grams);
  void ComputeRanges();
  void SetRange(int actual, int target, int column);

  // The two linked boxes of a chemical (1..6).
  void setGrams(int chemical, const std::string& text);
  void setTsp(int chemical, const std::string& text);
  // A spinner press, +1 up or -1 down, by Increment in the selected mode.
  void udcDelta(int chemical, int direction);
  // 0 "Tsp", 1 "Grams".
  void optIncrement(int index);
  // Choosing a water of the list: its values become the target row.
  void selectFamous(int index);
  // Editing a target cell (column 0..5): the list goes to "(User Defined)" and the row is copied
  // into the user's values.
  void editTarget(int column, const std::string& text);

  // Accept: the settings, the salts into the recipe in teaspoons, recChanged. The window closes.
  void cmdAccept();
  // Clears the six chemicals.
  void cmdReset();
  // Closing: with changes, asks whether to save. False when the user cancelled.
  bool queryClose();

  // ---- State ---------------------------------------------------------------------------------
  // grdChemical: a heading row and rows 1..6; columns formula, name, then the six ions.
  std::array<std::array<std::string, 2 + kIonCount>, 1 + kChemicalCount> grdChemical;
  // grdTotals: rows local, totals, target, range; column 0 the label, then the six ions.
  std::array<std::array<std::string, 1 + kIonCount>, 4> grdTotals;
  std::array<std::string, 1 + kChemicalCount> txtTsp, txtGrams;  // 1..6
  std::array<int, 1 + kChemicalCount> ItemRow{};                 // grid rows, 0 for none
  std::array<int, kIonCount> userValues{};                       // the "(User Defined)" water
  int cboFamous = 1;
  double Volume = 0;  // US gallons
  std::string txtVolume, lblVolumeUnits;
  int IncrementMode = 0;
  double Increment = 0;
  bool Changed = false;
  bool Loading = false;

 private:
  void linkChanged();
  RecipeEditor& editor_;
  Workbench& wb_;
};

}  // namespace zy
