#pragma once

#include "recording/SelectionLists.h"

#include <QRect>
#include <QString>
#include <QVector>

#include <optional>

// Rules of the main window, kept apart from the window so that they run headless.
namespace WindowRules {

// Where the restored main window goes: the saved rectangle cut to the screen, or nothing when
// it is smaller than 320 x 240 or lies off the screen.
std::optional<QRect> restoredGeometry(const QRect& saved, const QRect& screen);

// Tool bar buttons 2 and 3 tile side by side (mode 0) and one above the other (mode 1); a single
// view always fills the area from top to bottom.
int tilingMode(int button, int openViews);
// The rectangles of `count` windows tiled in `area`, in order; edges meet without gaps.
QVector<QRect> tiles(int mode, int count, const QRect& area);

// One poll of the hand-off file.
struct HandOffPoll {
    bool started = false; // start-up has finished
    bool anyViewLoading = false;
    bool fileWaiting = false;  // the hand-off file exists
    bool settingsOpen = false; // a settings window that refuses hand-offs is open
    int freeView = 0;          // the first free view, 0 when all are in use
};
enum class HandOff {
    Later,   // nothing done; the next poll tries again
    Nothing, // no file
    Discard, // the file is removed unread
    Open,    // the file is read, removed, and the selection opened in freeView
};
HandOff handOffStep(const HandOffPoll& poll);

// Reads the hand-off file into `sel` and removes it before anything is loaded, so that a file
// written by another instance during the load is not lost. False when it named no files (it is
// removed all the same).
bool takeClickFile(SelectionLists& sel, const QString& path);

} // namespace WindowRules
