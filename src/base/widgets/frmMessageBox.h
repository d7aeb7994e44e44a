#pragma once

#include "base/MessageSink.h"

#include <QDialog>

class QLabel;

// The message box of the program: its own window so that the button captions come from the
// language table (OK 46, Cancel 47, Abort 263, Retry 264, Ignore 265, Yes 266, No 267). It
// sizes itself to the text, takes the foreground and stays above the other windows.
class frmMessageBox final : public QDialog {
    Q_OBJECT
public:
    frmMessageBox(const QString& text, int flags, const QString& title, QWidget* parent = nullptr);

    // Shows the box modally; returns the pressed button (1 OK .. 7 No). Closing the window
    // answers as the last button of the set (Cancel or No where there is one).
    static int MsgBox(const QString& text, int flags, const QString& title,
                      QWidget* parent = nullptr);

    int pressed() const { return result_; }

private:
    int result_ = 0;
};

// The sink that the desktop program installs with setMessageSink: every ShowMsg opens a
// frmMessageBox over the active window.
class MessageBoxSink final : public MessageSink {
public:
    int show(const QString& text, int flags, const QString& title) override;
};
