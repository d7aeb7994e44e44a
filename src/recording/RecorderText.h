#pragma once

#include <QString>
#include <QtGlobal>

// Texts that recorders write into their files: Shift-JIS pairs in the Japanese setting, single
// bytes of the system's code page otherwise, and a few recorder codes of their own.
namespace RecorderText {

// The single-byte code page that stands for the system's code page outside the Japanese
// setting. Windows-1252 is what the recorders' western models write.
inline constexpr const char* kSystemCodePage = "CP1252";

// The text of at most `length` bytes from `offset`. With `japanese`, a lead byte (0x81..0x9F,
// 0xE0..0xEF) takes the next byte with it, also across the end of the field (the walk then
// ends there) but never beyond the buffer. The recorder codes 0xF0, 0xF2..0xF5 become the
// characters U+FF9F, "2", "3", U+03A9 and U+03BC in every setting. A 0 byte ends the text.
QString decode(const uchar* bytes, qsizetype size, qsizetype offset, qsizetype length,
               bool japanese);

} // namespace RecorderText
