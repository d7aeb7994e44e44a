#include "print/LineFile.h"

namespace {
constexpr qsizetype kFlushBytes = qsizetype(1) << 20; // large writes, one buffer
}

LineFile::LineFile(const QString& path) : file_(path) {}

bool LineFile::open() {
    buffer_.reserve(kFlushBytes + 4096);
    return file_.open(QIODevice::WriteOnly);
}

void LineFile::line(const QString& text) {
    line(text.toUtf8());
}

void LineFile::line(const char* utf8, size_t length) {
    buffer_.append(utf8, qsizetype(length));
    buffer_.append("\r\n", 2);
    if (buffer_.size() >= kFlushBytes) flush();
}

void LineFile::flush() {
    if (!failed_ && file_.write(buffer_) != buffer_.size()) failed_ = true;
    buffer_.clear();
}

bool LineFile::commit() {
    flush();
    if (failed_) {
        file_.cancelWriting();
        file_.commit();
        return false;
    }
    return file_.commit();
}
