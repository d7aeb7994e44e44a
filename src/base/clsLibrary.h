#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <utility>

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
    // Makes an absolute folder and every missing level above it; a network path ("//server/
    // share/...") only below its share, which must exist. True when the folder exists after.
    static bool makeDir(const QString& path);
    static QString getFileTitle(const QString& path);   // "a/b.vxf" -> "b.vxf"
    static QString getFileTitleEx(const QString& path); // "a/b.vxf" -> "b"
    // The size as text, with the locale's digit grouping when `grouped`; "" on a failure.
    static QString getFileSize(const QString& path, bool grouped);
    // Files matching a wildcard pattern (case ignored), sorted by name; a missing directory
    // gives one empty name.
    static QStringList getFileList(const QString& directory, const QString& pattern);
    // Subdirectories without "." and "..", sorted by name.
    static QStringList getFolderList(const QString& directory);

    // --- File name checks
    static bool checkFileName(const QString& name);
    static qint64 getDiskFreeSP(const QString& path);

    // --- Numbers and bytes (the runtime's conversions: halves to even, failures give 0)
    static bool toBoolean(const QString& text);
    static qint32 toLong(const QString& text);
    static qint16 toInteger(const QString& text);
    static double toDouble(const QString& text);
    static qint32 HostToNetLong(qint32 value);
    static qint16 HostToNetInteger(qint16 value);
    static qint32 NetToHostLong(qint32 value) { return HostToNetLong(value); }
    static qint16 NetToHostInteger(qint16 value) { return HostToNetInteger(value); }

    // --- Text
    static QByteArray UniToAnsi(const QString& text); // cp932, "?" for what it cannot hold
    static QString get0FillStr(qint64 number, int width);
    // The part after / before the first delimiter; the whole text when it is shorter than two
    // characters or has no delimiter.
    static QString getDataToken(const QString& text, const QString& delimiter);
    static QString getKeyToken(const QString& text, const QString& delimiter);

    // --- Colours (0x00BBGGRR values)
    static bool StrToColor(const QString& text, quint32& result);
    static QString ColorToStr(quint32 color);
    static const QList<ColorEntry>& getColorTable();

    // --- Time
    // The local time to the second, with the milliseconds apart.
    static QDateTime NowEx(int& msec);
    // The present time through a date pattern; "bbb" is the milliseconds in three digits.
    static QString formatNowEx(const QString& pattern);
    static qint64 getStopWatch();

    // --- Platform
    // Code 26: the per-user application data folder of the program; 5 documents; 0 desktop.
    static QString getSPFolder(int code);

    // --- Settings (over clsINI in the program directory, file = executable title & ".ini")
    // A settings directory with a trailing "/": the application data folder & "/" & the
    // executable title, or the program directory; `subDir` appended; made when missing.
    static QString getIniFilePath(const QString& subDir, bool useAppData);
    static QString getIniFileName();

    // --- Alternate title file (GSmode.ini beside the program)
    // Reads a key; a missing file, section or key gives one box (flags 48, title "gblnGetINI").
    static bool gblnGetINI(const QString& section, const QString& key, QString& value);
    // Reads the whole file instead of the profile read when set.
    static bool& gblnGetINIReadsWholeFile();
    static QString& gstrWinDir();
    // The "#"-separated text of the active language, tabs as line breaks, quotes removed.
    static void getFileParam(const QString& section, const QString& key, QString& value,
                             bool& found);
};
