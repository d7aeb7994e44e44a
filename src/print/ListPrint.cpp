#include "print/ListPrint.h"

#include "analysis/DataList.h"
#include "analysis/MarkerView.h"
#include "analysis/SkipCount.h"
#include "base/LanguageTable.h"
#include "platform/PrintOutput.h"
#include "print/clsSpreadPrint.h"

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

bool PrintList(DataList& list, const ListPrintSettings& settings, PrintOutput& out,
               Progress* progress) {
    clsSpreadPrint p = engine(list.grid(), settings);
    p.RowStep = SkipStep();
    return p.Print_Spread(out, progress);
}

bool PrintMarkerView(MarkerView& marker, const ListPrintSettings& settings, PrintOutput& out,
                     Progress* progress) {
    clsSpreadPrint p = engine(marker.grid(), settings);
    p.ColsFrozen = 0;
    p.Orientation = QPageLayout::Landscape;
    return p.Print_Spread(out, progress);
}
