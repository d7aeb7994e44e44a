#include "ChartTestSources.h"

#include "platform/ChartModel.h"
#include "platform/SeriesWork.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>

namespace {

// A source that runs out of memory when its pyramid is built.
class FailingSource : public SeriesSource {
public:
    qsizetype count() const override { return 100; }
    void values(qsizetype, qsizetype, double*) const override { throw std::bad_alloc(); }
};

std::vector<double> ramp(int n, double offset) {
    std::vector<double> v(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i) v[size_t(i)] = offset + i % 97 - (i == n / 3 ? 500 : 0);
    return v;
}

TEST(SeriesWork, EverySeriesGetsTheRangesOfItsOwnValuesAndProgressEndsAtTheCount) {
    ChartModel chart;
    chart.setSeriesCount(9);
    for (int s = 1; s <= 9; ++s)
        chart.setSeriesSource(s, std::make_unique<VectorSource>(ramp(50000 + s, s * 1000.0)));
    std::vector<int> reported;
    buildPyramids(chart, 1, 9, [&](int done) { reported.push_back(done); });
    for (int s = 1; s <= 9; ++s) {
        const MinMaxPyramid::Range r = chart.series(s).yRange();
        EXPECT_EQ(r.min, s * 1000.0 + (50000 + s) / 3 % 97 - 500) << s;
        EXPECT_EQ(r.max, s * 1000.0 + 96) << s;
    }
    ASSERT_FALSE(reported.empty());
    EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
    EXPECT_EQ(reported.back(), 9);
}

TEST(SeriesWork, AFailedBuildOnEitherThreadIsThrownToTheCaller) {
    for (int failing : {1, 2, 8}) {
        ChartModel chart;
        chart.setSeriesCount(8);
        for (int s = 1; s <= 8; ++s)
            if (s == failing)
                chart.setSeriesSource(s, std::make_unique<FailingSource>());
            else
                chart.setSeriesSource(s, std::make_unique<VectorSource>(ramp(20000, 0)));
        EXPECT_THROW(buildPyramids(chart, 1, 8, [](int) {}), std::bad_alloc) << failing;
    }
}

} // namespace
