#include "app/widgets/ViewForms.h"

#include "app/widgets/TrMdiForm.h"
#include "recording/ViewSlots.h"
#include "recording/ViewState.h"
#include "trend/widgets/frmScrollTime.h"

#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>

ViewForms::ViewForms(TrMdiForm* frame) : QObject(frame), frame_(frame) {}

frmScrollTime* ViewForms::ViewForm(int n) const {
    return n >= 1 && n <= int(forms_.size()) ? forms_[size_t(n - 1)].data() : nullptr;
}

frmScrollTime* ViewForms::ensure(int n) {
    if (n < 1 || n > int(forms_.size())) return nullptr;
    if (frmScrollTime* form = ViewForm(n)) return form;
    auto* form = new frmScrollTime(n);
    form->setObjectName(QStringLiteral("frmScrollTime%1").arg(n));
    forms_[size_t(n - 1)] = form;
    setViewInUse(n - 1, true);
    connect(form, &frmScrollTime::viewClosed, this, &ViewForms::closed);
    connect(form, &frmScrollTime::filesDropped, this, &ViewForms::filesDropped);
    connect(form, &frmScrollTime::openFilesRequested, this, &ViewForms::openFilesRequested);
    QMdiSubWindow* sub = frame_->addChild(form);
    place(sub, n);
    sub->show();
    return form;
}

void ViewForms::place(QMdiSubWindow* sub, int n) {
    // The frame's tool bar may have come since its last layout: place by the area as it stands.
    if (frame_->layout() != nullptr) frame_->layout()->activate();
    const QRect area = frame_->mdiArea()->viewport()->rect();
    // The only view fills the work area; later ones stand a little below and right of the
    // top left, at a useful size.
    if (openCount() == 1) {
        sub->setGeometry(area);
        return;
    }
    const int step = 28 * ((n - 1) % 6);
    sub->setGeometry(step, step, qMax(480, area.width() * 4 / 5), qMax(320, area.height() * 4 / 5));
}

void ViewForms::fitIfAlone(int n) {
    frmScrollTime* form = ViewForm(n);
    auto* sub = form != nullptr ? qobject_cast<QMdiSubWindow*>(form->parentWidget()) : nullptr;
    if (sub != nullptr && openCount() == 1 && !sub->isMaximized() && !sub->isMinimized())
        place(sub, n);
}

int ViewForms::openCount() const {
    int count = 0;
    for (const auto& form : forms_)
        if (form) ++count;
    return count;
}

void ViewForms::bringForward(int n) {
    frmScrollTime* form = ViewForm(n);
    if (form == nullptr) return;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(form->parentWidget())) {
        if (sub->isMinimized()) sub->showNormal();
        sub->raise();
        frame_->mdiArea()->setActiveSubWindow(sub);
    }
    frame_->raise();
    frame_->activateWindow();
}

void ViewForms::closed(int n) {
    if (n < 1 || n > int(forms_.size())) return;
    forms_[size_t(n - 1)] = nullptr;
    setViewInUse(n - 1, false);
}
