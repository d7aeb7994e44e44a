#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <optional>

// One entry of a remote directory, as the find cursor hands it out.
struct FtpEntry {
    static constexpr qint16 kDirectory = 16;

    QString Name;               // decoded for display and for local file names
    double Size = 0;            // see entrySize(); 0 for a directory
    std::optional<qint64> Date; // last write time, seconds since 2000 as the server gives it
    qint16 Attr = 0;            // kDirectory for a directory, 0 for all else
    bool Eof = false;           // true when the enumeration has ended
    QByteArray rawName;         // the name's bytes as the server sent them, for commands

    bool isDirectory() const { return Attr == kDirectory; }
};

// The size field of an entry from a byte count: the low 32 bits as a signed number, and above
// 4 GiB the high half times 4294967297 (one above 2^32) added to it.
double entrySize(quint64 bytes);

// A name that may become a local file name: not empty, not "." or "..", no "/", "\", NUL or
// control characters.
bool isPlainFileName(const QByteArray& raw);

// A remote name for display and local files: UTF-8 when the bytes are valid UTF-8, else cp932.
QString decodeRemoteName(const QByteArray& raw);
