#include "base/clsINI.h"

#include "base/AppPaths.h"
#include "base/IniDocument.h"
#include "base/LogObject.h"
#include "base/NumberText.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Where a report comes from; all but the first begin with a full-width blank.
const QString kMarkGet = QStringLiteral("\u3000759->");
const QString kMarkPut = QStringLiteral("\u3000556->");
const QString kMarkEnum = QStringLiteral("\u3000763->");

} // namespace

QString iniValueText(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Double:
        return NumberText::doubleText(value.toDouble());
    case QMetaType::Float:
        return NumberText::singleText(value.toFloat());
    default:
        return value.toString();
    }
}

clsINI::clsINI() : iniPath_(AppPaths(0)), iniFileName_(exeTitle() + QStringLiteral(".ini")) {}

bool clsINI::setIniPath(const QString& path) {
    QString p = path;
    while (p.size() > 1 && p.endsWith(QLatin1Char('/'))) p.chop(1);
    if (p.isEmpty()) return false;
    const QFileInfo info(p);
    if (info.exists() && !info.isDir()) return false;
    iniPath_ = withTrailingSlash(p);
    return true;
}

int clsINI::setIniFileName(const QString& name) {
    if (name.isEmpty()) return 0;
    for (const QChar c : QStringLiteral("\\/:*?\"<>|"))
        if (name.contains(c)) return kBadFileName;
    iniFileName_ = name;
    return 0;
}

void clsINI::report(const QString& mark, const QString& description) {
    const QString text = mark + description;
    if (errorLog_) {
        if (errorLog_->putLog(this, 3, QStringLiteral("Exception:") + text)) return;
        errorLog_->LogWrite(QStringLiteral("clsINI Exception error :") + text);
        return;
    }
    LogWrite(QStringLiteral("clsINI Exception error :") + text);
}

bool clsINI::load(IniDocument& doc, const QString& mark) {
    QString error;
    if (doc.load(filePath(), &error)) return true;
    report(mark, error);
    return false;
}

void clsINI::getIniData(const QString& section, const QString& key, const QString& defaultValue,
                        bool noWriteBack, QString& result) {
    lastSection_ = section;
    lastKey_ = key;
    IniDocument doc;
    if (!load(doc, kMarkGet)) return;
    // What the profile read gives: the stored value, or the default for an absent or empty
    // key, cut to the buffer.
    const std::optional<QString> stored = doc.value(section, key);
    QString got = stored && !stored->isEmpty() ? *stored : defaultValue;
    got = got.left(std::max(0, bufferSize_ - 1));
    QString value = defaultValue;
    if (!got.isEmpty()) {
        const qsizetype nul = got.indexOf(QChar(0));
        value = nul >= 0 ? got.left(nul) : got;
        if (value.trimmed() == QLatin1String("vbBlank")) value.clear();
    }
    lastValue_ = value;
    result = value;
    if (value == defaultValue && !noWriteBack) putIniData(section, key, value);
}

QString clsINI::getIniData(const QString& section, const QString& key, const QString& defaultValue,
                           bool noWriteBack) {
    QString result;
    getIniData(section, key, defaultValue, noWriteBack, result);
    return result;
}

void clsINI::putIniData(const QString& section, const QString& key, const QVariant& value) {
    lastSection_ = section;
    lastKey_ = key;
    if (!value.isValid() || iniFileName_.isEmpty()) return;
    const QString text = iniValueText(value);
    lastValue_ = text;
    IniDocument doc;
    if (!load(doc, kMarkPut)) return;
    doc.setValue(section, key, text);
    QString error;
    if (!doc.save(filePath(), &error)) report(kMarkPut, error);
}

int clsINI::enumSectionString(const QString& section, QStringList& lines) {
    lastSection_ = section;
    IniDocument doc;
    if (!load(doc, kMarkEnum)) return -1;
    // The platform's section read has one buffer of 32767 characters, NUL-separated.
    constexpr int kSectionBuffer = 32767;
    lines.clear();
    int used = 1;
    for (const QString& line : doc.sectionLines(section)) {
        if (used + line.size() + 1 > kSectionBuffer) break;
        used += int(line.size()) + 1;
        lines.append(line);
    }
    return lines.isEmpty() ? -1 : int(lines.size());
}

int clsINI::clearSection(const QString& section) {
    QStringList lines;
    if (enumSectionString(section, lines) < 0) return 0;
    int changed = 0;
    for (const QString& line : lines) {
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        const QString key = eq < 0 ? line : line.left(eq);
        const QString value = eq < 0 ? QString() : line.mid(eq + 1);
        if (value.isEmpty()) continue;
        putIniData(section, key, QString());
        ++changed;
    }
    return changed;
}

// The system directories of this platform, each with a trailing "/".
QString clsINI::getWindowsPath() {
    return QStringLiteral("/etc/");
}

QString clsINI::getSystemPath() {
    return QStringLiteral("/usr/bin/");
}

QString clsINI::getWinTempPath() {
    return withTrailingSlash(QDir::tempPath());
}
