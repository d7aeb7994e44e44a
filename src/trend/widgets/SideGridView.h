#pragma once

#include <QTableView>

class CursorSideGrid;
class SideGridModel;

// vaSpread2 on the screen: the cursor readout beside the trend, read-only, with wrapped
// headers, red alarm cells and their tool tips. Shows a CursorSideGrid and follows its changes
// (it takes the grid's `changed` hook).
class SideGridView : public QTableView {
    Q_OBJECT
public:
    explicit SideGridView(CursorSideGrid& grid, QWidget* parent = nullptr);
    ~SideGridView() override;

    // Takes the grid's contents, widths and hidden rows again.
    void refresh();
    // Pixels that show the row headers and the first `columns` columns whole.
    int widthForColumns(int columns) const;

private:
    CursorSideGrid& grid_;
    SideGridModel* model_;
};
