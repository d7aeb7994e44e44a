#pragma once

#include <QString>

// What kind of file a list is written to, told by the name as the user typed it.
namespace ExportKind {
enum Kind { Csv = 1, Txt = 2 };

// The last three characters upper-cased: "CSV" is CSV, any other name is a tab-separated text.
Kind ofName(const QString& path);
// A workbook: the name ends in ".xlsx", in any case.
bool isWorkbook(const QString& path);
char separator(Kind kind);
// CSV is not offered where the decimal separator is a comma: numbers would split.
bool csvAllowed(const QString& decimalSeparator);
// The save dialog's filter: messages 274 and 275, or 275 alone.
QString dialogFilter(const QString& decimalSeparator);
} // namespace ExportKind
