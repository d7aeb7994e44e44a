// clsLibrary: settings over clsINI, the alternate title file, the library translator, logs.
#include "base/clsLibrary.h"

#include "base/AppPaths.h"
#include "base/GSMode.h"
#include "base/IniDocument.h"
#include "base/LanguageTable.h"
#include "base/LogObject.h"
#include "base/PathChecks.h"
#include "base/ShowMsg.h"
#include "base/TextFile.h"
#include "base/clsINI.h"

#include <QDir>

namespace {

// The second way of reading: the file as lines, ";" starting a comment, the value after the
// first "=" of the first key line of the section.
bool readWholeFile(const QString& path, const QString& section, const QString& key, QString& value,
                   bool& fileFound) {
    QStringList lines;
    fileFound = TextFile::readLines(path, lines);
    bool inSection = false;
    for (const QString& raw : lines) {
        const QString line = raw.left(raw.indexOf(QLatin1Char(';'))).trimmed();
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            if (inSection) return false;
            inSection =
                line.mid(1, line.size() - 2).trimmed().compare(section, Qt::CaseInsensitive) == 0;
            continue;
        }
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (inSection && eq > 0 && line.left(eq).trimmed().compare(key, Qt::CaseInsensitive) == 0) {
            value = line.mid(eq + 1).trimmed();
            return true;
        }
    }
    return false;
}

void reportMissing(const QString& file, const QString& section, const QString& key) {
    const QString text = QStringLiteral("INIファイルが正しく設定されていません。\n") +
                         QStringLiteral("  INIファイル名 : ") + file + QLatin1Char('\n') +
                         QStringLiteral("  セクション名　: ") + section + QLatin1Char('\n') +
                         QStringLiteral("  キー名　　　　: ") + key + QLatin1Char('\n') +
                         QStringLiteral("[gblnGetINI]");
    MsgBox(text, kFlagExclamation, QStringLiteral("gblnGetINI"));
}

} // namespace

clsLibrary& clsLibrary::shared() {
    static clsLibrary instance;
    return instance;
}

QString clsLibrary::getIniFilePath(const QString& subDir, bool useAppData) {
    QString dir = useAppData ? getSPFolder(26) + QLatin1Char('/') + exeTitle() : AppPaths(0);
    while (dir.size() > 1 && dir.endsWith(QLatin1Char('/'))) dir.chop(1);
    if (!subDir.isEmpty()) dir += QLatin1Char('/') + subDir;
    if (!::DirExists(dir)) QDir().mkpath(dir);
    return withTrailingSlash(dir);
}

QString clsLibrary::getIniFileName() {
    return exeTitle() + QStringLiteral(".ini");
}

bool& clsLibrary::gblnGetINIReadsWholeFile() {
    static bool wholeFile = false;
    return wholeFile;
}

bool clsLibrary::gblnGetINI(const QString& section, const QString& key, QString& value) {
    const QString path = GSMode().GSModePath + GSMode().GSModeFileName;
    QString read;
    bool found = false;
    if (gblnGetINIReadsWholeFile()) {
        bool fileFound = false;
        found = readWholeFile(path, section, key, read, fileFound);
    } else {
        // The profile read: a 4097-character buffer, cut at the first NUL.
        IniDocument doc;
        if (::FileExists(path) && doc.load(path))
            read = doc.value(section, key).value_or(QString());
        read = read.left(4096);
        const qsizetype nul = read.indexOf(QChar(0));
        if (nul >= 0) read.truncate(nul);
        found = !read.isEmpty();
    }
    if (!found) {
        reportMissing(path, section, key);
        return false;
    }
    value = read;
    return true;
}

QString& clsLibrary::gstrWinDir() {
    static QString dir;
    return dir;
}

void clsLibrary::getFileParam(const QString& section, const QString& key, QString& value,
                              bool& found) {
    QString text;
    found = gblnGetINI(section, key, text);
    if (!found) return;
    const QStringList parts = text.split(QLatin1Char('#'));
    const int language = ActiveLanguage();
    QString part = language >= 0 && language < parts.size() ? parts[language] : QString();
    part.replace(QLatin1Char('\t'), QLatin1Char('\n'));
    part.remove(QLatin1Char('"'));
    value = part.trimmed();
}
