#include "TrendWindowFixture.h"
#include "base/LanguageTable.h"
#include "trend/widgets/SideGridView.h"

#include <QAction>
#include <QComboBox>
#include <QImage>
#include <QMenu>
#include <QScrollBar>
#include <QToolBar>

#include <gtest/gtest.h>

#include <cstdlib>

using trendwidgets::LoadedWindow;

namespace {

// Pixels of a line's colour inside a rectangle of an image. Lines are drawn smoothed, so a
// pixel counts when it has the pen's hue and is clearly coloured (the pale background is not).
int countColour(const QImage& image, const QRect& area, const QColor& pen) {
    int n = 0;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const int hueGap = std::abs(c.hsvHue() - pen.hsvHue());
            n += c.hsvSaturation() > 50 && std::min(hueGap, 360 - hueGap) < 20;
        }
    }
    return n;
}

} // namespace

// A loaded view shows its channels as lines in their pen colours, the file's name as caption
// and the date line of the span.
TEST(frmScrollTime, LoadedViewDrawsTheRecording) {
    LoadedWindow w(1);
    ASSERT_TRUE(w.loaded);
    EXPECT_EQ(w.window->windowTitle(), QStringLiteral("trend1.vxf"));
    EXPECT_FALSE(w.window->titleText().isEmpty());
    const QImage image = w.chart().grab().toImage();
    const QRect plot = w.plot().toAlignedRect().adjusted(2, 2, -2, -2);
    for (int s = 1; s <= 2; ++s) {
        const QColor pen = w.trend().chart().seriesStyle(s).color;
        EXPECT_GT(countColour(image, plot, pen), plot.width() / 2) << "series " << s;
    }
    // Channel 2 is a flat line at 5.0: its pixels lie in the row where Y = 5 maps.
    const int row = int(w.chart().chartGeometry().dataToPixel(10, 5).y());
    const QColor pen2 = w.trend().chart().seriesStyle(2).color;
    EXPECT_GT(countColour(image, QRect(plot.left(), row - 1, plot.width(), 3), pen2),
              plot.width() * 9 / 10);
}

// A left drag over the plot zooms X to the points under the band's edges and enables the
// zoom buttons and the scroll bar; command 1 goes back a level, command 2 to the whole.
TEST(frmScrollTime, BandZoomAndToolbarCommands) {
    LoadedWindow w(2);
    ASSERT_TRUE(w.loaded);
    QAction* back = w.window->toolbar2Action(1);
    QAction* whole = w.window->toolbar2Action(2);
    ASSERT_TRUE(back && whole);
    EXPECT_FALSE(back->isEnabled());
    EXPECT_FALSE(whole->isEnabled());
    EXPECT_FALSE(w.window->hsbTrendGraph()->isEnabled());
    EXPECT_EQ(w.xMin(), 0);
    EXPECT_EQ(w.xMax(), 599);

    w.band(0.25, 0.5);
    EXPECT_EQ(w.trend().state().ZoomLevel, 1);
    EXPECT_NEAR(w.xMin(), 150, 2);
    EXPECT_NEAR(w.xMax(), 300, 2);
    EXPECT_TRUE(back->isEnabled());
    EXPECT_TRUE(whole->isEnabled());
    EXPECT_TRUE(w.window->hsbTrendGraph()->isEnabled());

    // A second band zooms further; back returns to the first band's range.
    w.band(0.02, 0.98);
    EXPECT_EQ(w.trend().state().ZoomLevel, 2);
    back->trigger();
    EXPECT_EQ(w.trend().state().ZoomLevel, 1);
    EXPECT_NEAR(w.xMin(), 150, 2);
    whole->trigger();
    EXPECT_EQ(w.trend().state().ZoomLevel, 0);
    EXPECT_EQ(w.xMin(), 0);
    EXPECT_EQ(w.xMax(), 599);
    EXPECT_FALSE(back->isEnabled());
    EXPECT_FALSE(w.window->hsbTrendGraph()->isEnabled());
}

// Bands that the zoom refuses leave the view as it was: a band of one point, a band while a
// cursor is on, and any band at level 99, where the stack is full and the zoom is left pending.
TEST(frmScrollTime, RefusedBands) {
    LoadedWindow w(3);
    ASSERT_TRUE(w.loaded);
    const QPointF mid = w.plot().center();
    w.drag(Qt::LeftButton, mid, mid + QPointF(0.2, 0));
    EXPECT_EQ(w.trend().state().ZoomLevel, 0);

    w.trend().state().CursorAOn = true;
    w.band(0.01, 0.99);
    EXPECT_EQ(w.trend().state().ZoomLevel, 0);
    w.trend().state().CursorAOn = false;

    w.trend().state().ZoomLevel = 99;
    w.band(0.01, 0.99);
    EXPECT_EQ(w.trend().state().ZoomLevel, 99);
    EXPECT_TRUE(w.trend().state().ZoomPending);
}

// A right drag zooms Y to the values under the band's edges and keeps X; a right click
// without a drag opens the popup menu with the zoom commands.
TEST(frmScrollTime, RightButtonBandAndPopup) {
    LoadedWindow w(4);
    ASSERT_TRUE(w.loaded);
    const QRectF plot = w.plot();
    const ChartGeometry g = w.chart().chartGeometry();
    const double top = g.dataToPixel(0, 8).y();
    const double bottom = g.dataToPixel(0, 2).y();
    w.drag(Qt::RightButton, QPointF(plot.center().x(), top), QPointF(plot.center().x(), bottom));
    EXPECT_EQ(w.trend().state().ZoomLevel, 1);
    EXPECT_NEAR(w.trend().chart().axisY().min(), 2, 0.1);
    EXPECT_NEAR(w.trend().chart().axisY().max(), 8, 0.1);
    EXPECT_EQ(w.xMin(), 0);
    EXPECT_EQ(w.xMax(), 599);
    EXPECT_FALSE(w.window->hsbTrendGraph()->isEnabled()); // X is the whole recording

    w.mouse(QEvent::MouseButtonPress, Qt::RightButton, plot.center());
    w.mouse(QEvent::MouseButtonRelease, Qt::RightButton, plot.center());
    QMenu* popup = w.window->popupMenu();
    EXPECT_TRUE(popup->isVisible());
    EXPECT_TRUE(popup->actions().contains(w.window->toolbar2Action(1)));
    EXPECT_EQ(w.trend().state().ZoomLevel, 1);
    popup->hide();
}

// Moving the scroll bar of a zoomed view shows a span of the same length further on, in
// proportion to the bar's position; the zoom level stays.
TEST(frmScrollTime, ScrollBarMovesTheRange) {
    LoadedWindow w(5);
    ASSERT_TRUE(w.loaded);
    QScrollBar* bar = w.window->hsbTrendGraph();
    w.band(0.005, 1.0 / 6);
    ASSERT_TRUE(bar->isEnabled());
    const double span = w.xMax() - w.xMin();
    bar->setValue(300);
    EXPECT_NEAR(w.xMin(), 300, 2);
    EXPECT_NEAR(w.xMax() - w.xMin(), span, 2);
    EXPECT_EQ(bar->value(), 300);
    bar->setValue(bar->maximum());
    EXPECT_NEAR(w.xMax(), 599, 2);
    EXPECT_EQ(w.trend().state().ZoomLevel, 1);
}

// Cursor A from the tool bar: a click on the plot places it on the nearest point, the side
// grid shows its time and values, and the band zoom stays off while a cursor button is on.
TEST(frmScrollTime, CursorButtonPlacesCursorAByAClick) {
    LoadedWindow w(8);
    ASSERT_TRUE(w.loaded);
    w.window->command(6);
    EXPECT_TRUE(w.trend().state().CursorAOn);
    EXPECT_TRUE(w.window->toolbar2Action(6)->isChecked());
    const QPointF at = w.plot().center();
    const double xMin = w.xMin(), xMax = w.xMax();
    w.mouse(QEvent::MouseMove, Qt::NoButton, at);
    w.mouse(QEvent::MouseButtonPress, Qt::LeftButton, at);
    w.mouse(QEvent::MouseButtonRelease, Qt::LeftButton, at);
    const qint32 point = w.trend().state().CursorPoint[0];
    EXPECT_NEAR(point, 300, 3); // the middle of 600 points
    EXPECT_EQ(w.xMin(), xMin);  // no band zoom while the cursor is on
    EXPECT_EQ(w.xMax(), xMax);
    const ReadoutGrid& grid = w.window->cursors().sideGrid().grid();
    bool anyValue = false;
    for (int row = 1; row <= grid.rowCount(); ++row)
        anyValue = anyValue || !grid.text(row, 1).isEmpty();
    EXPECT_TRUE(anyValue);
}

// The channel choice on the tool bar: every channel, or one alone on an automatic Y that fits
// it; the side grid shows the rows of the channels on show.
TEST(frmScrollTime, ChannelChoiceShowsOneChannelAlone) {
    LoadedWindow w(7, 3);
    ASSERT_TRUE(w.loaded);
    QComboBox* choice = w.window->cbxSelectCH();
    ASSERT_NE(choice, nullptr);
    ASSERT_TRUE(w.window->Toolbar2()->isAncestorOf(choice));
    EXPECT_TRUE(choice->isEnabled());
    EXPECT_EQ(choice->count(), 4);
    EXPECT_EQ(choice->itemText(0), MsgText(91));
    EXPECT_EQ(choice->currentIndex(), 0);
    ChartModel& chart = w.trend().chart();
    // Channel 1 runs 0.0..9.9, so all channels together need more than channel 2's flat 5.0.
    EXPECT_LT(chart.axisY().min(), 0);

    Q_EMIT choice->activated(2);
    EXPECT_EQ(choice->currentIndex(), 2);
    const std::vector<int> alone = {chart.displayState(1), chart.displayState(2),
                                    chart.displayState(3)};
    EXPECT_EQ(alone, (std::vector<int>{Chart::kDisplayHidden, Chart::kDisplayShown,
                                       Chart::kDisplayHidden}));
    EXPECT_TRUE(chart.axisY().isMinAuto() && chart.axisY().isMaxAuto());
    ASSERT_EQ(chart.Y(2, 1), 5.0) << "raw 50 with one decimal";
    EXPECT_EQ(chart.axisY().min(), 4.5);
    EXPECT_EQ(chart.axisY().max(), 5.5);
    const ReadoutGrid& grid = w.window->cursors().sideGrid().grid();
    EXPECT_TRUE(grid.isRowHidden(3)) << "channel 1";
    EXPECT_FALSE(grid.isRowHidden(4)) << "channel 2";
    EXPECT_TRUE(w.window->sideGrid()->isRowHidden(2));

    Q_EMIT choice->activated(0);
    EXPECT_EQ(choice->currentIndex(), 0);
    for (int s = 1; s <= 3; ++s) EXPECT_EQ(chart.displayState(s), Chart::kDisplayShown) << s;
    EXPECT_FALSE(grid.isRowHidden(3));
    EXPECT_LT(chart.axisY().min(), 0);
}

// With both cursors placed, the readout beside the chart shows A, B and A-B whole in a window
// 1280 pixels wide.
TEST(frmScrollTime, ReadoutShowsBothCursorsAndTheDifference) {
    LoadedWindow w(8);
    ASSERT_TRUE(w.loaded);
    w.window->resize(1280, 800);
    QApplication::processEvents();
    for (const auto& [button, at] : {std::pair{6, 0.3}, std::pair{7, 0.7}}) {
        w.window->command(button);
        const QPointF pixel(w.plot().left() + w.plot().width() * at, w.plot().center().y());
        w.mouse(QEvent::MouseMove, Qt::NoButton, pixel);
        w.mouse(QEvent::MouseButtonPress, Qt::LeftButton, pixel);
        w.mouse(QEvent::MouseButtonRelease, Qt::LeftButton, pixel);
    }
    ASSERT_GT(w.trend().state().CursorPoint[0], 0);
    ASSERT_GT(w.trend().state().CursorPoint[1], 0);
    QApplication::processEvents();
    SideGridView* grid = w.window->sideGrid();
    for (int column = 0; column < 3; ++column) {
        const int left = grid->columnViewportPosition(column);
        EXPECT_GE(left, 0) << column;
        EXPECT_LE(left + grid->columnWidth(column), grid->viewport()->width()) << column;
    }
}
