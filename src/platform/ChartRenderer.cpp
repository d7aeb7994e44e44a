#include "platform/ChartRenderer.h"

#include "platform/ChartModel.h"
#include "platform/ChartPlanText.h"
#include "platform/SeriesPlanner.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

void planBackground(const ChartModel& model, RenderPlan& plan) {
    const ChartColors& colors = model.colors();
    const ChartLayout& layout = plan.layout;
    plan.fills.push_back({layout.bounds, colors.ControlBackColor});
    plan.fills.push_back({layout.chartArea, colors.ChartAreaBackColor});
    plan.fills.push_back({layout.plot, colors.PlotAreaBackColor});
}

// Grid lines across the plot at the ticks of one axis.
void planGrid(const ChartLayout::AxisPart& part, const ChartColors& colors, bool vertical,
              const ChartMapper& mapper, RenderPlan& plan) {
    if (!part.gridShown) return;
    RenderPlan::Lines minor{QPen(colors.SubGridColor, 0), {}, true};
    RenderPlan::Lines major{QPen(colors.GridColor, 0, Qt::DotLine), {}, true};
    const QRectF& plot = mapper.plot();
    for (const AxisScale::Tick& tick : part.ticks) {
        QLineF line;
        if (vertical) {
            const double x = std::floor(mapper.xToPixel(tick.value)) + 0.5;
            line = QLineF(x, plot.top(), x, plot.bottom());
        } else {
            const double y = std::floor(mapper.yToPixel(tick.value)) + 0.5;
            line = QLineF(plot.left(), y, plot.right(), y);
        }
        (tick.major ? major : minor).lines.push_back(line);
    }
    plan.grid.push_back(std::move(minor));
    plan.grid.push_back(std::move(major));
}

// Axis lines and tick marks; X below the plot, Y left of it, Y2 right of it.
void planAxisLines(const ChartLayout& layout, const QColor& color, RenderPlan& plan) {
    RenderPlan::Lines lines{QPen(color, 0), {}, false};
    const QRectF p = layout.plot.adjusted(0, 0, -1, -1);
    lines.lines.push_back(QLineF(p.topLeft(), p.topRight()));
    lines.lines.push_back(QLineF(p.bottomLeft(), p.bottomRight()));
    lines.lines.push_back(QLineF(p.topLeft(), p.bottomLeft()));
    lines.lines.push_back(QLineF(p.topRight(), p.bottomRight()));
    const double t = ChartLayout::kTickLength;
    auto ticks = [&](const ChartLayout::AxisPart& part, auto line) {
        if (!part.shown) return;
        for (const AxisScale::Tick& tick : part.ticks)
            lines.lines.push_back(line(tick.value, tick.major ? t : t / 2));
    };
    ticks(layout.x, [&](double v, double len) {
        const double x = std::floor(layout.mapper.xToPixel(v)) + 0.5;
        return QLineF(x, p.bottom(), x, p.bottom() + len);
    });
    ticks(layout.y, [&](double v, double len) {
        const double y = std::floor(layout.mapper.yToPixel(v)) + 0.5;
        return QLineF(p.left() - len, y, p.left(), y);
    });
    ticks(layout.y2, [&](double v, double len) {
        const double y = std::floor(layout.mapperY2.yToPixel(v)) + 0.5;
        return QLineF(p.right(), y, p.right() + len, y);
    });
    plan.frame.push_back(std::move(lines));
}

void drawSymbol(QPainter& painter, const RenderPlan::Symbol& symbol) {
    using Chart::SymbolShape;
    const double r = std::max(symbol.size, 1) / 2.0;
    const QPointF c = symbol.center;
    painter.setPen(QPen(symbol.color, 1));
    painter.setBrush(symbol.color);
    switch (symbol.shape) {
    case SymbolShape::None:
        return;
    case SymbolShape::Dot:
        painter.drawEllipse(c, r, r);
        break;
    case SymbolShape::Box:
        painter.drawRect(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r));
        break;
    case SymbolShape::Triangle:
        painter.drawPolygon(QPolygonF({c + QPointF(0, -r), c + QPointF(r, r), c + QPointF(-r, r)}));
        break;
    case SymbolShape::Diamond:
        painter.drawPolygon(QPolygonF(
            {c + QPointF(0, -r), c + QPointF(r, 0), c + QPointF(0, r), c + QPointF(-r, 0)}));
        break;
    case SymbolShape::VerticalLine:
        painter.drawLine(c + QPointF(0, -r), c + QPointF(0, r));
        break;
    case SymbolShape::HorizontalLine:
        painter.drawLine(c + QPointF(-r, 0), c + QPointF(r, 0));
        break;
    case SymbolShape::Star:
        painter.drawLine(c + QPointF(0, -r), c + QPointF(0, r));
        [[fallthrough]];
    case SymbolShape::Cross:
        painter.drawLine(c + QPointF(-r, -r), c + QPointF(r, r));
        painter.drawLine(c + QPointF(-r, r), c + QPointF(r, -r));
        break;
    case SymbolShape::Circle:
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(c, r, r);
        break;
    case SymbolShape::Square:
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r));
        break;
    }
}

// Min/max columns of a long series are one pixel wide and many; on a 32-bit image without a
// transform they are written straight into the pixels, which costs a fraction of the
// rasterizer's per-rectangle work. False when the painter is not of that kind.
bool fillColumnsDirect(QPainter& painter, const std::vector<QRect>& columns, const QColor& color) {
    auto* image = dynamic_cast<QImage*>(painter.device());
    if (!image || image->devicePixelRatio() != 1.0 || color.alpha() != 255 ||
        painter.transform().type() > QTransform::TxTranslate)
        return false;
    const QImage::Format format = image->format();
    if (format != QImage::Format_RGB32 && format != QImage::Format_ARGB32 &&
        format != QImage::Format_ARGB32_Premultiplied)
        return false;
    QRect bounds = image->rect();
    const QPoint offset(qRound(painter.transform().dx()), qRound(painter.transform().dy()));
    if (painter.hasClipping())
        bounds &= painter.clipBoundingRect().toAlignedRect().translated(offset);
    const QRgb pixel = color.rgb(); // opaque: the same value in all three formats
    uchar* bits = image->bits();
    const qsizetype stride = image->bytesPerLine();
    for (const QRect& column : columns) {
        const QRect r = column.translated(offset) & bounds;
        for (int y = r.top(); y <= r.bottom(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(bits + y * stride);
            for (int x = r.left(); x <= r.right(); ++x) line[x] = pixel;
        }
    }
    return true;
}

void paintSeries(QPainter& painter, const RenderPlan::Series& series) {
    if (!series.columns.empty() &&
        !fillColumnsDirect(painter, series.columns, series.pen.color())) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(Qt::NoPen);
        painter.setBrush(series.pen.color());
        painter.drawRects(series.columns.data(), int(series.columns.size()));
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(series.pen);
    for (const QPolygonF& line : series.polylines) painter.drawPolyline(line);
    if (!series.lonePoints.empty()) {
        QPen dot = series.pen;
        dot.setStyle(Qt::SolidLine);
        dot.setWidthF(series.pen.widthF() + 1.5);
        dot.setCapStyle(Qt::RoundCap);
        painter.setPen(dot);
        painter.drawPoints(series.lonePoints.data(), int(series.lonePoints.size()));
    }
    for (const RenderPlan::Symbol& symbol : series.symbols) drawSymbol(painter, symbol);
}

void paintLines(QPainter& painter, const std::vector<RenderPlan::Lines>& all, const QRectF& plot) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const RenderPlan::Lines& lines : all) {
        if (lines.lines.empty()) continue;
        if (lines.clipToPlot)
            painter.setClipRect(plot);
        else
            painter.setClipping(false);
        painter.setPen(lines.pen);
        painter.drawLines(lines.lines.data(), int(lines.lines.size()));
    }
    painter.setClipping(false);
}

void paintText(QPainter& painter, const RenderPlan::Text& text) {
    painter.save();
    painter.translate(text.origin);
    if (text.rotation != 0) painter.rotate(-text.rotation);
    if (text.background.isValid()) painter.fillRect(text.rect, text.background);
    if (text.border.style() != Qt::NoPen) {
        painter.setPen(text.border);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(text.rect);
    }
    painter.setFont(text.font);
    painter.setPen(text.color);
    painter.drawText(text.rect, text.flags, text.text);
    painter.restore();
}

} // namespace

RenderPlan ChartRenderer::prepare(const ChartModel& model, const QSizeF& size,
                                  QPaintDevice* device) {
    RenderPlan plan;
    plan.size = size;
    plan.layout = ChartLayout::compute(model, size, device);
    planBackground(model, plan);
    const ChartLayout& layout = plan.layout;
    // The circular type has a plan of its own; until it is drawn the plot stays empty.
    if (model.chartType() != Chart::kTypePolar) {
        planGrid(layout.x, model.colors(), true, layout.mapper, plan);
        planGrid(layout.y, model.colors(), false, layout.mapper, plan);
        planGrid(layout.y2, model.colors(), false, layout.mapperY2, plan);
        for (int s = 1; s <= model.seriesCount(); ++s)
            plan.series.push_back(SeriesPlanner::plan(model.series(s), layout.mapper));
        planAxisLines(layout, model.colors().AxisColor, plan);
        ChartPlanText::axisTexts(model, device, plan);
    }
    ChartPlanText::titles(model, device, plan);
    ChartPlanText::legend(model, plan);
    ChartPlanText::chartLabels(model, device, plan);
    return plan;
}

void ChartRenderer::paint(const RenderPlan& plan, QPainter& painter) {
    painter.save();
    for (const RenderPlan::Fill& fill : plan.fills) painter.fillRect(fill.rect, fill.color);
    const QRectF& plot = plan.layout.plot;
    paintLines(painter, plan.grid, plot);
    painter.setClipRect(plot);
    for (const RenderPlan::Series& series : plan.series) paintSeries(painter, series);
    painter.setClipping(false);
    paintLines(painter, plan.frame, plot);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    for (const RenderPlan::Text& text : plan.texts) paintText(painter, text);
    painter.restore();
}

void ChartRenderer::render(const ChartModel& model, QPainter& painter, const QSizeF& size) {
    paint(prepare(model, size, painter.device()), painter);
}

QImage ChartRenderer::renderImage(const ChartModel& model, const QSize& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    render(model, painter, QSizeF(size));
    return image;
}
