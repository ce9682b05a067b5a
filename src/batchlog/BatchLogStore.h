#pragma once
// The batch log store: ZYBatchLog.dat in Data/, 2772-byte records numbered from 1, no header.
// All logs of all recipes share the file; a log belongs to the recipe whose record number it
// carries, and a free slot (recipe number 0) is taken again by the next new log of any recipe.
// Every operation opens the file, passes over it one record at a time and closes it again, so
// that no log is ever held in memory but the one in the editor.
//
// Records whose control codes fail are passed over: they are never shown, never counted as free
// and never repaired; each pass that met any says so once at its end (error 32012).
//
// When a recipe is deleted, its logs are freed with it (freeBatchLogsOf, run by deleteRecipe):
// a later recipe that takes the same record number starts with no logs instead of inheriting
// another recipe's brews. The recipe list's delete names the number of logs that go with it
// and lets the user keep the recipe instead.
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "batchlog/BatchLogRecord.h"

namespace zy {

class Workbench;

constexpr size_t kBatchLogRecordLength = BatchLogRecord::kLength;

// The logs of one recipe: one pass over the file. Counting only reads: a missing file has no logs
// and stays missing (the recipe list counts at every rebuild).
long countBatchLogs(Workbench& wb, int recipeNo);
// The logs of every recipe in one pass: recipe number -> count (free slots left out).
std::map<int, long> countAllBatchLogs(Workbench& wb);
// Frees every log of a recipe (its recipe number becomes 0; the other fields stay in the file).
// Returns how many were freed; -1 when the file could not be written (the error was reported).
long freeBatchLogsOf(Workbench& wb, int recipeNo);

// One entry of the list of a recipe's logs.
struct BatchLogEntry {
  long recordNo = 0;
  std::string key;         // "B" + record number
  std::string batchNo;     // "Batch #" as text
  std::string dateBrewed;  // trimmed, through the form "mmm-dd-yyyy" when it reads as a date
  std::string status;      // by name
};

// The list of the logs of the open recipe (frmBatchLogList) and the store's process state.
class BatchLogList {
 public:
  // Fills the list with the logs of `recipeNo`, in file order; the first entry is selected.
  // Sets HighestBatchNumber. False when the file could not be read (the error was reported).
  bool loadBatchLogList(Workbench& wb, int recipeNo);
  // Finds a slot (the first free record, else one behind the last) and builds a fresh log for
  // the recipe of the list: the next "Batch #", dated today, `grainsMashed` as its grain weight.
  // No value when the file could not be read. Nothing is written.
  std::optional<BatchLogRecord> newBatchLog(Workbench& wb, double grainsMashed);
  // Reads the log at a record number. No value (after a message) for a record that is missing,
  // free or corrupted.
  std::optional<BatchLogRecord> openBatchLog(Workbench& wb, long recordNo);
  // Writes the editor's record at BatchLogRecordNo, then brings the list and the recipe list's
  // log suffix up to date. False when the write failed (reported as "BatchLog!SaveBatchLog").
  bool SaveBatchLog(Workbench& wb, const BatchLogRecord& rec);
  // Frees the log at a record number and takes its entry off the list. No question asked.
  bool deleteBatchLog(Workbench& wb, long recordNo);
  // The list's Delete: asks "Do you want to Delete Batch Log # n?" and deletes the selected log.
  bool cmdDelete_Click(Workbench& wb);

  void select(int index);
  const BatchLogEntry* selectedEntry() const;
  int indexOfRecord(long recordNo) const;

  int recipeNo = 0;
  std::vector<BatchLogEntry> entries;
  int selected = -1;
  bool deleteEnabled = false;  // cmdDelete, and Open with it: off while the list is empty

  long BatchLogRecordNo = 0;    // the record of the log in the editor
  bool NewBatchLog = false;     // the log in the editor has not been saved yet
  int HighestBatchNumber = 0;   // the highest "Batch #" seen for the recipe

 private:
  static BatchLogEntry entryOf(long recordNo, const BatchLogRecord& r);
};

// Shows the recipe's log count behind its title in the recipe list, when the list shows counts.
void refreshRecipeLogSuffix(Workbench& wb, int recipeNo);

}  // namespace zy
