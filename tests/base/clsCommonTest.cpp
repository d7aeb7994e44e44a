#include "base/clsCommon.h"
#include "base/TimeBase.h"
#include "base/clsConst.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

clsConst withLocale(int dateOrder, const QString& dateSep, const QString& timeSep,
                    const QString& decimal) {
    return clsConst(LocaleInfo{u"09"_s, dateOrder, dateSep, timeSep, decimal, u" "_s});
}

TEST(clsCommon, PatternsCarryTheLocaleSeparators) {
    const clsConst c = withLocale(2, u"-"_s, u"."_s, u","_s);
    EXPECT_EQ(c.DecimalFormat(2), u"####0.00"_s);
    const clsCommon common(c);
    EXPECT_EQ(common.GetLongDateFormat(-1), u"yyyy-mm-dd"_s);
    EXPECT_EQ(common.GetShortDateFormat(2), u"dd-mm-yy"_s);
    EXPECT_EQ(common.GetLongDateFormat(4), QString());
    EXPECT_EQ(common.GetFormattedTime(4, 9, 5, 7), u"9.05.07"_s);
    const clsCommon mdy(withLocale(0, u"/"_s, u":"_s, u"."_s));
    EXPECT_EQ(mdy.GetLongDateFormat(-1), u"mm/dd/yyyy"_s);
    const clsCommon dmy(withLocale(1, u"."_s, u"."_s, u","_s));
    EXPECT_EQ(dmy.GetLongDateFormat(-1), u"dd.mm.yyyy"_s);
}

TEST(clsCommon, IsReadableComparesPhasesOfTheInterval) {
    const qint64 t = TimeBase::toSeconds({2024, 1, 1, 1, 3, 10});
    const struct {
        qint64 interval, t2;
        int ms1, ms2;
        bool readable;
    } cases[] = {
        {500, t, 100, 600, true}, // milliseconds below one second
        {500, t, 100, 700, false},
        {5000, t + 15, 0, 0, true},         // seconds 10 and 25, divisor 5
        {2500, t + 2, 0, 0, true},          // 2.5 rounds to 2: seconds 10 and 12
        {3500, t + 4, 0, 0, true},          // 3.5 rounds to 4: seconds 10 and 14
        {120000, t + 120, 0, 0, true},      // minutes 3 and 5
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
    EXPECT_EQ(error, 5);
}

} // namespace
