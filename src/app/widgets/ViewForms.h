#pragma once

#include "recording/RecordingLimits.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <array>

class QMdiSubWindow;
class TrMdiForm;
class frmScrollTime;

// The view windows of the program, one entry a view number (the ViewForm table): an entry is
// made when its view opens and emptied when the window closes, which frees the view's slot
// (ViewInUse) and its recording.
class ViewForms final : public QObject {
    Q_OBJECT
public:
    explicit ViewForms(TrMdiForm* frame);

    // The window of view n (1..10), or nullptr while the entry is empty.
    frmScrollTime* ViewForm(int n) const;
    // The window of view n, made and placed in the frame when the entry is empty; the slot is
    // taken.
    frmScrollTime* ensure(int n);
    int openCount() const;
    // Shows the view's window in front of the others and makes it the active one.
    void bringForward(int n);
    // A view that is the only one fills the work area (once its window has its final size).
    void fitIfAlone(int n);

Q_SIGNALS:
    void filesDropped(int viewNumber, const QStringList& paths);
    void openFilesRequested(int viewNumber);

private:
    void place(QMdiSubWindow* sub, int n);
    void closed(int n);

    TrMdiForm* frame_;
    std::array<QPointer<frmScrollTime>, MaxViews> forms_;
};
