#include "ListFixture.h"

#include "analysis/ChannelSettings.h"
#include "support/NpWriter.h"
#include "trend/PlotValue.h"

using namespace listtest;

namespace {

constexpr double kHole = Chart::kHoleValue;

TEST(ChannelSettings, OkWithoutAChangeDoesNotReplotAndATagReachesTheLegend) {
    ListView v(twoChannels(10));
    ChannelSettings settings(*v.view);
    EXPECT_EQ(settings.rowCount(), 128);
    EXPECT_FALSE(settings.needsReplot());
    settings.setTag(1, QStringLiteral("Kiln temperature long name"));
    EXPECT_FALSE(settings.apply());                                            // stored, no replot
    EXPECT_EQ(views(1).Channels.ChTag[1], QStringLiteral("Kiln temperature")); // 16 characters
    EXPECT_EQ(v.chart().series(1).label, QStringLiteral("Kiln temperature"));
}

TEST(ChannelSettings, SourcesSecondColumnsAndConstants) {
    ListView v(twoChannels(10)); // channel 1: row / 10, channel 2: row
    ChartModel& chart = v.chart();
    {
        ChannelSettings settings(*v.view);
        EXPECT_EQ(settings.sourceItems(), (QStringList{"---", "No1", "No2"}));
        settings.line(1).secondColumn = 2; // C = A + B
        settings.line(2).sourceColumn = 0; // "---": a line of holes
        ASSERT_TRUE(settings.needsReplot());
        EXPECT_TRUE(settings.apply());
    }
    EXPECT_DOUBLE_EQ(chart.Y(1, 3), 0.3 + 3);
    EXPECT_EQ(chart.Y(2, 3), kHole);
    {
        ChannelSettings settings(*v.view);
        settings.line(1).secondColumn = 0;
        settings.line(1).addFlag = false;
        settings.line(1).constant = QStringLiteral("0.25"); // used without B
        EXPECT_TRUE(settings.apply());
    }
    EXPECT_DOUBLE_EQ(chart.Y(1, 3), 0.3 - 0.25);
    {
        ChannelSettings settings(*v.view);
        settings.line(1).sourceColumn = 2; // a change of A replots with its values
        settings.line(1).constant.clear();
        EXPECT_TRUE(settings.apply());
    }
    EXPECT_DOUBLE_EQ(chart.Y(1, 7), 7);
}

// Derived lines come from the store's raw values; they give the very doubles that reading the
// cells' texts gives (status cells, sums of one-decimal values, a constant).
TEST(ChannelSettings, DerivedLinesEqualTheCellTextRoad) {
    fixtures::VxfDescription d = twoChannels(40);
    for (int r = 0; r < 40; ++r) d.rows[r][0].value = qint16(r * 37 % 101 - 50);
    d.rows[5][0].value = 32766; // BURN
    d.rows[9][1].value = 32761; // blanks
    ListView v(d);
    ChannelSettings settings(*v.view);
    settings.line(1).secondColumn = 2;
    settings.line(1).addFlag = false;
    settings.line(2).constant = QStringLiteral("0.3");
    ASSERT_TRUE(settings.apply());
    const TrendViewState& st = v.view->state();
    for (int line = 1; line <= 2; ++line)
        for (qint32 p = 1; p <= 40; ++p)
            EXPECT_EQ(v.chart().Y(line, p), PlotValue(views(1).Storage, st.Lines[size_t(line)], p))
                << line << " " << p;
}

TEST(ChannelSettings, ScaleTextsAndTheRowsOfAnN5fView) {
    ListView v(twoChannels(10));
    ChannelSettings settings(*v.view);
    settings.line(1).decimals = 2;
    ASSERT_TRUE(settings.setScaleText(1, true, QStringLiteral("150")));
    EXPECT_FALSE(settings.setScaleText(1, true, QStringLiteral("abc")));
    EXPECT_EQ(settings.line(1).scaleHigh, QStringLiteral("150"));
    EXPECT_EQ(settings.scaleText(1, true), QStringLiteral("150.00"));

    fixtures::NpDescription d;
    d.startUnix = 1714989600;
    d.channels = {{"A", "V", 1, 1}, {"B", "V", 2, 3}};
    d.rows = QVector<QVector<fixtures::NpSample>>(4, QVector<fixtures::NpSample>(2, {7, 1.5f, 3}));
    ListView n5f(QStringLiteral("view.n5f"), fixtures::buildNp(d), 2);
    EXPECT_EQ(ChannelSettings(*n5f.view).rowCount(), 372);
}

} // namespace
