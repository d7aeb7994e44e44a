#include "app/ClickFile.h"

#include "base/AppPaths.h"
#include "base/TextFile.h"

namespace {

constexpr int kSavedTrend = 1; // a saved trend carries no start time

QString keyValue(const char* key, const QString& value) {
    return QLatin1String(key) + QLatin1Char('=') + value;
}

} // namespace

QString clickFilePath() {
    return AppPaths(4) + QStringLiteral("D_Click.ini");
}

QStringList clickFileLines(const SelectionLists& sel) {
    QStringList lines{keyValue("FILECOUNT", QString::number(sel.SelFileCount)),
                      keyValue("FILETYPE", QString::number(sel.SelFileType)),
                      keyValue("INTVAL", QString::number(sel.SelInterval))};
    for (int i = 0; i < sel.SelFileName.size(); ++i) {
        lines << keyValue("NAME", sel.SelFileName[i]);
        if (sel.SelFileType == kSavedTrend) continue;
        lines << keyValue("START", QString::number(sel.SelStart.value(i)))
              << keyValue("STARTMSEC", QString::number(qint16(sel.SelStartMsec.value(i))));
    }
    return lines;
}

bool WriteClickFile(const SelectionLists& sel, const QString& path) {
    return TextFile::writeLines(path, clickFileLines(sel));
}

bool parseClickFile(const QStringList& lines, SelectionLists& sel) {
    SelectionLists read;
    int count = 0;
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq < 0) continue;
        const QString key = line.left(eq).trimmed().toUpper();
        const QString value = line.mid(eq + 1).trimmed();
        if (key == QLatin1String("FILECOUNT")) {
            count = value.toInt();
            if (count < 1) return false;
        } else if (key == QLatin1String("FILETYPE")) {
            read.SelFileType = value.toInt();
        } else if (key == QLatin1String("INTVAL")) {
            read.SelInterval = value.toInt();
        } else if (key == QLatin1String("NAME")) {
            read.append(value, 0, 0);
        } else if (key == QLatin1String("START") && !read.SelStart.isEmpty()) {
            // A fixed-point text: the seconds before the decimal sign count.
            read.SelStart.last() = qint64(value.toDouble());
        } else if (key == QLatin1String("STARTMSEC") && !read.SelStartMsec.isEmpty()) {
            read.SelStartMsec.last() = qint16(value.toInt());
        }
    }
    if (count < 1 || read.SelFileCount < 1) return false;
    sel = read;
    return true;
}

bool ReadClickFile(SelectionLists& sel, const QString& path) {
    QStringList lines;
    return TextFile::readLines(path, lines) && parseClickFile(lines, sel);
}
