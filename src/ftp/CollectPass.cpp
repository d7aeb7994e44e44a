#include "ftp/CollectPass.h"

#include "base/LanguageTable.h"

QList<int> configuredRows(const FtpTable& table) {
    QList<int> rows;
    for (int n = 1; n <= FtpTable::kRows; ++n)
        if (!table.row(n)->PCDir.trimmed().isEmpty()) rows.append(n);
    return rows;
}

QList<CollectOutcome> collectRows(FTPFile& ftpFile, const QList<int>& rows,
                                  const QString& timeText) {
    constexpr int kBinary = 2;
    QList<CollectOutcome> outcomes;
    for (const int n : rows) {
        int result = 0;
        ftpFile.GetFile(n, false, kBinary, result);
        ftpFile.FTPConectClose(); // never a connection shared between rows
        CollectOutcome outcome{n, result == 1, ftpFile.lastDetail()};
        FtpRow* row = ftpFile.table.row(n);
        row->status = MsgText(outcome.collected ? MsgId(13) : MsgId(496));
        if (outcome.collected) row->Time = timeText;
        outcomes.append(outcome);
    }
    return outcomes;
}

QString outcomeErrorText(const CollectOutcome& outcome) {
    QStringList parts;
    if (!outcome.detail.errorText.isEmpty()) parts << outcome.detail.errorText;
    if (!outcome.detail.skippedNames.isEmpty())
        parts << QStringLiteral("skipped: ") +
                     outcome.detail.skippedNames.join(QStringLiteral(", "));
    QString text = parts.join(QStringLiteral("; "));
    for (QChar& c : text)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F) c = u'?';
    return text;
}
