#pragma once

#include "platform/Progress.h"

#include <QDialog>

class QLabel;
class QProgressBar;

// The small window of long work: a message, a bar and a cancel button. poll() lets the events
// of the program run, so the window (and the others) stay responsive while a view loads.
class frmProgress final : public QDialog, public Progress {
    Q_OBJECT
public:
    explicit frmProgress(QWidget* parent = nullptr);
    void setMessage(const QString& text);
    void setValue(int percent) override;
    bool poll() override;

private:
    QLabel* message_;
    QProgressBar* bar_;
    bool cancelled_ = false;
};
