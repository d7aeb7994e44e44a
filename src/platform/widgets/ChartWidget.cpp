#include "platform/widgets/ChartWidget.h"

#include "platform/ChartModel.h"
#include "platform/ChartRenderer.h"

#include <QMouseEvent>
#include <QPainter>

ChartWidget::ChartWidget(ChartModel* model, QWidget* parent) : QWidget(parent), model_(model) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(model_, &ChartModel::changed, this, &ChartWidget::modelChanged);
}

ChartGeometry ChartWidget::chartGeometry() const {
    return ChartGeometry(*model_, QSizeF(size()));
}

void ChartWidget::setRubberBand(const QRect& band) {
    band_ = band.normalized();
    update();
}

void ChartWidget::setCursorLines(const std::vector<CursorLine>& lines) {
    cursors_ = lines;
    update();
}

void ChartWidget::modelChanged() {
    cacheValid_ = false;
    update();
}

void ChartWidget::resizeEvent(QResizeEvent*) {
    cacheValid_ = false;
}

void ChartWidget::paintEvent(QPaintEvent*) {
    // Nothing is drawn while the logic holds a batch: the model may be half changed.
    if (!cacheValid_ && !model_->IsBatched()) {
        const qreal ratio = devicePixelRatioF();
        cache_ = QImage(size() * ratio, QImage::Format_ARGB32_Premultiplied);
        cache_.setDevicePixelRatio(ratio);
        QPainter painter(&cache_);
        ChartRenderer::render(*model_, painter, QSizeF(size()));
        cacheValid_ = true;
    }
    QPainter painter(this);
    painter.drawImage(0, 0, cache_);
    if (!cursors_.empty()) {
        const ChartGeometry geometry = chartGeometry();
        const QRectF plot = geometry.plotArea();
        painter.setClipRect(plot);
        for (const CursorLine& line : cursors_) {
            const double x = std::floor(geometry.dataToPixel(line.x, 0).x()) + 0.5;
            painter.setPen(QPen(line.color, line.width));
            painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        }
        painter.setClipping(false);
    }
    if (!band_.isEmpty()) {
        painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
        painter.setBrush(QColor(0, 0, 0, 40));
        painter.drawRect(band_.adjusted(0, 0, -1, -1));
    }
}

QPointF ChartWidget::dataAt(const QPointF& pixel) const {
    return chartGeometry().pixelToData(pixel);
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
    Q_EMIT mousePressed(event->button(), event->position(), dataAt(event->position()),
                        event->modifiers());
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT mouseMoved(event->buttons(), event->position(), dataAt(event->position()),
                      event->modifiers());
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event) {
    Q_EMIT mouseReleased(event->button(), event->position(), dataAt(event->position()),
                         event->modifiers());
}

void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    Q_EMIT mouseDoubleClicked(event->button(), event->position(), dataAt(event->position()),
                              event->modifiers());
}
