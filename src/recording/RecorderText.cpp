#include "recording/RecorderText.h"

#include "recording/Cp932.h"

#include <QByteArray>

#include <iconv.h>

#include <mutex>

namespace {

std::mutex gMutex; // iconv descriptors are not thread-safe

QString decodeSingleByte(const QByteArray& bytes) {
    std::lock_guard lock(gMutex);
    static iconv_t cd = iconv_open("UTF-16LE", RecorderText::kSystemCodePage);
    if (cd == iconv_t(-1)) return QString::fromLatin1(bytes);
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    QString out;
    for (char c : bytes) {
        char in[1] = {c};
        char16_t unit = u'?';
        char* inPtr = in;
        char* outPtr = reinterpret_cast<char*>(&unit);
        size_t inLeft = 1, outLeft = sizeof unit;
        iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft); // an unmapped byte stays "?"
        out += QChar(unit);
    }
    return out;
}

QChar recorderCode(uchar b) {
    switch (b) {
    case 0xF0:
        return QChar(0xFF9F); // cp932 0xDF
    case 0xF2:
        return QLatin1Char('2');
    case 0xF3:
        return QLatin1Char('3');
    case 0xF4:
        return QChar(0x03A9); // cp932 0x83B6
    case 0xF5:
        return QChar(0x03BC); // cp932 0x83CA
    default:
        return QChar();
    }
}

bool isLeadByte(uchar b) {
    return (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xEF);
}

} // namespace

namespace RecorderText {

QString decode(const uchar* bytes, qsizetype size, qsizetype offset, qsizetype length,
               bool japanese) {
    QString out;
    QByteArray run; // bytes of the code page not yet decoded
    const auto flush = [&] {
        if (run.isEmpty()) return;
        out += japanese ? Cp932::decode(run) : decodeSingleByte(run);
        run.clear();
    };
    if (offset < 0 || length <= 0 || offset >= size) return out;
    const qsizetype end = std::min(size, offset + length);
    for (qsizetype i = offset; i < end; ++i) {
        const uchar b = bytes[i];
        if (b == 0) break;
        if (japanese && isLeadByte(b) && i + 1 < size) {
            run.append(char(b)).append(char(bytes[i + 1]));
            ++i;
            continue;
        }
        const QChar code = recorderCode(b);
        if (code.isNull()) {
            run.append(char(b));
            continue;
        }
        flush();
        out += code;
    }
    flush();
    return out;
}

} // namespace RecorderText
