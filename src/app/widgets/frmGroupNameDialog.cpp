#include "app/widgets/frmGroupNameDialog.h"

#include "app/StartFiles.h"
#include "base/AppPaths.h"
#include "base/LanguageTable.h"
#include "base/widgets/ApplyLanguageFont.h"
#include "recording/RecordingLimits.h"
#include "recording/ViewSlots.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

frmGroupNameDialog::frmGroupNameDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmGroupNameDialog"));
    ApplyLanguageFont(this);
    setWindowTitle(MsgText(204).trimmed());
    grid_ = new QTableWidget(10, 1, this);
    grid_->setObjectName(QStringLiteral("vaSpread1"));
    grid_->setHorizontalHeaderLabels({MsgText(218)});
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    for (int row = 0; row < MaxViews; ++row) {
        auto* item = new QTableWidgetItem(groupNameOrDefault(row + 1));
        // A view that is open is shown in bold.
        QFont font = item->font();
        font.setBold(ViewInUse(row));
        item->setFont(font);
        grid_->setItem(row, 0, item);
    }
    selectRow(FirstFreeView() > 0 ? FirstFreeView() : 1);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(MsgText(46), QDialogButtonBox::AcceptRole);
    buttons->addButton(MsgText(47), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmGroupNameDialog::take);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(grid_, &QTableWidget::cellDoubleClicked, this, &frmGroupNameDialog::take);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(grid_);
    layout->addWidget(buttons);
    resize(360, 400);
}

void frmGroupNameDialog::selectRow(int view) {
    if (view >= 1 && view <= 10) grid_->selectRow(view - 1);
}

void frmGroupNameDialog::take() {
    const int row = grid_->currentRow();
    if (row < 0) return;
    for (int i = 0; i < MaxViews; ++i) setGroupName(i + 1, grid_->item(i, 0)->text());
    SaveGroupNames(false);
    chosen_ = row + 1;
    accept();
}
