#pragma once

#include <QString>

// Default texts of numbers, as the system shows a value that has no pattern of its own.
namespace NumberText {

// At most 15 significant digits, trailing zeros dropped; plain notation for
// 1E-04 <= |x| < 1E+15, otherwise "1E+308", "1.5E-05" (sign and at least two exponent digits).
QString doubleText(double value);

// The same notation with at most 7 significant digits: 3.3f gives "3.3", not "3.29999995".
QString singleText(float value);

// Integer value / 10^decimals written exactly with that many decimals ("-12.30" for -1230, 2).
QString scaledIntegerText(qint64 value, int decimals);

} // namespace NumberText
