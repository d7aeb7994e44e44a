#pragma once

#include <QString>
#include <QVector>
#include <QtGlobal>

namespace RowPlacement {

// Store row offset of a file by time: intervals from the view's start to the file's start,
// counted in the calendar unit that suits the interval (seconds below a minute, minutes below an
// hour, hours below a day, else days), truncated. Negative for a file that starts earlier.
qint64 offsetByTime(qint64 viewStart, qint64 fileStart, qint32 intervalMs);

// TM files close small gaps and overlaps against the last used row.
qint64 tmTolerance(qint64 byTime, qint64 lastUsedRow, qint32 intervalMs);

// Channel base of file k (0-based): the channels of all files before the first file with the
// same batch text.
int channelBase(const QVector<QString>& batchTexts, const QVector<int>& fileChannels, int k);

} // namespace RowPlacement
