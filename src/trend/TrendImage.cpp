#include "trend/TrendImage.h"

#include "platform/ChartGeometry.h"
#include "platform/ChartRenderer.h"
#include "trend/TrendView.h"

#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace {

// The side strips of ScaleType 2 left of the chart area: tag and unit on top, then the ticks
// and numbers of the slice of each channel's scale on show.
void paintStrips(TrendView& view, QPainter& painter, const QSizeF& size) {
    if (view.state().ScaleType != ScaleType::MultiScale) return;
    const ChartGeometry geometry(view.chart(), size, painter.device());
    const QRectF plot = geometry.plotArea();
    view.scales().setPlotHeight(plot.height());
    view.scales().MultiScaleDispResize();
    QFont font(QStringLiteral("Tahoma"));
    font.setPointSizeF(view.chart().axisY().font().pointSizeF());
    painter.save();
    painter.setFont(font);
    painter.setPen(Qt::black);
    const double w = TrendScaleAxes::kStripWidth;
    const double lineHeight = painter.fontMetrics().height();
    int i = 0;
    for (const MultiScaleStrip& strip : view.scales().strips()) {
        const double right = (i++ + 1) * w - 4;
        painter.drawLine(QPointF(right, plot.top()), QPointF(right, plot.bottom()));
        const QRectF head(right - w + 4, plot.top() - 2 * lineHeight - 4, w - 4, lineHeight);
        painter.drawText(head, Qt::AlignRight, strip.tag);
        painter.drawText(head.translated(0, lineHeight), Qt::AlignRight, strip.unit);
        for (const MultiScaleStrip::Tick& tick : strip.ticks) {
            const double y = plot.top() + tick.y;
            const double length = tick.text.isEmpty() ? 3 : 6;
            painter.drawLine(QPointF(right - length, y), QPointF(right, y));
            if (tick.text.isEmpty()) continue;
            const QRectF box(right - w + 2, y - lineHeight / 2, w - 10, lineHeight);
            painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, tick.text);
        }
    }
    painter.restore();
}

// The date line "Title" moves into a strip above the chart while the image is drawn, as the
// window shows it above its chart: a label over the plot's corner would cover the top Y label.
class TitleAboveChart {
public:
    explicit TitleAboveChart(ChartModel& chart) : chart_(chart), kept_(chart.header()) {
        title_ = chart.labels().item(QStringLiteral("Title"));
        if (!title_ || !title_->IsShown || title_->Text.isEmpty()) {
            title_ = nullptr;
            return;
        }
        ChartTitle& header = chart.header();
        header.IsShown = true;
        header.Text = title_->Text;
        header.Font = title_->Font;
        header.ForegroundColor = title_->Interior.ForegroundColor;
        title_->IsShown = false;
    }
    ~TitleAboveChart() {
        if (!title_) return;
        title_->IsShown = true;
        chart_.header() = kept_;
    }
    TitleAboveChart(const TitleAboveChart&) = delete;
    TitleAboveChart& operator=(const TitleAboveChart&) = delete;

private:
    ChartModel& chart_;
    ChartTitle kept_;
    ChartLabel* title_ = nullptr;
};

void paintChart(TrendView& view, QPainter& painter, const QSizeF& size) {
    const TitleAboveChart title(view.chart());
    ChartRenderer::render(view.chart(), painter, size);
    paintStrips(view, painter, size);
}

} // namespace

namespace TrendImage {

RenderPlan plan(TrendView& view, const QSizeF& size) {
    const TitleAboveChart title(view.chart());
    return ChartRenderer::prepare(view.chart(), size);
}

bool save(TrendView& view, const QString& path, const QSize& size) {
    if (size.isEmpty()) return false;
    if (QFileInfo(path).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0) {
        QPdfWriter writer(path);
        writer.setResolution(72);
        writer.setPageSize(QPageSize(QSizeF(size), QPageSize::Point));
        writer.setPageMargins(QMarginsF());
        QPainter painter;
        if (!painter.begin(&writer)) return false;
        paintChart(view, painter, QSizeF(size));
        return painter.end();
    }
    return image(view, size).save(path);
}

QImage image(TrendView& view, const QSize& size) {
    QImage out(size, QImage::Format_RGB32);
    out.fill(Qt::white);
    QPainter painter(&out);
    paintChart(view, painter, QSizeF(size));
    painter.end();
    return out;
}

} // namespace TrendImage
