#include "savedwork/BoundedArrays.h"

#include "recording/Cp932.h"
#include "savedwork/RecordBytes.h"

#include <cstdint>

namespace {

constexpr qint32 kMaxArrays = 1024;

// A whole number for an integer entry; what does not fit is clamped, NaN gives 0.
qint32 word(double v, qint32 low, qint32 high) {
    if (!(v == v)) return 0;
    return qint32(qBound(double(low), v, double(high)));
}

void encodeEntries(RecordWriter& w, const BoundedArray& a) {
    switch (a.kind) {
    case BoundedArray::Kind::Int16:
        for (const double v : a.numbers) w.i16(word(v, -32768, 32767));
        break;
    case BoundedArray::Kind::Int32:
        for (const double v : a.numbers) w.i32(word(v, INT32_MIN, INT32_MAX));
        break;
    case BoundedArray::Kind::Float64:
        for (const double v : a.numbers) w.f64(v);
        break;
    case BoundedArray::Kind::Text:
        for (const QString& t : a.texts) {
            const QByteArray bytes = Cp932::encode(t);
            w.i32(qint32(bytes.size()));
            w.text(t, int(bytes.size()));
        }
        break;
    }
}

int entryBytes(BoundedArray::Kind kind) {
    switch (kind) {
    case BoundedArray::Kind::Int16:
        return 2;
    case BoundedArray::Kind::Int32:
        return 4;
    case BoundedArray::Kind::Float64:
        return 8;
    case BoundedArray::Kind::Text:
        return 4; // at least its byte count
    }
    return 0;
}

// Reads the entries of one array whose kind and bounds are already in `a`.
bool decodeEntries(const QByteArray& bytes, RecordReader& r, BoundedArray& a, qint64 count) {
    for (qint64 i = 0; i < count; ++i) {
        switch (a.kind) {
        case BoundedArray::Kind::Int16:
            a.numbers.append(r.i16());
            break;
        case BoundedArray::Kind::Int32:
            a.numbers.append(r.i32());
            break;
        case BoundedArray::Kind::Float64:
            a.numbers.append(r.f64());
            break;
        case BoundedArray::Kind::Text: {
            const qint32 size = r.i32();
            if (size < 0 || size > bytes.size() - r.position()) return false;
            a.texts.append(Cp932::decode(bytes.constData() + r.position(), size));
            r.skip(size);
            break;
        }
        }
    }
    return r.position() <= bytes.size();
}

} // namespace

namespace BoundedArrays {

QByteArray encode(const QVector<BoundedArray>& arrays) {
    RecordWriter w;
    w.i32(kFormVersion);
    w.i32(qint32(arrays.size()));
    for (const BoundedArray& a : arrays) {
        w.i32(qint32(a.kind));
        w.i32(a.lower);
        w.i32(a.upper());
        encodeEntries(w, a);
    }
    return w.bytes();
}

bool decode(const QByteArray& bytes, QVector<BoundedArray>& arrays) {
    RecordReader r(bytes);
    if (bytes.size() < 8 || r.i32() != kFormVersion) return false;
    const qint32 arrayCount = r.i32();
    if (arrayCount < 0 || arrayCount > kMaxArrays) return false;
    QVector<BoundedArray> out;
    for (qint32 n = 0; n < arrayCount; ++n) {
        BoundedArray a;
        const qint32 kind = r.i32();
        if (kind < 1 || kind > 4) return false;
        a.kind = BoundedArray::Kind(kind);
        a.lower = r.i32();
        const qint64 count = qint64(r.i32()) - a.lower + 1;
        const qint64 room = bytes.size() - r.position();
        if (r.position() > bytes.size() || count < 0 || count * entryBytes(a.kind) > room)
            return false;
        if (!decodeEntries(bytes, r, a, count)) return false;
        out.append(std::move(a));
    }
    arrays = std::move(out);
    return true;
}

} // namespace BoundedArrays
