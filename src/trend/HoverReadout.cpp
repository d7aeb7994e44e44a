#include "trend/HoverReadout.h"

#include "base/VbFormat.h"
#include "platform/ChartGeometry.h"
#include "trend/ChannelTexts.h"
#include "trend/PlotValue.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

#include <cmath>

namespace {

// The shown channel whose value at the point lies nearest to the mouse in height; a channel
// without value at the point is taken only when no shown channel has one.
int nearestChannel(TrendView& view, const ChartGeometry& geometry, qint32 point, double pixelY) {
    const ChartModel& chart = view.chart();
    const int channels = std::min<int>(view.tables().ChannelCount, chart.seriesCount());
    int best = 0;
    bool bestHasValue = false;
    double bestDistance = 0;
    for (int s = 1; s <= channels; ++s) {
        if (!chart.series(s).isShown() || point > chart.pointCount(s)) continue;
        const double y = chart.Y(s, point);
        if (y == Chart::kHoleValue) {
            if (best == 0) best = s;
            continue;
        }
        const double d = std::fabs(geometry.dataToPixel(chart.X(s, point), y).y() - pixelY);
        if (!bestHasValue || d < bestDistance) {
            best = s;
            bestHasValue = true;
            bestDistance = d;
        }
    }
    return best;
}

} // namespace

namespace HoverReadout {

QString valueText(TrendView& view, int channel, double value) {
    const int code = ChannelTexts::formatCode(view.GetGroup(), channel);
    if (code > 0) {
        QString pattern = QStringLiteral("#0");
        if (code > 1) pattern += QLatin1Char('.') + QString(code - 1, QLatin1Char('0'));
        return ChannelTexts::displayFormat(value, pattern + QStringLiteral("E+000"));
    }
    const int decimals =
        channel >= 1 && channel < kLineCount ? view.state().Lines[size_t(channel)].decimals : 0;
    return ChannelTexts::displayFormat(value, decimalPattern(decimals));
}

std::optional<HoverText> at(TrendView& view, const ChartGeometry& geometry, const QPointF& pixel,
                            bool banding) {
    const ChartModel& chart = view.chart();
    const ChartAxis& yAxis = chart.axis(Chart::Axis::Y);
    if (yAxis.isLogarithmic() || banding || chart.chartType() == Chart::kTypePolar)
        return std::nullopt;
    const QRectF plot = geometry.plotArea();
    if (!plot.contains(pixel) || plot.width() <= 0 || plot.height() <= 0) return std::nullopt;
    const double fx = (pixel.x() - plot.left()) / plot.width();
    const double fy = (plot.bottom() - pixel.y()) / plot.height();
    double y = fy * (yAxis.max() - yAxis.min()) + yAxis.min();
    if (yAxis.isReversed()) y = yAxis.max() - y + yAxis.min();
    const TrendViewState& st = view.state();
    const int bound = st.AxisChannel[0];
    if (st.ScaleType != ScaleType::Plain && st.ScalePercentMode && bound >= 1 &&
        bound < kLineCount) {
        const TrendLine& line = st.Lines[size_t(bound)];
        y = TrendValues::percentToEngineering(y, TrendValues::scaleNumber(line.scaleLow),
                                              TrendValues::scaleNumber(line.scaleHigh));
    }
    const ChartAxis& xAxis = chart.axis(Chart::Axis::X);
    const qint64 point =
        VbFormat::roundHalfEven(xAxis.min() + fx * (xAxis.max() - xAxis.min())) + 1;
    if (point < 1 || point > view.tables().PointCount) return std::nullopt;

    HoverText h;
    h.point = qint32(point);
    h.value = y;
    h.channel = nearestChannel(view, geometry, h.point, pixel.y());
    h.text = SampleTimeText(point - 1, view.GetGroup()).dateTime;
    if (h.channel > 0) {
        const ChannelTable& ch = view.tables().Channels;
        const int vn = view.GetGroup();
        const bool hole = chart.Y(h.channel, point) == Chart::kHoleValue;
        h.text +=
            QLatin1Char('\n') + ch.ChTag[size_t(h.channel)].trimmed() + QLatin1Char('\n') +
            (hole ? ChannelTexts::holeText(vn, h.channel, h.point) : valueText(view, h.channel, y));
        const QString unit = ch.ChUnit[size_t(h.channel)].trimmed();
        if (!unit.isEmpty()) h.text += QStringLiteral("\n[") + unit + QLatin1Char(']');
    }
    return h;
}

} // namespace HoverReadout
