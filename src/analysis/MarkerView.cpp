#include "analysis/MarkerView.h"

#include "analysis/GridCells.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "platform/ChartModel.h"
#include "platform/SeriesWork.h"
#include "recording/ViewState.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorReadout.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int kAllFirst = 4;
constexpr int kMarkerFirst = 9;
constexpr int kMarkerOffset = kMarkerSeriesOffset;
constexpr qint32 kCircle = 360;
const QString kCrLf = QStringLiteral("\r\n");

} // namespace

void BuildMarkerSeries(TrendView& view, qint32 a, qint32 b) {
    ChartModel& chart = view.chart();
    const int n = std::max<int>(0, view.tables().ChannelCount);
    if (chart.chartType() == Chart::kTypePolar) {
        a %= kCircle;
        b %= kCircle;
    }
    qint32 lo = std::min(a, b), hi = std::max(a, b);
    const bool empty = lo <= 0 || hi <= 0;
    if (empty) lo = hi = 1;
    chart.setIsBatched(true);
    if (chart.seriesCount() != n + kMarkerOffset) chart.setSeriesCount(n + kMarkerOffset);
    chart.setSeriesCount(2 * n + kMarkerOffset);
    for (int i = 1; i <= n; ++i) {
        const int s = n + kMarkerOffset + i;
        chart.setSeriesView(s, i, lo, hi);
        if (empty) chart.setY(s, 1, Chart::kHoleValue);
        chart.setDisplayState(s, Chart::kDisplayHidden);
        chart.setSeriesInAutoRange(s, false);
    }
    chart.setIsBatched(false);
    views(view.GetGroup()).part<MarkerViewState>().StatisticsValid = true;
}

MarkerView::MarkerView(TrendView& view, TrendCursors& cursors, GridModel& grid)
    : view_(view), cursors_(cursors), grid_(grid), viewNumber_(view.GetGroup()) {
    view_.state().MarkerViewFlag = 1;
    cursors_.markerView = [this](int cursor, qint32 point) { cursorMoved(cursor, point); };
}

MarkerView::~MarkerView() {
    view_.state().MarkerViewFlag = 0;
    cursors_.markerView = nullptr;
}

MarkerViewState& MarkerView::state() const {
    return views(viewNumber_).part<MarkerViewState>();
}

int MarkerView::channels() const {
    return std::max<int>(0, views(viewNumber_).ChannelCount);
}

QString MarkerView::channelHeader(int viewNumber, int channel) {
    const ChannelTable& t = views(viewNumber).Channels;
    const QString tag = t.ChTag[size_t(channel)].trimmed();
    const QString unit = t.ChUnit[size_t(channel)].trimmed();
    return unit.isEmpty() ? tag : tag + kCrLf + QLatin1Char('[') + unit + QLatin1Char(']');
}

void MarkerView::buildGrid() {
    const int n = channels();
    grid_.setVirtualMode(false);
    grid_.setMaxCols(kColumns);
    grid_.setMaxRows(n + 1);
    grid_.setHeaderText(1, MsgText(8));
    grid_.setHeaderText(2, MsgText(9));
    grid_.setHeaderText(3, QStringLiteral("A-B"));
    for (int k = 0; k < 5; ++k) {
        grid_.setHeaderText(kAllFirst + k, MsgText(230) + kCrLf + MsgText(71 + k));
        grid_.setHeaderText(kMarkerFirst + k, MsgText(78) + kCrLf + MsgText(71 + k));
    }
    grid_.setText(0, 1, MsgText(77));
    for (int i = 1; i <= n; ++i) grid_.setText(0, i + 1, channelHeader(viewNumber_, i));
    grid_.setColWidth(0, kHeaderWidth);
    for (int c = 1; c <= kColumns; ++c)
        grid_.setColWidth(c, std::max(kMinWidth, grid_.colWidth(c)));
    grid_.setRowHeight(kRowHeight);
}

void MarkerView::load() {
    buildGrid();
    All_Cal_Set();
    const auto& points = view_.state().CursorPoint;
    const int n = channels();
    for (int cursor = 1; cursor <= 2; ++cursor) {
        const qint32 point = points[size_t(cursor - 1)];
        const ChartModel& chart = view_.chart();
        const int series = n + cursor;
        const bool shown =
            series <= chart.seriesCount() && chart.displayState(series) == Chart::kDisplayShown;
        if (point > 0 && shown)
            MarkABset(cursor, point);
        else
            clearCursorColumn(cursor);
    }
    markerFill();
    applyGroups();
}

void MarkerView::clearCursorColumn(int cursor) {
    for (int row = 1; row <= channels() + 1; ++row) {
        grid_.setText(cursor, row, QString());
        grid_.setForeColor(cursor, row, CursorReadout::kNormalColor);
    }
}

void MarkerView::All_Cal_Set() {
    const ChartModel& chart = view_.chart();
    const int n = std::min(channels(), chart.seriesCount());
    // The chart caches the statistics of every series: they are filled on two threads first.
    forEachSeries(1, n, [&chart](int s) { chart.Maximum(s); });
    for (int i = 1; i <= n; ++i) {
        const double values[] = {chart.Maximum(i), chart.Minimum(i), chart.Mean(i), chart.StdDev(i),
                                 chart.Stat5(i)};
        for (int k = 0; k < 5; ++k)
            grid_.setText(kAllFirst + k, i + 1,
                          ChannelTexts::statisticText(viewNumber_, i, k + 1, values[k]));
    }
}

void MarkerView::MarkABset(int cursor, qint32 point) {
    GridCells cells(grid_);
    ::MarkABset(view_, cells, cursor, point);
}

void MarkerView::BuildMarkerSeries(qint32 a, qint32 b) {
    ::BuildMarkerSeries(view_, a, b);
}

void MarkerView::markerFill() {
    const ChartModel& chart = view_.chart();
    const int n = channels();
    const bool valid = state().StatisticsValid && chart.seriesCount() >= 2 * n + kMarkerOffset;
    std::vector<SeriesStatistics> stats(static_cast<size_t>(n));
    if (valid)
        forEachSeries(1, n, [&](int i) {
            const int s = n + kMarkerOffset + i;
            stats[size_t(i - 1)] = chart.statistics(s, 1, chart.pointCount(s));
        });
    for (int i = 1; i <= n; ++i) {
        const SeriesStatistics& st = stats[size_t(i - 1)];
        const double values[] = {st.Maximum, st.Minimum, st.Mean, st.StdDev, st.Stat5};
        for (int k = 0; k < 5; ++k) {
            grid_.setText(kMarkerFirst + k, i + 1,
                          valid ? ChannelTexts::statisticText(viewNumber_, i, k + 1, values[k])
                                : MsgText(179));
            grid_.setForeColor(kMarkerFirst + k, i + 1, CursorReadout::kNormalColor);
        }
    }
}

bool MarkerView::calculateMarker() {
    const auto& points = view_.state().CursorPoint;
    if (points[0] <= 0 || points[1] <= 0) {
        ShowMsg(kMsgWarning, MsgText(565));
        return false;
    }
    BuildMarkerSeries(points[0], points[1]);
    markerFill();
    return true;
}

void MarkerView::cursorMoved(int cursor, qint32 point) {
    MarkABset(cursor, point);
    if (autoCalc()) {
        const auto& points = view_.state().CursorPoint;
        BuildMarkerSeries(points[0], points[1]);
        markerFill();
    }
    if (changed) changed();
}

bool MarkerView::stepCursor(int cursor, int step) {
    const qint32 point = view_.state().CursorPoint[size_t(cursor - 1)];
    if (point <= 0) {
        ShowMsg(kMsgWarning, MsgText(565));
        return false;
    }
    const qint32 last = std::max<qint32>(1, views(viewNumber_).PointCount);
    return cursors_.place(cursor, std::clamp<qint32>(point + step, 1, last));
}

bool MarkerView::ToolbarSet(int button) {
    switch (button) {
    case 1:
        return stepCursor(1, -1);
    case 2:
        return stepCursor(1, 1);
    case 4:
        return stepCursor(2, -1);
    case 5:
        return stepCursor(2, 1);
    case 8:
        return calculateMarker();
    default:
        return false;
    }
}

bool MarkerView::autoCalc() const {
    return view_.state().MarkerAutoCalc != 0;
}

void MarkerView::setAutoCalc(bool on) {
    view_.state().MarkerAutoCalc = on ? 1 : 0;
}

void MarkerView::applyGroups() {
    for (int k = 0; k < 5; ++k) {
        grid_.setColHidden(kAllFirst + k, !state().ShowAll);
        grid_.setColHidden(kMarkerFirst + k, !state().ShowMarker);
    }
}

void MarkerView::setShowAll(bool on) {
    state().ShowAll = on;
    applyGroups();
}

void MarkerView::setShowMarker(bool on) {
    state().ShowMarker = on;
    applyGroups();
}

QString MarkerView::alarmTip(int col, qint32 row) {
    if (col < 1 || col > 2 || row <= 1 || row > channels() + 1) return QString();
    if (grid_.foreColor(col, row) != CursorReadout::kAlarmColor) return QString();
    const qint32 point = view_.state().CursorPoint[size_t(col - 1)];
    return CursorReadout::markerAlarmTip(viewNumber_, col, point, row - 1);
}
