#include "trend/TrendViewState.h"

#include <gtest/gtest.h>

// Replaced by the record tests.
TEST(SavedWork, LinksTheTrendState) { EXPECT_EQ(trendState(1).PointScale, 1); }
