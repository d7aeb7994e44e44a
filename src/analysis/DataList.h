#pragma once

#include "analysis/DataListState.h"
#include "analysis/GridModel.h"
#include "analysis/ValueTextCache.h"

#include <QString>
#include <QtGlobal>

class ListRows;
class Progress;
class TrendView;

// The data list of one view (frmItiran without its window): one row a sample, one column a
// channel, filled block by block from what the trend view plots. Column 0 holds the sample
// number, column 1 date and time, column i + 1 channel i.
class DataList {
public:
    static constexpr int kBlockRows = GridModel::kDefaultBlockRows;
    // rgb(255,0,0) and rgb(0,0,0) as 0x00BBGGRR.
    static constexpr quint32 kAlarmColor = 0x0000FF;
    static constexpr quint32 kNormalColor = 0x000000;

    // The list of the view is open (ListOpen -1) while this object lives.
    DataList(TrendView& view, GridModel& grid);
    ~DataList();
    DataList(const DataList&) = delete;
    DataList& operator=(const DataList&) = delete;

    int viewNumber() const { return viewNumber_; }
    DataListState& state() const;
    GridModel& grid() { return grid_; }
    const TrendView& trendView() const { return view_; }

    // The window's load: row offset of the circle, the table, switched-off channels hidden.
    void load();
    // Builds the table: headers, widths, row count of the whole set.
    void build();
    // The circular graph moved to another circle: the table of that circle.
    void CircleRechange();
    // Toolbar buttons 1 (all rows), 2 (between the cursors), 3 (the visible span).
    void setRowSet(int button);
    // Button 3 stands only outside the circular graph.
    bool visibleSpanButton() const;
    // Hides the column of each channel that the trend view does not draw.
    void hideSwitchedOffChannels();

    // The grid's fill request: rows `row` .. min(row + count, rows) with direction code 1..5.
    GridModel::VirtualReply fillBlock(qint32 row, qint32 count, int direction);

    // The tip of a red channel cell: the tag, then a line per alarm level set; empty when none.
    QString alarmTip(int col, qint32 row);

    // A click on, or a move to, a cell with row and column above 0: the trend view's marker
    // goes to that row and its date label shows the row's time. The axis range stays.
    void moveTrend(qint32 row);

    // The selected block as text for the clipboard. False (and "Out of memory." shown) when the
    // text could not be made; text is then left as it was.
    bool copySelection(QString& text, Progress* progress = nullptr,
                       qsizetype maxChars = GridModel::kMaxClipChars);

    // The hover text of toolbar button `index` (message 379 + index).
    static QString toolbarHoverText(int index);

    // Where list row g (a grid row plus ListRowOffset) stands: its plot point and its 1-based
    // sample. False when the chart holds no such point (the view's data was replaced).
    bool locate(const ListRows& rows, qint64 g, qsizetype& point, qint32& sample) const;
    // The text of channel i at a plot point as the grid shows it: the value in the channel's
    // format, or for a hole the status word of the sample (message 179 without one).
    QString channelText(qsizetype point, qint32 sample, int i);
    // The two halves of that: the text of a plotted value y (not the hole) of channel i, and the
    // text of a hole at a sample.
    QString valueText(double y, int i);
    QString holeText(qint32 sample, int i) const;
    // valueText without the list's cache of texts, so that it may run on another thread while
    // this one reads (the view's state must not change meanwhile).
    QString plainValueText(double y, int i) const;
    // Channels that have a column in the grid.
    int channelColumns() const;

private:
    void fillRow(const ListRows& rows, qint64 g);

    TrendView& view_;
    GridModel& grid_;
    int viewNumber_;
    ValueTextCache texts_;
};
