#pragma once
// The batch log editor (frmBatchLog) as a model: the texts of its boxes and labels, its two lists
// (mash steps and fermentation readings), the status, the changed flag, and the brewer's sums of
// a finished mash: hydrometer readings corrected for the sample's temperature, the extraction
// points reached, the target the recipe's grain bill promises and the mash efficiency actually
// reached.
//
// Volumes, weights and temperatures carry no unit in the log: they are in the units of the
// recipe's unit system at the time of entry, and the labels follow the recipe.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "batchlog/BatchLogRecord.h"
#include "batchlog/BatchLogStore.h"

namespace zy {

class Workbench;
class IngredientTable;
class SettingsStore;

// The correction to add to a hydrometer reading taken at temperature t (°F).
double adjustSG(double t);

// What the log takes from the open recipe: its ingredient grid (for the target), the mash
// efficiency in percent, the unit system and the volume unit's name.
struct LogRecipeContext {
  const IngredientTable* grid = nullptr;
  double mashEfficiency = 0;
  int unitType = 0;
  std::string volumeUnitName;
};

// The weight and the extract of the mashed rows of the grid's malt section, in the weight unit of
// the unit system (kilograms for metric, pounds otherwise). extract sums (rating - 1) x weight.
struct MashedGrain {
  double weight = 0, extract = 0;
};
MashedGrain mashedGrain(const IngredientTable& grid, int unitType);

// The numeric boxes of the window.
enum class LogField {
  SpargeVolume, SpargeTemp, BoilVolume, MashGravity, MashTemp, BoilTime, KraeuseningWort, FermentVolume,
  FermentGravity, FermentTemp, PitchingTemp, MashVolume, GrainWeight, Quantity1, Quantity2, Capacity1,
  Capacity2, MashTime, MashStepTemp, Infusion, ReadTemp, ReadGravity
};
// The date boxes.
enum class DateField { DateBrewed, Reading, Bottling };

// The shape a box is rewritten in when validated.
enum class FieldKind { Gravity, Volume, Temperature, Plain };
FieldKind fieldKind(LogField f);

struct MashRow {
  std::string minutes, temp, infusion;
};
struct ReadingRow {
  std::string type, date, temp, gravity, note;
};

// The comments window keeps its place and the folder of its text files in "Batch Log Comments".
constexpr const char* kBatchLogCommentsSection = "Batch Log Comments";
constexpr size_t kBatchLogCommentLength = 512;

// The settings of the window, section "Batch Log".
constexpr const char* kBatchLogSection = "Batch Log";
struct BatchLogWindowSettings {
  bool stored = false;  // false: centre the window
  long left = 0, top = 0;
  int windowState = 0;
  static BatchLogWindowSettings read(const SettingsStore& s);
  void write(SettingsStore& s) const;
};

class BatchLogEditor {
 public:
  static constexpr int kMaxMashRows = 11;
  static constexpr int kMaxReadingRows = 16;

  BatchLogEditor(Workbench& wb, BatchLogList& store) : wb(wb), store(store) {}

  // The unit labels and the target from the recipe. Run before a log is shown.
  void setRecipe(const LogRecipeContext& recipe);
  // Opening: the target first, then the record shown, then logReset.
  void showLog(const BatchLogRecord& rec);
  // A new log of the list's recipe: newBatchLog with the grain weight of the mashed malts, shown.
  bool startNewLog();
  // Opens the log at a record number. False when it could not be read.
  bool openLog(long recordNo);
  // The window's contents in a record (the reserved fields as they were read).
  BatchLogRecord toRecord() const;
  // mnuFileSave: SaveBatchLog, then logReset. False when the write failed.
  bool mnuFileSave_Click();
  // Closing with changes asks to save them. False when the window stays open.
  bool queryClose();

  // ---- Sums ---------------------------------------------------------------------------------
  void computeMashTarget();
  void updateAdjustedGravities();
  void updateExtractionPoints();
  // The efficiency the report prints: points over the target base, "0" and "%"; empty without
  // a target.
  std::string actualEfficiency() const;

  // ---- Editing -----------------------------------------------------------------------------
  void logChanged();
  void logReset();
  bool changed() const { return BatchLogChanged; }

  std::string& field(LogField f);
  const std::string& field(LogField f) const;
  // A keystroke's result in a numeric box: a settled zero never stands in a box.
  void setField(LogField f, const std::string& text);
  // Leaving a numeric box: rewritten in its shape.
  void validateField(LogField f);
  // The gravity reading's own check on leaving txtReadGravity.
  void checkGravityReading();

  std::string& dateField(DateField f);
  void setDate(DateField f, const std::string& text);
  // Leaving a date box: reformatted, or the three-line message and the box emptied. False when
  // the text was no date (the focus goes back to the box).
  bool validateDate(DateField f);
  // The key filter of the date boxes: the key, 0 for a refused key (after a beep), or 9 (Tab)
  // for Enter, which moves on.
  int dateKeyFilter(int keyAscii);
  // The calendar beside a date box: shown at the box's date, else today.
  void showCalendar(DateField f);
  void calendarPicked(double serial);

  void setDateBrewed(const std::string& text) { setDate(DateField::DateBrewed, text); }
  void setStatus(int index);
  void setAgedIn(const std::string& text);
  void setCondition(const std::string& text);
  void setConditionDetails(const std::string& text);
  void setContainerUnits(int which, int index);
  void setComments(const std::string& text);

  // The comments window's text files: the import replaces the comments with a file's text (line
  // ends made CR LF; a text beyond 512 characters is cut there, after saying so); the export
  // writes them as they stand. Both remember the folder in "File Path". False after a message.
  bool importComments(const std::string& path);
  bool exportComments(const std::string& path);

  // Mash steps.
  void addMashEntry(double minutes, double temp, double infusion);
  void cmdAddMash_Click();
  void cmdDeleteMash_Click();
  void selectMash(int row);
  bool mashFieldsEnabled() const { return mashSelected >= 0; }

  // Readings.
  void cmdToday_Click();
  void cmdDelete_Click();
  void selectReading(int row);
  void setFermType(int index);
  void setReadNote(const std::string& text);
  bool readingFieldsEnabled() const { return readingSelected >= 0; }

  // ---- State -------------------------------------------------------------------------------
  Workbench& wb;
  BatchLogList& store;
  BatchLogRecord record;  // the log as read or started; the window's fields go back into it

  std::string lblBatchNo;
  std::string txtDateBrewed, txtDateCond, txtReadDate;
  int cboLogStatus = 0;
  std::string cboAgedIn, cboCondition, txtCondDetails, txtComments;
  std::array<int, 2> cboContainerUnits{-1, -1};
  std::string txtSpargeVol, txtSpargeTemp, txtBoilVol, txtMashGravity, txtMashTemp, txtBoilTime, txtKraeusen,
      txtFermVol, txtFinalGravity, txtFGTemp, txtPitchTemp, txtMashVol, txtLbsGrain;
  std::array<std::string, 2> txtQuantity, txtCapacity;
  std::vector<MashRow> lvMash;
  int mashSelected = -1;
  std::string txtTime, txtTemp, txtInfusion;
  std::vector<ReadingRow> lvReading;
  int readingSelected = -1;
  int cboFermType = 0;
  std::string txtReadTemp, txtReadGravity, txtReadNote;

  std::string lblTargetExt = "N/A";
  double MashTargetBase = 0;
  std::string lblAdjSG1, lblAdjSG2;
  std::string lblQualPts = "N/A";
  std::string lblMash = "Lbs of Grain Mashed:", lblWeightUnits = "Lbs", lblTempUnits;
  std::array<std::string, 3> lblVol;
  std::string lblVolume = "Bottle Volume";

  // The calendar monDate: shown, its date and the box it writes to ("Date Brewed", "Ferm Date",
  // "Cond Date").
  bool monDateVisible = false;
  double monDateValue = 0;
  std::string monDateTag;

  // Where the focus goes after an action: the name of a box, empty for no move.
  std::string focusTo;
  bool BatchLogChanged = false;
  std::string saveButtonImage = "Save", saveButtonTip = "Save Batch Log";
  bool filling = false;

 private:
  void loadMashFields();
  void loadReadingFields();
  void statusFromBottling();
  LogRecipeContext recipe_;
};

}  // namespace zy
