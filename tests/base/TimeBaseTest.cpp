#include "base/TimeBase.h"

#include <gtest/gtest.h>

namespace {

using TimeBase::CalendarTime;

TEST(TimeBase, CalendarRoundTrips) {
    const CalendarTime cases[] = {
        {2000, 1, 1, 0, 0, 0},      {2000, 2, 29, 23, 59, 59}, {2001, 3, 1, 0, 0, 0},
        {2024, 2, 29, 12, 0, 0},    {2038, 1, 19, 3, 14, 8},   {2100, 3, 1, 0, 0, 0},
        {1999, 12, 31, 23, 59, 59}, {2106, 2, 7, 6, 28, 16},
    };
    for (const CalendarTime& t : cases) EXPECT_EQ(TimeBase::fromSeconds(TimeBase::toSeconds(t)), t);
}

TEST(TimeBase, KnownInstants) {
    EXPECT_EQ(TimeBase::toSeconds({2000, 1, 1, 0, 0, 0}), 0);
    EXPECT_EQ(TimeBase::toSeconds({1999, 12, 31, 23, 59, 59}), -1);
    EXPECT_EQ(TimeBase::isoText(86400 * 60), QLatin1String("2000-03-01 00:00:00")); // leap year
    // 2038-01-19 03:14:08 is 2^31 seconds after 1970: no overflow here.
    EXPECT_EQ(TimeBase::isoText(TimeBase::fromUnixSeconds(2147483648LL)),
              QLatin1String("2038-01-19 03:14:08"));
    EXPECT_EQ(TimeBase::isoText(0xFFFFFFFFLL), QLatin1String("2136-02-07 06:28:15"));
    EXPECT_EQ(TimeBase::weekday(0), 7); // a Saturday
}

TEST(TimeBase, BoundariesCountCalendarUnits) {
    const qint64 t = TimeBase::toSeconds({2020, 5, 1, 10, 0, 59});
    EXPECT_EQ(TimeBase::boundariesBetween(TimeBase::Unit::Minute, t, t + 1), 1);
    EXPECT_EQ(TimeBase::boundariesBetween(TimeBase::Unit::Minute, t + 1, t + 60), 0);
    EXPECT_EQ(TimeBase::boundariesBetween(TimeBase::Unit::Day, t, t - 86400), -1);
    EXPECT_EQ(TimeBase::boundariesBetween(TimeBase::Unit::Second, t, t + 17), 17);
}

TEST(TimeBase, ParsesIsoTextAndRefusesNonsense) {
    qint64 s = 0;
    ASSERT_TRUE(TimeBase::parseIsoText(QStringLiteral("2024-02-29 13:45:10"), s));
    EXPECT_EQ(TimeBase::isoText(s), QLatin1String("2024-02-29 13:45:10"));
    EXPECT_FALSE(TimeBase::parseIsoText(QStringLiteral("2023-02-29 13:45:10"), s));
    EXPECT_FALSE(TimeBase::parseIsoText(QStringLiteral("yesterday"), s));
}

} // namespace

TEST(TimeBase, SerialSecondsRollsOver) {
    using TimeBase::isoText;
    using TimeBase::serialSeconds;
    EXPECT_EQ(isoText(serialSeconds(2023, 13, 1, 0, 0, 0)), QLatin1String("2024-01-01 00:00:00"));
    EXPECT_EQ(isoText(serialSeconds(2024, 3, 0, 0, 0, 0)), QLatin1String("2024-02-29 00:00:00"));
    EXPECT_EQ(isoText(serialSeconds(2024, 1, 31, 24, 0, 60)), QLatin1String("2024-02-01 00:01:00"));
    EXPECT_EQ(isoText(serialSeconds(2024, 0, 1, 0, 0, 0)), QLatin1String("2023-12-01 00:00:00"));
}
