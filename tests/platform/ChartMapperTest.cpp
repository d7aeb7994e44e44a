#include "platform/ChartMapper.h"

#include <gtest/gtest.h>

namespace {

// A plot of 100 x 50 pixels at (10, 20): x pixels 10..110, y pixels 20 (top) .. 70 (bottom).
const QRectF kPlot(10, 20, 100, 50);

TEST(ChartMapper, DataToPixelAndBack) {
    const struct {
        const char* name;
        AxisRange x, y;
        QPointF data, pixel;
    } cases[] = {
        {"linear", {0, 10}, {0, 100}, {5, 25}, {60, 57.5}},
        {"linear at the corners", {0, 10}, {0, 100}, {0, 100}, {10, 20}},
        {"negative range", {-10, 10}, {-50, 50}, {-10, 0}, {10, 45}},
        {"reversed y", {0, 10}, {0, 100, true}, {5, 25}, {60, 32.5}},
        {"reversed x", {0, 10, true}, {0, 100}, {2, 100}, {90, 20}},
        {"logarithmic y", {0, 10}, {1, 1000, false, true}, {0, 10}, {10, 70 - 50.0 / 3}},
        {"logarithmic reversed y", {0, 10}, {1, 100, true, true}, {10, 10}, {110, 45}},
        {"beyond the range", {0, 10}, {0, 100}, {20, -100}, {210, 120}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const ChartMapper m(kPlot, c.x, c.y);
        const QPointF pixel = m.dataToPixel(c.data.x(), c.data.y());
        EXPECT_NEAR(pixel.x(), c.pixel.x(), 1e-9);
        EXPECT_NEAR(pixel.y(), c.pixel.y(), 1e-9);
        const QPointF back = m.pixelToData(c.pixel);
        EXPECT_NEAR(back.x(), c.data.x(), 1e-9);
        EXPECT_NEAR(back.y(), c.data.y(), 1e-9);
    }
}

TEST(ChartMapper, LogOfZeroIsOffTheBottomAndAnEmptySpanMapsToTheMiddle) {
    const ChartMapper log(kPlot, {0, 10}, {1, 100, false, true});
    EXPECT_GT(log.yToPixel(0), 1e3);
    EXPECT_GT(log.yToPixel(-5), 1e3);
    const ChartMapper empty(kPlot, {5, 5}, {3, 3});
    EXPECT_EQ(empty.dataToPixel(5, 3), QPointF(60, 45));
}

} // namespace
