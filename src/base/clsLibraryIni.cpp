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

void clsLibrary::saveINIParam(const QString& section, const QString& key, const QString& value) {
    clsINI ini;
    ini.setIniPath(AppPaths(0));
    ini.setIniFileName(getIniFileName());
    ini.putIniData(section, key, value);
}

void clsLibrary::loadINIParam(const QString& section, const QString& key,
                              const QString& defaultValue, QString& result) {
    clsINI ini;
    ini.setIniPath(AppPaths(0));
    ini.setIniFileName(getIniFileName());
    ini.getIniData(section, key, defaultValue, false, result);
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

bool clsLibrary::gblnGetWinDir() {
    // The system's own directory; on this platform the root of the system settings.
    gstrWinDir() = QStringLiteral("/etc");
    if (::DirExists(gstrWinDir())) return true;
    MsgBox(QStringLiteral("Windowsディレクトリの取得に失敗しました。[gblnGetWinDir]"),
           kFlagExclamation, QStringLiteral("gblnGetWinDir"));
    return false;
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

QString clsLibrary::tranStr(const QString& text) {
    if (text.isEmpty()) return text;
    const QString dir = AppPaths(0) + QStringLiteral("Lang");
    if (!::DirExists(dir)) QDir().mkpath(dir);
    clsINI ini;
    ini.setIniPath(dir);
    ini.setIniFileName(LanguageFileName);
    QString result = ini.getIniData(QStringLiteral("Language"), text, text);
    return result.replace(QLatin1String("vbCrLf"), QLatin1String("\r\n"));
}

void clsLibrary::setLogs(LogObject* errorLog, LogObject* traceLog) {
    errorLog_ = errorLog;
    traceLog_ = traceLog;
}

void clsLibrary::errorReport(const QString& text) {
    if (errorLog_) errorLog_->LogWrite(QStringLiteral("[LibraryError]") + text);
}

void clsLibrary::traceReport(const QString& text) {
    if (traceLog_) traceLog_->LogWrite(QStringLiteral("[LibraryTrace]") + text);
}

bool debugLogEnabled() {
    return FileExists(AppPaths(0) + QStringLiteral("Debug.log"));
}
