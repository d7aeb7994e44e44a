#include "CursorTestSupport.h"
#include "app/LanguageTable.h"
#include "trend/AlarmTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorReadout.h"
#include "trend/CursorTimeSpan.h"

#include <gtest/gtest.h>

using namespace cursortest;
using namespace trendtest;

namespace {

constexpr quint32 kRed = 0x0000FF;
constexpr quint32 kBlack = 0;

} // namespace

// The A-B time of D points at interval I: MarkABset and the side grid part ways for I of
// 1001..10000 ms, where the side grid reads the product as milliseconds.
TEST(CursorTimeSpan, MarkerAndSideGridThresholds) {
    const struct {
        qint64 d;
        qint32 interval;
        const char* marker;
        const char* side;
    } rows[] = {
        {10, 5000, "0:0:50", "0:0:0.05"}, {3, 500, "0:0:1.5", "0:0:1.5"},
        {3, 1000, "0:0:3", "0:0:3"},      {10, 10000, "0:1:40", "0:0:0.1"},
        {10, 20000, "0:3:20", "0:3:20"},  {7, 1500, "0:0:14", "0:0:0.014"}, // 1.5 s rounds to 2
        {9, 2500, "0:0:18", "0:0:0.018"}, // 2.5 s rounds to 2 (halves to even)
        {30, 2000, "0:1:0", "0:0:0.06"},
    };
    namespace S = CursorTimeSpan;
    for (const auto& r : rows)
        EXPECT_EQ(QStringList({S::text(S::markerSpan(r.d, r.interval)),
                               S::text(S::sideGridSpan(r.d, r.interval))}),
                  QStringList({shown(QLatin1String(r.marker)), shown(QLatin1String(r.side))}))
            << r.d << " x " << r.interval;
    // Days come first, with message 183.
    EXPECT_EQ(S::text(S::markerSpan(1441, 60000)),
              MsgText(183) + QStringLiteral("1 ") + shown(QStringLiteral("0:1:0")));
    EXPECT_EQ(S::text(S::sideGridSpan(90000, 999)),
              MsgText(183) + QStringLiteral("1 ") + shown(QStringLiteral("0:58:30")));
}

// Values at both cursors with the channel's decimals, the A-B column with the larger count of
// decimals, red below 0 and black otherwise, and the two time texts.
TEST(CursorSideGrid, ValuesDifferencesAndTimes) {
    CursorView v(3, {{123, 150, 200, 99}, {5, 10, 15, 20}}, 1);
    views(3).SampleInterval = 5000;
    v.cursors.place(1, 1);
    v.cursors.place(2, 2);
    const ReadoutGrid& g = v.side().grid();
    EXPECT_EQ(g.text(0, 3), QStringLiteral("A-B"));
    EXPECT_EQ(g.text(3, 0), QStringLiteral("CH1\n[degC]"));
    EXPECT_EQ(QStringList({g.text(3, 1), g.text(3, 2), g.text(3, 3)}),
              QStringList({shown("12.3"), "15", shown("-2.7")}));
    EXPECT_EQ(g.color(3, 3), kRed);
    EXPECT_EQ(g.text(4, 3), shown(QStringLiteral("-0.5"))); // |v| <= 1: the default text
    v.cursors.place(2, 4);
    EXPECT_EQ(g.text(3, 2), shown(QStringLiteral("9.9")));
    EXPECT_EQ(g.text(3, 3), shown(QStringLiteral("2.4")));
    EXPECT_EQ(g.color(3, 3), kBlack);

    const SampleTime a = SampleTimeText(0, 3);
    EXPECT_EQ(g.text(1, 1), a.date);
    EXPECT_EQ(g.text(2, 1), a.time);
    EXPECT_EQ(g.text(2, 3), shown(QStringLiteral("0:0:0.015"))); // 3 points at 5000 ms

    ReadoutGrid marker;
    marker.resize(3, 13);
    MarkABset(v.view, marker, 1, 1);
    MarkABset(v.view, marker, 2, 4);
    EXPECT_EQ(marker.text(1, 1), a.dateTime);
    EXPECT_EQ(marker.text(1, 3), shown(QStringLiteral("0:0:15")));
    EXPECT_EQ(marker.text(2, 3), shown(QStringLiteral("2.4")));
}

// A hole at cursor A shows the cell's status word (or message 179 when there is none), and the
// A-B cell keeps what it showed.
TEST(CursorSideGrid, HoleAtCursorAKeepsDifference) {
    CursorView v(3, {{10, 20, kBurn, kBlank}});
    v.cursors.place(1, 2);
    v.cursors.place(2, 1);
    const ReadoutGrid& g = v.side().grid();
    ASSERT_EQ(g.text(3, 3), QStringLiteral("10"));
    v.cursors.place(1, 3);
    EXPECT_EQ(g.text(3, 1), QStringLiteral("BURN"));
    EXPECT_EQ(g.text(3, 3), QStringLiteral("10"));
    v.cursors.place(1, 4);
    EXPECT_EQ(g.text(3, 1), MsgText(179).trimmed());
    EXPECT_EQ(g.text(3, 3), QStringLiteral("10"));
}

// A value in alarm at cursor B is red in column 2, and its tool tip names the levels set; a
// value without alarm and the A-B column have none.
TEST(CursorSideGrid, AlarmCellsAndToolTips) {
    CursorView v(3, {ramp(5), ramp(5)});
    AlarmTable& table = alarmTable(3);
    table.resize(5, 2);
    table.set(2, 4, 1, 1);
    table.set(4, 4, 1, 7);
    v.cursors.place(1, 3);
    v.cursors.place(2, 4);
    const ReadoutGrid& g = v.side().grid();
    EXPECT_EQ(g.color(3, 2), kRed);
    EXPECT_EQ(g.color(3, 1), kBlack);
    EXPECT_EQ(v.side().toolTip(3, 2),
              (MsgText(9) + QLatin1Char('\n') + MsgText(229) + QStringLiteral("\n2\n4")).trimmed());
    EXPECT_TRUE(v.side().toolTip(3, 1).isEmpty());
    EXPECT_TRUE(v.side().toolTip(3, 3).isEmpty());
    EXPECT_EQ(CursorReadout::markerAlarmTip(3, 2, 4, 1),
              (MsgText(9) + QLatin1Char('\n') + MsgText(229) + QStringLiteral("2 ") +
               AlarmKindText(1) + QLatin1Char('\n') + MsgText(229) + QStringLiteral("4 ON"))
                  .trimmed());
    table.clear();
}

// Percent data read back in engineering units, rounded to the channel's decimals (1 of a
// 0..3 scale is 33.3333333333333 % and reads 1, not 0.999999999999999); exponent channels show
// their own format in the value and the difference.
TEST(CursorSideGrid, PercentAndExponentChannels) {
    CursorView v(3, {{1, 2, 0, 0}, {1, 2, 3, 4}}, 0, QStringLiteral("0"), QStringLiteral("1000"));
    TrendViewState& st = v.view.state();
    st.ScalePercentMode = true;
    st.Lines[1].scaleHigh = QStringLiteral("3");
    st.Lines[1].decimals = 1;
    views(3).Channels.ChExpDigits[2] = 2;
    v.view.plot().ScaleCalculateSet();
    v.cursors.place(1, 2);
    v.cursors.place(2, 1);
    const ReadoutGrid& g = v.side().grid();
    EXPECT_EQ(QStringList({g.text(3, 1), g.text(3, 2), g.text(3, 3)}),
              QStringList({"2", "1", "1"}));
    EXPECT_EQ(g.text(4, 1), shown(QStringLiteral("2.0E+00")));
    EXPECT_EQ(g.text(4, 3), shown(QStringLiteral("1.0E+00")));
}

// The texts of values, status and alarm kinds that every readout shares.
TEST(ChannelTexts, ValueAndKindTexts) {
    const struct {
        double value;
        int code;
        const char* text;
    } values[] = {
        {0.5, 0, "0.5"},   {12.25, 0, "12.25"},    {1234.5, 2, "1.2E+03"},
        {-7.5, 9, "-7.5"}, {0.000012, 1, "1E-05"}, {150, 4, "1.500E+02"},
    };
    for (const auto& v : values)
        EXPECT_EQ(ChannelValueText(v.value, v.code), shown(QLatin1String(v.text))) << v.value;
    EXPECT_EQ(AlarmKindText(5), MsgText(269));
    EXPECT_EQ(AlarmKindText(12), QStringLiteral("ON"));
}
