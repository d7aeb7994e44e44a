#include "trend/TrendScaleAxes.h"

#include "base/VbFormat.h"
#include "base/WinColor.h"
#include "platform/AxisScale.h"
#include "trend/PlotValue.h"
#include "trend/TrendView.h"

#include <cmath>

namespace {

constexpr double kHole = Chart::kHoleValue;
// A pass stops after this many steps: an interval far below the scale cannot hang the view.
constexpr int kMaxSteps = 100000;

ChartAxis& axisOf(ChartModel& chart, int axis) {
    return axis == 1 ? chart.axisY() : chart.axisY2();
}

} // namespace

void TrendScaleAxes::Y_Axis_Mode_change(bool scalePercentMode, int channelCount) {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    if (!scalePercentMode) {
        chart.axisY().setLabelMethod(Chart::LabelMethod::Values);
        chart.axisY().setShown(true);
        chart.axisY2().setShown(false);
        return;
    }
    if (st.AxisChannel[0] == 0 || st.AxisChannel[0] > channelCount) st.AxisChannel[0] = 1;
    if (st.AxisChannel[1] == 0) st.AxisChannel[1] = channelCount == 1 ? 1 : 2;
    if (channelCount == 1) st.AxisChannel[1] = 1;
}

QString TrendScaleAxes::axisTitle(int channel) const {
    const ChannelTable& ch = v_.tables().Channels;
    QString title = ch.ChTag[size_t(channel)].left(16).trimmed();
    const QString unit = ch.ChUnit[size_t(channel)].left(8).trimmed();
    if (!unit.isEmpty()) title += QStringLiteral("\n[") + unit + QLatin1Char(']');
    return title;
}

void TrendScaleAxes::Y_AxisSet(bool keepFormat, int channel, int axis) {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    if (!st.ScalePercentMode) {
        // Plain numbers with the decimals of channel 1, whatever the step.
        if (chart.axisY().isMinAuto() && chart.axisY().isMaxAuto()) {
            chart.axisY().setLabelMethod(Chart::LabelMethod::Values);
            chart.axisY().setPrecision(st.Lines[1].decimals);
        }
        return;
    }
    st.AxisChannel[size_t(axis == 1 ? 0 : 1)] = qint16(channel);
    ChartAxis& a = axisOf(chart, axis);
    const TrendLine& line = st.Lines[size_t(qBound(0, channel, kLineCount - 1))];
    if (!keepFormat) {
        a.setLabelMethod(Chart::LabelMethod::ValueLabels);
        a.setPrecision(line.decimals);
    }
    if (channel <= 0 || channel >= kLineCount) return;
    percentLabels(a, channel);
    if (st.ScaleType != ScaleType::MultiScale) {
        a.setTitle(axisTitle(channel));
    } else if (!a.title().trimmed().isEmpty()) {
        a.setTitle(QStringLiteral(" "));
    }
}

void TrendScaleAxes::percentLabels(ChartAxis& axis, int channel) {
    axis.valueLabels().clear();
    const double grid = axis.subGridInterval();
    const double labels = axis.labelInterval();
    labelPass(axis, channel, grid, false);
    labelPass(axis, channel, labels, true);
    v_.chart().touch();
}

// One pass over the channel's scale at a step of `percentStep` percent, rounded to the
// channel's decimals: grid marks, or texts that replace marks at the same place.
void TrendScaleAxes::labelPass(ChartAxis& axis, int channel, double percentStep, bool withText) {
    const TrendViewState& st = v_.state();
    const TrendLine& line = st.Lines[size_t(channel)];
    const double low = TrendValues::scaleNumber(line.scaleLow);
    const double high = TrendValues::scaleNumber(line.scaleHigh);
    const double step = ScaleStep(percentStep, line);
    if (low == kHole || high == kHole || step == kHole || !(step > 0)) return;
    const double shownMin = std::min(axis.min(), axis.max());
    const double shownMax = std::max(axis.min(), axis.max());
    // Labels start at the engineering value of the axis's Min when the scale starts below it.
    const double minValue =
        TrendValues::roundTrip(TrendValues::percentToEngineering(shownMin, low, high));
    double t = low < minValue ? minValue : low;
    const QColor color = st.ScaleType == ScaleType::MultiScale
                             ? WinColor::toQColor(st.MultiScaleLabelColor)
                             : QColor();
    for (int n = 0; t <= high && n < kMaxSteps; ++n, t += step) {
        const double p = TrendValues::percentValue(t, low, high);
        if (p == kHole || p < shownMin || p > shownMax) continue;
        if (!withText) {
            axis.valueLabels().add(p, QString(), color);
            continue;
        }
        axis.valueLabels().removeByValue(p);
        const QString pattern =
            line.scaleKind == 1 ? decimalPattern(line.decimals) : exponentPattern(line.decimals);
        axis.valueLabels().add(p, VbFormat::formatNumber(t, pattern), color);
    }
}

void TrendScaleAxes::ScaleTypeInit() {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    TrendWindowState& w = v_.window();
    chart.setIsBatched(true);
    strips_.clear();
    chart.axisY().setMinAuto(true);
    chart.axisY().setMaxAuto(true);
    const bool strips = st.ScaleType == ScaleType::MultiScale;
    for (int button : {12, 11, 17}) w.Toolbar2Enabled[size_t(button)] = !strips;
    if (st.ScaleType == ScaleType::Bound) {
        chart.axisY().setShown(true);
        chart.axisY2().setShown(true);
        chart.setChartAreaMargins(QMargins());
    } else if (strips) {
        if (chart.chartType() != Chart::kTypePolar) {
            chart.axisY().setLabelsShown(false);
            chart.axisY2().setLabelsShown(false);
        }
        w.YAxisWidth = kStripWidth;
        MultiScaleDisp(false);
    } else {
        chart.axisY().setShown(true);
        chart.axisY().setLabelsShown(true);
        chart.axisY2().setShown(false);
        chart.setChartAreaMargins(QMargins());
    }
    TrendView::call(w.titleRolaction);
    chart.setIsBatched(false);
}

void TrendScaleAxes::MultiScaleDisp(bool /*firstTime*/) {
    TrendViewState& st = v_.state();
    const ViewState& t = v_.tables();
    std::vector<int> rows;
    for (int r = 1; r <= int(st.MultiScaleShown.size()) && int(rows.size()) < kMaxStrips; ++r)
        if (st.MultiScaleShown[size_t(r - 1)]) rows.push_back(r);
    if (rows.empty()) {
        for (int r = 1; r <= std::min<int>(kMaxStrips, t.ChannelCount); ++r) {
            st.MultiScale[size_t(r - 1)] = {
                TrendValues::scaleNumber(t.Channels.ChScaleLow[size_t(r)]),
                TrendValues::scaleNumber(t.Channels.ChScaleHigh[size_t(r)])};
            st.MultiScaleShown[size_t(r - 1)] = true;
            rows.push_back(r);
        }
    }
    strips_.clear();
    for (int r : rows) {
        MultiScaleStrip strip;
        strip.row = r;
        strip.tag = t.Channels.ChTag[size_t(r)].trimmed();
        strip.unit = t.Channels.ChUnit[size_t(r)].trimmed();
        strip.low = st.MultiScale[size_t(r - 1)][0];
        strip.high = st.MultiScale[size_t(r - 1)][1];
        strips_.push_back(strip);
    }
    v_.chart().setChartAreaMargins(QMargins(int(strips_.size()) * kStripWidth, 0, 0, 0));
    MultiScaleDispResize();
}

void TrendScaleAxes::MultiScaleDispResize() {
    const ChartAxis& y = v_.chart().axisY();
    for (MultiScaleStrip& strip : strips_)
        strip.ticks =
            stripTicks(strip.low, strip.high, y.min(), y.max(), y.isReversed(), plotHeight_);
    TrendView::call(v_.window().multiScaleDrawn);
}

std::vector<MultiScaleStrip::Tick> TrendScaleAxes::stripTicks(double low, double high, double yMin,
                                                              double yMax, bool reversed,
                                                              double height) {
    std::vector<MultiScaleStrip::Tick> ticks;
    if (low == kHole || high == kHole || yMax == yMin || height <= 0) return ticks;
    const double from = TrendValues::percentToEngineering(std::min(yMin, yMax), low, high);
    const double to = TrendValues::percentToEngineering(std::max(yMin, yMax), low, high);
    const double lo = std::min(from, to), hi = std::max(from, to);
    if (!(hi > lo)) return ticks;
    const double step = AxisScale::niceStep(hi - lo, std::max(2, int(height / 40)));
    const int decimals = AxisScale::decimalsForStep(step);
    const double minor = step / 5;
    for (double k = std::ceil(lo / minor); k * minor <= hi * (1 + 1e-12) && ticks.size() < 1000;
         ++k) {
        const double value = k * minor;
        const double percent = (value - low) / (high - low) * 100;
        double f = (percent - std::min(yMin, yMax)) / std::abs(yMax - yMin); // 0 at the bottom
        if (reversed) f = 1 - f;
        const bool major = std::fmod(std::abs(std::round(k)), 5.0) == 0;
        ticks.push_back(
            {(1 - f) * height,
             major ? VbFormat::formatNumber(value, decimalPattern(decimals)) : QString()});
    }
    return ticks;
}

void TrendScaleAxes::percentRangeAtLoad() {
    ChartModel& chart = v_.chart();
    chart.axisY().setMin(0);
    chart.axisY().setMax(100);
}

void TrendScaleAxes::setYRange(double min, double max) {
    if (min > max) std::swap(min, max);
    if (max - min < 0) return;
    ChartModel& chart = v_.chart();
    chart.axisY().setMin(min);
    chart.axisY().setMax(max);
}
