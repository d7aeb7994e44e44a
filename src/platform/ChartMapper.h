#pragma once

#include <QPointF>
#include <QRectF>

class ChartAxis;

// The range of an axis as it is drawn.
struct AxisRange {
    double min = 0;
    double max = 1;
    bool reversed = false;
    bool logarithmic = false;

    static AxisRange of(const ChartAxis& axis);
    // 0 at the start of the axis (left, bottom), 1 at its end; reversed and logarithmic honoured.
    double fraction(double value) const;
    double value(double fraction) const;
};

// Data coordinates to pixels and back for one plot rectangle: a pure function of the rectangle
// and the axis ranges.
class ChartMapper {
public:
    ChartMapper() = default;
    ChartMapper(const QRectF& plot, const AxisRange& x, const AxisRange& y);

    const QRectF& plot() const { return plot_; }
    const AxisRange& xRange() const { return x_; }
    const AxisRange& yRange() const { return y_; }

    double xToPixel(double x) const { return plot_.left() + x_.fraction(x) * plot_.width(); }
    double yToPixel(double y) const { return plot_.bottom() - y_.fraction(y) * plot_.height(); }
    double pixelToX(double px) const;
    double pixelToY(double py) const;
    QPointF dataToPixel(double x, double y) const { return {xToPixel(x), yToPixel(y)}; }
    QPointF pixelToData(const QPointF& pixel) const {
        return {pixelToX(pixel.x()), pixelToY(pixel.y())};
    }

private:
    QRectF plot_;
    AxisRange x_;
    AxisRange y_;
};
