#include "TrendWindowFixture.h"

#include "base/LanguageTable.h"
#include "trend/widgets/MultiScaleStrip.h"
#include "trend/widgets/frmMultiScaleSet.h"
#include "trend/widgets/frmTimeAxisSetting.h"
#include "trend/widgets/frmXlblSet.h"
#include "trend/widgets/frmYAxesStyle.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>

#include <gtest/gtest.h>

using trendwidgets::LoadedWindow;

namespace {

template <typename T> T* child(QWidget& parent, const char* name) {
    T* found = parent.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

void setCell(QTableWidget* grid, int row, int col, const QString& text) {
    grid->item(row, col)->setText(text);
}

} // namespace

// The time axis dialog opens on the span shown; OK with a range or a span takes it as a new
// zoom level, a text that is not a time is refused with 557 or 559 and the dialog stays.
TEST(frmTimeAxisSetting, RangeSpanAndRefusals) {
    LoadedWindow w(6);
    ASSERT_TRUE(w.loaded);
    const SampleTime first = SampleTimeText(0, 6);
    const SampleTime at100 = SampleTimeText(100, 6);
    const SampleTime at250 = SampleTimeText(250, 6);

    frmTimeAxisSetting range(w.trend());
    auto* cells = child<QTableWidget>(range, "SpreadDate");
    EXPECT_EQ(cells->item(0, 0)->text(), first.date);
    EXPECT_EQ(cells->item(0, 1)->text(), first.timeText);
    setCell(cells, 0, 1, at100.timeText);
    setCell(cells, 1, 1, at250.timeText);
    range.btnOK_Click();
    ASSERT_EQ(range.result(), QDialog::Accepted);
    TimeAxisSetting::apply(w.trend(), range.setting());
    EXPECT_EQ(w.xMin(), 100);
    EXPECT_EQ(w.xMax(), 250);
    EXPECT_EQ(w.trend().state().ZoomLevel, 1);

    frmTimeAxisSetting span(w.trend());
    child<QRadioButton>(span, "optSpan")->setChecked(true);
    child<QRadioButton>(span, "optTimeUnit1")->setChecked(true); // minutes
    child<QLineEdit>(span, "txtNumeric1")->setText(QStringLiteral("2"));
    span.btnOK_Click();
    ASSERT_EQ(span.result(), QDialog::Accepted);
    EXPECT_EQ(span.setting().StartTime(), 101);
    EXPECT_EQ(span.setting().EndTime(), 221);

    struct Refusal {
        int row;
        QString time;
        int message;
    };
    for (const Refusal& r :
         {Refusal{0, QStringLiteral("xx"), 557}, Refusal{1, QStringLiteral("7:"), 559},
          Refusal{1, first.timeText, 557}}) { // end before the start
        frmTimeAxisSetting dialog(w.trend());
        setCell(child<QTableWidget>(dialog, "SpreadDate"), r.row, 1, r.time);
        w.sink.clear();
        dialog.btnOK_Click();
        EXPECT_NE(dialog.result(), QDialog::Accepted) << r.message;
        ASSERT_EQ(w.sink.calls().size(), 1);
        EXPECT_EQ(w.sink.last().text, MsgText(r.message));
    }
}

// The label dialog turns hours or days into point counts at the view's interval; a text that
// is not a number gives interval 0 and the chart's own labels.
TEST(frmXlblSet, IntervalsInHoursAndDays) {
    LoadedWindow w(7, 1, 7200);
    ASSERT_TRUE(w.loaded);
    {
        frmXlblSet dialog(w.trend());
        child<QLineEdit>(dialog, "txtLabel")->setText(QStringLiteral("0.5"));
        child<QLineEdit>(dialog, "txtSubGrid")->setText(QStringLiteral("0.25"));
        dialog.btnOK_Click();
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    EXPECT_EQ(w.trend().state().TimeLabelInterval[0], 1800);
    EXPECT_EQ(w.trend().state().TimeLabelInterval[1], 900);
    {
        // The dialog opens on what stands; switching to days keeps the meaning of the numbers.
        frmXlblSet dialog(w.trend());
        auto* label = child<QLineEdit>(dialog, "txtLabel");
        EXPECT_EQ(label->text(), QStringLiteral("0.5"));
        child<QRadioButton>(dialog, "optDays")->setChecked(true);
        EXPECT_NEAR(label->text().toDouble(), 0.5 / 24, 1e-9);
        label->setText(QStringLiteral("abc"));
        dialog.btnOK_Click();
    }
    EXPECT_EQ(w.trend().state().TimeLabelInterval[0], 0);
    EXPECT_TRUE(w.trend().chart().axisX().isLabelIntervalAuto());
}

// The Y axes dialog sets fixed bounds and intervals on Y; a cleared bound goes back to
// automatic; Cancel after a preview puts back what stood on open.
TEST(frmYAxesStyle, AppliesPreviewsAndCancels) {
    LoadedWindow w(8);
    ASSERT_TRUE(w.loaded);
    ChartAxis& y = w.trend().chart().axisY();
    {
        frmYAxesStyle dialog(w.trend());
        auto* grid = child<QTableWidget>(dialog, "vaSpread1");
        setCell(grid, 0, 0, QStringLiteral("1"));
        setCell(grid, 1, 0, QStringLiteral("9"));
        setCell(grid, 2, 0, QStringLiteral("2"));
        child<QCheckBox>(dialog, "chkReversedY")->setChecked(true);
        dialog.btnOK_Click();
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    EXPECT_EQ(y.min(), 1);
    EXPECT_EQ(y.max(), 9);
    EXPECT_EQ(y.labelInterval(), 2);
    EXPECT_TRUE(y.isReversed());
    EXPECT_EQ(w.trend().state().ZoomY[0][2], 9);
    {
        frmYAxesStyle dialog(w.trend());
        auto* grid = child<QTableWidget>(dialog, "vaSpread1");
        EXPECT_EQ(grid->item(1, 0)->text(), QStringLiteral("9"));
        setCell(grid, 1, 0, QString());
        child<QCheckBox>(dialog, "chkReversedY")->setChecked(false);
        dialog.btnPreview_Click();
        EXPECT_TRUE(y.isMaxAuto());
        EXPECT_FALSE(y.isReversed());
        dialog.reject();
    }
    EXPECT_EQ(y.max(), 9);
    EXPECT_FALSE(y.isMaxAuto());
    EXPECT_TRUE(y.isReversed());
}

// The multi-scale rows: a cell outside -300000..300000 goes back to its text, OK with no row
// shown gives 582 and stays, OK with rows shown puts the view in multi-scale mode with one
// strip per shown row beside the chart and the axis commands off.
TEST(frmMultiScaleSet, RowsStripsAndRefusal) {
    LoadedWindow w(9, 3);
    ASSERT_TRUE(w.loaded);
    frmMultiScaleSet dialog(w.trend());
    QTableWidget* grid = dialog.grid();
    ASSERT_EQ(grid->rowCount(), 3);
    EXPECT_EQ(grid->item(1, frmMultiScaleSet::kName)->text(), QStringLiteral("T2"));
    for (int r = 0; r < 3; ++r)
        grid->item(r, frmMultiScaleSet::kShown)->setCheckState(Qt::Unchecked);
    setCell(grid, 1, frmMultiScaleSet::kLow, QStringLiteral("-10"));
    setCell(grid, 1, frmMultiScaleSet::kHigh, QStringLiteral("20"));
    setCell(grid, 1, frmMultiScaleSet::kHigh, QStringLiteral("400000"));
    EXPECT_EQ(grid->item(1, frmMultiScaleSet::kHigh)->text(), QStringLiteral("20"));

    w.sink.clear();
    dialog.btnOK_Click();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    ASSERT_EQ(w.sink.calls().size(), 1);
    EXPECT_EQ(w.sink.last().text, MsgText(582));
    EXPECT_NE(w.trend().state().ScaleType, ScaleType::MultiScale);

    grid->item(1, frmMultiScaleSet::kShown)->setCheckState(Qt::Checked);
    grid->item(2, frmMultiScaleSet::kShown)->setCheckState(Qt::Checked);
    dialog.btnOK_Click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(w.trend().state().ScaleType, ScaleType::MultiScale);
    const auto strips = w.window->strips();
    ASSERT_EQ(strips.size(), 2u);
    EXPECT_EQ(strips[0]->strip().tag, QStringLiteral("T2"));
    EXPECT_EQ(strips[0]->strip().low, -10);
    EXPECT_EQ(strips[0]->strip().high, 20);
    EXPECT_FALSE(strips[0]->strip().ticks.empty());
    EXPECT_LE(strips[1]->geometry().right(), w.plot().left());
    for (int command : {11, 12})
        EXPECT_FALSE(w.window->toolbar2Action(command)->isEnabled()) << command;
}
