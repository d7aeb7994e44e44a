#include "platform/ChartRenderer.h"
#include "ChartTestSources.h"
#include "platform/ChartGeometry.h"
#include "platform/ChartModel.h"

#include <map>

#include <gtest/gtest.h>

namespace {

const QSize kSize(400, 300);

bool isRed(QRgb c) {
    return qRed(c) > 180 && qGreen(c) < 120 && qBlue(c) < 120;
}
bool isDark(QRgb c) {
    return qRed(c) < 110 && qGreen(c) < 110 && qBlue(c) < 110;
}

int count(const QImage& image, const QRect& area, bool (*test)(QRgb)) {
    int n = 0;
    const QRect r = area.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x) n += test(image.pixel(x, y));
    return n;
}

// Series 1 drawn red on a fixed Y range of 0..10.
void redLine(ChartModel& model) {
    SeriesStyle style;
    style.color = QColor(255, 0, 0);
    style.width = 2;
    model.setSeriesStyle(1, style);
    model.axisY().setMin(0);
    model.axisY().setMax(10);
}

// A flat red line at 5 over points 0..10 with holes at 4 and 5; Y fixed 0..10, labels every 5.
void flatLineWithGap(ChartModel& model) {
    model.setSeriesCount(1);
    model.setSeriesValues(1, {5, 5, 5, 5, H, H, 5, 5, 5, 5, 5});
    redLine(model);
    model.axisY().setLabelInterval(5);
}

TEST(ChartRenderer, LineBreaksAtHolesAndAxisIsLabelled) {
    ChartModel model;
    flatLineWithGap(model);
    const QImage image = ChartRenderer::renderImage(model, kSize);
    const ChartGeometry geometry(model, QSizeF(kSize));
    auto at = [&](double x, double y) { return geometry.dataToPixel(x, y).toPoint(); };
    auto around = [](QPoint p, int r) { return QRect(p - QPoint(r, r), p + QPoint(r, r)); };
    EXPECT_GT(count(image, around(at(1.5, 5), 2), isRed), 0) << "line between points 1 and 2";
    EXPECT_GT(count(image, around(at(7.5, 5), 2), isRed), 0) << "line after the gap";
    EXPECT_EQ(count(image, around(at(4.5, 5), 3), isRed), 0) << "no line across the holes";
    // Labels stand left of the plot at 0, 5 and 10, and nowhere between.
    const int left = int(geometry.plotArea().left());
    auto labelArea = [&](double y) { return QRect(left - 40, at(0, y).y() - 5, 32, 10); };
    EXPECT_GT(count(image, labelArea(10), isDark), 0);
    EXPECT_GT(count(image, labelArea(5), isDark), 0);
    EXPECT_EQ(count(image, labelArea(7.5), isDark), 0);
    // Pale yellow background of the system.
    EXPECT_EQ(image.pixel(2, 2), qRgb(255, 255, 225));
}

// 200,000 points drawn from the pyramid: columns span the values, holes stay empty.
TEST(ChartRenderer, ManyPointsAreDrawnAsColumnsWithGaps) {
    std::vector<quint16> raw(200000);
    for (size_t i = 0; i < raw.size(); ++i) raw[i] = i % 2 ? 2 : 8;
    std::fill(raw.begin() + 80000, raw.begin() + 120000, 0); // holes
    ChartModel model;
    model.setSeriesCount(1);
    model.setSeriesSource(1, std::make_unique<LookupSource>(std::move(raw)));
    redLine(model);
    const QImage image = ChartRenderer::renderImage(model, kSize);
    const ChartGeometry geometry(model, QSizeF(kSize));
    auto redAt = [&](double x, double y) {
        return isRed(image.pixel(geometry.dataToPixel(x, y).toPoint()));
    };
    for (double x : {20000.0, 60000.0, 150000.0}) {
        EXPECT_TRUE(redAt(x, 5)) << x;
        EXPECT_FALSE(redAt(x, 9)) << x;
    }
    EXPECT_FALSE(redAt(100000, 5));
}

TEST(ChartGeometry, RegionsAndNearestPoint) {
    ChartModel model;
    flatLineWithGap(model);
    model.setSeriesLabel(1, "CH01");
    model.legend().IsShow = true;
    const ChartGeometry geometry(model, QSizeF(kSize));
    EXPECT_EQ(geometry.region(geometry.plotArea().center()), Chart::kRegionChartArea);
    EXPECT_EQ(geometry.region(geometry.layout().legend.center()), Chart::kRegionLegend);
    EXPECT_EQ(geometry.region(QPointF(1, 1)), Chart::kRegionNone);
    EXPECT_EQ(geometry.region(QPointF(geometry.plotArea().left() - 10, 100)), Chart::kRegionAxes);

    const QPointF near2 = geometry.dataToPixel(2.2, 9);
    ChartGeometry::Hit hit = geometry.nearestPoint(near2, ChartGeometry::Focus::X);
    EXPECT_EQ(hit.series, 1);
    EXPECT_EQ(hit.point, 3);
    EXPECT_NEAR(hit.distance, near2.x() - geometry.dataToPixel(2, 0).x(), 1e-9);
    // With focus on both, a hole is never the answer.
    hit = geometry.nearestPoint(geometry.dataToPixel(4.4, 5), ChartGeometry::Focus::XY);
    EXPECT_EQ(hit.point, 4);
}

// Labels attached to data follow it and are left out where the point is a hole or off the plot.
TEST(ChartRenderer, ChartLabelsFollowTheirAttachment) {
    ChartModel model;
    flatLineWithGap(model);
    // Point 0 stands for a label fixed at pixel (20, 20).
    for (const auto& [text, point] : {std::pair{"on point 3", 3}, {"on a hole", 5}, {"fixed", 0}}) {
        ChartLabel& label = model.labels().add(text);
        label.Text = text;
        label.AttachCoord = QPointF(20, 20);
        if (point) label.AttachMethod = Chart::AttachMethod::DataIndex;
        label.AttachDataIndex = {1, point};
    }
    auto origins = [&] {
        std::map<QString, QPointF> found;
        for (const auto& text : ChartRenderer::prepare(model, QSizeF(kSize)).texts)
            found[text.text] = text.origin;
        return found;
    };
    auto found = origins();
    const ChartGeometry geometry(model, QSizeF(kSize));
    ASSERT_TRUE(found.count("on point 3"));
    EXPECT_EQ(found["on point 3"], geometry.dataToPixel(2, 5));
    EXPECT_FALSE(found.count("on a hole"));
    EXPECT_EQ(found["fixed"], QPointF(20, 20));
    model.axisX().setMin(5); // scrolled past point 3
    found = origins();
    EXPECT_FALSE(found.count("on point 3"));
    EXPECT_TRUE(found.count("fixed"));
}

} // namespace
