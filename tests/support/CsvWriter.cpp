#include "support/CsvWriter.h"

#include "base/TextFile.h"
#include "base/TimeBase.h"

namespace fixtures {

QByteArray buildCsv(const QStringList& lines, bool cp932) {
    const QString text = lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
    return cp932 ? TextFile::encodeCp932(text) : text.toUtf8();
}

QStringList simpleCsv(int channels, int rows, QString (*value)(int row, int channel)) {
    QStringList titles{QString()};
    for (int c = 1; c <= channels; ++c) titles << QStringLiteral("T%1 [V]").arg(c);
    QStringList lines{titles.join(QLatin1Char(','))};
    const qint64 start = TimeBase::toSeconds({2024, 5, 6, 10, 0, 0});
    for (int r = 1; r <= rows; ++r) {
        QStringList fields{
            TimeBase::isoText(start + r - 1).replace(QLatin1Char('-'), QLatin1Char('/'))};
        for (int c = 1; c <= channels; ++c) fields << value(r, c);
        lines << fields.join(QLatin1Char(','));
    }
    return lines;
}

} // namespace fixtures
