#include "CursorTestSupport.h"
#include "base/LanguageTable.h"
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
        {10, 10000, "0:1:40", "0:0:0.1"}, {10, 20000, "0:3:20", "0:3:20"},
        {9, 2500, "0:0:18", "0:0:0.018"}, // 2.5 s rounds to 2 (halves to even)
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
