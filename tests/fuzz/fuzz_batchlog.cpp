// The batch log file. Each record read is shown in the log editor and saved back; shown and
// saved again it must come back the same. A record also decodes and encodes the same from its
// second trip on.
#include "FuzzSupport.h"
#include "batchlog/BatchLogEditor.h"
#include "batchlog/BatchLogStore.h"
#include "core/records.h"

using namespace zy;

ZY_FUZZ_HARNESS(batchlog) {
  fuzz::Env& e = fuzz::env();
  Workbench& wb = *e.wb;
  e.clearData();
  const std::string input(reinterpret_cast<const char*>(data), size);
  if (input.size() >= kBatchLogRecordLength) {
    const std::string once = BatchLogRecord::decode(input).encode();
    fuzz::check(BatchLogRecord::decode(once).encode() == once, "a log record changes on a second trip");
  }
  fuzz::writeAll(e.data("ZYBatchLog.dat"), input);
  try {
    countAllBatchLogs(wb);
    const int recipeNo = input.size() >= 4 ? getI16(input, 2) : 1;
    BatchLogList list;
    if (!list.loadBatchLogList(wb, recipeNo)) return 0;
    const std::vector<BatchLogEntry> entries = list.entries;
    for (size_t i = 0; i < entries.size() && i < 4; ++i) {
      BatchLogEditor editor(wb, list);
      editor.setRecipe({});
      if (!editor.openLog(entries[i].recordNo)) continue;
      fuzz::check(editor.mnuFileSave_Click(), "a log that opened does not save");
      fuzz::check(editor.openLog(entries[i].recordNo), "a saved log does not open");
      const std::string saved = editor.toRecord().encode();
      fuzz::check(editor.mnuFileSave_Click(), "a log that opened does not save");
      fuzz::check(editor.openLog(entries[i].recordNo), "a saved log does not open");
      fuzz::check(editor.toRecord().encode() == saved, "a log changed through a save");
    }
    BatchLogEditor fresh(wb, list);
    fresh.setRecipe({});
    if (fresh.startNewLog()) fresh.mnuFileSave_Click();
    freeBatchLogsOf(wb, recipeNo);
  } catch (const Terminated&) {
  }
  return 0;
}
