#include "app/clsCommon.h"
#include "app/TimeBase.h"
#include "app/clsConst.h"

#include <gtest/gtest.h>

namespace {

LocaleInfo locale(int dateOrder, const char* dateSep, const char* timeSep, const char* decimal) {
    LocaleInfo info;
    info.dateOrder = dateOrder;
    info.dateSep = QLatin1String(dateSep);
    info.timeSep = QLatin1String(timeSep);
    info.decimalSep = QLatin1String(decimal);
    info.thousandSep = QStringLiteral(" ");
    return info;
}

TEST(clsConst, TakesTheLocaleSeparatorsThroughFormatting) {
    const clsConst c(locale(1, ".", ".", ","));
    EXPECT_EQ(c.DecimalSeparator(), QLatin1String(","));
    EXPECT_EQ(c.TimeSeparator(), QLatin1String("."));
    EXPECT_EQ(c.DateSeparator(), QLatin1String("."));
    EXPECT_EQ(c.DateDisplayOrder(), 1);
    EXPECT_EQ(c.BackGroundColor(), 0xE1FFFFu);
    const char* formats[] = {"#######0", "#####0.0", "####0.00", "###0.000", "##0.0000"};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(c.DecimalFormat(i), QLatin1String(formats[i]));
    EXPECT_EQ(c.DecimalFormat(5), QString());
    EXPECT_EQ(c.DecimalFormat(-1), QString());
}

TEST(clsCommon, PatternListsCarryTheLocaleSeparators) {
    const clsConst ymd(locale(2, "-", ".", ","));
    const clsCommon common(ymd);
    EXPECT_EQ(common.GetLongDateFormat(-1), QLatin1String("yyyy-mm-dd"));
    EXPECT_EQ(common.GetShortDateFormat(-1), QLatin1String("yy-mm-dd"));
    EXPECT_EQ(common.GetLongDateFormat(1), QLatin1String("mm-dd-yyyy"));
    EXPECT_EQ(common.GetShortDateFormat(2), QLatin1String("dd-mm-yy"));
    EXPECT_EQ(common.GetLongDateFormat(4), QString());
    EXPECT_EQ(common.getShortDateDisplayOrder(), 3);
    const char* times[] = {"h.nn", "hh.nn", "h.n.s", "h.nn.ss", "hh.nn.ss"};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(common.GetTimeFormat(i + 1), QLatin1String(times[i]));
    EXPECT_EQ(common.GetTimeFormat(0), QString());
    EXPECT_EQ(common.GetFormattedTime(4, 9, 5, 7), QLatin1String("9.05.07"));
    EXPECT_EQ(common.GetFormattedTime(5, 13, 0, 9), QLatin1String("13.00.09"));

    const clsCommon mdy{clsConst(locale(0, "/", ":", "."))};
    EXPECT_EQ(mdy.GetLongDateFormat(-1), QLatin1String("mm/dd/yyyy"));
    EXPECT_EQ(mdy.GetFormattedTime(3, 9, 5, 7), QLatin1String("9:5:7"));
}

TEST(clsCommon, IsReadableComparesPhasesOfTheInterval) {
    const qint64 t = TimeBase::toSeconds({2024, 1, 1, 1, 3, 10});
    const struct {
        qint64 interval;
        qint64 t2;
        int ms1;
        int ms2;
        bool readable;
    } cases[] = {
        {500, t, 100, 600, true}, // milliseconds below one second
        {500, t, 100, 700, false},
        {5000, t + 15, 0, 0, true}, // seconds 10 and 25, divisor 5
        {5000, t + 2, 0, 0, false},
        {2500, t + 2, 0, 0, true},     // 2.5 rounds to 2: seconds 10 and 12
        {3500, t + 4, 0, 0, true},     // 3.5 rounds to 4: seconds 10 and 14
        {120000, t + 120, 0, 0, true}, // minutes 3 and 5
        {120000, t + 60, 0, 0, false},
        {3600000, t + 3600, 0, 500, false}, // exactly one hour: the milliseconds decide
        {3600000, t + 3600, 250, 250, true},
        {3600001, t + 3600, 0, 500, true}, // above: hours, divisor 1
        {7200000, t + 3600, 0, 0, false},  // hours 1 and 2, divisor 2
        {7200000, t + 7200, 0, 0, true},
    };
    for (const auto& c : cases) {
        int error = 0;
        EXPECT_EQ(clsCommon::IsReadable(c.interval, t, c.t2, c.ms1, c.ms2, &error), c.readable)
            << c.interval << " " << c.t2 - t;
        EXPECT_EQ(error, 0);
    }
    int error = 0;
    EXPECT_FALSE(clsCommon::IsReadable(0, t, t, 0, 0, &error));
    EXPECT_EQ(error, clsCommon::kInvalidArgument);
}

} // namespace
