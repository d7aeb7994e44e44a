#pragma once

#include <QString>
#include <QtGlobal>

// The rows that file output and printing leave out after each row they write, shared by every
// list of the program (the list on the screen is never skipped). Default 0.
qint32& SkipCount();

// The row step of output: SkipCount + 1.
qint32 SkipStep();

// The count of frmSkipSet's text box: digits as a number; text that is not a number, and a
// negative number, count as 0; a count beyond the largest that leaves SkipCount + 1 a 32-bit
// number is held there.
qint32 SkipCountFromText(const QString& text);

// The label of frmSkipSet: message 207 and the outputs it applies to (no CSV where the decimal
// separator is a comma).
QString SkipSetLabel(const QString& decimalSeparator);
