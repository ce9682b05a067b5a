#pragma once
// The recipe's computed characteristics: colour, original and final gravity, alcohol,
// bitterness and estimated cost, worked out from the ingredient table as it stands, and judged
// against the chosen beer style.
//
// Every result is written as the text the editor shows (lblColor, lblOG, ...). Whatever reads a
// result back, the style flags, the style match or the save, reads it from that text, so a value
// enters the next step rounded as it is shown, and "N/A" counts as 0.
#include <array>
#include <string>

#include "recipes/IngredientTable.h"

namespace zy {

class Workbench;

// The five style targets, in the order the flags are set.
enum TargetIndex { TARGET_OG = 0, TARGET_FG, TARGET_IBU, TARGET_COLOR, TARGET_ALCOHOL };
// Back colour of a target label: none (the window's own), green "OK", yellow near miss, red.
enum class TargetColour { None, Green, Yellow, Red };
const char* targetColourWord(TargetColour c);  // "none", "green", "yellow", "red"

struct TargetLabel {
  std::string text = "N/A";
  TargetColour colour = TargetColour::None;
};

struct Rgb {
  int r = 255, g = 255, b = 255;
};

// What the calculations read and write: the grid, the two volume boxes and the results.
struct RecipeSheet {
  IngredientTable grid;
  std::string txtFermentVolume = "0.0";
  std::string txtInitalBoilVolume = "0.0";
  std::string lblColor = "N/A", lblOG = "N/A", lblFG = "N/A", lblAlcohol = "N/A", lblIBU = "N/A";
  // Original gravity less 1 from the last colour computation; bitterness works from it.
  double ogPoints = 0;
  double totalCost = 0;
  std::array<TargetLabel, 5> targets;
  bool cmdDetailsEnabled = false;
  Rgb picColor;
};

// Colour, OG, FG and alcohol; sets ogPoints (left as it was when the fermenter volume is not
// above 0). Then the colour sample and the style flags.
void computeRecipeColor(Workbench& wb, RecipeSheet& s);
// IBU of the hops section, from ogPoints; the "too bitter" message above 300. Then the flags.
void computeRecipeBitterness(Workbench& wb, RecipeSheet& s);
// Sum of quantity times cost per unit over all item rows, into the total row.
void computeRecipeCost(Workbench& wb, RecipeSheet& s);
// The five target labels against the current style, wb.styles.CurrentStyleIndex (all "N/A"
// without one).
void updateStyleFlags(Workbench& wb, RecipeSheet& s);
inline void updateStyleIndicators(Workbench& wb, RecipeSheet& s) { updateStyleFlags(wb, s); }
// The colour sample from lblColor.
void updateColorSample(RecipeSheet& s);
// The colour table row (1..26) as red, green, blue.
Rgb colorTableRow(int row);

// lblExtPct while a malt's extraction rating is edited: the rating as a share of the 1.047
// maximum, "(77%)" for 1.036; "(0%)" for a rating outside 1 up to below 2.
std::string lblExtPct(double rating);

// The text of the message shown when the bitterness exceeds 300.
extern const char* const kTooBitterMessage;

// Reading a cell or a display field back as a number: the leading number, 0 for text.
double cellValue(const std::string& text);
// A money cell ("$1,234.50", "($1.25)") as a number.
double moneyValue(const std::string& text);

// Which calculations an edit triggers.
struct Recompute {
  bool color = false, bitterness = false, cost = false;
};
enum class EditEvent {
  Structure,         // opening, adding or deleting an ingredient, scaling, units or mash data
  MaltQuantity,
  HopsQuantity,
  OtherQuantity,     // other ingredients and yeast
  MaltUnit,
  HopsUnit,
  Cost,
  MaltRating,        // extraction rating or colour of a malt
  HopsRating,        // alpha or boil time
  YeastAttenuation,
  MashFlag,
  Volume,            // ferment or boil volume: bitterness only, colour and gravity stay as they were
};
Recompute recomputeFor(EditEvent e, int gravityAdjustment);
// Runs what an event calls for, in the order colour, bitterness, cost.
void recompute(Workbench& wb, RecipeSheet& s, EditEvent e);

}  // namespace zy
