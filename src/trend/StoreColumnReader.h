#pragma once

#include "recording/CellFormat.h"

#include <QtGlobal>

#include <functional>
#include <memory>
#include <vector>

class clsStorage;

// The numbers of one store column in bulk, exactly as parsing each cell text would give them
// (status words and blank cells are the hole), without making the texts: each run of rows
// reads its raw cells through a table of 65536 values for its format, filled on first use.
// Text cells (CSV files, archives) are parsed once. A transform, when given, is applied to
// every value that is not the hole and kept in the tables too (percent of a scale).
class StoreColumnReader {
public:
    using Transform = std::function<double(double)>;

    StoreColumnReader(const clsStorage& storage, int col, Transform transform = {});
    ~StoreColumnReader();
    StoreColumnReader(StoreColumnReader&&) noexcept;
    StoreColumnReader& operator=(StoreColumnReader&&) noexcept;

    // Values of rows firstRow .. firstRow + n - 1 (1-based); rows outside the store are holes.
    void read(qint32 firstRow, qsizetype n, double* out) const;
    double value(qint32 row) const;

    class Table; // values of the raw cells of one format

private:
    struct Run {
        qint32 firstRow;
        qint32 lastRow;
        int table; // index into tables_
    };

    void buildRuns(const clsStorage& storage, int col);
    void parseTexts(const clsStorage& storage, int col);
    void readRun(const Run& run, qint32 from, qint32 to, double* out) const;

    const quint16* cells_ = nullptr;
    const quint16* high_ = nullptr;
    qint32 maxRows_ = 0;
    Transform transform_;
    std::vector<Run> runs_;
    std::vector<const Table*> tables_;
    std::vector<std::unique_ptr<Table>> owned_; // tables with this reader's transform
    std::vector<double> parsed_;                // text columns: the value of every row, index = row
};
