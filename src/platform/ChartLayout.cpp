#include "platform/ChartLayout.h"

#include "platform/ChartModel.h"

#include <QFontMetricsF>

#include <algorithm>

QSizeF chartTextSize(const QFont& font, const QString& text, QPaintDevice* device) {
    if (text.isEmpty()) return {0, 0};
    const QFontMetricsF metrics = device ? QFontMetricsF(font, device) : QFontMetricsF(font);
    return metrics.boundingRect(QRectF(0, 0, 1e6, 1e6), Qt::AlignLeft | Qt::AlignTop, text).size();
}

namespace {

constexpr double kMargin = 6;

using AxisPart = ChartLayout::AxisPart;

AxisPart axisPart(const ChartAxis& axis) {
    AxisPart part;
    part.shown = axis.isShown();
    part.gridShown = axis.isGridShown();
    part.labelsShown = axis.isShown() && axis.areLabelsShown();
    if (part.shown || part.gridShown)
        part.ticks = AxisScale::ticks(axis, axis.min(), axis.max(), axis.labelInterval());
    return part;
}

// Width of the widest label and height of the tallest.
QSizeF largestLabel(const AxisPart& part, const QFont& font, QPaintDevice* device) {
    QSizeF largest(0, 0);
    if (!part.labelsShown) return largest;
    for (const AxisScale::Tick& tick : part.ticks) {
        const QSizeF size = chartTextSize(font, tick.text, device);
        largest = largest.expandedTo(size);
    }
    return largest;
}

// Extent of a title across its axis (rotated titles lie on their side).
QSizeF titleSize(const ChartAxis& axis, QPaintDevice* device) {
    const QSizeF size = chartTextSize(axis.titleFont(), axis.title(), device);
    const bool sideways = axis.titleRotation() % 180 != 0;
    return sideways ? size.transposed() : size;
}

// Room beside the plot for a vertical axis: ticks, labels, title.
double verticalAxisWidth(const AxisPart& part, const ChartAxis& axis, QPaintDevice* device) {
    if (!part.shown) return 0;
    double width = ChartLayout::kTickLength + ChartLayout::kGap;
    width += largestLabel(part, axis.font(), device).width();
    const QSizeF title = titleSize(axis, device);
    if (title.width() > 0) width += ChartLayout::kGap + title.width();
    return width;
}

QRectF takeTop(QRectF& r, double h) {
    const QRectF part(r.left(), r.top(), r.width(), h);
    r.setTop(r.top() + h);
    return part;
}

QRectF takeBottom(QRectF& r, double h) {
    const QRectF part(r.left(), r.bottom() - h, r.width(), h);
    r.setBottom(r.bottom() - h);
    return part;
}

QRectF titleStrip(QRectF& r, const ChartTitle& title, bool top, QPaintDevice* device) {
    if (!title.IsShown || title.Text.isEmpty()) return {};
    const double h = chartTextSize(title.Font, title.Text, device).height() + 2 * kMargin;
    return top ? takeTop(r, h) : takeBottom(r, h);
}

void layoutLegend(ChartLayout& layout, const ChartModel& model, QRectF& r, QPaintDevice* device) {
    const ChartLegend& legend = model.legend();
    if (!legend.IsShow) return;
    const QFontMetricsF metrics =
        device ? QFontMetricsF(legend.Font, device) : QFontMetricsF(legend.Font);
    const double line = metrics.height(), swatch = 2 * line, pad = kMargin;
    const bool vertical = legend.Orientation == Qt::Vertical;
    QSizeF heading = chartTextSize(legend.Font, legend.Text, device);
    double width = heading.width(), height = heading.height(), run = 0;
    std::vector<std::pair<int, double>> entries;
    for (int s = 1; s <= model.seriesCount(); ++s) {
        const ChartSeries& series = model.series(s);
        if (!series.isShown() || series.label.isEmpty()) continue;
        const double w = swatch + pad + metrics.horizontalAdvance(series.label);
        entries.emplace_back(s, w);
        width = vertical ? std::max(width, w) : width;
        run += vertical ? line : w + 2 * pad;
    }
    if (entries.empty() && legend.Text.isEmpty()) return;
    width = vertical ? width + 2 * pad : std::max(width, run) + 2 * pad;
    height = vertical ? height + run + 2 * pad : height + line + 2 * pad;
    width = std::min(width, r.width());
    height = std::min(height, r.height());
    switch (legend.Anchor) {
    case Chart::Anchor::West:
    case Chart::Anchor::NorthWest:
    case Chart::Anchor::SouthWest:
        layout.legend = QRectF(r.left(), r.center().y() - height / 2, width, height);
        r.setLeft(r.left() + width + kMargin);
        break;
    case Chart::Anchor::North:
        layout.legend = QRectF(r.center().x() - width / 2, r.top(), width, height);
        r.setTop(r.top() + height + kMargin);
        break;
    case Chart::Anchor::South:
        layout.legend = QRectF(r.center().x() - width / 2, r.bottom() - height, width, height);
        r.setBottom(r.bottom() - height - kMargin);
        break;
    default:
        layout.legend = QRectF(r.right() - width, r.center().y() - height / 2, width, height);
        r.setRight(r.right() - width - kMargin);
        break;
    }
    layout.legendTitle = QRectF(layout.legend.topLeft() + QPointF(pad, pad), heading);
    QPointF at(layout.legend.left() + pad,
               layout.legendTitle.bottom() + (heading.isEmpty() ? 0 : 2));
    if (heading.isEmpty()) at.setY(layout.legend.top() + pad);
    for (const auto& [s, w] : entries) {
        const QRectF sw(at.x(), at.y(), swatch, line);
        layout.legendEntries.push_back({s, sw, QRectF(sw.right() + pad, at.y(), w - swatch, line)});
        at = vertical ? QPointF(at.x(), at.y() + line) : QPointF(at.x() + w + 2 * pad, at.y());
    }
}

} // namespace

ChartLayout ChartLayout::compute(const ChartModel& model, const QSizeF& size,
                                 QPaintDevice* device) {
    ChartLayout layout;
    layout.bounds = QRectF(QPointF(0, 0), size);
    QRectF r = layout.bounds;
    layout.header = titleStrip(r, model.header(), true, device);
    layout.footer = titleStrip(r, model.footer(), false, device);
    r.adjust(kMargin, kMargin, -kMargin, -kMargin);
    layoutLegend(layout, model, r, device);
    const QMargins m = model.chartAreaMargins();
    r.adjust(m.left(), m.top(), -m.right(), -m.bottom());
    layout.chartArea = r;

    const ChartAxis& ax = model.axis(Chart::Axis::X);
    const ChartAxis& ay = model.axis(Chart::Axis::Y);
    const ChartAxis& ay2 = model.axis(Chart::Axis::Y2);
    layout.x = axisPart(ax);
    layout.y = axisPart(ay);
    layout.y2 = axisPart(ay2);
    const QSizeF xLabel = largestLabel(layout.x, ax.font(), device);
    const QSizeF yLabel = largestLabel(layout.y, ay.font(), device);
    const QSizeF xTitle = titleSize(ax, device);
    QRectF plot = r;
    plot.setLeft(r.left() + verticalAxisWidth(layout.y, ay, device));
    plot.setRight(r.right() - std::max(verticalAxisWidth(layout.y2, ay2, device),
                                       layout.x.labelsShown ? xLabel.width() / 2 : 0.0));
    plot.setTop(r.top() + std::max(yLabel.height() / 2, kMargin));
    if (layout.x.shown) {
        double h = kTickLength + kGap + xLabel.height();
        if (xTitle.height() > 0) h += kGap + xTitle.height();
        plot.setBottom(r.bottom() - h);
    } else {
        plot.setBottom(r.bottom() - yLabel.height() / 2);
    }
    if (plot.width() < 1) plot.setWidth(1);
    if (plot.height() < 1) plot.setHeight(1);
    layout.plot = plot;

    if (xTitle.height() > 0)
        layout.x.title =
            QRectF(plot.left(), r.bottom() - xTitle.height(), plot.width(), xTitle.height());
    const QSizeF yTitle = titleSize(ay, device), y2Title = titleSize(ay2, device);
    if (yTitle.width() > 0)
        layout.y.title = QRectF(r.left(), plot.top(), yTitle.width(), plot.height());
    if (y2Title.width() > 0 && layout.y2.shown)
        layout.y2.title =
            QRectF(r.right() - y2Title.width(), plot.top(), y2Title.width(), plot.height());

    const AxisRange xRange = AxisRange::of(ax);
    layout.mapper = ChartMapper(plot, xRange, AxisRange::of(ay));
    layout.mapperY2 = ChartMapper(plot, xRange, AxisRange::of(ay2));
    return layout;
}
