#pragma once

#include "ftp/FtpEntry.h"

#include <QByteArray>
#include <QList>
#include <QString>

// The reply of a plain LIST, as Unix servers and IIS (DOS form) write it. "total" lines, "."
// and ".." are left out; a line that is no entry is skipped and logged. A Unix date with a
// time and no year takes the latest year that does not put it after `now` (seconds since 2000,
// local time); a date that cannot be read leaves the entry without one.
QList<FtpEntry> parseListing(const QByteArray& listing, qint64 now);

// One line; false when it is no entry (the caller decides whether that is worth a log line).
bool parseListingLine(const QByteArray& line, qint64 now, FtpEntry& entry);

// Whether a name matches a find pattern. "*.*" matches every name, with a dot or without one;
// other patterns are wildcards matched regardless of case.
bool matchesFindPattern(const QString& name, const QString& pattern);
