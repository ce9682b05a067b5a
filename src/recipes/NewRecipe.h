#pragma once
// A new recipe from a beer style ("New Recipe"): the brewer picks the kind of mash, and the new
// recipe gets a grain bill chosen by that kind and the style's colour, handed to the malt
// formulator with the style's gravity and colour as its targets.
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zy {

class MaltFormulator;
struct Inventory;
struct RecipeOpenHooks;
class RecipeEditor;
class Workbench;

// A malt the bill asks for, with the colour range searched in the inventory and the row used
// when the inventory has none.
struct PresetMalt {
  const char* name;
  double colorFrom, colorTo;
  bool mash;
  const char* color;
  const char* extraction;
};
// The eight preset malts in their order.
const std::vector<PresetMalt>& presetMalts();

// An inventory malt that matched.
struct InventoryMalt {
  std::string name;
  double cost = 0, color = 0, extraction = 0;
};
// The inventory's look-up: the first malt in the colour range with the mash flag.
using FindInvItem = std::function<std::optional<InventoryMalt>(double colorFrom, double colorTo, bool mash,
                                                               const std::string& name)>;
std::optional<InventoryMalt> noInventory(double, double, bool, const std::string&);
// The look-up over the inventory's malt list, in the order the list holds: the first malt whose
// colour lies in the range (ends included) and whose mash flag is the one asked for.
FindInvItem inventoryMaltFinder(const Inventory& inventory);

class NewRecipeDialog {
 public:
  static constexpr const char* kCaption = "New Recipe";
  enum Choice { ALL_MASH = 0, PARTIAL_MASH = 1, NO_MASH = 2 };
  // The three choices in the dialog's order.
  static const std::vector<std::string>& choices();
  // The mash type code of a choice: 3 "Step Infusion", 1 "Partial", 0 "No Mash".
  static int mashTypeOf(int choice);

  explicit NewRecipeDialog(Workbench& wb) : wb_(wb) {}

  // The caller's fields: the style row's name and limits.
  void setStyle(int row);
  // The efficiency box for the present choice: "N/A" without a mash, else the default.
  std::string efficiencyText() const;
  void setChoice(int c);

  // The bill: preset index and percent, by the choice and styleColor.
  std::vector<std::pair<int, double>> grainBill() const;

  // OK: a new recipe in the editor titled after the style, its mash type and efficiency, the
  // formulator opened on the bill with the style's midpoints as targets. Returns the new recipe's
  // record number (0 when no slot was free). With the editor's hooks, a changed recipe in the
  // editor is first offered for saving, and "Cancel" ends the action with 0.
  long cmdOK(RecipeEditor& editor, MaltFormulator& formulator, const FindInvItem& findInvItem = noInventory,
             const RecipeOpenHooks* hooks = nullptr);

  std::string lblStyle;  // the style's name
  double ogLow = 0, ogHigh = 0, srmLow = 0, srmHigh = 0;
  int styleRow = -1;
  int choice = ALL_MASH;
  double styleColor() const { return srmLow; }

 private:
  Workbench& wb_;
};

}  // namespace zy
