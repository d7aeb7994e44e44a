#include "platform/MinMaxPyramid.h"
#include "ChartTestSources.h"
#include "platform/ChartTypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

MinMaxPyramid::Range bruteForce(const std::vector<double>& v, qsizetype first, qsizetype n) {
    MinMaxPyramid::Range r;
    for (qsizetype i = first; i < first + n; ++i) r.add(v[size_t(i)]);
    return r;
}

void expectSame(const MinMaxPyramid::Range& got, const MinMaxPyramid::Range& want) {
    EXPECT_EQ(got.hasValue, want.hasValue);
    EXPECT_EQ(got.hasHole, want.hasHole);
    if (want.hasValue) {
        EXPECT_EQ(got.min, want.min);
        EXPECT_EQ(got.max, want.max);
    }
}

// Random walk with single holes and runs of holes; a length that is no multiple of a block.
VectorSource randomSeries(size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> step(-1, 1);
    std::vector<double> v(count);
    double x = 0;
    for (size_t i = 0; i < count; ++i) {
        x += step(random);
        v[i] = x;
        if (random() % 97 == 0) v[i] = H;
        if (random() % 5003 == 0) {
            const size_t run = 1 + random() % 2000;
            for (size_t k = i; k < std::min(count, i + run); ++k) v[k] = H;
            i += run;
        }
    }
    return VectorSource(std::move(v));
}

TEST(MinMaxPyramid, RangeQueriesMatchBruteForce) {
    const VectorSource source = randomSeries(300007, 7);
    MinMaxPyramid pyramid;
    pyramid.build(source);
    ASSERT_GE(pyramid.levelCount(), 3);
    std::mt19937 random(11);
    for (int k = 0; k < 400; ++k) {
        const qsizetype first = qsizetype(random() % source.count());
        const qsizetype n = qsizetype(random() % (k % 2 ? 70000 : 300)) + 1;
        const qsizetype clipped = std::min(n, source.count() - first);
        SCOPED_TRACE(testing::Message() << "first " << first << " n " << clipped);
        expectSame(pyramid.range(source, first, n), bruteForce(source.data(), first, clipped));
    }
    expectSame(pyramid.range(source, 0, source.count()),
               bruteForce(source.data(), 0, source.count()));
}

TEST(MinMaxPyramid, SmallAndEmptySeries) {
    const VectorSource empty(std::vector<double>{});
    const VectorSource holes(std::vector<double>{H, H, H});
    MinMaxPyramid pyramid;
    pyramid.build(empty);
    EXPECT_FALSE(pyramid.range(empty, 0, 10).hasValue);
    pyramid.build(holes);
    expectSame(pyramid.range(holes, 0, 3), bruteForce(holes.data(), 0, 3));
}

TEST(MinMaxPyramid, LevelForSpanTakesTheCoarsestBlocksThatFit) {
    const VectorSource source = randomSeries(1 << 20, 5);
    MinMaxPyramid pyramid;
    pyramid.build(source);
    EXPECT_EQ(pyramid.levelForSpan(MinMaxPyramid::kBaseBlock - 1), -1);
    EXPECT_EQ(pyramid.levelForSpan(MinMaxPyramid::kBaseBlock), 0);
    EXPECT_EQ(pyramid.levelForSpan(MinMaxPyramid::kBaseBlock * MinMaxPyramid::kLevelFactor * 2), 1);
}

} // namespace
