#include "analysis/widgets/frmSkipSet.h"

#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

frmSkipSet::frmSkipSet(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmSkipSet"));
    setWindowTitle(MsgText(285));
    Label1_ = new QLabel(SkipSetLabel(SystemDecimalSep()), this);
    Option1_ = new QRadioButton(QStringLiteral("全て印字する。"), this);
    Option2_ = new QRadioButton(MsgText(285), this);
    Text1_ = new QLineEdit(this);
    Text1_->setMaxLength(10);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(MsgText(46), QDialogButtonBox::AcceptRole);
    buttons->addButton(MsgText(47), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QGridLayout(this);
    layout->addWidget(Label1_, 0, 0, 1, 2);
    layout->addWidget(Option1_, 1, 0, 1, 2);
    layout->addWidget(Option2_, 2, 0);
    layout->addWidget(Text1_, 2, 1);
    layout->addWidget(buttons, 3, 0, 1, 2);

    const qint32 count = SkipCount();
    Option1_->setChecked(count <= 0);
    Option2_->setChecked(count > 0);
    if (count > 0) Text1_->setText(QString::number(count));
    Text1_->setEnabled(count > 0);
    connect(Option2_, &QRadioButton::toggled, Text1_, &QWidget::setEnabled);
}

void frmSkipSet::accept() {
    SkipCount() = Option1_->isChecked() ? 0 : SkipCountFromText(Text1_->text());
    QDialog::accept();
}
