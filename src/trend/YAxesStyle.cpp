#include "trend/YAxesStyle.h"

#include "base/NumberText.h"
#include "trend/PlotValue.h"
#include "trend/TrendView.h"

#include <cmath>

namespace {

QString cellOf(double value, bool automatic) {
    return automatic ? QString() : NumberText::doubleText(value);
}

YAxesStyle::AxisCells cellsOf(const ChartAxis& a) {
    return {cellOf(a.min(), a.isMinAuto()),
            cellOf(a.max(), a.isMaxAuto()),
            cellOf(a.labelInterval(), a.isLabelIntervalAuto()),
            NumberText::doubleText(a.subGridInterval()),
            a.isReversed(),
            a.isLogarithmic()};
}

int decimalsOf(const QString& text) {
    const QString t = text.trimmed();
    const qsizetype dot = t.indexOf(QLatin1Char('.'));
    return dot < 0 ? 0 : int(t.size() - dot - 1);
}

} // namespace

YAxesStyle::YAxesStyle(TrendView& view) : v_(view) {
    ChartModel& chart = view.chart();
    saved_.axisY().assignSettings(chart.axisY());
    saved_.axisY2().assignSettings(chart.axisY2());
    for (const TrendLine& line : view.state().Lines)
        savedScales_.emplace_back(line.scaleLow, line.scaleHigh);
    savedZoomY_ = view.state().ZoomY[size_t(view.state().ZoomLevel)];
    cells = {cellsOf(chart.axisY()), cellsOf(chart.axisY2())};
    if (view.state().ScalePercentMode) {
        // The Min and Max cells hold the bound channels' scales.
        for (size_t a = 0; a < 2; ++a) {
            const TrendLine& line = view.state().Lines[size_t(view.state().AxisChannel[a])];
            cells[a].min = line.scaleLow;
            cells[a].max = line.scaleHigh;
        }
    }
}

int YAxesStyle::optionButton(int fieldValue) {
    return fieldValue <= 1 ? 0 : fieldValue - 1;
}

QString YAxesStyle::intervalSuffix() const {
    return v_.state().ScalePercentMode ? QStringLiteral("(%)") : QString();
}

void YAxesStyle::applyAxis(ChartAxis& axis, const AxisCells& c, int channel) {
    TrendViewState& st = v_.state();
    double value;
    if (st.ScalePercentMode) {
        if (channel > 0 && channel < kLineCount) {
            TrendLine& line = st.Lines[size_t(channel)];
            if (TrendValues::parseNumber(c.min, value)) line.scaleLow = c.min.trimmed();
            if (TrendValues::parseNumber(c.max, value)) line.scaleHigh = c.max.trimmed();
        }
    } else {
        if (TrendValues::parseNumber(c.min, value))
            axis.setMin(value);
        else
            axis.setMinAuto(true);
        if (TrendValues::parseNumber(c.max, value))
            axis.setMax(value);
        else
            axis.setMaxAuto(true);
    }
    if (TrendValues::parseNumber(c.labelInterval, value)) {
        axis.setLabelInterval(value);
        if (value != std::floor(value)) axis.setPrecision(decimalsOf(c.labelInterval));
    }
    if (TrendValues::parseNumber(c.subGridInterval, value)) axis.setSubGridInterval(value);
    axis.setReversed(c.reversed);
    axis.setLogarithmic(c.logarithmic && !st.ScalePercentMode);
}

void YAxesStyle::apply() {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    chart.setIsBatched(true);
    applyAxis(chart.axisY(), cells[0], st.AxisChannel[0]);
    applyAxis(chart.axisY2(), cells[1], st.AxisChannel[1]);
    if (st.ScalePercentMode) v_.plot().ScaleCalculateSet();
    st.ZoomY[size_t(st.ZoomLevel)] = {0, chart.axisY().min(), chart.axisY().max()};
    v_.scales().Y_AxisSet(true, st.AxisChannel[0], 1);
    v_.scales().Y_AxisSet(true, st.AxisChannel[1], 2);
    chart.setIsBatched(false);
}

void YAxesStyle::cancel() {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    chart.setIsBatched(true);
    chart.axisY().assignSettings(saved_.axisY());
    chart.axisY2().assignSettings(saved_.axisY2());
    bool scalesChanged = false;
    for (size_t i = 0; i < savedScales_.size(); ++i) {
        TrendLine& line = st.Lines[i];
        scalesChanged |=
            line.scaleLow != savedScales_[i].first || line.scaleHigh != savedScales_[i].second;
        line.scaleLow = savedScales_[i].first;
        line.scaleHigh = savedScales_[i].second;
    }
    if (scalesChanged) v_.plot().ScaleCalculateSet();
    st.ZoomY[size_t(st.ZoomLevel)] = savedZoomY_;
    chart.setIsBatched(false);
}
