#pragma once

#include <QtGlobal>

// `ViewStart` travels in the trend parameter record as a date value: an OLE automation date,
// the days since 1899-12-30 00:00:00 as an IEEE double, the fraction being the time of day.
// Before that day the whole part counts days back and the fraction still runs forward, so
// -1.25 is 1899-12-29 06:00. The view keeps naive local seconds since 2000-01-01 00:00:00 and
// no time zone enters the conversion.
namespace OleDate {

constexpr double kDate2000 = 36526.0; // 2000-01-01 as a date value

double fromSeconds2000(qint64 seconds);
// Rounded to the nearest second; a value that is not finite gives 0.
qint64 toSeconds2000(double date);

} // namespace OleDate
