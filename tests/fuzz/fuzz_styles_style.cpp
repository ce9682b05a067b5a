// The style store's style file.
#include "StyleFileHarness.h"

ZY_FUZZ_HARNESS(styles_style) { return zy::fuzz::styleFileHarness(zy::kStyleFile, data, size); }
