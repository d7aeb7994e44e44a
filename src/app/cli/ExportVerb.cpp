#include "analysis/DataList.h"
#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "analysis/SkipCount.h"
#include "app/cli/CliListArgs.h"
#include "app/cli/CliOptions.h"
#include "app/cli/CliRange.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "base/clsConst.h"
#include "print/ExportKind.h"
#include "print/ListFileWriter.h"
#include "print/ListWorkbookWriter.h"
#include "print/MarkerFileWriter.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <QTextStream>

namespace Cli {

namespace {

// --marker: the marker view with both groups shown and, with both cursors placed, the
// statistics between them as button 8 makes them.
int writeMarker(TrendView& view, TrendCursors& cursors, const ExportArgs& e, ExportKind::Kind kind,
                bool workbook, QTextStream& err) {
    if (workbook) {
        err << "recview export: the marker view is written as CSV or text only\n";
        return 2;
    }
    GridModel grid;
    MarkerView marker(view, cursors, grid);
    marker.state().ShowAll = marker.state().ShowMarker = true;
    marker.load();
    const auto& points = view.state().CursorPoint;
    for (int c = 1; c <= 2; ++c)
        if (points[size_t(c - 1)] > 0) marker.MarkABset(c, points[size_t(c - 1)]);
    if (points[0] > 0 && points[1] > 0) marker.ToolbarSet(8);
    if (!WriteMarkerFile(marker, kind, e.out)) {
        err << messageText(562) << "\n" << e.out << "\n";
        return 1;
    }
    return 0;
}

int runExport(const QStringList& input) {
    QTextStream err(stderr);
    QStringList args = input;
    ExportArgs e;
    QString error;
    const auto usage = [&](const QString& why) {
        err << "recview export: " << why << "\n";
        return 2;
    };
    if (!takeExportArgs(args, e, error, false)) return usage(error);
    const int rowSet = rowSetOf(e, error);
    if (rowSet == 0) return usage(error);
    const bool workbook = ExportKind::isWorkbook(e.out);
    const ExportKind::Kind kind = ExportKind::ofName(e.out);
    if (!workbook && kind == ExportKind::Csv &&
        !ExportKind::csvAllowed(clsConst::shared().DecimalSeparator()))
        return usage(QStringLiteral("the decimal separator is a comma: CSV would split numbers; "
                                    "write a .txt file"));
    int status = 0;
    const std::unique_ptr<TrendView> opened = openTrendView(QStringLiteral("export"), args, status);
    if (!opened) return status;
    TrendView& view = *opened;
    NoProgress progress;
    TrendCursors cursors(view);
    cursors.afterLoad();
    if (!hideChannels(view, e.hide, error) || !applyTimeRange(view, e.from, e.to, error) ||
        !placeCursors(cursors, e.cursors, view.tables().PointCount, error))
        return usage(error);
    if (e.marker) return writeMarker(view, cursors, e, kind, workbook, err);
    GridModel grid;
    DataList list(view, grid);
    list.load();
    list.setRowSet(rowSet);
    if (!e.skip.isEmpty()) SkipCount() = SkipCountFromText(e.skip);
    QString why;
    const bool written = workbook ? WriteListExcel(list, e.out, &progress, why)
                                  : WriteListFile(list, kind, e.out, &progress);
    if (!written) {
        err << messageText(562) << "\n" << e.out << "\n";
        if (!why.isEmpty()) err << why << "\n";
        return 1;
    }
    return 0;
}

} // namespace

extern const Verb kExportVerb{"export", runExport};

} // namespace Cli
