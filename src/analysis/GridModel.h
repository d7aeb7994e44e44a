#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>
#include <list>
#include <optional>
#include <vector>

class Progress;

// A grid of texts as a list window shows it: row 0 holds the column headers, column 0 the row
// headers, cells count from (1, 1). In virtual mode the rows are not held: a text asked for
// fills the block of rows around it through the fill request, and only a few filled blocks are
// kept, so a grid of millions of rows costs what one block does. Colours are 0x00BBGGRR.
class GridModel {
public:
    static constexpr int kDefaultBlockRows = 500;
    static constexpr int kCachedBlocks = 6;
    // Copies larger than this many characters fail as if memory ran out.
    static constexpr qsizetype kMaxClipChars = qsizetype(1) << 30;

    // What a fill request answers: rows filled, and whether the first and last rows were among
    // them.
    struct VirtualReply {
        qint32 rows = 0;
        bool atTop = false;
        bool atBottom = false;
    };
    // Asks to fill rows from `row`, about `count` rows, with a direction code (always 1 here).
    using VirtualFill = std::function<VirtualReply(qint32 row, qint32 count, int direction)>;
    // A block of cells, inclusive.
    struct Block {
        int col1 = 0;
        qint32 row1 = 0;
        int col2 = 0;
        qint32 row2 = 0;
        bool operator==(const Block&) const = default;
    };

    // Shape. MaxCols counts the columns beside column 0.
    int maxCols() const { return maxCols_; }
    void setMaxCols(int cols);
    qint32 maxRows() const { return maxRows_; }
    void setMaxRows(qint32 rows);
    QString headerText(int col) const;
    void setHeaderText(int col, const QString& text);
    // Widths in characters of the grid's font; a column without its own takes the default.
    double colWidth(int col) const;
    void setColWidth(int col, double width);
    void setDefaultColWidth(double width);
    bool colHidden(int col) const;
    void setColHidden(int col, bool hidden);
    double rowHeight() const { return rowHeight_; }
    void setRowHeight(double height);
    bool locked() const { return locked_; }
    void setLocked(bool on) { locked_ = on; }

    // Virtual rows.
    bool virtualMode() const { return virtualMode_; }
    void setVirtualMode(bool on);
    int virtualRows() const { return blockRows_; }
    void setVirtualRows(int rows);
    void setVirtualFill(VirtualFill fill) { fill_ = std::move(fill); }
    // Forgets the filled rows: the next read asks for them again.
    void refreshVirtual();
    // Rows held now, for checks that the grid stays small.
    qsizetype heldRows() const;

    // Cells. Row 0 is the header row. Outside a virtual grid's held rows a write is dropped.
    QString text(int col, qint32 row);
    void setText(int col, qint32 row, const QString& text);
    quint32 foreColor(int col, qint32 row);
    void setForeColor(int col, qint32 row, quint32 bgr);

    // Redraw off holds back the change notices until it is switched on again.
    bool reDraw() const { return reDraw_; }
    void setReDraw(bool on);

    Block selection() const { return selection_; }
    void setSelection(const Block& block) { selection_ = block; }
    // The texts of a block without headers: tabs between cells, a line break after each row.
    // Empty when memory ran out (or the text would pass maxChars); progress runs 0..100.
    std::optional<QString> clipText(const Block& block, Progress* progress = nullptr,
                                    qsizetype maxChars = kMaxClipChars);

    // Told when rows, columns, headers, widths or hidden columns changed, and when held rows were
    // dropped (a view asks for its cells again).
    std::function<void()> shapeChanged;
    std::function<void()> cellsChanged;

private:
    struct RowBlock {
        qint32 firstRow = 0;
        std::vector<QString> texts;
        std::vector<quint32> colors;
    };
    bool validCell(int col, qint32 row) const;
    RowBlock* held(qint32 row);
    RowBlock* fetch(qint32 row);
    qsizetype cellIndex(const RowBlock& block, int col, qint32 row) const;
    void notifyShape();
    void notifyCells();

    int maxCols_ = 0;
    qint32 maxRows_ = 0;
    // By column 0..maxCols; a width below 0 is the default.
    std::vector<QString> headers_ = std::vector<QString>(1);
    std::vector<double> widths_ = std::vector<double>(1, -1);
    std::vector<bool> hidden_ = std::vector<bool>(1, false);
    double defaultWidth_ = 8;
    double rowHeight_ = 12;
    bool locked_ = false;
    bool virtualMode_ = false;
    int blockRows_ = kDefaultBlockRows;
    VirtualFill fill_;
    std::list<RowBlock> blocks_; // most recently used first
    bool filling_ = false;
    bool reDraw_ = true;
    bool shapePending_ = false;
    bool cellsPending_ = false;
    Block selection_;
};
