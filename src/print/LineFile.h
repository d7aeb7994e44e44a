#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

// A text file written line by line in UTF-8 with CR LF, no BOM. It goes to a temporary name
// beside the target and replaces the target only on commit, so a failed or cancelled write
// leaves no half file and an older file under the name stays as it was.
class LineFile {
public:
    explicit LineFile(const QString& path);
    LineFile(const LineFile&) = delete;
    LineFile& operator=(const LineFile&) = delete;

    bool open();
    // The line's text and CR LF.
    void line(const QString& text);
    void line(const QByteArray& utf8) { line(utf8.constData(), size_t(utf8.size())); }
    void line(const char* utf8, size_t length);
    // Writes what is left and renames into place; false on any write error.
    bool commit();

private:
    void flush();

    QSaveFile file_;
    QByteArray buffer_;
    bool failed_ = false;
};
