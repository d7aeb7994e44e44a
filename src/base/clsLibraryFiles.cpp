// clsLibrary: files, paths and file name checks.
#include "base/clsLibrary.h"

#include "base/PathChecks.h"
#include "base/VbFormat.h"
#include "base/clsConst.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStorageInfo>

namespace {

const QString kBadNameChars = QStringLiteral("\\/:*?\"<>|");

QStringList sortedByName(QStringList names) {
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        const int c = a.compare(b, Qt::CaseInsensitive);
        return c != 0 ? c < 0 : a < b;
    });
    return names;
}

QStringList filesMatching(const QString& directory, const QRegularExpression& re) {
    const QDir dir(directory);
    if (directory.isEmpty() || !dir.exists()) return {QString()};
    QStringList names;
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden | QDir::System))
        if (re.match(name).hasMatch()) names.append(name);
    return sortedByName(names);
}

} // namespace

bool clsLibrary::FileExists(const QString& path) {
    return ::FileExists(path);
}

bool clsLibrary::DirExists(const QString& path) {
    return ::DirExists(path);
}

bool clsLibrary::makeDir(const QString& path) {
    if (!QDir::isAbsolutePath(path)) return false;
    if (::DirExists(path)) return true;
    if (path.startsWith(QLatin1String("//"))) {
        const QStringList parts = path.mid(2).split(QLatin1Char('/'), Qt::SkipEmptyParts);
        if (parts.size() < 2) return false;
        const QString share = QStringLiteral("//") + parts[0] + QLatin1Char('/') + parts[1];
        if (!::DirExists(share)) return false;
    }
    return QDir().mkpath(path);
}

QString clsLibrary::getFileTitle(const QString& path) {
    return QFileInfo(path).fileName();
}

// The name without its folder and without the part from its last dot on.
QString clsLibrary::getFileTitleEx(const QString& path) {
    const QString name = getFileTitle(path);
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.left(dot) : name;
}

QString clsLibrary::getFileSize(const QString& path, bool grouped) {
    const QFileInfo info(path);
    if (!info.exists() || info.isDir()) return QString();
    const double size = double(info.size());
    if (!grouped) return VbFormat::formatNumber(size, QStringLiteral("0"));
    return VbFormat::formatNumber(size, QStringLiteral("#,##0"),
                                  clsConst::shared().displaySeparators());
}

QStringList clsLibrary::getFileList(const QString& directory, const QString& pattern) {
    // "*.*" means every file, also one without an extension.
    const QString wildcard = pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern;
    const QRegularExpression re(QRegularExpression::wildcardToRegularExpression(wildcard),
                                QRegularExpression::CaseInsensitiveOption);
    return filesMatching(directory, re);
}

QStringList clsLibrary::getFolderList(const QString& directory) {
    const QDir dir(directory);
    if (directory.isEmpty() || !dir.exists()) return {};
    return sortedByName(dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden));
}

bool clsLibrary::checkFileName(const QString& name) {
    if (name.trimmed().isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    for (const QChar c : kBadNameChars)
        if (name.contains(c)) return false;
    for (const QChar c : name)
        if (c.unicode() < 32) return false;
    return true;
}

qint64 clsLibrary::getDiskFreeSP(const QString& path) {
    const QStorageInfo info(path);
    return info.isValid() ? info.bytesAvailable() : 0;
}
