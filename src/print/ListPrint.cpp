#include "print/ListPrint.h"

#include "analysis/BatchTable.h"
#include "analysis/DataList.h"
#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "platform/PrintOutput.h"
#include "print/clsSpreadPrint.h"
#include "recording/ViewState.h"
#include "recording/clsBatchInfo.h"

namespace {

clsSpreadPrint engine(GridModel& grid, const ListPrintSettings& s) {
    clsSpreadPrint p;
    p.Spread = &grid;
    p.PaperSize = s.paper;
    p.Orientation = s.landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    p.PrintHeader = s.header;
    p.PrintFooter = s.footer;
    p.FromPage = s.fromPage;
    p.ToPage = s.toPage;
    p.PrintType = s.selection ? 1 : 0;
    p.RightMargin = 0;
    p.TopMargin = 30;
    p.Font.name = LanguageFont();
    return p;
}

} // namespace

int ListPageCount(DataList& list, const ListPrintSettings& settings) {
    clsSpreadPrint p = engine(list.grid(), settings);
    p.RowStep = SkipStep();
    QSizeF paper = clsSpreadPrint::pageSizeOf(settings.paper).size(QPageSize::Millimeter);
    if (settings.landscape) paper.transpose();
    return int(p.columnPages(paper.width()).size() * p.rowPages(paper.height()).size());
}

bool PrintList(DataList& list, const ListPrintSettings& settings, PrintOutput& out,
               Progress* progress) {
    clsSpreadPrint p = engine(list.grid(), settings);
    p.RowStep = SkipStep();
    return p.Print_Spread(out, progress);
}

bool PrintGrid(GridModel& grid, const ListPrintSettings& settings, PrintOutput& out,
               Progress* progress) {
    clsSpreadPrint p = engine(grid, settings);
    p.ColsFrozen = 0;
    return p.Print_Spread(out, progress);
}

bool PrintBatchTable(int viewNumber, const ListPrintSettings& settings, PrintOutput& out,
                     Progress* progress) {
    const auto rows = batchTableRows(views(viewNumber).part<clsBatchInfo>());
    GridModel grid;
    grid.setMaxCols(2);
    grid.setMaxRows(qint32(rows.size()));
    grid.setColWidth(0, 0);
    grid.setColWidth(1, 30);
    grid.setColWidth(2, 40);
    for (int r = 0; r < rows.size(); ++r) {
        grid.setText(1, r + 1, rows[r].first);
        grid.setText(2, r + 1, rows[r].second);
    }
    return PrintGrid(grid, settings, out, progress);
}

bool PrintMarkerView(MarkerView& marker, const ListPrintSettings& settings, PrintOutput& out,
                     Progress* progress) {
    clsSpreadPrint p = engine(marker.grid(), settings);
    p.ColsFrozen = 0;
    p.Orientation = QPageLayout::Landscape;
    return p.Print_Spread(out, progress);
}
