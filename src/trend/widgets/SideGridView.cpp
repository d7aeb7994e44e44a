#include "trend/widgets/SideGridView.h"

#include "base/WinColor.h"
#include "trend/CursorSideGrid.h"

#include <QAbstractTableModel>
#include <QFontMetrics>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

// The grid's cells as a Qt model: row 0 and column 0 of the readout grid are the headers.
class SideGridModel : public QAbstractTableModel {
public:
    explicit SideGridModel(const CursorSideGrid& grid, QObject* parent)
        : QAbstractTableModel(parent), grid_(grid) {}

    int rowCount(const QModelIndex& parent = QModelIndex()) const override {
        return parent.isValid() ? 0 : grid_.grid().rowCount();
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override {
        return parent.isValid() ? 0 : grid_.grid().columnCount();
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const int row = index.row() + 1;
        const int col = index.column() + 1;
        switch (role) {
        case Qt::DisplayRole:
            return grid_.grid().text(row, col);
        case Qt::ForegroundRole:
            return WinColor::toQColor(grid_.grid().color(row, col));
        case Qt::ToolTipRole: {
            const QString tip = grid_.toolTip(row, col);
            return tip.isEmpty() ? QVariant() : QVariant(tip);
        }
        case Qt::TextAlignmentRole:
            return int(Qt::AlignRight | Qt::AlignVCenter);
        default:
            return QVariant();
        }
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (role != Qt::DisplayRole) return QVariant();
        return orientation == Qt::Horizontal ? grid_.grid().text(0, section + 1)
                                             : grid_.grid().text(section + 1, 0);
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
    }
    void reset() {
        beginResetModel();
        endResetModel();
    }

private:
    const CursorSideGrid& grid_;
};

SideGridView::SideGridView(CursorSideGrid& grid, QWidget* parent)
    : QTableView(parent), grid_(grid), model_(new SideGridModel(grid, this)) {
    setObjectName(QStringLiteral("vaSpread2"));
    setModel(model_);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    grid_.changed = [this] { refresh(); };
    refresh();
}

SideGridView::~SideGridView() {
    grid_.changed = nullptr;
}

void SideGridView::refresh() {
    model_->reset();
    // Widths are kept in characters; a cell adds its margins.
    const int charWidth = QFontMetrics(font()).horizontalAdvance(QLatin1Char('0'));
    constexpr int kMargins = 8;
    const ReadoutGrid& g = grid_.grid();
    verticalHeader()->setMinimumWidth(g.columnWidth(0) * charWidth + kMargins);
    for (int c = 1; c <= g.columnCount(); ++c)
        setColumnWidth(c - 1, g.columnWidth(c) * charWidth + kMargins);
    for (int r = 1; r <= g.rowCount(); ++r) setRowHidden(r - 1, g.isRowHidden(r));
}

int SideGridView::widthForColumns(int columns) const {
    const QHeaderView* rows = verticalHeader();
    int width = 2 * frameWidth() +
                std::max({rows->width(), rows->minimumWidth(), rows->sizeHint().width()});
    for (int c = 0; c < columns && c < model()->columnCount(); ++c) width += columnWidth(c);
    // Room for the vertical scroll bar of a view with many channels.
    return width + verticalScrollBar()->sizeHint().width();
}
