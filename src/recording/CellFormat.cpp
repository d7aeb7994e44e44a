#include "recording/CellFormat.h"

#include "recording/SampleRules.h"

#include <cmath>
#include <cstring>

namespace {

QString tmAnalogText(qint16 r, const CellFormat& f) {
    const float value = (float(r) + 25000.0f) * (f.scaleHigh - f.scaleLow) / 50000.0f + f.scaleLow;
    const int decimals = f.decimals >= 0 && f.decimals <= 4 ? f.decimals : 0;
    return QString::number(double(value), 'f', decimals);
}

QString tmLogText(qint16 r) {
    const int m = r / 32; // truncates toward zero
    int e = r % 32;       // keeps the sign of r
    if (e > 10) e -= 32;
    return QString::number(m / 100.0, 'f', 2) + QLatin1Char('E') + QLatin1Char(e < 0 ? '-' : '+') +
           QString::number(std::abs(e));
}

QString tmStatus(qint16 r) {
    switch (r) {
    case 32700:
        return QStringLiteral("OVER");
    case 32767:
        return QStringLiteral("BURN");
    case -32700:
        return QStringLiteral("UNDER");
    case -32768:
        return QStringLiteral("N.DATA");
    case -32701:
        return QStringLiteral("FAIL");
    default:
        return QString();
    }
}

} // namespace

QString CellFormat::text(quint32 raw) const {
    // A cell holds 8 characters: what a reader's rule writes longer is cut as a cell would cut it.
    return fullText(raw).left(kCellChars);
}

QString CellFormat::fullText(quint32 raw) const {
    switch (kind) {
    case Kind::Alarm:
        return AlarmCell::text(quint16(raw));
    case Kind::Plain:
        return SampleRules::plainText(qint16(quint16(raw)), decimals);
    case Kind::Float2:
        return SampleRules::float2Text(quint16(raw), decimals);
    case Kind::Float32: {
        float f;
        std::memcpy(&f, &raw, sizeof f);
        return SampleRules::floatText(f);
    }
    case Kind::TmAnalog:
    case Kind::TmLog: {
        const qint16 r = qint16(quint16(raw));
        if (emptyScale) return QStringLiteral("N.DATA");
        const QString status = tmStatus(r);
        if (!status.isEmpty()) return status;
        return kind == Kind::TmLog ? tmLogText(r) : tmAnalogText(r, *this);
    }
    }
    return QString();
}

namespace AlarmCell {

ByteDigits::ByteDigits() {
    for (int b = 0; b < 256; ++b) digits[b] = SampleRules::alarmByteDigits(quint8(b));
}
const ByteDigits kByteDigits;

QString text(quint16 cell) {
    QString t;
    for (int i = 0; i < 4; ++i) {
        const int digit = (cell >> (4 * i)) & 0xF;
        if (digit == 0xF) break;
        t += QLatin1Char(char('0' + digit));
    }
    return t;
}

} // namespace AlarmCell
