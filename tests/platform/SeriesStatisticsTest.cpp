#include "platform/SeriesStatistics.h"
#include "ChartTestSources.h"
#include "platform/ChartTypes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

constexpr double H = Chart::kHoleValue;

struct Case {
    const char* name;
    std::vector<double> values;
    double max, min, mean, stdDev, median;
};

TEST(SeriesStatistics, FiveStatisticsLeaveHolesOut) {
    const Case cases[] = {
        {"odd count", {3, 1, 2}, 3, 1, 2, std::sqrt(2.0 / 3), 2},
        {"even count takes the mean of the middle two",
         {4, 1, 3, 2},
         4,
         1,
         2.5,
         std::sqrt(1.25),
         2.5},
        {"one point has no spread", {7.5}, 7.5, 7.5, 7.5, 0, 7.5},
        {"holes are left out", {H, 2, H, 4, H}, 4, 2, 3, 1, 3},
        {"negative values", {-1, -3, -2}, -1, -3, -2, std::sqrt(2.0 / 3), -2},
        {"equal values", {5, 5, 5, 5}, 5, 5, 5, 0, 5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const SeriesStatistics s =
            SeriesStatistics::of(c.values.data(), qsizetype(c.values.size()));
        EXPECT_DOUBLE_EQ(s.Maximum, c.max);
        EXPECT_DOUBLE_EQ(s.Minimum, c.min);
        EXPECT_DOUBLE_EQ(s.Mean, c.mean);
        EXPECT_NEAR(s.StdDev, c.stdDev, 1e-12);
        EXPECT_DOUBLE_EQ(s.Stat5, c.median);
    }
}

TEST(SeriesStatistics, HolesOnlyOrNothingGiveTheHoleForAllFive) {
    const std::vector<std::vector<double>> inputs = {{H, H, H}, {}};
    for (const auto& values : inputs) {
        const SeriesStatistics s = SeriesStatistics::of(values.data(), qsizetype(values.size()));
        EXPECT_EQ(s.Maximum, H);
        EXPECT_EQ(s.Minimum, H);
        EXPECT_EQ(s.Mean, H);
        EXPECT_EQ(s.StdDev, H);
        EXPECT_EQ(s.Stat5, H);
        EXPECT_EQ(s.valueCount, 0);
    }
}

// A large offset with a small spread: the sum-of-squares formula loses every digit here.
TEST(SeriesStatistics, StandardDeviationIsStableForLargeOffsets) {
    std::vector<double> values;
    for (int i = 0; i < 1000; ++i) values.push_back(1e9 + (i % 2 == 0 ? 0.5 : -0.5));
    const SeriesStatistics s = SeriesStatistics::of(values.data(), qsizetype(values.size()));
    EXPECT_NEAR(s.StdDev, 0.5, 1e-6);
    EXPECT_DOUBLE_EQ(s.Mean, 1e9);
}

TEST(SeriesStatistics, RangeOfASourceCountsOnlyThatRange) {
    std::vector<double> v(200000);
    for (size_t i = 0; i < v.size(); ++i) v[i] = double(i);
    v[100] = H;
    const VectorSource source(v);
    const SeriesStatistics s = SeriesStatistics::of(source, 99, 3); // 99, hole, 101
    EXPECT_EQ(s.valueCount, 2);
    EXPECT_DOUBLE_EQ(s.Mean, 100);
    const SeriesStatistics all = SeriesStatistics::of(source, 0, source.count());
    EXPECT_EQ(all.valueCount, 199999);
    EXPECT_DOUBLE_EQ(all.Maximum, 199999);
    // Past the end is cut off.
    EXPECT_EQ(SeriesStatistics::of(source, 199998, 10).valueCount, 2);
}

} // namespace
