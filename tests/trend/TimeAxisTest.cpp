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
        std::vector<std::pair<double, QString>> labels;
    } cases[] = {
        {"day at 1 s",
         86400,
         1000,
         0,
         {{0, "0:00:00"},
          {10800, "3:00:00"},
          {21600, "6:00:00"},
          {32400, "9:00:00"},
          {43200, "12:00:00"},
          {54000, "15:00:00"},
          {64800, "18:00:00"},
          {75600, "21:00:00"}}},
        {"ten minutes from 10:00:07",
         600,
         1000,
         36007,
         {{53, "10:01:00"},
          {113, "10:02:00"},
          {173, "10:03:00"},
          {233, "10:04:00"},
          {293, "10:05:00"},
          {353, "10:06:00"},
          {413, "10:07:00"},
          {473, "10:08:00"},
          {533, "10:09:00"},
          {593, "10:10:00"}}},
        {"day at 1 min",
         1440,
         60000,
         0,
         {{0, "0:00"},
          {180, "3:00"},
          {360, "6:00"},
          {540, "9:00"},
          {720, "12:00"},
          {900, "15:00"},
          {1080, "18:00"},
          {1260, "21:00"}}},
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
        for (const auto& [at, text] : c.labels)
            expected.emplace_back(at, QString(text).replace(QLatin1Char(':'), colon));
        EXPECT_EQ(labels, expected);
    }
}
