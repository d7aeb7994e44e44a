#include "CursorTestSupport.h"

#include <gtest/gtest.h>

using namespace cursortest;
using namespace trendtest;

namespace {

constexpr int kA = 2; // series of cursor A in a one-channel view
constexpr int kB = 3;

} // namespace

// Buttons 6 and 7: one turns the other off; both off ends the tracking marker, gives the X band
// zoom back and makes clicks place nothing.
TEST(TrendCursors, ButtonsExcludeEachOtherAndStyleTheMarker) {
    CursorView v(3, {ramp(50)});
    TrendCursors& c = v.cursors;
    const TrendViewState& st = v.view.state();

    ASSERT_TRUE(c.command(6));
    EXPECT_EQ(c.activeCursor(), 1);
    EXPECT_TRUE(c.marker().tracking);
    EXPECT_EQ(c.marker().color, QColor(0, 0, 255));
    EXPECT_FALSE(v.view.zoom().canStartBand(false));

    ASSERT_TRUE(c.command(7));
    EXPECT_FALSE(st.CursorAOn);
    EXPECT_TRUE(st.CursorBOn);
    EXPECT_EQ(c.marker().color, QColor(255, 0, 255));

    ASSERT_TRUE(c.command(7));
    EXPECT_EQ(c.activeCursor(), 0);
    EXPECT_FALSE(c.marker().tracking);
    EXPECT_TRUE(v.view.zoom().canStartBand(false));
    EXPECT_FALSE(c.command(5));
    c.mouseMove(v.geometry(), v.inPlot(0.5, 0.5));
    EXPECT_FALSE(c.click(v.geometry())) << "both buttons off";
}

// A click places the active cursor on the nearest point along X; left of the first and right
// of the last sample it lands on that end. The line spans the Y range in the cursor's series.
// Outside the chart area a click places nothing.
TEST(TrendCursors, ClickPlacesOnNearestPointAndEnds) {
    CursorView v(3, {ramp(50, 10)});
    ChartModel& chart = v.view.chart();
    chart.axisX().setMin(-10); // room left of the first and right of the last sample
    chart.axisX().setMax(59);
    v.cursors.command(6);
    const struct {
        double fx;
        qint32 point;
    } clicks[] = {{0.99, 50}, {0.01, 1}, {(20.25 + 10) / 69, 21}, {(20.75 + 10) / 69, 22}};
    for (const auto& k : clicks) {
        const ChartGeometry g = v.geometry();
        v.cursors.mouseMove(g, v.inPlot(k.fx, 0.5));
        EXPECT_EQ(v.cursors.marker().x, k.point - 1) << k.fx;
        ASSERT_TRUE(v.cursors.click(g)) << k.fx;
        EXPECT_EQ(v.view.state().CursorPoint[0], k.point) << k.fx;
        EXPECT_EQ(chart.X(kA, 1), k.point - 1);
        EXPECT_EQ(chart.X(kA, 2), k.point - 1);
    }
    EXPECT_EQ(chart.Y(kA, 2), chart.axisY().max());
    EXPECT_EQ(chart.displayState(kA), Chart::kDisplayShown);
    EXPECT_EQ(chart.displayState(kB), Chart::kDisplayHidden);
    v.cursors.mouseMove(v.geometry(), QPointF(1, 1)); // the chart's corner, outside the area
    EXPECT_FALSE(v.cursors.click(v.geometry()));
}

// A hole at point 1 of series 1 blocks placing but still updates the bar chart.
TEST(TrendCursors, HoleAtFirstPointPlacesNothing) {
    CursorView holed(4, {{kBurn, 5, 6, 7}});
    int barUpdates = 0;
    holed.cursors.barUpdate = [&](int cursor) { barUpdates += cursor; };
    holed.cursors.command(7);
    const ChartGeometry hg = holed.geometry();
    holed.cursors.mouseMove(hg, holed.inPlot(0.5, 0.5));
    EXPECT_FALSE(holed.cursors.click(hg));
    EXPECT_EQ(holed.view.state().CursorPoint[1], 0);
    EXPECT_EQ(barUpdates, 2);
}

// Scrolling and zooming leave a cursor where it is. A load takes both cursors away.
TEST(TrendCursors, CursorsNeverMoveByThemselves) {
    CursorView v(3, {ramp(200)});
    ChartModel& chart = v.view.chart();
    ASSERT_TRUE(v.cursors.place(1, 120));
    ASSERT_TRUE(v.cursors.place(2, 30));
    v.view.zoom().SetDataRange(1, 50);
    v.view.zoom().zoomX(10, 40);
    EXPECT_EQ(v.view.state().CursorPoint[0], 120);
    EXPECT_EQ(chart.X(kA, 1), 119);

    v.cursors.command(6);
    EXPECT_TRUE(v.view.afterLoad());
    v.cursors.afterLoad();
    EXPECT_EQ(v.view.state().CursorPoint, (decltype(v.view.state().CursorPoint){0, 0}));
    EXPECT_EQ(v.cursors.activeCursor(), 0);
}
