#include "analysis/SkipCount.h"

#include "base/LanguageTable.h"

#include <limits>

qint32& SkipCount() {
    static qint32 count = 0;
    return count;
}

qint32 SkipStep() {
    const qint32 count = SkipCount();
    return count < 0 || count == std::numeric_limits<qint32>::max() ? 1 : count + 1;
}

qint32 SkipCountFromText(const QString& text) {
    const QString t = text.trimmed();
    if (t.isEmpty()) return 0;
    bool ok = false;
    const double value = t.toDouble(&ok);
    if (!ok || !(value > 0)) return 0;
    constexpr qint32 kLargest = std::numeric_limits<qint32>::max() - 1;
    return value >= kLargest ? kLargest : qint32(value);
}

QString SkipSetLabel(const QString& decimalSeparator) {
    return MsgText(207) + (decimalSeparator == QLatin1String(",")
                               ? QStringLiteral(" / TXT / Excel")
                               : QStringLiteral(" / CSV / TXT / Excel"));
}
