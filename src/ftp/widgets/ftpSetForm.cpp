#include "ftp/widgets/ftpSetForm.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "ftp/FTPFile.h"
#include "ftp/widgets/frmEthernet.h"
#include "ftp/widgets/frmIpInput.h"
#include "ftp/widgets/ftpDir.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { kTag = 0, kAddress, kPassword, kBrowse, kVxDir, kChoose, kPcDir };

QString masked(const QString& password) {
    return QString(password.size(), QLatin1Char('*'));
}

} // namespace

QString ftpSetForm::acceptTime(const QString& text, int max, int& lastAccepted) {
    if (text.trimmed().isEmpty()) return text;
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    if (ok && value >= 0 && value <= max) {
        lastAccepted = value;
        return text.trimmed();
    }
    return QString::number(lastAccepted);
}

ftpSetForm::ftpSetForm(FTPFile& file, QWidget* parent)
    : QDialog(parent), file_(file), check_(new QCheckBox(this)), hour_(new QLineEdit(this)),
      minute_(new QLineEdit(this)), grid_(new QTableWidget(FtpTable::kRows, 7, this)),
      lastHour_(file.table.RegularH), lastMinute_(file.table.RegularM) {
    setObjectName(QStringLiteral("ftpSetForm"));
    setWindowTitle(MsgText(465));
    check_->setObjectName(QStringLiteral("Check"));
    check_->setChecked(file.table.FileReadFlg != 0);
    const auto timeBox = [this](QLineEdit* box, int value, int max, int* last) {
        box->setText(QString::number(value));
        box->setMaxLength(2);
        box->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d*")), box));
        connect(box, &QLineEdit::editingFinished, this,
                [box, max, last] { box->setText(acceptTime(box->text(), max, *last)); });
    };
    timeBox(hour_, file.table.RegularH, 23, &lastHour_);
    timeBox(minute_, file.table.RegularM, 59, &lastMinute_);
    grid_->setObjectName(QStringLiteral("vaSpread1"));
    grid_->setHorizontalHeaderLabels({MsgText(478), MsgText(243),
                                      MsgText(248) + QLatin1Char('\n') + MsgText(479), QString(),
                                      MsgText(480), QString(), MsgText(481)});
    for (int r = 1; r <= FtpTable::kRows; ++r) {
        const FtpRow& row = *file.table.row(r);
        const auto cell = [&](int col, const QString& text, bool editable) {
            auto* item = new QTableWidgetItem(text);
            if (!editable) item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            grid_->setItem(r - 1, col, item);
            return item;
        };
        cell(kTag, row.Tag, true);
        cell(kAddress, row.IPAddress, false);
        cell(kPassword, masked(row.Password), false)->setData(Qt::UserRole, row.Password);
        cell(kBrowse, QString(), false)
            ->setIcon(style()->standardIcon(QStyle::SP_FileDialogContentsView));
        cell(kVxDir, row.VXDir, true);
        cell(kChoose, QString(), false)->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
        cell(kPcDir, row.PCDir, true);
    }
    connect(grid_, &QTableWidget::cellDoubleClicked, this,
            [this](int r, int c) { cellActivated(r + 1, c + 1); });
    connect(grid_, &QTableWidget::cellClicked, this, [this](int r, int c) {
        if (c == kBrowse || c == kChoose) cellActivated(r + 1, c + 1);
    });
    auto* ethernet = new QPushButton(MsgText(465), this);
    connect(ethernet, &QPushButton::clicked, this, [this] {
        frmEthernet dialog(file_.table, this);
        dialog.exec();
    });
    auto* ok = new QPushButton(MsgText(46), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    connect(ok, &QPushButton::clicked, this, [this] {
        cmdOK();
        accept();
    });
    auto* cancel = new QPushButton(MsgText(47), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* times = new QHBoxLayout;
    times->addWidget(check_);
    times->addWidget(hour_);
    times->addWidget(minute_);
    times->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(ethernet);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(times);
    layout->addWidget(grid_);
    layout->addLayout(buttons);
    resize(900, 560);
}

void ftpSetForm::cellActivated(int row, int column) {
    const int r = row - 1;
    switch (column - 1) {
    case kAddress: {
        QTableWidgetItem* item = grid_->item(r, kAddress);
        item->setText(frmIpInput::ShowModeress(this, item->text()));
        break;
    }
    case kPassword: {
        QTableWidgetItem* item = grid_->item(r, kPassword);
        bool ok = false;
        const QString password =
            QInputDialog::getText(this, MsgText(248), MsgText(248), QLineEdit::Password,
                                  item->data(Qt::UserRole).toString(), &ok);
        if (ok) {
            item->setData(Qt::UserRole, password);
            item->setText(masked(password));
        }
        break;
    }
    case kBrowse: {
        ftpDir dir(file_, this);
        dir.openAt(grid_->item(r, kAddress)->text(),
                   grid_->item(r, kPassword)->data(Qt::UserRole).toString());
        if (dir.exec() == QDialog::Accepted) grid_->item(r, kVxDir)->setText(dir.chosenPath());
        file_.FTPConectClose();
        break;
    }
    case kChoose: {
        // Named as the main window's hand-off refusal knows it.
        QFileDialog dialog(this, MsgText(481), grid_->item(r, kPcDir)->text());
        dialog.setObjectName(QStringLiteral("frmDirectory"));
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
            grid_->item(r, kPcDir)->setText(dialog.selectedFiles().first());
        break;
    }
    default:
        break;
    }
}

void ftpSetForm::cmdOK() {
    FtpTable& t = file_.table;
    t.FileReadFlg = check_->isChecked() ? 1 : 0;
    // An empty box keeps the last accepted value.
    t.RegularH = lastHour_;
    t.RegularM = lastMinute_;
    for (int r = 1; r <= FtpTable::kRows; ++r) {
        FtpRow& row = *t.row(r);
        row.Tag = grid_->item(r - 1, kTag)->text().left(15);
        row.IPAddress = grid_->item(r - 1, kAddress)->text();
        row.Password = grid_->item(r - 1, kPassword)->data(Qt::UserRole).toString();
        row.VXDir = grid_->item(r - 1, kVxDir)->text();
        row.PCDir = grid_->item(r - 1, kPcDir)->text();
    }
}
