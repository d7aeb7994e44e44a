#include "analysis/widgets/frmMarkerView.h"
#include "analysis/widgets/frmMarkerViewSetting.h"
#include "base/LanguageTable.h"
#include "trend/TrendCursors.h"
#include "trendwidgets/TrendWindowFixture.h"

#include <QAction>
#include <QComboBox>
#include <QSpinBox>
#include <QTableView>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace {

// Command 6 opens one marker view a view; a click placing a cursor reaches its grid, the menus
// switch the statistic groups, and the window goes with its view.
TEST(frmMarkerView, OpensFollowsTheCursorsAndClosesWithItsView) {
    installMarkerView();
    auto w = std::make_unique<trendwidgets::LoadedWindow>(5, 2, 100);
    ASSERT_TRUE(w->loaded);
    w->window->toolbar1Command(6);
    w->window->toolbar1Command(6);
    const auto windows = w->window->findChildren<frmMarkerView*>();
    ASSERT_EQ(windows.size(), 1);
    frmMarkerView* marker = windows[0];
    EXPECT_EQ(marker->grid().maxRows(), 3);
    EXPECT_EQ(w->trend().state().MarkerViewFlag, 1);
    ASSERT_TRUE(w->window->cursors().place(1, 10));
    EXPECT_FALSE(marker->grid().text(1, 2).isEmpty());
    EXPECT_EQ(marker->vaSpread1()->model()->index(1, 1).data().toString(),
              marker->grid().text(1, 2));
    marker->menu("disp_1")->setChecked(false);
    EXPECT_TRUE(marker->vaSpread1()->isColumnHidden(4));
    EXPECT_FALSE(marker->vaSpread1()->isColumnHidden(9));
    marker->menu("CAl_1")->setChecked(true);
    ASSERT_TRUE(w->window->cursors().place(2, 20));
    EXPECT_NE(marker->grid().text(9, 2), MsgText(179)); // computed on the move
    w.reset(); // the view closes: its marker view goes first, nothing dangles
}

TEST(frmMarkerViewSetting, OkWritesTheCursorLinesAndCancelLeavesThem) {
    trendwidgets::LoadedWindow w(6, 2, 50);
    ASSERT_TRUE(w.loaded);
    const int cursorA = w.trend().tables().ChannelCount + 1;
    const SeriesStyle before = w.trend().chart().seriesStyle(cursorA);
    {
        frmMarkerViewSetting cancel(w.trend());
        qobject_cast<QSpinBox*>(cancel.SpreadMarker()->cellWidget(2, 0))->setValue(7);
        cancel.reject();
    }
    EXPECT_EQ(w.trend().chart().seriesStyle(cursorA).width, before.width);
    frmMarkerViewSetting ok(w.trend());
    qobject_cast<QSpinBox*>(ok.SpreadMarker()->cellWidget(2, 0))->setValue(7);
    qobject_cast<QComboBox*>(ok.SpreadMarker()->cellWidget(1, 0))->setCurrentIndex(2);
    ok.btnOK();
    EXPECT_EQ(w.trend().chart().seriesStyle(cursorA).width, 7);
    EXPECT_EQ(w.trend().chart().seriesStyle(cursorA).pattern, Chart::LinePattern::Dotted);
}

} // namespace
