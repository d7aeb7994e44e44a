#include "analysis/Search.h"

#include "analysis/MarkerView.h"
#include "base/LanguageTable.h"
#include "base/Progress.h"
#include "platform/ChartModel.h"
#include "platform/SeriesWork.h"
#include "recording/ViewState.h"
#include "trend/AlarmTable.h"
#include "trend/ChannelTexts.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"
#include "trend/TrendZoom.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>

namespace Search {

namespace {

constexpr qint32 kCircle = 360;
constexpr qsizetype kChunk = 65536;
constexpr double kHole = Chart::kHoleValue;

// Progress at most every 50 ms; a cancel stops the loops and keeps the hits.
class Poller {
public:
    explicit Poller(Progress* p) : progress_(p) { clock_.start(); }
    bool stop(qint64 done, qint64 total) {
        if (!progress_ || clock_.elapsed() < 50) return cancelled_;
        clock_.restart();
        progress_->setValue(int(100 * done / std::max<qint64>(total, 1)));
        if (progress_->poll()) cancelled_ = true;
        return cancelled_;
    }
    bool cancelled() const { return cancelled_; }

private:
    Progress* progress_;
    QElapsedTimer clock_;
    bool cancelled_ = false;
};

struct Context {
    TrendView& view;
    const ChartModel& chart;
    const Input& in;
    Result& out;
    Poller poll;
    int vn;
    int n;
    bool percent;
    bool circular;
    qint32 circle;
    qint32 pointCount;

    double engineering(double y, int channel) const {
        return percent && y != kHole ? ScaleToEngineering(y, vn, channel) : y;
    }
    // The points of a channel: 1..PointCount, or 1..360 of the current circle while the point
    // lies inside the recording.
    qint32 lastPoint() const {
        if (!circular) return pointCount;
        const qint64 before = qint64(circle - 1) * kCircle;
        return qint32(std::clamp<qint64>(pointCount - before, 0, kCircle));
    }
    // The channels of a combo index: the channel, or all of them for the last item.
    std::pair<int, int> channels(int item) const {
        if (item == n) return {1, n};
        if (item < 0 || item >= n) return {1, 0};
        return {item + 1, item + 1};
    }
};

bool number(const QString& text, double& value) {
    return ChannelTexts::displayNumber(text, value);
}

// Every point of series s (1..last) through f(point, y), read in chunks; false once cancelled.
template <typename F> bool forPoints(Context& c, int s, qint32 last, F&& f) {
    std::vector<double> buffer(size_t(std::min<qsizetype>(kChunk, std::max<qint32>(last, 1))));
    const qsizetype count = std::min<qsizetype>(last, c.chart.pointCount(s));
    for (qsizetype first = 0; first < count; first += kChunk) {
        const qsizetype m = std::min(kChunk, count - first);
        c.chart.series(s).values(first, m, buffer.data());
        for (qsizetype k = 0; k < m; ++k) f(qint32(first + k + 1), buffer[size_t(k)]);
        if (c.poll.stop(first, count)) return false;
    }
    return true;
}

// The statistic behind kinds 0..4 for series s of channel ch; false to pass the channel over.
// The σ band goes into the boxes.
bool statisticTarget(Context& c, int kind, int s, int ch, double& target, double band[2]) {
    const SeriesStatistics& st = c.chart.series(s).statistics();
    switch (kind) {
    case KindMaximum:
    case KindMinimum: {
        const double m = kind == KindMaximum ? st.Maximum : st.Minimum;
        if (m == kHole) return false;
        target = ScaleToEngineering(m, c.vn, ch);
        return true;
    }
    case KindMean:
        target = st.Mean;
        return st.Mean != kHole;
    case SearchKindSigma: {
        if (st.Mean == kHole || st.StdDev == kHole || st.Mean == -1.0) return false;
        const double mean = ScaleToEngineering(st.Mean, c.vn, ch);
        c.out.text1 = ChannelValueText(mean - st.StdDev, 0);
        c.out.text2 = ChannelValueText(mean + st.StdDev, 0);
        // The band is read back from the texts in the boxes.
        return number(c.out.text1, band[0]) && number(c.out.text2, band[1]);
    }
    case SearchKindStat5:
        target = st.Stat5;
        return st.Stat5 != kHole;
    default:
        return false;
    }
}

bool compareValue(int option, double v, double target, const double range[2], bool rangeOk) {
    switch (option) {
    case 0:
        return v == target;
    case 1:
        return v != kHole && v >= target;
    case 2:
        return v != kHole && v <= target;
    case 3:
        return rangeOk && v != kHole && range[0] <= v && v <= range[1];
    default:
        return false;
    }
}

// Kinds 0..5 over series s of channel ch; `offset` turns a series point into the channel's.
void valueSearch(Context& c, int kind, int s, int ch, qint32 last, qint32 offset, int option) {
    double target = 0, band[2] = {0, 0};
    if (kind == SearchKindValue) {
        number(c.in.text1, target);
    } else if (!statisticTarget(c, kind, s, ch, target, band)) {
        return;
    }
    double range[2] = {0, 0};
    const bool rangeOk = number(c.in.text1, range[0]) && number(c.in.text2, range[1]);
    std::vector<Hit>& hits = c.out.hits;
    forPoints(c, s, last, [&](qint32 p, double y) {
        const double v = c.engineering(y, ch);
        bool hit;
        if (kind == KindMaximum || kind == KindMinimum)
            hit = v == target;
        else if (kind == SearchKindSigma)
            hit = v != kHole && ((band[0] <= v && v <= band[1]) == (option == 0));
        else
            hit = compareValue(option, v, target, range, rangeOk);
        if (hit) hits.push_back({p + offset, ch, 0});
    });
}

void timeSearch(Context& c) {
    const ViewState& t = c.view.tables();
    const auto indexOf = [&](qint64 seconds, int msec) {
        return secondsToIndex(seconds, msec, t.SampleInterval, t.ViewStart, t.ViewStartMsec);
    };
    const qint64 last = qint64(c.pointCount) - 1;
    qint64 from = indexOf(c.in.fromSeconds, c.in.fromMsec), to = from;
    switch (c.in.option) {
    case 0:
        if (from < 0 || from > last) return;
        break;
    case 1:
        to = last;
        break;
    case 2:
        from = 0;
        break;
    default:
        to = indexOf(c.in.toSeconds, c.in.toMsec);
        if (from > to) std::swap(from, to);
        break;
    }
    from = std::clamp<qint64>(from, 0, last);
    to = std::clamp<qint64>(to, 0, last);
    qint64 base = 0;
    if (c.circular) {
        base = qint64(c.circle - 1) * kCircle;
        from = std::max(from, base);
        to = std::min(to, base + kCircle - 1);
    }
    for (qint64 i = from; i <= to; ++i) {
        c.out.hits.push_back({qint32(i - base + 1), 0, 0});
        if ((i & 0xFFFF) == 0 && c.poll.stop(i - from, to - from + 1)) return;
    }
}

void markerSearch(Context& c) {
    const auto& cursor = c.view.state().CursorPoint;
    if (c.in.item <= 1) {
        const qint32 p = cursor[size_t(c.in.item)];
        if (p <= 0) return; // never a read of point 0
        for (int ch = 1; ch <= c.n; ++ch) c.out.hits.push_back({p, ch, 0});
        return;
    }
    if (cursor[0] <= 0 || cursor[1] <= 0) {
        c.out.message = 565;
        return;
    }
    BuildMarkerSeries(c.view, cursor[0], cursor[1]);
    qint32 a = cursor[0], b = cursor[1];
    if (c.circular) a %= kCircle, b %= kCircle;
    const qint32 lo = std::max(1, std::min(a, b));
    const auto [first, lastChannel] = c.channels(c.in.combo1);
    for (int ch = first; ch <= lastChannel && !c.poll.cancelled(); ++ch) {
        const int s = c.n + kMarkerSeriesOffset + ch;
        valueSearch(c, c.in.item - 2, s, ch, qint32(c.chart.pointCount(s)), lo - 1, 0);
    }
}

void commentSearch(Context& c) {
    const ChartLabels& labels = c.chart.labels();
    for (int i = 0; i < labels.count(); ++i) {
        const ChartLabel& label = labels.item(i);
        if (label.Name == QLatin1String("MarkerText") || label.Name == QLatin1String("Dropped"))
            continue;
        bool hit = true;
        switch (c.in.option) {
        case 1:
            hit = label.Text == c.in.text1;
            break;
        case 2:
            hit = label.Text.contains(c.in.text1, Qt::CaseInsensitive);
            break;
        case 3:
            hit = !label.Text.contains(c.in.text1, Qt::CaseInsensitive);
            break;
        default:
            break;
        }
        if (hit) c.out.hits.push_back({label.AttachDataIndex.Point, 0, i});
    }
}

void alarmSearch(Context& c) {
    const AlarmTable& table = alarmTable(c.vn);
    const int lo = c.in.combo1 == 0 ? 1 : c.in.combo1;
    const int hi = c.in.combo1 == 0 ? AlarmTable::kLevels : c.in.combo1;
    const auto [first, last] = c.channels(c.in.channelItem);
    const qint32 points = c.lastPoint();
    for (int ch = first; ch <= last && !c.poll.cancelled(); ++ch)
        for (qint32 p = 1; p <= points; ++p) {
            for (int level = lo; level <= hi; ++level)
                if (table(level, p, ch) != 0) {
                    c.out.hits.push_back({p, ch, 0});
                    break;
                }
            if ((p & 0xFFFF) == 0 && c.poll.stop(p, points)) break;
        }
}

} // namespace

Result run(TrendView& view, const Input& in, Progress* progress) {
    Result out;
    out.text1 = in.text1;
    out.text2 = in.text2;
    const ChartModel& chart = view.chart();
    Context c{view,
              chart,
              in,
              out,
              Poller(progress),
              view.GetGroup(),
              std::min<int>(view.tables().ChannelCount, chart.seriesCount()),
              view.state().ScalePercentMode,
              chart.chartType() == Chart::kTypePolar,
              std::max<qint32>(1, view.state().CurrentCircle),
              view.tables().PointCount};
    double unused;
    if (in.kind == SearchKindValue && !number(in.text1, unused)) {
        out.message = 102;
        return out;
    }
    switch (in.kind) {
    case SearchKindTime:
        timeSearch(c);
        break;
    case SearchKindMarker:
        markerSearch(c);
        break;
    case SearchKindComment:
        commentSearch(c);
        break;
    case SearchKindAlarm:
        alarmSearch(c);
        break;
    default: {
        const auto [first, last] = c.channels(in.channelItem);
        // Whole-series statistics are cached by the chart: filled on two threads first.
        if (in.kind != SearchKindValue)
            forEachSeries(first, last, [&chart](int s) { chart.series(s).statistics(); });
        for (int ch = first; ch <= last && !c.poll.cancelled(); ++ch)
            valueSearch(c, in.kind, ch, ch, c.lastPoint(), 0, in.option);
        break;
    }
    }
    out.cancelled = c.poll.cancelled();
    if (out.message == 0 && out.hits.empty()) out.message = 101;
    return out;
}

QStringList headers(int kind) {
    const QString third = kind == SearchKindAlarm                              ? MsgText(228)
                          : kind == SearchKindTime || kind == SearchKindMarker ? QString()
                                                                               : MsgText(200);
    QStringList h{QString(), MsgText(77), third};
    if (kind == SearchKindAlarm) h << QString();
    return h;
}

QStringList rowTexts(TrendView& view, const Input& in, const Result& result, size_t index) {
    if (index >= result.hits.size()) return {};
    const Hit& hit = result.hits[index];
    const ChartModel& chart = view.chart();
    const int vn = view.GetGroup();
    const double y = hit.channel > 0 ? chart.Y(hit.channel, hit.point) : 0;
    const bool hole = hit.channel > 0 && y == kHole;
    QStringList row;
    const bool cursorRow = in.kind == SearchKindMarker && in.item <= 1;
    row << QString::number(cursorRow ? qint64(std::trunc(chart.X(1, hit.point))) : hit.point - 1);
    row << (hole ? QString() : SampleTimeText(hit.point - 1, vn).dateTime);
    const auto valueText = [&] {
        return hole ? ChannelTexts::holeText(vn, hit.channel, hit.point)
                    : ChannelValueText(ScaleToEngineering(y, vn, hit.channel),
                                       ChannelTexts::formatCode(vn, hit.channel));
    };
    switch (in.kind) {
    case SearchKindTime:
        break;
    case SearchKindComment:
        row << chart.labels().item(hit.label).Text;
        break;
    case SearchKindAlarm: {
        const AlarmTable& table = alarmTable(vn);
        const int lo = in.combo1 == 0 ? 1 : in.combo1;
        const int hi = in.combo1 == 0 ? AlarmTable::kLevels : in.combo1;
        QStringList lines;
        for (int level = lo; level <= hi; ++level)
            if (const qint32 kind = table(level, hit.point, hit.channel))
                lines << MsgText(229) + QString::number(level) + QLatin1Char(' ') +
                             AlarmKindText(kind);
        row << lines.join(in.combo1 == 0 ? QStringLiteral(" ") : QStringLiteral("\r\n"));
        row << (hole ? SampleStatusText(vn, hit.channel, hit.point) : valueText());
        break;
    }
    default:
        row << valueText();
        break;
    }
    return row;
}

void jump(TrendView& view, const QStringList& row) {
    if (row.isEmpty()) return;
    ChartModel& chart = view.chart();
    bool ok = false;
    qint64 p = row[0].toLongLong(&ok);
    if (!ok) p = 0;
    chart.setIsBatched(true);
    chart.axisX().setOrigin(double(p));
    view.window().DateTemp = row.value(1);
    const ScrollBarState& bar = view.window().hsbTrendGraph;
    const qint32 points = std::max<qint32>(1, view.tables().PointCount);
    if (bar.Min != bar.Max) {
        const double span = chart.axisX().max() - chart.axisX().min();
        const double v = (double(p) - span / 2) / points * view.state().ScrollScale;
        const int value = v >= bar.Max ? bar.Max : v < 1 ? bar.Min : int(std::nearbyint(v));
        view.zoom().scroll(value);
    }
    chart.setIsBatched(false);
}

} // namespace Search
