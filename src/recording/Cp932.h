#pragma once

#include <QByteArray>
#include <QString>

// Recorder texts and our fixed-width records are in cp932 (Shift-JIS with Windows extensions).
namespace Cp932 {

QString decode(const char* bytes, qsizetype length);
inline QString decode(const QByteArray& bytes) {
    return decode(bytes.constData(), bytes.size());
}

// Encodes at most maxBytes bytes, cut on a character boundary; a character that cp932 cannot
// hold becomes "?". A negative maxBytes means no limit.
QByteArray encode(const QString& text, qsizetype maxBytes = -1);

} // namespace Cp932
