#pragma once

#include "platform/RenderPlan.h"

#include <QImage>
#include <QSize>
#include <QString>

class TrendView;

// The trend chart of a view drawn headless into an image file (PNG, JPG, BMP) or a one-page PDF,
// with the multi-scale strips beside it in ScaleType 2.
namespace TrendImage {

// The chart as an image of the given size.
QImage image(TrendView& view, const QSize& size);

// Chosen by the file name's extension; false when the file cannot be written.
bool save(TrendView& view, const QString& path, const QSize& size);

// What save() draws of the chart for a size (the strips aside), with screen metrics.
RenderPlan plan(TrendView& view, const QSizeF& size);

} // namespace TrendImage
