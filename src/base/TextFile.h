#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Plain text files of the system: read whole, written whole under a temporary name.
namespace TextFile {

// Decodes a text file: UTF-8 when the bytes are valid UTF-8 (a byte-order mark is dropped),
// otherwise cp932, the code page of older files and of the recorders.
QString decodeLocalText(const QByteArray& bytes);

// Encodes a text as cp932; a character that cp932 cannot hold becomes "?".
QByteArray encodeCp932(const QString& text);

// Splits a text into lines at LF, dropping a CR before it; a final empty line is left out.
QStringList splitLines(const QString& text);

// Reads a whole file as lines; false when it does not exist or cannot be read.
bool readLines(const QString& path, QStringList& lines, QString* error = nullptr);

// Writes bytes to a temporary name beside `path` and renames it into place.
bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error = nullptr);

// Writes lines as UTF-8, each ended by `newline`, atomically.
bool writeLines(const QString& path, const QStringList& lines, QString* error = nullptr,
                const QString& newline = QStringLiteral("\n"));

} // namespace TextFile
