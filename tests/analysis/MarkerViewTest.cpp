#include "MarkerFixture.h"

#include "analysis/MarkerView.h"
#include "base/LanguageTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorTestSupport.h"
#include "trend/TrendCursors.h"

#include <cmath>

using namespace listtest;
using cursortest::shown;

namespace {

const QString kHole = MsgText(179);

// Channel 1 holds 1, 2, a hole, 4, 10 (one decimal: raw ten times); channel 2 is all holes.
fixtures::VxfDescription handWorked() {
    fixtures::VxfDescription d = twoChannels(5);
    const qint16 raw[] = {10, 20, 32761, 40, 100};
    for (int r = 0; r < 5; ++r) {
        d.rows[r][0].value = raw[r];
        d.rows[r][1].value = 32761; // blanks: a hole with no status word
    }
    return d;
}

TEST(MarkerView, GridHeadersAndTheStatisticsOfAllData) {
    MarkerFixture f(handWorked());
    EXPECT_EQ(f.grid.maxCols(), 13);
    EXPECT_EQ(f.grid.maxRows(), 3);
    EXPECT_EQ(f.cell(3, 0), QStringLiteral("A-B"));
    EXPECT_EQ(f.cell(4, 0), MsgText(230) + "\r\n" + MsgText(71));
    EXPECT_EQ(f.cell(13, 0), MsgText(78) + "\r\n" + MsgText(75));
    EXPECT_EQ(f.cell(0, 1), MsgText(77));
    EXPECT_EQ(f.cell(0, 2), QStringLiteral("T1\r\n[degC]"));
    EXPECT_EQ(f.grid.colWidth(0), 20);
    // Worked by hand over 1, 2, 4 and 10: mean 4.25, population deviation sqrt(12.1875),
    // median (2 + 4) / 2.
    EXPECT_EQ(f.cell(4, 2), shown("10"));
    EXPECT_EQ(f.cell(5, 2), shown("1"));
    EXPECT_EQ(f.cell(6, 2), shown("4.25"));
    EXPECT_NEAR(f.cell(7, 2).replace(shown("."), ".").toDouble(), std::sqrt(12.1875), 1e-12);
    EXPECT_EQ(f.cell(8, 2), shown("3"));
    for (int c = 4; c <= 8; ++c) EXPECT_EQ(f.cell(c, 3), kHole) << c; // all holes
    // No cursor placed: empty cursor columns, the marker group not valid.
    EXPECT_EQ(f.cell(1, 2), QString());
    for (int c = 9; c <= 13; ++c) EXPECT_EQ(f.cell(c, 2), kHole) << c;
}

TEST(MarkerView, PercentDataConvertsAllButTheDeviation) {
    MarkerFixture f(handWorked());
    TrendViewState& st = f.state();
    st.ScalePercentMode = true;
    st.Lines[1].scaleLow = QStringLiteral("100");
    st.Lines[1].scaleHigh = QStringLiteral("300");
    st.Lines[1].decimals = 1;
    f.marker.All_Cal_Set();
    // (300 - 100) * y / 100 + 100, kept to one decimal.
    EXPECT_EQ(f.cell(4, 2), shown("120"));   // 10 %
    EXPECT_EQ(f.cell(5, 2), shown("102"));   // 1 %
    EXPECT_EQ(f.cell(6, 2), shown("108.5")); // 4.25 %
    EXPECT_NEAR(f.cell(7, 2).replace(shown("."), ".").toDouble(), std::sqrt(12.1875), 1e-12);
    EXPECT_EQ(f.cell(8, 2), shown("106"));
}

TEST(MarkerView, CursorColumnsAndTheMarkerStatisticsFollowAutoCalc) {
    fixtures::VxfDescription d = twoChannels(20);
    d.intervalTenths = 50; // 5000 ms
    MarkerFixture f(d);
    ASSERT_TRUE(f.cursors.place(1, 4));
    ASSERT_TRUE(f.cursors.place(2, 14));
    EXPECT_EQ(f.cell(1, 2), shown("0.4"));
    EXPECT_EQ(f.cell(2, 3), shown("14"));
    EXPECT_EQ(f.cell(3, 1), shown("0:0:50")); // 10 points of 5000 ms
    // MarkerAutoCalc off: the marker group stays not valid until button 8.
    EXPECT_EQ(f.cell(9, 2), kHole);
    ASSERT_TRUE(f.marker.ToolbarSet(8));
    EXPECT_EQ(f.cell(9, 2), shown("1.4"));
    EXPECT_EQ(f.cell(10, 2), shown("0.4"));
    ASSERT_TRUE(f.marker.ToolbarSet(5)); // B one step right: no recomputation
    EXPECT_EQ(f.cell(2, 2), shown("1.5"));
    EXPECT_EQ(f.cell(9, 2), shown("1.4"));
    f.marker.setAutoCalc(true);
    ASSERT_TRUE(f.marker.ToolbarSet(1)); // A one step left: recomputed over 3..15
    EXPECT_EQ(f.state().CursorPoint[0], 3);
    EXPECT_EQ(f.cell(9, 2), shown("1.5"));
    EXPECT_EQ(f.cell(10, 2), shown("0.3"));
    // Channel 2 holds 3..15 there: the deviation of 13 consecutive numbers, sqrt(14).
    EXPECT_NEAR(f.cell(12, 3).replace(shown("."), ".").toDouble(), std::sqrt(14.0), 1e-12);
}

TEST(MarkerView, OnePointSpansAndTheEmptyCircularSpan) {
    MarkerFixture f(twoChannels(800));
    ASSERT_TRUE(f.cursors.place(1, 7));
    ASSERT_TRUE(f.cursors.place(2, 7));
    ASSERT_TRUE(f.marker.ToolbarSet(8));
    EXPECT_EQ(f.cell(9, 2), shown("0.7"));
    EXPECT_EQ(f.cell(11, 2), shown("0.7"));
    EXPECT_EQ(f.cell(12, 2), shown("0"));
    // In the circular graph point 360 counts as 0: the span is 1..1 and holds the hole.
    f.list.chart().setChartType(Chart::kTypePolar);
    f.marker.BuildMarkerSeries(360, 20);
    f.marker.markerFill();
    for (int c = 9; c <= 13; ++c) EXPECT_EQ(f.cell(c, 2), kHole) << c;
    f.marker.BuildMarkerSeries(365, 370); // 5..10 of the circle
    f.marker.markerFill();
    EXPECT_EQ(f.cell(9, 2), shown("1"));
    EXPECT_EQ(f.cell(10, 2), shown("0.5"));
}

TEST(MarkerView, UnplacedCursorsGiveMessage565AndNothingElse) {
    MarkerFixture f(twoChannels(20));
    for (int button : {1, 2, 4, 5, 8}) {
        f.list.sink.clear();
        EXPECT_FALSE(f.marker.ToolbarSet(button)) << button;
        ASSERT_EQ(f.list.sink.calls().size(), 1) << button;
        EXPECT_EQ(f.list.sink.last().text, MsgText(565));
    }
    EXPECT_EQ(f.state().CursorPoint[0], 0);
    // A placed cursor steps and stops at the ends.
    ASSERT_TRUE(f.cursors.place(1, 1));
    f.marker.ToolbarSet(1);
    EXPECT_EQ(f.state().CursorPoint[0], 1);
    ASSERT_TRUE(f.cursors.place(2, 20));
    f.marker.ToolbarSet(5);
    EXPECT_EQ(f.state().CursorPoint[1], 20);
}

TEST(MarkerView, FormatOfTheMaximumAgainstTheMeanAndTheColumnGroups) {
    fixtures::VxfDescription d = twoChannels(4);
    d.channels[0].expFormat = true; // an exponent format code
    d.channels[0].decimals = 2;
    MarkerFixture f(d);
    const int code = ChannelTexts::formatCode(1, 1);
    ASSERT_NE(code, 0);
    EXPECT_EQ(f.cell(4, 2), ChannelValueText(f.list.chart().Maximum(1), code));
    EXPECT_EQ(f.cell(6, 2), ChannelValueText(f.list.chart().Mean(1), 0));
    f.marker.setShowAll(false);
    EXPECT_TRUE(f.grid.colHidden(4));
    EXPECT_FALSE(f.grid.colHidden(9));
    f.marker.setShowMarker(false);
    EXPECT_TRUE(f.grid.colHidden(13));
    f.marker.setShowAll(true);
    EXPECT_FALSE(f.grid.colHidden(8));
}

} // namespace
