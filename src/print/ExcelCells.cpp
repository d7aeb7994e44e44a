#include "print/ExcelCells.h"

#include <charconv>
#include <cmath>

namespace ExcelCells {

namespace {
constexpr qint64 kDay = 86400;
constexpr double kSerialOf2000 = 36526; // 2000-01-01 counted from 1899-12-30

qint64 floorDiv(qint64 a, qint64 b) {
    return a / b - (a % b != 0 && (a < 0) != (b < 0));
}
} // namespace

bool numberOf(const char* text, qsizetype length, char decimalSeparator, double& value) {
    char buffer[64];
    if (length <= 0 || length >= qsizetype(sizeof buffer)) return false;
    for (qsizetype i = 0; i < length; ++i) {
        const char c = text[i];
        if (c == decimalSeparator)
            buffer[i] = '.';
        else if ((c >= '0' && c <= '9') || c == '-' || c == '+' || c == 'E' || c == 'e')
            buffer[i] = c;
        else
            return false; // a status word, a blank, a second separator kind
    }
    const char* end = buffer + length;
    const char* start = buffer[0] == '+' ? buffer + 1 : buffer;
    const auto [ptr, ec] = std::from_chars(start, end, value);
    return ec == std::errc() && ptr == end && std::isfinite(value);
}

bool numberOf(const QString& text, const QString& decimalSeparator, double& value) {
    const QByteArray utf8 = text.trimmed().toUtf8();
    const char sep = decimalSeparator.size() == 1 ? char(decimalSeparator[0].toLatin1()) : '.';
    return numberOf(utf8.constData(), utf8.size(), sep, value);
}

double serialDay(qint64 secondsSince2000) {
    return kSerialOf2000 + double(floorDiv(secondsSince2000, kDay));
}

double dayFraction(qint64 secondsSince2000, int msec) {
    const qint64 inDay = secondsSince2000 - floorDiv(secondsSince2000, kDay) * kDay;
    return (double(inDay) + msec / 1000.0) / double(kDay);
}

QString dateFormat(int dateOrder, const QString& dateSeparator) {
    const QString s = dateSeparator.isEmpty() ? QStringLiteral("/") : dateSeparator;
    const QString y = QStringLiteral("yyyy"), m = QStringLiteral("mm"), d = QStringLiteral("dd");
    switch (dateOrder) {
    case 1:
        return d + s + m + s + y;
    case 2:
        return y + s + m + s + d;
    default:
        return m + s + d + s + y;
    }
}

QString timeFormat(bool milliseconds) {
    return milliseconds ? QStringLiteral("h:mm:ss.000") : QStringLiteral("h:mm:ss");
}

} // namespace ExcelCells
