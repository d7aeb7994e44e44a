#include "trend/CursorReadout.h"

#include "base/LanguageTable.h"
#include "trend/AlarmTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorTimeSpan.h"
#include "trend/PlotValue.h"
#include "trend/ReadoutGrid.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <cstdlib>

namespace {

double seriesValue(const ChartModel& chart, int series, qint32 point) {
    if (series > chart.seriesCount() || point < 1 || point > chart.pointCount(series))
        return Chart::kHoleValue;
    return chart.Y(series, point);
}

QString valueText(TrendView& view, int channel, qint32 point) {
    const int vn = view.GetGroup();
    const double y = seriesValue(view.chart(), channel, point);
    if (y == Chart::kHoleValue) return ChannelTexts::holeText(vn, channel, point);
    return ChannelValueText(ScaleToEngineering(y, vn, channel),
                            ChannelTexts::formatCode(vn, channel));
}

void writeTimeSpan(TrendView& view, ReadoutCells& grid, const ReadoutLayout& layout) {
    const auto& points = view.state().CursorPoint;
    if (points[0] <= 0 || points[1] <= 0) return;
    const qint64 d = std::llabs(qint64(points[0]) - points[1]);
    const qint32 interval = view.tables().SampleInterval;
    const CursorTimeSpan::Span span = layout.markerSpan ? CursorTimeSpan::markerSpan(d, interval)
                                                        : CursorTimeSpan::sideGridSpan(d, interval);
    grid.setText(layout.timeRow, 3, CursorTimeSpan::text(span));
}

} // namespace

namespace CursorReadout {

int firstAlarmLevel(int viewNumber, qint32 point, int channel) {
    const AlarmTable& table = alarmTable(viewNumber);
    for (int level = 1; level <= AlarmTable::kLevels; ++level)
        if (table(level, point, channel) != 0) return level;
    return 0;
}

void write(TrendView& view, ReadoutCells& grid, const ReadoutLayout& layout, int cursor,
           qint32 point) {
    const int vn = view.GetGroup();
    const SampleTime time = SampleTimeText(point - 1, vn);
    if (layout.dateRow > 0) {
        grid.setText(layout.dateRow, cursor, time.date);
        grid.setText(layout.timeRow, cursor, time.time);
    } else {
        grid.setText(layout.timeRow, cursor, time.dateTime);
    }
    const int channels = view.tables().ChannelCount;
    for (int i = 1; i <= channels; ++i) {
        const int row = layout.firstChannelRow + i - 1;
        grid.setText(row, cursor, valueText(view, i, point));
        grid.setColor(row, cursor, firstAlarmLevel(vn, point, i) ? kAlarmColor : kNormalColor);
        writeDifference(view, grid, row, i);
    }
    writeTimeSpan(view, grid, layout);
}

void writeDifference(TrendView& view, ReadoutCells& grid, int row, int channel) {
    const QString a = grid.text(row, 1);
    const QString b = grid.text(row, 2);
    double va, vb;
    if (!ChannelTexts::displayNumber(a, va) || !ChannelTexts::displayNumber(b, vb)) return;
    const double diff = va - vb;
    const int code = ChannelTexts::formatCode(view.GetGroup(), channel);
    QString text;
    if (code != 0) {
        text = ChannelValueText(diff, code);
    } else {
        const int decimals = std::min(
            4, std::max(ChannelTexts::displayDecimals(a), ChannelTexts::displayDecimals(b)));
        text = ChannelTexts::displayFormat(diff, decimalPattern(decimals));
    }
    grid.setText(row, 3, text);
    grid.setColor(row, 3, diff < 0 ? kAlarmColor : kNormalColor);
}

QString markerAlarmTip(int viewNumber, int cursor, qint32 point, int channel) {
    const AlarmTable& table = alarmTable(viewNumber);
    QString tip = cursor == 1 ? MsgText(8) : MsgText(9);
    bool any = false;
    for (int level = 1; level <= AlarmTable::kLevels; ++level) {
        const qint32 kind = table(level, point, channel);
        if (kind == 0) continue;
        any = true;
        tip += QStringLiteral("\r\n") + MsgText(229) + QString::number(level) + QLatin1Char(' ') +
               AlarmKindText(kind);
    }
    return any ? tip.trimmed() : QString();
}

} // namespace CursorReadout

void MarkABset(TrendView& view, ReadoutCells& markerGrid, int cursor, qint32 point) {
    CursorReadout::write(view, markerGrid, CursorReadout::kMarkerView, cursor, point);
}
