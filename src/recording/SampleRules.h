#pragma once

#include <QString>
#include <QtGlobal>

// How one raw sample becomes the 8-character cell text, and alarm bytes become alarm digits.
namespace SampleRules {

// 16-bit signed value v with d decimals (decimals outside 0..4 count as 0 for the text, the
// value is still divided by 10^d): a number, a status word or the blank cell ("").
QString plainText(qint16 v, int decimals);

// IEEE single of N5F float files: the shortest text, with 100000 / 200000 / -100000 / -200000
// read as "OVER" / "BURN" / "UNDER" / "N.DATA".
QString floatText(float f);

// Two-byte float of exponent-format channels, w = b0 + 256 b1.
QString float2Text(quint16 w, int decimals);

// Two alarm characters of one alarm byte: "0".."7" each, from bits 0-3 and 4-7.
// Returned as two digit values (0..7) packed in the low and high nibble of the result.
quint8 alarmByteDigits(quint8 b);

// Alarm bit form: levels 1..4 from bits 0..3, 9 when set, 0 when clear; packed as four nibbles,
// level 1 in the lowest.
quint16 alarmBitDigits(quint8 bits);

// Digits after the decimal sign of a text: characters behind the first "." of the trimmed text.
int decimalsOf(const QString& text);

} // namespace SampleRules
