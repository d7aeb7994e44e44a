#include "ListFixture.h"
#include "analysis/ListRows.h"
#include "base/LanguageTable.h"
#include "trend/CursorTestSupport.h"
#include "trend/TrendCursors.h"
#include "trend/TrendTimeAxis.h"

#include <QRegularExpression>

using namespace listtest;
using cursortest::shown;

namespace {

// Two channels over 100 samples: an alarm of two levels on channel 1 at sample 4, kind 7 on
// level 3 of channel 2 at sample 6, a burn-out and a blank cell on channel 2.
fixtures::VxfDescription markedRecording() {
    fixtures::VxfDescription d = twoChannels(100);
    d.rows[3][0].alarm1 = alarmByte(1, 2);
    d.rows[5][1].alarm2 = alarmByte(7);
    d.rows[6][1].value = 32766; // BURN
    d.rows[7][1].value = 32761; // blanks
    return d;
}

} // namespace

// The table is built from the channel table alone: no row is formatted before it is asked for.
TEST(DataList, BuildsHeadersWidthsAndRowCount) {
    fixtures::VxfDescription d = twoChannels(30);
    d.channels[0].tag = "A1  ";
    d.channels[1].unit = "";
    ListView v(d);
    ASSERT_TRUE(v.shown);
    EXPECT_EQ(v.state().ListOpen, -1);
    EXPECT_EQ(v.grid.maxRows(), 30);
    EXPECT_EQ(v.grid.maxCols(), 3);
    EXPECT_EQ(v.grid.headerText(1), MsgText(77));
    EXPECT_EQ(v.grid.headerText(2), QStringLiteral("A1 [degC]"));
    EXPECT_EQ(v.grid.headerText(3), QStringLiteral("T2"));
    EXPECT_EQ(views(1).Channels.ChTag[1], QStringLiteral("A1"));
    const double widths[] = {10, 18, 16, 16};
    for (int col = 0; col <= 3; ++col) EXPECT_EQ(v.grid.colWidth(col), widths[col]) << col;
    EXPECT_EQ(v.grid.rowHeight(), 12);
    EXPECT_TRUE(v.grid.locked());
    EXPECT_TRUE(v.grid.virtualMode());
    EXPECT_EQ(v.grid.heldRows(), 0);
    EXPECT_TRUE(v.list->visibleSpanButton());
    v.list.reset();
    EXPECT_EQ(views(1).part<DataListState>().ListOpen, 0);
}

// Values in the channel's own decimals, red where an alarm level is set, status words of holes,
// and message 179 for a hole whose cell has no word (blank, or a number the chart lacks).
TEST(DataList, CellTextsAndColours) {
    ListView v(markedRecording());
    v.chart().setY(2, 9, Chart::kHoleValue); // the cell holds 9.0, the plotted point a hole
    v.grid.refreshVirtual();
    const QString noValue = MsgText(179).trimmed();
    const struct {
        qint32 row;
        int col;
        const char* text;
        bool red;
    } cases[] = {
        {5, 2, "0.5", false},   {25, 2, "2.5", false},  {4, 2, "0.4", true},
        {4, 3, "4", false},     {6, 3, "6", true},      {7, 3, "BURN", false},
        {8, 3, nullptr, false}, {9, 3, nullptr, false}, {100, 3, "100", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(v.cell(c.col, c.row), c.text ? shown(QLatin1String(c.text)) : noValue)
            << c.row << "/" << c.col;
        EXPECT_EQ(v.grid.foreColor(c.col, c.row),
                  c.red ? DataList::kAlarmColor : DataList::kNormalColor)
            << c.row << "/" << c.col;
    }
    EXPECT_EQ(v.cell(0, 25), QStringLiteral("25"));
    EXPECT_EQ(v.cell(1, 25), SampleTimeText(24, 1).dateTime);
}

// Percent data are shown in engineering units, rounded through the channel's decimals, so that
// the list reads as in plain mode.
TEST(DataList, PercentRowsShowEngineeringUnits) {
    ListView v(twoChannels(40));
    TrendViewState& st = v.view->state();
    st.Lines[1].scaleLow = QStringLiteral("0");
    st.Lines[1].scaleHigh = QStringLiteral("3");
    st.Lines[1].decimals = 1;
    st.ScalePercentMode = true;
    v.view->plot().CH_DataSet();
    ASSERT_NE(v.chart().Y(1, 25), 2.5); // the chart holds percents
    v.list->load();
    for (qint32 row : {5, 25, 31})
        EXPECT_EQ(v.cell(2, row), shown(QString::number(row / 10.0, 'f', 1))) << row;
}

// The time column has the fraction of a sub-second interval (row 1 of a 250 ms recording with
// one decimal), and none from one second on.
TEST(DataList, TimeTextsFollowTheInterval) {
    const VbFormat::Separators seps = VbFormat::Separators::system();
    const QString time =
        QStringLiteral("\\d+%1\\d\\d%1\\d\\d").arg(QRegularExpression::escape(seps.time));
    for (quint32 ms : {250u, 1000u}) {
        fixtures::QdfDescription d;
        d.intervalMs = ms;
        d.startTime = 86400 * 50;
        d.groupMask[0] = 0x0001;
        d.values = {{10}, {11}, {12}, {13}};
        ListView v(QStringLiteral("list.qdf"), fixtures::buildQdf(d));
        ASSERT_EQ(v.grid.maxRows(), 4) << ms;
        const QString pattern =
            ms < 1000 ? time + QRegularExpression::escape(seps.decimal) + "\\d$" : time + "$";
        for (qint32 row : {1, 3})
            EXPECT_TRUE(QRegularExpression(pattern).match(v.cell(1, row)).hasMatch())
                << ms << " " << v.cell(1, row).toStdString();
        EXPECT_EQ(v.cell(1, 1).endsWith(seps.decimal + "0"), ms < 1000);
        EXPECT_EQ(v.cell(1, 3).endsWith(seps.decimal + "5"), ms < 1000);
    }
}

// Button 2 lists the rows between the cursors, button 3 the visible span; with a cursor mark
// off, button 2 keeps the earlier count and starts from the first row.
TEST(DataList, RowSets) {
    ListView v(twoChannels(100));
    TrendCursors cursors(*v.view);
    ASSERT_TRUE(cursors.place(1, 30));
    ASSERT_TRUE(cursors.place(2, 12));
    v.chart().axisX().setMin(39.5);
    v.chart().axisX().setMax(59.2);
    const int channels = 2;
    const struct {
        int button;
        bool cursorBShown;
        qint32 rows;
        qint32 offset;
    } cases[] = {
        {2, true, 19, 11}, {3, true, 21, 39}, {1, true, 100, 0},
        {3, true, 21, 39}, {2, false, 21, 0},
    };
    for (const auto& c : cases) {
        v.chart().setDisplayState(channels + 2,
                                  c.cursorBShown ? Chart::kDisplayShown : Chart::kDisplayHidden);
        v.list->setRowSet(c.button);
        EXPECT_EQ(v.grid.maxRows(), c.rows) << c.button;
        EXPECT_EQ(v.state().ListRowOffset, c.offset) << c.button;
        EXPECT_EQ(v.state().ListRowSet, c.button);
        EXPECT_EQ(v.cell(0, 1), QString::number(c.offset + 1)) << c.button;
    }
    EXPECT_EQ(v.chart().axisX().min(), 39.5);
}

// Circle 3 of 1000 samples holds 280 rows from sample 721; X = 360 stands for the circle's
// first point.
TEST(DataList, CircularGraphListsTheCurrentCircle) {
    ListView v(twoChannels(1000));
    ChartModel& chart = v.chart();
    chart.setChartType(Chart::kTypePolar);
    for (int s = 1; s <= 2; ++s) {
        std::vector<double> y;
        for (int r = 721; r <= 1000; ++r) y.push_back(rowValue(r, s) / 10.0);
        chart.setSeriesValues(s, y);
    }
    for (int p = 1; p <= 280; ++p) chart.setX(1, p, p == 1 ? 360 : p - 1);
    v.view->state().CurrentCircle = 3;
    v.list->CircleRechange();
    EXPECT_FALSE(v.list->visibleSpanButton());
    EXPECT_EQ(v.grid.maxRows(), 280);
    EXPECT_EQ(v.state().ListRowOffset, 720);
    EXPECT_EQ(v.cell(0, 1), QStringLiteral("721"));
    EXPECT_EQ(v.cell(1, 1), SampleTimeText(720, 1).dateTime);
    EXPECT_EQ(v.cell(0, 280), QStringLiteral("1000"));
    EXPECT_EQ(v.cell(3, 280), QStringLiteral("1000"));
    // Button 1 starts at row 1 again and reaches the same points through the circle's rows.
    v.list->setRowSet(1);
    EXPECT_EQ(v.state().ListRowOffset, 0);
    EXPECT_EQ(v.cell(0, 2), QStringLiteral("722"));
    v.list->moveTrend(2);
    EXPECT_EQ(chart.axisX().origin(), 1);
    // Circle 1 of the same recording: 360 rows from sample 1.
    v.view->state().CurrentCircle = 1;
    EXPECT_EQ(ListRows(*v.view).rowCount(), 360);
    EXPECT_EQ(ListRows(*v.view).firstOffset(), 0);
}

// Red channel cells tip the tag and one line per level set; other cells tip nothing.
TEST(DataList, AlarmTips) {
    ListView v(markedRecording());
    const QString alarm = MsgText(229);
    EXPECT_EQ(v.list->alarmTip(2, 4), QStringLiteral("T1\r\n") + alarm + "1 " + MsgText(277) +
                                          "\r\n" + alarm + "2 " + MsgText(278));
    EXPECT_EQ(v.list->alarmTip(3, 6), QStringLiteral("T2\r\n") + alarm + "3 ON");
    EXPECT_EQ(v.list->alarmTip(2, 5), QString());
    EXPECT_EQ(v.list->alarmTip(1, 4), QString());
    EXPECT_EQ(v.list->alarmTip(2, 0), QString());
    EXPECT_EQ(v.list->alarmTip(2, 101), QString());
}

// A row moves the trend's marker (the X origin) and date label, never the shown range.
TEST(DataList, RowMovesTheTrendMarker) {
    ListView v(twoChannels(100));
    ChartAxis& x = v.chart().axisX();
    x.setMin(39.5);
    x.setMax(59.2);
    v.list->setRowSet(3);
    EXPECT_TRUE(x.isOriginAuto());
    v.list->moveTrend(5);
    EXPECT_FALSE(x.isOriginAuto());
    EXPECT_EQ(x.origin(), 43);
    EXPECT_EQ(v.view->window().DateTemp, v.cell(1, 5));
    EXPECT_EQ(v.view->window().DateTemp, SampleTimeText(43, 1).dateTime);
    EXPECT_EQ(x.min(), 39.5);
    EXPECT_EQ(x.max(), 59.2);
    v.list->moveTrend(0);
    v.list->moveTrend(22);
    EXPECT_EQ(x.origin(), 43);
}

// The selected block goes out without headers, tabs between cells and a line break a row;
// a text too large to hold leaves the clipboard text as it was.
TEST(DataList, CopiesTheSelectedBlock) {
    ListView v(twoChannels(10));
    v.grid.setSelection({3, 3, 2, 2});
    QString text = QStringLiteral("before");
    ASSERT_TRUE(v.list->copySelection(text));
    EXPECT_EQ(text, shown(QStringLiteral("0.2\t2\n0.3\t3\n")));
    v.grid.setSelection({0, 1, 3, 10});
    ASSERT_TRUE(v.list->copySelection(text));
    EXPECT_EQ(text.count(QLatin1Char('\n')), 10);
    EXPECT_TRUE(text.startsWith(QStringLiteral("1\t") + v.cell(1, 1) + "\t"));
    EXPECT_TRUE(v.sink.calls().isEmpty());

    text = QStringLiteral("before");
    EXPECT_FALSE(v.list->copySelection(text, nullptr, 50));
    EXPECT_EQ(text, QStringLiteral("before"));
    ASSERT_EQ(v.sink.calls().size(), 1);
    EXPECT_EQ(v.sink.last().text, QStringLiteral("Out of memory."));
}

// Channels the trend draws neither as a line nor with symbols have their columns hidden.
TEST(DataList, HidesChannelsSwitchedOffInTheTrend) {
    ListView v(twoChannels(10));
    SeriesStyle style = v.chart().seriesStyle(2);
    style.pattern = Chart::LinePattern::None;
    style.symbol = Chart::SymbolShape::None;
    v.chart().setSeriesStyle(2, style);
    v.list->load();
    EXPECT_FALSE(v.grid.colHidden(2));
    EXPECT_TRUE(v.grid.colHidden(3));
}

// A view without points gives the headers alone; data replaced under an open list leave the
// rows the chart no longer holds empty.
TEST(DataList, EmptyAndReplacedData) {
    {
        ListView v(twoChannels(0));
        EXPECT_EQ(v.grid.maxRows(), 0);
        EXPECT_EQ(v.grid.headerText(1), MsgText(77));
        EXPECT_EQ(v.cell(0, 1), QString());
    }
    ListView v(twoChannels(100));
    for (int s = 1; s <= 2; ++s) v.chart().setSeriesValues(s, std::vector<double>(10, 1.5));
    EXPECT_EQ(v.cell(2, 5), shown(QStringLiteral("1.5")));
    EXPECT_EQ(v.cell(0, 50), QString());
    EXPECT_EQ(v.cell(2, 100), QString());
}
