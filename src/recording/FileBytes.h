#pragma once

#include <QByteArray>
#include <QString>

// The bytes of one recorder file and typed reads of its fields. A read beyond the end throws
// ReadPastEnd, which the readers turn into their failure message.
struct ReadPastEnd {};

class FileBytes {
public:
    FileBytes() = default;
    explicit FileBytes(QByteArray owned)
        : owned_(std::move(owned)), data_(reinterpret_cast<const uchar*>(owned_.constData())),
          size_(owned_.size()) {}
    // Borrows memory that outlives this object (a mapped file).
    FileBytes(const uchar* data, qint64 size) : data_(data), size_(size) {}
    FileBytes(const FileBytes&) = delete;
    FileBytes& operator=(const FileBytes&) = delete;
    ~FileBytes();

    // Takes a whole file: mapped read-only and prefaulted where the system allows (no copy of
    // the file), else read with one call (pipes, special files). False when it cannot be read.
    bool load(const QString& path);
    // Off: every file is read with one call instead of mapped (the two give the same bytes; the
    // tests load every family both ways).
    static inline bool mapFiles = true;

    // Gives back the mapped pages wholly inside from..to once a reader has passed them, so that a
    // long file does not stay resident beside the store it is decoded into. Reads there still
    // work (the pages come back from the file). Safe from several threads.
    void dropRange(qint64 from, qint64 to) const;

    qint64 size() const { return size_; }
    const uchar* data() const { return data_; }
    bool has(qint64 offset, qint64 length) const {
        return offset >= 0 && length >= 0 && offset <= size_ && length <= size_ - offset;
    }
    void require(qint64 offset, qint64 length) const {
        if (!has(offset, length)) throw ReadPastEnd();
    }

    quint8 ReadByte(qint64 offset) const {
        require(offset, 1);
        return data_[offset];
    }
    quint16 ReadU16Le(qint64 offset) const;
    quint16 ReadU16Be(qint64 offset) const;
    qint16 ReadI16Le(qint64 offset) const { return qint16(ReadU16Le(offset)); }
    qint16 ReadI16Be(qint64 offset) const { return qint16(ReadU16Be(offset)); }
    quint32 ReadU32Le(qint64 offset) const;
    quint32 ReadU32Be(qint64 offset) const;
    float ReadF32Le(qint64 offset) const;
    // cp932 text; NUL bytes are skipped and trailing blanks trimmed.
    QString ReadText(qint64 offset, qint64 length) const;
    // The first four bytes as text ("" for a shorter file).
    QByteArray magic() const;

private:
    void release();

    QByteArray owned_;
    const uchar* data_ = nullptr;
    qint64 size_ = 0;
    void* mapping_ = nullptr; // set while data_ is a mapping of its own
};
