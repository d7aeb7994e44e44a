#pragma once

#include "platform/ChartTypes.h"
#include "trend/CursorSideGrid.h"

#include <QColor>
#include <QPointF>

#include <functional>

class ChartGeometry;
class TrendView;

// The chart's marker line on X: a vertical line that follows the mouse while a cursor button
// is on, in the style of that cursor's series.
struct TrackingMarker {
    bool tracking = false;
    QColor color{255, 0, 0};
    int width = 2;
    int pattern = 1;
    double x = 0; // data X (point - 1)
};

// Cursors A and B of a view: the Toolbar2 buttons 6 and 7, placing a cursor by a click, the
// cursor lines (series C+1 and C+2), and the readouts that follow a placement.
class TrendCursors {
public:
    explicit TrendCursors(TrendView& view);

    // Toolbar2 commands 6 (cursor A) and 7 (cursor B) toggle their button; at most one is on.
    // False for other commands.
    bool command(int number);
    void setCursorOn(int cursor, bool on);
    // The cursor a click places (1 or 2), 0 when both buttons are off.
    int activeCursor() const;
    const TrackingMarker& marker() const { return marker_; }

    // The mouse moved over the chart: notes the position for the click and, while a button is
    // on, moves the marker line to the nearest point. True when the marker moved.
    bool mouseMove(const ChartGeometry& geometry, const QPointF& pixel);
    // A click on the chart at the last mouse position: places the active cursor when the
    // position is inside the chart area. True when a cursor was placed.
    bool click(const ChartGeometry& geometry);
    // Places cursor 1 or 2 on a point (1-based) as a click does: line, CursorPoint, side grid,
    // marker view, statistics, bar chart. A hole at point 1 of series 1 blocks the placement.
    bool place(int cursor, qint32 point);

    // The ends of the cursor lines follow the Y range (after SetZoom or a channel choice).
    void followYRange();
    // A load: both buttons off, no cursor placed, the side grid rebuilt.
    void afterLoad();
    // The side panels after a change of scale, calculation or the shown range.
    void refreshSidePanels();

    CursorSideGrid& sideGrid() { return side_; }
    QPointF lastMouse() const { return lastMouse_; }

    // Set by the window: the marker view is open for this view (MarkABset of that view), the
    // statistics view is on, the bar chart follows a cursor (Part of the bar graph).
    std::function<void(int cursor, qint32 point)> markerView;
    std::function<void()> markerStatistics;
    std::function<void(int cursor)> barUpdate;
    bool statisticsViewOpen = false;

private:
    int cursorSeries(int cursor) const;
    qint32 pointAt(const ChartGeometry& geometry, const QPointF& pixel) const;
    void setLine(int cursor, qint32 point);
    void afterPlacement(int cursor, qint32 point);

    TrendView& v_;
    CursorSideGrid side_;
    TrackingMarker marker_;
    QPointF lastMouse_;
};
