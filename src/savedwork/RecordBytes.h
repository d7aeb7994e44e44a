#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <array>

// Little-endian, packed field codecs of the fixed records. A record is built whole in memory and
// moved to or from its file by one call.

class RecordWriter {
public:
    void i16(qint32 value); // the low 16 bits
    void i32(qint32 value);
    void u32(quint32 value);
    void f64(double value);
    // cp932, cut on a character boundary at `width` bytes and blank-filled to it.
    void text(const QString& value, int width);
    void zeros(int count);

    template <typename T, size_t N> void i16s(const std::array<T, N>& values) {
        for (const T v : values) i16(qint32(v));
    }
    template <typename T, size_t N> void i32s(const std::array<T, N>& values) {
        for (const T v : values) i32(qint32(v));
    }
    template <size_t N> void f64s(const std::array<double, N>& values) {
        for (const double v : values) f64(v);
    }

    // A field by its type, so that one list of fields serves writing and reading.
    void field(qint16 value) { i16(value); }
    void field(qint32 value) { i32(value); }
    void field(double value) { f64(value); }
    template <typename T, size_t N> void field(const std::array<T, N>& values) {
        for (const T& v : values) field(v);
    }

    const QByteArray& bytes() const { return bytes_; }

private:
    QByteArray bytes_;
};

// Reads fields in order; a field past the end of the bytes reads as zero.
class RecordReader {
public:
    explicit RecordReader(const QByteArray& bytes) : bytes_(bytes) {}

    qint16 i16();
    qint32 i32();
    quint32 u32() { return quint32(i32()); }
    double f64();
    // The text of a fixed field with its NUL characters removed; the blank fill stays.
    QString text(int width);
    void skip(int count) { pos_ += count; }
    qsizetype position() const { return pos_; }

    template <typename T, size_t N> void i16s(std::array<T, N>& values) {
        for (T& v : values) v = T(i16());
    }
    template <typename T, size_t N> void i32s(std::array<T, N>& values) {
        for (T& v : values) v = T(i32());
    }
    template <size_t N> void f64s(std::array<double, N>& values) {
        for (double& v : values) v = f64();
    }

    void field(qint16& value) { value = i16(); }
    void field(qint32& value) { value = i32(); }
    void field(double& value) { value = f64(); }
    template <typename T, size_t N> void field(std::array<T, N>& values) {
        for (T& v : values) field(v);
    }

private:
    quint64 unsignedField(int size);

    const QByteArray& bytes_;
    qsizetype pos_ = 0;
};

// The files of the records.
namespace RecordFile {

// Whether the file's length, read through the utility class's size routine, is `length`.
bool hasLength(const QString& path, qint64 length);

// Reads a whole file with one call. False, leaving `bytes` alone, when the file is missing or
// cannot be read. An empty file gives empty bytes.
bool read(const QString& path, QByteArray& bytes);

// Writes bytes under a temporary name beside `path` and renames it into place.
bool write(const QString& path, const QByteArray& bytes);

} // namespace RecordFile
