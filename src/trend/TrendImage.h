#pragma once

#include <QSize>
#include <QString>

class TrendView;

// The trend chart of a view drawn headless into an image file (PNG, JPG, BMP) or a one-page PDF,
// with the multi-scale strips beside it in ScaleType 2.
namespace TrendImage {

// Chosen by the file name's extension; false when the file cannot be written.
bool save(TrendView& view, const QString& path, const QSize& size);

} // namespace TrendImage
