#include "analysis/DataList.h"
#include "analysis/DataListState.h"
#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "analysis/SkipCount.h"
#include "app/cli/CliListArgs.h"
#include "app/cli/CliOptions.h"
#include "app/cli/CliRange.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "platform/PrintOutput.h"
#include "print/ListPrint.h"
#include "trend/AlarmMarks.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <QFileInfo>
#include <QTextStream>

namespace Cli {

namespace {

const char* const kPapers[] = {"A4", "A3", "A5", "B4", "B5", "Legal", "Letter", "Tabloid"};

int paperIndex(const QString& name) {
    if (name.isEmpty()) return 0;
    for (int i = 0; i < 8; ++i)
        if (name.compare(QLatin1String(kPapers[i]), Qt::CaseInsensitive) == 0) return i;
    return -1;
}

// --pages F:T (1-based).
bool pageRange(const QString& text, int& from, int& to) {
    if (text.isEmpty()) return true;
    const QStringList parts = text.split(QLatin1Char(':'));
    bool ok1 = false, ok2 = false;
    if (parts.size() != 2) return false;
    from = parts[0].toInt(&ok1);
    to = parts[1].toInt(&ok2);
    if (!ok1 || !ok2 || from < 1 || to < 1) return false;
    if (from > to) std::swap(from, to); // the smaller page first
    return true;
}

int runPrint(const QStringList& input) {
    QTextStream err(stderr);
    QStringList args = input;
    ExportArgs e;
    QString error;
    const auto usage = [&](const QString& why) {
        err << "recview print: " << why << "\n";
        return 2;
    };
    if (!takeExportArgs(args, e, error, true)) return usage(error);
    const int rowSet = rowSetOf(e, error);
    if (rowSet == 0) return usage(error);
    ListPrintSettings settings;
    settings.paper = paperIndex(e.paper);
    if (settings.paper < 0)
        return usage(QStringLiteral("--paper takes A4 A3 A5 B4 B5 Legal Letter Tabloid"));
    settings.landscape = e.landscape;
    settings.header = e.header;
    if (!e.footer.isEmpty()) settings.footer = e.footer;
    if (!pageRange(e.pages, settings.fromPage, settings.toPage))
        return usage(QStringLiteral("--pages takes F:T"));
    if (!e.out.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        return usage(QStringLiteral("-o OUT.pdf is required"));
    int status = 0;
    const std::unique_ptr<TrendView> opened = openTrendView(QStringLiteral("print"), args, status);
    if (!opened) return status;
    TrendView& view = *opened;
    NoProgress progress;
    AlarmMarks(view).afterLoad(); // the alarm table behind the red cells
    TrendCursors cursors(view);
    cursors.afterLoad();
    if (!hideChannels(view, e.hide, error) || !applyTimeRange(view, e.from, e.to, error) ||
        !placeCursors(cursors, e.cursors, view.tables().PointCount, error))
        return usage(error);
    if (!e.skip.isEmpty()) SkipCount() = SkipCountFromText(e.skip);
    const bool printed = printToPdfFile(e.out, [&](PrintOutput& out) {
        GridModel grid;
        if (e.marker) {
            MarkerView marker(view, cursors, grid);
            marker.load();
            const auto& points = view.state().CursorPoint;
            if (points[0] > 0 && points[1] > 0) marker.ToolbarSet(8);
            return PrintMarkerView(marker, settings, out, &progress);
        }
        DataList list(view, grid);
        list.load();
        list.setRowSet(rowSet);
        return PrintList(list, settings, out, &progress);
    });
    if (!printed) {
        err << messageText(562) << "\n" << e.out << "\n";
        return 1;
    }
    return 0;
}

} // namespace

extern const Verb kPrintVerb{"print", runPrint};

} // namespace Cli
