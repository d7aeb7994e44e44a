#include "savedwork/RecordNames.h"

#include "base/AppPaths.h"

namespace RecordNames {

QString writePath(const QString& name) {
    return AppPaths(1) + name;
}

QString readPath(const QString& name) {
    return AppPaths(2) + name;
}

QString backupPath(const QString& stem, int viewNumber) {
    return AppPaths(3) + stem + QString::number(viewNumber) + QStringLiteral(".sys");
}

} // namespace RecordNames
