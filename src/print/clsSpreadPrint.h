#pragma once

#include "platform/PrintOutput.h"
#include "print/PrintProgram.h"

#include <QPageLayout>
#include <QPageSize>
#include <QString>
#include <QVector>

#include <functional>

class GridModel;
class Progress;

// Sheet printing of a grid (a list, a marker view, a batch table) page by page: column pages
// outer, row pages inside, the frozen columns and the header row on every page, rows filtered
// by the row step, a header and a footer program. Lengths in millimetres.
class clsSpreadPrint {
public:
    // PaperSize index -> printer paper code -> page size. B4 and B5 are the 250 x 354 mm and
    // 182 x 257 mm sheets of codes 12 and 13.
    static int PaperCodeOf(int index);
    static QPageSize pageSizeOf(int index);
    static constexpr double kTextMargin = 0.5;
    static constexpr double kLineMargin = 0.2;
    // Grid widths count characters and heights points: their size on paper.
    static constexpr double kMmPerChar = 1.9;
    static constexpr double kMmPerPoint = 25.4 / 72;

    GridModel* Spread = nullptr;
    double LeftMargin = 10;
    double RightMargin = 20;
    double TopMargin = 20;
    double BottomMargin = 20;
    int PaperSize = 0;
    QPageLayout::Orientation Orientation = QPageLayout::Portrait;
    QString PrintHeader;
    QString PrintFooter;
    double HeaderMargin = 10;
    double FooterMargin = 10;
    bool FixColWidthMode = false;
    QVector<double> FixColWidth;
    int ColsFrozen = 1; // grid columns after the row header that every column page repeats
    int RowStep = 1;    // SkipCount + 1
    // Print type 0 all, 1 the selection block (its last row ends the print).
    int PrintType = 0;
    // Pages to print (1-based, inclusive); 0 for all.
    int FromPage = 0, ToPage = 0;
    PrintFont Font{QStringLiteral("DejaVu Sans"), 9};
    // The text of a cell as printed; by default the grid's (the list gives column 0 its sample
    // number and column 1 its date and time this way).
    std::function<QString(int col, qint32 row)> cellText;

    struct ColumnPage {
        QVector<int> columns;   // printed columns, frozen ones first
        QVector<double> lefts;  // left edge of each
        QVector<double> widths; // width of each
    };
    struct RowPage {
        qint32 first = 0, last = 0; // grid rows (the counted ones between them print)
        qint32 count = 0;           // rows printed on the page
    };
    // The break tables of the grid on the given paper size (width, height in mm).
    QVector<ColumnPage> columnPages(double paperWidth) const;
    QVector<RowPage> rowPages(double paperHeight) const;

    // Prints every page (or FromPage..ToPage) to the output. False when the output failed.
    bool Print_Spread(PrintOutput& out, Progress* progress = nullptr);

private:
    double columnWidth(int col) const;
    double rowHeight() const;
    qint32 firstRow() const;
    qint32 lastRow() const;
    bool counts(qint32 row) const { return RowStep <= 1 || row % RowStep == 1; }
    void drawPage(PrintOutput& out, const ColumnPage& cols, const RowPage& rows, int page,
                  int pages, qint64 printSeconds);
};
