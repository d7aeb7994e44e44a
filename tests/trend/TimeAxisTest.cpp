#include "TrendFixture.h"
#include "base/VbFormat.h"
#include "base/clsCommon.h"
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
        const char* fraction; // behind the decimal sign; nullptr: no fraction at all
    } cases[] = {
        {500, 3, 0, 1, 500, "5"},       // T + 1 s and 500 ms
        {100, 10, 0, 1, 0, "0"},        // a whole second at 100 ms reads ".0"
        {250, 1, 0, 0, 250, "25"},      // 100..999 ms: as the remainder writes itself
        {10, 3, 0, 0, 30, "03"},        // 10..99 ms: two digits
        {1, 5, 0, 0, 5, "005"},         // 1..9 ms: three digits
        {200, 4, 900, 1, 700, "7"},     // the start's milliseconds count
        {1500, 1, 0, 2, -500, nullptr}, // x = 1.5 rounds to 2 seconds (halves to even)
        {1500, 3, 0, 4, 500, nullptr},  // x = 4.5 rounds to 4
        {1000, 7, 0, 7, 0, nullptr},
        {60000, 90, 0, 90 * 60, 0, nullptr},
        {3600000, 25, 0, 25 * 3600, 0, nullptr},
        {86400000, 2, 0, 2 * 86400, 0, nullptr},
        // 999 ms x 3,599,999 passes 2^31 ms: still exact.
        {999, 3599999, 0, 3596399, 1, "001"},
    };
    for (const auto& c : cases) {
        const SampleTime t = sampleTime(c.index, c.interval, kStart, c.startMsec);
        SCOPED_TRACE(
            QStringLiteral("interval %1 index %2").arg(c.interval).arg(c.index).toStdString());
        EXPECT_EQ(t.seconds - kStart, c.seconds);
        EXPECT_EQ(t.msec, c.msec);
        const auto text = [&](int format) {
            return VbFormat::formatSeconds(t.seconds, clsCommon::shared().GetTimeFormat(format),
                                           VbFormat::Separators::system());
        };
        EXPECT_EQ(t.timeText, text(4));
        EXPECT_EQ(t.time, c.fraction ? text(4) + dec() + QLatin1String(c.fraction)
                                     : text(c.interval < 60000 ? 4 : 1));
        EXPECT_EQ(t.dateTime, t.date + QLatin1Char(' ') + t.time);
    }
}
