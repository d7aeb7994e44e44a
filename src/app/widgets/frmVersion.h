#pragma once

#include <QDialog>

// The version window: the program's name and version, the Qt version it runs on, and OK.
class frmVersion final : public QDialog {
    Q_OBJECT
public:
    explicit frmVersion(QWidget* parent = nullptr);
};

// The help file of the program (start-up names it).
void setHelpFile(const QString& path);
// Opens the manual's page for a window (its object name; the manual's start for none) in the
// desktop's viewer. Nothing happens for the Chinese GS edition, which has no help. False when
// no manual was found or it could not be opened.
bool ShowHelp(const QString& window = QString());
