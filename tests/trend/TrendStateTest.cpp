#include "trend/TrendViewState.h"

#include <gtest/gtest.h>

// Each view keeps its own trend state, and a reset returns it to the defaults of a new window.
TEST(TrendViewState, ViewsAreSeparateAndResetRestoresDefaults) {
    trendState(2).ZoomLevel = 5;
    trendState(2).Lines[3].enabled = 1;
    EXPECT_EQ(trendState(3).ZoomLevel, 0);
    trendState(2).reset();
    EXPECT_EQ(trendState(2).ZoomLevel, 0);
    EXPECT_EQ(trendState(2).PointScale, 1);
    EXPECT_EQ(trendState(2).Lines[3].enabled, 0);
}
