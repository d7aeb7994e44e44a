#include "base/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

QString significantText(double value, int digits) {
    if (std::isnan(value)) return QStringLiteral("NaN");
    if (std::isinf(value)) return value < 0 ? QStringLiteral("-Inf") : QStringLiteral("Inf");
    if (value == 0) return QStringLiteral("0");

    // The scientific form rounds to the wanted significant digits and tells the decimal exponent
    // after rounding.
    char buf[64];
    const auto end = std::to_chars(buf, buf + sizeof buf - 1, std::fabs(value),
                                   std::chars_format::scientific, digits - 1)
                         .ptr;
    *end = '\0';
    char* ePos = std::strchr(buf, 'e');
    const int exponent = std::atoi(ePos + 1);
    QString mantissa;
    for (char* p = buf; p < ePos; ++p)
        if (*p != '.') mantissa += QLatin1Char(*p);
    while (mantissa.size() > 1 && mantissa.endsWith(QLatin1Char('0'))) mantissa.chop(1);

    QString text = value < 0 ? QStringLiteral("-") : QString();
    if (exponent >= -4 && exponent < 15) {
        if (exponent < 0) {
            text += QStringLiteral("0.") + QString(-exponent - 1, QLatin1Char('0')) + mantissa;
        } else if (mantissa.size() <= exponent + 1) {
            text += mantissa + QString(exponent + 1 - mantissa.size(), QLatin1Char('0'));
        } else {
            text += mantissa.left(exponent + 1) + QLatin1Char('.') + mantissa.mid(exponent + 1);
        }
        return text;
    }
    text += mantissa.left(1);
    if (mantissa.size() > 1) text += QLatin1Char('.') + mantissa.mid(1);
    text += exponent < 0 ? QStringLiteral("E-") : QStringLiteral("E+");
    text += QStringLiteral("%1").arg(std::abs(exponent), 2, 10, QLatin1Char('0'));
    return text;
}

} // namespace

namespace NumberText {

QString doubleText(double value) {
    return significantText(value, 15);
}

QString singleText(float value) {
    return significantText(static_cast<double>(value), 7);
}

QString scaledIntegerText(qint64 value, int decimals) {
    const bool negative = value < 0;
    QString digits = QString::number(negative ? -value : value);
    if (decimals > 0) {
        if (digits.size() <= decimals)
            digits = QString(decimals + 1 - digits.size(), QLatin1Char('0')) + digits;
        digits.insert(digits.size() - decimals, QLatin1Char('.'));
    }
    return negative ? QLatin1Char('-') + digits : digits;
}

} // namespace NumberText
