#pragma once
// "Recipe Units/Mash Data" (frmUnitMashData): the open recipe's unit system, volume unit, mash
// type, mash efficiency and boil time. The mash type drives the efficiency box: without a mash
// the efficiency is the user's default and the box reads "N/A". OK writes the five fields into
// the current recipe, never letting the boil run shorter than the longest-boiled hops, and has
// the recipe editor show and recompute them.
#include <string>

namespace zy {

class RecipeEditor;
struct Defaults;
struct RecipeRecord;
class IngredientTable;
class Prompter;

struct UnitMashData {
  static constexpr const char* kCaption = "Recipe Units/Mash Data";
  static constexpr const char* kBoilTimeTitle = "Warning";
  // The efficiency the box will take when the mash type allows one.
  static constexpr double kLowestShownEfficiency = 25, kHighestShownEfficiency = 100;

  int cboRecipeUnitType = 0;     // position in the unit systems
  int cboRecipeVolumeUnits = 1;  // position in the volume units
  int cboMashType = 0;           // position in the mash types
  std::string txtMashEfficiency;
  std::string txtBoilTime;
  bool mashEffEnabled = false;   // lblMashEff and txtMashEfficiency

  // The window's load from the current recipe: the lists at the record's codes (a code outside
  // its list takes the default), then the mash type's rule for the efficiency box, the boil time
  // in "0".
  void load(const RecipeRecord& rec, const Defaults& defaults);
  // Choosing a mash type. "No Mash" disables the efficiency box and shows "N/A"; any other type
  // shows the recipe's efficiency when it lies from 25 to below 100, else the default, in "0".
  void setMashType(int index, const Defaults& defaults);

  // OK. The efficiency must be a number from 1 to 100 when a mash is chosen; otherwise a message
  // says so and nothing changes (false). Then the units, mash type and efficiency are stored; a
  // boil time below the longest hops boil is refused with a warning and replaced by that time;
  // the editor's labels follow and it recomputes (mashDataChanged, which marks the recipe
  // changed).
  bool cmdOK(RecipeRecord& rec, RecipeEditor& editor, const Defaults& defaults, Prompter& prompter);

  // The warning's text for a given longest hops boil.
  static std::string boilTimeWarning(double longestHopsBoil);
  // The longest boil time among the hops rows of the editor's table, 0 without hops.
  static double longestHopsBoil(const IngredientTable& grid);

 private:
  double efficiency_ = 0;  // the recipe's efficiency as the window opened
};

}  // namespace zy
