#include "trend/widgets/frmYAxesStyle.h"

#include "base/LanguageTable.h"
#include "trend/TrendView.h"
#include "trend/widgets/DialogParts.h"
#include "trend/widgets/TrendTexts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Row { kMin = 0, kMax, kLabel, kSubGrid, kRowCount };

QString cell(const QTableWidget* grid, int row) {
    const QTableWidgetItem* item = grid->item(row, 0);
    return item ? item->text().trimmed() : QString();
}

} // namespace

frmYAxesStyle::frmYAxesStyle(TrendView& view, QWidget* parent) : QDialog(parent), style_(view) {
    setWindowTitle(TrendCaption(MsgId(601), "Y axis settings"));
    setFont(QFont(LanguageFont(), 9));
    auto* layout = new QVBoxLayout(this);
    auto* axes = new QGridLayout;
    axes->addWidget(new QLabel(QStringLiteral("Y"), this), 0, 0);
    axes->addWidget(new QLabel(QStringLiteral("Y2"), this), 0, 1);
    grids_ = {makeGrid(1), makeGrid(2)};
    grids_[0]->setObjectName(QStringLiteral("vaSpread1"));
    grids_[1]->setObjectName(QStringLiteral("vaSpread2"));
    axes->addWidget(grids_[0], 1, 0);
    axes->addWidget(grids_[1], 1, 1);

    const QString reversed = TrendCaption(MsgId(615), "Reversed");
    chkReversedY_ = new QCheckBox(reversed, this);
    chkReversedY_->setObjectName(QStringLiteral("chkReversedY"));
    chkLogY_ = new QCheckBox(TrendCaption(MsgId(616), "Logarithmic"), this);
    chkLogY_->setObjectName(QStringLiteral("chkLogY"));
    chkReversedY2_ = new QCheckBox(reversed, this);
    chkReversedY2_->setObjectName(QStringLiteral("chkReversedY2"));
    chkReversedY_->setChecked(style_.cells[0].reversed);
    chkLogY_->setChecked(style_.cells[0].logarithmic);
    chkReversedY2_->setChecked(style_.cells[1].reversed);
    // A logarithmic axis has no meaning while the series hold percents.
    chkLogY_->setEnabled(view.state().ScalePercentMode == false);
    auto* flagsY = new QVBoxLayout;
    flagsY->addWidget(chkReversedY_);
    flagsY->addWidget(chkLogY_);
    axes->addLayout(flagsY, 2, 0, Qt::AlignTop);
    axes->addWidget(chkReversedY2_, 2, 1, Qt::AlignTop);
    layout->addLayout(axes);
    layout->addWidget(okCancelButtons(
        this, [this] { btnOK_Click(); }, [this] { btnPreview_Click(); }));
}

QTableWidget* frmYAxesStyle::makeGrid(int axis) {
    const YAxesStyle::AxisCells& c = style_.cells[size_t(axis - 1)];
    const QString suffix = style_.intervalSuffix() + YAxesStyle::axisSuffix(axis);
    auto* grid = new QTableWidget(kRowCount, 1, this);
    grid->setHorizontalHeaderLabels({MsgText(200)});
    grid->setVerticalHeaderLabels({MsgText(72) + YAxesStyle::axisSuffix(axis),
                                   MsgText(71) + YAxesStyle::axisSuffix(axis),
                                   TrendCaption(MsgId(613), "Label interval") + suffix,
                                   TrendCaption(MsgId(614), "Sub-grid interval") + suffix});
    const QStringList values = {c.min, c.max, c.labelInterval, c.subGridInterval};
    for (int r = 0; r < kRowCount; ++r) {
        auto* item = new QTableWidgetItem(values[r]);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->setItem(r, 0, item);
    }
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->setMinimumWidth(260);
    grid->setFixedHeight(grid->horizontalHeader()->sizeHint().height() +
                         kRowCount * grid->rowHeight(0) + 4);
    return grid;
}

void frmYAxesStyle::readCells() {
    for (size_t a = 0; a < 2; ++a) {
        YAxesStyle::AxisCells& c = style_.cells[a];
        c.min = cell(grids_[a], kMin);
        c.max = cell(grids_[a], kMax);
        c.labelInterval = cell(grids_[a], kLabel);
        c.subGridInterval = cell(grids_[a], kSubGrid);
    }
    style_.cells[0].reversed = chkReversedY_->isChecked();
    style_.cells[0].logarithmic = chkLogY_->isChecked();
    style_.cells[1].reversed = chkReversedY2_->isChecked();
}

void frmYAxesStyle::btnPreview_Click() {
    readCells();
    style_.preview();
}

void frmYAxesStyle::btnOK_Click() {
    readCells();
    style_.ok();
    accept();
}

void frmYAxesStyle::reject() {
    style_.cancel();
    QDialog::reject();
}
