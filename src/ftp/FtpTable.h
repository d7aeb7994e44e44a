#pragma once

#include <QString>
#include <QtGlobal>

#include <array>

// One recorder of the collection table.
struct FtpRow {
    QString Tag;
    QString IPAddress = QStringLiteral("   .   .   .   ");
    QString Password;
    QString VXDir;  // directory at the recorder, "/" between levels
    QString PCDir;  // local target directory
    QString Time;   // text of the last collection's time
    QString status; // the status column, kept in memory only
};

// The collection table: 30 rows and the scalars of the schedule.
struct FtpTable {
    static constexpr int kRows = 30;

    qint32 FileReadFlg = 0;
    qint32 AutoReadFlg = 0;
    qint32 Retry = 3;
    qint32 Wait = 1;
    qint32 RegularH = 0;
    qint32 RegularM = 0;
    std::array<FtpRow, kRows> rows;

    // Row 1..30; nullptr outside.
    FtpRow* row(int n) { return n >= 1 && n <= kRows ? &rows[size_t(n - 1)] : nullptr; }
    const FtpRow* row(int n) const { return n >= 1 && n <= kRows ? &rows[size_t(n - 1)] : nullptr; }
};

// FTPDataSet.ini in the work directory.
QString ftpDataSetPath();

// Reads the table file line by line. The file is split at every "=" (so a value holding "=" is
// cut there) and keys are compared exactly. "[FTPData]" moves to the next row and sets its
// status to "not collected"; other keys are skipped. A 31st row, a row key before the first
// row or a scalar that is not a number ends the read, keeping what was read; scalars out of
// range are clamped. False when the file is missing or unreadable (the table is left as it is).
bool readFtpDataSet(const QString& path, FtpTable& table);

// Writes the 6 + 30 x 7 lines, CR LF, UTF-8, under a temporary name. The password stands in
// clear text.
bool writeFtpDataSet(const QString& path, const FtpTable& table);

// FTPset.ini of the manual window: the last address and local directory.
struct FtpManualSettings {
    QString IPaddress;
    QString PASSNAME; // holds a path despite its name
};
QString ftpSetPath();
// Each line's key is the text before its first "=", trimmed and upper-cased; the value is the
// rest. False when the file is missing or empty.
bool readFtpSet(const QString& path, FtpManualSettings& settings);
bool writeFtpSet(const QString& path, const FtpManualSettings& settings);
