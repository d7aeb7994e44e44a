#include "recording/SampleRules.h"
#include "recording/CellFormat.h"

#include <gtest/gtest.h>

namespace {

using SampleRules::plainText;

TEST(PlainRule, NumbersAndStatusWords) {
    // Decimals outside 0..4 show none, the value still divided.
    struct Case {
        qint16 v;
        int d;
        const char* text;
    } const cases[] = {{32760, 1, "3276.0"},   {-32760, 0, "-32760"}, {-5, 1, "-0.5"},
                       {0, 4, "0.0000"},       {1234, 2, "12.34"},    {7, 3, "0.007"},
                       {32761, 1, ""},         {32763, 0, ""},        {32764, 0, "CAL ERR"},
                       {32765, 0, "RJ ERR"},   {32766, 0, "BURN"},    {32767, 2, "OVER"},
                       {-32768, 0, "OVERFLW"}, {-32767, 0, "UNDER"},  {-32766, 0, "N.DATA"},
                       {-32765, 1, "N.DATA"},  {-32764, 0, ""},       {-32761, 0, ""},
                       {12345, 5, "0"},        {25, 6, "0"},          {15, 1, "1.5"}};
    for (const Case& c : cases)
        EXPECT_EQ(plainText(c.v, c.d), QLatin1String(c.text)) << c.v << "/" << c.d;
}

TEST(Float2Rule, MantissaExponentAndStatus) {
    const struct {
        int m, e;
        bool negExp;
        int decimals;
        const char* text;
    } cases[] = {
        {1016, 0, false, 0, "1016"},  {1017, 0, false, 0, "N.DATA"}, {1018, 3, true, 2, "Etc ERR"},
        {1022, 0, false, 0, "UNDER"}, {1023, 0, false, 0, "OVER"},   {123, 2, false, 1, "1230"},
        {123, 2, true, 1, "0.123"},   {3, 9, true, 0, "3E-09"},
    };
    for (const auto& c : cases) {
        const quint16 word = quint16((c.m << 5) | (c.negExp ? 0x10 : 0) | c.e);
        EXPECT_EQ(SampleRules::float2Text(word, c.decimals), QLatin1String(c.text)) << c.m;
    }
    // Bit 15 is not used.
    EXPECT_EQ(SampleRules::float2Text(quint16((5 << 5) | 0x8000), 0), QLatin1String("5"));
}

TEST(FloatRule, StatusValuesAndShortestText) {
    // Only the exact status values are words; the reader tests cover the others.
    EXPECT_EQ(SampleRules::floatText(100000.0f), QLatin1String("OVER"));
    EXPECT_EQ(SampleRules::floatText(100000.5f), QLatin1String("100000.5"));
}

TEST(AlarmForms, ByteAndBitForms) {
    const struct {
        quint16 cell;
        const char* text;
    } cases[] = {
        {AlarmCell::fromBytes(0x13, 0x00), "1000"},
        {AlarmCell::fromBytes(0x0E, 0xFF), "0077"},
        {AlarmCell::fromBytes(0x35, 0x71), "2103"},
        {AlarmCell::fromByte(0x13), "10"},
        {AlarmCell::kBlank, ""},
        {SampleRules::alarmBitDigits(0x05), "9090"},
        {SampleRules::alarmBitDigits(0xF8), "0009"},
    };
    for (const auto& c : cases) EXPECT_EQ(AlarmCell::text(c.cell), QLatin1String(c.text)) << c.text;
}

} // namespace
