#include "analysis/widgets/frmRECSUB.h"

#include "base/LanguageTable.h"
#include "trend/widgets/frmScrollTime.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { kOn = 1, kA, kSign, kB, kConstant, kLow, kHigh, kDecimals, kTag, kUnit, kKind };

QString text(const QTableWidget* table, int row, int col) {
    const QTableWidgetItem* item = table->item(row, col);
    return item ? item->text() : QString();
}

} // namespace

frmRECSUB::frmRECSUB(TrendView& view, QWidget* parent)
    : QDialog(parent), settings_(view), table_(new QTableWidget(this)) {
    setObjectName(QStringLiteral("frmRECSUB"));
    table_->setObjectName(QStringLiteral("vaSpread1"));
    table_->setColumnCount(12);
    table_->setRowCount(settings_.rowCount());
    const QString crlf = QStringLiteral("\r\n");
    table_->setHorizontalHeaderLabels(
        {QStringLiteral("CH"), MsgText(127), MsgText(139) + crlf + "A", QStringLiteral("-/+"),
         MsgText(140) + crlf + "B", MsgText(205) + crlf + "B", MsgText(72) + crlf + MsgText(107),
         MsgText(71) + crlf + MsgText(107), MsgText(284) + crlf + MsgText(107), MsgText(234),
         MsgText(235), MsgText(273)});
    const int widths[] = {10, 6, 10, 6, 10, 10, 15, 15, 10, 30, 15, 15};
    for (int c = 0; c < 12; ++c) table_->setColumnWidth(c, widths[c] * 7);
    table_->verticalHeader()->hide();
    for (int r = 1; r <= settings_.rowCount(); ++r) fillRow(r);
    auto* scale = new QHBoxLayout;
    const QString kinds[] = {QStringLiteral("シングル"), QStringLiteral("ダブル"),
                             QStringLiteral("マルチ")};
    for (int k = 0; k < 3; ++k) {
        auto* button = new QPushButton(kinds[k], this);
        button->setObjectName(QStringLiteral("Command3_%1").arg(k));
        button->setCheckable(true);
        button->setChecked(int(settings_.scaleType()) == k);
        button->setAutoExclusive(true);
        connect(button, &QPushButton::clicked, this, [this, k] {
            settings_.setScaleType(ScaleType(k));
            // The multi-scale rows are chosen at once, in the view's own dialog.
            if (k == 2)
                if (auto* view = qobject_cast<frmScrollTime*>(parentWidget()))
                    view->showMultiScaleSet();
        });
        scale->addWidget(button);
    }
    auto* ok = new QPushButton(MsgText(46), this);
    ok->setObjectName(QStringLiteral("Command1"));
    connect(ok, &QPushButton::clicked, this, [this] {
        Command1();
        accept();
    });
    auto* cancel = new QPushButton(MsgText(47), this);
    cancel->setObjectName(QStringLiteral("Command2"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    scale->addStretch();
    scale->addWidget(ok);
    scale->addWidget(cancel);
    // Label14..Label18: the formula of the selected line, C = A - B or C = A + B.
    auto* formula = new QLabel(this);
    formula->setObjectName(QStringLiteral("Label14"));
    connect(table_, &QTableWidget::currentCellChanged, this, [this, formula](int row) {
        const auto* sign = qobject_cast<QComboBox*>(table_->cellWidget(row, kSign));
        formula->setText(QStringLiteral("C = A %1 B").arg(sign ? sign->currentText() : "-"));
    });
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(formula);
    layout->addWidget(table_);
    layout->addLayout(scale);
    resize(1100, 520);
}

void frmRECSUB::fillRow(int row) {
    const int r = row - 1;
    const TrendLine& line = settings_.line(row);
    table_->setItem(r, 0, new QTableWidgetItem(QString::number(row)));
    auto* on = new QCheckBox(table_);
    on->setChecked(line.enabled != 0);
    table_->setCellWidget(r, kOn, on);
    const QStringList sources = settings_.sourceItems();
    for (const auto& [col, value] :
         {std::pair{int(kA), int(line.sourceColumn)}, std::pair{int(kB), int(line.secondColumn)}}) {
        auto* combo = new QComboBox(table_);
        combo->addItems(sources);
        combo->setCurrentIndex(std::clamp(value, 0, int(sources.size()) - 1));
        table_->setCellWidget(r, col, combo);
    }
    auto* sign = new QComboBox(table_);
    sign->addItems({QStringLiteral("-"), QStringLiteral("+")});
    sign->setCurrentIndex(line.addFlag ? 1 : 0);
    table_->setCellWidget(r, kSign, sign);
    table_->setItem(r, kConstant, new QTableWidgetItem(line.constant));
    table_->setItem(r, kLow, new QTableWidgetItem(settings_.scaleText(row, false)));
    table_->setItem(r, kHigh, new QTableWidgetItem(settings_.scaleText(row, true)));
    table_->setItem(r, kDecimals, new QTableWidgetItem(QString::number(line.decimals)));
    table_->setItem(r, kTag, new QTableWidgetItem(settings_.tag(row)));
    table_->setItem(r, kUnit, new QTableWidgetItem(settings_.unit(row)));
    table_->setItem(r, kKind, new QTableWidgetItem(QString::number(line.scaleKind)));
}

void frmRECSUB::readRow(int row) {
    const int r = row - 1;
    TrendLine& line = settings_.line(row);
    line.enabled = qobject_cast<QCheckBox*>(table_->cellWidget(r, kOn))->isChecked() ? 1 : 0;
    line.sourceColumn = qint16(qobject_cast<QComboBox*>(table_->cellWidget(r, kA))->currentIndex());
    line.secondColumn = qint16(qobject_cast<QComboBox*>(table_->cellWidget(r, kB))->currentIndex());
    line.addFlag = qobject_cast<QComboBox*>(table_->cellWidget(r, kSign))->currentIndex() == 1;
    // The constant counts only without a second column.
    line.constant = line.secondColumn == 0 ? text(table_, r, kConstant).trimmed() : QString();
    // A scale text that is not a number keeps the old one; texts are compared as shown, before
    // the decimals change how they are shown.
    if (text(table_, r, kLow) != settings_.scaleText(row, false))
        settings_.setScaleText(row, false, text(table_, r, kLow));
    if (text(table_, r, kHigh) != settings_.scaleText(row, true))
        settings_.setScaleText(row, true, text(table_, r, kHigh));
    bool ok = false;
    const int decimals = text(table_, r, kDecimals).toInt(&ok);
    if (ok) settings_.line(row).decimals = qint16(std::clamp(decimals, 0, 4));
    settings_.setTag(row, text(table_, r, kTag));
    settings_.setUnit(row, text(table_, r, kUnit));
}

bool frmRECSUB::Command1() {
    for (int r = 1; r <= settings_.rowCount(); ++r) readRow(r);
    return settings_.apply();
}

void installChannelSettings() {
    frmScrollTime::setToolbar1Window(4, [](frmScrollTime& view) {
        frmRECSUB dialog(view.trend(), &view);
        if (dialog.exec() == QDialog::Accepted) view.update();
    });
}
