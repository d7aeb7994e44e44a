#pragma once

#include "platform/RenderPlan.h"

#include <QImage>
#include <QSize>

class ChartModel;
class QPainter;
class QPaintDevice;

// Draws a ChartModel: prepare() turns the model into a plan for one size, paint() draws a plan
// with any painter (widget, QImage, PDF page). A repaint costs about the plot width times the
// shown series, whatever the number of points.
class ChartRenderer {
public:
    // Text is measured for `device` (the one painted on), screen metrics when null.
    static RenderPlan prepare(const ChartModel& model, const QSizeF& size,
                              QPaintDevice* device = nullptr);
    static void paint(const RenderPlan& plan, QPainter& painter);
    // prepare() and paint() on a painter whose device is `size` units large.
    static void render(const ChartModel& model, QPainter& painter, const QSizeF& size);
    static QImage renderImage(const ChartModel& model, const QSize& size);
};
