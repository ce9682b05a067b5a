#include "batchlog/BatchLogEditor.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "core/dates.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/text.h"
#include "recipes/IngredientTable.h"
#include "recipes/RecipeCalculations.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kNA = "N/A";
const char* const kLogError = "Batch Log Error";

// A damaged record's field that holds no number at all shows as none.
double sound(double v) { return std::isfinite(v) ? v : 0; }
// Volumes and weights when a log is opened: a zero shows as a blank.
std::string volumeText(double v) { return formatNumber(sound(v), "0.0#; ; "); }
// Gravities when a log is opened, in the hydrometer's three decimals; no reading shows blank.
std::string gravityText(double v) { return sound(v) != 0 ? formatNumber(v, "0.000") : std::string(); }
// Temperatures and the boil time as typed numbers; none shows blank.
std::string plainNumber(double v) { return sound(v) != 0 ? plainText(v) : std::string(); }

int indexOf(const auto& names, const std::string& name) {
  for (size_t i = 0; i < names.size(); ++i)
    if (names[i] == name) return static_cast<int>(i);
  return -1;
}
}  // namespace

double adjustSG(double t) {
  if (t < 32) return -0.0008;
  if (t <= 60) return t * 0.00002846 - 0.0019;
  if (t <= 80) return t * 0.0001 - 0.006;
  if (t <= 120) return t * 0.0002 - 0.014;
  if (t <= 150) return t * 0.00027 - 0.0222;
  if (t <= 212) return t * 0.00035654 - 0.03529;
  return 0.04;
}

MashedGrain mashedGrain(const IngredientTable& g, int unitType) {
  const Measures& m = measures();
  const int to = unitType == METRIC_MEASURES ? UNIT_KG : UNIT_LBS;
  MashedGrain sum;
  for (int r = 1; r < g.totalRow() && g.row(r).isItem(); ++r) {
    const IngredientRow& row = g.row(r);
    if (row.cells[COL_MASH] != "Yes" || row.unit < 0 || row.unit > 3) continue;
    const double w = cellValue(row.cells[COL_QTY]) * m.weightConvert[row.unit][to];
    sum.weight += w;
    sum.extract += (cellValue(row.cells[COL_RATING]) - 1.0) * w;
  }
  return sum;
}

FieldKind fieldKind(LogField f) {
  switch (f) {
    case LogField::MashGravity: case LogField::FermentGravity: case LogField::ReadGravity:
      return FieldKind::Gravity;
    case LogField::SpargeVolume: case LogField::BoilVolume: case LogField::KraeuseningWort:
    case LogField::FermentVolume: case LogField::MashVolume: case LogField::GrainWeight:
    case LogField::Quantity1: case LogField::Quantity2: case LogField::Capacity1: case LogField::Capacity2:
    case LogField::Infusion:
      return FieldKind::Volume;
    case LogField::SpargeTemp: case LogField::MashTemp: case LogField::FermentTemp: case LogField::PitchingTemp:
    case LogField::MashStepTemp: case LogField::ReadTemp:
      return FieldKind::Temperature;
    default:
      return FieldKind::Plain;
  }
}

BatchLogWindowSettings BatchLogWindowSettings::read(const SettingsStore& s) {
  BatchLogWindowSettings w;
  w.stored = !s.read(kBatchLogSection, "MainLeft", "").empty() && !s.read(kBatchLogSection, "MainTop", "").empty();
  w.left = readLong(s, kBatchLogSection, "MainLeft", 0);
  w.top = readLong(s, kBatchLogSection, "MainTop", 0);
  w.windowState = static_cast<int>(readLong(s, kBatchLogSection, "WindowState", 0));
  return w;
}

void BatchLogWindowSettings::write(SettingsStore& s) const {
  s.write(kBatchLogSection, "WindowState", itos(windowState));
  if (windowState == 0) {
    s.write(kBatchLogSection, "MainLeft", itos(left));
    s.write(kBatchLogSection, "MainTop", itos(top));
  }
}

// ---- Opening and saving ---------------------------------------------------------------------

void BatchLogEditor::setRecipe(const LogRecipeContext& recipe) {
  recipe_ = recipe;
  const bool metric = recipe.unitType == METRIC_MEASURES;
  lblMash = metric ? "Kgs of Grain Mashed:" : "Lbs of Grain Mashed:";
  lblWeightUnits = metric ? "Kgs" : "Lbs";
  lblTempUnits = temperatureLabel(recipe.unitType);
  lblVol = {recipe.volumeUnitName, recipe.volumeUnitName, "(" + recipe.volumeUnitName + ")"};
  computeMashTarget();
}

void BatchLogEditor::computeMashTarget() {
  MashTargetBase = 0;
  lblTargetExt = kNA;
  if (!recipe_.grid) return;
  const MashedGrain g = mashedGrain(*recipe_.grid, recipe_.unitType);
  if (!(g.weight > 0) || !std::isfinite(g.extract)) return;
  MashTargetBase = g.extract * 10.0 / g.weight;
  lblTargetExt = formatNumber(MashTargetBase * recipe_.mashEfficiency, "0.0");
}

void BatchLogEditor::showLog(const BatchLogRecord& rec) {
  computeMashTarget();
  filling = true;
  record = rec;
  lblBatchNo = itos(rec.batchNo);
  txtDateBrewed = trim(rec.dateBrewed);
  cboLogStatus = std::clamp(rec.status, 0, 4);
  lvMash.clear();
  for (int i = 0; i < kLogMashSlots; ++i)
    if (rec.mashTime[i] > 0 && std::isfinite(rec.mashTime[i]))
      addMashEntry(rec.mashTime[i], sound(rec.mashTemp[i]), sound(rec.mashInfusion[i]));
  txtSpargeVol = volumeText(rec.spargeVolume);
  txtSpargeTemp = plainNumber(rec.spargeTemp);
  txtBoilVol = volumeText(rec.boilVolume);
  txtMashGravity = gravityText(rec.mashGravity);
  txtMashTemp = plainNumber(rec.mashGravityTemp);
  txtBoilTime = plainNumber(rec.boilTime);
  txtKraeusen = volumeText(rec.kraeuseningWort);
  txtFermVol = volumeText(rec.fermentVolume);
  txtFinalGravity = gravityText(rec.fermentGravity);
  txtFGTemp = plainNumber(rec.fermentGravityTemp);
  txtPitchTemp = plainNumber(rec.pitchingTemp);
  lvReading.clear();
  const int readings = std::clamp(rec.readingCount, 0, kLogReadingSlots);
  for (int i = 0; i < readings; ++i) {
    std::string type = readingTypeName(rec.readingType[i]);
    lvReading.push_back({type.empty() ? readingTypeName(READING_PRIMARY) : type, trim(rec.readingDate[i]),
                         plainNumber(rec.readingTemp[i]), gravityText(rec.readingGravity[i]),
                         trim(rec.readingNote[i])});
  }
  txtDateCond = trim(rec.bottlingDate);
  cboAgedIn = trim(rec.agedIn);
  cboCondition = trim(rec.conditioning);
  txtCondDetails = trim(rec.conditionDetails);
  txtComments = rtrim(rec.comments);
  txtMashVol = volumeText(rec.mashVolume);
  txtLbsGrain = volumeText(rec.grainsMashed);
  for (size_t k = 0; k < 2; ++k) {
    txtQuantity[k] = volumeText(rec.quantity[k]);
    txtCapacity[k] = volumeText(rec.capacity[k]);
    cboContainerUnits[k] = rec.containerUnits[k] >= 0 && rec.containerUnits[k] < 10 ? rec.containerUnits[k] : -1;
  }
  lblVolume = cboAgedIn.empty() ? "Bottle Volume" : "";
  if (!cboAgedIn.empty()) setAgedIn(cboAgedIn);
  updateAdjustedGravities();
  updateExtractionPoints();
  selectMash(lvMash.empty() ? -1 : 0);
  selectReading(lvReading.empty() ? -1 : 0);
  monDateVisible = false;
  filling = false;
  logReset();
}

bool BatchLogEditor::startNewLog() {
  const double grain = recipe_.grid ? mashedGrain(*recipe_.grid, recipe_.unitType).weight : 0;
  auto rec = store.newBatchLog(wb, grain);
  if (!rec) return false;
  showLog(*rec);
  // Nothing is on file yet: closing asks whether to keep the new log.
  logChanged();
  focusTo = "txtDateBrewed";
  return true;
}

bool BatchLogEditor::openLog(long recordNo) {
  auto rec = store.openBatchLog(wb, recordNo);
  if (!rec) return false;
  showLog(*rec);
  return true;
}

BatchLogRecord BatchLogEditor::toRecord() const {
  BatchLogRecord r = record;
  r.dateBrewed = txtDateBrewed;
  r.status = cboLogStatus;
  r.mashTime.fill(0);
  r.mashTemp.fill(0);
  r.mashInfusion.fill(0);
  for (size_t i = 0; i < lvMash.size() && i < static_cast<size_t>(kLogMashSlots); ++i) {
    r.mashTime[i] = lenientValue(lvMash[i].minutes);
    r.mashTemp[i] = lenientValue(lvMash[i].temp);
    r.mashInfusion[i] = lenientValue(lvMash[i].infusion);
  }
  r.spargeVolume = lenientValue(txtSpargeVol);
  r.spargeTemp = lenientValue(txtSpargeTemp);
  r.boilVolume = lenientValue(txtBoilVol);
  r.mashGravity = lenientValue(txtMashGravity);
  r.mashGravityTemp = lenientValue(txtMashTemp);
  r.boilTime = lenientValue(txtBoilTime);
  r.kraeuseningWort = lenientValue(txtKraeusen);
  r.fermentVolume = lenientValue(txtFermVol);
  r.fermentGravity = lenientValue(txtFinalGravity);
  r.fermentGravityTemp = lenientValue(txtFGTemp);
  r.pitchingTemp = lenientValue(txtPitchTemp);
  const size_t readings = std::min(lvReading.size(), static_cast<size_t>(kLogReadingSlots));
  r.readingCount = static_cast<int>(readings);
  for (size_t i = 0; i < static_cast<size_t>(kLogReadingSlots); ++i) {
    const bool used = i < readings;
    r.readingType[i] = used ? std::max(0, indexOf(readingTypeNames(), lvReading[i].type)) : 0;
    r.readingDate[i] = used ? lvReading[i].date : std::string();
    r.readingTemp[i] = used ? lenientValue(lvReading[i].temp) : 0;
    r.readingGravity[i] = used ? lenientValue(lvReading[i].gravity) : 0;
    r.readingNote[i] = used ? lvReading[i].note : std::string();
  }
  r.bottlingDate = txtDateCond;
  r.agedIn = cboAgedIn;
  r.conditioning = cboCondition;
  r.conditionDetails = txtCondDetails;
  r.comments = txtComments;
  r.mashVolume = lenientValue(txtMashVol);
  r.grainsMashed = lenientValue(txtLbsGrain);
  for (size_t k = 0; k < 2; ++k) {
    r.quantity[k] = lenientValue(txtQuantity[k]);
    r.capacity[k] = lenientValue(txtCapacity[k]);
    r.containerUnits[k] = cboContainerUnits[k];
  }
  return r;
}

bool BatchLogEditor::mnuFileSave_Click() {
  const BatchLogRecord r = toRecord();
  if (!store.SaveBatchLog(wb, r)) return false;
  record = r;
  logReset();
  return true;
}

bool BatchLogEditor::queryClose() {
  if (!BatchLogChanged) return true;
  switch (wb.prompter.message("Batch Log has Changed, Save Changes?", "Save Batch Log", Icon::Question,
                              Buttons::YesNoCancel, Answer::Yes)) {
    case Answer::Yes: return mnuFileSave_Click();
    case Answer::No: return true;
    default: return false;
  }
}

// ---- Sums ---------------------------------------------------------------------------------

void BatchLogEditor::updateAdjustedGravities() {
  auto adjusted = [](const std::string& gravity, const std::string& temp) {
    const double g = lenientValue(gravity), t = lenientValue(temp);
    if (g > 0 && t > 0) return formatNumber(g + adjustSG(t), "0.000");
    return gravity;
  };
  lblAdjSG1 = adjusted(txtMashGravity, txtMashTemp);
  lblAdjSG2 = adjusted(txtFinalGravity, txtFGTemp);
}

void BatchLogEditor::updateExtractionPoints() {
  const double g = lenientValue(lblAdjSG1), vol = lenientValue(txtMashVol), w = lenientValue(txtLbsGrain);
  if (!(g > 0) || !(vol > 0) || !(w > 0)) {
    lblQualPts = kNA;
    return;
  }
  const double points = (g - 1.0) * 1000.0 * vol / w;
  lblQualPts = std::isfinite(points) ? formatNumber(points, "0.0") : kNA;
}

std::string BatchLogEditor::actualEfficiency() const {
  if (!(MashTargetBase > 0)) return {};
  return formatNumber(lenientValue(lblQualPts) / MashTargetBase, "0") + "%";
}

// ---- The changed state ----------------------------------------------------------------------

void BatchLogEditor::logChanged() {
  if (filling) return;
  if (!BatchLogChanged) {
    saveButtonImage = "Save-Changed";
    saveButtonTip = "Save Batch Log - Changed";
  }
  BatchLogChanged = true;
}

void BatchLogEditor::logReset() {
  BatchLogChanged = false;
  saveButtonImage = "Save";
  saveButtonTip = "Save Batch Log";
}

// ---- Numeric boxes --------------------------------------------------------------------------

std::string& BatchLogEditor::field(LogField f) {
  switch (f) {
    case LogField::SpargeVolume: return txtSpargeVol;
    case LogField::SpargeTemp: return txtSpargeTemp;
    case LogField::BoilVolume: return txtBoilVol;
    case LogField::MashGravity: return txtMashGravity;
    case LogField::MashTemp: return txtMashTemp;
    case LogField::BoilTime: return txtBoilTime;
    case LogField::KraeuseningWort: return txtKraeusen;
    case LogField::FermentVolume: return txtFermVol;
    case LogField::FermentGravity: return txtFinalGravity;
    case LogField::FermentTemp: return txtFGTemp;
    case LogField::PitchingTemp: return txtPitchTemp;
    case LogField::MashVolume: return txtMashVol;
    case LogField::GrainWeight: return txtLbsGrain;
    case LogField::Quantity1: return txtQuantity[0];
    case LogField::Quantity2: return txtQuantity[1];
    case LogField::Capacity1: return txtCapacity[0];
    case LogField::Capacity2: return txtCapacity[1];
    case LogField::MashTime: return txtTime;
    case LogField::MashStepTemp: return txtTemp;
    case LogField::Infusion: return txtInfusion;
    case LogField::ReadTemp: return txtReadTemp;
    case LogField::ReadGravity: return txtReadGravity;
  }
  return txtSpargeVol;
}

const std::string& BatchLogEditor::field(LogField f) const { return const_cast<BatchLogEditor*>(this)->field(f); }

void BatchLogEditor::setField(LogField f, const std::string& text) {
  std::string& box = field(f);
  // A zero never stands in a box. A text with a point may still be on its way to a number
  // (".", "0.", "0.0" before "0.05"), so it stays.
  if (!filling && lenientValue(text) == 0 && text.find('.') == std::string::npos)
    box.clear();
  else
    box = text;
  if (filling) return;
  switch (f) {
    case LogField::MashTime:
    case LogField::MashStepTemp:
    case LogField::Infusion:
      if (mashSelected >= 0) {
        MashRow& row = lvMash[static_cast<size_t>(mashSelected)];
        (f == LogField::MashTime ? row.minutes : f == LogField::MashStepTemp ? row.temp : row.infusion) = box;
      }
      break;
    case LogField::ReadTemp:
    case LogField::ReadGravity:
      if (readingSelected >= 0) {
        ReadingRow& row = lvReading[static_cast<size_t>(readingSelected)];
        (f == LogField::ReadTemp ? row.temp : row.gravity) = box;
      }
      break;
    default:
      break;
  }
  updateAdjustedGravities();
  updateExtractionPoints();
  logChanged();
}

void BatchLogEditor::validateField(LogField f) {
  if (f == LogField::ReadGravity) {
    checkGravityReading();
    return;
  }
  const std::string before = field(f);
  if (trim(before).empty()) return;
  const double v = lenientValue(before);
  std::string after = before;
  if (v == 0)
    after.clear();
  else if (fieldKind(f) == FieldKind::Gravity)
    after = formatNumber(v, "0.000");
  else if (fieldKind(f) == FieldKind::Volume)
    after = formatNumber(v, "0.0#");
  if (after != before) setField(f, after);
}

void BatchLogEditor::checkGravityReading() {
  const std::string text = txtReadGravity;
  if (trim(text).empty()) return;
  const double v = lenientValue(text);
  std::string after;
  if (v >= 0.95 && v <= 1.3) {
    after = formatNumber(v, "0.000");
  } else {
    wb.prompter.message("Unreasonable Specific Gravity Reading (" + text + "), reset to 1.000",
                        "Specific Gravity Problem", Icon::Warning);
    after = "1.000";
  }
  if (after != text) setField(LogField::ReadGravity, after);
}

// ---- Dates ----------------------------------------------------------------------------------

std::string& BatchLogEditor::dateField(DateField f) {
  switch (f) {
    case DateField::DateBrewed: return txtDateBrewed;
    case DateField::Reading: return txtReadDate;
    case DateField::Bottling: return txtDateCond;
  }
  return txtDateBrewed;
}

void BatchLogEditor::setDate(DateField f, const std::string& text) {
  dateField(f) = text;
  if (filling) return;
  if (f == DateField::Reading && readingSelected >= 0) lvReading[static_cast<size_t>(readingSelected)].date = text;
  logChanged();
}

bool BatchLogEditor::validateDate(DateField f) {
  const std::string text = trim(dateField(f));
  bool ok = true;
  if (!text.empty()) {
    if (auto d = parseDate(text)) {
      if (formatDateMDY(*d) != dateField(f)) setDate(f, formatDateMDY(*d));
    } else {
      wb.prompter.message("   Invalid or Ambiguous Date\n\nEnter Date as Month/Day/Year", kApplicationName,
                          Icon::Warning);
      setDate(f, "");
      focusTo = f == DateField::DateBrewed ? "txtDateBrewed" : f == DateField::Reading ? "txtReadDate" : "txtDateCond";
      ok = false;
    }
  }
  if (f == DateField::Bottling) statusFromBottling();
  return ok;
}

int BatchLogEditor::dateKeyFilter(int key) {
  if (key == 13) return 9;
  if (key == 8 || (key >= '0' && key <= '9') || key == '/' || key == '-' || key == ' ') return key;
  if (key > 0 && key < 128) {
    const char c = static_cast<char>(key >= 'A' && key <= 'Z' ? key - 'A' + 'a' : key);
    if (c >= 'a' && c <= 'z' && std::strchr("abcdefgjlmnoprstuvy", c)) return key;
  }
  wb.prompter.beep();
  return 0;
}

void BatchLogEditor::showCalendar(DateField f) {
  monDateTag = f == DateField::DateBrewed ? "Date Brewed" : f == DateField::Reading ? "Ferm Date" : "Cond Date";
  monDateValue = parseDate(trim(dateField(f))).value_or(wb.clock.today());
  monDateVisible = true;
}

void BatchLogEditor::calendarPicked(double serial) {
  if (!monDateVisible) return;
  monDateVisible = false;
  const DateField f = monDateTag == "Date Brewed" ? DateField::DateBrewed
                      : monDateTag == "Ferm Date" ? DateField::Reading
                                                  : DateField::Bottling;
  setDate(f, formatDateMDY(std::floor(serial)));
  if (f == DateField::Bottling) statusFromBottling();
}

// ---- Status and the other boxes -------------------------------------------------------------

void BatchLogEditor::statusFromBottling() {
  int status;
  if (!trim(txtDateCond).empty())
    status = LOG_BOTTLED;
  else if (lvReading.empty())
    status = LOG_NEW;
  else
    status = std::max(0, indexOf(readingTypeNames(), lvReading.back().type)) + 1;
  if (status != cboLogStatus) {
    cboLogStatus = status;
    logChanged();
  }
}

void BatchLogEditor::setStatus(int index) {
  cboLogStatus = std::clamp(index, 0, 4);
  logChanged();
}

void BatchLogEditor::setAgedIn(const std::string& text) {
  cboAgedIn = text;
  std::string noun = text;
  if (!noun.empty() && noun.back() == 's') noun.pop_back();
  lblVolume = noun + " Volume";
  logChanged();
}

void BatchLogEditor::setCondition(const std::string& text) {
  cboCondition = text;
  logChanged();
}

void BatchLogEditor::setConditionDetails(const std::string& text) {
  txtCondDetails = text.substr(0, 40);
  logChanged();
}

void BatchLogEditor::setContainerUnits(int which, int index) {
  if (which < 0 || which > 1) return;
  cboContainerUnits[static_cast<size_t>(which)] = index >= 0 && index < 10 ? index : -1;
  logChanged();
}

void BatchLogEditor::setComments(const std::string& text) {
  txtComments = text.substr(0, 512);
  logChanged();
}

namespace {
void rememberFolder(SettingsStore& s, const std::string& path) {
  const size_t cut = path.find_last_of('/');
  s.write(kBatchLogCommentsSection, "File Path", cut == std::string::npos ? std::string() : path.substr(0, cut));
}
}  // namespace

bool BatchLogEditor::importComments(const std::string& path) {
  rememberFolder(wb.settings, path);
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) {
    wb.prompter.message("Unable to Read " + path, "Import Comments", Icon::Warning);
    return false;
  }
  std::string bytes, text;
  char buf[4096];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0 && bytes.size() < 1 << 20) bytes.append(buf, n);
  std::fclose(f);
  for (size_t i = 0; i < bytes.size(); ++i) {
    const char c = bytes[i];
    if (c == '\r' || c == '\n') {
      text += "\r\n";
      if (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
    } else if (c != '\0') {
      text += c;
    }
  }
  if (text.size() > kBatchLogCommentLength) {
    wb.prompter.message("The Batch Log keeps " + itos(kBatchLogCommentLength) + " characters of comments; the text of " +
                            path + " has " + itos(static_cast<long long>(text.size())) + " and is cut there.",
                        "Import Comments", Icon::Warning);
    text.resize(kBatchLogCommentLength);
  }
  setComments(text);
  return true;
}

bool BatchLogEditor::exportComments(const std::string& path) {
  rememberFolder(wb.settings, path);
  std::FILE* f = std::fopen(path.c_str(), "wb");
  bool ok = f && std::fwrite(txtComments.data(), 1, txtComments.size(), f) == txtComments.size();
  if (f && std::fclose(f) != 0) ok = false;
  if (!ok) wb.prompter.message("Unable to Generate Output File", "Error", Icon::Critical);
  return ok;
}

// ---- Mash steps -----------------------------------------------------------------------------

void BatchLogEditor::addMashEntry(double minutes, double temp, double infusion) {
  lvMash.push_back({formatNumber(minutes, "0"), formatNumber(temp, "0"),
                    infusion > 0 ? formatNumber(infusion, "0.0#") : std::string()});
}

void BatchLogEditor::cmdAddMash_Click() {
  if (static_cast<int>(lvMash.size()) >= kMaxMashRows) {
    wb.prompter.message("Limited to " + itos(kMaxMashRows) + " Mash Steps", kLogError, Icon::Warning);
    return;
  }
  lvMash.push_back({});
  selectMash(static_cast<int>(lvMash.size()) - 1);
  focusTo = "txtTime";
  logChanged();
}

void BatchLogEditor::cmdDeleteMash_Click() {
  if (mashSelected < 0) return;
  if (wb.prompter.message("Are you sure you want to Delete this Data Entry?", "Delete Data", Icon::Question,
                          Buttons::YesNo, Answer::Yes) != Answer::Yes)
    return;
  lvMash.erase(lvMash.begin() + mashSelected);
  selectMash(-1);
  logChanged();
}

void BatchLogEditor::selectMash(int row) {
  mashSelected = row >= 0 && row < static_cast<int>(lvMash.size()) ? row : -1;
  loadMashFields();
}

void BatchLogEditor::loadMashFields() {
  const bool was = filling;
  filling = true;
  const MashRow empty;
  const MashRow& r = mashSelected >= 0 ? lvMash[static_cast<size_t>(mashSelected)] : empty;
  txtTime = r.minutes;
  txtTemp = r.temp;
  txtInfusion = r.infusion;
  filling = was;
}

// ---- Readings -------------------------------------------------------------------------------

void BatchLogEditor::cmdToday_Click() {
  if (static_cast<int>(lvReading.size()) >= kMaxReadingRows) {
    // The list holds sixteen; the message has always said fifteen.
    wb.prompter.message("Limited to 15 Readings", kLogError, Icon::Warning);
    return;
  }
  ReadingRow row;
  row.date = formatDateMDY(wb.clock.today());
  lvReading.push_back(row);
  const size_t n = lvReading.size();
  const int type = n > 2 ? std::max(0, indexOf(readingTypeNames(), lvReading[n - 2].type)) : READING_PRIMARY;
  lvReading.back().type = readingTypeName(type);
  selectReading(static_cast<int>(n) - 1);
  setFermType(type);
  focusTo = "txtReadTemp";
  logChanged();
}

void BatchLogEditor::cmdDelete_Click() {
  if (readingSelected < 0) return;
  if (wb.prompter.message("Are you sure you want to Delete this Data Entry?", "Delete Data", Icon::Question,
                          Buttons::YesNo, Answer::Yes) != Answer::Yes)
    return;
  lvReading.erase(lvReading.begin() + readingSelected);
  selectReading(-1);
  logChanged();
}

void BatchLogEditor::selectReading(int row) {
  readingSelected = row >= 0 && row < static_cast<int>(lvReading.size()) ? row : -1;
  loadReadingFields();
}

void BatchLogEditor::loadReadingFields() {
  const bool was = filling;
  filling = true;
  const ReadingRow empty;
  const ReadingRow& r = readingSelected >= 0 ? lvReading[static_cast<size_t>(readingSelected)] : empty;
  cboFermType = std::max(0, indexOf(readingTypeNames(), r.type));
  txtReadDate = r.date;
  txtReadTemp = r.temp;
  txtReadGravity = r.gravity;
  txtReadNote = r.note;
  filling = was;
}

void BatchLogEditor::setFermType(int index) {
  cboFermType = std::clamp(index, 0, 3);
  if (filling || readingSelected < 0) return;
  lvReading[static_cast<size_t>(readingSelected)].type = readingTypeName(cboFermType);
  logChanged();
  // A reading lifts the status to its stage; it never moves it back.
  if (cboLogStatus <= cboFermType) cboLogStatus = cboFermType + 1;
}

void BatchLogEditor::setReadNote(const std::string& text) {
  txtReadNote = text.substr(0, 40);
  if (filling) return;
  if (readingSelected >= 0) lvReading[static_cast<size_t>(readingSelected)].note = txtReadNote;
  logChanged();
}

}  // namespace zy
