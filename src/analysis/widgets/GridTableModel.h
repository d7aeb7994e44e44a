#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <functional>

class GridModel;

// A QTableView's model over a GridModel: model row i is grid row i + 1, model column j grid
// column j. Texts, colours and tips are asked of the grid only for the cells the view draws,
// so a virtual grid fills just the blocks on screen.
class GridTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit GridTableModel(GridModel& grid, QObject* parent = nullptr);
    ~GridTableModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // The tip of a cell (grid column and row); empty for none.
    std::function<QString(int col, qint32 row)> textTip;
    // The background of a cell; an invalid colour for the view's own.
    std::function<QColor(int col, qint32 row)> background;
    // The cells were written outside a fill: the view draws them again.
    void cellsWritten();

Q_SIGNALS:
    // Rows, columns, headers, widths or hidden columns of the grid changed.
    void shapeChanged();

private:
    GridModel& grid_;
    int rows_; // the counts the view was last told
    int cols_;
};
