#include "print/clsSpreadPrint.h"

#include "analysis/GridModel.h"
#include "base/Progress.h"
#include "base/TimeBase.h"
#include "platform/PrintOutput.h"

#include <QDateTime>
#include <QSizeF>

#include <algorithm>

namespace {

struct Paper {
    int code;
    QPageSize size;
};

const Paper& paperAt(int index) {
    static const Paper papers[] = {
        {9, QPageSize(QPageSize::A4)},
        {8, QPageSize(QPageSize::A3)},
        {11, QPageSize(QPageSize::A5)},
        {12, QPageSize(QSizeF(250, 354), QPageSize::Millimeter, QStringLiteral("B4 (JIS)"))},
        {13, QPageSize(QSizeF(182, 257), QPageSize::Millimeter, QStringLiteral("B5 (JIS)"))},
        {5, QPageSize(QPageSize::Legal)},
        {1, QPageSize(QPageSize::Letter)},
        {3, QPageSize(QPageSize::Tabloid)},
    };
    return papers[std::clamp(index, 0, 7)];
}

constexpr quint32 kRed = 0x0000FF; // 0x00BBGGRR

} // namespace

int clsSpreadPrint::PaperCodeOf(int index) {
    return paperAt(index).code;
}

QPageSize clsSpreadPrint::pageSizeOf(int index) {
    return paperAt(index).size;
}

double clsSpreadPrint::columnWidth(int col) const {
    if (FixColWidthMode && col < FixColWidth.size()) return FixColWidth[col];
    return Spread->colWidth(col) * kMmPerChar;
}

double clsSpreadPrint::rowHeight() const {
    return Spread->rowHeight() * kMmPerPoint * 1.25;
}

qint32 clsSpreadPrint::firstRow() const {
    return PrintType == 1 ? std::max<qint32>(1, Spread->selection().row1) : 1;
}

qint32 clsSpreadPrint::lastRow() const {
    return PrintType == 1 ? std::min(Spread->maxRows(), Spread->selection().row2)
                          : Spread->maxRows();
}

QVector<clsSpreadPrint::ColumnPage> clsSpreadPrint::columnPages(double paperWidth) const {
    QVector<ColumnPage> pages;
    if (!Spread) return pages;
    const int lastCol = PrintType == 1 && Spread->selection().col2 > 0
                            ? std::min(Spread->maxCols(), Spread->selection().col2)
                            : Spread->maxCols();
    const double right = paperWidth - RightMargin;
    ColumnPage page;
    double x = LeftMargin;
    const auto place = [&](int col) {
        if (Spread->colHidden(col)) return;
        page.columns.append(col);
        page.lefts.append(x);
        page.widths.append(columnWidth(col));
        x += columnWidth(col);
    };
    const int frozen = std::min(ColsFrozen, lastCol);
    for (int c = 0; c <= frozen; ++c) place(c);
    const int frozenCount = int(page.columns.size());
    for (int c = frozen + 1; c <= lastCol; ++c) {
        if (Spread->colHidden(c)) continue;
        // A column page holds at least one column of its own, however narrow the paper.
        if (x + columnWidth(c) > right && page.columns.size() > frozenCount) {
            pages.append(page);
            const bool firstBreak = pages.size() == 1;
            page = ColumnPage();
            x = LeftMargin;
            for (int f = 0; f <= frozen; ++f) place(f);
            if (firstBreak) x += 10; // behind the row header, as the first new page has it
        }
        place(c);
    }
    pages.append(page);
    return pages;
}

QVector<clsSpreadPrint::RowPage> clsSpreadPrint::rowPages(double paperHeight) const {
    QVector<RowPage> pages;
    if (!Spread) return pages;
    const double h = rowHeight();
    const double top = TopMargin + h; // the header row first
    const double bottom = paperHeight - BottomMargin;
    // Rows a page takes: at least one, whatever the margins.
    const qint32 perPage = std::max<qint32>(1, qint32((bottom - top) / h));
    RowPage page;
    for (qint32 r = firstRow(); r <= lastRow(); ++r) {
        if (!counts(r)) continue;
        if (page.count == perPage) {
            pages.append(page);
            page = RowPage();
        }
        if (page.count == 0) page.first = r;
        page.last = r;
        ++page.count;
    }
    if (page.count > 0 || pages.isEmpty()) pages.append(page);
    return pages;
}

void clsSpreadPrint::drawPage(PrintOutput& out, const ColumnPage& cols, const RowPage& rows,
                              int page, int pages, qint64 printSeconds) {
    PrintProgram::Context context{page,        pages,        printSeconds, LeftMargin,
                                  RightMargin, HeaderMargin, FooterMargin};
    const PrintFont programFont{Font.name, 12};
    PrintProgram::draw(out, PrintProgram::parse(PrintHeader), programFont, context, false);
    PrintProgram::draw(out, PrintProgram::parse(PrintFooter), programFont, context, true);
    out.setFont(Font);
    const double h = rowHeight();
    const double left = cols.lefts.value(0, LeftMargin);
    const double right = cols.lefts.isEmpty() ? left : cols.lefts.last() + cols.widths.last();
    const double top = TopMargin;
    const double bottom = top + h * (rows.count + 1);
    out.box(left, top, right, bottom, 4);
    for (int k = 1; k < cols.columns.size(); ++k)
        out.line(cols.lefts[k], top, cols.lefts[k], bottom, 1);
    for (qint32 k = 1; k <= rows.count; ++k) out.line(left, top + h * k, right, top + h * k, 1);
    const auto cell = [&](int col, qint32 row, double x, double w, double y) {
        QString text = row == 0   ? Spread->headerText(col)
                       : cellText ? cellText(col, row)
                                  : Spread->text(col, row);
        text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
        const double room = w - 2 * kTextMargin;
        const bool rightAligned = col >= 2 && row > 0;
        // Left-aligned text is cut from the right, right-aligned text from the left.
        while (!text.isEmpty() && out.textWidth(text) > room) {
            if (rightAligned)
                text.remove(0, 1);
            else
                text.chop(1);
        }
        out.setTextColor(row > 0 && Spread->foreColor(col, row) == kRed ? QColor(255, 0, 0)
                                                                        : QColor(Qt::black));
        const double tx =
            rightAligned ? x + w - kTextMargin - out.textWidth(text) : x + kTextMargin;
        out.textOut(tx, y + kLineMargin, text);
    };
    for (int k = 0; k < cols.columns.size(); ++k)
        cell(cols.columns[k], 0, cols.lefts[k], cols.widths[k], top);
    double y = top + h;
    for (qint32 r = rows.first; rows.count > 0 && r <= rows.last; ++r) {
        if (!counts(r)) continue;
        for (int k = 0; k < cols.columns.size(); ++k)
            cell(cols.columns[k], r, cols.lefts[k], cols.widths[k], y);
        y += h;
    }
    out.setTextColor(Qt::black);
}

bool clsSpreadPrint::Print_Spread(PrintOutput& out, Progress* progress) {
    if (!Spread) return true;
    out.setOrientation(Orientation);
    out.setPaper(pageSizeOf(PaperSize).id());
    if (!out.begin()) return false;
    const QVector<ColumnPage> colPages = columnPages(out.width());
    const QVector<RowPage> rowPagesList = rowPages(out.height());
    const int total = int(colPages.size() * rowPagesList.size());
    const int from = FromPage > 0 ? std::min(FromPage, total) : 1;
    const int to = ToPage > 0 ? std::min(ToPage, total) : total;
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 printSeconds =
        TimeBase::toSeconds({now.date().year(), now.date().month(), now.date().day(),
                             now.time().hour(), now.time().minute(), now.time().second()});
    int page = 0;
    bool first = true;
    for (const ColumnPage& cols : colPages)
        for (const RowPage& rows : rowPagesList) {
            ++page;
            if (page < from || page > to) continue;
            if (progress) {
                progress->setValue(100 * (page - from) / std::max(1, to - from + 1));
                if (progress->poll()) {
                    out.endDocument();
                    return false;
                }
            }
            if (!first && !out.newPage()) return false;
            first = false;
            drawPage(out, cols, rows, page, total, printSeconds);
        }
    return out.endDocument();
}
