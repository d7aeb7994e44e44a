#include "app/widgets/AppIcon.h"

#include "base/AppPaths.h"

#include <QFileInfo>

QIcon recviewIcon() {
    QIcon icon;
    const QString dir = AppPaths(0);
    for (const QString& theme : {dir + QStringLiteral("icons/hicolor/"),
                                 dir + QStringLiteral("../share/icons/hicolor/")}) {
        for (int size : {16, 24, 32, 48, 64, 128, 256}) {
            const QString file = theme + QStringLiteral("%1x%1/apps/recview.png").arg(size);
            if (QFileInfo(file).isFile()) icon.addFile(file, QSize(size, size));
        }
        if (!icon.isNull()) return icon;
    }
    return QIcon::fromTheme(QStringLiteral("recview"));
}
