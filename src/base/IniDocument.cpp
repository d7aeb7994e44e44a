#include "base/IniDocument.h"

#include "base/TextFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool isSectionHeader(const QString& trimmed) {
    return trimmed.startsWith(QLatin1Char('[')) && trimmed.contains(QLatin1Char(']'));
}

QString headerName(const QString& trimmed) {
    return trimmed.mid(1, trimmed.indexOf(QLatin1Char(']')) - 1).trimmed();
}

bool isComment(const QString& trimmed) {
    return trimmed.startsWith(QLatin1Char(';'));
}

} // namespace

bool IniDocument::load(const QString& path, QString* error) {
    lines_.clear();
    if (!QFileInfo::exists(path)) return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = file.errorString();
        return false;
    }
    const QByteArray bytes = file.readAll();
    newline_ = bytes.contains("\r\n") ? QStringLiteral("\r\n") : QStringLiteral("\n");
    lines_ = TextFile::splitLines(TextFile::decodeLocalText(bytes));
    return true;
}

bool IniDocument::save(const QString& path, QString* error) const {
    return TextFile::writeLines(path, lines_, error, newline_);
}

void IniDocument::setText(const QString& text) {
    lines_ = TextFile::splitLines(text);
}

QString IniDocument::text() const {
    QString out;
    for (const QString& line : lines_) out += line + newline_;
    return out;
}

int IniDocument::findSection(const QString& section) const {
    const QString wanted = section.trimmed();
    for (int i = 0; i < lines_.size(); ++i) {
        const QString t = lines_[i].trimmed();
        if (isSectionHeader(t) && headerName(t).compare(wanted, Qt::CaseInsensitive) == 0) return i;
    }
    return -1;
}

int IniDocument::sectionEnd(int header) const {
    int i = header + 1;
    while (i < lines_.size() && !isSectionHeader(lines_[i].trimmed())) ++i;
    return i;
}

int IniDocument::findKey(int header, const QString& key) const {
    const QString wanted = key.trimmed();
    const int end = sectionEnd(header);
    for (int i = header + 1; i < end; ++i) {
        const QString t = lines_[i].trimmed();
        const qsizetype eq = t.indexOf(QLatin1Char('='));
        if (isComment(t) || eq < 0) continue;
        if (t.left(eq).trimmed().compare(wanted, Qt::CaseInsensitive) == 0) return i;
    }
    return -1;
}

bool IniDocument::hasSection(const QString& section) const {
    return findSection(section) >= 0;
}

std::optional<QString> IniDocument::value(const QString& section, const QString& key) const {
    const int header = findSection(section);
    if (header < 0) return std::nullopt;
    const int line = findKey(header, key);
    if (line < 0) return std::nullopt;
    const QString& text = lines_[line];
    QString v = text.mid(text.indexOf(QLatin1Char('=')) + 1).trimmed();
    if (v.size() >= 2 && v.startsWith(QLatin1Char('"')) && v.endsWith(QLatin1Char('"')))
        v = v.mid(1, v.size() - 2);
    return v;
}

void IniDocument::setValue(const QString& section, const QString& key, const QString& value) {
    const QString entry = key.trimmed() + QLatin1Char('=') + value;
    int header = findSection(section);
    if (header < 0) {
        lines_.append(QLatin1Char('[') + section.trimmed() + QLatin1Char(']'));
        lines_.append(entry);
        return;
    }
    const int line = findKey(header, key);
    if (line >= 0) {
        lines_[line] = entry;
        return;
    }
    // After the last non-blank line of the section, so blank lines between sections stay.
    int insertAt = sectionEnd(header);
    while (insertAt > header + 1 && lines_[insertAt - 1].trimmed().isEmpty()) --insertAt;
    lines_.insert(insertAt, entry);
}

QStringList IniDocument::sectionLines(const QString& section) const {
    QStringList out;
    const int header = findSection(section);
    if (header < 0) return out;
    const int end = sectionEnd(header);
    for (int i = header + 1; i < end; ++i) {
        const QString t = lines_[i].trimmed();
        if (!t.isEmpty() && !isComment(t)) out.append(t);
    }
    return out;
}
