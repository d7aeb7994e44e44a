#pragma once

#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

// The window position file "Pos.ini" in the program's settings directory: one section per
// window (a window of a control array has its Tag appended), keys "LEFT", "TOP", "WIDTH",
// "HEIGHT" and "SPLITLEFT" for a divider.
namespace PosIni {

// A window whose left and top are not both inside the screen moves to the centre: left =
// (screen width - width) / 2, top = (screen height - height) / 5, in integer arithmetic.
QRect placeOnScreen(const QRect& window, const QSize& screen);

// Reads LEFT and TOP (default -100) and WIDTH and HEIGHT (default: the current size), then
// places the window on the screen. The defaults are written back as clsINI does.
QRect loadFormSize(const QString& section, const QRect& current, const QSize& screen);

// Writes the four keys, and SPLITLEFT when a divider position is given.
void saveFormSize(const QString& section, const QRect& window,
                  std::optional<int> splitLeft = std::nullopt);

// The file: getIniFilePath("", false) + "Pos.ini".
QString filePath();

} // namespace PosIni
