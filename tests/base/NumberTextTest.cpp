#include "base/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

struct Case {
    double value;
    const char* text;
};

TEST(NumberText, DoubleTextUsesShortestOf15Digits) {
    const Case cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-2.5, "-2.5"},
        {0.0029999999999999996, "0.003"},
        {100.0 / 3, "33.3333333333333"},
        {0.1 + 0.2, "0.3"},
        {1e-4, "0.0001"},
        {1.5e-5, "1.5E-05"},
        {1e-5, "1E-05"},
        {123456789012345.0, "123456789012345"},
        {1e15, "1E+15"},
        {1.5e15, "1.5E+15"},
        {1e308, "1E+308"},
        {-1e-300, "-1E-300"},
        {9.9999999999999999, "10"},
        {1234.5, "1234.5"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(NumberText::doubleText(c.value), QLatin1String(c.text)) << c.value;
}

TEST(NumberText, SingleTextUsesSevenDigits) {
    EXPECT_EQ(NumberText::singleText(3.3f), QLatin1String("3.3"));
    EXPECT_EQ(NumberText::singleText(0.1f), QLatin1String("0.1"));
    EXPECT_EQ(NumberText::singleText(-100000.0f), QLatin1String("-100000"));
    EXPECT_EQ(NumberText::singleText(1.0e-5f), QLatin1String("1E-05"));
    EXPECT_EQ(NumberText::singleText(123.456789f), QLatin1String("123.4568"));
}

TEST(NumberText, ScaledIntegerIsExact) {
    EXPECT_EQ(NumberText::scaledIntegerText(32760, 1), QLatin1String("3276.0"));
    EXPECT_EQ(NumberText::scaledIntegerText(-5, 1), QLatin1String("-0.5"));
    EXPECT_EQ(NumberText::scaledIntegerText(7, 4), QLatin1String("0.0007"));
    EXPECT_EQ(NumberText::scaledIntegerText(-32760, 4), QLatin1String("-3.2760"));
    EXPECT_EQ(NumberText::scaledIntegerText(0, 2), QLatin1String("0.00"));
    EXPECT_EQ(NumberText::scaledIntegerText(-12, 0), QLatin1String("-12"));
}

} // namespace
