#include "ftp/widgets/frmEthernet.h"

#include "base/LanguageTable.h"
#include "ftp/FtpTable.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

frmEthernet::frmEthernet(FtpTable& table, QWidget* parent)
    : QDialog(parent), table_(table), retry_(new QComboBox(this)), wait_(new QComboBox(this)) {
    setObjectName(QStringLiteral("frmEthernet"));
    setWindowTitle(MsgText(465));
    retry_->setObjectName(QStringLiteral("cmbRetry"));
    wait_->setObjectName(QStringLiteral("cmbWait"));
    for (int n = 0; n <= 20; ++n) retry_->addItem(QString::number(n) + MsgText(469));
    // Index 0 is one second, the only entry under ten; then 10 .. 100 seconds.
    wait_->addItem(QStringLiteral("1") + MsgText(195));
    for (int s = 10; s <= 100; s += 10) wait_->addItem(QString::number(s) + MsgText(195));
    retry_->setCurrentIndex(qBound(0, int(table.Retry), 20));
    wait_->setCurrentIndex(qBound(0, int(table.Wait), 10));
    auto* set = new QPushButton(MsgText(466), this);
    set->setObjectName(QStringLiteral("cmdSet"));
    connect(set, &QPushButton::clicked, this, [this] {
        cmdSet();
        accept();
    });
    auto* close = new QPushButton(MsgText(18), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* form = new QFormLayout(this);
    form->addRow(MsgText(467), retry_);
    form->addRow(MsgText(468), wait_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(set);
    buttons->addWidget(close);
    form->addRow(buttons);
}

void frmEthernet::cmdSet() {
    table_.Retry = retry_->currentIndex();
    table_.Wait = wait_->currentIndex();
}
