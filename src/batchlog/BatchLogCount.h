#pragma once
// Counting a recipe's batch logs: countBatchLogs and countAllBatchLogs live with the store.
#include "batchlog/BatchLogStore.h"
