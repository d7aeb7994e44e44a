#include "TrendFixture.h"
#include "base/VbFormat.h"
#include "trend/TrendTimeAxis.h"

#include <gtest/gtest.h>

using namespace trendtest;

namespace {

constexpr qint64 kStart = 86400 * 100 + 3600 * 10; // 2000-04-10 10:00:00

QString dec() {
    return VbFormat::Separators::system().decimal;
}

} // namespace

// The time of a sample in each interval unit: seconds and remainder, and the fraction digits
// that the interval allows.
TEST(SampleTimeText, EachUnitAndFraction) {
    const struct {
        qint32 interval;
        qint64 index;
        int startMsec;
        qint64 seconds; // after the start
        int msec;
        const char* time; // as shown, ':' and '.' standing for the locale's separators
    } cases[] = {
        {500, 3, 0, 1, 500, "10:00:01.5"},   // T + 1 s and 500 ms
        {100, 10, 0, 1, 0, "10:00:01.0"},    // a whole second at 100 ms reads ".0"
        {250, 1, 0, 0, 250, "10:00:00.25"},  // 100..999 ms: as the remainder writes itself
        {10, 3, 0, 0, 30, "10:00:00.03"},    // 10..99 ms: two digits
        {1, 5, 0, 0, 5, "10:00:00.005"},     // 1..9 ms: three digits
        {200, 4, 900, 1, 700, "10:00:01.7"}, // the start's milliseconds count
        {1500, 1, 0, 2, -500, "10:00:02"},   // x = 1.5 rounds to 2 seconds (halves to even)
        {1500, 3, 0, 4, 500, "10:00:04"},    // x = 4.5 rounds to 4
        {1000, 7, 0, 7, 0, "10:00:07"},
        {60000, 90, 0, 90 * 60, 0, "11:30"}, // minutes and coarser drop the seconds
        {3600000, 25, 0, 25 * 3600, 0, "11:00"},
        {86400000, 2, 0, 2 * 86400, 0, "10:00"},
        // 999 ms x 3,599,999 passes 2^31 ms: still exact (41 days 14:59:59.001 later).
        {999, 3599999, 0, 3596399, 1, "0:59:59.001"},
    };
    const VbFormat::Separators sep = VbFormat::Separators::system();
    for (const auto& c : cases) {
        const SampleTime t = sampleTime(c.index, c.interval, kStart, c.startMsec);
        SCOPED_TRACE(
            QStringLiteral("interval %1 index %2").arg(c.interval).arg(c.index).toStdString());
        EXPECT_EQ(t.seconds - kStart, c.seconds);
        EXPECT_EQ(t.msec, c.msec);
        QString expected = QLatin1String(c.time);
        expected.replace(QLatin1Char('.'), dec()).replace(QLatin1Char(':'), sep.time);
        EXPECT_EQ(t.time, expected);
        // The time with its seconds and without a fraction, whatever the interval.
        EXPECT_EQ(t.timeText, c.interval >= 60000 ? expected + sep.time + QLatin1String("00")
                                                  : expected.section(dec(), 0, 0));
        EXPECT_EQ(t.dateTime, t.date + QLatin1Char(' ') + t.time);
    }
}

// With no label interval of the user's, labels fall at round times of the clock for the span on
// show: a day at 1 s every 3 hours, ten minutes from 10:00:07 at each whole minute, a day at
// 1 min every 3 hours in the minute form.
TEST(X_AxisSet, AutomaticLabelsAtRoundTimes) {
    const struct {
        const char* name;
        int points;
        qint32 interval;
        qint64 startOfDay; // seconds after midnight of the first sample
        // Labels: count of them, the first one's point, points between them, and the first
        // one's time with the minutes between labels (the form of the interval's unit).
        int count, first, step;
        int hour, minute, minutesApart;
        bool seconds;
    } cases[] = {
        {"day at 1 s", 86400, 1000, 0, 8, 0, 10800, 0, 0, 180, true},
        {"ten minutes from 10:00:07", 600, 1000, 36007, 10, 53, 60, 10, 1, 1, true},
        {"day at 1 min", 1440, 60000, 0, 8, 0, 180, 0, 0, 180, false},
    };
    const QString colon = VbFormat::Separators::system().time;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        makeView(6, {std::vector<qint16>(size_t(c.points), 5)}, 0);
        views(6).SampleInterval = c.interval;
        views(6).ViewStart = 86400 * 100 + c.startOfDay;
        TrendView view(6);
        ASSERT_TRUE(view.afterLoad());
        view.zoom().SetDataRange(1, c.points);
        std::vector<std::pair<double, QString>> labels, expected;
        for (const ValueLabel& l : view.chart().axisX().valueLabels().items())
            labels.emplace_back(l.value, l.text);
        for (int k = 0; k < c.count; ++k) {
            const int minutes = c.hour * 60 + c.minute + k * c.minutesApart;
            QString text = QStringLiteral("%1:%2")
                               .arg(minutes / 60)
                               .arg(minutes % 60, 2, 10, QLatin1Char('0'));
            if (c.seconds) text += QStringLiteral(":00");
            expected.emplace_back(c.first + k * c.step, text.replace(QLatin1Char(':'), colon));
        }
        EXPECT_EQ(labels, expected);
    }
}
