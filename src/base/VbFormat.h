#pragma once

#include "base/TimeBase.h"

#include <QLocale>
#include <QString>

// The one formatting module of the system: number patterns ("##0.0", "0.00E+00", "#,##0") and
// date/time patterns ("yyyy/mm/dd", "hh:nn:ss") in the pattern language the settings files and
// the message table use.
namespace VbFormat {

// The separators a text is made with. Cells, settings files and record texts use the invariant
// set; what the user sees uses the locale's.
struct Separators {
    QString decimal = QStringLiteral(".");
    QString thousands = QStringLiteral(",");
    QString date = QStringLiteral("/");
    QString time = QStringLiteral(":");

    static Separators invariant() { return {}; }
    static Separators fromLocale(const QLocale& locale);
    // The separators of the user's locale (RECVIEW_LANG may force the locale).
    static Separators system();
};

// Formats a number with a pattern of "0" (digit or zero), "#" (digit or nothing), "." (decimal
// sign), "," (digit grouping), "E+"/"E-" (exponent), "%" (per cent), quoted or "\"-escaped
// literals and up to three ";"-separated sections (positive; negative; zero). Halves round away
// from zero. An empty pattern gives the default text of the number (15 significant digits).
// A result never starts with blanks.
QString formatNumber(double value, const QString& pattern, const Separators& seps = {});

// The default text of a double (NumberText::doubleText) with the given decimal sign.
QString defaultText(double value, const Separators& seps = {});

// Formats a calendar time with yyyy, yy, y (day of year), m/mm (month, or minutes right after an
// hour token), MMM/MMMM (month name), d, dd, ddd, dddd, h, hh, n, nn, s, ss; "/" and ":" become
// the date and time separators. Letters are case-insensitive except "MMM".
QString formatDateTime(const TimeBase::CalendarTime& time, const QString& pattern,
                       const Separators& seps = {});

// The same for seconds since 2000-01-01.
QString formatSeconds(qint64 secondsSince2000, const QString& pattern, const Separators& seps = {});

// A date value as days since 1899-12-30 with the time as the fraction (0.5 is noon).
TimeBase::CalendarTime fromDateSerial(double serial);

// Rounds to an integer with halves to even (2.5 -> 2, 3.5 -> 4, -2.5 -> -2).
qint64 roundHalfEven(double value);

// Rounds to `decimals` places with halves away from zero, on the value's 15-digit decimal text
// (so 1.005 rounds to 1.01 as the text shows it).
double roundHalfAway(double value, int decimals);

} // namespace VbFormat
