#include <gtest/gtest.h>
// Placeholder removed when the chart model's tests land.
TEST(Platform, Builds) { SUCCEED(); }
