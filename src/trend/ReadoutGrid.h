#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

// What a cursor readout writes into: a grid of texts with a foreground colour per cell
// (0x00BBGGRR). Rows and columns count from 1; row 0 holds the column headers and column 0 the
// row headers. The side grid of the trend and the marker view's grid both take the readout.
class ReadoutCells {
public:
    virtual ~ReadoutCells() = default;
    virtual int rowCount() const = 0;
    virtual int columnCount() const = 0;
    virtual QString text(int row, int col) const = 0;
    virtual void setText(int row, int col, const QString& text) = 0;
    virtual quint32 color(int row, int col) const = 0;
    virtual void setColor(int row, int col, quint32 bgr) = 0;
};

// A plain table of readout cells with header texts, column widths (in characters) and hidden
// rows: the model behind a grid window. Cells outside the table are ignored on write and empty
// on read.
class ReadoutGrid final : public ReadoutCells {
public:
    // Empties the table and gives it rows x cols cells, black, widths 12, nothing hidden.
    void resize(int rows, int cols);

    int rowCount() const override { return rows_; }
    int columnCount() const override { return cols_; }
    QString text(int row, int col) const override;
    void setText(int row, int col, const QString& text) override;
    quint32 color(int row, int col) const override;
    void setColor(int row, int col, quint32 bgr) override;

    int columnWidth(int col) const;
    void setColumnWidth(int col, int width);
    bool isRowHidden(int row) const;
    void setRowHidden(int row, bool hidden);

private:
    struct Cell {
        QString text;
        quint32 color = 0;
    };
    const Cell* at(int row, int col) const;
    Cell* at(int row, int col);

    int rows_ = 0;
    int cols_ = 0;
    std::vector<Cell> cells_; // (rows + 1) x (cols + 1), row-major
    std::vector<int> widths_;
    std::vector<bool> hidden_;
};
