#include "recording/FileBytes.h"

#include "recording/Cp932.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

FileBytes::~FileBytes() {
    release();
}

void FileBytes::release() {
    if (mapping_) munmap(mapping_, size_t(size_));
    mapping_ = nullptr;
    owned_.clear();
    data_ = nullptr;
    size_ = 0;
}

bool FileBytes::load(const QString& path) {
    release();
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    struct stat st {};
    bool ok = false;
    if (mapFiles && fstat(fd, &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 0) {
        // Prefaulted in one go: the decode then reads the page cache with no faults of its own.
        void* m = mmap(nullptr, size_t(st.st_size), PROT_READ, MAP_PRIVATE | MAP_POPULATE, fd, 0);
        if (m != MAP_FAILED) {
            mapping_ = m;
            data_ = static_cast<const uchar*>(m);
            size_ = st.st_size;
            ok = true;
        }
    }
    ::close(fd);
    if (ok) return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    owned_ = file.readAll();
    data_ = reinterpret_cast<const uchar*>(owned_.constData());
    size_ = owned_.size();
    return file.error() == QFileDevice::NoError;
}

void FileBytes::dropRange(qint64 from, qint64 to) const {
    if (!mapping_) return;
    static const qint64 page = sysconf(_SC_PAGESIZE);
    const qint64 begin = (std::max<qint64>(from, 0) + page - 1) / page * page;
    const qint64 end = std::min(to, size_) / page * page;
    if (end > begin)
        madvise(static_cast<char*>(mapping_) + begin, size_t(end - begin), MADV_DONTNEED);
}

quint16 FileBytes::ReadU16Le(qint64 o) const {
    require(o, 2);
    return quint16(data_[o] | data_[o + 1] << 8);
}

quint16 FileBytes::ReadU16Be(qint64 o) const {
    require(o, 2);
    return quint16(data_[o] << 8 | data_[o + 1]);
}

quint32 FileBytes::ReadU32Le(qint64 o) const {
    require(o, 4);
    return quint32(data_[o]) | quint32(data_[o + 1]) << 8 | quint32(data_[o + 2]) << 16 |
           quint32(data_[o + 3]) << 24;
}

quint32 FileBytes::ReadU32Be(qint64 o) const {
    require(o, 4);
    return quint32(data_[o]) << 24 | quint32(data_[o + 1]) << 16 | quint32(data_[o + 2]) << 8 |
           quint32(data_[o + 3]);
}

float FileBytes::ReadF32Le(qint64 o) const {
    const quint32 bits = ReadU32Le(o);
    float f;
    std::memcpy(&f, &bits, sizeof f);
    return f;
}

QString FileBytes::ReadText(qint64 offset, qint64 length) const {
    require(offset, length);
    QByteArray bytes;
    bytes.reserve(length);
    for (qint64 i = 0; i < length; ++i)
        if (data_[offset + i] != 0) bytes.append(char(data_[offset + i]));
    QString text = Cp932::decode(bytes);
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == QLatin1Char(' ')) --end;
    text.truncate(end);
    return text;
}

QByteArray FileBytes::magic() const {
    return size_ >= 4 ? QByteArray(reinterpret_cast<const char*>(data_), 4) : QByteArray();
}
