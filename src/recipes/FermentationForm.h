#pragma once
// The fermentation and conditioning details of the open recipe ("Fermentation/Priming
// Instructions"): three fermentation stages, the carbonation, the container and the aging. The
// form holds the values itself between uses; the editor fills it when a recipe is opened and
// reads it back when the recipe is saved.
#include <array>
#include <functional>
#include <string>

#include "recipes/RecipeRecords.h"

namespace zy {

struct FermentationForm {
  static constexpr int kStages = 3;  // Primary, Secondary, Tertiary

  // Stage boxes: time value, time unit (0 Days, 1 Weeks, 2 Months), temperature, vessel
  // (0 Plastic, 1 Glass, 2 Stainless).
  std::array<std::string, kStages> txtValue;
  std::array<int, kStages> cboValueUnits{};
  std::array<std::string, kStages> txtTemp;
  std::array<int, kStages> cboVessel{};

  // 0 "Priming", 1 "Kraeusening", 2 "Forced CO2", 3 "None".
  int optCarbonation = 0;
  std::string txtConditioning;  // "Conditioning Instructions:"
  // 0 "Bottles", 1 "Kegs", 2 "Bottles & Kegs", 3 "Other".
  int optBottling = 0;

  // "Aging/Lagering": "Include", then "After Fermentation Age/Lager for" value, unit, "at" temp.
  bool chkAge = false;
  std::string txtAgeValue;
  int cboAgeUnits = 0;
  std::string txtAgeTemp;
  std::string lblTempUnits = "\xB0" "F";

  // Called on every change the user makes (the editor's recChanged).
  std::function<void()> onChanged;
  bool filling = false;

  // Fills every control from the record, with the change reaction off.
  void populate(const RecipeRecord& rec);
  // Writes the stages, container, carbonation, priming comment and aging into the record.
  void store(RecipeRecord& rec) const;

  // What the user does; each marks the recipe changed.
  void setStageValue(int stage, const std::string& text);
  void setStageUnits(int stage, int index);
  void setStageTemp(int stage, const std::string& text);
  void setStageVessel(int stage, int index);
  void setCarbonation(int index);
  void setConditioning(const std::string& text);
  void setBottling(int index);
  void setAge(bool include);
  void setAgeValue(const std::string& text);
  void setAgeUnits(int index);
  void setAgeTemp(const std::string& text);
  // Leaving a value box reformats its number (stage times "0.0#", temperatures "0.0", aging "0").
  void reformatStage(int stage);
  void reformatAge();

  // The aging controls are enabled while "Include" is ticked.
  bool agingEnabled() const { return chkAge; }

 private:
  void changed() const;
};

// Captions of the option groups, in index order.
extern const std::array<const char*, 4> kCarbonationCaptions;
extern const std::array<const char*, 4> kContainerCaptions;

}  // namespace zy
