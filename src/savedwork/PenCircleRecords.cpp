#include "savedwork/PenCircleRecords.h"

#include "savedwork/BoundedArrays.h"
#include "savedwork/RecordBytes.h"
#include "savedwork/RecordNames.h"

namespace {

template <typename T>
BoundedArray numeric(BoundedArray::Kind kind, qint32 lower, const QVector<T>& values) {
    BoundedArray a;
    a.kind = kind;
    a.lower = lower;
    for (const T v : values) a.numbers.append(double(v));
    return a;
}

template <typename T>
bool take(const BoundedArray& a, BoundedArray::Kind kind, qint32 lower, qsizetype count,
          QVector<T>& out) {
    if (a.kind != kind || a.lower != lower || a.count() != count) return false;
    out.clear();
    for (const double v : a.numbers) out.append(T(v));
    return true;
}

bool readArrays(const QString& name, QVector<BoundedArray>& arrays) {
    QByteArray bytes;
    return RecordFile::read(RecordNames::readPath(name), bytes) &&
           BoundedArrays::decode(bytes, arrays);
}

} // namespace

bool WritePenData(const PenDataRecord& r) {
    using K = BoundedArray::Kind;
    QVector<qint32> colors; // as signed 32-bit words, so that the double holds them exactly
    for (const quint32 c : r.Color) colors.append(qint32(c));
    const QVector<BoundedArray> arrays{
        numeric(K::Int32, r.Lower, colors),       numeric(K::Int16, r.Lower, r.Pattern),
        numeric(K::Int16, r.Lower, r.Width),      numeric(K::Int16, r.Lower, r.Symbol),
        numeric(K::Int16, r.Lower, r.SymbolSize), numeric(K::Int16, r.Lower, r.Shown)};
    return RecordFile::write(RecordNames::writePath(RecordNames::PenData),
                             BoundedArrays::encode(arrays));
}

bool ReadPenData(PenDataRecord& record) {
    using K = BoundedArray::Kind;
    QVector<BoundedArray> a;
    if (!readArrays(RecordNames::PenData, a) || a.size() != 6) return false;
    PenDataRecord r;
    r.Lower = a[0].lower;
    const qsizetype n = a[0].count();
    QVector<qint32> color;
    if (!take(a[0], K::Int32, r.Lower, n, color) || !take(a[1], K::Int16, r.Lower, n, r.Pattern) ||
        !take(a[2], K::Int16, r.Lower, n, r.Width) || !take(a[3], K::Int16, r.Lower, n, r.Symbol) ||
        !take(a[4], K::Int16, r.Lower, n, r.SymbolSize) ||
        !take(a[5], K::Int16, r.Lower, n, r.Shown))
        return false;
    for (const qint32 c : color) r.Color.append(quint32(c));
    record = std::move(r);
    return true;
}

bool WritecrlData(const CrlDataRecord& record) {
    BoundedArray a;
    a.kind = BoundedArray::Kind::Text;
    a.lower = record.Lower;
    for (const QString& mark : record.Marks)
        a.texts.append(mark.isEmpty() ? QString::fromLatin1(kNoData) : mark);
    return RecordFile::write(RecordNames::writePath(RecordNames::crlData),
                             BoundedArrays::encode({a}));
}

bool ReadcrlData(CrlDataRecord& record) {
    QVector<BoundedArray> a;
    if (!readArrays(RecordNames::crlData, a) || a.size() != 1 ||
        a[0].kind != BoundedArray::Kind::Text)
        return false;
    record.Lower = a[0].lower;
    record.Marks.clear();
    for (const QString& mark : a[0].texts)
        record.Marks.append(mark == QLatin1String(kNoData) ? QString() : mark);
    return true;
}
