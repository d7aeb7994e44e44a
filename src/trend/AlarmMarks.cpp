#include "trend/AlarmMarks.h"

#include "base/Progress.h"
#include "recording/ViewState.h"
#include "trend/AlarmStyle.h"
#include "trend/AlarmTable.h"
#include "trend/ChartBatch.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <array>

namespace {
struct AlarmMarksFlag {
    bool show = false;
};
} // namespace

bool& AlarmMarks::ShowAlarmMarks(int viewNumber) {
    return views(viewNumber).part<AlarmMarksFlag>().show;
}

bool AlarmMarks::afterLoad() {
    ShowAlarmMarks(v_.GetGroup()) = false;
    clear();
    return alarmTable(v_.GetGroup()).fill(v_.GetGroup(), AlarmTable::Path::AfterLoad);
}

bool AlarmMarks::afterSavedWorkLoad(bool showAlarmMarks, Progress* progress) {
    ShowAlarmMarks(v_.GetGroup()) = showAlarmMarks;
    clear();
    const bool filled = alarmTable(v_.GetGroup()).fill(v_.GetGroup(), AlarmTable::Path::SavedWork);
    if (filled) draw(progress);
    return filled;
}

qint64 AlarmMarks::shownAlarmCount() const {
    const AlarmTable& table = alarmTable(v_.GetGroup());
    const ChartAxis& x = v_.chart().axisX();
    const qint32 first = std::max<qint32>(1, qint32(x.min()) + 1);
    const qint32 last = std::min<qint32>(table.points(), qint32(x.max()) + 1);
    qint64 total = 0;
    if (first > last) return 0;
    for (int c = 1; c <= table.channels(); ++c) {
        const std::vector<quint16>& cells = table.column(c);
        total += std::count_if(cells.begin() + first, cells.begin() + last + 1,
                               [](quint16 cell) { return cell != 0; });
    }
    return total;
}

qint64 AlarmMarks::draw(Progress* progress) {
    if (!ShowAlarmMarks(v_.GetGroup())) return 0;
    const qint64 total = shownAlarmCount();
    if (total == 0) return 0;
    NoProgress none;
    Progress& p = progress ? *progress : none;
    p.setValue(0);
    ChartModel& chart = v_.chart();
    const int channels = std::min<int>(v_.tables().ChannelCount, chart.seriesCount());
    const AlarmStyle style = AlarmStyle::of(v_.state());
    qint64 done = 0;
    {
        ChartBatch batch(chart);
        for (int c = 1; c <= channels && c <= MaxChannels; ++c)
            done = drawChannel(c, style, done, total, p);
    }
    p.setValue(100);
    return done;
}

qint64 AlarmMarks::drawChannel(int c, const AlarmStyle& style, qint64 done, qint64 total,
                               Progress& progress) {
    ChartModel& chart = v_.chart();
    const SeriesStyle& look = chart.seriesStyle(c);
    if (look.pattern == Chart::LinePattern::None && look.symbol == Chart::SymbolShape::None)
        return done; // a channel switched off in the view
    const AlarmTable& table = alarmTable(v_.GetGroup());
    if (c > table.channels()) return done;
    const std::vector<quint16>& cells = table.column(c);
    const qint32 points = std::min<qint32>(table.points(), qint32(chart.pointCount(c)));
    for (qint32 row = 1; row <= points; ++row) {
        if (cells[size_t(row)] == 0 || chart.Y(c, row) == Chart::kHoleValue) continue;
        ++done;
        for (int level = 1; level <= AlarmTable::kLevels; ++level) {
            if (table(level, row, c) == 0) continue;
            chart.setPointStyle(c, row, style.pointStyle(level, c));
            progress.setValue(int(std::min<qint64>(100, done * 100 / total)));
            progress.poll();
            // The first set level with a visible symbol wins; an empty one lets the next show.
            if (style.Symbol(level, c) != AlarmStyle::kNoSymbol) break;
        }
    }
    return done;
}

void AlarmMarks::clear() {
    ChartModel& chart = v_.chart();
    const int channels = std::min<int>(v_.tables().ChannelCount, chart.seriesCount());
    ChartBatch batch(chart);
    for (int c = 1; c <= channels; ++c) {
        std::vector<qsizetype> marked;
        for (const auto& entry : chart.series(c).pointStyles()) marked.push_back(entry.first + 1);
        for (qsizetype p : marked) chart.clearPointStyle(c, p);
    }
}
