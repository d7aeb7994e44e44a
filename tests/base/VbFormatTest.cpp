#include "base/VbFormat.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using VbFormat::Separators;

const Separators kComma{u","_s, u"."_s, u"."_s, u":"_s};

struct NumberCase {
    double value;
    const char *pattern, *text;
};

TEST(VbFormat, NumberAndExponentPatterns) {
    const NumberCase cases[] = {
        {-1234.5, "#######0", "-1235"},
        {-0.04, "#####0.0", "0.0"},          // rounds to zero: no minus sign
        {123456789, "##0.0", "123456789.0"}, // more digits than placeholders
        {1234567.891, "#,##0", "1,234,568"},
        {-999.5, "#,##0", "-1,000"},
        {0.5, "#.##", ".5"},
        {1.505, "0.0#", "1.51"},
        {1.005, "0.00", "1.01"}, // the value's decimal text decides, not its binary tail
        {-0.125, "0.00", "-0.13"},
        {-5, "0;(0)", "(5)"},
        {0, "0;(0);\"zero\"", "zero"},
        {0.256, "0.0%", "25.6%"},
        {5, "\"No.\"000", "No.005"},
        {1234567, "000-0000", "123-4567"},
        {12345, "0.000E+00", "1.235E+04"},
        {0.00012345, "0.00E+0", "1.23E-4"},
        {0, "0.0E+00", "0.0E+00"},
        {-98765, "0.0E+0", "-9.9E+4"},
        {99999, "0.0E+00", "1.0E+05"}, // the carry moves the exponent
        {250, "0E-00", "3E02"},
    };
    for (const NumberCase& c : cases)
        EXPECT_EQ(VbFormat::formatNumber(c.value, QLatin1String(c.pattern)), QLatin1String(c.text))
            << c.value << " " << c.pattern;
}

TEST(VbFormat, CommaLocaleUsesItsSeparators) {
    const NumberCase cases[] = {{1234567.891, "#,##0", "1.234.568"},
                                {2.5, "###0.00", "2,50"},
                                {-1.5e-6, "0.0E+00", "-1,5E-06"},
                                {0.1 + 0.2, "", "0,3"}};
    for (const NumberCase& c : cases)
        EXPECT_EQ(VbFormat::formatNumber(c.value, QLatin1String(c.pattern), kComma),
                  QLatin1String(c.text));
    EXPECT_EQ(VbFormat::formatNumber(0.1 + 0.2, QString()), u"0.3"_s);
    EXPECT_EQ(VbFormat::defaultText(1e308), u"1E+308"_s);
}

TEST(VbFormat, PatternsRoundHalvesAwayIntegersToEven) {
    const struct {
        double value;
        const char* pattern;
        qint64 even;
    } cases[] = {{0.5, "1", 0},    {1.5, "2", 2},   {2.5, "3", 2},
                 {-2.5, "-3", -2}, {-0.5, "-1", 0}, {3.5, "4", 4}};
    for (const auto& c : cases) {
        EXPECT_EQ(VbFormat::formatNumber(c.value, u"0"_s), QLatin1String(c.pattern));
        EXPECT_EQ(VbFormat::roundHalfEven(c.value), c.even) << c.value;
        EXPECT_EQ(VbFormat::roundHalfAway(c.value, 0), QString::fromLatin1(c.pattern).toDouble());
    }
}

TEST(VbFormat, DateAndTimePatterns) {
    const TimeBase::CalendarTime t{2024, 3, 5, 9, 7, 3};
    const Separators dots{u"."_s, u","_s, u"."_s, u"."_s};
    const struct {
        const char *pattern, *text, *dotted;
    } cases[] = {
        {"yyyy/mm/dd", "2024/03/05", "2024.03.05"},
        {"d/m/yyyy", "5/3/2024", "5.3.2024"},
        {"hh:nn:ss", "09:07:03", "09.07.03"},
        {"hh:mm", "09:07", "09.07"}, // minutes right after an hour token
        {"YYYY/MMM/DD HH:NN", "2024/Mar/05 09:07", "2024.Mar.05 09.07"},
        {"dddd, MMMM d", "Tuesday, March 5", "Tuesday, March 5"},
        {"\"at\" h\\h", "at 9h", "at 9h"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(VbFormat::formatDateTime(t, QLatin1String(c.pattern)), QLatin1String(c.text));
        EXPECT_EQ(VbFormat::formatDateTime(t, QLatin1String(c.pattern), dots),
                  QLatin1String(c.dotted));
    }
}

TEST(VbFormat, DateSerials) {
    EXPECT_EQ(VbFormat::formatDateTime(VbFormat::fromDateSerial(0.5447106481481482), u"hh:nn:ss"_s),
              u"13:04:23"_s);
    EXPECT_EQ(VbFormat::fromDateSerial(36526.5), (TimeBase::CalendarTime{2000, 1, 1, 12, 0, 0}));
    EXPECT_EQ(VbFormat::formatSeconds(86400 * 60 + 3661, u"yyyy-mm-dd hh:nn:ss"_s),
              u"2000-03-01 01:01:01"_s);
}

} // namespace
