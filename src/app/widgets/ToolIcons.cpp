#include "app/widgets/ToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr int kSize = 64;
const QColor kInk(0x33, 0x44, 0x55);
const QColor kBlue(0x2f, 0x6f, 0xb8);
const QColor kPaper(0xfa, 0xfb, 0xfd);

// A small window: frame, title bar and a trend line inside.
void drawWindow(QPainter& p, const QRectF& r) {
    p.setPen(QPen(kInk, 3));
    p.setBrush(kPaper);
    p.drawRoundedRect(r, 3, 3);
    p.fillRect(QRectF(r.left() + 1.5, r.top() + 1.5, r.width() - 3, 8), kBlue);
    QPainterPath line;
    const double y = r.center().y() + 6;
    line.moveTo(r.left() + 6, y);
    line.lineTo(r.left() + r.width() * 0.35, y - r.height() * 0.2);
    line.lineTo(r.left() + r.width() * 0.6, y + r.height() * 0.1);
    line.lineTo(r.right() - 6, y - r.height() * 0.25);
    p.setPen(QPen(QColor(0xd0, 0x30, 0x40), 3));
    p.setBrush(Qt::NoBrush);
    p.drawPath(line);
}

void drawBadge(QPainter& p, const QString& text, const QColor& colour) {
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawEllipse(QRectF(8, 8, 48, 48));
    QFont font = p.font();
    font.setBold(true);
    font.setPixelSize(34);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(8, 8, 48, 48), Qt::AlignCenter, text);
}

void drawNetwork(QPainter& p) {
    drawWindow(p, QRectF(4, 6, 34, 28));
    drawWindow(p, QRectF(26, 30, 34, 28));
    p.setPen(QPen(QColor(0x20, 0x90, 0x50), 4));
    p.drawLine(QPointF(18, 40), QPointF(18, 52));
    p.drawLine(QPointF(18, 52), QPointF(24, 52));
    p.drawLine(QPointF(46, 24), QPointF(46, 12));
    p.drawLine(QPointF(46, 12), QPointF(40, 12));
}

void drawClock(QPainter& p) {
    p.setPen(QPen(kInk, 4));
    p.setBrush(kPaper);
    p.drawEllipse(QRectF(8, 8, 48, 48));
    p.setPen(QPen(kBlue, 4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(32, 32), QPointF(32, 16));
    p.drawLine(QPointF(32, 32), QPointF(44, 38));
}

void draw(QPainter& p, int index) {
    switch (index) {
    case 1:
        drawWindow(p, QRectF(6, 10, 46, 42));
        p.setPen(QPen(QColor(0x20, 0x90, 0x50), 6, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(50, 6), QPointF(50, 26));
        p.drawLine(QPointF(40, 16), QPointF(60, 16));
        break;
    case 2:
        drawWindow(p, QRectF(4, 8, 27, 48));
        drawWindow(p, QRectF(33, 8, 27, 48));
        break;
    case 3:
        drawWindow(p, QRectF(4, 4, 56, 27));
        drawWindow(p, QRectF(4, 33, 56, 27));
        break;
    case 4:
        drawNetwork(p);
        break;
    case 5:
        drawClock(p);
        break;
    case 7:
        drawBadge(p, QStringLiteral("i"), kBlue);
        break;
    default:
        drawBadge(p, QStringLiteral("?"), QColor(0x20, 0x90, 0x50));
        break;
    }
}

} // namespace

QIcon ToolIcons::mainButton(int index) {
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    draw(p, index);
    p.end();
    return QIcon(pixmap);
}
