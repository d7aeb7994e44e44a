#include "platform/SeriesPlanner.h"
#include "ChartTestSources.h"
#include "platform/ChartSeries.h"

#include <gtest/gtest.h>

namespace {

// Plot of 100 x 100 pixels at the origin; X 0..xMax, Y 0..10.
ChartMapper mapper(double xMax) {
    return ChartMapper(QRectF(0, 0, 100, 100), {0, xMax}, {0, 10});
}

TEST(SeriesPlanner, FewPointsAreJoinedExceptAcrossHoles) {
    ChartSeries series;
    series.setStoredValues({1, 2, H, 3, H, H, 4, 5});
    const RenderPlan::Series plan = SeriesPlanner::plan(series, mapper(7));
    ASSERT_EQ(plan.polylines.size(), 2u);
    EXPECT_EQ(plan.polylines[0].size(), 2);
    EXPECT_EQ(plan.polylines[1].size(), 2);
    EXPECT_NEAR(plan.polylines[1][0].x(), 600.0 / 7, 1e-9);
    EXPECT_NEAR(plan.polylines[1][0].y(), 60, 1e-9);
    ASSERT_EQ(plan.lonePoints.size(), 1u); // the 3 between holes
    EXPECT_TRUE(plan.columns.empty());
}

TEST(SeriesPlanner, SymbolsWithoutLineAndPerPointStyles) {
    ChartSeries series;
    series.setStoredValues({1, 2, H, 3});
    series.style.pattern = Chart::LinePattern::None;
    series.style.symbol = Chart::SymbolShape::Box;
    for (int p : {1, 2}) series.setPointStyle(p, {Chart::SymbolShape::Diamond, 9, Qt::red});
    const RenderPlan::Series plan = SeriesPlanner::plan(series, mapper(3));
    EXPECT_TRUE(plan.polylines.empty());
    ASSERT_EQ(plan.symbols.size(), 3u);
    // Point 2 is a hole: its style draws nothing.
    EXPECT_EQ(std::count_if(plan.symbols.begin(), plan.symbols.end(),
                            [](const auto& s) { return s.shape == Chart::SymbolShape::Diamond; }),
              1);
    series.displayState = Chart::kDisplayHidden;
    EXPECT_TRUE(SeriesPlanner::plan(series, mapper(3)).symbols.empty());
}

// 100 points a pixel: one column per pixel, joined where the line steps, broken at holes.
TEST(SeriesPlanner, ManyPointsBecomeOneColumnPerPixel) {
    std::vector<double> y(10000, 2.0);
    std::fill(y.begin() + 5000, y.end(), 8.0);
    ChartSeries series;
    series.setStoredValues(y);
    RenderPlan::Series plan = SeriesPlanner::plan(series, mapper(9999));
    EXPECT_TRUE(plan.polylines.empty());
    ASSERT_EQ(plan.columns.size(), 100u);
    // The step from 2 to 8 is drawn as one column spanning both.
    auto spansStep = [](const QRect& c) { return c.top() <= 20 && c.bottom() >= 79; };
    EXPECT_EQ(std::count_if(plan.columns.begin(), plan.columns.end(), spansStep), 1);
    EXPECT_LE(plan.columns[20].height(), 2);

    std::fill(y.begin() + 4500, y.begin() + 5500, H);
    series.setStoredValues(y);
    plan = SeriesPlanner::plan(series, mapper(9999));
    EXPECT_LT(plan.columns.size(), 92u);
    for (const QRect& column : plan.columns) EXPECT_LE(column.height(), 2);
}

TEST(SeriesPlanner, OnlyPointsInTheXRangeAreRead) {
    ChartSeries series;
    series.setStoredValues(std::vector<double>(1000, 5.0));
    const ChartMapper zoomed(QRectF(0, 0, 100, 100), {100, 150}, {0, 10});
    const RenderPlan::Series plan = SeriesPlanner::plan(series, zoomed);
    ASSERT_EQ(plan.polylines.size(), 1u);
    EXPECT_EQ(plan.polylines[0].size(), 53); // 100..150 and one beyond each side
}

TEST(SeriesPlanner, SeriesWithItsOwnXIsDrawnPointByPoint) {
    ChartSeries cursor;
    cursor.setStoredValues({0, 10});
    cursor.setX(0, 5);
    cursor.setX(1, 5);
    const RenderPlan::Series plan = SeriesPlanner::plan(cursor, mapper(10));
    ASSERT_EQ(plan.polylines.size(), 1u);
    EXPECT_EQ(plan.polylines[0][0], QPointF(50, 100));
    EXPECT_EQ(plan.polylines[0][1], QPointF(50, 0));
}

} // namespace
