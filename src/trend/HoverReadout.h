#pragma once

#include <QPointF>
#include <QString>
#include <QtGlobal>

#include <optional>

class ChartGeometry;
class TrendView;

// The text of the hover tool tip: the value under the resting mouse, with the time of the point
// below it and the channel nearest to it.
struct HoverText {
    qint32 point = 0; // 1-based
    int channel = 0;  // nearest channel, 0 when no channel is shown
    double value = 0; // Y under the mouse, in engineering units of a bound channel
    QString text;     // time, tag, value or status, [unit], one a line
};

namespace HoverReadout {

// Timer1's routine for a pixel of the chart. Nothing on a logarithmic Y, during a band, outside
// the plot, on a circular chart, or off the points of the view.
std::optional<HoverText> at(TrendView& view, const ChartGeometry& geometry, const QPointF& pixel,
                            bool banding = false);

// A value under the mouse as the tool tip shows it: the channel's decimals, or its exponent
// form with a two-digit mantissa part and three exponent digits.
QString valueText(TrendView& view, int channel, double value);

} // namespace HoverReadout
