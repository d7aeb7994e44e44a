#include "print/WorkbookLayout.h"

#include "base/VbFormat.h"

#include <QSet>

#include <algorithm>

namespace WorkbookLayout {

namespace {
constexpr int kMaxName = 31;

QString cleanName(QString name) {
    static const QString forbidden = QStringLiteral("[]:*?/\\");
    for (QChar& c : name)
        if (forbidden.contains(c) || c.unicode() < 0x20) c = QLatin1Char('_');
    // A name may not start or end with an apostrophe.
    if (name.startsWith(QLatin1Char('\''))) name[0] = QLatin1Char('_');
    if (name.endsWith(QLatin1Char('\''))) name[name.size() - 1] = QLatin1Char('_');
    return name.left(kMaxName);
}
} // namespace

qint64 rowCount(qint64 total, qint64 step) {
    if (total < 1) return 0;
    return (total - 1) / std::max<qint64>(step, 1) + 1;
}

qint64 rowsPerSheet(qint64 rows, int channels) {
    if (rows * channels <= kMaxCells) return 32000;
    qint64 t = 20000;
    while (t > 1 && t * channels > kMaxCells) t = VbFormat::roundHalfEven(double(t) / 2);
    return std::max<qint64>(t, 1);
}

qint64 sheetCount(qint64 rows, qint64 perSheet) {
    return rows <= 0 ? 1 : (rows + perSheet - 1) / perSheet;
}

QStringList sheetNames(const QString& header, const QString& title, qint64 sheets) {
    QString base = header.trimmed().isEmpty() ? title : header;
    if (base.trimmed().isEmpty()) base = QStringLiteral("Sheet");
    QStringList names;
    QSet<QString> taken;
    for (qint64 k = 1; k <= sheets; ++k) {
        const QString first =
            cleanName(sheets > 1 ? QString::number(k) + QLatin1Char('-') + base : base);
        QString name = first;
        // Names compare without regard to case.
        for (int n = 2; taken.contains(name.toLower()); ++n) {
            const QString suffix = QStringLiteral("(%1)").arg(n);
            name = first.left(kMaxName - int(suffix.size())) + suffix;
        }
        taken.insert(name.toLower());
        names << name;
    }
    return names;
}

} // namespace WorkbookLayout
