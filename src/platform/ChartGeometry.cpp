#include "platform/ChartGeometry.h"

#include "platform/ChartModel.h"

#include <cmath>
#include <limits>

namespace {
// Points further than this from the pixel along X are not looked at for focus Y and XY.
constexpr double kSearchPixels = 24;
constexpr qsizetype kMaxSearchPoints = 200000;
} // namespace

ChartGeometry::ChartGeometry(const ChartModel& model, const QSizeF& size, QPaintDevice* device)
    : model_(model), layout_(ChartLayout::compute(model, size, device)) {}

const ChartMapper& ChartGeometry::mapper(Chart::Axis yAxis) const {
    return yAxis == Chart::Axis::Y2 ? layout_.mapperY2 : layout_.mapper;
}

QPointF ChartGeometry::dataToPixel(double x, double y, Chart::Axis yAxis) const {
    return mapper(yAxis).dataToPixel(x, y);
}

QPointF ChartGeometry::pixelToData(const QPointF& pixel, Chart::Axis yAxis) const {
    return mapper(yAxis).pixelToData(pixel);
}

int ChartGeometry::region(const QPointF& pixel) const {
    if (layout_.plot.contains(pixel)) return Chart::kRegionChartArea;
    if (layout_.legend.contains(pixel)) return Chart::kRegionLegend;
    if (layout_.header.contains(pixel)) return Chart::kRegionHeader;
    if (layout_.footer.contains(pixel)) return Chart::kRegionFooter;
    if (layout_.chartArea.contains(pixel)) return Chart::kRegionAxes;
    return Chart::kRegionNone;
}

ChartGeometry::Hit ChartGeometry::nearestPoint(const QPointF& pixel, Focus focus) const {
    Hit best;
    best.distance = std::numeric_limits<double>::infinity();
    for (int s = 1; s <= model_.seriesCount(); ++s) {
        if (model_.series(s).isShown()) searchSeries(s, pixel, focus, best);
    }
    if (best.series == 0) best.distance = 0;
    return best;
}

void ChartGeometry::searchSeries(int s, const QPointF& pixel, Focus focus, Hit& best) const {
    const ChartSeries& series = model_.series(s);
    const ChartMapper& m = layout_.mapper;
    const qsizetype n = series.count();
    if (n == 0) return;
    qsizetype first = 0, last = n - 1;
    if (!series.hasExplicitX()) {
        // Only the points within reach along X; X is the point index.
        const double at = m.pixelToX(pixel.x());
        if (focus == Focus::X) {
            first = last = qsizetype(std::clamp(std::round(at), 0.0, double(n - 1)));
        } else {
            const double a = m.pixelToX(pixel.x() - kSearchPixels);
            const double b = m.pixelToX(pixel.x() + kSearchPixels);
            first = qsizetype(std::clamp(std::floor(std::min(a, b)), 0.0, double(n - 1)));
            last = qsizetype(std::clamp(std::ceil(std::max(a, b)), 0.0, double(n - 1)));
            const qsizetype centre = qsizetype(std::clamp(std::round(at), 0.0, double(n - 1)));
            first = std::max(first, centre - kMaxSearchPoints / 2);
            last = std::min(last, centre + kMaxSearchPoints / 2);
        }
    }
    std::vector<double> y(size_t(last - first + 1));
    series.values(first, last - first + 1, y.data());
    for (qsizetype i = first; i <= last; ++i) {
        const double v = y[size_t(i - first)];
        const bool hole = v == Chart::kHoleValue;
        if (hole && focus != Focus::X) continue;
        const double dx = m.xToPixel(series.x(i)) - pixel.x();
        const double dy = hole ? 0 : m.yToPixel(v) - pixel.y();
        const double d = focus == Focus::X   ? std::fabs(dx)
                         : focus == Focus::Y ? std::fabs(dy)
                                             : std::hypot(dx, dy);
        if (d < best.distance) best = {s, i + 1, d};
    }
}
