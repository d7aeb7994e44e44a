#pragma once

#include <QString>

// The operation mode that "GSmode.ini" beside the program selects, and the title strings of
// that mode.
struct GSModeState {
    QString GSModeFileName = QStringLiteral("GSmode.ini");
    QString GSModePath;    // the program directory
    QString GSTitleSuffix; // " MOVRA for GS" in GS mode, "" otherwise
    QString GSMainTitle;   // key "Title" of section "frmMain" of GSmode.ini, in GS mode
};

GSModeState& GSMode();

// Start-up step 8: OperationMode 0, or 34 when "GSmode.ini" exists in AppPaths(0) (an empty file
// counts); in GS mode the title strings are filled. Returns the mode.
int selectOperationMode();

// The title of the main window: the GS title in GS mode when it is set, else `normalTitle`.
QString mainWindowTitle(const QString& normalTitle);
