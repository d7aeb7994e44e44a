#include "analysis/CalcLines.h"

#include "analysis/MarkerView.h"
#include "analysis/MarkerViewState.h"
#include "platform/ChartModel.h"
#include "recording/ViewState.h"
#include "trend/TrendView.h"

#include <algorithm>

namespace {

constexpr double kHole = Chart::kHoleValue;
constexpr qint32 kCircle = 360;
constexpr int kFirstLine = 3, kLastLine = 14;

// Line s of a set (3..8 or 9..14) and its table column (0..4 for columns 2..6).
int columnOf(int line) {
    const int k = (line - kFirstLine) % 6; // 0..5: max, min, mean, +σ, -σ, fifth
    return k <= 3 ? k : k - 1;
}

int kindOf(int line) {
    return (line - kFirstLine) % 6 + 3;
}

} // namespace

CalcLines::CalcLines(TrendView& view) : view_(view) {
    const ChartModel& chart = view.chart();
    const int n = view.tables().ChannelCount;
    const TrendViewState& st = view.state();
    savedChannels_ = st.CalcLineChannel;
    savedInUse_ = st.CalcSetInUse;
    for (int line = kFirstLine; line <= kLastLine; ++line) {
        const int s = n + line;
        Saved saved;
        if (s <= chart.seriesCount()) {
            saved.style = chart.seriesStyle(s);
            saved.display = chart.displayState(s);
            for (qsizetype p = 1; p <= chart.pointCount(s); ++p) {
                saved.x.push_back(chart.X(s, p));
                saved.y.push_back(chart.Y(s, p));
            }
        }
        saved_.push_back(saved);
        Set& set = sets_[line <= 8 ? 0 : 1];
        const int col = columnOf(line);
        set.styles[size_t(col)] = saved.style;
        set.on[size_t(col)] = saved.style.pattern != Chart::LinePattern::None;
    }
    for (int w = 0; w < 2; ++w) sets_[size_t(w)].channel = savedChannels_[size_t(w)];
}

bool CalcLines::deviationOffered() const {
    return !view_.state().ScalePercentMode;
}

double CalcLines::CalcLineValue(const ChartModel& chart, int kind, int series) {
    switch (kind) {
    case 3:
        return chart.Maximum(series);
    case 4:
        return chart.Minimum(series);
    case 5:
        return chart.Mean(series);
    case 6:
    case 7: {
        const double sd = chart.StdDev(series), mean = chart.Mean(series);
        if (sd == kHole || mean == kHole) return kHole;
        return kind == 6 ? mean + sd : mean - sd;
    }
    case 8:
        return chart.Stat5(series);
    default:
        return kHole;
    }
}

int CalcLines::patternOfItem(int item) {
    return item >= 0 && item <= 2 ? 2 * item + 2 : 2;
}

int CalcLines::itemOfPattern(int pattern) {
    return pattern / 2 - 1;
}

void CalcLines::switchOff(int line) {
    ChartModel& chart = view_.chart();
    const int s = view_.tables().ChannelCount + line;
    if (s > chart.seriesCount()) return;
    SeriesStyle style = chart.seriesStyle(s);
    style.pattern = Chart::LinePattern::None;
    chart.setSeriesStyle(s, style);
}

// A level line: two points across the channel (set 1) or the cursors (set 2), or in the
// circular graph a point at every angle of the circle that holds a sample.
void CalcLines::drawLine(int line, int kind, int series, int which, const SeriesStyle& style) {
    ChartModel& chart = view_.chart();
    const ViewState& t = view_.tables();
    const int s = t.ChannelCount + line;
    const double value = CalcLineValue(chart, kind, series);
    if (chart.chartType() == Chart::kTypePolar) {
        const qint64 before = qint64(std::max(1, view_.state().CurrentCircle) - 1) * kCircle;
        std::vector<double> y(kCircle, kHole);
        qint32 from = 1, to = kCircle;
        if (which == 2) {
            const auto& c = view_.state().CursorPoint;
            from = std::min((c[0] + 1) % kCircle, (c[1] + 1) % kCircle);
            to = std::max((c[0] + 1) % kCircle, (c[1] + 1) % kCircle);
        }
        for (qint32 p = std::max(1, from); p <= to; ++p)
            if (before + p <= t.PointCount) y[size_t(p - 1)] = value;
        chart.setSeriesValues(s, std::move(y));
        for (qint32 p = 1; p <= kCircle; ++p) chart.setX(s, p, p);
    } else {
        double x0 = 1.0, x1 = t.PointCount;
        if (which == 2) {
            const auto& c = view_.state().CursorPoint;
            x0 = chart.X(1, std::min(c[0], c[1]));
            x1 = chart.X(1, std::max(c[0], c[1]));
        }
        chart.setSeriesValues(s, {value, value});
        chart.setX(s, 1, x0);
        chart.setX(s, 2, x1);
    }
    chart.setSeriesStyle(s, style);
    chart.setDisplayState(s, Chart::kDisplayShown);
    chart.setSeriesInAutoRange(s, false);
}

void CalcLines::applySet(int which) {
    const Set& set = sets_[size_t(which - 1)];
    TrendViewState& st = view_.state();
    st.CalcLineChannel[size_t(which - 1)] = qint16(set.channel);
    const int n = view_.tables().ChannelCount;
    const bool markerValid = views(view_.GetGroup()).part<MarkerViewState>().StatisticsValid;
    const bool drawn = set.channel > 0 && set.channel <= n && (which == 1 || markerValid);
    st.CalcSetInUse[size_t(which - 1)] = drawn;
    const int series = which == 1 ? set.channel : n + kMarkerSeriesOffset + set.channel;
    const int first = which == 1 ? 3 : 9;
    for (int line = first; line < first + 6; ++line) {
        const int col = columnOf(line);
        const bool deviation = col == 3;
        if (drawn && set.on[size_t(col)] && (!deviation || deviationOffered()))
            drawLine(line, kindOf(line), series, which, set.styles[size_t(col)]);
        else
            switchOff(line);
    }
}

void CalcLines::ApplyCalcLines() {
    ChartModel& chart = view_.chart();
    chart.setIsBatched(true);
    applySet(1);
    applySet(2);
    chart.setIsBatched(false);
}

void CalcLines::RestoreCalcLines() {
    ChartModel& chart = view_.chart();
    const int n = view_.tables().ChannelCount;
    chart.setIsBatched(true);
    for (int line = kFirstLine; line <= kLastLine; ++line) {
        const int s = n + line;
        if (s > chart.seriesCount()) continue;
        const Saved& saved = saved_[size_t(line - kFirstLine)];
        chart.setSeriesValues(s, saved.y);
        for (size_t p = 0; p < saved.x.size(); ++p) chart.setX(s, qsizetype(p) + 1, saved.x[p]);
        chart.setSeriesStyle(s, saved.style);
        chart.setDisplayState(s, saved.display);
    }
    view_.state().CalcLineChannel = savedChannels_;
    view_.state().CalcSetInUse = savedInUse_;
    chart.setIsBatched(false);
}
