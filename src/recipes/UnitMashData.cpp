#include "recipes/UnitMashData.h"

#include <algorithm>
#include <cmath>

#include "core/defaults.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/ports.h"
#include "recipes/IngredientTable.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeRecords.h"

namespace zy {

namespace {

int inList(int code, const StringList& list, int fallback) {
  return code >= 0 && code < static_cast<int>(list.size()) ? code : fallback;
}

}  // namespace

void UnitMashData::load(const RecipeRecord& rec, const Defaults& defaults) {
  const Measures& m = measures();
  cboRecipeUnitType = inList(rec.unitType, m.unitTypes, inList(defaults.unitMeasure, m.unitTypes, 0));
  cboRecipeVolumeUnits = inList(rec.volumeUnits, m.volumeUnits, inList(defaults.volumeUnits, m.volumeUnits, 1));
  efficiency_ = rec.mashEfficiency;
  setMashType(inList(rec.mashType, m.mashTypes, 0), defaults);
  txtBoilTime = formatNumber(rec.boilTime, "0");
}

void UnitMashData::setMashType(int index, const Defaults& defaults) {
  cboMashType = inList(index, measures().mashTypes, 0);
  if (cboMashType == 0) {
    mashEffEnabled = false;
    txtMashEfficiency = "N/A";
    return;
  }
  mashEffEnabled = true;
  // Written so that a field that holds no number at all shows the default too.
  const bool usable = efficiency_ >= kLowestShownEfficiency && efficiency_ < kHighestShownEfficiency;
  txtMashEfficiency = formatNumber(usable ? efficiency_ : defaults.mashEff, "0");
}

std::string UnitMashData::boilTimeWarning(double longestHopsBoil) {
  return "You cannot set the Boil Time to less than " + plainText(longestHopsBoil) +
         "\n        the largest hops boil time\n             Boil Time Reset";
}

double UnitMashData::longestHopsBoil(const IngredientTable& grid) {
  double longest = 0;
  const int header = grid.headerRow(KIND_HOPS), end = grid.sectionEnd(KIND_HOPS);
  for (int r = header + 1; r < end; ++r) {
    if (!grid.isItemRow(r)) continue;
    const double t = lenientValue(grid.cell(r, COL_DETAIL));
    if (std::isfinite(t)) longest = std::max(longest, t);
  }
  return longest;
}

bool UnitMashData::cmdOK(RecipeRecord& rec, RecipeEditor& editor, const Defaults& defaults, Prompter& prompter) {
  double efficiency = defaults.mashEff;
  if (cboMashType != 0) {
    const auto typed = strictValue(txtMashEfficiency);
    if (!typed || !(*typed >= 1 && *typed <= 100)) {
      prompter.message("The mash efficiency must be a whole number of percent from 1 to 100.", kCaption,
                       Icon::Warning);
      return false;
    }
    efficiency = std::round(*typed);
  }

  // 1. Units, mash type and efficiency.
  rec.unitType = cboRecipeUnitType;
  rec.volumeUnits = cboRecipeVolumeUnits;
  rec.mashType = cboMashType;
  rec.mashEfficiency = efficiency;

  // 2. The boil cannot be shorter than the longest-boiled hops.
  const double longest = longestHopsBoil(editor.sheet.grid);
  const double entered = lenientValue(txtBoilTime);
  if (!(entered >= longest)) {
    prompter.message(boilTimeWarning(longest), kBoilTimeTitle, Icon::Warning);
    rec.boilTime = longest;
  } else {
    rec.boilTime = entered;
  }
  txtBoilTime = formatNumber(rec.boilTime, "0");

  // 3. The editor shows the new fields and recomputes.
  const Measures& m = measures();
  const bool was = editor.filling;
  editor.filling = true;
  editor.lblUnitType = listText(m.unitTypes, rec.unitType);
  editor.lblVolumeUnits = listText(m.volumeUnits, rec.volumeUnits);
  editor.fermentation.lblTempUnits = temperatureLabel(rec.unitType);
  editor.txtBoilTime = txtBoilTime;
  editor.filling = was;
  editor.mashDataChanged();
  return true;
}

}  // namespace zy
