#include "ftp/CollectPass.h"

#include "base/LanguageTable.h"
#include "ftp/CollectionEngine.h"

#include <QDateTime>

#include <chrono>
#include <map>
#include <thread>

QList<int> configuredRows(const FtpTable& table) {
    QList<int> rows;
    for (int n = 1; n <= FtpTable::kRows; ++n)
        if (!table.row(n)->PCDir.trimmed().isEmpty()) rows.append(n);
    return rows;
}

QList<CollectOutcome> collectRows(FTPFile& ftpFile, const QList<int>& rows, const QString& timeText,
                                  bool manual) {
    constexpr int kBinary = 2;
    std::map<int, FtpRowDetail> details;
    CollectionEngine engine(
        [&](int n) {
            int result = 0;
            ftpFile.GetFile(n, false, kBinary, result);
            ftpFile.FTPConectClose(); // never a connection shared between rows
            details[n] = ftpFile.lastDetail();
            return result == 1;
        },
        [] { return QDateTime::currentDateTime(); },
        [](int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); });
    // Only the rows asked for take part: the others count as not configured.
    engine.rows.resize(FtpTable::kRows);
    for (const int n : rows)
        if (const FtpRow* row = ftpFile.table.row(n)) engine.rows[size_t(n - 1)].pcDir = row->PCDir;
    engine.Retry = manual ? ftpFile.table.Retry : 0;
    engine.Wait = ftpFile.table.Wait;
    if (manual) {
        engine.cmdGet();
    } else {
        engine.CollectionBusyRow = 1;
        engine.RunCollection();
    }
    QList<CollectOutcome> outcomes;
    for (const int n : rows) {
        FtpRow* row = ftpFile.table.row(n);
        if (!row || !details.count(n)) continue;
        const bool collected = engine.rows[size_t(n - 1)].status == MsgText(MsgId(13));
        row->status = engine.rows[size_t(n - 1)].status;
        if (collected) row->Time = timeText;
        outcomes.append({n, collected, details[n]});
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
