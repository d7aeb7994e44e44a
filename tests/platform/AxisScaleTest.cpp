#include "platform/AxisScale.h"
#include "platform/ChartModel.h"

#include <gtest/gtest.h>

namespace {

TEST(AxisScale, NiceStepIsOneTwoOrFiveTimesAPowerOfTen) {
    const struct {
        double span, step;
    } cases[] = {{10, 1}, {7.1, 1}, {12, 2}, {199.8, 20}, {0.35, 0.05}, {1e-3, 1e-4}, {0, 1}};
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(AxisScale::niceStep(c.span), c.step) << c.span;
}

TEST(AxisScale, AutomaticRangeIsRoundedOutwardWithTheDataInside) {
    const struct {
        const char* name;
        double lo, hi;
        bool hasData, log, integer;
        double min, max, step;
    } cases[] = {
        {"plain", 0.2, 7.3, true, false, false, 0, 8, 1},
        {"negative start", -3.2, 47, true, false, false, -10, 50, 10},
        // Extremes on round values move out by a step, so that flat lines stay in sight.
        {"round extremes", 25, 75, true, false, false, 20, 80, 10},
        {"from zero", 0, 100, true, false, false, -10, 110, 20},
        {"negative round", -50, -20, true, false, false, -55, -15, 5},
        {"single value", 5, 5, true, false, false, 4.5, 5.5, 0.1},
        {"zero", 0, 0, true, false, false, -1, 1, 0.2},
        {"no data", 0, 0, false, false, false, 0, 1, 0.1},
        {"decades", 3, 450, true, true, false, 1, 1000, 1},
        {"point index", 0, 999999, true, false, true, 0, 999999, 100000},
        {"one point index", 0, 0, true, false, true, 0, 1, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const AxisScale::Scale s = AxisScale::automatic(c.lo, c.hi, c.hasData, c.log, c.integer);
        EXPECT_NEAR(s.min, c.min, 1e-12);
        EXPECT_NEAR(s.max, c.max, 1e-12);
        EXPECT_NEAR(s.step, c.step, 1e-12);
    }
}

TEST(AxisScale, LabelTexts) {
    const struct {
        double step;
        int decimals;
    } steps[] = {{1, 0}, {20, 0}, {0.5, 1}, {0.25, 2}, {0.1, 1}, {0.05, 2}, {2.5, 1}};
    for (const auto& c : steps) EXPECT_EQ(AxisScale::decimalsForStep(c.step), c.decimals) << c.step;
    EXPECT_EQ(AxisScale::valueText(-0.0001, 2), "0.00");
    EXPECT_EQ(AxisScale::valueText(-2.5, 0), "-3"); // halves away from zero
    EXPECT_EQ(AxisScale::valueText(1234567, 0), "1234567");
    EXPECT_EQ(AxisScale::valueText(1e15, 0), "1E+15");
}

std::vector<QString> texts(const std::vector<AxisScale::Tick>& ticks, bool major) {
    std::vector<QString> out;
    for (const auto& t : ticks)
        if (t.major == major) out.push_back(major ? t.text : QString::number(t.value));
    return out;
}

TEST(AxisScale, TicksOfAutomaticNumbersValueLabelsAndDecades) {
    ChartModel model;
    ChartAxis& y = model.axisY();
    y.setSubGridInterval(0.125);
    auto ticks = AxisScale::ticks(y, 0, 1, 0.25);
    EXPECT_EQ(texts(ticks, true), (std::vector<QString>{"0.00", "0.25", "0.50", "0.75", "1.00"}));
    EXPECT_EQ(texts(ticks, false).size(), 9u);
    y.setPrecision(1);
    EXPECT_EQ(texts(AxisScale::ticks(y, 1, 0, 0.5), true),
              (std::vector<QString>{"0.0", "0.5", "1.0"})); // either order of min and max

    y.setLabelMethod(Chart::LabelMethod::ValueLabels);
    y.valueLabels().add(-5, "below");
    y.valueLabels().add(0, "400");
    y.valueLabels().add(0.5, QString()); // a grid line only
    y.valueLabels().add(1, "600", Qt::red);
    ticks = AxisScale::ticks(y, 0, 1, 0.25);
    ASSERT_EQ(ticks.size(), 3u);
    EXPECT_EQ(ticks[0].text, "400");
    EXPECT_TRUE(ticks[1].text.isEmpty());
    EXPECT_EQ(ticks[2].color, QColor(Qt::red));

    ChartAxis& y2 = model.axisY2();
    y2.setLogarithmic(true);
    EXPECT_EQ(texts(AxisScale::ticks(y2, 1, 1000, 1), true),
              (std::vector<QString>{"1", "10", "100", "1000"}));
}

} // namespace
