#pragma once
// Water management ("Water Management"): the water balance of a brew day. From the mashable
// grain weight and the rates it works out the mash and sparge water, what the grains and hops
// keep, what the boil takes and what reaches the primary; it can hold the boil volume or the
// final volume at the recipe's targets by adding water, and it lays the balance out as the
// "Water Volume Report".
//
// The model keeps the boxes as the window shows them. Every sum reads a box back from its text,
// so a value rounded to one decimal on screen enters the next step rounded.
#include <string>
#include <vector>

namespace zy {

class RecipeEditor;
class Workbench;
class ErrorLog;
struct Defaults;

// One line of the report: caption, value, unit, and the red warning the window draws behind it.
struct WaterReportLine {
  std::string caption;  // "  Mash Water Volume:"
  std::string value;    // "3.6"
  std::string units;    // "US Gallons", "Minutes"
  bool red = false;
  std::string flag;     // "  <- Over Kettle Capacity", "  <- Over Target Volume" or empty

  // The line as plain text: caption, a tab, value, a blank, unit, then the flag.
  std::string text() const;
};

// What the smart instructions need without the window: the water still to add to the kettle and
// the fermenter, in the recipe's volume unit.
struct WaterBalanceInputs {
  double grainWeight = 0;   // mashable grains in the default weight unit
  double hopsWeight = 0;    // ounces
  double boilVolume = 0;    // target of the kettle
  double fermentVolume = 0; // target of the primary
  double mashRate = 0, spargeRate = 0, boilTime = 0;
  bool holdInitial = false, holdFinal = false, fullBoil = false;
};
struct WaterAdditions {
  double kettleTopUp = 0;
  double fermenterTopUp = 0;
};
// The balance on doubles, no rounding to one decimal. An evaporation of the whole kettle (rate
// times time of 100 percent or more) leaves the full-boil factor without meaning: reported as a
// division by zero.
WaterAdditions computeWaterAdditions(const WaterBalanceInputs& in, const Defaults& d, ErrorLog& errors);

// The balance's inputs for the recipe in the editor: its grains and hops, the two volume boxes
// as targets, the recipe's rates and boil time, and the three checks as the defaults set them.
WaterBalanceInputs waterBalanceInputs(const RecipeEditor& editor);

// The mashable grain weight of the editor's malts (mash column "Yes") in the default malt unit,
// and the hops weight in ounces.
double mashableGrainWeight(const RecipeEditor& editor);
double hopsWeightOunces(const RecipeEditor& editor);

class WaterManagement {
 public:
  static constexpr const char* kCaption = "Water Management";
  static constexpr const char* kReportTitle = "Water Volume Report";

  enum class Box { MashRate, SpargeRate, SpargeTemp, BoilTime, AddToKettle, AddToPrimary };

  explicit WaterManagement(RecipeEditor& editor);

  // Opening: the fixed inputs from the editor and the recipe, the boxes from the recipe's rates
  // or the defaults, the checks from the defaults, then the first computation. Changed is false.
  void load();

  // The whole balance and the report. Leaves `changed` as it was.
  void computeWaterVolumes();

  // ---- Events --------------------------------------------------------------------------------
  void setFullBoil(bool on);
  void setHoldFinalVolume(bool on);
  void setHoldInitialVolume(bool on);
  // Typing in a box: changed, no computation until the box is left.
  void editBox(Box b, const std::string& text);
  // Leaving a box: reformatted by its format, then the computation.
  void leaveBox(Box b);
  std::string& box(Box b);

  // OK: the volumes and rates to the recipe, recChanged when something changed. The window then
  // closes.
  void cmdOK();

  // ---- State ---------------------------------------------------------------------------------
  std::string lblGrainMass = "0.0", lblGrainUnits;
  double HopsWeight = 0;
  std::string lblTargetFinalVolume = "0.0", lblTargetInitialVolume = "0.0";
  std::string txtMashRate, txtSpargeRate, txtSpargeTemp, txtBoilTime;
  std::string txtAddToKettle = "0.0", txtAddToPrimary = "0.0";
  bool chkHoldInitialVolume = false, chkHoldFinalVolume = false, chkFullBoil = false;
  std::string lblVolumeUnits, lblVolMass, lblTempUnits, lblTimeUnits = "Minutes";

  // Results of the last computation.
  double mashVolume = 0, spargeVolume = 0, absorbed = 0, initial = 0, boiledAway = 0, hopsAbsorbed = 0,
         toPrimary = 0;
  std::string initialText = "0", toPrimaryText = "0";
  bool overCapacity = false, overTargetKettle = false, overTargetPrimary = false;
  std::vector<WaterReportLine> report;

  bool changed = false;

 private:
  RecipeEditor& editor_;
  Workbench& wb_;
};

}  // namespace zy
