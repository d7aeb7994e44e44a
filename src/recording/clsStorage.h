#pragma once

#include "base/HugePageAllocator.h"
#include "recording/CellFormat.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

// The sample grid of a view: cells of 8 characters, column 2c the sample text of channel c and
// column 2c - 1 its alarm text. Cells are kept compactly: raw 16-bit (or 32-bit) values with a
// format for each run of rows, turned into text on demand; only cells set as text (CSV files,
// archives) keep their text. Columns and rows count from 1; index 0 exists and stays unused.
class clsStorage {
public:
    struct Segment {
        qint32 firstRow;
        qint32 lastRow;
        CellFormat format;
    };

    void Initialize() { Action(28); }
    // 28 clears all cells and sets the sizes to 0.
    void Action(int action);

    bool GetText(int col, int row, QString& text) const;
    // Text longer than 8 characters is cut at 8.
    void SetText(int col, int row, const QString& text);

    int MaxRows() const { return maxRows_; }
    void setMaxRows(int rows);
    int MaxCols() const { return int(columns_.size()) - 1; }
    void setMaxCols(int cols);
    int DataColCnt() const { return dataColCnt_; }
    void setDataColCnt(int cols) { dataColCnt_ = cols; }
    int DataRowCnt() const { return dataRowCnt_; }
    void setDataRowCnt(int rows) { dataRowCnt_ = rows; }
    bool ReDraw() const { return reDraw_; }
    void setReDraw(bool on) { reDraw_ = on; }

    // Header-less form: row count, column count, then (c + 1) x (r + 1) cells of 8 bytes.
    bool SaveToFile(const QString& path) const;
    bool LoadFromFile(const QString& path);
    // As LoadFromFile; the store is left as it was when the file cannot be read.
    bool TryLoadFile(const QString& path, int sheet);

    // Fast path for readers: rows firstRow..lastRow of a column take their text from raw cells
    // in the given format. Returns the cells (index = row), sized MaxRows + 1, to be written.
    quint16* beginSegment(int col, int firstRow, int lastRow, const CellFormat& format);
    // The high halves of 32-bit cells of a column (formats with wide()).
    quint16* highCells(int col);

    // Read access for numeric users (plotting, statistics) that decode raw cells themselves.
    const std::vector<Segment>& segments(int col) const;
    const quint16* rawCells(int col) const;
    const quint16* rawHighCells(int col) const;
    bool hasTextCells(int col) const;

    // Frees spare capacity once loading has ended.
    void squeeze();
    // Bytes held by the cells, for memory reports.
    qint64 memoryBytes() const;

private:
    struct TextCells {
        std::vector<quint32> index; // 0: no text in this row
        QStringList pool{QString()};
        QHash<QString, quint32> ids;
    };
    struct Column {
        std::vector<quint16, HugePageAllocator<quint16>> cells;
        std::vector<quint16, HugePageAllocator<quint16>> high;
        std::vector<Segment> segments;
        std::unique_ptr<TextCells> texts;
    };

    Column* column(int col);
    void dropTextsInRows(Column& c, int firstRow, int lastRow);

    std::vector<Column> columns_{1};
    int maxRows_ = 0;
    int dataColCnt_ = 0;
    int dataRowCnt_ = 0;
    bool reDraw_ = true;
};
