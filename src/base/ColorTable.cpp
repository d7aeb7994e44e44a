// clsLibrary: the colour table and the colour texts.
#include "base/clsLibrary.h"

#include "base/WinColor.h"

#include <QRegularExpression>

namespace {

constexpr int kNamedColours = 17;
constexpr quint32 kSystem = 0x80000000u;

} // namespace

const QList<ColorEntry>& clsLibrary::getColorTable() {
    static const QList<ColorEntry> table = {
        {"vbBlack", "Black", WinColor::rgb(0, 0, 0)},
        {"vbGray", "Gray", WinColor::rgb(128, 128, 128)},
        {"vbRed", "Red", WinColor::rgb(255, 0, 0)},
        {"vbLightRed", "Light red", WinColor::rgb(255, 128, 128)},
        {"vbPink", "Pink", WinColor::rgb(255, 192, 203)},
        {"vbOrange", "Orange", WinColor::rgb(255, 128, 0)},
        {"vbGreen", "Green", WinColor::rgb(0, 255, 0)},
        {"vbLightGreen", "Light green", WinColor::rgb(128, 255, 128)},
        {"vbYellow", "Yellow", WinColor::rgb(255, 255, 0)},
        {"vbLightYellow", "Light yellow", WinColor::rgb(255, 255, 192)},
        {"vbBlue", "Blue", WinColor::rgb(0, 0, 255)},
        {"vbLightBlue", "Light blue", WinColor::rgb(128, 128, 255)},
        {"vbMagenta", "Magenta", WinColor::rgb(255, 0, 255)},
        {"vbLightMagenta", "Light magenta", WinColor::rgb(255, 128, 255)},
        {"vbCyan", "Cyan", WinColor::rgb(0, 255, 255)},
        {"vbLightCyan", "Light cyan", WinColor::rgb(128, 255, 255)},
        {"vbWhite", "White", WinColor::rgb(255, 255, 255)},
        {"vbScrollBars", "Scroll bar", kSystem + 0},
        {"vbDesktop", "Desktop", kSystem + 1},
        {"vbActiveTitleBar", "Active title bar", kSystem + 2},
        {"vbInactiveTitleBar", "Inactive title bar", kSystem + 3},
        {"vbMenuBar", "Menu background", kSystem + 4},
        {"vbWindowBackground", "Window background", kSystem + 5},
        {"vbWindowFrame", "Window frame", kSystem + 6},
        {"vbMenuText", "Menu text", kSystem + 7},
        {"vbWindowText", "Window text", kSystem + 8},
        {"vbTitleBarText", "Title bar text", kSystem + 9},
        {"vbActiveBorder", "Active border", kSystem + 10},
        {"vbInactiveBorder", "Inactive border", kSystem + 11},
        {"vbApplicationWorkspace", "Application workspace", kSystem + 12},
        {"vbHighlight", "Highlight", kSystem + 13},
        {"vbHighlightText", "Highlight text", kSystem + 14},
        {"vbButtonFace", "Button face", kSystem + 15},
        {"vbButtonShadow", "Button shadow", kSystem + 16},
        {"vbGrayText", "Gray text", kSystem + 17},
        {"vbButtonText", "Button text", kSystem + 18},
        {"vbInactiveCaptionText", "Inactive caption text", kSystem + 19},
        {"vb3DHighlight", "3D highlight", kSystem + 20},
        {"vb3DDKShadow", "3D dark shadow", kSystem + 21},
        {"vb3DLight", "3D light", kSystem + 22},
        {"vb3DFace", "3D face", kSystem + 15},
        {"vb3DShadow", "3D shadow", kSystem + 16},
        {"vbInfoText", "Tool tip text", kSystem + 23},
        {"vbInfoBackground", "Tool tip background", kSystem + 24},
        {"Option", "Other colour", 0},
    };
    return table;
}

bool clsLibrary::StrToColor(const QString& text, quint32& result) {
    const QString t = text.trimmed();
    result = 0;
    bool ok = false;
    if (t.startsWith(QLatin1String("vb"), Qt::CaseInsensitive)) {
        const QList<ColorEntry>& table = getColorTable();
        for (int i = 0; i + 1 < table.size(); ++i) {
            if (t.compare(QLatin1String(table[i].name), Qt::CaseInsensitive) == 0) {
                result = table[i].value;
                return true;
            }
        }
        return false;
    }
    if (t.startsWith(QLatin1String("&h"), Qt::CaseInsensitive)) {
        QString hex = t.mid(2);
        if (hex.endsWith(QLatin1Char('&'))) hex.chop(1);
        result = hex.toUInt(&ok, 16);
        if (!ok) result = 0;
        return ok;
    }
    if (t.startsWith(QLatin1String("RGB"), Qt::CaseInsensitive)) {
        static const QRegularExpression separators(QStringLiteral("[(),\\s]+"));
        const QStringList parts = t.mid(3).split(separators, Qt::SkipEmptyParts);
        if (parts.size() != 3) return false;
        int c[3] = {0, 0, 0};
        for (int i = 0; i < 3; ++i) {
            c[i] = int(toLong(parts[i]));
            if (c[i] < 0 || c[i] > 255) return false;
        }
        result = WinColor::rgb(c[0], c[1], c[2]);
        return true;
    }
    const double d = t.toDouble(&ok);
    if (!ok || d < 0 || d > 4294967295.0) return false;
    result = quint32(d);
    return true;
}

QString clsLibrary::ColorToStr(quint32 color) {
    const QList<ColorEntry>& table = getColorTable();
    for (int i = 0; i < kNamedColours; ++i)
        if (table[i].value == color) return QLatin1String(table[i].name);
    return QStringLiteral("&h%1")
        .arg(color, 6, 16, QLatin1Char('0'))
        .toUpper()
        .replace(0, 2, QStringLiteral("&h"));
}
