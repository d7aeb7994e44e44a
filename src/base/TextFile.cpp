#include "base/TextFile.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <iconv.h>

#include <cerrno>
#include <vector>

namespace TextFile {

namespace {

// cp932 to UTF-8 through iconv; a byte sequence it cannot read becomes U+FFFD.
QString decodeCp932(const QByteArray& bytes) {
    iconv_t cd = iconv_open("UTF-8", "CP932");
    if (cd == reinterpret_cast<iconv_t>(-1)) return QString::fromLatin1(bytes);
    std::vector<char> out(static_cast<size_t>(bytes.size()) * 3 + 16);
    QByteArray in = bytes;
    char* inPtr = in.data();
    size_t inLeft = static_cast<size_t>(in.size());
    char* outPtr = out.data();
    size_t outLeft = out.size();
    QByteArray result;
    while (inLeft > 0) {
        if (iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft) != static_cast<size_t>(-1)) break;
        if (errno == E2BIG) break; // cannot happen: three bytes out for each byte in suffice
        result.append(out.data(), outPtr - out.data());
        result.append("\xEF\xBF\xBD");
        outPtr = out.data();
        outLeft = out.size();
        ++inPtr;
        --inLeft;
    }
    result.append(out.data(), outPtr - out.data());
    iconv_close(cd);
    return QString::fromUtf8(result);
}

} // namespace

QByteArray encodeCp932(const QString& text) {
    QByteArray out;
    iconv_t cd = iconv_open("CP932", "UTF-8");
    if (cd == reinterpret_cast<iconv_t>(-1)) return text.toLatin1();
    for (const char32_t ch : text.toUcs4()) {
        QByteArray in = QString::fromUcs4(&ch, 1).toUtf8();
        char buf[8];
        char* inPtr = in.data();
        size_t inLeft = static_cast<size_t>(in.size());
        char* outPtr = buf;
        size_t outLeft = sizeof buf;
        iconv(cd, nullptr, nullptr, nullptr, nullptr);
        if (iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft) == static_cast<size_t>(-1))
            out.append('?');
        else
            out.append(buf, outPtr - buf);
    }
    iconv_close(cd);
    return out;
}

QString decodeLocalText(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    if (utf8.hasError()) return decodeCp932(bytes);
    if (text.startsWith(QChar(0xFEFF))) text.remove(0, 1);
    return text;
}

QStringList splitLines(const QString& text) {
    QStringList lines = text.split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    for (QString& line : lines)
        if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
    return lines;
}

bool readLines(const QString& path, QStringList& lines, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = file.errorString();
        return false;
    }
    lines = splitLines(decodeLocalText(file.readAll()));
    return true;
}

bool writeAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        if (error) *error = file.errorString();
        return false;
    }
    return true;
}

bool writeLines(const QString& path, const QStringList& lines, QString* error,
                const QString& newline) {
    QString text;
    for (const QString& line : lines) text += line + newline;
    return writeAtomically(path, text.toUtf8(), error);
}

} // namespace TextFile
