#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <cstring>

// Byte-level writes for the fixture writers: the buffer grows as needed.
namespace fixtures::bytes {

inline void put(QByteArray& b, qint64 at, const void* data, qint64 n) {
    if (b.size() < at + n) b.resize(at + n, '\0');
    std::memcpy(b.data() + at, data, size_t(n));
}
inline void putU16Le(QByteArray& b, qint64 at, quint16 v) {
    const uchar x[2] = {uchar(v), uchar(v >> 8)};
    put(b, at, x, 2);
}
inline void putU16Be(QByteArray& b, qint64 at, quint16 v) {
    const uchar x[2] = {uchar(v >> 8), uchar(v)};
    put(b, at, x, 2);
}
inline void putU32Le(QByteArray& b, qint64 at, quint32 v) {
    const uchar x[4] = {uchar(v), uchar(v >> 8), uchar(v >> 16), uchar(v >> 24)};
    put(b, at, x, 4);
}
inline void putU32Be(QByteArray& b, qint64 at, quint32 v) {
    const uchar x[4] = {uchar(v >> 24), uchar(v >> 16), uchar(v >> 8), uchar(v)};
    put(b, at, x, 4);
}
inline void putF32Le(QByteArray& b, qint64 at, float f) {
    quint32 v;
    std::memcpy(&v, &f, 4);
    putU32Le(b, at, v);
}
// Text cut to `width` bytes; the rest of the field is left as it is.
inline void putText(QByteArray& b, qint64 at, const QByteArray& text, int width) {
    put(b, at, text.constData(), qMin<qint64>(text.size(), width));
    if (b.size() < at + width) b.resize(at + width, '\0');
}

} // namespace fixtures::bytes
