#include "trend/widgets/MultiScaleStrip.h"

#include <QPainter>

namespace {

constexpr int kMajorTick = 6;
constexpr int kMinorTick = 3;

} // namespace

MultiScaleStripWidget::MultiScaleStripWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void MultiScaleStripWidget::setStrip(const MultiScaleStrip& strip, double plotTop,
                                     double plotHeight, int pointSize) {
    strip_ = strip;
    plotTop_ = plotTop;
    plotHeight_ = plotHeight;
    pointSize_ = pointSize > 0 ? pointSize : 8;
    update();
}

void MultiScaleStripWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QFont font(QStringLiteral("Tahoma"));
    font.setPointSize(pointSize_);
    p.setFont(font);
    p.setPen(Qt::black);
    const int right = width() - 2;
    const QFontMetrics fm(font);
    // Tag and unit stand above the plot, within the strip's width.
    const QRect head(0, 0, width(), int(plotTop_) - 2);
    const QString head2 =
        strip_.unit.isEmpty() ? strip_.tag : strip_.tag + QLatin1Char('\n') + strip_.unit;
    p.drawText(head, Qt::AlignHCenter | Qt::AlignBottom, head2);
    p.drawLine(QPointF(right + 0.5, plotTop_), QPointF(right + 0.5, plotTop_ + plotHeight_));
    for (const MultiScaleStrip::Tick& tick : strip_.ticks) {
        const double y = std::floor(plotTop_ + tick.y) + 0.5;
        const int length = tick.text.isEmpty() ? kMinorTick : kMajorTick;
        p.drawLine(QPointF(right - length, y), QPointF(right, y));
        if (tick.text.isEmpty()) continue;
        const QString text = fm.elidedText(tick.text, Qt::ElideLeft, right - kMajorTick - 2);
        const QRectF box(0, y - fm.height() / 2.0, right - kMajorTick - 2, fm.height());
        p.drawText(box, Qt::AlignRight | Qt::AlignVCenter, text);
    }
}
