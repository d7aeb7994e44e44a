#include "ftp/IpInput.h"

namespace IpInput {

QStringList split(const QString& address) {
    QStringList boxes = address.split(QLatin1Char('.'));
    while (boxes.size() > 4) boxes.removeLast();
    for (QString& b : boxes) b = b.trimmed().left(3);
    while (boxes.size() < 4) boxes << QString();
    return boxes;
}

QString clamp(const QString& box) {
    bool ok = false;
    const int value = box.trimmed().toInt(&ok);
    if (!ok) return box;
    if (value < 0) return QStringLiteral("0");
    if (value > 255) return QStringLiteral("255");
    return box;
}

QString join(const QStringList& boxes) {
    QStringList parts;
    for (int k = 0; k < 4; ++k)
        parts << boxes.value(k).trimmed().rightJustified(3, QLatin1Char(' '));
    return parts.join(QLatin1Char('.'));
}

} // namespace IpInput
