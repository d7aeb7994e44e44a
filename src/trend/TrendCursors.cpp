#include "trend/TrendCursors.h"

#include "base/VbFormat.h"
#include "platform/ChartGeometry.h"
#include "trend/ChartBatch.h"
#include "trend/TrendView.h"

#include <algorithm>

TrendCursors::TrendCursors(TrendView& view) : v_(view), side_(view) {}

bool TrendCursors::command(int number) {
    const TrendViewState& st = v_.state();
    switch (number) {
    case 6:
        setCursorOn(1, !st.CursorAOn);
        return true;
    case 7:
        setCursorOn(2, !st.CursorBOn);
        return true;
    default:
        return false;
    }
}

void TrendCursors::setCursorOn(int cursor, bool on) {
    TrendViewState& st = v_.state();
    if (cursor == 1) {
        st.CursorAOn = on;
        if (on) st.CursorBOn = false;
    } else if (cursor == 2) {
        st.CursorBOn = on;
        if (on) st.CursorAOn = false;
    }
    const int active = activeCursor();
    const double x = marker_.x;
    marker_ = TrackingMarker();
    marker_.x = x;
    if (active == 0) return; // X band zoom is back in force
    const int s = cursorSeries(active);
    if (s > v_.chart().seriesCount()) return;
    const SeriesStyle& look = v_.chart().seriesStyle(s);
    marker_.tracking = true;
    marker_.color = look.color;
    marker_.width = look.width;
    marker_.pattern = int(look.pattern);
}

int TrendCursors::activeCursor() const {
    const TrendViewState& st = v_.state();
    return st.CursorAOn ? 1 : (st.CursorBOn ? 2 : 0);
}

int TrendCursors::cursorSeries(int cursor) const {
    return v_.tables().ChannelCount + cursor;
}

qint32 TrendCursors::pointAt(const ChartGeometry& geometry, const QPointF& pixel) const {
    const ChartGeometry::Hit hit = geometry.nearestPoint(pixel, ChartGeometry::Focus::X);
    const double x =
        hit.series > 0 ? v_.chart().X(hit.series, hit.point) : geometry.pixelToData(pixel).x();
    const qint64 points = v_.tables().PointCount;
    return qint32(
        std::clamp<qint64>(VbFormat::roundHalfEven(x) + 1, 1, std::max<qint64>(points, 1)));
}

bool TrendCursors::mouseMove(const ChartGeometry& geometry, const QPointF& pixel) {
    lastMouse_ = pixel;
    if (activeCursor() == 0 || v_.tables().PointCount == 0) return false;
    marker_.x = pointAt(geometry, pixel) - 1;
    return true;
}

bool TrendCursors::click(const ChartGeometry& geometry) {
    if (!v_.state().MouseArmed) return false;
    if (geometry.region(lastMouse_) != Chart::kRegionChartArea) return false;
    const int cursor = activeCursor();
    if (cursor == 0) return false;
    return place(cursor, pointAt(geometry, lastMouse_));
}

bool TrendCursors::place(int cursor, qint32 point) {
    if (cursor < 1 || cursor > 2) return false;
    ChartModel& chart = v_.chart();
    ChartBatch batch(chart);
    const bool blocked = chart.seriesCount() < 1 || chart.pointCount(1) < 1 ||
                         chart.Y(1, 1) == Chart::kHoleValue || v_.tables().PointCount < 1;
    if (!blocked) {
        point = std::clamp<qint32>(point, 1, v_.tables().PointCount);
        setLine(cursor, point);
        v_.state().CursorPoint[size_t(cursor - 1)] = point;
        afterPlacement(cursor, point);
    }
    if (barUpdate) barUpdate(cursor);
    return !blocked;
}

void TrendCursors::setLine(int cursor, qint32 point) {
    ChartModel& chart = v_.chart();
    const int s = cursorSeries(cursor);
    if (s > chart.seriesCount()) v_.plot().MakerLineSet2();
    if (s > chart.seriesCount()) return;
    if (chart.pointCount(s) < 2) chart.setSeriesValues(s, {Chart::kHoleValue, Chart::kHoleValue});
    const double x = chart.X(1, point);
    chart.setX(s, 1, x);
    chart.setX(s, 2, x);
    chart.setY(s, 1, chart.axisY().min());
    chart.setY(s, 2, chart.axisY().max());
    chart.setDisplayState(s, Chart::kDisplayShown);
}

void TrendCursors::afterPlacement(int cursor, qint32 point) {
    side_.readout(cursor);
    const auto& points = v_.state().CursorPoint;
    const bool both = points[0] > 0 && points[1] > 0;
    if (statisticsViewOpen && both) side_.statistics();
    if (markerView) markerView(cursor, point);
    if (statisticsViewOpen && both && markerStatistics) markerStatistics();
}

void TrendCursors::followYRange() {
    ChartModel& chart = v_.chart();
    const double low = chart.axisY().min();
    const double high = chart.axisY().max();
    for (int cursor = 1; cursor <= 2; ++cursor) {
        const int s = cursorSeries(cursor);
        if (s > chart.seriesCount() || chart.pointCount(s) < 2) continue;
        chart.setY(s, 1, low);
        chart.setY(s, 2, high);
    }
}

void TrendCursors::afterLoad() {
    TrendViewState& st = v_.state();
    st.CursorAOn = st.CursorBOn = false;
    st.CursorPoint = {0, 0};
    marker_ = TrackingMarker();
    side_.build();
}

void TrendCursors::refreshSidePanels() {
    side_.refresh();
}
