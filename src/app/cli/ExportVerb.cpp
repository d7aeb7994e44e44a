#include "analysis/DataList.h"
#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "analysis/SkipCount.h"
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

struct ExportArgs {
    QString out;
    QString rows; // all, cursors, visible; empty: visible with a time span, else all
    QString cursors, from, to, skip, hide;
    bool marker = false;
};

// Takes the export's own options out of the arguments; the rest are files and --gs.
bool takeExportArgs(QStringList& args, ExportArgs& e, QString& error) {
    const std::pair<const char*, QString*> valued[] = {
        {"-o", &e.out},  {"--rows", &e.rows}, {"--cursors", &e.cursors}, {"--from", &e.from},
        {"--to", &e.to}, {"--skip", &e.skip}, {"--hide", &e.hide},
    };
    QStringList rest;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--marker")) {
            e.marker = true;
            continue;
        }
        QString* target = nullptr;
        for (const auto& [name, field] : valued)
            if (args[i] == QLatin1String(name)) target = field;
        if (!target) {
            rest << args[i];
            continue;
        }
        if (i + 1 >= args.size()) {
            error = args[i] + QStringLiteral(" needs a value");
            return false;
        }
        *target = args[++i];
    }
    args = rest;
    if (e.out.isEmpty()) error = QStringLiteral("-o OUT is required");
    return error.isEmpty();
}

int rowSetOf(const ExportArgs& e, QString& error) {
    if (e.rows.isEmpty()) return e.from.isEmpty() && e.to.isEmpty() ? 1 : 3;
    const QString names[] = {QStringLiteral("all"), QStringLiteral("cursors"),
                             QStringLiteral("visible")};
    for (int i = 0; i < 3; ++i)
        if (e.rows == names[i]) return i + 1;
    error = QStringLiteral("--rows takes all, cursors or visible");
    return 0;
}

// --cursors A,B: both 0 or a point of the recording.
bool placeCursors(TrendCursors& cursors, const QString& text, qint32 points, QString& error) {
    if (text.isEmpty()) return true;
    const QStringList parts = text.split(QLatin1Char(','));
    bool ok = parts.size() == 2;
    qint32 at[2] = {0, 0};
    for (int c = 0; ok && c < 2; ++c) {
        at[c] = parts[c].trimmed().toInt(&ok);
        ok = ok && at[c] >= 0 && at[c] <= points;
    }
    if (!ok) {
        error = QStringLiteral("--cursors takes A,B with points 0..%1").arg(points);
        return false;
    }
    for (int c = 0; c < 2; ++c)
        if (at[c] > 0) cursors.place(c + 1, at[c]);
    return true;
}

// --hide 1,3: those channels are switched off in the trend (no line, no symbol).
bool hideChannels(TrendView& view, const QString& text, QString& error) {
    if (text.isEmpty()) return true;
    ChartModel& chart = view.chart();
    const int channels = view.tables().ChannelCount;
    for (const QString& part : text.split(QLatin1Char(','))) {
        bool ok = false;
        const int ch = part.trimmed().toInt(&ok);
        if (!ok || ch < 1 || ch > channels) {
            error = QStringLiteral("--hide takes channel numbers 1..%1").arg(channels);
            return false;
        }
        SeriesStyle style = chart.seriesStyle(ch);
        style.pattern = Chart::LinePattern::None;
        style.symbol = Chart::SymbolShape::None;
        chart.setSeriesStyle(ch, style);
    }
    return true;
}

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
    if (!takeExportArgs(args, e, error)) return usage(error);
    const int rowSet = rowSetOf(e, error);
    if (rowSet == 0) return usage(error);
    const bool workbook = ExportKind::isWorkbook(e.out);
    const ExportKind::Kind kind = ExportKind::ofName(e.out);
    if (!workbook && kind == ExportKind::Csv &&
        !ExportKind::csvAllowed(clsConst::shared().DecimalSeparator()))
        return usage(QStringLiteral("the decimal separator is a comma: CSV would split numbers; "
                                    "write a .txt file"));
    const RecordingArgs parsed = splitRecordingArgs(args);
    if (parsed.files.isEmpty()) return usage(QStringLiteral("no file given"));
    if (!parsed.rest.isEmpty()) return usage(QStringLiteral("unknown option ") + parsed.rest[0]);
    if (!openRecording(parsed)) return 1;

    TrendView view(1);
    NoProgress progress;
    if (!view.afterLoad(&progress)) {
        err << "recview export: the recording cannot be shown\n";
        return 1;
    }
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
