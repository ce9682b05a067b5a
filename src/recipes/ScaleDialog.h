#pragma once
// "Scale Recipe Quantities" (dlgScale): rescales every ingredient of the open recipe to a new
// fermentation volume and, with it, to a unit system. Each row's quantity grows by the ratio of
// the new volume to the old one and is then expressed in the unit of the chosen system (pounds
// and ounces for US and British, kilograms and grams for Metric; liquid measures likewise), with
// the cost per unit following the unit. The recipe's volumes, volume unit and unit system follow,
// and the three calculations run in their order.
#include <array>
#include <string>

namespace zy {

class RecipeEditor;

struct ScaleDialog {
  static constexpr const char* kCaption = "Scale Recipe Quantities";
  static constexpr const char* kDescription =
      "Rescales all the recipe ingredient quantities based on the Fermentation Volume";
  // The captions of optUnits, index = unit system.
  static const std::array<const char*, 3>& unitCaptions();

  std::string txtVolume;  // the new fermentation volume
  int cboVolume = 1;      // its volume unit
  int optUnits = 0;       // 0 US, 1 Metric, 2 British

  // Fills the boxes from the editor: the present fermentation volume, its unit and the recipe's
  // unit system.
  void open(const RecipeEditor& editor);
  // Choosing a unit system proposes its volume unit (US Gallons, Liters, Imp Gallons) and shows
  // the same volume in it.
  void setUnitSystem(int system);
  // OK: rescales the editor's table. False, with a message and nothing changed, when either
  // volume is not above zero.
  bool apply(RecipeEditor& editor) const;
};

// The unit a row takes in a unit system (kind 0 malt .. 3 yeast; the code in the kind's list),
// and how many of the new unit make one of the old.
int scaledUnit(int kind, int unit, int system);
double unitFactor(int kind, int fromUnit, int toUnit);

}  // namespace zy
