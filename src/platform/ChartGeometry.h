#pragma once

#include "platform/ChartLayout.h"
#include "platform/ChartTypes.h"

class ChartModel;

// Pixel questions about a chart drawn at a size: plot area, data coordinates, regions and the
// nearest point. Pure functions of the model and the size, so they are tested without a window.
class ChartGeometry {
public:
    enum class Focus { X, Y, XY };
    struct Hit {
        int series = 0;      // 1-based; 0 when no point was found
        qsizetype point = 0; // 1-based
        double distance = 0; // pixels, along the focus
    };

    ChartGeometry(const ChartModel& model, const QSizeF& size, QPaintDevice* device = nullptr);

    const ChartLayout& layout() const { return layout_; }
    QRectF plotArea() const { return layout_.plot; }

    QPointF dataToPixel(double x, double y, Chart::Axis yAxis = Chart::Axis::Y) const;
    QPointF pixelToData(const QPointF& pixel, Chart::Axis yAxis = Chart::Axis::Y) const;
    // Chart::kRegionChartArea inside the plot, kRegionLegend on the legend, and so on.
    int region(const QPointF& pixel) const;
    // The shown point nearest to the pixel, measured along X, Y or both. Focus X takes every
    // point; Y and XY leave holes out.
    Hit nearestPoint(const QPointF& pixel, Focus focus) const;

private:
    const ChartMapper& mapper(Chart::Axis yAxis) const;
    void searchSeries(int s, const QPointF& pixel, Focus focus, Hit& best) const;

    const ChartModel& model_;
    ChartLayout layout_;
};
