#include "analysis/DataList.h"

#include "analysis/ListRows.h"
#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "recording/ViewState.h"
#include "trend/AlarmTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorReadout.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

constexpr double kRowHeight = 12;
constexpr double kColumnWidth = 16;
constexpr double kNarrowestColumn = 8;
constexpr double kNumberColumnWidth = 10;
constexpr double kTimeColumnWidth = 18;

qint32 clampRows(qint64 rows) {
    return qint32(std::clamp<qint64>(rows, 0, std::numeric_limits<qint32>::max()));
}

} // namespace

DataList::DataList(TrendView& view, GridModel& grid)
    : view_(view), grid_(grid), viewNumber_(view.GetGroup()) {
    state().ListOpen = -1;
    grid_.setVirtualFill([this](qint32 row, qint32 count, int direction) {
        return fillBlock(row, count, direction);
    });
}

// The view may be gone already (its window closes its lists): only the view's table is touched.
DataList::~DataList() {
    state().ListOpen = 0;
}

DataListState& DataList::state() const {
    return views(viewNumber()).part<DataListState>();
}

void DataList::load() {
    state().ListRowOffset = ListRows(view_).firstOffset();
    state().ListRowSet = 1;
    build();
    grid_.setReDraw(false);
    hideSwitchedOffChannels();
    grid_.setReDraw(true);
}

void DataList::CircleRechange() {
    load();
}

bool DataList::visibleSpanButton() const {
    return !ListRows(view_).circular();
}

void DataList::build() {
    texts_.clear();
    grid_.setReDraw(false);
    grid_.setMaxRows(0);
    grid_.setVirtualRows(kBlockRows);
    const qint32 count = ListRows(view_).rowCount();
    grid_.setVirtualMode(true);
    ViewState& tables = views(viewNumber());
    const int channels = std::clamp<int>(tables.ChannelCount, 0, MaxChannels);
    grid_.setMaxCols(channels + 1);
    grid_.setHeaderText(0, QString());
    grid_.setHeaderText(1, MsgText(77));
    ChannelTable& table = tables.Channels;
    for (int i = 1; i <= channels; ++i) {
        const QString tag = table.ChTag[size_t(i)].trimmed();
        const QString unit = table.ChUnit[size_t(i)].trimmed();
        table.setTag(i, tag);
        table.setUnit(i, unit);
        grid_.setHeaderText(
            i + 1, unit.isEmpty() ? tag : tag + QStringLiteral(" [") + unit + QLatin1Char(']'));
    }
    grid_.setRowHeight(kRowHeight);
    grid_.setDefaultColWidth(kColumnWidth);
    grid_.setColWidth(1, grid_.colWidth(1) + 2);
    for (int col = 0; col <= grid_.maxCols(); ++col)
        if (grid_.colWidth(col) < kNarrowestColumn) grid_.setColWidth(col, kNarrowestColumn);
    grid_.setColWidth(0, kNumberColumnWidth);
    grid_.setColWidth(1, kTimeColumnWidth);
    grid_.setLocked(true);
    grid_.setMaxRows(count);
    grid_.refreshVirtual();
    grid_.setReDraw(true);
}

void DataList::hideSwitchedOffChannels() {
    const ChartModel& chart = view_.chart();
    for (int i = 1; i + 1 <= grid_.maxCols(); ++i) {
        bool off = false;
        if (i <= chart.seriesCount()) {
            const SeriesStyle& style = chart.seriesStyle(i);
            off = style.pattern == Chart::LinePattern::None &&
                  style.symbol == Chart::SymbolShape::None;
        }
        grid_.setColHidden(i + 1, off);
    }
}

void DataList::setRowSet(int button) {
    if (button < 1 || button > 3) return;
    grid_.setReDraw(false);
    const qint32 earlier = grid_.maxRows();
    grid_.setMaxRows(0);
    grid_.setVirtualRows(kBlockRows);
    const ChartModel& chart = view_.chart();
    qint64 first = 0;
    qint64 count = earlier;
    if (button == 1) {
        first = 1;
        count = ListRows(view_).rowCount();
    } else if (button == 2) {
        const int n = views(viewNumber()).ChannelCount;
        const bool shown = n + 2 <= chart.seriesCount() &&
                           chart.displayState(n + 1) == Chart::kDisplayShown &&
                           chart.displayState(n + 2) == Chart::kDisplayShown;
        if (shown) {
            const auto& points = view_.state().CursorPoint;
            first = std::min(points[0], points[1]);
            count = std::llabs(qint64(points[0]) - points[1]) + 1;
        }
    } else {
        const double low = std::trunc(chart.axis(Chart::Axis::X).min() + 1);
        const double high = std::trunc(chart.axis(Chart::Axis::X).max() + 1);
        if (std::isfinite(low) && std::isfinite(high)) {
            first = qint64(std::clamp(low, -1e12, 1e12));
            count = qint64(std::clamp(high, -1e12, 1e12)) - first + 1;
        }
    }
    state().ListRowOffset = clampRows(first - 1);
    state().ListRowSet = qint16(button);
    grid_.setMaxRows(clampRows(count));
    grid_.setVirtualMode(true);
    grid_.setReDraw(true);
}

GridModel::VirtualReply DataList::fillBlock(qint32 row, qint32 count, int direction) {
    GridModel::VirtualReply reply;
    if (direction < 1 || direction > 5) return reply;
    const qint32 total = grid_.maxRows();
    const qint32 last = qint32(std::min<qint64>(qint64(row) + count, total));
    const ListRows rows(view_);
    const qint64 offset = state().ListRowOffset;
    const bool redraw = grid_.reDraw();
    grid_.setReDraw(false);
    for (qint64 g = row + offset; g <= last + offset; ++g) fillRow(rows, g);
    grid_.setReDraw(redraw);
    reply.rows = std::abs(last - row) + 1;
    reply.atTop = last == 1;
    reply.atBottom = last == total;
    return reply;
}

// One row of the list: the sample number, its time, and each channel's value or status,
// red where an alarm level is set at that sample.
bool DataList::locate(const ListRows& rows, qint64 g, qsizetype& point, qint32& sample) const {
    point = rows.pointOf(g);
    const qint64 x = rows.rowIndexOf(point);
    if (point == 0 || x < 0 || x >= std::numeric_limits<qint32>::max()) return false;
    sample = qint32(x + 1);
    return true;
}

QString DataList::channelText(qsizetype point, qint32 sample, int i) {
    const double y = view_.chart().Y(i, point);
    return y == Chart::kHoleValue ? holeText(sample, i) : valueText(y, i);
}

QString DataList::valueText(double y, int i) {
    const int vn = viewNumber();
    return texts_.text(ScaleToEngineering(y, vn, i), ChannelTexts::formatCode(vn, i));
}

QString DataList::plainValueText(double y, int i) const {
    const int vn = viewNumber();
    return ChannelValueText(ScaleToEngineering(y, vn, i), ChannelTexts::formatCode(vn, i));
}

QString DataList::holeText(qint32 sample, int i) const {
    return ChannelTexts::holeText(viewNumber(), i, sample);
}

int DataList::channelColumns() const {
    return std::min<int>(grid_.maxCols() - 1, views(viewNumber_).ChannelCount);
}

void DataList::fillRow(const ListRows& rows, qint64 g) {
    qsizetype p;
    qint32 sample;
    if (!locate(rows, g, p, sample)) return;
    const qint32 r = qint32(g - state().ListRowOffset);
    const int vn = viewNumber();
    grid_.setText(0, r, QString::number(sample));
    grid_.setText(1, r, SampleTimeText(sample - 1, vn).dateTime);
    const int channels = channelColumns();
    for (int i = 1; i <= channels; ++i) {
        const bool alarm = CursorReadout::firstAlarmLevel(vn, sample, i) != 0;
        grid_.setText(i + 1, r, channelText(p, sample, i));
        grid_.setForeColor(i + 1, r, alarm ? kAlarmColor : kNormalColor);
    }
}

QString DataList::alarmTip(int col, qint32 row) {
    if (col <= 1 || row <= 0 || col > grid_.maxCols() || row > grid_.maxRows()) return QString();
    if (grid_.foreColor(col, row) != kAlarmColor) return QString();
    const int vn = viewNumber();
    const int channel = col - 1;
    bool numeric = false;
    qint32 index = grid_.text(0, row).trimmed().toInt(&numeric);
    if (!numeric) index = 1;
    const AlarmTable& table = alarmTable(vn);
    QString tip = views(vn).Channels.ChTag[size_t(channel)].trimmed();
    for (int level = 1; level <= AlarmTable::kLevels; ++level) {
        const qint32 kind = table(level, index, channel);
        if (kind == 0) continue;
        tip += QStringLiteral("\r\n") + MsgText(229) + QString::number(level) + QLatin1Char(' ') +
               AlarmKindText(kind);
    }
    return tip.trimmed();
}

void DataList::moveTrend(qint32 row) {
    if (row < 1 || row > grid_.maxRows()) return;
    const qsizetype p = ListRows(view_).pointOf(qint64(row) + state().ListRowOffset);
    if (p == 0) return;
    ChartModel& chart = view_.chart();
    view_.window().DateTemp = grid_.text(1, row);
    chart.axisX().setOrigin(chart.X(1, p));
}

bool DataList::copySelection(QString& text, Progress* progress, qsizetype maxChars) {
    const std::optional<QString> block = grid_.clipText(grid_.selection(), progress, maxChars);
    if (!block) {
        ShowMsg(2, QStringLiteral("Out of memory."));
        return false;
    }
    text = *block;
    return true;
}

QString DataList::toolbarHoverText(int index) {
    return MsgText(MsgId(379) + index);
}
