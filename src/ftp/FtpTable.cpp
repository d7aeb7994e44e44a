#include "ftp/FtpTable.h"

#include "base/AppPaths.h"
#include "base/LanguageTable.h"
#include "base/TextFile.h"

#include <QStringList>

#include <algorithm>

namespace {

struct Scalar {
    const char* key;
    qint32 FtpTable::*field;
    qint32 low;
    qint32 high;
};

constexpr Scalar kScalars[] = {
    {"FileReadFlg", &FtpTable::FileReadFlg, INT32_MIN, INT32_MAX},
    {"AutoReadFlg", &FtpTable::AutoReadFlg, INT32_MIN, INT32_MAX},
    {"Retry", &FtpTable::Retry, 0, 20},
    {"Wait", &FtpTable::Wait, 0, 10},
    {"RegularH", &FtpTable::RegularH, 0, 23},
    {"RegularM", &FtpTable::RegularM, 0, 59},
};

struct RowKey {
    const char* key;
    QString FtpRow::*field;
};

constexpr RowKey kRowKeys[] = {
    {"Tag", &FtpRow::Tag},     {"IPAddress", &FtpRow::IPAddress}, {"Password", &FtpRow::Password},
    {"VXDir", &FtpRow::VXDir}, {"PCDir", &FtpRow::PCDir},         {"Time", &FtpRow::Time},
};

const QString kRowMark = QStringLiteral("[FTPData]");

// One line into the table; false when the read ends here.
bool applyLine(const QString& line, FtpTable& table, int& row) {
    const QStringList pieces = line.split(QLatin1Char('='));
    const QString& key = pieces[0];
    const QString value = pieces.value(1);
    if (key == kRowMark) {
        if (++row > FtpTable::kRows) return false;
        table.row(row)->status = MsgText(MsgId(496));
        return true;
    }
    for (const Scalar& s : kScalars) {
        if (key != QLatin1String(s.key)) continue;
        bool ok = false;
        const qint32 number = value.trimmed().toInt(&ok);
        if (!ok) return false;
        table.*s.field = std::clamp(number, s.low, s.high);
        return true;
    }
    for (const RowKey& k : kRowKeys) {
        if (key != QLatin1String(k.key)) continue;
        if (!table.row(row)) return false;
        table.row(row)->*k.field = value;
        return true;
    }
    return true;
}

} // namespace

QString ftpDataSetPath() {
    return AppPaths(3) + QStringLiteral("FTPDataSet.ini");
}

QString ftpSetPath() {
    return AppPaths(3) + QStringLiteral("FTPset.ini");
}

bool readFtpDataSet(const QString& path, FtpTable& table) {
    QStringList lines;
    if (!TextFile::readLines(path, lines)) return false;
    int row = 0;
    for (const QString& line : lines)
        if (!applyLine(line, table, row)) break;
    return true;
}

bool writeFtpDataSet(const QString& path, const FtpTable& table) {
    QStringList lines;
    for (const Scalar& s : kScalars)
        lines << QLatin1String(s.key) + QLatin1Char('=') + QString::number(table.*s.field);
    for (int n = 1; n <= FtpTable::kRows; ++n) {
        lines << kRowMark + QLatin1Char('=') + QString::number(n);
        for (const RowKey& k : kRowKeys)
            lines << QLatin1String(k.key) + QLatin1Char('=') + table.row(n)->*k.field;
    }
    return TextFile::writeLines(path, lines, nullptr, QStringLiteral("\r\n"));
}

bool readFtpSet(const QString& path, FtpManualSettings& settings) {
    QStringList lines;
    if (!TextFile::readLines(path, lines) || lines.isEmpty()) return false;
    for (const QString& line : lines) {
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        const QString key = line.left(eq < 0 ? line.size() : eq).trimmed().toUpper();
        const QString value = eq < 0 ? QString() : line.mid(eq + 1);
        if (key == QLatin1String("IPADDRESS")) settings.IPaddress = value;
        if (key == QLatin1String("PASSNAME")) settings.PASSNAME = value;
    }
    return true;
}

bool writeFtpSet(const QString& path, const FtpManualSettings& settings) {
    return TextFile::writeLines(path,
                                {QStringLiteral("IPaddress=") + settings.IPaddress.trimmed(),
                                 QStringLiteral("PASSNAME=") + settings.PASSNAME.trimmed()},
                                nullptr, QStringLiteral("\r\n"));
}
