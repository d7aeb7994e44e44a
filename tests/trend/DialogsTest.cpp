#include "TrendFixture.h"
#include "base/LanguageTable.h"
#include "base/VbFormat.h"
#include "support/RecordingMessageSink.h"
#include "trend/MultiScaleSet.h"
#include "trend/TimeAxisSetting.h"
#include "trend/YAxesStyle.h"

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

// A loaded view of two channels over 1000 points at 10 s (2 h 46 min 30 s), view 2.
struct DialogView : LoadedView {
    DialogView()
        : LoadedView(2, {ramp(1000), ramp(1000)}, 0, QStringLiteral("0"), QStringLiteral("1000")) {
        views(2).SampleInterval = 10000;
        EXPECT_TRUE(view.afterLoad());
    }
    SampleTime at(qint64 index) { return SampleTimeText(index, 2); }
    RecordingMessageSink sink;
};

} // namespace

// The time axis dialog: range and span modes, the ends kept within the recording, messages 557
// and 559 for what is not a time or not in order.
TEST(TimeAxisSetting, RangeSpanAndRefusals) {
    DialogView d;
    TimeAxisSetting dialog(d.view);
    EXPECT_EQ(dialog.lastLabel, d.at(999).dateTime);

    dialog.startTime = d.at(100).timeText;
    dialog.endDate = d.at(999).date;
    dialog.endTime = QStringLiteral("23:59:59"); // past the end: the last point
    EXPECT_EQ(dialog.ok(), 0);
    EXPECT_EQ(dialog.StartTime(), 101);
    EXPECT_EQ(dialog.EndTime(), 1000);
    TimeAxisSetting::apply(d.view, dialog);
    EXPECT_EQ(d.view.state().ZoomLevel, 1);
    EXPECT_EQ(d.view.state().FirstShown, 101);

    TimeAxisSetting bad(d.view);
    bad.startTime = QStringLiteral("noon");
    EXPECT_EQ(bad.ok(), 557);
    EXPECT_TRUE(bad.Cancel());
    EXPECT_EQ(d.sink.last().text, MsgText(557));
    bad.startTime = d.at(10).timeText;
    bad.startDate = d.at(10).date;
    bad.endDate = QStringLiteral("13/45/2000");
    EXPECT_EQ(bad.ok(), 559);
    bad.endDate = d.at(5).date;
    bad.endTime = d.at(5).timeText;
    EXPECT_EQ(bad.ok(), 557) << "start not before end";

    // Empty cells: the whole recording's ends.
    TimeAxisSetting whole(d.view);
    whole.startDate = whole.startTime = whole.endDate = whole.endTime = QString();
    EXPECT_EQ(whole.ok(), 0);
    EXPECT_EQ(whole.EndTime(), 1000);
    // One cell of a side cleared is enough.
    TimeAxisSetting half(d.view);
    half.startDate = d.at(300).date;
    half.startTime = QString();
    half.endDate = QString();
    half.endTime = d.at(500).timeText;
    EXPECT_EQ(half.ok(), 0);
    EXPECT_EQ(half.StartTime(), 1);
    EXPECT_EQ(half.EndTime(), 1000);

    // Span: the first unit with a number above 0 is the width; 30 minutes are 180 points.
    TimeAxisSetting span(d.view);
    span.mode = TimeAxisSetting::Mode::Span;
    span.startDate = d.at(0).date;
    span.startTime = d.at(0).timeText;
    span.txtNumeric = {QStringLiteral("0"), QStringLiteral("30"), QStringLiteral("2"), QString()};
    EXPECT_EQ(span.ok(), 0);
    EXPECT_EQ(span.StartTime(), 1);
    EXPECT_EQ(span.EndTime(), 181);
}

// The axes dialog: fixed or automatic bounds, cancel restoring all, and
// percent mode.
TEST(YAxesStyle, BoundsOptionCancelAndPercent) {
    DialogView d;
    ChartAxis& y = d.view.chart().axisY();
    const double min0 = y.min(), max0 = y.max();
    YAxesStyle dialog(d.view);
    EXPECT_TRUE(dialog.intervalSuffix().isEmpty());
    dialog.cells[0].min = QStringLiteral("-50");
    dialog.cells[0].max = QString(); // cleared: automatic
    dialog.cells[0].labelInterval = QStringLiteral("2.5");
    dialog.preview();
    EXPECT_EQ(y.min(), -50);
    EXPECT_TRUE(y.isMaxAuto());
    EXPECT_EQ(y.precision(), 1);
    dialog.cancel();
    EXPECT_EQ(y.min(), min0);
    EXPECT_EQ(y.max(), max0);
    EXPECT_EQ(d.view.state().ZoomY[0][1], min0);

    // In percent mode the Min and Max cells are the bound channel's scale: the axis stays
    // 0..100 and the series are refilled.
    d.view.state().ScalePercentMode = true;
    d.view.plot().CH_DataSet();
    YAxesStyle percent(d.view);
    EXPECT_EQ(percent.intervalSuffix(), QStringLiteral("(%)"));
    EXPECT_EQ(percent.cells[0].max, QStringLiteral("1000"));
    percent.cells[0].max = QStringLiteral("500");
    percent.ok();
    EXPECT_EQ(d.view.chart().axisY().max(), 100);
    EXPECT_EQ(d.view.chart().Y(1, 501), 100);
    EXPECT_EQ(d.view.chart().Y(2, 501), 50) << "the other channel keeps its scale";
}

// The multi-scale table: at least one row shown (message 582), cells within +-300000 at the
// channel's decimals, OK switches the strips on.
TEST(MultiScaleSet, RowsCellsAndOk) {
    DialogView d;
    const QString sep = VbFormat::Separators::system().decimal;
    EXPECT_FALSE(MultiScaleSet::acceptsCell(QStringLiteral("300001"), 0));
    EXPECT_TRUE(MultiScaleSet::acceptsCell(QStringLiteral("12") + sep + QStringLiteral("5"), 1));
    EXPECT_FALSE(MultiScaleSet::acceptsCell(QStringLiteral("12") + sep + QStringLiteral("55"), 1));

    MultiScaleSet dialog(d.view);
    ASSERT_EQ(dialog.rows.size(), 2u);
    EXPECT_EQ(dialog.rows[0].name, QStringLiteral("CH1"));
    EXPECT_TRUE(dialog.rows[0].low.isEmpty()) << "an empty table row shows no number";
    EXPECT_EQ(dialog.ok(), 582);
    EXPECT_EQ(d.sink.last().text, MsgText(582));
    EXPECT_EQ(d.view.state().ScaleType, ScaleType::Plain);

    dialog.rows[1].shown = true;
    dialog.rows[1].low = QStringLiteral("-5");
    dialog.rows[1].high = QStringLiteral("5");
    dialog.Check1 = true;
    EXPECT_EQ(dialog.ok(), 0);
    EXPECT_EQ(d.view.state().ScaleType, ScaleType::MultiScale);
    ASSERT_EQ(d.view.scales().strips().size(), 1u);
    EXPECT_EQ(d.view.scales().strips()[0].low, -5);
}
