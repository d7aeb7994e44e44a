#include "recording/SampleRules.h"

#include "base/NumberText.h"

#include <cmath>

namespace SampleRules {

QString plainText(qint16 v, int decimals) {
    switch (v) {
    case 32761:
    case 32762:
    case 32763:
        return QString();
    case 32764:
        return QStringLiteral("CAL ERR");
    case 32765:
        return QStringLiteral("RJ ERR");
    case 32766:
        return QStringLiteral("BURN");
    case 32767:
        return QStringLiteral("OVER");
    case -32768:
        return QStringLiteral("OVERFLW");
    case -32767:
        return QStringLiteral("UNDER");
    case -32766:
    case -32765:
        return QStringLiteral("N.DATA");
    case -32764:
    case -32763:
    case -32762:
    case -32761:
        return QString();
    default:
        break;
    }
    if (decimals >= 0 && decimals <= 4) return NumberText::scaledIntegerText(v, decimals);
    // Other decimals show no decimal places, but the division still happens in single precision;
    // the pattern rounds halves away from zero.
    const float value = float(v) / std::pow(10.0f, float(decimals));
    return QString::number(qint64(std::round(double(value))));
}

QString floatText(float f) {
    const QString text = NumberText::singleText(f);
    if (f == 100000.0f) return QStringLiteral("OVER");
    if (f == 200000.0f) return QStringLiteral("BURN");
    if (f == -100000.0f) return QStringLiteral("UNDER");
    if (f == -200000.0f) return QStringLiteral("N.DATA");
    return text;
}

QString float2Text(quint16 w, int decimals) {
    const int m = (w >> 5) & 0x3FF;
    const int e = w & 0x0F;
    const bool negativeExponent = (w & 0x10) != 0;
    static const char* const kStatus[] = {"N.DATA", "Etc ERR", "CAL ERR", "BURN",
                                          "RJ ERR", "UNDER",   "OVER"};
    if (m >= 1017) return QLatin1String(kStatus[m - 1017]);
    double value = m / std::pow(10.0, decimals);
    value = negativeExponent ? value / std::pow(10.0, e) : value * std::pow(10.0, e);
    return NumberText::doubleText(value);
}

quint8 alarmByteDigits(quint8 b) {
    const quint8 first = (b & 0x01) ? (b >> 1) & 0x07 : 0;
    const quint8 second = (b & 0x10) ? (b >> 5) & 0x07 : 0;
    return quint8(first | (second << 4));
}

quint16 alarmBitDigits(quint8 bits) {
    quint16 digits = 0;
    for (int level = 0; level < 4; ++level)
        if (bits & (1 << level)) digits |= quint16(9) << (4 * level);
    return digits;
}

int decimalsOf(const QString& text) {
    const QString t = text.trimmed();
    const int dot = t.indexOf(QLatin1Char('.'));
    return dot < 0 ? 0 : int(t.size() - dot - 1);
}

} // namespace SampleRules
