#include "savedwork/RecordBytes.h"

#include "base/TextFile.h"
#include "base/clsLibrary.h"
#include "recording/Cp932.h"

#include <QFile>
#include <QtEndian>

#include <cstring>

void RecordWriter::i16(qint32 value) {
    const quint16 v = quint16(value);
    bytes_.append(char(v & 0xFF)).append(char(v >> 8));
}

void RecordWriter::i32(qint32 value) {
    u32(quint32(value));
}

void RecordWriter::u32(quint32 value) {
    char out[4];
    qToLittleEndian(value, out);
    bytes_.append(out, 4);
}

void RecordWriter::f64(double value) {
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    char out[8];
    qToLittleEndian(bits, out);
    bytes_.append(out, 8);
}

void RecordWriter::text(const QString& value, int width) {
    QByteArray encoded = Cp932::encode(value, width);
    encoded.append(QByteArray(width - encoded.size(), ' '));
    bytes_.append(encoded);
}

void RecordWriter::zeros(int count) {
    bytes_.append(QByteArray(count, '\0'));
}

quint64 RecordReader::unsignedField(int size) {
    quint64 value = 0;
    for (int i = 0; i < size; ++i) {
        const qsizetype at = pos_ + i;
        if (at >= 0 && at < bytes_.size()) value |= quint64(quint8(bytes_[at])) << (8 * i);
    }
    pos_ += size;
    return value;
}

qint16 RecordReader::i16() {
    return qint16(quint16(unsignedField(2)));
}

qint32 RecordReader::i32() {
    return qint32(quint32(unsignedField(4)));
}

double RecordReader::f64() {
    const quint64 bits = unsignedField(8);
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

QString RecordReader::text(int width) {
    QByteArray field(width, '\0');
    for (int i = 0; i < width; ++i) {
        const qsizetype at = pos_ + i;
        if (at < bytes_.size()) field[i] = bytes_[at];
    }
    pos_ += width;
    // A NUL never occurs inside a cp932 character, so the bytes can go before decoding.
    field.replace('\0', QByteArray());
    return Cp932::decode(field);
}

namespace RecordFile {

bool hasLength(const QString& path, qint64 length) {
    const QString size = clsLibrary::getFileSize(path, false);
    return !size.isEmpty() && size.toLongLong() == length;
}

bool read(const QString& path, QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    bytes = file.readAll();
    return true;
}

bool write(const QString& path, const QByteArray& bytes) {
    return TextFile::writeAtomically(path, bytes);
}

} // namespace RecordFile
