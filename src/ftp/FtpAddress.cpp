#include "ftp/FtpAddress.h"

#include <QStringList>

namespace {

bool isDottedNumber(const QString& text) {
    for (const QChar c : text)
        if (!c.isDigit() && c != u'.' && c != u' ') return false;
    return true;
}

} // namespace

QString plainHostAddress(const QString& address) {
    const QString trimmed = address.trimmed();
    if (!isDottedNumber(trimmed)) return trimmed;
    QStringList parts = trimmed.split(u'.');
    bool anyDigit = false;
    for (QString& part : parts) {
        part.remove(u' ');
        while (part.size() > 1 && part.startsWith(u'0')) part.remove(0, 1);
        anyDigit = anyDigit || !part.isEmpty();
    }
    return anyDigit ? parts.join(u'.') : QString();
}
