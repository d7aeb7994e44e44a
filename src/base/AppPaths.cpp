#include "base/AppPaths.h"

#include "base/LanguageTable.h"
#include "base/PathChecks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <array>

namespace {

std::array<QString, 5>& paths() {
    static std::array<QString, 5> p;
    return p;
}

} // namespace

QString AppPaths(int index) {
    if (index < 0 || index > 4) return QString();
    if (index == 0 && paths()[0].isEmpty()) paths()[0] = programDirectory();
    return paths()[index];
}

void setAppPath(int index, const QString& path) {
    if (index >= 0 && index <= 4) paths()[index] = path;
}

QString withTrailingSlash(const QString& dir) {
    return dir.endsWith(QLatin1Char('/')) ? dir : dir + QLatin1Char('/');
}

QString programDirectory() {
    QString dir =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    return withTrailingSlash(dir);
}

QString shippedFile(const QString& name) {
    const QString dir = AppPaths(0);
    for (const QString& path : {dir + name, dir + QStringLiteral("../share/recview/") + name})
        if (QFileInfo(path).isFile()) return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return QString();
}

QString exeTitle() {
    if (!QCoreApplication::instance()) return QStringLiteral("recview");
    return QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
}

QString userDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/recview");
}

void setWorkPaths(const QString& dataFolder, int operationMode) {
    QDir().mkpath(dataFolder);
    QString base = dataFolder;
    if (operationMode == 4) {
        base += QStringLiteral("/ZUW");
        if (!DirExists(base)) QDir().mkdir(base);
    }
    setAppPath(1, base + QStringLiteral("/analysis/TrndSet/"));
    setAppPath(2, base + QStringLiteral("/analysis/TrndZip/"));
    setAppPath(3, base + QStringLiteral("/analysis/WK/"));
    setAppPath(4, base + QStringLiteral("/analysis/"));
}

bool createWorkDirectories() {
    // One level at a time: "analysis/" must exist before its three children.
    for (int index = 4; index >= 1; --index) {
        const QString dir = AppPaths(index);
        if (!DirExists(dir) && !QDir().mkdir(dir)) return false;
    }
    return true;
}

bool initAppPaths(int operationMode) {
    setAppPath(0, programDirectory());
    setWorkPaths(userDataFolder(), operationMode);
    return createWorkDirectories();
}

QString defaultGroupName(int group) {
    return MsgText(204) + QString::number(group);
}
