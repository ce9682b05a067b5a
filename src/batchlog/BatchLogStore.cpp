#include "batchlog/BatchLogStore.h"

#include <algorithm>

#include "core/dates.h"
#include "core/errorlog.h"
#include "core/paths.h"
#include "core/records.h"
#include "core/text.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kCountFn = "BatchLog!countBatchLogs";
const char* const kFreeFn = "BatchLog!freeBatchLogsOf";
const char* const kLoadFn = "BatchLog!loadBatchLogList";
const char* const kNewFn = "BatchLog!newBatchLog";
const char* const kOpenFn = "BatchLog!openBatchLog";
const char* const kSaveFn = "BatchLog!SaveBatchLog";
const char* const kDeleteFn = "BatchLog!deleteBatchLog";

std::string logPath(const Workbench& wb) { return wb.folder.dataFile(kBatchLogFile); }

// One pass over the file from record 1. `visit` gets each sound record's number and bytes and
// returns false to stop the pass. Bad records are counted and reported once at the end. False
// when the file could not be opened or read (the error was reported under `fn`). Opening creates
// a missing file empty, except for a count (`readOnly`), which finds no logs there.
template <typename Visit>
bool passOverLogs(Workbench& wb, const char* fn, Visit visit, bool readOnly = false) {
  const std::string path = logPath(wb);
  if (readOnly && !fileExists(path)) return true;
  long bad = 0;
  try {
    RecordFile f(path, kBatchLogRecordLength);
    std::string buf;
    for (long n = 1; n <= f.count(); ++n) {
      if (!f.read(n, buf)) break;
      if (!controlCodesValid(buf)) {
        ++bad;
        continue;
      }
      if (!visit(n, buf)) break;
    }
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, 0, fn);
    return false;
  }
  if (bad > 0) wb.errors.reportError(ERR_BATCHLOG_CODE, 0, fn, path);
  return true;
}

// Writes one record; reports a failure under `fn` with the file's name.
bool writeLog(Workbench& wb, long recordNo, const std::string& bytes, const char* fn) {
  try {
    RecordFile f(logPath(wb), kBatchLogRecordLength);
    if (recordNo < 1 || recordNo > f.count() + 1) {
      wb.errors.reportError(ERR_BAD_RECORD_NUMBER, 0, fn, kBatchLogFile, "Bad record number");
      return false;
    }
    f.write(recordNo, bytes);
    f.flush();
  } catch (const FileError& e) {
    wb.errors.reportError(e.number, 0, fn, kBatchLogFile, e.description);
    return false;
  }
  return true;
}
}  // namespace

long countBatchLogs(Workbench& wb, int recipeNo) {
  long count = 0;
  if (recipeNo == 0) return 0;
  passOverLogs(wb, kCountFn, [&](long, const std::string& buf) {
    if (getI16(buf, 2) == recipeNo) ++count;
    return true;
  }, true);
  return count;
}

std::map<int, long> countAllBatchLogs(Workbench& wb) {
  std::map<int, long> counts;
  passOverLogs(wb, kCountFn, [&](long, const std::string& buf) {
    const int owner = getI16(buf, 2);
    if (owner != 0) ++counts[owner];
    return true;
  }, true);
  return counts;
}

long freeBatchLogsOf(Workbench& wb, int recipeNo) {
  if (recipeNo == 0) return 0;
  std::vector<long> owned;
  if (!passOverLogs(wb, kFreeFn, [&](long n, const std::string& buf) {
        if (getI16(buf, 2) == recipeNo) owned.push_back(n);
        return true;
      }, true))
    return -1;
  if (owned.empty()) return 0;
  try {
    RecordFile f(logPath(wb), kBatchLogRecordLength);
    std::string buf;
    for (long n : owned) {
      if (!f.read(n, buf)) continue;
      putI16(buf, 2, 0);
      f.write(n, buf);
    }
    f.flush();
  } catch (const FileError& e) {
    wb.errors.reportError(e.number, 0, kFreeFn, kBatchLogFile, e.description);
    return -1;
  }
  return static_cast<long>(owned.size());
}

void refreshRecipeLogSuffix(Workbench& wb, int recipeNo) {
  RecipeList& list = wb.recipeList;
  const std::string key = "R" + itos(recipeNo);
  if (!list.tree.find(key) || wb.recipe.rec.recipeNo != recipeNo) return;
  if (auto text = list.leafText(wb.recipe.rec, list.logSuffix(wb, recipeNo))) {
    list.tree.setText(key, *text);
    if (wb.refreshRecipeTree) wb.refreshRecipeTree();
  }
}

BatchLogEntry BatchLogList::entryOf(long recordNo, const BatchLogRecord& r) {
  BatchLogEntry e;
  e.recordNo = recordNo;
  e.key = "B" + itos(recordNo);
  e.batchNo = itos(r.batchNo);
  e.dateBrewed = trim(r.dateBrewed);
  if (auto d = parseDate(e.dateBrewed)) e.dateBrewed = formatDateMDY(*d);
  e.status = statusName(r.status);
  return e;
}

bool BatchLogList::loadBatchLogList(Workbench& wb, int recipe) {
  recipeNo = recipe;
  entries.clear();
  HighestBatchNumber = 0;
  const bool ok = passOverLogs(wb, kLoadFn, [&](long n, const std::string& buf) {
    if (getI16(buf, 2) != recipeNo || recipeNo == 0) return true;
    const BatchLogRecord r = BatchLogRecord::decode(buf);
    entries.push_back(entryOf(n, r));
    if (r.batchNo > HighestBatchNumber) HighestBatchNumber = r.batchNo;
    return true;
  });
  select(entries.empty() ? -1 : 0);
  return ok;
}

std::optional<BatchLogRecord> BatchLogList::newBatchLog(Workbench& wb, double grainsMashed) {
  long slot = 1;
  bool found = false;
  // The first free record; a bad record is never free, and past the last record lies a new one.
  long last = 0;
  if (!passOverLogs(wb, kNewFn, [&](long n, const std::string& buf) {
        last = n;
        if (getI16(buf, 2) == 0) {
          slot = n;
          found = true;
          return false;
        }
        return true;
      }))
    return std::nullopt;
  if (!found) {
    try {
      RecordFile f(logPath(wb), kBatchLogRecordLength);
      last = f.count();
    } catch (const FileError& e) {
      wb.errors.reportFileError(e, 0, kNewFn);
      return std::nullopt;
    }
    slot = last + 1;
  }
  BatchLogRecord r;
  r.recipeNo = recipeNo;
  r.batchNo = HighestBatchNumber + 1;
  r.dateBrewed = formatDateMDY(wb.clock.today());
  r.status = LOG_NEW;
  r.grainsMashed = grainsMashed;
  r.containerUnits = {-1, -1};
  NewBatchLog = true;
  BatchLogRecordNo = slot;
  return r;
}

std::optional<BatchLogRecord> BatchLogList::openBatchLog(Workbench& wb, long recordNo) {
  std::string buf;
  try {
    RecordFile f(logPath(wb), kBatchLogRecordLength);
    if (recordNo < 1 || !f.read(recordNo, buf)) {
      wb.prompter.message("There is no Batch Log at record " + itos(recordNo), "Batch Log Error", Icon::Warning);
      return std::nullopt;
    }
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, 0, kOpenFn);
    return std::nullopt;
  }
  if (!controlCodesValid(buf)) {
    wb.errors.reportError(ERR_BATCHLOG_CODE, 0, kOpenFn, logPath(wb));
    return std::nullopt;
  }
  BatchLogRecord r = BatchLogRecord::decode(buf);
  if (r.recipeNo == 0) {
    wb.prompter.message("There is no Batch Log at record " + itos(recordNo), "Batch Log Error", Icon::Warning);
    return std::nullopt;
  }
  BatchLogRecordNo = recordNo;
  NewBatchLog = false;
  return r;
}

bool BatchLogList::SaveBatchLog(Workbench& wb, const BatchLogRecord& rec) {
  if (BatchLogRecordNo < 1) return false;
  // A log the editor could not write stays changed there: nothing is entered in the list.
  if (!writeLog(wb, BatchLogRecordNo, rec.encode(), kSaveFn)) return false;
  if (NewBatchLog) {
    entries.push_back(entryOf(BatchLogRecordNo, rec));
    select(static_cast<int>(entries.size()) - 1);
    NewBatchLog = false;
    if (rec.batchNo > HighestBatchNumber) HighestBatchNumber = rec.batchNo;
    refreshRecipeLogSuffix(wb, rec.recipeNo);
  } else if (int i = indexOfRecord(BatchLogRecordNo); i >= 0) {
    const BatchLogEntry e = entryOf(BatchLogRecordNo, rec);
    entries[static_cast<size_t>(i)].dateBrewed = e.dateBrewed;
    entries[static_cast<size_t>(i)].status = e.status;
  }
  return true;
}

bool BatchLogList::deleteBatchLog(Workbench& wb, long recordNo) {
  std::string buf;
  try {
    RecordFile f(logPath(wb), kBatchLogRecordLength);
    if (recordNo < 1 || !f.read(recordNo, buf)) return false;
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, 0, kDeleteFn);
    return false;
  }
  // A corrupted record is never offered, and never touched.
  if (!controlCodesValid(buf)) return false;
  const int owner = getI16(buf, 2);
  putI16(buf, 2, 0);
  if (!writeLog(wb, recordNo, buf, kDeleteFn)) return false;
  if (int i = indexOfRecord(recordNo); i >= 0) {
    entries.erase(entries.begin() + i);
    select(entries.empty() ? -1 : std::min(i, static_cast<int>(entries.size()) - 1));
  }
  refreshRecipeLogSuffix(wb, owner);
  return true;
}

bool BatchLogList::cmdDelete_Click(Workbench& wb) {
  const BatchLogEntry* e = selectedEntry();
  if (!e) return false;
  if (wb.prompter.message("Do you want to Delete Batch Log # " + e->batchNo + " of " + e->dateBrewed + "?",
                          "Delete Batch Log", Icon::Question, Buttons::YesNo, Answer::No) != Answer::Yes)
    return false;
  return deleteBatchLog(wb, e->recordNo);
}

void BatchLogList::select(int index) {
  selected = index >= 0 && index < static_cast<int>(entries.size()) ? index : -1;
  deleteEnabled = !entries.empty();
}

const BatchLogEntry* BatchLogList::selectedEntry() const {
  return selected >= 0 && selected < static_cast<int>(entries.size()) ? &entries[static_cast<size_t>(selected)]
                                                                      : nullptr;
}

int BatchLogList::indexOfRecord(long recordNo) const {
  for (size_t i = 0; i < entries.size(); ++i)
    if (entries[i].recordNo == recordNo) return static_cast<int>(i);
  return -1;
}

}  // namespace zy
