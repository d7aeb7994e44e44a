#include "ftp/FtpEntry.h"

#include "base/TextFile.h"

double entrySize(quint64 bytes) {
    const auto low = double(qint32(quint32(bytes & 0xFFFFFFFFu)));
    const auto high = quint32(bytes >> 32);
    if (high > 0) return double(high) * 4294967297.0 + low;
    return low;
}

bool isPlainFileName(const QByteArray& raw) {
    if (raw.isEmpty() || raw == "." || raw == "..") return false;
    for (const char c : raw) {
        const auto u = static_cast<unsigned char>(c);
        if (u < 0x20 || u == 0x7F || c == '/' || c == '\\') return false;
    }
    return true;
}

QString decodeRemoteName(const QByteArray& raw) {
    return TextFile::decodeLocalText(raw);
}
