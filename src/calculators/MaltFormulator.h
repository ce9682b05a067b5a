#pragma once
// The malt formulator ("Advanced Malt Formulator"): works out the quantities of the recipe's
// malts for a target original gravity, either with the brewer's own percentages or with the
// percentages searched so that a target colour is met as well. Export hands the result back to
// the recipe.
#include <string>
#include <vector>

namespace zy {

class RecipeEditor;
class Workbench;
struct InventoryItem;

// One row of lvMalts. Numbers are kept as the list shows them.
struct FormulatorMalt {
  std::string name;
  std::string targetPct = "0";    // the brewer's percent
  std::string computedPct = "0";  // what the last computation gave
  std::string quantity = "0.0";
  int unit = 0;                   // weight unit code
  std::string extraction = "1.000";
  std::string color = "0.0";
  std::string cost = "$0.00";
  bool mash = false;
};

// A range bar: the style's low and high and the target's place on it.
struct RangeBar {
  std::string label;  // "OG Range: 1.040 - 1.050"
  double low = 0, high = 0, value = 0;
};

class MaltFormulator {
 public:
  static constexpr const char* kCaption = "Advanced Malt Formulator";
  static constexpr int kMaxMalts = 20;
  static constexpr const char* kCloseEnough = "That's as close was the Formulator can get with these malts";

  explicit MaltFormulator(RecipeEditor& editor);

  // Opening on the recipe: its malts (target percent their share by weight), volume, mash type
  // and efficiency.
  void load();
  // Opening with no malts (the new recipe from a style adds its own).
  void loadEmpty();

  void maltsChanged();
  void maltsReset();
  void computeTotalPct();
  void setVolume();
  void addMalt(const std::string& name, double quantity, int unit, double cost, double color, double extraction,
               bool mash, double percent);
  // A malt chosen in the inventory: its name, unit, cost, colour, extraction and mash flag, no
  // quantity and no percent yet. Other kinds of stock are not malts and are left out (false).
  bool addInventoryMalt(int category, const InventoryItem& item);
  // Asks, then removes the selected row.
  void deleteMalt(int row);
  void setTargetPct(int row, const std::string& text);
  // Selecting a row shows its target percent in txtPct; editing txtPct edits that row.
  void selectMalt(int row);
  void setPct(const std::string& text);
  void leaveTargetOG();
  void leaveTargetColor();
  void leaveMashEff();
  // Spinners: OG by 0.001, colour by 0.5.
  void spinTargetOG(int direction);
  void spinTargetColor(int direction);

  RangeBar setRange1() const;
  RangeBar setRange2() const;

  void computeFormulation();
  // Quantities from the target percentages, which must total 100. False when a check stopped it.
  bool mnuComputeOG();
  // The solver. False when a check stopped it.
  bool mnuComputeOGColor();
  void cmdCopyPct();
  // Export: every malt of the recipe replaced by the list. False when nothing was exported.
  bool mnuFileExport();
  // Closing: with changes, asks whether to save. False when the user cancelled.
  bool queryClose();

  // ---- State ---------------------------------------------------------------------------------
  std::vector<FormulatorMalt> lvMalts;
  double Volume = 0;         // in the recipe's unit
  int volumeUnit = 1;
  double gallons = 0;
  int MashType = 0;
  std::string txtTargetOG = "1.045", txtTargetColor = "8.0", txtMashEff = "85";
  std::string txtCompOG = "1.000", txtCompColor = "0.0";
  std::string lblTotal = "(0%)", lblQuantity;
  int selectedRow = -1;
  std::string txtPct;
  bool coarse = false;       // mnuComputeResolution(0)
  bool changed = false;
  bool computed = false;
  std::string saveImage = "Save", saveTip = "Save Recipe";

 private:
  bool sharedChecks(bool solver);
  double efficiency() const;
  // Extraction of a row as the mash leaves it.
  double effectiveExtraction(const FormulatorMalt& m) const;
  // Steps 5 to 7 of the solver over the given percentages: the total, each quantity, and (with
  // `pickBase`) the base malt and its share written back. False when an extraction stopped it.
  bool quantitiesFromPercents(const std::vector<double>& pct, bool pickBase, int& base);
  // The partial-mash pass over the shares; false when it cannot be done.
  bool spreadPartialMashShares(std::vector<double>& share);
  RecipeEditor& editor_;
  Workbench& wb_;
};

}  // namespace zy
