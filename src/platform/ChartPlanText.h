#pragma once

#include "platform/RenderPlan.h"

class ChartModel;
class QPaintDevice;

// The texts of a render plan: axis labels and titles, header and footer, legend, chart labels.
namespace ChartPlanText {

void axisTexts(const ChartModel& model, QPaintDevice* device, RenderPlan& plan);
void titles(const ChartModel& model, QPaintDevice* device, RenderPlan& plan);
void legend(const ChartModel& model, RenderPlan& plan);
void chartLabels(const ChartModel& model, QPaintDevice* device, RenderPlan& plan);

// The box of a label of this size whose attachment point is the origin.
QRectF anchoredBox(Chart::Anchor anchor, const QSizeF& size, double offset);

} // namespace ChartPlanText
