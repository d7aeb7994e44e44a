#include "trend/widgets/TrendIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr int kSize = 24;
const QColor kInk(40, 60, 110);

// A magnifying glass; `inner` draws into the lens.
template <typename F> void magnifier(QPainter& p, F inner) {
    p.setPen(QPen(kInk, 2));
    p.setBrush(QColor(225, 235, 250));
    p.drawEllipse(QRectF(2, 2, 14, 14));
    p.setPen(QPen(kInk, 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(14.5, 14.5), QPointF(21, 21));
    p.setPen(QPen(kInk, 1.6));
    inner(p);
}

void drawClock(QPainter& p) {
    p.setPen(QPen(kInk, 2));
    p.setBrush(Qt::white);
    p.drawEllipse(QRectF(3, 3, 18, 18));
    p.drawLine(QPointF(12, 12), QPointF(12, 6.5));
    p.drawLine(QPointF(12, 12), QPointF(16, 14));
}

void drawYAxis(QPainter& p) {
    p.setPen(QPen(kInk, 2));
    p.drawLine(QPointF(7, 2), QPointF(7, 22));
    for (int y = 4; y <= 20; y += 4) p.drawLine(QPointF(3, y), QPointF(7, y));
    p.setPen(QPen(QColor(200, 40, 40), 1.6));
    p.drawPolyline(QPolygonF({QPointF(9, 18), QPointF(13, 10), QPointF(17, 14), QPointF(22, 5)}));
}

void drawXLabels(QPainter& p) {
    p.setPen(QPen(kInk, 2));
    p.drawLine(QPointF(2, 9), QPointF(22, 9));
    for (int x = 4; x <= 20; x += 8) p.drawLine(QPointF(x, 9), QPointF(x, 13));
    p.setPen(QPen(kInk, 1.4));
    for (int x = 2; x <= 18; x += 8) p.drawLine(QPointF(x, 17), QPointF(x + 4, 17));
    for (int x = 2; x <= 18; x += 8) p.drawLine(QPointF(x, 20), QPointF(x + 3, 20));
}

} // namespace

QIcon Toolbar2Icon(int command) {
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    switch (command) {
    case 1: // back one zoom level
        magnifier(p, [](QPainter& q) { q.drawLine(QPointF(5.5, 9), QPointF(12.5, 9)); });
        break;
    case 2: // the whole recording
        magnifier(p, [](QPainter& q) {
            q.setBrush(Qt::NoBrush);
            q.drawRect(QRectF(5.5, 5.5, 7, 7));
        });
        break;
    case 11:
        drawYAxis(p);
        break;
    case 12:
        drawClock(p);
        break;
    case 13:
        drawXLabels(p);
        break;
    default:
        return QIcon();
    }
    p.end();
    return QIcon(pixmap);
}
