#include "trend/widgets/frmTimeAxisSetting.h"

#include "base/LanguageTable.h"
#include "trend/TrendView.h"
#include "trend/widgets/DialogParts.h"
#include "trend/widgets/TrendTexts.h"

#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Cell { kStartRow = 0, kEndRow = 1, kDateCol = 0, kTimeCol = 1 };

QString cellText(const QTableWidget* grid, int row, int col) {
    const QTableWidgetItem* item = grid->item(row, col);
    return item ? item->text() : QString();
}

} // namespace

frmTimeAxisSetting::frmTimeAxisSetting(TrendView& view, QWidget* parent)
    : QDialog(parent), setting_(view) {
    setWindowTitle(TrendCaption(MsgId(602), "Time axis settings"));
    setFont(QFont(LanguageFont(), 9));
    auto* layout = new QVBoxLayout(this);

    auto* recording =
        new QLabel(MsgText(83) + QStringLiteral(": ") + setting_.firstLabel + QLatin1Char(' ') +
                       MsgText(90) + QLatin1Char(' ') + setting_.lastLabel,
                   this);
    recording->setObjectName(QStringLiteral("lblRecording"));
    layout->addWidget(recording);

    optRange_ = new QRadioButton(MsgText(89), this);
    optRange_->setObjectName(QStringLiteral("optRange"));
    optSpan_ = new QRadioButton(TrendCaption(MsgId(608), "Span"), this);
    optSpan_->setObjectName(QStringLiteral("optSpan"));
    optRange_->setChecked(true);
    auto* modes = new QHBoxLayout;
    modes->addWidget(optRange_);
    modes->addWidget(optSpan_);
    modes->addStretch(1);
    layout->addLayout(modes);

    SpreadDate_ = new QTableWidget(2, 2, this);
    SpreadDate_->setObjectName(QStringLiteral("SpreadDate"));
    SpreadDate_->setHorizontalHeaderLabels({MsgText(220), MsgText(77)});
    SpreadDate_->setVerticalHeaderLabels(
        {TrendCaption(MsgId(609), "Start"), TrendCaption(MsgId(610), "End")});
    SpreadDate_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    SpreadDate_->setItem(kStartRow, kDateCol, new QTableWidgetItem(setting_.startDate));
    SpreadDate_->setItem(kStartRow, kTimeCol, new QTableWidgetItem(setting_.startTime));
    SpreadDate_->setItem(kEndRow, kDateCol, new QTableWidgetItem(setting_.endDate));
    SpreadDate_->setItem(kEndRow, kTimeCol, new QTableWidgetItem(setting_.endTime));
    SpreadDate_->setFixedHeight(SpreadDate_->horizontalHeader()->height() +
                                2 * SpreadDate_->rowHeight(0) + 4);
    layout->addWidget(SpreadDate_);

    auto* widthBox = new QGroupBox(TrendCaption(MsgId(619), "Width"), this);
    auto* widths = new QGridLayout(widthBox);
    const std::array<QString, 4> units = {MsgText(195).trimmed(), MsgText(196).trimmed(),
                                          TrendCaption(MsgId(611), "hour(s)").trimmed(),
                                          TrendCaption(MsgId(612), "day(s)").trimmed()};
    for (int u = 0; u < 4; ++u) {
        txtNumeric_[size_t(u)] = new QLineEdit(widthBox);
        txtNumeric_[size_t(u)]->setObjectName(QStringLiteral("txtNumeric%1").arg(u));
        auto* validator = new QDoubleValidator(0, 1e9, 6, txtNumeric_[size_t(u)]);
        validator->setLocale(QLocale::c()); // the logic reads "." as the decimal sign
        txtNumeric_[size_t(u)]->setValidator(validator);
        optTimeUnit_[size_t(u)] = new QRadioButton(units[size_t(u)], widthBox);
        optTimeUnit_[size_t(u)]->setObjectName(QStringLiteral("optTimeUnit%1").arg(u));
        widths->addWidget(txtNumeric_[size_t(u)], u, 0);
        widths->addWidget(optTimeUnit_[size_t(u)], u, 1);
        connect(optTimeUnit_[size_t(u)], &QRadioButton::toggled, this, [this, u](bool on) {
            if (on) unitChosen(u);
        });
    }
    optTimeUnit_[2]->setChecked(true);
    layout->addWidget(widthBox);
    connect(optSpan_, &QRadioButton::toggled, this, &frmTimeAxisSetting::modeChanged);
    modeChanged();

    layout->addWidget(okCancelButtons(this, [this] { btnOK_Click(); }));
}

void frmTimeAxisSetting::modeChanged() {
    const bool span = optSpan_->isChecked();
    // In a span only the start row is read; the width stands for the end.
    for (int col : {kDateCol, kTimeCol})
        if (QTableWidgetItem* item = SpreadDate_->item(kEndRow, col))
            item->setFlags(span ? Qt::ItemIsSelectable
                                : Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemIsSelectable);
    for (size_t u = 0; u < 4; ++u) {
        optTimeUnit_[u]->setEnabled(span);
        txtNumeric_[u]->setEnabled(span && optTimeUnit_[u]->isChecked());
    }
}

void frmTimeAxisSetting::unitChosen(int unit) {
    // One width is given: the other boxes are emptied so that the chosen one is the first
    // with a number.
    for (int u = 0; u < 4; ++u) {
        if (u != unit) txtNumeric_[size_t(u)]->clear();
        txtNumeric_[size_t(u)]->setEnabled(optSpan_->isChecked() && u == unit);
    }
}

void frmTimeAxisSetting::btnOK_Click() {
    setting_.mode =
        optSpan_->isChecked() ? TimeAxisSetting::Mode::Span : TimeAxisSetting::Mode::Range;
    setting_.startDate = cellText(SpreadDate_, kStartRow, kDateCol);
    setting_.startTime = cellText(SpreadDate_, kStartRow, kTimeCol);
    setting_.endDate = cellText(SpreadDate_, kEndRow, kDateCol);
    setting_.endTime = cellText(SpreadDate_, kEndRow, kTimeCol);
    for (size_t u = 0; u < 4; ++u) setting_.txtNumeric[u] = txtNumeric_[u]->text();
    if (setting_.ok() == 0) accept();
}
