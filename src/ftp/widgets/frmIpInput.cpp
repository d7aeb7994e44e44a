#include "ftp/widgets/frmIpInput.h"

#include "base/LanguageTable.h"
#include "ftp/IpInput.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmIpInput::frmIpInput(const QString& address, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmIpInput"));
    setWindowTitle(MsgText(243));
    const QStringList parts = IpInput::split(address);
    auto* row = new QHBoxLayout;
    for (int k = 0; k < 4; ++k) {
        auto* box = new QLineEdit(parts.value(k), this);
        box->setMaxLength(3);
        box->setFixedWidth(48);
        boxes_[k] = box;
        row->addWidget(box);
        if (k < 3) row->addWidget(new QLabel(QStringLiteral("."), this));
        connect(box, &QLineEdit::textEdited, this, [this, k](const QString& text) {
            const QString held = IpInput::clamp(text);
            if (held != text) boxes_[k]->setText(held);
            if (held.size() == 3 && k < 3) {
                boxes_[k + 1]->setFocus();
                boxes_[k + 1]->selectAll();
            }
        });
    }
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(MsgText(466), QDialogButtonBox::AcceptRole);
    buttons->addButton(MsgText(47).trimmed(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(MsgText(568), this));
    layout->addLayout(row);
    layout->addWidget(buttons);
}

QString frmIpInput::result() const {
    QStringList parts;
    for (QLineEdit* b : boxes_) parts << b->text();
    return IpInput::join(parts);
}

QString frmIpInput::ShowModeress(QWidget* owner, const QString& address) {
    frmIpInput dialog(address, owner);
    return dialog.exec() == QDialog::Accepted ? dialog.result() : address;
}
