#include "trend/TrendPlot.h"

#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "base/ShowMsg.h"
#include "base/WinColor.h"
#include "platform/SeriesWork.h"
#include "recording/SampleRules.h"
#include "trend/LineSeriesSource.h"
#include "trend/PlotValue.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <new>

namespace {

constexpr int kExtraSeries = 14;
const QColor kCursorAColor(0, 0, 255);
const QColor kCursorBColor(255, 0, 255);

} // namespace

void TrendPlot::initLines() {
    ViewState& t = v_.tables();
    TrendViewState& st = v_.state();
    for (int c = 1; c < kLineCount; ++c) {
        TrendLine& line = st.Lines[size_t(c)];
        line = TrendLine();
        if (c > t.ChannelCount) continue;
        const size_t i = size_t(c);
        line.sourceColumn = qint16(c);
        line.enabled = 1;
        line.scaleLow = t.Channels.ChScaleLow[i];
        line.scaleHigh = t.Channels.ChScaleHigh[i];
        const int exp = t.Channels.ChExpDigits[i];
        line.decimals = qint16(exp > 0 ? exp - 1
                                       : qMax(SampleRules::decimalsOf(line.scaleLow),
                                              SampleRules::decimalsOf(line.scaleHigh)));
        line.decimals = qint16(qBound(0, int(line.decimals), 4));
        line.scaleKind = exp > 0 || t.Channels.ChLogFlag[i] ? 2 : 1;
    }
}

void TrendPlot::setChannelStyles() {
    ChartModel& chart = v_.chart();
    const ChannelTable& ch = v_.tables().Channels;
    for (int s = 1; s <= v_.tables().ChannelCount; ++s) {
        SeriesStyle style = chart.seriesStyle(s);
        style.color = WinColor::toQColor(ch.ChColor[size_t(s)]);
        chart.setSeriesStyle(s, style);
        chart.setSeriesLabel(s, ch.ChTag[size_t(s)].trimmed());
    }
}

void TrendPlot::fillSeries(bool direct, Progress* progress) {
    ChartModel& chart = v_.chart();
    const ViewState& t = v_.tables();
    const TrendViewState& st = v_.state();
    const int c = t.ChannelCount;
    filled_.resize(size_t(c));
    for (int s = 1; s <= c; ++s) {
        TrendLine line = st.Lines[size_t(s)];
        if (direct) {
            TrendLine plain;
            plain.sourceColumn = qint16(s);
            plain.enabled = 1;
            plain.scaleLow = line.scaleLow;
            plain.scaleHigh = line.scaleHigh;
            line = plain;
        }
        const Fill fill{line, st.ScalePercentMode, &t.Storage, t.PointCount};
        if (filled_[size_t(s - 1)] == fill && chart.series(s).isSourced()) continue;
        chart.setSeriesSource(s, std::make_unique<LineSeriesSource>(t.Storage, line, t.PointCount,
                                                                    st.ScalePercentMode));
        filled_[size_t(s - 1)] = fill;
    }
    // Pyramids are built now, so that a load that cannot hold them fails here.
    if (progress)
        buildPyramids(chart, 1, c, [&](int done) { progress->setValue(50 + 45 * done / c); });
}

void TrendPlot::CH_DataSet() {
    ChartModel& chart = v_.chart();
    TrendViewState& st = v_.state();
    const int c = v_.tables().ChannelCount;
    chart.setIsBatched(true);
    chart.axisY().setMinAuto(true);
    chart.axisY().setMaxAuto(true);
    if (c == 0) {
        chart.setIsBatched(false);
        return;
    }
    if (st.ScalePercentMode) {
        chart.axisY().setLogarithmic(false);
        chart.axisY2().setLogarithmic(false);
        chart.axisY().setMin(0);
        chart.axisY().setMax(100);
    } else {
        chart.axisY().setLabelMethod(Chart::LabelMethod::Values);
    }
    v_.scales().Y_Axis_Mode_change(st.ScalePercentMode, c);
    chart.setSeriesCount(c);
    filled_.clear();
    fillSeries(false, nullptr);
    for (int s = 1; s <= c; ++s) chart.setDisplayState(s, Chart::kDisplayShown);
    finishFill();
    chart.setIsBatched(false);
}

// Steps shared by both fills once the series stand: pens, axes, extra series, X placement.
void TrendPlot::finishFill() {
    ChartModel& chart = v_.chart();
    TrendViewState& st = v_.state();
    setChannelStyles();
    v_.scales().Y_AxisSet(false, st.AxisChannel[0], 1);
    if (st.ScaleType != ScaleType::MultiScale) v_.scales().Y_AxisSet(false, st.AxisChannel[1], 2);
    v_.window().SelectCaption = QStringLiteral("TAG");
    MakerLineSet2();
    TrendView::call(v_.window().formResize);
    chart.axisX().setMin(chart.axisX().min());
    chart.axisX().setMax(chart.axisX().max());
}

void TrendPlot::ScaleCalculateSet() {
    ChartModel& chart = v_.chart();
    chart.setIsBatched(true);
    fillSeries(false, nullptr);
    chart.setIsBatched(false);
}

TrendPlot::LoadFill TrendPlot::loadFill(Progress* progress) {
    ViewState& t = v_.tables();
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    if (t.PointCount >= MaximumAlarmCount) {
        v_.window().TooLarge = true;
        t.FileCount = 0;
        v_.window().Caption.clear();
        return LoadFill::TooLarge;
    }
    const int c = t.ChannelCount;
    if (c == 0) return LoadFill::NoChannels;
    NoProgress none;
    Progress& p = progress ? *progress : none;
    p.setValue(50);
    chart.setIsBatched(true);
    try {
        chart.axisY().setMinAuto(true);
        chart.axisY().setMaxAuto(true);
        v_.scales().Y_Axis_Mode_change(st.ScalePercentMode, c);
        chart.setSeriesCount(c);
        filled_.clear();
        fillSeries(true, &p);
        for (int s = 1; s <= c; ++s) chart.setDisplayState(s, Chart::kDisplayShown);
        if (st.ScalePercentMode) v_.scales().percentRangeAtLoad();
        finishFill();
    } catch (const std::bad_alloc&) {
        chart.setSeriesCount(0);
        filled_.clear();
        t.Storage = clsStorage();
        chart.setIsBatched(false);
        MsgBox(QStringLiteral("Out of memory."), kFlagOK, QString());
        return LoadFill::OutOfMemory;
    }
    st.ZoomX[0][1] = 1;
    st.ZoomX[0][2] = t.PointCount * st.PointScale;
    st.ZoomY[0][1] = chart.axisY().min();
    st.ZoomY[0][2] = chart.axisY().max();
    chart.setIsBatched(false);
    return LoadFill::Filled;
}

void TrendPlot::MakerLineSet2() {
    ChartModel& chart = v_.chart();
    const TrendViewState& st = v_.state();
    const int c = v_.tables().ChannelCount;
    if (chart.seriesCount() < c + kExtraSeries) chart.setSeriesCount(c + kExtraSeries);
    for (int k = 1; k <= kExtraSeries; ++k) {
        const int s = c + k;
        const int calcSet = k <= 2 ? 0 : (k <= 8 ? 1 : 2);
        if (calcSet > 0 && st.CalcSetInUse[size_t(calcSet - 1)]) continue;
        chart.setSeriesValues(s, {Chart::kHoleValue, Chart::kHoleValue});
        SeriesStyle style = chart.seriesStyle(s);
        if (k <= 2) {
            style.color = k == 1 ? kCursorAColor : kCursorBColor;
            style.width = 2;
        }
        chart.setSeriesStyle(s, style);
        chart.setSeriesInAutoRange(s, false);
        chart.setDisplayState(s, Chart::kDisplayHidden);
    }
}

void TrendPlot::selectChannel(int item) {
    TrendViewState& st = v_.state();
    if (!st.MouseArmed) return;
    ChartModel& chart = v_.chart();
    const int c = v_.tables().ChannelCount;
    chart.setIsBatched(true);
    if (!st.ScalePercentMode) {
        chart.axisY().setMinAuto(true);
        chart.axisY().setMaxAuto(true);
    }
    for (int s = 1; s <= c; ++s)
        chart.setDisplayState(s, item == 0 || s == item ? Chart::kDisplayShown
                                                        : Chart::kDisplayHidden);
    v_.scales().Y_AxisSet(false, item == 0 ? 1 : item, 1);
    TrendView::call(v_.window().dataListDispCheck);
    TrendView::call(v_.window().legendMarks);
    TrendView::call(v_.window().formResize);
    chart.setIsBatched(false);
}

QStringList TrendPlot::channelChoiceItems() const {
    QStringList items{MsgText(91)};
    const ViewState& t = v_.tables();
    for (int c = 1; c <= t.ChannelCount; ++c)
        items << QStringLiteral("%1: %2").arg(c).arg(t.Channels.ChTag[size_t(c)].trimmed());
    return items;
}

int TrendPlot::shownChannelItem() const {
    const ChartModel& chart = v_.chart();
    const int c = std::min<int>(v_.tables().ChannelCount, chart.seriesCount());
    int shown = 0, count = 0;
    for (int s = 1; s <= c; ++s) {
        if (chart.displayState(s) != Chart::kDisplayShown) continue;
        shown = s;
        ++count;
    }
    return count == 1 && c > 1 ? shown : 0;
}

bool TrendPlot::channelsNeedPercent() const {
    if (v_.chart().axisY().isLogarithmic()) return false;
    const ChannelTable& ch = v_.tables().Channels;
    for (int c = 2; c <= v_.tables().ChannelCount; ++c)
        if (ch.ChScaleLow[size_t(c)] != ch.ChScaleLow[1] ||
            ch.ChScaleHigh[size_t(c)] != ch.ChScaleHigh[1])
            return true;
    return false;
}
