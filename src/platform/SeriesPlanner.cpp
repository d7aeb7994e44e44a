#include "platform/SeriesPlanner.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace SeriesPlanner {

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr qsizetype kChunk = 65536;

// Pixel y kept near the plot, so that a far value still gives a line of the right slope at
// the plot's edge without handing the painter huge coordinates.
double clampY(double y, const QRectF& plot) {
    const double room = 10 * std::max(plot.height(), 1.0);
    return std::clamp(y, plot.top() - room, plot.bottom() + room);
}

struct Column {
    double min = kInf;
    double max = -kInf;
    quint8 flags = 0;
};

// Points inside the X range, with one more on each side so that lines run to the edge.
std::pair<qsizetype, qsizetype> visiblePoints(const ChartSeries& series, const ChartMapper& m) {
    const double lo = std::min(m.xRange().min, m.xRange().max);
    const double hi = std::max(m.xRange().min, m.xRange().max);
    const double n = double(series.count());
    const double first = std::clamp(std::floor(lo) - 1, 0.0, n - 1);
    const double last = std::clamp(std::ceil(hi) + 1, 0.0, n - 1);
    return {qsizetype(first), qsizetype(last)};
}

// Reads points first..last in pieces and hands each (index, value) to f.
template <typename F>
void forEachPoint(const ChartSeries& series, qsizetype first, qsizetype last, F f) {
    std::vector<double> buffer(size_t(std::min(kChunk, last - first + 1)));
    for (qsizetype from = first; from <= last; from += kChunk) {
        const qsizetype n = std::min(kChunk, last - from + 1);
        series.values(from, n, buffer.data());
        for (qsizetype i = 0; i < n; ++i) f(from + i, buffer[size_t(i)]);
    }
}

void rawLines(const ChartSeries& series, const ChartMapper& m, qsizetype first, qsizetype last,
              RenderPlan::Series& out) {
    QPolygonF line;
    auto flush = [&] {
        if (line.size() == 1) out.lonePoints.push_back(line.front());
        if (line.size() > 1) out.polylines.push_back(line);
        line.clear();
    };
    const bool explicitX = series.hasExplicitX();
    forEachPoint(series, first, last, [&](qsizetype i, double v) {
        if (v == Chart::kHoleValue || !std::isfinite(v)) {
            flush();
            return;
        }
        const double x = m.xToPixel(explicitX ? series.x(i) : double(i));
        line.append(QPointF(x, clampY(m.yToPixel(v), m.plot())));
    });
    flush();
}

void mergeColumn(std::vector<Column>& columns, int c, double lo, double hi, quint8 flags) {
    if (c < 0 || c >= int(columns.size())) return;
    Column& col = columns[size_t(c)];
    col.min = std::min(col.min, lo);
    col.max = std::max(col.max, hi);
    col.flags |= flags;
}

// Min and max of the points under each pixel column, from the pyramid where blocks are finer
// than a pixel, else from the points themselves.
std::vector<Column> columnsOf(const ChartSeries& series, const ChartMapper& m, qsizetype first,
                              qsizetype last) {
    const QRectF& plot = m.plot();
    std::vector<Column> columns(size_t(std::ceil(plot.width())));
    auto columnOf = [&](double index) { return int(std::floor(m.xToPixel(index) - plot.left())); };
    const double perPixel = double(last - first + 1) / plot.width();
    const MinMaxPyramid& pyramid = series.pyramid();
    const int level = pyramid.levelForSpan(perPixel);
    if (level < 0) {
        forEachPoint(series, first, last, [&](qsizetype i, double v) {
            if (v == Chart::kHoleValue)
                mergeColumn(columns, columnOf(double(i)), kInf, -kInf, MinMaxPyramid::kHasHole);
            else
                mergeColumn(columns, columnOf(double(i)), v, v, MinMaxPyramid::kHasValue);
        });
        return columns;
    }
    const MinMaxPyramid::Level& l = pyramid.level(level);
    for (qsizetype b = first / l.blockSize; b <= last / l.blockSize; ++b) {
        mergeColumn(columns, columnOf(double(b * l.blockSize)), l.min[size_t(b)], l.max[size_t(b)],
                    l.flags[size_t(b)]);
    }
    return columns;
}

// One filled column per pixel; neighbours without holes are made to touch, so that the
// columns read as a line.
void envelope(const ChartSeries& series, const ChartMapper& m, qsizetype first, qsizetype last,
              RenderPlan::Series& out) {
    const std::vector<Column> columns = columnsOf(series, m, first, last);
    const QRectF& plot = m.plot();
    const int width = std::max(series.style.width, 1);
    const int left = int(std::floor(plot.left())) - (width - 1) / 2;
    bool previous = false;
    double previousTop = 0, previousBottom = 0;
    out.columns.reserve(columns.size());
    for (size_t c = 0; c < columns.size(); ++c) {
        const Column& col = columns[c];
        if (!(col.flags & MinMaxPyramid::kHasValue)) {
            previous = false;
            continue;
        }
        double top = clampY(m.yToPixel(col.max), plot);
        double bottom = clampY(m.yToPixel(col.min), plot);
        if (top > bottom) std::swap(top, bottom);
        const bool hole = col.flags & MinMaxPyramid::kHasHole;
        const double ownTop = top, ownBottom = bottom;
        if (previous && !hole) {
            top = std::min(top, previousBottom);
            bottom = std::max(bottom, previousTop);
        }
        const int y0 = int(std::floor(top)), y1 = int(std::floor(bottom));
        out.columns.emplace_back(left + int(c), y0, width, y1 - y0 + 1);
        previous = !hole;
        previousTop = ownTop;
        previousBottom = ownBottom;
    }
}

void symbols(const ChartSeries& series, const ChartMapper& m, qsizetype first, qsizetype last,
             RenderPlan::Series& out) {
    const SeriesStyle& style = series.style;
    auto at = [&](qsizetype i, double v) {
        return QPointF(m.xToPixel(series.x(i)), clampY(m.yToPixel(v), m.plot()));
    };
    const bool everyPoint =
        style.symbol != Chart::SymbolShape::None && double(last - first + 1) <= m.plot().width();
    if (everyPoint) {
        const QColor color = style.symbolColor.isValid() ? style.symbolColor : style.color;
        forEachPoint(series, first, last, [&](qsizetype i, double v) {
            if (v != Chart::kHoleValue && !series.pointStyles().contains(i))
                out.symbols.push_back({at(i, v), style.symbol, style.symbolSize, color});
        });
    }
    const auto& styles = series.pointStyles();
    for (auto it = styles.lower_bound(first); it != styles.end() && it->first <= last; ++it) {
        const double v = series.y(it->first);
        if (v != Chart::kHoleValue)
            out.symbols.push_back(
                {at(it->first, v), it->second.symbol, it->second.symbolSize, it->second.color});
    }
}

} // namespace

QPen linePen(const SeriesStyle& style) {
    QPen pen(style.color, std::max(style.width, 1));
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    using P = Chart::LinePattern;
    static const std::map<P, Qt::PenStyle> styles = {{P::None, Qt::NoPen},
                                                     {P::LongDash, Qt::DashLine},
                                                     {P::Dotted, Qt::DotLine},
                                                     {P::DashDot, Qt::DashDotLine},
                                                     {P::DashDotDot, Qt::DashDotDotLine}};
    if (style.pattern == P::ShortDash)
        pen.setDashPattern({2, 2});
    else if (const auto it = styles.find(style.pattern); it != styles.end())
        pen.setStyle(it->second);
    return pen;
}

RenderPlan::Series plan(const ChartSeries& series, const ChartMapper& m) {
    RenderPlan::Series out;
    out.pen = linePen(series.style);
    if (!series.isShown() || series.count() == 0) return out;
    if (series.hasExplicitX()) {
        // Short series with X of their own (cursor lines): every point as it is.
        if (out.pen.style() != Qt::NoPen) rawLines(series, m, 0, series.count() - 1, out);
        symbols(series, m, 0, series.count() - 1, out);
        return out;
    }
    const auto [first, last] = visiblePoints(series, m);
    if (out.pen.style() != Qt::NoPen) {
        if (double(last - first + 1) / m.plot().width() <= kRawPointsPerPixel)
            rawLines(series, m, first, last, out);
        else
            envelope(series, m, first, last, out);
    }
    symbols(series, m, first, last, out);
    return out;
}

} // namespace SeriesPlanner
