#include "trend/ReadoutGrid.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int kDefaultWidth = 12;
}

void ReadoutGrid::resize(int rows, int cols) {
    rows_ = std::max(0, rows);
    cols_ = std::max(0, cols);
    cells_.assign(size_t(rows_ + 1) * size_t(cols_ + 1), Cell());
    widths_.assign(size_t(cols_ + 1), kDefaultWidth);
    hidden_.assign(size_t(rows_ + 1), false);
}

const ReadoutGrid::Cell* ReadoutGrid::at(int row, int col) const {
    if (cells_.empty() || row < 0 || row > rows_ || col < 0 || col > cols_) return nullptr;
    return &cells_[size_t(row) * size_t(cols_ + 1) + size_t(col)];
}

ReadoutGrid::Cell* ReadoutGrid::at(int row, int col) {
    return const_cast<Cell*>(std::as_const(*this).at(row, col));
}

QString ReadoutGrid::text(int row, int col) const {
    const Cell* c = at(row, col);
    return c ? c->text : QString();
}

void ReadoutGrid::setText(int row, int col, const QString& text) {
    if (Cell* c = at(row, col)) c->text = text;
}

quint32 ReadoutGrid::color(int row, int col) const {
    const Cell* c = at(row, col);
    return c ? c->color : 0;
}

void ReadoutGrid::setColor(int row, int col, quint32 bgr) {
    if (Cell* c = at(row, col)) c->color = bgr;
}

int ReadoutGrid::columnWidth(int col) const {
    // A grid never sized has no widths yet.
    return col >= 0 && size_t(col) < widths_.size() ? widths_[size_t(col)] : 0;
}

void ReadoutGrid::setColumnWidth(int col, int width) {
    if (col >= 0 && size_t(col) < widths_.size()) widths_[size_t(col)] = width;
}

bool ReadoutGrid::isRowHidden(int row) const {
    return row >= 0 && size_t(row) < hidden_.size() && hidden_[size_t(row)];
}

void ReadoutGrid::setRowHidden(int row, bool hidden) {
    if (row >= 0 && size_t(row) < hidden_.size()) hidden_[size_t(row)] = hidden;
}
