#pragma once

#include <QString>
#include <QtGlobal>

// Recorder time: seconds since 2000-01-01 00:00:00 as naive local time. No time zone enters
// anywhere; calendar fields come from the proleptic Gregorian calendar.
namespace TimeBase {

struct CalendarTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    bool operator==(const CalendarTime&) const = default;
};

constexpr qint64 kSecondsFrom1970To2000 = 946684800;

CalendarTime fromSeconds(qint64 secondsSince2000);
// Like toSeconds, but fields out of range roll over into the next larger unit (month 13 is
// January of the next year, day 0 the last day of the month before).
qint64 serialSeconds(int year, int month, int day, int hour, int minute, int second);
qint64 toSeconds(const CalendarTime& time);
inline qint64 fromUnixSeconds(qint64 secondsSince1970) {
    return secondsSince1970 - kSecondsFrom1970To2000;
}

// Day of week, 1 = Sunday .. 7 = Saturday.
int weekday(qint64 secondsSince2000);
int daysInMonth(int year, int month);

enum class Unit { Second, Minute, Hour, Day };
// Unit boundaries crossed from a to b, as a calendar difference counts them: the minutes from
// 10:00:59 to 10:01:00 are 1. Negative when b is before a.
qint64 boundariesBetween(Unit unit, qint64 a, qint64 b);

// "YYYY-MM-DD hh:mm:ss"
QString isoText(qint64 secondsSince2000);
// Reads "YYYY-MM-DD hh:mm:ss" (or with "/" in the date); false for anything else.
bool parseIsoText(const QString& text, qint64& secondsSince2000);

} // namespace TimeBase
