#include "MarkerFixture.h"

#include "analysis/Search.h"
#include "base/LanguageTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorTestSupport.h"
#include "trend/TrendTimeAxis.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace listtest;
using cursortest::shown;

namespace {

using namespace Search;

// Channel 1: 5, 9, 9, 2, 9, a hole, 1 (tenths: 0.5 .. 0.1); channel 2: ten times the row.
fixtures::VxfDescription known() {
    fixtures::VxfDescription d = twoChannels(7);
    const qint16 raw[] = {5, 9, 9, 2, 9, 32761, 1};
    for (int r = 0; r < 7; ++r) d.rows[r][0].value = raw[r];
    return d;
}

std::vector<qint32> points(const Result& r, int channel = -1) {
    std::vector<qint32> out;
    for (const Hit& h : r.hits)
        if (channel < 0 || h.channel == channel) out.push_back(h.point);
    return out;
}

Input kind(int k, int channelItem = 0, int option = 0, QString t1 = {}, QString t2 = {}) {
    Input in;
    in.kind = k;
    in.channelItem = channelItem;
    in.option = option;
    in.text1 = std::move(t1);
    in.text2 = std::move(t2);
    return in;
}

TEST(Search, StatisticKindsAndTypedValues) {
    ListView v(known());
    TrendView& view = *v.view;
    const struct {
        Input in;
        std::vector<qint32> hits;
        int message;
    } cases[] = {
        {kind(KindMaximum), {2, 3, 5}, 0}, // three equal maxima, in point order
        {kind(KindMinimum), {7}, 0},
        {kind(KindMean, 0, 1), {2, 3, 5}, 0},        // mean 0.5667: >=
        {kind(KindMean, 0, 2), {1, 4, 7}, 0},        // <=, never the hole
        {kind(SearchKindStat5, 0, 1), {2, 3, 5}, 0}, // median (0.5 + 0.9) / 2: >=
        {kind(SearchKindValue, 0, 0, shown("0.9")), {2, 3, 5}, 0},
        {kind(SearchKindValue, 0, 3, shown("0.2"), shown("0.5")), {1, 4}, 0},
        {kind(SearchKindValue, 0, 3, shown("0.2"), "x"), {}, 101}, // a bad second value
        {kind(SearchKindValue, 0, 1, "abc"), {}, 102},
        {kind(SearchKindValue, 0, 1, shown("0.95")), {}, 101},
    };
    for (const auto& c : cases) {
        const Result r = run(view, c.in);
        EXPECT_EQ(points(r), c.hits) << c.in.kind << "/" << c.in.option;
        EXPECT_EQ(r.message, c.message) << c.in.kind << "/" << c.in.option;
    }
    // All channels is the last item: channel 1's hits come before channel 2's.
    const Result all = run(view, kind(SearchKindValue, 2, 1, shown("0.9")));
    ASSERT_EQ(all.hits.size(), 3u + 7u);
    EXPECT_EQ(all.hits[2].channel, 1);
    EXPECT_EQ(all.hits[3].channel, 2);
    EXPECT_EQ(all.hits[3].point, 1);
}

TEST(Search, TheSigmaBandOfPercentDataGoesIntoTheBoxes) {
    ListView v(known());
    TrendViewState& st = v.view->state();
    st.ScalePercentMode = true;
    st.Lines[1].scaleLow = QStringLiteral("0");
    st.Lines[1].scaleHigh = QStringLiteral("1000");
    st.Lines[1].decimals = 2;
    const ChartModel& chart = v.chart();
    const double mean = ScaleToEngineering(chart.Mean(1), 1, 1), sigma = chart.StdDev(1);
    const Result inside = run(*v.view, kind(SearchKindSigma, 0, 0));
    EXPECT_EQ(inside.text1, ChannelValueText(mean - sigma, 0)); // converted mean, raw sigma
    EXPECT_EQ(inside.text2, ChannelValueText(mean + sigma, 0));
    // 1000 times the percent values: every point lies far outside a band near 5.6 +- 0.3.
    EXPECT_EQ(inside.message, 101);
    const Result outside = run(*v.view, kind(SearchKindSigma, 0, 1));
    EXPECT_EQ(points(outside), (std::vector<qint32>{1, 2, 3, 4, 5, 7})); // never the hole
}

TEST(Search, TimeRangesAndTheirEnds) {
    ListView v(twoChannels(20));
    const auto at = [](qint64 index) { return SampleTimeText(index, 1).seconds; };
    Input in = kind(SearchKindTime);
    in.fromSeconds = at(4);
    EXPECT_EQ(points(run(*v.view, in)), std::vector<qint32>{5});
    in.option = 1;
    EXPECT_EQ(run(*v.view, in).hits.size(), 16u); // 5..20
    in.option = 3;
    in.toSeconds = at(2); // later from than to: swapped
    EXPECT_EQ(points(run(*v.view, in)), (std::vector<qint32>{3, 4, 5}));
    in.option = 0;
    in.fromSeconds = at(25); // a single point outside the data
    EXPECT_EQ(run(*v.view, in).message, 101);
}

TEST(Search, CursorsAndTheStatisticsBetweenThem) {
    MarkerFixture f(known());
    Input in = kind(SearchKindMarker);
    in.item = 3; // the mean between the cursors
    EXPECT_EQ(run(*f.list.view, in).message, 565);
    in.item = 0;
    EXPECT_EQ(run(*f.list.view, in).message, 101); // cursor A not placed: no read of point 0
    ASSERT_TRUE(f.cursors.place(1, 2));
    ASSERT_TRUE(f.cursors.place(2, 5));
    const Result a = run(*f.list.view, in);
    ASSERT_EQ(a.hits.size(), 2u); // every channel at the cursor
    EXPECT_EQ(a.hits[1].channel, 2);
    in.item = 2; // the maximum of 9, 9, 2, 9: the channel's own points 2, 3, 5
    in.combo1 = 0;
    EXPECT_EQ(points(run(*f.list.view, in)), (std::vector<qint32>{2, 3, 5}));
    in.item = 5; // sigma: the band is written into the boxes
    const Result band = run(*f.list.view, in);
    EXPECT_FALSE(band.text1.isEmpty());
    EXPECT_NE(band.text1, band.text2);
}

TEST(Search, CommentTextsPassOverMarkerTextAndDropped) {
    ListView v(twoChannels(10));
    ChartLabels& labels = v.chart().labels();
    labels.clear();
    for (const auto& [name, text, point] :
         {std::tuple{"Dropped", "pump on", 2}, std::tuple{"MarkerText", "pump", 3},
          std::tuple{"pos", "Pump check", 4}, std::tuple{"Comment", "valve", 6}}) {
        ChartLabel& l = labels.add(QString::fromLatin1(name));
        l.Text = QString::fromLatin1(text);
        l.AttachDataIndex = {1, point};
    }
    EXPECT_EQ(points(run(*v.view, kind(SearchKindComment, 0, 0))), (std::vector<qint32>{4, 6}));
    const Input contains = kind(SearchKindComment, 0, 2, "PUMP");
    const Result r = run(*v.view, contains);
    EXPECT_EQ(points(r), std::vector<qint32>{4});
    EXPECT_EQ(rowTexts(*v.view, contains, r, 0).value(2), QStringLiteral("Pump check"));
    EXPECT_EQ(points(run(*v.view, kind(SearchKindComment, 0, 1, "valve"))), std::vector<qint32>{6});
    EXPECT_EQ(points(run(*v.view, kind(SearchKindComment, 0, 3, "pump"))), std::vector<qint32>{6});
}

TEST(Search, AlarmLevelsAndTheirTexts) {
    fixtures::VxfDescription d = twoChannels(10);
    d.rows[3][0].alarm1 = alarmByte(1, 2);
    ListView alarms(d);
    Input any = kind(SearchKindAlarm);
    const Result r = run(*alarms.view, any);
    ASSERT_EQ(points(r), std::vector<qint32>{4});
    const QStringList row = rowTexts(*alarms.view, any, r, 0);
    EXPECT_EQ(row.value(2), MsgText(229) + "1 " + AlarmKindText(1) + " " + MsgText(229) + "2 " +
                                AlarmKindText(2));
    EXPECT_EQ(row.value(3), shown("0.4"));
    Input second = any;
    second.combo1 = 2;
    EXPECT_EQ(rowTexts(*alarms.view, second, run(*alarms.view, second), 0).value(2),
              MsgText(229) + "2 " + AlarmKindText(2));
    ListView quiet(twoChannels(10), 2);
    EXPECT_EQ(run(*quiet.view, any).message, 101);
}

TEST(Search, AHitBringsTheTrendToItCentred) {
    ListView v(fixtures::simpleVxf(1, 40000, 86400 * 40, 10, rowValue));
    TrendView& view = *v.view;
    view.zoom().SetDataRange(1, 1001); // a window of 1000 points
    const ScrollBarState& bar = view.window().hsbTrendGraph;
    ASSERT_NE(bar.Min, bar.Max);
    for (const auto& [point, expectedValue] :
         {std::pair{10, int(bar.Min)}, std::pair{20000, -1}, std::pair{39999, int(bar.Max)}}) {
        const QStringList row = {QString::number(point - 1), QStringLiteral("label")};
        Search::jump(view, row);
        EXPECT_EQ(v.chart().axisX().origin(), point - 1);
        EXPECT_EQ(view.window().DateTemp, QStringLiteral("label"));
        if (expectedValue >= 0) {
            EXPECT_EQ(bar.Value, expectedValue) << point;
        } else {
            // The middle: the hit stands near the centre of the shown span.
            const double mid = (v.chart().axisX().min() + v.chart().axisX().max()) / 2;
            EXPECT_NEAR(mid, point - 1, 1000 / 2.0 + 40000.0 / 32767) << point;
        }
    }
}

TEST(Search, TheCommandLineGivesTheWindowsRows) {
    ListView v(known());
    QProcess p;
    p.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../recview"),
            {QStringLiteral("search"), v.dir.path("list.vxf"), QStringLiteral("--kind"),
             QStringLiteral("0"), QStringLiteral("--channel"), QStringLiteral("1"),
             QStringLiteral("--json")});
    p.waitForFinished(30000);
    EXPECT_EQ(p.exitCode(), 0);
    const QJsonObject o = QJsonDocument::fromJson(p.readAllStandardOutput()).object();
    const QJsonArray hits = o["hits"].toArray();
    ASSERT_EQ(hits.size(), 3);
    const Input in = kind(KindMaximum);
    const Result r = run(*v.view, in);
    for (int k = 0; k < 3; ++k)
        EXPECT_EQ(hits[k].toArray().toVariantList(),
                  QVariant(rowTexts(*v.view, in, r, size_t(k))).toList());
    EXPECT_EQ(o["message"].toInt(), 0);
}

} // namespace
