#include "analysis/widgets/GridTableModel.h"

#include "analysis/GridModel.h"
#include "base/WinColor.h"

GridTableModel::GridTableModel(GridModel& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), rows_(grid.maxRows()), cols_(grid.maxCols() + 1) {
    // Only a new row or column count resets the view; headers and widths are redrawn.
    grid_.shapeChanged = [this] {
        if (rows_ != grid_.maxRows() || cols_ != grid_.maxCols() + 1) {
            beginResetModel();
            rows_ = grid_.maxRows();
            cols_ = grid_.maxCols() + 1;
            endResetModel();
        } else if (cols_ > 0) {
            Q_EMIT headerDataChanged(Qt::Horizontal, 0, cols_ - 1);
        }
        Q_EMIT shapeChanged();
    };
    grid_.cellsChanged = [this] { cellsWritten(); };
}

GridTableModel::~GridTableModel() {
    grid_.shapeChanged = nullptr;
    grid_.cellsChanged = nullptr;
}

void GridTableModel::cellsWritten() {
    if (rowCount() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int GridTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

QVariant GridTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return QVariant();
    const int col = index.column();
    const qint32 row = index.row() + 1;
    switch (role) {
    case Qt::DisplayRole:
        return grid_.text(col, row);
    case Qt::ForegroundRole:
        return WinColor::toQColor(grid_.foreColor(col, row));
    case Qt::BackgroundRole: {
        const QColor c = background ? background(col, row) : QColor();
        return c.isValid() ? QVariant(c) : QVariant();
    }
    case Qt::ToolTipRole: {
        const QString tip = textTip ? textTip(col, row) : QString();
        return tip.isEmpty() ? QVariant() : QVariant(tip);
    }
    default:
        return QVariant();
    }
}

QVariant GridTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return QVariant();
    if (orientation == Qt::Horizontal) return grid_.headerText(section);
    return QString::number(section + 1);
}

Qt::ItemFlags GridTableModel::flags(const QModelIndex& index) const {
    // Cells are locked: the list is read, never edited.
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}
