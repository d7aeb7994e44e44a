#include "recording/widgets/frmProgress.h"

#include "base/LanguageTable.h"
#include "base/widgets/ApplyLanguageFont.h"
#include "recording/ViewState.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

frmProgress::frmProgress(QWidget* parent, int viewNumber)
    : QDialog(parent), viewNumber_(viewNumber) {
    setObjectName(QStringLiteral("frmProgress"));
    ApplyLanguageFont(this);
    setWindowTitle(QCoreApplication::applicationName());
    setWindowModality(Qt::ApplicationModal);
    message_ = new QLabel(MsgText(96), this);
    bar_ = new QProgressBar(this);
    bar_->setRange(0, 100);
    auto* btnCancel = new QPushButton(MsgText(47), this);
    btnCancel->setObjectName(QStringLiteral("btnCancel"));
    connect(btnCancel, &QPushButton::clicked, this, &frmProgress::Cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(message_);
    layout->addWidget(bar_);
    layout->addWidget(btnCancel, 0, Qt::AlignRight);
    setMinimumWidth(360);
}

void frmProgress::setMessage(const QString& text) {
    message_->setText(text);
}

void frmProgress::setValue(int percent) {
    bar_->setValue(percent);
}

void frmProgress::Cancel() {
    cancelled_ = true;
    if (viewNumber_ >= 1) views(viewNumber_).ViewCancel = true;
}

bool frmProgress::poll() {
    // Events are let through at most every 50 ms: polls come between rows.
    static QElapsedTimer sinceLast;
    if (!sinceLast.isValid() || sinceLast.elapsed() > 50) {
        QCoreApplication::processEvents();
        sinceLast.restart();
    }
    const bool cancel = cancelled_;
    cancelled_ = false;
    return cancel;
}
