#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The text of one settings file, kept line by line so that a write changes only the line it
// must. Section and key names match regardless of case; lines starting with ";" are comments.
class IniDocument {
public:
    // Reads the file (UTF-8, or cp932 for older files). A missing file is an empty document
    // and no error; false with `error` set for a file that exists but cannot be read.
    bool load(const QString& path, QString* error = nullptr);
    // Writes to a temporary name beside the file and renames it into place.
    bool save(const QString& path, QString* error = nullptr) const;

    void setText(const QString& text);
    QString text() const;

    // The trimmed value of a key, without enclosing double quotes; nullopt when the section or
    // the key is absent.
    std::optional<QString> value(const QString& section, const QString& key) const;
    bool hasSection(const QString& section) const;
    // Sets a key, adding the section at the end and the key after the section's last entry
    // as needed.
    void setValue(const QString& section, const QString& key, const QString& value);
    // The section's entry lines ("key=value"), trimmed, blank lines and comments left out.
    QStringList sectionLines(const QString& section) const;

private:
    // Index of the section's header line, or -1.
    int findSection(const QString& section) const;
    // One past the last line of the section whose header is at `header`.
    int sectionEnd(int header) const;
    int findKey(int header, const QString& key) const;

    QStringList lines_;
    QString newline_ = QStringLiteral("\n");
};
