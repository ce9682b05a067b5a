// The style store's category file.
#include "StyleFileHarness.h"

ZY_FUZZ_HARNESS(styles_category) { return zy::fuzz::styleFileHarness(zy::kCategoryFile, data, size); }
