#include "analysis/widgets/frmMarkerViewSetting.h"

#include "base/LanguageTable.h"
#include "platform/ChartModel.h"
#include "recording/ViewState.h"
#include "trend/TrendView.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

// The pattern list: two line kinds and message 67 (dotted).
const Chart::LinePattern kPatterns[] = {Chart::LinePattern::Solid, Chart::LinePattern::ShortDash,
                                        Chart::LinePattern::Dotted};

void paintButton(QPushButton* button, const QColor& color) {
    button->setProperty("color", color);
    button->setStyleSheet(QStringLiteral("background-color: %1").arg(color.name()));
}

} // namespace

frmMarkerViewSetting::frmMarkerViewSetting(TrendView& view, QWidget* parent)
    : QDialog(parent), view_(view), table_(new QTableWidget(3, 2, this)) {
    setObjectName(QStringLiteral("frmMarkerViewSetting"));
    setWindowTitle(MsgText(78));
    table_->setObjectName(QStringLiteral("SpreadMarker"));
    table_->setHorizontalHeaderLabels({MsgText(8), MsgText(9)});
    table_->setVerticalHeaderLabels({MsgText(28), MsgText(39), MsgText(42)});
    table_->setCornerButtonEnabled(false);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    const ChartModel& chart = view.chart();
    const int n = view.tables().ChannelCount;
    for (int c = 0; c < 2; ++c) {
        const int series = n + 1 + c;
        const SeriesStyle style =
            series <= chart.seriesCount() ? chart.seriesStyle(series) : SeriesStyle();
        auto* colour = new QPushButton(table_);
        paintButton(colour, style.color);
        connect(colour, &QPushButton::clicked, this, [this, colour] {
            const QColor chosen =
                QColorDialog::getColor(colour->property("color").value<QColor>(), this);
            if (chosen.isValid()) paintButton(colour, chosen);
        });
        table_->setCellWidget(0, c, colour);
        auto* pattern = new QComboBox(table_);
        pattern->addItems({QStringLiteral("———"), QStringLiteral("- - -"), MsgText(67)});
        for (int k = 0; k < 3; ++k)
            if (kPatterns[k] == style.pattern) pattern->setCurrentIndex(k);
        table_->setCellWidget(1, c, pattern);
        auto* width = new QSpinBox(table_);
        width->setRange(1, 20);
        width->setValue(style.width);
        table_->setCellWidget(2, c, width);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        btnOK();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table_);
    layout->addWidget(buttons);
}

void frmMarkerViewSetting::btnOK() {
    ChartModel& chart = view_.chart();
    const int n = view_.tables().ChannelCount;
    for (int c = 0; c < 2; ++c) {
        const int series = n + 1 + c;
        if (series > chart.seriesCount()) continue;
        SeriesStyle style = chart.seriesStyle(series);
        style.color = table_->cellWidget(0, c)->property("color").value<QColor>();
        style.pattern =
            kPatterns[qobject_cast<QComboBox*>(table_->cellWidget(1, c))->currentIndex()];
        style.width = qobject_cast<QSpinBox*>(table_->cellWidget(2, c))->value();
        chart.setSeriesStyle(series, style);
    }
}
