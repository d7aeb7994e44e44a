#include "recording/Cp932.h"

#include <iconv.h>

#include <mutex>

namespace {

bool isAscii(const char* bytes, qsizetype length) {
    for (qsizetype i = 0; i < length; ++i)
        if (static_cast<unsigned char>(bytes[i]) >= 0x80) return false;
    return true;
}

// iconv descriptors are not thread-safe; conversions of non-ASCII text are rare and short.
std::mutex gMutex;

} // namespace

namespace Cp932 {

QString decode(const char* bytes, qsizetype length) {
    if (isAscii(bytes, length)) return QString::fromLatin1(bytes, length);
    std::lock_guard lock(gMutex);
    static iconv_t cd = iconv_open("UTF-16LE", "CP932");
    if (cd == iconv_t(-1)) return QString::fromLatin1(bytes, length);
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    QString out(length, Qt::Uninitialized);
    char* in = const_cast<char*>(bytes);
    size_t inLeft = size_t(length);
    char* outPtr = reinterpret_cast<char*>(out.data());
    size_t outLeft = size_t(length) * 2;
    while (inLeft > 0) {
        if (iconv(cd, &in, &inLeft, &outPtr, &outLeft) != size_t(-1)) break;
        if (outLeft < 2) break;
        // An invalid or cut byte sequence: show it as "?" and go on with the next byte.
        *reinterpret_cast<char16_t*>(outPtr) = u'?';
        outPtr += 2;
        outLeft -= 2;
        ++in;
        --inLeft;
    }
    out.truncate((reinterpret_cast<QChar*>(outPtr) - out.data()));
    return out;
}

QByteArray encode(const QString& text, qsizetype maxBytes) {
    QByteArray out;
    std::lock_guard lock(gMutex);
    static iconv_t cd = iconv_open("CP932", "UTF-16LE");
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text.at(i).isHighSurrogate() && i + 1 < text.size();
        char buf[8];
        char* in = const_cast<char*>(reinterpret_cast<const char*>(text.constData() + i));
        size_t inLeft = pair ? 4 : 2;
        char* outPtr = buf;
        size_t outLeft = sizeof buf;
        QByteArray piece;
        if (text.at(i).unicode() < 0x80) {
            piece = QByteArray(1, char(text.at(i).unicode()));
        } else if (cd != iconv_t(-1) && iconv(cd, &in, &inLeft, &outPtr, &outLeft) != size_t(-1)) {
            piece = QByteArray(buf, outPtr - buf);
        } else {
            piece = QByteArray(1, '?');
        }
        if (cd != iconv_t(-1)) iconv(cd, nullptr, nullptr, nullptr, nullptr);
        if (pair) ++i;
        if (maxBytes >= 0 && out.size() + piece.size() > maxBytes) break;
        out += piece;
    }
    return out;
}

} // namespace Cp932
