#include "trend/TrendZoom.h"

#include "base/LanguageTable.h"
#include "base/VbFormat.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <cmath>

namespace {

const QString kTitleLabel = QStringLiteral("Title");

// A value the scroll bar keeps in 16 bits (the runtime's conversion rounds halves to even).
qint16 to16(double value) {
    return qint16(std::clamp<qint64>(VbFormat::roundHalfEven(value), -32768, 32767));
}

} // namespace

QString TrendZoom::titleText(const QString& firstDate, const QString& lastDate) {
    if (firstDate == lastDate) return firstDate;
    return firstDate + QLatin1Char(' ') + MsgText(90) + QLatin1Char(' ') + lastDate;
}

void TrendZoom::setTitle(const QString& text) {
    ChartLabels& labels = v_.chart().labels();
    ChartLabel* title = labels.item(kTitleLabel);
    if (!title) {
        title = &labels.add(kTitleLabel);
        title->Anchor = Chart::Anchor::SouthEast;
        title->AttachCoord = QPointF(64, 2);
    }
    title->IsBatched = true;
    title->Text = text;
    title->IsBatched = false;
    v_.chart().touch();
}

void TrendZoom::updateScrollBar(qint32 first, qint32 last) {
    const TrendViewState& st = v_.state();
    ScrollBarState& bar = v_.window().hsbTrendGraph;
    const double n = v_.tables().PointCount;
    const double s = st.ScrollScale;
    const double large = (double(last) - first + 1) / n * s;
    bar.LargeChange = to16(large);
    bar.SmallChange = bar.LargeChange >= 5 ? to16(bar.LargeChange / 5.0) : qint16(1);
    bar.Max = qint16(st.ScrollScale - bar.LargeChange);
    const double pos = first / n * s;
    if (pos < 1)
        bar.Value = 1;
    else if (pos >= bar.Max)
        bar.Value = bar.Max;
    else
        bar.Value = to16(pos);
    v_.state().ScrollBars[0] = {bar.Min, bar.Max, bar.Value, bar.SmallChange, bar.LargeChange};
}

void TrendZoom::SetDataRange(qint32 first, qint32 last) {
    if (first < 0) return;
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    st.BusyDrawing = true;
    st.FirstShown = first;
    st.LastShown = last;
    chart.axisX().setMin(first - 1);
    chart.axisX().setMax(last - 1);
    if (v_.tables().PointCount == 0) { // nothing to divide by: a view with no data has no scroll
        st.BusyDrawing = false;
        return;
    }
    updateScrollBar(first, last);
    const int view = v_.GetGroup();
    const QString firstDate = SampleTimeText(qint64(chart.axisX().min()), view).date;
    const QString lastDate = SampleTimeText(qint64(chart.axisX().max()), view).date;
    TrendView::call(v_.window().sidePanels);
    if (v_.window().hsbTrendGraph.LargeChange == 0) TrendView::call(v_.window().formResize);
    setTitle(titleText(firstDate, lastDate));
    TrendView::call(v_.window().titleRolaction);
    v_.time().X_AxisSet(true);
    TrendView::call(v_.window().formResize);
    st.BusyDrawing = false;
}

void TrendZoom::scroll(int value) {
    TrendViewState& st = v_.state();
    if (st.BusyDrawing || st.ScrollScale == 0) return;
    const ScrollBarState& bar = v_.window().hsbTrendGraph;
    const double n = v_.tables().PointCount;
    const double s = st.ScrollScale;
    qint32 first = qint32(VbFormat::roundHalfEven(value / s * n));
    qint32 last = qint32(VbFormat::roundHalfEven((value + bar.LargeChange - 1) / s * n));
    const qint32 end = v_.tables().PointCount * st.PointScale;
    if (last > end) {
        first -= last - end;
        last = end;
    }
    if (first < 1) {
        first = 1;
        last = bar.LargeChange - 1;
    }
    ChartModel& chart = v_.chart();
    chart.setIsBatched(true);
    SetDataRange(first, last);
    chart.setIsBatched(false);
    TrendView::call(v_.window().sidePanels);
    if (st.ScaleType == ScaleType::MultiScale) v_.scales().MultiScaleDispResize();
}

void TrendZoom::SetZoom(int level) {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    TrendWindowState& w = v_.window();
    level = qBound(0, level, kTopLevel);
    if (!st.ViewRestoring) chart.setIsBatched(true);
    SetDataRange(st.ZoomX[size_t(level)][1], st.ZoomX[size_t(level)][2]);
    v_.scales().setYRange(st.ZoomY[size_t(level)][1], st.ZoomY[size_t(level)][2]);
    v_.scales().Y_AxisSet(true, st.AxisChannel[0], 1);
    if (st.ScaleType != ScaleType::MultiScale) v_.scales().Y_AxisSet(true, st.AxisChannel[1], 2);
    st.ZoomLevel = qint16(level);
    w.Toolbar2Enabled[1] = w.Toolbar2Enabled[2] = level != 0;
    const bool sameX = st.ZoomX[size_t(level)] == st.ZoomX[0];
    w.hsbTrendGraph.Enabled = level != 0 && w.hsbTrendGraph.Min != w.hsbTrendGraph.Max && !sameX;
    if (level == 0) v_.scales().setYRange(st.ZoomY[0][1], st.ZoomY[0][2]);
    if (st.ScaleType == ScaleType::MultiScale) {
        chart.axisY2().setLabelsShown(false);
        v_.scales().MultiScaleDispResize();
    }
    TrendView::call(w.formResize);
    if (!st.ViewRestoring) chart.setIsBatched(false);
}

bool TrendZoom::canStartBand(bool yBand) {
    TrendViewState& st = v_.state();
    if (!st.MouseArmed || st.CursorAOn || st.CursorBOn) return false;
    if (v_.chart().chartType() == Chart::kTypePolar) return false;
    if (yBand && st.ScaleType == ScaleType::MultiScale) return false;
    if (st.ZoomLevel + 1 == kTopLevel) {
        TrendView::call(v_.window().beep);
        st.ZoomPending = true;
        return false;
    }
    return true;
}

bool TrendZoom::zoomX(qint32 point1, qint32 point2) {
    TrendViewState& st = v_.state();
    if (point1 > point2) std::swap(point1, point2);
    if (point2 - point1 < 2) return false;
    const int level = st.ZoomLevel + 1;
    st.ZoomX[size_t(level)] = {0, point1 * st.PointScale, point2 * st.PointScale};
    st.ZoomY[size_t(level)] = {0, v_.chart().axisY().min(), v_.chart().axisY().max()};
    st.MouseArmed = false;
    SetZoom(level);
    st.MouseArmed = true;
    return true;
}

bool TrendZoom::zoomY(double y1, double y2) {
    TrendViewState& st = v_.state();
    if (y1 > y2) std::swap(y1, y2);
    if (!(y2 - y1 > 0)) return false;
    const int level = st.ZoomLevel + 1;
    const ChartAxis& x = v_.chart().axisX();
    st.ZoomX[size_t(level)] = {0, qint32(x.min()) + 1, qint32(x.max()) + 1};
    st.ZoomY[size_t(level)] = {0, y1, y2};
    st.MouseArmed = false;
    SetZoom(level);
    st.MouseArmed = true;
    return true;
}

int TrendZoom::nextLevel() {
    return std::min(v_.state().ZoomLevel + 1, kTopLevel);
}

void TrendZoom::chartZoomAction() {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    if (chart.axisX().min() < 0) {
        whole();
        return;
    }
    const int level = nextLevel();
    st.ZoomX[size_t(level)] = {0, qint32(chart.axisX().min()) + 1, qint32(chart.axisX().max()) + 1};
    st.ZoomY[size_t(level)] = {0, chart.axisY().min(), chart.axisY().max()};
    SetZoom(level);
    TrendWindowState& w = v_.window();
    w.Toolbar2Enabled[1] = w.Toolbar2Enabled[2] = true;
    w.hsbTrendGraph.Enabled = true;
}

void TrendZoom::pushSpan(qint32 first, qint32 last) {
    TrendViewState& st = v_.state();
    const int level = nextLevel();
    st.ZoomX[size_t(level)] = {0, first, last};
    st.ZoomY[size_t(level)] = {0, v_.chart().axisY().min(), v_.chart().axisY().max()};
    SetZoom(level);
}

void TrendZoom::back() {
    TrendViewState& st = v_.state();
    ChartModel& chart = v_.chart();
    chart.setIsBatched(true);
    SetZoom(std::max(st.ZoomLevel - 1, 0));
    chart.setIsBatched(false);
    st.ZoomPending = false;
}

void TrendZoom::whole() {
    SetZoom(0);
    v_.window().hsbTrendGraph.Value = 1;
}
