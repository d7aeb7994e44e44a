#include "TrendFixture.h"
#include "support/RecordingMessageSink.h"

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

std::vector<double> ys(const ChartModel& chart, int s) {
    std::vector<double> out;
    for (qsizetype p = 1; p <= chart.pointCount(s); ++p) out.push_back(chart.Y(s, p));
    return out;
}

} // namespace

// After a load every channel is a series of all points, X the point index, status words gaps;
// the fourteen extra series exist, hidden, with the cursor colours.
TEST(TrendPlot, LoadFillsEveryChannelAndTheExtraSeries) {
    LoadedView v(4, {{10, 20, kBurn, 40}, {1, 2, 3, 4}});
    const ChartModel& chart = v.view.chart();
    ASSERT_EQ(chart.seriesCount(), 2 + 14);
    EXPECT_EQ(ys(chart, 1), (std::vector<double>{10, 20, H, 40}));
    EXPECT_EQ(chart.X(1, 4), 3);
    for (int s = 3; s <= 16; ++s) EXPECT_EQ(chart.displayState(s), Chart::kDisplayHidden) << s;
    EXPECT_EQ(chart.seriesStyle(1).color, QColor(255, 0, 0)) << "pen from 0x00BBGGRR";
    EXPECT_EQ(v.view.state().ZoomX[0][2], 4);
    EXPECT_EQ(v.view.chart().axisX().max(), 3);
}

// Percent mode: Y stays 0..100, also when one channel is chosen (only with the mouse armed);
// channels that share one scale stay in engineering units.
TEST(TrendPlot, PercentModeAndChannelChoice) {
    LoadedView v(4, {{0, 500, 1000}, {-10, 0, 10}}, 0, QStringLiteral("0"), QStringLiteral("1000"));
    TrendView& view = v.view;
    EXPECT_FALSE(view.plot().channelsNeedPercent());
    views(4).Channels.ChScaleLow[2] = QStringLiteral("-10");
    views(4).Channels.ChScaleHigh[2] = QStringLiteral("10");
    EXPECT_TRUE(view.plot().channelsNeedPercent());
    ASSERT_TRUE(view.afterLoad());
    view.state().ScalePercentMode = true;
    view.plot().CH_DataSet();
    EXPECT_EQ(ys(view.chart(), 1), (std::vector<double>{0, 50, 100}));
    EXPECT_EQ(ys(view.chart(), 2), (std::vector<double>{0, 50, 100}));

    view.state().MouseArmed = true;
    view.plot().selectChannel(2);
    EXPECT_EQ(view.chart().displayState(1), Chart::kDisplayHidden);
    EXPECT_EQ(view.chart().displayState(2), Chart::kDisplayShown);
    EXPECT_EQ(view.chart().axisY().max(), 100);
    view.state().MouseArmed = false;
    view.plot().selectChannel(1);
    EXPECT_EQ(view.chart().displayState(2), Chart::kDisplayShown);
}

// Flat lines on round values stand inside the automatic Y range, which zoom level 0 keeps and
// the whole-recording command brings back.
TEST(TrendPlot, AutomaticYRangeKeepsFlatLinesOffTheFrame) {
    LoadedView v(4, {{250, 250, 250}, {750, 750, 750}}, 1, QStringLiteral("0.0"),
                 QStringLiteral("100.0"));
    TrendView& view = v.view;
    EXPECT_EQ(view.chart().axisY().min(), 20);
    EXPECT_EQ(view.chart().axisY().max(), 80);
    EXPECT_EQ(view.state().ZoomY[0][1], 20);
    EXPECT_EQ(view.state().ZoomY[0][2], 80);
    view.scales().setYRange(30, 40);
    view.zoom().SetZoom(0);
    EXPECT_EQ(view.chart().axisY().min(), 20);
    EXPECT_EQ(view.chart().axisY().max(), 80);
}

// At 3,600,000 points the view refuses the recording without a message; one point fewer loads.
TEST(TrendPlot, RefusesFromMaximumAlarmCount) {
    RecordingMessageSink sink;
    makeView(5, {std::vector<qint16>(3599999, 7)}, 0);
    TrendView accepted(5);
    EXPECT_EQ(accepted.plot().loadFill(nullptr), TrendPlot::LoadFill::Filled);
    EXPECT_EQ(accepted.chart().pointCount(1), 3599999);

    views(5).PointCount = 3600000;
    views(5).FileCount = 2;
    TrendView refused(5);
    refused.window().Caption = QStringLiteral("a.vxf");
    EXPECT_FALSE(refused.afterLoad());
    EXPECT_TRUE(refused.window().TooLarge);
    EXPECT_TRUE(refused.window().Caption.isEmpty());
    EXPECT_EQ(views(5).FileCount, 0);
    EXPECT_EQ(refused.chart().seriesCount(), 0);
    EXPECT_TRUE(sink.calls().isEmpty());
}
