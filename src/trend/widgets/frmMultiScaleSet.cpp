#include "trend/widgets/frmMultiScaleSet.h"

#include "base/LanguageTable.h"
#include "trend/TrendView.h"
#include "trend/widgets/DialogParts.h"
#include "trend/widgets/TrendTexts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

frmMultiScaleSet::frmMultiScaleSet(TrendView& view, QWidget* parent)
    : QDialog(parent), view_(view), set_(view) {
    setWindowTitle(TrendCaption(MsgId(607), "Multi-scale settings"));
    setFont(QFont(LanguageFont(), 9));
    auto* layout = new QVBoxLayout(this);
    grid_ = new QTableWidget(int(set_.rows.size()), kColumnCount, this);
    grid_->setObjectName(QStringLiteral("vaSpread1"));
    grid_->setHorizontalHeaderLabels({QStringLiteral("No."), MsgText(127), MsgText(234),
                                      MsgText(72) + QLatin1Char('\n') + MsgText(107),
                                      MsgText(71) + QLatin1Char('\n') + MsgText(107)});
    grid_->verticalHeader()->hide();
    filling_ = true;
    for (int r = 0; r < grid_->rowCount(); ++r) {
        const MultiScaleSet::Row& row = set_.rows[size_t(r)];
        auto* no = new QTableWidgetItem(QString::number(r + 1));
        no->setFlags(Qt::ItemIsEnabled);
        auto* shown = new QTableWidgetItem;
        shown->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        shown->setCheckState(row.shown ? Qt::Checked : Qt::Unchecked);
        auto* name = new QTableWidgetItem(row.name);
        name->setFlags(Qt::ItemIsEnabled);
        grid_->setItem(r, kNo, no);
        grid_->setItem(r, kShown, shown);
        grid_->setItem(r, kName, name);
        for (int c : {kLow, kHigh}) {
            auto* item = new QTableWidgetItem(c == kLow ? row.low : row.high);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            grid_->setItem(r, c, item);
        }
    }
    filling_ = false;
    grid_->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
    grid_->setMinimumSize(520, 320);
    connect(grid_, &QTableWidget::itemChanged, this, &frmMultiScaleSet::cellChanged);
    layout->addWidget(grid_);

    Check1_ =
        new QCheckBox(TrendCaption(MsgId(618), "Use these scales when the files are read"), this);
    Check1_->setObjectName(QStringLiteral("Check1"));
    Check1_->setChecked(set_.Check1);
    layout->addWidget(Check1_);
    layout->addWidget(okCancelButtons(this, [this] { btnOK_Click(); }));
}

void frmMultiScaleSet::fillEmptyScales() {
    const ChannelTable& ch = view_.tables().Channels;
    for (int r = 0; r < grid_->rowCount(); ++r) {
        for (int c : {kLow, kHigh}) {
            QTableWidgetItem* item = grid_->item(r, c);
            if (!item->text().trimmed().isEmpty()) continue;
            const QString& scale =
                c == kLow ? ch.ChScaleLow[size_t(r + 1)] : ch.ChScaleHigh[size_t(r + 1)];
            item->setText(scale.trimmed()); // checked by cellChanged like a typed text
        }
    }
}

void frmMultiScaleSet::cellChanged(QTableWidgetItem* item) {
    if (filling_ || (item->column() != kLow && item->column() != kHigh)) return;
    MultiScaleSet::Row& row = set_.rows[size_t(item->row())];
    QString& kept = item->column() == kLow ? row.low : row.high;
    const int decimals = view_.state().Lines[size_t(item->row() + 1)].decimals;
    filling_ = true;
    if (MultiScaleSet::acceptsCell(item->text(), decimals))
        kept = item->text().trimmed();
    else
        item->setText(kept);
    filling_ = false;
}

void frmMultiScaleSet::btnOK_Click() {
    for (int r = 0; r < grid_->rowCount(); ++r)
        set_.rows[size_t(r)].shown = grid_->item(r, kShown)->checkState() == Qt::Checked;
    set_.Check1 = Check1_->isChecked();
    if (set_.ok() == 0) accept();
}
