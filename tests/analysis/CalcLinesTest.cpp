#include "MarkerFixture.h"

#include "analysis/CalcLines.h"

using namespace listtest;

namespace {

constexpr double kHole = Chart::kHoleValue;

// Channel 1: 0.1 .. 1.0 over ten points; channel 2: all holes.
fixtures::VxfDescription tenPoints() {
    fixtures::VxfDescription d = twoChannels(10);
    for (auto& row : d.rows) row[1].value = 32761;
    return d;
}

CalcLines::Set everyLine(int channel) {
    CalcLines::Set set;
    set.channel = channel;
    set.on.fill(true);
    for (SeriesStyle& s : set.styles) {
        s.pattern = Chart::LinePattern::Solid;
        s.color = Qt::red;
        s.width = 3;
    }
    return set;
}

// Series of line s (3..14) of a view with n channels.
int line(int n, int s) {
    return n + s;
}

TEST(CalcLines, LevelsOfTheWholeChannelAndItsStyle) {
    MarkerFixture f(tenPoints());
    ChartModel& chart = f.list.chart();
    CalcLines lines(*f.list.view);
    lines.setSet(1, everyLine(1));
    lines.ApplyCalcLines();
    // maximum, minimum, mean, mean + σ, mean - σ, median of 0.1 .. 1.0.
    const double sd = chart.StdDev(1);
    const double expected[] = {1.0, 0.1, 0.55, 0.55 + sd, 0.55 - sd, 0.55};
    for (int s = 3; s <= 8; ++s) {
        const int series = line(2, s);
        ASSERT_EQ(chart.pointCount(series), 2) << s;
        EXPECT_NEAR(chart.Y(series, 1), expected[s - 3], 1e-12) << s;
        EXPECT_EQ(chart.Y(series, 2), chart.Y(series, 1));
        EXPECT_EQ(chart.X(series, 1), 1.0);
        EXPECT_EQ(chart.X(series, 2), 10.0);
        EXPECT_EQ(chart.seriesStyle(series).width, 3);
        EXPECT_EQ(chart.displayState(series), Chart::kDisplayShown);
    }
    EXPECT_EQ(f.state().CalcLineChannel[0], 1);
    // Set 2 waits for valid marker statistics: its lines stay off.
    EXPECT_EQ(chart.seriesStyle(line(2, 9)).pattern, Chart::LinePattern::None);
}

TEST(CalcLines, HolesPercentDataAndAnEmptyChoice) {
    MarkerFixture f(tenPoints());
    ChartModel& chart = f.list.chart();
    CalcLines holes(*f.list.view);
    holes.setSet(1, everyLine(2)); // all holes: lines of the hole, nothing else happens
    holes.ApplyCalcLines();
    EXPECT_EQ(chart.Y(line(2, 3), 1), kHole);
    EXPECT_EQ(f.list.sink.calls().size(), 0);

    f.state().ScalePercentMode = true;
    CalcLines percent(*f.list.view);
    EXPECT_FALSE(percent.deviationOffered());
    percent.setSet(1, everyLine(1));
    percent.ApplyCalcLines();
    EXPECT_EQ(chart.seriesStyle(line(2, 6)).pattern, Chart::LinePattern::None);
    EXPECT_EQ(chart.seriesStyle(line(2, 7)).pattern, Chart::LinePattern::None);
    EXPECT_EQ(chart.seriesStyle(line(2, 5)).pattern, Chart::LinePattern::Solid);

    CalcLines none(*f.list.view);
    CalcLines::Set off = everyLine(0);
    none.setSet(1, off);
    none.ApplyCalcLines();
    for (int s = 3; s <= 8; ++s)
        EXPECT_EQ(chart.seriesStyle(line(2, s)).pattern, Chart::LinePattern::None) << s;
}

TEST(CalcLines, TheMarkerSetSpansTheCursorsEvenWhenTheyMeet) {
    MarkerFixture f(tenPoints());
    ChartModel& chart = f.list.chart();
    ASSERT_TRUE(f.cursors.place(1, 4));
    ASSERT_TRUE(f.cursors.place(2, 4));
    ASSERT_TRUE(f.marker.ToolbarSet(8));
    CalcLines lines(*f.list.view);
    lines.setSet(2, everyLine(1));
    lines.ApplyCalcLines();
    const int max = line(2, 9);
    EXPECT_EQ(chart.Y(max, 1), 0.4);
    EXPECT_EQ(chart.X(max, 1), chart.X(max, 2)); // a line of zero length
    EXPECT_EQ(chart.X(max, 1), chart.X(1, 4));
}

TEST(CalcLines, CircleTwoOf500PointsEndsAtAngle140) {
    MarkerFixture f(fixtures::simpleVxf(1, 500, 86400 * 40, 10, rowValue));
    f.list.chart().setChartType(Chart::kTypePolar);
    f.state().CurrentCircle = 2;
    CalcLines lines(*f.list.view);
    lines.setSet(1, everyLine(1));
    lines.ApplyCalcLines();
    const ChartModel& chart = f.list.chart();
    const int max = line(1, 3);
    ASSERT_EQ(chart.pointCount(max), 360);
    EXPECT_NE(chart.Y(max, 140), kHole);
    EXPECT_EQ(chart.Y(max, 141), kHole);
}

TEST(CalcLines, CancelAfterAPreviewGivesTheEarlierLinesBack) {
    MarkerFixture f(tenPoints());
    ChartModel& chart = f.list.chart();
    CalcLines first(*f.list.view);
    first.setSet(1, everyLine(1));
    first.ApplyCalcLines(); // the lines in force before the dialog opens
    const double before = chart.Y(line(2, 3), 1);
    CalcLines dialog(*f.list.view);
    CalcLines::Set other = everyLine(1);
    other.styles[0].width = 9;
    other.on[1] = false;
    dialog.setSet(1, other);
    dialog.ApplyCalcLines(); // preview
    EXPECT_EQ(chart.seriesStyle(line(2, 3)).width, 9);
    dialog.RestoreCalcLines(); // cancel
    EXPECT_EQ(chart.seriesStyle(line(2, 3)).width, 3);
    EXPECT_EQ(chart.seriesStyle(line(2, 4)).pattern, Chart::LinePattern::Solid);
    EXPECT_EQ(chart.Y(line(2, 3), 1), before);
    EXPECT_EQ(chart.X(line(2, 3), 2), 10.0);
    EXPECT_EQ(f.state().CalcLineChannel[0], 1);
}

TEST(CalcLines, PatternItemsBothWays) {
    EXPECT_EQ(CalcLines::patternOfItem(0), 2);
    EXPECT_EQ(CalcLines::patternOfItem(1), 4);
    EXPECT_EQ(CalcLines::patternOfItem(2), 6);
    EXPECT_EQ(CalcLines::patternOfItem(5), 2);
    EXPECT_EQ(CalcLines::patternOfItem(-1), 2);
    for (int item = 0; item <= 2; ++item)
        EXPECT_EQ(CalcLines::itemOfPattern(CalcLines::patternOfItem(item)), item);
    EXPECT_EQ(CalcLines::CalcLineValue(ChartModel(), 9, 1), kHole);
}

} // namespace
