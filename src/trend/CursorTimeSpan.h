#pragma once

#include <QString>
#include <QtGlobal>

// The time between cursors A and B, D points apart at an interval of I milliseconds, as the two
// grids show it. The side grid and the marker view use different thresholds on purpose: for I
// of 1001..10000 ms the side grid reads D x (I / 1000) as milliseconds, a span a thousand times
// shorter than the marker view shows.
namespace CursorTimeSpan {

struct Span {
    qint64 days = 0;
    qint64 hours = 0;
    qint64 minutes = 0;
    qint64 seconds = 0;
    qint64 msec = 0;
    bool operator==(const Span&) const = default;
};

// MarkABset: below 1000 ms the span is D x I milliseconds; from 1000 ms on it is
// D x (I / 1000 rounded) seconds, without milliseconds.
Span markerSpan(qint64 points, qint32 interval);
// The side grid: D x I up to 1000 ms, else D x (I / 1000 rounded); the product is read as
// milliseconds up to 10000 ms and as seconds above.
Span sideGridSpan(qint64 points, qint32 interval);

// Message 183 and the days when there are any, then hours, minutes and seconds as plain
// integers with the time separator, the seconds followed by the decimals of the milliseconds.
QString text(const Span& span);

} // namespace CursorTimeSpan
