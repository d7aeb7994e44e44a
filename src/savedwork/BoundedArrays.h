#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

// The form of the records that hold arrays of varying size (PenData.sys, crlData.sys):
//   32-bit form version (1), 32-bit array count, then for each array
//   32-bit kind, 32-bit lower bound, 32-bit upper bound (lower - 1 when empty), its entries.
// Entries are 16-bit, 32-bit, 64-bit float, or texts of a 32-bit byte count and cp932 bytes.
// All numbers little-endian.
struct BoundedArray {
    enum class Kind : qint32 { Int16 = 1, Int32 = 2, Float64 = 3, Text = 4 };

    Kind kind = Kind::Int32;
    qint32 lower = 0;
    QVector<double> numbers; // the entries of a numeric kind
    QStringList texts;       // the entries of Text

    qsizetype count() const { return kind == Kind::Text ? texts.size() : numbers.size(); }
    qint32 upper() const { return lower + qint32(count()) - 1; }
};

namespace BoundedArrays {

constexpr qint32 kFormVersion = 1;

QByteArray encode(const QVector<BoundedArray>& arrays);
// False, with `arrays` untouched, for another form version, an unknown kind, bounds that do
// not fit, or bytes that end early.
bool decode(const QByteArray& bytes, QVector<BoundedArray>& arrays);

} // namespace BoundedArrays
