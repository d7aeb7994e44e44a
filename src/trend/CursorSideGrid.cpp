#include "trend/CursorSideGrid.h"

#include "base/LanguageTable.h"
#include "trend/AlarmTable.h"
#include "trend/ChannelTexts.h"
#include "trend/CursorReadout.h"
#include "trend/TrendView.h"

namespace {

constexpr int kFirstChannelRow = 3;

QString channelHeader(const ChannelTable& ch, int channel) {
    const QString tag = ch.ChTag[size_t(channel)].trimmed();
    const QString unit = ch.ChUnit[size_t(channel)].trimmed();
    if (unit.isEmpty()) return tag;
    return tag + QStringLiteral("\n[") + unit + QLatin1Char(']');
}

} // namespace

void CursorSideGrid::build() {
    const ViewState& t = v_.tables();
    const int channels = t.ChannelCount;
    grid_.resize(channels + 2, kColumns);
    grid_.setText(0, 1, MsgText(8));
    grid_.setText(0, 2, MsgText(9));
    grid_.setText(0, 3, QStringLiteral("A-B"));
    grid_.setText(0, 4, MsgText(71) + QLatin1Char('\n') + MsgText(230));
    grid_.setText(0, 5, MsgText(72) + QLatin1Char('\n') + MsgText(230));
    grid_.setText(0, 6, MsgText(73) + QLatin1Char('\n') + MsgText(230));
    grid_.setText(0, 7, MsgText(74) + QLatin1Char('\n') + MsgText(230));
    grid_.setText(0, 8, MsgText(75) + QLatin1Char('\n') + MsgText(230));
    grid_.setText(1, 0, MsgText(220));
    grid_.setText(2, 0, MsgText(77));
    for (int i = 1; i <= channels; ++i)
        grid_.setText(kFirstChannelRow + i - 1, 0, channelHeader(t.Channels, i));
    grid_.setColumnWidth(0, kHeaderWidth);
    for (int c = 1; c <= kColumns; ++c) grid_.setColumnWidth(c, kCellWidth);
    notify();
}

void CursorSideGrid::readout(int cursor) {
    if (cursor < 1 || cursor > 2) return;
    const qint32 point = v_.state().CursorPoint[size_t(cursor - 1)];
    if (point <= 0) return;
    if (grid_.rowCount() != v_.tables().ChannelCount + 2) build();
    CursorReadout::write(v_, grid_, CursorReadout::kSideGrid, cursor, point);
    if (grid_.columnWidth(2) < grid_.columnWidth(1)) grid_.setColumnWidth(2, grid_.columnWidth(1));
    notify();
}

void CursorSideGrid::refresh() {
    readout(1);
    readout(2);
}

void CursorSideGrid::statistics() {
    const auto& points = v_.state().CursorPoint;
    if (points[0] <= 0 || points[1] <= 0) return;
    const ChartModel& chart = v_.chart();
    const int view = v_.GetGroup();
    for (int i = 1; i <= v_.tables().ChannelCount && i <= chart.seriesCount(); ++i) {
        const SeriesStatistics s = chart.statistics(i, points[0], points[1]);
        const double values[] = {s.Maximum, s.Minimum, s.Mean, s.StdDev, s.Stat5};
        for (int col = 4; col <= kColumns; ++col)
            grid_.setText(kFirstChannelRow + i - 1, col,
                          ChannelTexts::statisticText(view, i, col - 3, values[col - 4]));
    }
    notify();
}

void CursorSideGrid::DataList_disp_check() {
    const ChartModel& chart = v_.chart();
    for (int i = 1; i <= v_.tables().ChannelCount && i <= chart.seriesCount(); ++i) {
        const SeriesStyle& look = chart.seriesStyle(i);
        const bool switchedOff =
            look.pattern == Chart::LinePattern::None && look.symbol == Chart::SymbolShape::None;
        grid_.setRowHidden(kFirstChannelRow + i - 1,
                           switchedOff || chart.displayState(i) != Chart::kDisplayShown);
    }
    notify();
}

QString CursorSideGrid::toolTip(int row, int col) const {
    if (col < 1 || col > 2 || row < kFirstChannelRow || row > grid_.rowCount()) return QString();
    if (grid_.color(row, col) != CursorReadout::kAlarmColor) return QString();
    const qint32 point = v_.state().CursorPoint[size_t(col - 1)];
    const int channel = row - kFirstChannelRow + 1;
    const AlarmTable& table = alarmTable(v_.GetGroup());
    QString tip = (col == 1 ? MsgText(8) : MsgText(9)) + QLatin1Char('\n') + MsgText(229);
    for (int level = 1; level <= AlarmTable::kLevels; ++level)
        if (table(level, point, channel) != 0) tip += QLatin1Char('\n') + QString::number(level);
    return tip.trimmed();
}

void CursorSideGrid::notify() {
    if (changed) changed();
}
