#pragma once
// Counting a recipe's batch logs in ZYBatchLog.dat (2772-byte records, the owning recipe's number
// at offset 2). Records whose control codes fail are passed over, counted as bad and reported once
// at the end of the pass (error 32012). A missing file has no logs.
#include <cstddef>
#include <map>

namespace zy {

class Workbench;

constexpr size_t kBatchLogRecordLength = 2772;

// The logs of one recipe: one pass over the file.
long countBatchLogs(Workbench& wb, int recipeNo);
// The logs of every recipe in one pass: recipe number -> count (free slots left out).
std::map<int, long> countAllBatchLogs(Workbench& wb);

}  // namespace zy
