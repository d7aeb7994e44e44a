#include "trend/StoreColumnReader.h"

#include "platform/ChartTypes.h"
#include "recording/clsStorage.h"
#include "trend/PlotValue.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kHole = Chart::kHoleValue;
constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

// The number a cell of this format reads as, through its text.
double cellValue(const CellFormat& format, quint32 raw) {
    double value;
    if (!TrendValues::parseNumber(format.text(raw), value) || value == kHole) return kHole;
    return value;
}

// Plain cells with 0..4 decimals: the text is the raw value over 10^d, or a status word.
bool isPlain(const CellFormat& format) {
    return format.kind == CellFormat::Kind::Plain && format.decimals >= 0 && format.decimals <= 4 &&
           !format.wide();
}

bool fillPlain(const CellFormat& format, std::vector<double>& values) {
    if (!isPlain(format)) return false;
    const double divisor = std::pow(10.0, format.decimals);
    for (int raw = 0; raw < 65536; ++raw) {
        const qint16 v = qint16(quint16(raw));
        values[size_t(raw)] = (v >= 32761 || v <= -32761) ? kHole : double(v) / divisor;
    }
    return true;
}

} // namespace

// Values of the raw cells of one format. 16-bit formats keep all 65536 answers, found on first
// use; 32-bit cells keep the last answers in a small direct-mapped cache.
class StoreColumnReader::Table {
public:
    Table(const CellFormat& format, const Transform& transform)
        : format_(format), transform_(transform) {
        if (format.wide()) {
            cacheKeys_.assign(kCacheSize, 0);
            cacheValues_.assign(kCacheSize, kUnknown);
            return;
        }
        values_.assign(65536, kUnknown);
        if (fillPlain(format, values_) && transform_)
            for (double& v : values_) v = transformed(v);
    }

    const CellFormat& format() const { return format_; }
    // Only a table complete from the start is shared between columns: the others fill in on
    // use, and columns are read from two threads at once while pyramids are built.
    static bool sharable(const CellFormat& format) { return isPlain(format); }

    double at(quint16 raw) const {
        const double v = values_[raw];
        return std::isnan(v) ? fill(raw) : v;
    }

    double wideAt(quint32 raw) const {
        const size_t slot = (raw * 2654435761u) >> (32 - kCacheBits);
        if (cacheKeys_[slot] == raw && !std::isnan(cacheValues_[slot])) return cacheValues_[slot];
        cacheKeys_[slot] = raw;
        return cacheValues_[slot] = transformed(cellValue(format_, raw));
    }

private:
    static constexpr int kCacheBits = 12;
    static constexpr size_t kCacheSize = size_t(1) << kCacheBits;

    double transformed(double v) const { return v == kHole || !transform_ ? v : transform_(v); }
    double fill(quint16 raw) const { return values_[raw] = transformed(cellValue(format_, raw)); }

    CellFormat format_;
    Transform transform_;
    mutable std::vector<double> values_;
    mutable std::vector<quint32> cacheKeys_;
    mutable std::vector<double> cacheValues_;
};

namespace {

// Tables without a transform depend on the format alone and are shared by every column and
// view of the process (the user interface thread's).
const StoreColumnReader::Table* sharedTable(const CellFormat& format) {
    static std::vector<std::unique_ptr<StoreColumnReader::Table>> tables;
    for (const auto& table : tables)
        if (table->format() == format) return table.get();
    tables.push_back(
        std::make_unique<StoreColumnReader::Table>(format, StoreColumnReader::Transform()));
    return tables.back().get();
}

} // namespace

StoreColumnReader::StoreColumnReader(const clsStorage& storage, int col, Transform transform)
    : transform_(std::move(transform)) {
    maxRows_ = storage.MaxRows();
    if (col < 1 || col > storage.MaxCols()) return;
    if (storage.hasTextCells(col)) {
        parseTexts(storage, col);
        return;
    }
    cells_ = storage.rawCells(col);
    high_ = storage.rawHighCells(col);
    if (cells_) buildRuns(storage, col);
}

StoreColumnReader::~StoreColumnReader() = default;
StoreColumnReader::StoreColumnReader(StoreColumnReader&&) noexcept = default;
StoreColumnReader& StoreColumnReader::operator=(StoreColumnReader&&) noexcept = default;

void StoreColumnReader::parseTexts(const clsStorage& storage, int col) {
    parsed_.assign(size_t(maxRows_) + 1, kHole);
    QString text;
    for (qint32 row = 1; row <= maxRows_; ++row) {
        double v;
        storage.GetText(col, row, text);
        if (TrendValues::parseNumber(text, v) && v != kHole)
            parsed_[size_t(row)] = transform_ ? transform_(v) : v;
    }
}

// Later segments overwrite the rows of earlier ones, as the cell texts do.
void StoreColumnReader::buildRuns(const clsStorage& storage, int col) {
    for (const clsStorage::Segment& segment : storage.segments(col)) {
        int table = 0;
        while (table < int(tables_.size()) && !(tables_[size_t(table)]->format() == segment.format))
            ++table;
        if (table == int(tables_.size())) {
            if (transform_ || !Table::sharable(segment.format)) {
                owned_.push_back(std::make_unique<Table>(segment.format, transform_));
                tables_.push_back(owned_.back().get());
            } else {
                tables_.push_back(sharedTable(segment.format));
            }
        }
        std::vector<Run> next;
        for (const Run& run : runs_) {
            if (run.lastRow < segment.firstRow || run.firstRow > segment.lastRow) {
                next.push_back(run);
                continue;
            }
            if (run.firstRow < segment.firstRow)
                next.push_back({run.firstRow, segment.firstRow - 1, run.table});
            if (run.lastRow > segment.lastRow)
                next.push_back({segment.lastRow + 1, run.lastRow, run.table});
        }
        next.push_back({segment.firstRow, segment.lastRow, table});
        std::sort(next.begin(), next.end(),
                  [](const Run& a, const Run& b) { return a.firstRow < b.firstRow; });
        runs_ = std::move(next);
    }
}

void StoreColumnReader::readRun(const Run& run, qint32 from, qint32 to, double* out) const {
    const Table& table = *tables_[size_t(run.table)];
    if (table.format().wide()) {
        for (qint32 row = from; row <= to; ++row) {
            const quint32 high = high_ ? quint32(high_[row]) << 16 : 0;
            *out++ = table.wideAt(high | cells_[row]);
        }
        return;
    }
    for (qint32 row = from; row <= to; ++row) *out++ = table.at(cells_[row]);
}

void StoreColumnReader::read(qint32 firstRow, qsizetype n, double* out) const {
    std::fill_n(out, n, kHole);
    const qint64 lastRow = std::min<qint64>(qint64(firstRow) + n - 1, maxRows_);
    const qint32 from = std::max(firstRow, 1);
    if (lastRow < from) return;
    if (!parsed_.empty()) {
        std::copy(parsed_.begin() + from, parsed_.begin() + lastRow + 1, out + (from - firstRow));
        return;
    }
    for (const Run& run : runs_) {
        const qint32 a = std::max(run.firstRow, from);
        const qint32 b = qint32(std::min<qint64>(run.lastRow, lastRow));
        if (a <= b) readRun(run, a, b, out + (a - firstRow));
    }
}

double StoreColumnReader::value(qint32 row) const {
    double v;
    read(row, 1, &v);
    return v;
}
