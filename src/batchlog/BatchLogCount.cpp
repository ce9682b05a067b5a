#include "batchlog/BatchLogCount.h"

#include "core/errorlog.h"
#include "core/paths.h"
#include "core/records.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kCountFn = "BatchLog!countBatchLogs";

// One pass over the file; `visit` gets the owner of each sound record.
template <typename Visit>
void passOverLogs(Workbench& wb, Visit visit) {
  const std::string path = wb.folder.dataFile(kBatchLogFile);
  if (!fileExists(path)) return;
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
      visit(static_cast<int>(getI16(buf, 2)));
    }
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, 0, kCountFn);
    return;
  }
  if (bad > 0) wb.errors.reportError(ERR_BATCHLOG_CODE, 0, kCountFn, path);
}
}  // namespace

long countBatchLogs(Workbench& wb, int recipeNo) {
  long count = 0;
  if (recipeNo == 0) return 0;
  passOverLogs(wb, [&](int owner) {
    if (owner == recipeNo) ++count;
  });
  return count;
}

std::map<int, long> countAllBatchLogs(Workbench& wb) {
  std::map<int, long> counts;
  passOverLogs(wb, [&](int owner) {
    if (owner != 0) ++counts[owner];
  });
  return counts;
}

}  // namespace zy
