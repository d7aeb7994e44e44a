#include "print/ExportKind.h"

#include "base/LanguageTable.h"

namespace ExportKind {

Kind ofName(const QString& path) {
    return path.right(3).toUpper() == QLatin1String("CSV") ? Csv : Txt;
}

bool isWorkbook(const QString& path) {
    return path.endsWith(QLatin1String(".xlsx"), Qt::CaseInsensitive);
}

char separator(Kind kind) {
    return kind == Csv ? ',' : '\t';
}

bool csvAllowed(const QString& decimalSeparator) {
    return decimalSeparator != QLatin1String(",");
}

QString dialogFilter(const QString& decimalSeparator) {
    const QString txt = MsgText(275) + QStringLiteral("(*.txt)|*.txt|");
    return csvAllowed(decimalSeparator) ? MsgText(274) + QStringLiteral("(*.csv)|*.csv|") + txt
                                        : txt;
}

} // namespace ExportKind
