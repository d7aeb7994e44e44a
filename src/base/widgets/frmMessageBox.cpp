#include "base/widgets/frmMessageBox.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "base/widgets/ApplyLanguageFont.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

QStyle::StandardPixmap iconOf(int flags) {
    switch (flags & 0x70) {
    case kFlagCritical:
        return QStyle::SP_MessageBoxCritical;
    case kFlagQuestion:
        return QStyle::SP_MessageBoxQuestion;
    case kFlagExclamation:
        return QStyle::SP_MessageBoxWarning;
    default:
        return QStyle::SP_MessageBoxInformation;
    }
}

} // namespace

frmMessageBox::frmMessageBox(const QString& text, int flags, const QString& title, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmMessageBox"));
    ApplyLanguageFont(this);
    setWindowTitle(title);
    setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto* icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(iconOf(flags), nullptr, this).pixmap(side, side));
    auto* label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("lblMessage"));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Wide enough for a usual line, wrapping only very long texts.
    label->setMaximumWidth(720);
    label->setWordWrap(label->fontMetrics().horizontalAdvance(text) > 720);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const QList<MessageBoxButton> set = messageBoxButtons(flags);
    result_ = set.last().code;
    for (const MessageBoxButton& b : set) {
        auto* button = new QPushButton(MsgText(b.captionMessage), this);
        button->setObjectName(QStringLiteral("btn%1").arg(b.code));
        button->setMinimumWidth(88);
        connect(button, &QPushButton::clicked, this, [this, code = b.code] {
            result_ = code;
            accept();
        });
        buttons->addWidget(button);
        if (&b == &set.first()) button->setDefault(true);
    }

    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(12);
    top->addWidget(label, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addSpacing(8);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

int frmMessageBox::MsgBox(const QString& text, int flags, const QString& title, QWidget* parent) {
    frmMessageBox box(text, flags, title, parent);
    box.raise();
    box.activateWindow();
    box.exec();
    return box.pressed();
}

int MessageBoxSink::show(const QString& text, int flags, const QString& title) {
    QApplication::beep();
    return frmMessageBox::MsgBox(text, flags, title, QApplication::activeWindow());
}
