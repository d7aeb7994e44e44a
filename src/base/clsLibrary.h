#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <utility>

class LogObject;

// A colour of the colour table: its name, description and 0x00BBGGRR value (system colours
// are 0x80000000 + the system colour index; the last row, "Option", has none).
struct ColorEntry {
    const char* name;
    const char* description;
    quint32 value;
};

// The general utility class. Routines carry on after a failure: a failing conversion gives the
// type's zero, a failing query its empty answer. Stateless helpers are static; the log objects
// and the language file name live in the shared instance.
class clsLibrary {
public:
    static clsLibrary& shared();

    // --- Files and paths
    static bool FileExists(const QString& path);
    static bool DirExists(const QString& path);
    // Makes every missing level of an absolute path; a relative path is refused, a "//" path's
    // server and share are not made. An existing directory is no failure.
    static bool makeDir(const QString& path);
    static QString getFileTitle(const QString& path);   // "a/b.vxf" -> "b.vxf"
    static QString getFileTitleEx(const QString& path); // "a/b.vxf" -> "b"
    static QString getFileExt(const QString& path);     // "a/b.vxf" -> "vxf"
    static QString getDirName(const QString& path);     // "a/b.vxf" -> "a/"
    // The size as text, with the locale's digit grouping when `grouped`; "" on a failure.
    static QString getFileSize(const QString& path, bool grouped);
    // Files matching a wildcard pattern (case ignored), sorted by name; a missing directory
    // gives one empty name.
    static QStringList getFileList(const QString& directory, const QString& pattern);
    // The same with a regular expression (matchingPattern).
    static QStringList getFileListEx(const QString& directory, const QString& regex);
    // Subdirectories without "." and "..", sorted by name.
    static QStringList getFolderList(const QString& directory);

    // --- File name checks
    static bool checkFileName(const QString& name);
    static bool checkFileNameWithLen(const QString& name, int maxLength);
    static bool checkPathName(const QString& path);
    // 3 for a path on a mounted file system, 1 when its root does not exist.
    static int checkDriveType(const QString& path);
    static qint64 getDiskFreeSP(const QString& path);

    // --- Numbers and bytes (the runtime's conversions: halves to even, failures give 0)
    static bool toBoolean(const QString& text);
    static qint32 toLong(const QString& text);
    static qint16 toInteger(const QString& text);
    static double toDouble(const QString& text);
    static float toSingle(const QString& text);
    static QByteArray reverseByteArray(const QByteArray& bytes);
    static QString toHexString(const QByteArray& bytes);
    static QByteArray HexStringToByteArray(const QString& hex);
    static float HostToNetSingle(float value);
    static double HostToNetDouble(double value);
    static qint32 HostToNetLong(qint32 value);
    static qint16 HostToNetInteger(qint16 value);
    static float NetToHostSingle(float value) { return HostToNetSingle(value); }
    static double NetToHostDouble(double value) { return HostToNetDouble(value); }
    static qint32 NetToHostLong(qint32 value) { return HostToNetLong(value); }
    static qint16 NetToHostInteger(qint16 value) { return HostToNetInteger(value); }
    template <typename T> static void Swap(T& a, T& b) { std::swap(a, b); }

    // --- Text
    static QByteArray UniToAnsi(const QString& text); // cp932, "?" for what it cannot hold
    static QString get0FillStr(qint64 number, int width);
    // The part after / before the first delimiter; the whole text when it is shorter than two
    // characters or has no delimiter.
    static QString getDataToken(const QString& text, const QString& delimiter);
    static QString getKeyToken(const QString& text, const QString& delimiter);
    // Each match, case ignored: its 0-based position, a tab, its value, a line break; "" when
    // nothing matches.
    static QString matchingPattern(const QString& pattern, const QString& text);

    // --- Colours (0x00BBGGRR values)
    static bool StrToColor(const QString& text, quint32& result);
    static QString ColorToStr(quint32 color);
    static const QList<ColorEntry>& getColorTable();
    static int getColorTableUbound() { return int(getColorTable().size()) - 1; }

    // --- Time
    // The local time to the second, with the milliseconds apart.
    static QDateTime NowEx(int& msec);
    // The present time in a date pattern; then "bbb" becomes the milliseconds with three digits
    // and "b" the milliseconds as plain digits.
    static QString formatNowEx(const QString& pattern);
    static qint64 getStopWatch();
    static double GetIntegrationTime();

    // --- Platform
    // number = 2 x 1000000 + major x 10000 + minor of the kernel; name the system's name.
    static void getWindowsVersion(int& number, QString& name);
    // Code 26: the per-user application data folder of the program; 5 documents; 0 desktop.
    static QString getSPFolder(int code);
    static QString getCommandLine();
    static bool IsIDE() { return false; }

    // --- Settings (over clsINI in the program directory, file = executable title & ".ini")
    static void saveINIParam(const QString& section, const QString& key, const QString& value);
    static void loadINIParam(const QString& section, const QString& key,
                             const QString& defaultValue, QString& result);
    // A settings directory with a trailing "/": the application data folder & "/" & the
    // executable title, or the program directory; `subDir` appended; made when missing.
    static QString getIniFilePath(const QString& subDir, bool useAppData);
    static QString getIniFileName();

    // --- Alternate title file (GSmode.ini beside the program)
    // Reads a key; a missing file, section or key gives one box (flags 48, title "gblnGetINI").
    static bool gblnGetINI(const QString& section, const QString& key, QString& value);
    // Reads the whole file instead of the profile read when set.
    static bool& gblnGetINIReadsWholeFile();
    static bool gblnGetWinDir();
    static QString& gstrWinDir();
    // The "#"-separated text of the active language, tabs as line breaks, quotes removed.
    static void getFileParam(const QString& section, const QString& key, QString& value,
                             bool& found);

    // --- Library translator over "lang/" + LanguageFileName
    QString LanguageFileName = QStringLiteral("JP.TXT");
    QString tranStr(const QString& text);

    // --- Logs
    void setLogs(LogObject* errorLog, LogObject* traceLog);
    void errorReport(const QString& text);
    void traceReport(const QString& text);

private:
    LogObject* errorLog_ = nullptr;
    LogObject* traceLog_ = nullptr;
};

// True when "Debug.log" exists in the program directory: loading then takes timings.
bool debugLogEnabled();
