#include "recording/CellFormat.h"
#include "recording/SampleRules.h"

#include <gtest/gtest.h>

namespace {

using SampleRules::plainText;

TEST(PlainRule, NumbersAndStatusWords) {
    struct Case {
        qint16 v;
        int d;
        const char* text;
    } const cases[] = {
        {32760, 1, "3276.0"}, {-32760, 0, "-32760"}, {-5, 1, "-0.5"},     {0, 4, "0.0000"},
        {1234, 2, "12.34"},   {7, 3, "0.007"},       {32761, 1, ""},       {32763, 0, ""},
        {32764, 0, "CAL ERR"}, {32765, 0, "RJ ERR"}, {32766, 0, "BURN"},   {32767, 2, "OVER"},
        {-32768, 0, "OVERFLW"}, {-32767, 0, "UNDER"}, {-32766, 0, "N.DATA"}, {-32765, 1, "N.DATA"},
        {-32764, 0, ""},      {-32761, 0, ""},
        // Decimals outside 0..4 show none, the value still divided.
        {12345, 5, "0"},      {25, 6, "0"},          {15, 1, "1.5"},
    };
    for (const Case& c : cases) EXPECT_EQ(plainText(c.v, c.d), QLatin1String(c.text)) << c.v << "/" << c.d;
}

TEST(Float2Rule, MantissaExponentAndStatus) {
    const auto word = [](int m, int e, bool negExp) {
        return quint16((m << 5) | (negExp ? 0x10 : 0) | e);
    };
    EXPECT_EQ(SampleRules::float2Text(word(1016, 0, false), 0), QLatin1String("1016"));
    EXPECT_EQ(SampleRules::float2Text(word(1017, 0, false), 0), QLatin1String("N.DATA"));
    EXPECT_EQ(SampleRules::float2Text(word(1018, 3, true), 2), QLatin1String("Etc ERR"));
    EXPECT_EQ(SampleRules::float2Text(word(1023, 0, false), 0), QLatin1String("OVER"));
    EXPECT_EQ(SampleRules::float2Text(word(1022, 0, false), 0), QLatin1String("UNDER"));
    EXPECT_EQ(SampleRules::float2Text(word(123, 2, false), 1), QLatin1String("1230"));
    EXPECT_EQ(SampleRules::float2Text(word(123, 2, true), 1), QLatin1String("0.123"));
    EXPECT_EQ(SampleRules::float2Text(word(3, 9, true), 0), QLatin1String("3E-09"));
    // Bit 15 is not used.
    EXPECT_EQ(SampleRules::float2Text(quint16(word(5, 0, false) | 0x8000), 0), QLatin1String("5"));
}

TEST(FloatRule, StatusValuesAndShortestText) {
    EXPECT_EQ(SampleRules::floatText(100000.0f), QLatin1String("OVER"));
    EXPECT_EQ(SampleRules::floatText(200000.0f), QLatin1String("BURN"));
    EXPECT_EQ(SampleRules::floatText(-100000.0f), QLatin1String("UNDER"));
    EXPECT_EQ(SampleRules::floatText(-200000.0f), QLatin1String("N.DATA"));
    EXPECT_EQ(SampleRules::floatText(3.3f), QLatin1String("3.3"));
    EXPECT_EQ(SampleRules::floatText(100000.5f), QLatin1String("100000.5"));
}

TEST(AlarmForms, ByteAndBitForms) {
    EXPECT_EQ(AlarmCell::text(AlarmCell::fromBytes(0x13, 0x00)), QLatin1String("1000"));
    EXPECT_EQ(AlarmCell::text(AlarmCell::fromBytes(0x0E, 0xFF)), QLatin1String("0077"));
    EXPECT_EQ(AlarmCell::text(AlarmCell::fromBytes(0x00, 0x00)), QLatin1String("0000"));
    EXPECT_EQ(AlarmCell::text(AlarmCell::fromBytes(0x35, 0x71)), QLatin1String("2103"));
    EXPECT_EQ(AlarmCell::text(AlarmCell::fromByte(0x13)), QLatin1String("10"));
    EXPECT_EQ(AlarmCell::text(AlarmCell::kBlank), QString());
    EXPECT_EQ(AlarmCell::text(SampleRules::alarmBitDigits(0x05)), QLatin1String("9090"));
    EXPECT_EQ(AlarmCell::text(SampleRules::alarmBitDigits(0xF8)), QLatin1String("0009"));
}

TEST(TmCells, ScaledCountsStatusAndLog) {
    CellFormat f{CellFormat::Kind::TmAnalog, 1, false, 0.0f, 100.0f};
    EXPECT_EQ(f.text(quint16(25000)), QLatin1String("100.0"));
    EXPECT_EQ(f.text(quint16(qint16(-25000))), QLatin1String("0.0"));
    EXPECT_EQ(f.text(quint16(32700)), QLatin1String("OVER"));
    EXPECT_EQ(f.text(quint16(qint16(-32701))), QLatin1String("FAIL"));
    f.emptyScale = true;
    EXPECT_EQ(f.text(quint16(0)), QLatin1String("N.DATA"));
    const CellFormat log{CellFormat::Kind::TmLog, 0, false, 0, 0};
    EXPECT_EQ(log.text(quint16(100 * 32 + 3)), QLatin1String("1.00E+3"));
    EXPECT_EQ(log.text(quint16(250 * 32 + 30)), QLatin1String("2.50E-2"));
}

TEST(DecimalsOf, CountsBehindFirstDot) {
    EXPECT_EQ(SampleRules::decimalsOf(QStringLiteral(" 100.00 ")), 2);
    EXPECT_EQ(SampleRules::decimalsOf(QStringLiteral("100")), 0);
    EXPECT_EQ(SampleRules::decimalsOf(QStringLiteral("1.2.3")), 3);
}

} // namespace
