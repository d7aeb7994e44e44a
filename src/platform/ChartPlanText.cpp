#include "platform/ChartPlanText.h"

#include "platform/ChartModel.h"
#include "platform/SeriesPlanner.h"

#include <cmath>

namespace ChartPlanText {

namespace {

constexpr double kPad = 3;

enum class Side { Bottom, Left, Right };

// Labels of one axis; a label that would overlap the one before it is left out.
void axisLabels(const ChartLayout::AxisPart& part, const ChartAxis& axis, Side side,
                const ChartMapper& mapper, QPaintDevice* device, RenderPlan& plan) {
    if (!part.labelsShown) return;
    const QRectF& plot = mapper.plot();
    const double away = ChartLayout::kTickLength + ChartLayout::kGap;
    bool any = false;
    double lastAt = 0, lastHalf = 0;
    for (const AxisScale::Tick& tick : part.ticks) {
        if (tick.text.isEmpty() || !tick.major) continue;
        const QSizeF size = chartTextSize(axis.font(), tick.text, device);
        RenderPlan::Text text;
        text.text = tick.text;
        text.font = axis.font();
        text.color = tick.color.isValid() ? tick.color : axis.labelColor();
        double at, half;
        if (side == Side::Bottom) {
            at = mapper.xToPixel(tick.value);
            half = size.width() / 2;
            text.origin = QPointF(at, plot.bottom() + away);
            text.rect = QRectF(-half, 0, size.width(), size.height());
            text.flags = Qt::AlignHCenter | Qt::AlignTop;
        } else {
            at = mapper.yToPixel(tick.value);
            half = size.height() / 2;
            const bool left = side == Side::Left;
            text.origin = QPointF(left ? plot.left() - away : plot.right() + away, at);
            text.rect = QRectF(left ? -size.width() : 0, -half, size.width(), size.height());
            text.flags = (left ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
        }
        if (any && std::fabs(at - lastAt) < half + lastHalf + 2) continue;
        any = true;
        lastAt = at;
        lastHalf = half;
        plan.texts.push_back(std::move(text));
    }
}

void axisTitle(const QRectF& area, const ChartAxis& axis, QPaintDevice* device, RenderPlan& plan) {
    if (area.isEmpty() || axis.title().isEmpty()) return;
    const QSizeF size = chartTextSize(axis.titleFont(), axis.title(), device);
    RenderPlan::Text text;
    text.origin = area.center();
    text.rect = QRectF(-size.width() / 2, -size.height() / 2, size.width(), size.height());
    text.text = axis.title();
    text.font = axis.titleFont();
    text.color = axis.labelColor();
    text.rotation = axis.titleRotation();
    plan.texts.push_back(std::move(text));
}

QPen borderPen(Chart::BorderType type, int width, const QColor& color) {
    return type == Chart::BorderType::None ? QPen(Qt::NoPen) : QPen(color, std::max(width, 1));
}

void titleText(const QRectF& area, const ChartTitle& title, RenderPlan& plan) {
    if (area.isEmpty()) return;
    RenderPlan::Text text;
    text.origin = area.topLeft();
    text.rect = QRectF(QPointF(0, 0), area.size());
    text.text = title.Text;
    text.font = title.Font;
    text.color = title.ForegroundColor;
    text.background = title.BackgroundColor;
    text.border = borderPen(title.BorderType, 1, title.ForegroundColor);
    plan.texts.push_back(std::move(text));
}

// Pixel position of a label's attachment; false when it is not on show.
bool attachPoint(const ChartModel& model, const ChartLabel& label, const ChartMapper& mapper,
                 QPointF& at) {
    switch (label.AttachMethod) {
    case Chart::AttachMethod::Coord:
        at = label.AttachCoord;
        return true;
    case Chart::AttachMethod::DataCoord:
        at = mapper.dataToPixel(label.AttachDataCoord.x(), label.AttachDataCoord.y());
        break;
    case Chart::AttachMethod::DataIndex: {
        const int s = label.AttachDataIndex.Series;
        const qsizetype p = label.AttachDataIndex.Point;
        if (s < 1 || s > model.seriesCount() || !model.series(s).isShown()) return false;
        const double y = model.Y(s, p);
        if (y == Chart::kHoleValue || p < 1 || p > model.pointCount(s)) return false;
        at = mapper.dataToPixel(model.X(s, p), y);
        break;
    }
    }
    return mapper.plot().adjusted(-0.5, -0.5, 0.5, 0.5).contains(at);
}

} // namespace

void axisTexts(const ChartModel& model, QPaintDevice* device, RenderPlan& plan) {
    const ChartLayout& layout = plan.layout;
    const ChartAxis& x = model.axis(Chart::Axis::X);
    const ChartAxis& y = model.axis(Chart::Axis::Y);
    const ChartAxis& y2 = model.axis(Chart::Axis::Y2);
    axisLabels(layout.x, x, Side::Bottom, layout.mapper, device, plan);
    axisLabels(layout.y, y, Side::Left, layout.mapper, device, plan);
    axisLabels(layout.y2, y2, Side::Right, layout.mapperY2, device, plan);
    if (layout.x.shown) axisTitle(layout.x.title, x, device, plan);
    if (layout.y.shown) axisTitle(layout.y.title, y, device, plan);
    if (layout.y2.shown) axisTitle(layout.y2.title, y2, device, plan);
}

void titles(const ChartModel& model, QPaintDevice*, RenderPlan& plan) {
    titleText(plan.layout.header, model.header(), plan);
    titleText(plan.layout.footer, model.footer(), plan);
}

void legend(const ChartModel& model, RenderPlan& plan) {
    const ChartLayout& layout = plan.layout;
    if (layout.legend.isEmpty()) return;
    const ChartLegend& legend = model.legend();
    plan.fills.push_back({layout.legend, legend.BackColor});
    if (legend.BorderType != Chart::BorderType::None) {
        const QRectF r = layout.legend.adjusted(0, 0, -1, -1);
        plan.frame.push_back(
            {QPen(legend.ForeColor, 0),
             {QLineF(r.topLeft(), r.topRight()), QLineF(r.topRight(), r.bottomRight()),
              QLineF(r.bottomRight(), r.bottomLeft()), QLineF(r.bottomLeft(), r.topLeft())},
             false});
    }
    auto text = [&](const QRectF& rect, const QString& s) {
        RenderPlan::Text t;
        t.origin = rect.topLeft();
        t.rect = QRectF(QPointF(0, 0), rect.size());
        t.text = s;
        t.font = legend.Font;
        t.color = legend.ForeColor;
        t.flags = Qt::AlignLeft | Qt::AlignVCenter;
        plan.texts.push_back(std::move(t));
    };
    if (!legend.Text.isEmpty()) text(layout.legendTitle, legend.Text);
    for (const ChartLayout::LegendEntry& entry : layout.legendEntries) {
        const ChartSeries& series = model.series(entry.series);
        const double y = std::floor(entry.swatch.center().y()) + 0.5;
        plan.frame.push_back({SeriesPlanner::linePen(series.style),
                              {QLineF(entry.swatch.left(), y, entry.swatch.right(), y)},
                              false});
        text(entry.text, series.label);
    }
}

QRectF anchoredBox(Chart::Anchor anchor, const QSizeF& size, double offset) {
    const double w = size.width(), h = size.height(), o = offset;
    using A = Chart::Anchor;
    switch (anchor) {
    case A::North:
        return QRectF(-w / 2, -o - h, w, h);
    case A::South:
        return QRectF(-w / 2, o, w, h);
    case A::East:
        return QRectF(o, -h / 2, w, h);
    case A::West:
        return QRectF(-o - w, -h / 2, w, h);
    case A::NorthEast:
        return QRectF(o, -o - h, w, h);
    case A::NorthWest:
        return QRectF(-o - w, -o - h, w, h);
    case A::SouthEast:
        return QRectF(o, o, w, h);
    case A::SouthWest:
        return QRectF(-o - w, o, w, h);
    case A::Center:
        break;
    }
    return QRectF(-w / 2, -h / 2, w, h);
}

void chartLabels(const ChartModel& model, QPaintDevice* device, RenderPlan& plan) {
    const ChartLabels& labels = model.labels();
    for (int i = 0; i < labels.count(); ++i) {
        const ChartLabel& label = labels.item(i);
        QPointF at;
        if (!label.IsShown || label.Text.isEmpty()) continue;
        if (!attachPoint(model, label, plan.layout.mapper, at)) continue;
        const QSizeF size =
            chartTextSize(label.Font, label.Text, device) + QSizeF(2 * kPad, 2 * kPad);
        RenderPlan::Text text;
        text.origin = at;
        text.rect = anchoredBox(label.Anchor, size, label.Offset);
        text.text = label.Text;
        text.font = label.Font;
        text.color = label.Interior.ForegroundColor;
        text.background = label.Interior.BackgroundColor;
        text.border =
            borderPen(label.Border.Type, label.Border.Width, label.Interior.ForegroundColor);
        text.rotation = label.Rotation;
        plan.texts.push_back(std::move(text));
    }
}

} // namespace ChartPlanText
