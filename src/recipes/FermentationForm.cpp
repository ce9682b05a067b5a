#include "recipes/FermentationForm.h"

#include <cmath>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

const std::array<const char*, 4> kCarbonationCaptions = {"Priming", "Kraeusening", "Forced CO2", "None"};
const std::array<const char*, 4> kContainerCaptions = {"Bottles", "Kegs", "Bottles & Kegs", "Other"};

namespace {
constexpr double kNoAgingTemp = -9999.0;

// A list index from a stored code; a code outside the list shows its first entry.
int listIndex(int code, int count) { return code >= 0 && code < count ? code : 0; }

// A whole count of 16 bits from a box (the box takes digits only, but a pasted text must not
// overflow the field).
int wholeCount(const std::string& text) {
  double v = std::floor(lenientValue(text) + 0.5);
  if (v > 32767) v = 32767;
  if (v < -32768) v = -32768;
  return static_cast<int>(v);
}
}  // namespace

void FermentationForm::changed() const {
  if (!filling && onChanged) onChanged();
}

void FermentationForm::populate(const RecipeRecord& rec) {
  filling = true;
  for (int i = 0; i < kStages; ++i) {
    const size_t k = static_cast<size_t>(i);
    txtValue[k] = formatNumber(rec.fermentTime[k], "0.0#");
    cboValueUnits[k] = listIndex(rec.fermentTimeUnits[k], 3);
    txtTemp[k] = formatNumber(rec.fermentTemp[k], "0.0");
    cboVessel[k] = listIndex(rec.fermentVessel[k], 3);
  }
  // Codes outside the named ones mean "None" and "Other".
  optCarbonation = rec.carbonation >= 0 && rec.carbonation <= 2 ? rec.carbonation : 3;
  optBottling = rec.container >= 0 && rec.container <= 2 ? rec.container : 3;
  txtConditioning = trim(rec.primingComment);
  chkAge = rec.agingCount > 0;
  txtAgeValue = rec.agingCount > 0 ? itos(rec.agingCount) : "";
  cboAgeUnits = listIndex(rec.agingUnits, 3);
  txtAgeTemp = rec.agingTemp == kNoAgingTemp || rec.agingCount <= 0 ? "" : formatNumber(rec.agingTemp, "0.0");
  lblTempUnits = temperatureLabel(rec.unitType);
  filling = false;
}

void FermentationForm::store(RecipeRecord& rec) const {
  for (int i = 0; i < kStages; ++i) {
    const size_t k = static_cast<size_t>(i);
    rec.fermentTime[k] = lenientValue(txtValue[k]);
    rec.fermentTimeUnits[k] = cboValueUnits[k];
    rec.fermentTemp[k] = lenientValue(txtTemp[k]);
    rec.fermentVessel[k] = cboVessel[k];
  }
  rec.container = optBottling;
  rec.carbonation = optCarbonation;
  rec.primingComment = txtConditioning.substr(0, 80);
  const int count = chkAge ? wholeCount(txtAgeValue) : 0;
  if (count > 0) {
    rec.agingCount = count;
    rec.agingUnits = cboAgeUnits;
    rec.agingTemp = trim(txtAgeTemp).empty() ? kNoAgingTemp : lenientValue(txtAgeTemp);
  } else {
    rec.agingCount = 0;
    rec.agingUnits = -1;
    rec.agingTemp = kNoAgingTemp;
  }
}

void FermentationForm::setStageValue(int stage, const std::string& text) {
  if (stage < 0 || stage >= kStages) return;
  txtValue[static_cast<size_t>(stage)] = text;
  changed();
}

void FermentationForm::setStageUnits(int stage, int index) {
  if (stage < 0 || stage >= kStages) return;
  cboValueUnits[static_cast<size_t>(stage)] = listIndex(index, 3);
  changed();
}

void FermentationForm::setStageTemp(int stage, const std::string& text) {
  if (stage < 0 || stage >= kStages) return;
  txtTemp[static_cast<size_t>(stage)] = text;
  changed();
}

void FermentationForm::setStageVessel(int stage, int index) {
  if (stage < 0 || stage >= kStages) return;
  cboVessel[static_cast<size_t>(stage)] = listIndex(index, 3);
  changed();
}

void FermentationForm::setCarbonation(int index) {
  optCarbonation = listIndex(index, 4);
  changed();
}

void FermentationForm::setConditioning(const std::string& text) {
  txtConditioning = text;
  changed();
}

void FermentationForm::setBottling(int index) {
  optBottling = listIndex(index, 4);
  changed();
}

void FermentationForm::setAge(bool include) {
  chkAge = include;
  changed();
}

void FermentationForm::setAgeValue(const std::string& text) {
  txtAgeValue = text;
  changed();
}

void FermentationForm::setAgeUnits(int index) {
  cboAgeUnits = listIndex(index, 3);
  changed();
}

void FermentationForm::setAgeTemp(const std::string& text) {
  txtAgeTemp = text;
  changed();
}

void FermentationForm::reformatStage(int stage) {
  if (stage < 0 || stage >= kStages) return;
  const size_t k = static_cast<size_t>(stage);
  const bool was = filling;
  filling = true;
  txtValue[k] = formatNumber(lenientValue(txtValue[k]), "0.0#");
  txtTemp[k] = formatNumber(lenientValue(txtTemp[k]), "0.0");
  filling = was;
}

void FermentationForm::reformatAge() {
  const bool was = filling;
  filling = true;
  if (!trim(txtAgeValue).empty()) txtAgeValue = formatNumber(lenientValue(txtAgeValue), "0");
  if (!trim(txtAgeTemp).empty()) txtAgeTemp = formatNumber(lenientValue(txtAgeTemp), "0.0");
  filling = was;
}

}  // namespace zy
