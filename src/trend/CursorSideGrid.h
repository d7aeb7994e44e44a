#pragma once

#include "trend/ReadoutGrid.h"

#include <QString>

#include <functional>

class TrendView;

// The grid vaSpread2 beside the trend: columns cursor A, cursor B, A-B and five statistics
// between the cursors; rows date, time and one per channel.
class CursorSideGrid {
public:
    static constexpr int kColumns = 8;
    static constexpr int kHeaderWidth = 16;
    static constexpr int kCellWidth = 12;

    explicit CursorSideGrid(TrendView& view) : v_(view) {}

    // Headers and an empty body for the channels of the view (after a load or a change of
    // channels).
    void build();
    // Column 1 or 2 from the cursor's point; nothing when it is not placed.
    void readout(int cursor);
    // Both cursor columns again (scale or calculation changed; scrolling).
    void refresh();
    // Columns 4..8: the five statistics of each channel between the two cursors, both placed.
    void statistics();
    // DataList_disp_check: rows of channels switched off in the trend, or left out by the
    // channel choice, are hidden.
    void DataList_disp_check();

    // The tool tip of a cell: for a red value cell of cursor A or B, message 8 or 9, message
    // 229 and each alarm level set at the cursor's point. Empty otherwise.
    QString toolTip(int row, int col) const;

    const ReadoutGrid& grid() const { return grid_; }
    // Called after each change of the grid's contents.
    std::function<void()> changed;

private:
    void notify();

    TrendView& v_;
    ReadoutGrid grid_;
};
