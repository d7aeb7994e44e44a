#include "TrendFixture.h"

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

// A loaded view of one channel of n points, mouse armed, with a beep counter.
struct ZoomView : LoadedView {
    explicit ZoomView(int points, int number = 7) : LoadedView(number, {ramp(points)}) {
        view.window().beep = [this] { ++beeps; };
    }
    int beeps = 0;
};

} // namespace

// With 70,000 points the bar spans 32767 steps: the thumb and the position are proportions,
// kept in 16 bits, and scrolling maps the position back to points.
TEST(TrendZoom, SixteenBitScrollArithmetic) {
    ZoomView z(70000);
    TrendView& v = z.view;
    EXPECT_EQ(v.state().ScrollScale, 32767);
    const struct {
        qint32 first, last;
        qint16 large, small, max, value;
    } ranges[] = {
        {1, 7000, 3277, 655, 29490, 1},          // position below 1: the bar's start
        {35001, 42000, 3277, 655, 29490, 16384}, // 16383.97 rounds
        {63001, 70000, 3277, 655, 29490, 29490}, // at the end: the bar's maximum
        {1, 70000, 32767, 6553, 0, 1},
    };
    for (const auto& r : ranges) {
        v.zoom().SetDataRange(r.first, r.last);
        const ScrollBarState& bar = v.window().hsbTrendGraph;
        EXPECT_EQ((std::vector<int>{bar.LargeChange, bar.SmallChange, bar.Max, bar.Value}),
                  (std::vector<int>{r.large, r.small, r.max, r.value}))
            << r.first;
        EXPECT_EQ(v.chart().axisX().min(), r.first - 1);
        EXPECT_EQ(v.chart().axisX().max(), r.last - 1);
    }
    v.zoom().SetDataRange(1, 7000);
    const struct {
        int value;
        qint32 first, last;
    } scrolls[] = {{16384, 35001, 42000}, {1, 2, 7001}, {29490, 62999, 69998}};
    for (const auto& s : scrolls) {
        v.zoom().scroll(s.value);
        EXPECT_EQ(v.state().FirstShown, s.first) << s.value;
        EXPECT_EQ(v.state().LastShown, s.last) << s.value;
    }
    EXPECT_EQ(v.state().ZoomLevel, 0) << "scrolling leaves the stack alone";
    // While a range is being set the scroll bar's events are dropped.
    v.state().BusyDrawing = true;
    v.zoom().scroll(1);
    EXPECT_EQ(v.state().FirstShown, 62999);
}

// The stack: bands push levels, narrow or flat bands are dropped, level 99 is the top by band.
TEST(TrendZoom, StackLimitsAndDrops) {
    ZoomView z(1000);
    TrendView& v = z.view;
    TrendViewState& st = v.state();
    ASSERT_TRUE(v.zoom().canStartBand(false));
    EXPECT_FALSE(v.zoom().zoomX(10, 11)) << "a band below 2 points";
    EXPECT_EQ(st.ZoomLevel, 0);
    ASSERT_TRUE(v.zoom().zoomX(300, 100));
    EXPECT_EQ(st.ZoomLevel, 1);
    EXPECT_EQ(std::make_pair(st.ZoomX[1][1], st.ZoomX[1][2]), std::make_pair(100, 300));
    EXPECT_TRUE(v.window().hsbTrendGraph.Enabled);
    EXPECT_FALSE(v.zoom().zoomY(5, 5)) << "a Y band with no height";
    EXPECT_EQ(st.ZoomLevel, 1);

    st.ZoomLevel = 98;
    EXPECT_TRUE(v.zoom().canStartBand(false));
    ASSERT_TRUE(v.zoom().zoomX(100, 200));
    EXPECT_EQ(st.ZoomLevel, 99);
    EXPECT_FALSE(v.zoom().canStartBand(false));
    EXPECT_EQ(z.beeps, 1);
    EXPECT_TRUE(st.ZoomPending);
    v.command(1);
    EXPECT_EQ(st.ZoomLevel, 98);
    EXPECT_FALSE(st.ZoomPending);

    // No band without the mouse, and no Y band with the strips.
    st.ScaleType = ScaleType::MultiScale;
    EXPECT_FALSE(v.zoom().canStartBand(true));
    st.MouseArmed = false;
    EXPECT_FALSE(v.zoom().canStartBand(false));
}

// Back one level from level 1 returns to the whole recording and disables buttons 1 and 2; a Y
// band alone leaves the scroll bar off, since X is as wide as level 0.
TEST(TrendZoom, BackAndYOnlyZoom) {
    ZoomView z(500);
    TrendView& v = z.view;
    const double yMin = v.chart().axisY().min(), yMax = v.chart().axisY().max();
    ASSERT_TRUE(v.zoom().zoomY(100, 200));
    EXPECT_EQ(v.chart().axisY().max(), 200);
    EXPECT_FALSE(v.window().hsbTrendGraph.Enabled);
    v.command(1);
    EXPECT_EQ(v.state().ZoomLevel, 0);
    EXPECT_FALSE(v.window().Toolbar2Enabled[1] || v.window().Toolbar2Enabled[2]);
    EXPECT_EQ(v.chart().axisY().min(), yMin);
    EXPECT_EQ(v.chart().axisY().max(), yMax);
    EXPECT_FALSE(v.chart().axisY().isMinAuto()) << "level 0's range comes back fixed";
}
