#pragma once

#include <QDialog>

// The version window: the program's name and version, the Qt version it runs on, and OK.
class frmVersion final : public QDialog {
    Q_OBJECT
public:
    explicit frmVersion(QWidget* parent = nullptr);
};

// The help file of the program (start-up sets it beside the program).
void setHelpFile(const QString& path);
// Opens the help in the desktop's viewer: the HTML help beside the help file when there is one,
// otherwise the README of the program. Nothing happens for the Chinese GS edition, which has no
// help. False when no help was found or it could not be opened.
bool ShowHelp();
