#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorTestSupport.h"

#include <gtest/gtest.h>

#include <limits>

using cursortest::shown;

// Code 0 keeps the decimals of the value's own text (a value within +-1 as it is), codes 1..4
// are exponent forms, and any other code gives the default text.
TEST(ListTexts, ChannelValueText) {
    const struct {
        double value;
        int code;
        const char* text;
    } cases[] = {
        {0.5, 0, "0.5"},
        {-0.25, 0, "-0.25"},
        {1, 0, "1"},
        {0.123456789, 0, "0.123456789"},
        {12.5, 0, "12.5"},
        {-1234.75, 0, "-1234.75"},
        {1500, 0, "1500"},
        {-7, 0, "-7"},
        {123456, 1, "1E+05"},
        {123456, 2, "1.2E+05"},
        {-0.00123, 3, "-1.23E-03"},
        {123456, 4, "1.235E+05"},
        {12.5, -1, "12.5"},
        {3.25, 7, "3.25"},
        {Chart::kHoleValue, 9, "1E+308"},
        {2.675, 0, "2.675"},
        {99999999999999.9, 0, "99999999999999.9"},
        {1.5E+15, 0, "1500000000000000.0"},
        {-2.5E+16, 0, "-25000000000000000.0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ChannelValueText(c.value, c.code), shown(QLatin1String(c.text)))
            << c.value << " code " << c.code;
}

// Only percent data are turned back into engineering units, rounded to the line's decimals;
// the hole stays the hole.
TEST(ListTexts, ScaleToEngineering) {
    const int vn = 3;
    TrendViewState& st = trendState(vn);
    st.reset();
    st.Lines[1].scaleLow = QStringLiteral("-10");
    st.Lines[1].scaleHigh = QStringLiteral("40");
    st.Lines[1].decimals = 2;
    EXPECT_EQ(ScaleToEngineering(33.333333, vn, 1), 33.333333);
    st.ScalePercentMode = true;
    const struct {
        double y;
        double value;
    } cases[] = {{0, -10}, {100, 40}, {50, 15}, {33.333333, 6.67}, {-2, -11}, {0.01001, -9.99}};
    for (const auto& c : cases) EXPECT_EQ(ScaleToEngineering(c.y, vn, 1), c.value) << c.y;
    EXPECT_EQ(ScaleToEngineering(Chart::kHoleValue, vn, 1), Chart::kHoleValue);
    st.reset();
}

// One name for each alarm kind wherever it is shown.
TEST(ListTexts, AlarmKindText) {
    const struct {
        qint32 kind;
        QString text;
    } cases[] = {{0, QString()},    {1, MsgText(277)}, {2, MsgText(278)}, {3, MsgText(279)},
                 {4, MsgText(280)}, {5, MsgText(269)}, {6, "ON"},         {7, "ON"},
                 {12, "ON"},        {-1, "ON"}};
    for (const auto& c : cases) EXPECT_EQ(AlarmKindText(c.kind), c.text) << c.kind;
}

// The count of the skip window: digits as they stand, anything else 0, and never so large that
// the row step overflows.
TEST(ListTexts, SkipCount) {
    const qint32 largest = std::numeric_limits<qint32>::max() - 1;
    const struct {
        const char* text;
        qint32 count;
    } cases[] = {{"3", 3},
                 {" 12 ", 12},
                 {"", 0},
                 {"abc", 0},
                 {"-5", 0},
                 {"0", 0},
                 {"1e3", 1000},
                 {"99999999999", largest},
                 {"2147483647", largest}};
    for (const auto& c : cases)
        EXPECT_EQ(SkipCountFromText(QLatin1String(c.text)), c.count) << c.text;

    EXPECT_EQ(SkipCount(), 0);
    EXPECT_EQ(SkipStep(), 1);
    SkipCount() = largest;
    EXPECT_EQ(SkipStep(), std::numeric_limits<qint32>::max());
    SkipCount() = 4;
    EXPECT_EQ(SkipStep(), 5);
    SkipCount() = 0;

    EXPECT_EQ(SkipSetLabel(QStringLiteral(".")), MsgText(207) + " / CSV / TXT / Excel");
    EXPECT_EQ(SkipSetLabel(QStringLiteral(",")), MsgText(207) + " / TXT / Excel");
}
