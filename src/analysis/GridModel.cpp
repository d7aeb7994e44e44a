#include "analysis/GridModel.h"

#include "base/Progress.h"

#include <algorithm>
#include <new>

void GridModel::setMaxCols(int cols) {
    maxCols_ = std::max(cols, 0);
    const size_t n = size_t(maxCols_) + 1;
    headers_.resize(n);
    widths_.resize(n, -1);
    hidden_.resize(n, false);
    blocks_.clear();
    notifyShape();
}

void GridModel::setMaxRows(qint32 rows) {
    maxRows_ = std::max(rows, 0);
    blocks_.clear();
    notifyShape();
}

QString GridModel::headerText(int col) const {
    return col >= 0 && col <= maxCols_ ? headers_[size_t(col)] : QString();
}

void GridModel::setHeaderText(int col, const QString& text) {
    if (col < 0 || col > maxCols_) return;
    headers_[size_t(col)] = text;
    notifyShape();
}

double GridModel::colWidth(int col) const {
    if (col < 0 || col > maxCols_ || widths_[size_t(col)] < 0) return defaultWidth_;
    return widths_[size_t(col)];
}

void GridModel::setColWidth(int col, double width) {
    if (col < 0 || col > maxCols_) return;
    widths_[size_t(col)] = std::max(width, 0.0);
    notifyShape();
}

void GridModel::setDefaultColWidth(double width) {
    defaultWidth_ = std::max(width, 0.0);
    std::fill(widths_.begin(), widths_.end(), -1);
    notifyShape();
}

bool GridModel::colHidden(int col) const {
    return col >= 0 && col <= maxCols_ && hidden_[size_t(col)];
}

void GridModel::setColHidden(int col, bool hidden) {
    if (col < 0 || col > maxCols_) return;
    hidden_[size_t(col)] = hidden;
    notifyShape();
}

void GridModel::setRowHeight(double height) {
    rowHeight_ = std::max(height, 1.0);
    notifyShape();
}

void GridModel::setVirtualMode(bool on) {
    virtualMode_ = on;
    refreshVirtual();
}

void GridModel::setVirtualRows(int rows) {
    blockRows_ = std::max(rows, 1);
    blocks_.clear();
}

void GridModel::refreshVirtual() {
    if (virtualMode_) blocks_.clear();
    notifyCells();
}

qsizetype GridModel::heldRows() const {
    qsizetype rows = 0;
    for (const RowBlock& b : blocks_) rows += qsizetype(b.colors.size()) / (maxCols_ + 1);
    return rows;
}

bool GridModel::validCell(int col, qint32 row) const {
    return col >= 0 && col <= maxCols_ && row >= 1 && row <= maxRows_;
}

qsizetype GridModel::cellIndex(const RowBlock& block, int col, qint32 row) const {
    return qsizetype(row - block.firstRow) * (maxCols_ + 1) + col;
}

// The block that holds a row, made the most recent; null when no block holds it.
GridModel::RowBlock* GridModel::held(qint32 row) {
    const qint32 first = (row - 1) / blockRows_ * blockRows_ + 1;
    for (auto it = blocks_.begin(); it != blocks_.end(); ++it) {
        if (it->firstRow != first) continue;
        if (it != blocks_.begin()) blocks_.splice(blocks_.begin(), blocks_, it);
        return &blocks_.front();
    }
    return nullptr;
}

// The block of a row, made (and in virtual mode filled) when it is not held.
GridModel::RowBlock* GridModel::fetch(qint32 row) {
    if (RowBlock* b = held(row)) return b;
    if (virtualMode_ && filling_) return nullptr; // a fill writes only into its own block
    if (virtualMode_)
        while (qsizetype(blocks_.size()) >= kCachedBlocks) blocks_.pop_back();
    RowBlock block;
    block.firstRow = (row - 1) / blockRows_ * blockRows_ + 1;
    const qint32 rows = std::min<qint32>(blockRows_, maxRows_ - block.firstRow + 1);
    const size_t cells = size_t(rows) * size_t(maxCols_ + 1);
    block.texts.resize(cells);
    block.colors.resize(cells, 0);
    blocks_.push_front(std::move(block));
    if (virtualMode_ && fill_) {
        const qint32 first = blocks_.front().firstRow;
        filling_ = true;
        const bool redraw = reDraw_;
        reDraw_ = false;
        fill_(first, blockRows_, 1);
        reDraw_ = redraw;
        filling_ = false;
    }
    return held(row);
}

QString GridModel::text(int col, qint32 row) {
    if (row == 0) return headerText(col);
    if (!validCell(col, row)) return QString();
    const RowBlock* b = filling_ ? held(row) : fetch(row);
    return b ? b->texts[size_t(cellIndex(*b, col, row))] : QString();
}

void GridModel::setText(int col, qint32 row, const QString& text) {
    if (row == 0) return setHeaderText(col, text);
    if (!validCell(col, row)) return;
    RowBlock* b = virtualMode_ ? held(row) : fetch(row);
    if (b) b->texts[size_t(cellIndex(*b, col, row))] = text;
}

quint32 GridModel::foreColor(int col, qint32 row) {
    if (!validCell(col, row)) return 0;
    const RowBlock* b = filling_ ? held(row) : fetch(row);
    return b ? b->colors[size_t(cellIndex(*b, col, row))] : 0;
}

void GridModel::setForeColor(int col, qint32 row, quint32 bgr) {
    if (!validCell(col, row)) return;
    RowBlock* b = virtualMode_ ? held(row) : fetch(row);
    if (b) b->colors[size_t(cellIndex(*b, col, row))] = bgr;
}

void GridModel::setReDraw(bool on) {
    reDraw_ = on;
    if (!on) return;
    if (shapePending_) notifyShape();
    if (cellsPending_) notifyCells();
}

void GridModel::notifyShape() {
    shapePending_ = !reDraw_;
    if (reDraw_ && shapeChanged) shapeChanged();
}

void GridModel::notifyCells() {
    cellsPending_ = !reDraw_;
    if (reDraw_ && cellsChanged) cellsChanged();
}

std::optional<QString> GridModel::clipText(const Block& block, Progress* progress,
                                           qsizetype maxChars) {
    const int col1 = std::max(0, std::min(block.col1, block.col2));
    const int col2 = std::min(maxCols_, std::max(block.col1, block.col2));
    const qint32 row1 = std::max(1, std::min(block.row1, block.row2));
    const qint32 row2 = std::min(maxRows_, std::max(block.row1, block.row2));
    QString out;
    try {
        for (qint32 row = row1; row <= row2; ++row) {
            for (int col = col1; col <= col2; ++col) {
                if (col > col1) out += QLatin1Char('\t');
                out += text(col, row);
            }
            out += QLatin1Char('\n');
            if (out.size() > maxChars) return std::nullopt;
            if (progress && (row - row1) % blockRows_ == 0)
                progress->setValue(int(qint64(row - row1) * 100 / std::max(1, row2 - row1 + 1)));
        }
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    if (progress) progress->setValue(100);
    return out;
}
