#include "platform/ChartMapper.h"

#include "platform/ChartAxis.h"

#include <cmath>

namespace {
// Where a value that a logarithmic axis cannot show lands: far below its start.
constexpr double kOffScale = -1e6;
} // namespace

AxisRange AxisRange::of(const ChartAxis& axis) {
    return {axis.min(), axis.max(), axis.isReversed(), axis.isLogarithmic()};
}

double AxisRange::fraction(double v) const {
    double f;
    if (logarithmic) {
        if (!(v > 0) || !(min > 0) || !(max > 0)) return reversed ? 1 - kOffScale : kOffScale;
        const double span = std::log10(max) - std::log10(min);
        f = span == 0 ? 0.5 : (std::log10(v) - std::log10(min)) / span;
    } else {
        const double span = max - min;
        f = span == 0 ? 0.5 : (v - min) / span;
    }
    return reversed ? 1 - f : f;
}

double AxisRange::value(double f) const {
    if (reversed) f = 1 - f;
    if (logarithmic && min > 0 && max > 0) {
        const double lo = std::log10(min);
        return std::pow(10.0, lo + f * (std::log10(max) - lo));
    }
    return min + f * (max - min);
}

ChartMapper::ChartMapper(const QRectF& plot, const AxisRange& x, const AxisRange& y)
    : plot_(plot), x_(x), y_(y) {}

double ChartMapper::pixelToX(double px) const {
    return x_.value(plot_.width() == 0 ? 0 : (px - plot_.left()) / plot_.width());
}

double ChartMapper::pixelToY(double py) const {
    return y_.value(plot_.height() == 0 ? 0 : (plot_.bottom() - py) / plot_.height());
}
