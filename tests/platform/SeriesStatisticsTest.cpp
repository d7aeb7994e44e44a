#include "platform/SeriesStatistics.h"
#include "ChartTestSources.h"
#include "platform/ChartTypes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

SeriesStatistics of(const std::vector<double>& v) {
    return SeriesStatistics::of(v.data(), qsizetype(v.size()));
}

TEST(SeriesStatistics, FiveStatisticsLeaveHolesOut) {
    const struct {
        const char* name;
        std::vector<double> values;
        double max, min, mean, stdDev, median;
    } cases[] = {
        {"odd count", {3, 1, 2}, 3, 1, 2, std::sqrt(2.0 / 3), 2},
        {"even count: mean of the middle two", {4, 1, 3, 2}, 4, 1, 2.5, std::sqrt(1.25), 2.5},
        {"one point has no spread", {7.5}, 7.5, 7.5, 7.5, 0, 7.5},
        {"holes are left out", {H, 2, H, 4, H}, 4, 2, 3, 1, 3},
        {"negative values", {-1, -3, -2}, -1, -3, -2, std::sqrt(2.0 / 3), -2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const SeriesStatistics s = of(c.values);
        EXPECT_DOUBLE_EQ(s.Maximum, c.max);
        EXPECT_DOUBLE_EQ(s.Minimum, c.min);
        EXPECT_DOUBLE_EQ(s.Mean, c.mean);
        EXPECT_NEAR(s.StdDev, c.stdDev, 1e-12);
        EXPECT_DOUBLE_EQ(s.Stat5, c.median);
    }
}

TEST(SeriesStatistics, HolesOnlyOrNothingGiveTheHoleForAllFive) {
    for (const auto& values : std::vector<std::vector<double>>{{H, H, H}, {}}) {
        const SeriesStatistics s = of(values);
        for (double v : {s.Maximum, s.Minimum, s.Mean, s.StdDev, s.Stat5}) EXPECT_EQ(v, H);
        EXPECT_EQ(s.valueCount, 0);
    }
}

// A large offset with a small spread: the sum-of-squares formula loses every digit here.
TEST(SeriesStatistics, StandardDeviationIsStableForLargeOffsets) {
    std::vector<double> values;
    for (int i = 0; i < 1000; ++i) values.push_back(1e9 + (i % 2 == 0 ? 0.5 : -0.5));
    EXPECT_NEAR(of(values).StdDev, 0.5, 1e-6);
}

TEST(SeriesStatistics, RangeOfASourceCountsOnlyThatRange) {
    std::vector<double> v(200000);
    for (size_t i = 0; i < v.size(); ++i) v[i] = double(i);
    v[100] = H;
    const VectorSource source(v);
    const SeriesStatistics s = SeriesStatistics::of(source, 99, 3); // 99, hole, 101
    EXPECT_EQ(s.valueCount, 2);
    EXPECT_DOUBLE_EQ(s.Mean, 100);
    EXPECT_DOUBLE_EQ(SeriesStatistics::of(source, 0, source.count()).Maximum, 199999);
    EXPECT_EQ(SeriesStatistics::of(source, 199998, 10).valueCount, 2); // past the end is cut off
}

} // namespace
