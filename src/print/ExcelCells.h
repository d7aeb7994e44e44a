#pragma once

#include <QString>
#include <QtGlobal>

// Cell values of a workbook made from the texts a list shows.
namespace ExcelCells {
// The number a cell text stands for, read with the given decimal separator; false for status
// words and anything else that is not a plain number.
bool numberOf(const QString& text, const QString& decimalSeparator, double& value);
bool numberOf(const char* text, qsizetype length, char decimalSeparator, double& value);
// Serial day numbers of the workbook (days since 1899-12-30) of a time given in seconds since
// 2000-01-01 and milliseconds: the whole day, and the fraction of the day.
double serialDay(qint64 secondsSince2000);
double dayFraction(qint64 secondsSince2000, int msec);
// Number formats of the date and time columns: the date in the locale's order (0 month-day-year,
// 1 day-month-year, 2 year-month-day) and the time with milliseconds when rows are closer than
// a second.
QString dateFormat(int dateOrder, const QString& dateSeparator);
QString timeFormat(bool milliseconds);
} // namespace ExcelCells
