#pragma once

#include "analysis/GridModel.h"
#include "trend/ReadoutGrid.h"

// A GridModel seen as readout cells, so that the cursor readout writes into a list window's
// grid. Readout cells count (row, column); the grid counts (column, row).
class GridCells final : public ReadoutCells {
public:
    explicit GridCells(GridModel& grid) : grid_(&grid) {}
    int rowCount() const override { return grid_->maxRows(); }
    int columnCount() const override { return grid_->maxCols(); }
    QString text(int row, int col) const override { return grid_->text(col, row); }
    void setText(int row, int col, const QString& text) override { grid_->setText(col, row, text); }
    quint32 color(int row, int col) const override { return grid_->foreColor(col, row); }
    void setColor(int row, int col, quint32 bgr) override { grid_->setForeColor(col, row, bgr); }

private:
    GridModel* grid_; // reads fill a grid's blocks: not const
};
