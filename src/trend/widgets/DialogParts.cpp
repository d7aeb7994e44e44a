#include "trend/widgets/DialogParts.h"

#include "base/LanguageTable.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

QDialogButtonBox* okCancelButtons(QDialog* dialog, const std::function<void()>& ok,
                                  const std::function<void()>& preview) {
    auto* box = new QDialogButtonBox(dialog);
    QPushButton* okButton = box->addButton(MsgText(46), QDialogButtonBox::AcceptRole);
    okButton->setObjectName(QStringLiteral("btnOK"));
    okButton->setDefault(true);
    QPushButton* cancel = box->addButton(MsgText(47), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("btnCancel"));
    QObject::connect(okButton, &QPushButton::clicked, dialog, ok);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    if (preview) {
        QPushButton* button = box->addButton(MsgText(45), QDialogButtonBox::ApplyRole);
        button->setObjectName(QStringLiteral("btnPreview"));
        QObject::connect(button, &QPushButton::clicked, dialog, preview);
    }
    return box;
}

QLineEdit* numberEdit(QWidget* parent, const char* objectName) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(objectName));
    edit->setAlignment(Qt::AlignRight);
    return edit;
}
