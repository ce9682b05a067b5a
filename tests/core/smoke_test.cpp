#include <gtest/gtest.h>
#include "core/numfmt.h"
TEST(Smoke, Builds) { EXPECT_EQ(zy::formatNumber(1.25, "0.0"), "1.3"); }
