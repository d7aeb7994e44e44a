#pragma once

#include "base/Progress.h"

#include <QDialog>

class QLabel;
class QProgressBar;

// The small window of long work: a message (message 96), a bar and btnCancel (message 47).
// poll() lets the events of the program run, so the windows stay drawn while a view loads; the
// window is modal, so that nothing else starts meanwhile. Cancel sets the view's cancel flag
// (ViewCancel) as well when a view number is given; the caller asks message 574 before it stops.
class frmProgress final : public QDialog, public Progress {
    Q_OBJECT
public:
    explicit frmProgress(QWidget* parent = nullptr, int viewNumber = 0);
    void setMessage(const QString& text);
    void setValue(int percent) override;
    bool poll() override;
    // What btnCancel does.
    void Cancel();

private:
    QLabel* message_;
    QProgressBar* bar_;
    int viewNumber_;
    bool cancelled_ = false;
};
