#pragma once

#include "analysis/GridModel.h"
#include "analysis/MarkerViewState.h"

#include <QString>

#include <QtGlobal>
#include <functional>

class TrendCursors;
class TrendView;

// The marker series N + 14 + i of a view: channel i between points a and b (range views on the
// channel series, hidden). In the circular graph a and b count within the circle (360 is 0);
// an unplaced end gives the range 1..1 with a hole. The view's marker statistics are valid then.
void BuildMarkerSeries(TrendView& view, qint32 a, qint32 b);
inline constexpr int kMarkerSeriesOffset = 14; // marker series N + 14 + i

// The marker view of one view (frmMarkerView without its window): a row a channel with the
// values at cursors A and B, their difference, the five statistics of all data (columns 4..8)
// and those between the cursors (9..13, from the marker series N + 14 + i).
class MarkerView {
public:
    static constexpr int kColumns = 13;
    // Block backgrounds of the two statistic groups and their border, 0x00BBGGRR.
    static constexpr quint32 kAllBack = 0xFFFFC0;    // rgb(192, 255, 255)
    static constexpr quint32 kMarkerBack = 0xC0FFC0; // rgb(192, 255, 192)
    static constexpr quint32 kBorder = 0xC0C0C0;
    static constexpr double kHeaderWidth = 20;
    static constexpr double kMinWidth = 10;
    static constexpr double kRowHeight = 20;

    // The view's marker view is open (MarkerViewFlag) while this object lives; cursor moves of
    // the view reach it through the cursors' hook.
    MarkerView(TrendView& view, TrendCursors& cursors, GridModel& grid);
    ~MarkerView();
    MarkerView(const MarkerView&) = delete;
    MarkerView& operator=(const MarkerView&) = delete;

    MarkerViewState& state() const;
    GridModel& grid() { return grid_; }
    int channels() const;

    // The window's load: headers and widths, All_Cal_Set, the cursor columns, the first fill,
    // the column groups as the view has them.
    void load();
    // Columns 4..8: the statistics of all data of every channel.
    void All_Cal_Set();
    // The cursor columns (time row 1, channels from row 2), as the trend's readout writes them.
    void MarkABset(int cursor, qint32 point);
    // The marker series N + 14 + i: channel i between points a and b (range views on the
    // channel series). In the circular graph a and b count within the circle (360 is 0); an
    // unplaced end gives the range 1..1 with a hole.
    void BuildMarkerSeries(qint32 a, qint32 b);
    // Columns 9..13 from the marker series; message 179 in black while they are not valid.
    void markerFill();
    // Button 8: the marker statistics of the cursors' span now. False (message 565 shown) when
    // a cursor is not placed.
    bool calculateMarker();
    // A cursor moved (the cursors' hook): its column, and the marker statistics when
    // MarkerAutoCalc is on.
    void cursorMoved(int cursor, qint32 point);

    // Buttons 1/2 and 4/5: cursor A or B one point left or right, kept within 1..PointCount, as
    // a click places it. An unplaced cursor gives message 565 and nothing else.
    bool stepCursor(int cursor, int step);
    // ToolbarSet for the buttons that need no window: 1, 2, 4, 5 and 8.
    bool ToolbarSet(int button);

    bool autoCalc() const;
    void setAutoCalc(bool on);
    // disp_1 and disp_2: the two statistic groups shown or hidden.
    void setShowAll(bool on);
    void setShowMarker(bool on);

    // Told after a cursor move has rewritten cells (the window redraws them).
    std::function<void()> changed;

    // The tip of a red cell of columns 1 and 2 (row above 1); empty otherwise.
    QString alarmTip(int col, qint32 row);

    // Column 0 of a channel: the trimmed tag, and CR LF "[unit]" when there is a unit.
    static QString channelHeader(int viewNumber, int channel);

private:
    void buildGrid();
    void clearCursorColumn(int cursor);
    void applyGroups();

    TrendView& view_;
    TrendCursors& cursors_;
    GridModel& grid_;
    int viewNumber_;
};
