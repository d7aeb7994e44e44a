#include "recording/clsStorage.h"

#include "recording/CellFormat.h"
#include "recording/Cp932.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cstring>

namespace {
constexpr int kCellBytes = CellFormat::kCellChars;
}

void clsStorage::Action(int action) {
    if (action != 28) return;
    columns_.clear();
    columns_.resize(1);
    maxRows_ = 0;
    dataColCnt_ = 0;
    dataRowCnt_ = 0;
}

clsStorage::Column* clsStorage::column(int col) {
    if (col < 0 || col > MaxCols()) return nullptr;
    return &columns_[size_t(col)];
}

bool clsStorage::GetText(int col, int row, QString& text) const {
    text.clear();
    if (col < 0 || col > MaxCols() || row < 0 || row > maxRows_) return false;
    const Column& c = columns_[size_t(col)];
    if (c.texts && size_t(row) < c.texts->index.size()) {
        if (const quint32 id = c.texts->index[size_t(row)]) {
            text = c.texts->pool.at(id).trimmed();
            return true;
        }
    }
    for (auto it = c.segments.rbegin(); it != c.segments.rend(); ++it) {
        if (row < it->firstRow || row > it->lastRow) continue;
        quint32 raw = c.cells[size_t(row)];
        if (it->format.wide() && !c.high.empty()) raw |= quint32(c.high[size_t(row)]) << 16;
        text = it->format.text(raw).trimmed();
        break;
    }
    return true;
}

void clsStorage::SetText(int col, int row, const QString& text) {
    Column* c = column(col);
    if (!c || row < 0 || row > maxRows_) return;
    if (!c->texts) c->texts = std::make_unique<TextCells>();
    TextCells& t = *c->texts;
    if (t.index.size() < size_t(maxRows_) + 1) t.index.resize(size_t(maxRows_) + 1, 0);
    const QString cell = text.left(kCellBytes);
    auto found = t.ids.constFind(cell);
    quint32 id;
    if (found != t.ids.constEnd()) {
        id = *found;
    } else {
        id = quint32(t.pool.size());
        t.pool.append(cell);
        t.ids.insert(cell, id);
    }
    t.index[size_t(row)] = id;
    dataRowCnt_ = std::max(dataRowCnt_, row);
}

void clsStorage::setMaxRows(int rows) {
    maxRows_ = std::max(rows, 0);
    const size_t size = size_t(maxRows_) + 1;
    for (Column& c : columns_) {
        if (!c.cells.empty()) c.cells.resize(size);
        if (!c.high.empty()) c.high.resize(size);
        if (c.texts && c.texts->index.size() > size) c.texts->index.resize(size);
        for (Segment& s : c.segments) s.lastRow = std::min(s.lastRow, maxRows_);
        std::erase_if(c.segments, [](const Segment& s) { return s.firstRow > s.lastRow; });
    }
    dataRowCnt_ = std::min(dataRowCnt_, maxRows_);
}

void clsStorage::setMaxCols(int cols) {
    columns_.resize(size_t(std::max(cols, 0)) + 1);
}

void clsStorage::dropTextsInRows(Column& c, int firstRow, int lastRow) {
    if (!c.texts) return;
    const int last = std::min(lastRow, int(c.texts->index.size()) - 1);
    for (int r = firstRow; r <= last; ++r) c.texts->index[size_t(r)] = 0;
}

quint16* clsStorage::beginSegment(int col, int firstRow, int lastRow, const CellFormat& format) {
    Column* c = column(col);
    if (!c) return nullptr;
    firstRow = std::max(firstRow, 1);
    lastRow = std::min(lastRow, maxRows_);
    if (c->cells.size() < size_t(maxRows_) + 1) c->cells.resize(size_t(maxRows_) + 1);
    if (format.wide() && c->high.size() < size_t(maxRows_) + 1)
        c->high.resize(size_t(maxRows_) + 1);
    if (firstRow <= lastRow) {
        dropTextsInRows(*c, firstRow, lastRow);
        Segment* last = c->segments.empty() ? nullptr : &c->segments.back();
        if (last && last->format == format && last->lastRow + 1 == firstRow)
            last->lastRow = lastRow;
        else
            c->segments.push_back({firstRow, lastRow, format});
        dataRowCnt_ = std::max(dataRowCnt_, lastRow);
    }
    return c->cells.data();
}

quint16* clsStorage::highCells(int col) {
    Column* c = column(col);
    if (!c) return nullptr;
    if (c->high.size() < size_t(maxRows_) + 1) c->high.resize(size_t(maxRows_) + 1);
    return c->high.data();
}

const std::vector<clsStorage::Segment>& clsStorage::segments(int col) const {
    static const std::vector<Segment> kNone;
    return col >= 0 && col <= MaxCols() ? columns_[size_t(col)].segments : kNone;
}

const quint16* clsStorage::rawCells(int col) const {
    if (col < 0 || col > MaxCols() || columns_[size_t(col)].cells.empty()) return nullptr;
    return columns_[size_t(col)].cells.data();
}

const quint16* clsStorage::rawHighCells(int col) const {
    if (col < 0 || col > MaxCols() || columns_[size_t(col)].high.empty()) return nullptr;
    return columns_[size_t(col)].high.data();
}

bool clsStorage::hasTextCells(int col) const {
    return col >= 0 && col <= MaxCols() && columns_[size_t(col)].texts != nullptr;
}

void clsStorage::squeeze() {
    for (Column& c : columns_) {
        c.cells.shrink_to_fit();
        c.high.shrink_to_fit();
        c.segments.shrink_to_fit();
    }
}

qint64 clsStorage::memoryBytes() const {
    qint64 bytes = qint64(columns_.capacity() * sizeof(Column));
    for (const Column& c : columns_) {
        bytes += qint64((c.cells.capacity() + c.high.capacity()) * sizeof(quint16));
        bytes += qint64(c.segments.capacity() * sizeof(Segment));
        if (c.texts)
            bytes +=
                qint64(c.texts->index.capacity() * sizeof(quint32)) + c.texts->pool.size() * 48;
    }
    return bytes;
}

bool clsStorage::SaveToFile(const QString& path) const {
    const qint32 rows = maxRows_;
    const qint32 cols = dataColCnt_;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    file.write(reinterpret_cast<const char*>(&rows), 4);
    file.write(reinterpret_cast<const char*>(&cols), 4);
    QByteArray block;
    QString text;
    for (int col = 0; col <= cols; ++col) {
        block.fill(' ', qsizetype(rows + 1) * kCellBytes);
        for (int row = 0; row <= rows; ++row) {
            GetText(col, row, text);
            if (text.isEmpty()) continue;
            const QByteArray bytes = Cp932::encode(text, kCellBytes);
            std::memcpy(block.data() + qsizetype(row) * kCellBytes, bytes.constData(),
                        size_t(bytes.size()));
        }
        if (file.write(block) != block.size()) return false;
    }
    return file.commit();
}

bool clsStorage::LoadFromFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray bytes = file.readAll();
    if (bytes.size() < 8) return false;
    qint32 rows, cols;
    std::memcpy(&rows, bytes.constData(), 4);
    std::memcpy(&cols, bytes.constData() + 4, 4);
    if (rows < 0 || cols < 0 || cols > 100000) return false;
    const qint64 expected = 8 + qint64(cols + 1) * (qint64(rows) + 1) * kCellBytes;
    if (expected != bytes.size()) return false;

    clsStorage loaded;
    loaded.setMaxCols(cols);
    loaded.setMaxRows(rows);
    const char* p = bytes.constData() + 8;
    for (int col = 0; col <= cols; ++col) {
        for (int row = 0; row <= rows; ++row, p += kCellBytes) {
            const QString text = Cp932::decode(p, kCellBytes).trimmed();
            if (!text.isEmpty() && col > 0 && row > 0) loaded.SetText(col, row, text);
        }
    }
    loaded.setDataColCnt(cols);
    loaded.setDataRowCnt(rows);
    *this = std::move(loaded);
    return true;
}

bool clsStorage::TryLoadFile(const QString& path, int /*sheet*/) {
    return LoadFromFile(path);
}
