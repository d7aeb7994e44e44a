#include "analysis/widgets/frmCalcLineSet.h"

#include "analysis/MarkerView.h"
#include "base/LanguageTable.h"
#include "recording/ViewState.h"
#include "trend/TrendView.h"
#include "trend/widgets/frmScrollTime.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

void paint(QPushButton* button, const QColor& color) {
    button->setProperty("color", color);
    button->setStyleSheet(QStringLiteral("background-color: %1").arg(color.name()));
}

} // namespace

frmCalcLineSet::frmCalcLineSet(TrendView& view, QWidget* parent)
    : QDialog(parent), view_(view), lines_(view) {
    setObjectName(QStringLiteral("frmCalcLineSet"));
    auto* layout = new QVBoxLayout(this);
    for (int which = 0; which < 2; ++which) {
        layout->addWidget(new QLabel(MsgText(65 + which), this));
        auto* table = new QTableWidget(4, 6, this);
        table->setObjectName(QStringLiteral("vaSpread1_%1").arg(which));
        table->setHorizontalHeaderLabels(
            {MsgText(127), MsgText(71), MsgText(72), MsgText(73), MsgText(74), MsgText(75)});
        table->setVerticalHeaderLabels({QString(), MsgText(28), MsgText(39), MsgText(42)});
        tables_[which] = table;
        fillTable(which);
        // Percent data offers no standard deviation lines.
        table->setColumnHidden(4, !lines_.deviationOffered());
        layout->addWidget(table);
    }
    auto* buttons = new QHBoxLayout;
    const struct {
        int message;
        const char* name;
        void (frmCalcLineSet::*slot)();
    } commands[] = {{46, "Command2_0", &frmCalcLineSet::ok},
                    {47, "Command2_1", &frmCalcLineSet::reject},
                    {45, "Command2_2", &frmCalcLineSet::preview}};
    for (const auto& c : commands) {
        auto* button = new QPushButton(MsgText(c.message), this);
        button->setObjectName(QLatin1String(c.name));
        connect(button, &QPushButton::clicked, this, c.slot);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
}

void frmCalcLineSet::fillTable(int which) {
    QTableWidget* table = tables_[which];
    const CalcLines::Set set = lines_.set(which + 1);
    const ViewState& t = view_.tables();
    auto* channel = new QComboBox(table);
    channel->addItem(MsgText(22));
    for (int c = 1; c <= t.ChannelCount; ++c)
        channel->addItem(t.Channels.ChTag[size_t(c)].trimmed());
    channel->setCurrentIndex(std::clamp(set.channel, 0, int(t.ChannelCount)));
    table->setCellWidget(0, 0, channel);
    for (int col = 0; col < CalcLines::kColumns; ++col) {
        const SeriesStyle& style = set.styles[size_t(col)];
        auto* box = new QCheckBox(table);
        box->setChecked(set.on[size_t(col)]);
        table->setCellWidget(0, col + 1, box);
        auto* colour = new QPushButton(table);
        paint(colour, style.color);
        connect(colour, &QPushButton::clicked, this, [this, colour] {
            const QColor c =
                QColorDialog::getColor(colour->property("color").value<QColor>(), this);
            if (c.isValid()) paint(colour, c);
        });
        table->setCellWidget(1, col + 1, colour);
        auto* pattern = new QComboBox(table);
        pattern->addItems({MsgText(41), MsgText(42), MsgText(67)});
        pattern->setCurrentIndex(std::clamp(CalcLines::itemOfPattern(int(style.pattern)), 0, 2));
        table->setCellWidget(2, col + 1, pattern);
        auto* width = new QSpinBox(table);
        width->setRange(0, 20);
        width->setValue(style.width);
        table->setCellWidget(3, col + 1, width);
    }
    connect(channel, &QComboBox::currentIndexChanged, this,
            [this, which](int item) { channelChosen(which, item); });
    channelChosen(which, channel->currentIndex());
}

// Message 22 (no channel) clears and locks the row's boxes; a channel unlocks them.
void frmCalcLineSet::channelChosen(int which, int item) {
    for (int col = 1; col <= CalcLines::kColumns; ++col) {
        auto* box = qobject_cast<QCheckBox*>(tables_[which]->cellWidget(0, col));
        if (item == 0) box->setChecked(false);
        box->setEnabled(item != 0);
    }
}

CalcLines::Set frmCalcLineSet::readTable(int which) const {
    const QTableWidget* table = tables_[which];
    CalcLines::Set set;
    set.channel = qobject_cast<QComboBox*>(table->cellWidget(0, 0))->currentIndex();
    for (int col = 0; col < CalcLines::kColumns; ++col) {
        set.on[size_t(col)] = qobject_cast<QCheckBox*>(table->cellWidget(0, col + 1))->isChecked();
        SeriesStyle& style = set.styles[size_t(col)];
        style.color = table->cellWidget(1, col + 1)->property("color").value<QColor>();
        style.pattern = Chart::LinePattern(CalcLines::patternOfItem(
            qobject_cast<QComboBox*>(table->cellWidget(2, col + 1))->currentIndex()));
        style.width = qobject_cast<QSpinBox*>(table->cellWidget(3, col + 1))->value();
    }
    return set;
}

void frmCalcLineSet::preview() {
    const auto& c = view_.state().CursorPoint;
    if (c[0] > 0 && c[1] > 0) BuildMarkerSeries(view_, c[0], c[1]);
    for (int which = 0; which < 2; ++which) lines_.setSet(which + 1, readTable(which));
    lines_.ApplyCalcLines();
}

void frmCalcLineSet::ok() {
    preview();
    accept();
}

void frmCalcLineSet::reject() {
    lines_.RestoreCalcLines();
    QDialog::reject();
}

void installCalcLines() {
    frmScrollTime::setToolbar1Window(kCalcLinesCommand, [](frmScrollTime& view) {
        frmCalcLineSet dialog(view.trend(), &view);
        dialog.exec();
        view.update();
    });
}
