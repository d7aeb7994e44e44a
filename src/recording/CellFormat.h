#pragma once

#include <QString>
#include <QtGlobal>

// How the compact cells of a store column turn into the 8-character texts of the grid. A column
// holds 16-bit (or, for float files, 32-bit) raw cells; a format applies to a run of rows, so
// joined files with other decimals or scales keep their own rules.
struct CellFormat {
    static constexpr int kCellChars = 8;

    enum class Kind : quint8 {
        Alarm,    // four nibbles, level 1 first in the lowest; 0xF stands for no character
        Plain,    // signed 16-bit value through the plain rule
        Float2,   // two-byte float of exponent-format channels
        TmAnalog, // raw count scaled by the scale ends
        TmLog,    // raw count of a logarithmic channel
        Float32,  // IEEE single (32-bit cells)
    };
    Kind kind = Kind::Plain;
    qint8 decimals = 0;
    bool emptyScale = false; // TM: a scale end was blank, every cell reads "N.DATA"
    float scaleLow = 0;
    float scaleHigh = 0;

    bool wide() const { return kind == Kind::Float32; }
    // The cell's text, at most kCellChars characters.
    QString text(quint32 raw) const;

    static CellFormat plain(int decimals) { return {Kind::Plain, qint8(decimals), false, 0, 0}; }
    static CellFormat float2(int decimals) { return {Kind::Float2, qint8(decimals), false, 0, 0}; }
    static CellFormat alarm() { return {Kind::Alarm, 0, false, 0, 0}; }
    static CellFormat float32() { return {Kind::Float32, 0, false, 0, 0}; }
    bool operator==(const CellFormat&) const = default;

private:
    QString fullText(quint32 raw) const;
};

// Alarm cell values: four digits 0..9, or fewer characters when the high nibbles are 0xF.
namespace AlarmCell {
constexpr quint16 kNone = 0x0000;  // "0000"
constexpr quint16 kBlank = 0xFFFF; // ""

// The two digits of every alarm byte, computed once: the readers convert millions of them.
struct ByteDigits {
    quint8 digits[256];
    ByteDigits();
};
extern const ByteDigits kByteDigits;

// Four characters from two alarm bytes (first byte's two characters first).
inline quint16 fromBytes(quint8 first, quint8 second) {
    return quint16(kByteDigits.digits[first] | kByteDigits.digits[second] << 8);
}
// Two characters from one alarm byte.
inline quint16 fromByte(quint8 first) {
    return quint16(kByteDigits.digits[first] | 0xFF00);
}
QString text(quint16 cell);
} // namespace AlarmCell
