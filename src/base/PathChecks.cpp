#include "base/PathChecks.h"

#include <QFileInfo>

bool FileExists(const QString& path) {
    if (path.isEmpty() || path.contains(QLatin1Char('*')) || path.contains(QLatin1Char('?')))
        return false;
    QString p = path;
    if (p.size() > 1 && p.endsWith(QLatin1Char('/'))) p.chop(1);
    const QFileInfo info(p);
    return info.exists() && !info.isDir();
}

bool DirExists(const QString& path) {
    if (path.isEmpty()) return false;
    if (path == QLatin1String("/")) return true;
    return QFileInfo(path).isDir();
}
