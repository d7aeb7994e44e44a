#pragma once

#include "platform/ChartMapper.h"
#include "platform/ChartSeries.h"
#include "platform/RenderPlan.h"

// Turns one series into what the painter draws for a plot. Only points within the X range
// are read: a long series is drawn from its min/max pyramid, one pixel column at a time, so the
// cost follows the plot width, not the point count.
namespace SeriesPlanner {

// Below this many points per pixel the points are joined as they are.
inline constexpr double kRawPointsPerPixel = 2.0;

RenderPlan::Series plan(const ChartSeries& series, const ChartMapper& mapper);

QPen linePen(const SeriesStyle& style);

} // namespace SeriesPlanner
