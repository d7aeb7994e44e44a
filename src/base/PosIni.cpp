#include "base/PosIni.h"

#include "base/clsINI.h"
#include "base/clsLibrary.h"

namespace PosIni {

namespace {

clsINI posFile() {
    clsINI ini;
    ini.setIniPath(clsLibrary::getIniFilePath(QString(), false));
    ini.setIniFileName(QStringLiteral("Pos.ini"));
    return ini;
}

int readNumber(clsINI& ini, const QString& section, const char* key, int defaultValue) {
    const QString text = ini.getIniData(section, QLatin1String(key), QString::number(defaultValue));
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

} // namespace

QString filePath() {
    return posFile().filePath();
}

QRect placeOnScreen(const QRect& window, const QSize& screen) {
    const bool leftInside = window.left() >= 0 && window.left() < screen.width();
    const bool topInside = window.top() >= 0 && window.top() < screen.height();
    if (leftInside && topInside) return window;
    QRect placed = window;
    placed.moveTo((screen.width() - window.width()) / 2, (screen.height() - window.height()) / 5);
    return placed;
}

QRect loadFormSize(const QString& section, const QRect& current, const QSize& screen) {
    clsINI ini = posFile();
    const int left = readNumber(ini, section, "LEFT", -100);
    const int top = readNumber(ini, section, "TOP", -100);
    const int width = readNumber(ini, section, "WIDTH", current.width());
    const int height = readNumber(ini, section, "HEIGHT", current.height());
    return placeOnScreen(QRect(left, top, width, height), screen);
}

void saveFormSize(const QString& section, const QRect& window, std::optional<int> splitLeft) {
    clsINI ini = posFile();
    ini.putIniData(section, QStringLiteral("LEFT"), window.left());
    ini.putIniData(section, QStringLiteral("TOP"), window.top());
    ini.putIniData(section, QStringLiteral("WIDTH"), window.width());
    ini.putIniData(section, QStringLiteral("HEIGHT"), window.height());
    if (splitLeft) ini.putIniData(section, QStringLiteral("SPLITLEFT"), *splitLeft);
}

} // namespace PosIni
