#include "trend/widgets/TrendMouseBand.h"

#include "platform/ChartGeometry.h"
#include "platform/widgets/ChartWidget.h"
#include "trend/TrendView.h"

#include <cmath>

namespace {

// A right drag shorter than this is a click that asks for the popup menu.
constexpr double kDragDistance = 4;

QPointF clampTo(const QRectF& r, const QPointF& p) {
    return {qBound(r.left(), p.x(), r.right()), qBound(r.top(), p.y(), r.bottom())};
}

} // namespace

TrendMouseBand::TrendMouseBand(TrendView& trend, ChartWidget& chart, QObject* parent)
    : QObject(parent), trend_(trend), chart_(chart) {
    connect(&chart_, &ChartWidget::mousePressed, this,
            [this](Qt::MouseButton b, const QPointF& px, const QPointF&, Qt::KeyboardModifiers) {
                pressed(b, px);
            });
    connect(&chart_, &ChartWidget::mouseMoved, this,
            [this](Qt::MouseButtons, const QPointF& px, const QPointF&, Qt::KeyboardModifiers) {
                moved(px);
            });
    connect(&chart_, &ChartWidget::mouseReleased, this,
            [this](Qt::MouseButton b, const QPointF& px, const QPointF&, Qt::KeyboardModifiers) {
                released(b, px);
            });
}

void TrendMouseBand::pressed(Qt::MouseButton button, const QPointF& pixel) {
    if (active()) return; // a second button while a band runs is ignored
    const QRectF plot = chart_.chartGeometry().plotArea();
    if (!plot.contains(pixel)) return;
    plot_ = plot;
    if (button == Qt::LeftButton) {
        if (trend_.zoom().canStartBand(false)) start(Kind::X, pixel);
    } else if (button == Qt::RightButton) {
        rightPending_ = true;
        rightFrom_ = pixel;
    }
}

void TrendMouseBand::start(Kind kind, const QPointF& pixel) {
    kind_ = kind;
    from_ = to_ = clampTo(plot_, pixel);
    drawBand();
}

void TrendMouseBand::moved(const QPointF& pixel) {
    if (rightPending_ && !active()) {
        const QPointF d = pixel - rightFrom_;
        if (std::hypot(d.x(), d.y()) < kDragDistance) return;
        rightPending_ = false;
        if (!trend_.zoom().canStartBand(true)) return;
        start(Kind::Y, rightFrom_);
    }
    if (!active()) return;
    // A position outside the plot is not taken: the band keeps its last edge.
    if (!plot_.contains(pixel)) return;
    to_ = pixel;
    drawBand();
}

void TrendMouseBand::drawBand() {
    QRectF band;
    if (kind_ == Kind::X)
        band = QRectF(QPointF(from_.x(), plot_.top()), QPointF(to_.x(), plot_.bottom()));
    else
        band = QRectF(QPointF(plot_.left(), from_.y()), QPointF(plot_.right(), to_.y()));
    chart_.setRubberBand(band.normalized().toAlignedRect());
}

void TrendMouseBand::released(Qt::MouseButton button, const QPointF& pixel) {
    if (button == Qt::RightButton && rightPending_) {
        rightPending_ = false;
        Q_EMIT popupRequested(pixel.toPoint());
        return;
    }
    const bool mine = (kind_ == Kind::X && button == Qt::LeftButton) ||
                      (kind_ == Kind::Y && button == Qt::RightButton);
    if (!mine) return;
    if (plot_.contains(pixel)) to_ = pixel;
    finish();
}

void TrendMouseBand::finish() {
    const Kind kind = kind_;
    clear();
    const ChartGeometry geometry = chart_.chartGeometry();
    bool taken = false;
    if (kind == Kind::X) {
        const auto pointAt = [&](const QPointF& px) {
            const ChartGeometry::Hit hit = geometry.nearestPoint(px, ChartGeometry::Focus::X);
            if (hit.series > 0) return qint32(hit.point);
            return qint32(std::lround(geometry.pixelToData(px).x())) + 1;
        };
        taken = trend_.zoom().zoomX(pointAt(from_), pointAt(to_));
    } else {
        taken = trend_.zoom().zoomY(geometry.pixelToData(from_).y(), geometry.pixelToData(to_).y());
    }
    if (taken) Q_EMIT zoomed();
}

void TrendMouseBand::clear() {
    kind_ = Kind::None;
    chart_.setRubberBand(QRect());
}
