#include "analysis/widgets/frmCalcLineSet.h"
#include "analysis/widgets/frmRECSUB.h"
#include "trendwidgets/TrendWindowFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace {

QComboBox* combo(QTableWidget* t, int row, int col) {
    return qobject_cast<QComboBox*>(t->cellWidget(row, col));
}

// The channel combo's "none" clears and locks the boxes; preview draws, cancel takes it back.
TEST(frmCalcLineSet, PreviewDrawsAndCancelRestores) {
    trendwidgets::LoadedWindow w(8, 2, 50);
    ASSERT_TRUE(w.loaded);
    ChartModel& chart = w.trend().chart();
    const int maxLine = 2 + 3;
    frmCalcLineSet dialog(w.trend());
    QTableWidget* set1 = dialog.vaSpread1(0);
    combo(set1, 0, 0)->setCurrentIndex(0);
    auto* box = qobject_cast<QCheckBox*>(set1->cellWidget(0, 1));
    EXPECT_FALSE(box->isEnabled());
    combo(set1, 0, 0)->setCurrentIndex(1);
    ASSERT_TRUE(box->isEnabled());
    box->setChecked(true);
    qobject_cast<QSpinBox*>(set1->cellWidget(3, 1))->setValue(4);
    dialog.preview();
    EXPECT_EQ(chart.displayState(maxLine), Chart::kDisplayShown);
    EXPECT_EQ(chart.seriesStyle(maxLine).width, 4);
    EXPECT_EQ(chart.Y(maxLine, 1), chart.Maximum(1));
    dialog.reject();
    EXPECT_NE(chart.displayState(maxLine), Chart::kDisplayShown);
    EXPECT_EQ(w.trend().state().CalcLineChannel[0], 0);
}

TEST(frmCalcLineSet, PercentDataHidesTheDeviationColumn) {
    trendwidgets::LoadedWindow w(9, 2, 50);
    w.trend().state().ScalePercentMode = true;
    frmCalcLineSet dialog(w.trend());
    EXPECT_TRUE(dialog.vaSpread1(0)->isColumnHidden(4));
    EXPECT_TRUE(dialog.vaSpread1(1)->isColumnHidden(4));
    EXPECT_FALSE(dialog.vaSpread1(0)->isColumnHidden(3));
}

// OK without a change does not replot; a new source A does.
TEST(frmRECSUB, OkReplotsOnlyWhatChanged) {
    trendwidgets::LoadedWindow w(10, 2, 50);
    ASSERT_TRUE(w.loaded);
    {
        frmRECSUB dialog(w.trend());
        EXPECT_EQ(dialog.vaSpread1()->rowCount(), 128);
        EXPECT_FALSE(dialog.Command1());
    }
    frmRECSUB dialog(w.trend());
    combo(dialog.vaSpread1(), 0, 2)->setCurrentIndex(2); // line 1 from recorded column 2
    EXPECT_TRUE(dialog.Command1());
    EXPECT_EQ(w.trend().state().Lines[1].sourceColumn, 2);
    EXPECT_EQ(w.trend().chart().Y(1, 7), w.trend().chart().Y(2, 7));
}

} // namespace
