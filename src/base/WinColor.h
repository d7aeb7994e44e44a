#pragma once

#include <QColor>
#include <QtGlobal>

// Colours of the system's settings and records are 0x00BBGGRR values (red in the low byte).
// Every such value passes through these two helpers; QColor(uint) would read it as 0xAARRGGBB.
namespace WinColor {

inline QColor toQColor(quint32 bgr) {
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

inline quint32 fromQColor(const QColor& color) {
    return quint32(color.red()) | (quint32(color.green()) << 8) | (quint32(color.blue()) << 16);
}

// The value of RGB(red, green, blue).
constexpr quint32 rgb(int red, int green, int blue) {
    return quint32(red & 0xFF) | (quint32(green & 0xFF) << 8) | (quint32(blue & 0xFF) << 16);
}

} // namespace WinColor
