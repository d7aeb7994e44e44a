#include "CursorTestSupport.h"
#include "trend/HoverReadout.h"

#include <gtest/gtest.h>

using namespace cursortest;
using namespace trendtest;

namespace {

// A view of two channels on a fixed Y axis of 0..100 over points 1..11.
struct HoverView : CursorView {
    HoverView() : CursorView(5, {ramp(11, 10), {90, 90, 90, kBurn, 90, 90, 90, 90, 90, 90, 90}}) {
        view.chart().axisY().setMin(0);
        view.chart().axisY().setMax(100);
    }
    std::optional<HoverText> at(double fx, double fy, bool banding = false) {
        return HoverReadout::at(view, geometry(), inPlot(fx, fy), banding);
    }
};

} // namespace

// The value under the mouse, the point under it and the nearest channel with its tag, value
// and unit; a channel with a hole there shows its status word.
TEST(HoverReadout, ValuePointAndNearestChannel) {
    HoverView v;
    const std::optional<HoverText> low = v.at(0.2, 0.15);
    ASSERT_TRUE(low);
    EXPECT_EQ(low->point, 3);
    EXPECT_NEAR(low->value, 15, 0.5);
    EXPECT_EQ(low->text, SampleTimeText(2, 5).dateTime + QStringLiteral("\nCH1\n15\n[degC]"));
    EXPECT_EQ(v.at(0.2, 0.85)->channel, 2);
    const std::optional<HoverText> hole = v.at(0.3, 0.85);
    ASSERT_TRUE(hole);
    EXPECT_EQ(hole->point, 4);
    EXPECT_EQ(hole->channel, 1); // channel 2 has no value at point 4
    v.view.chart().setDisplayState(1, Chart::kDisplayHidden);
    EXPECT_EQ(v.at(0.3, 0.85)->text.section(QLatin1Char('\n'), 2, 2), QStringLiteral("BURN"));
}

// Reversed Y mirrors the value; a bound channel turns percent into its units. No readout on a
// logarithmic Y, during a band, outside the plot, or on a circular chart.
TEST(HoverReadout, AxisKindsAndNothingToShow) {
    HoverView v;
    ChartModel& chart = v.view.chart();
    chart.axisY().setReversed(true);
    EXPECT_NEAR(v.at(0.5, 0.25)->value, 75, 0.5);
    chart.axisY().setReversed(false);

    EXPECT_FALSE(v.at(0.5, 0.5, true));
    EXPECT_FALSE(v.at(1.2, 0.5));
    chart.axisY().setLogarithmic(true);
    EXPECT_FALSE(v.at(0.5, 0.5));
    chart.axisY().setLogarithmic(false);
    chart.setChartType(Chart::kTypePolar);
    EXPECT_FALSE(v.at(0.5, 0.5));
    chart.setChartType(Chart::kTypePlot);

    TrendViewState& st = v.view.state();
    st.ScaleType = ScaleType::Bound;
    st.ScalePercentMode = true;
    st.AxisChannel[0] = 2;
    st.Lines[2].scaleLow = QStringLiteral("-100");
    st.Lines[2].scaleHigh = QStringLiteral("300");
    EXPECT_NEAR(v.at(0.5, 0.5)->value, 100, 2);
    EXPECT_NEAR(v.at(0.5, 0.25)->value, 0, 2);
}
