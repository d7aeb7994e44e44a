#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <QTextStream>

#include <nlohmann/json.hpp>

namespace Cli {

namespace {

// --cursors A,B with points 1..points (0 leaves a cursor unplaced).
bool parseCursors(const QString& text, qint32 points, qint32 (&at)[2]) {
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 2) return false;
    for (int c = 0; c < 2; ++c) {
        bool ok = false;
        at[c] = parts[c].trimmed().toInt(&ok);
        if (!ok || at[c] < 0 || at[c] > points) return false;
    }
    return true;
}

int runStats(const QStringList& input) {
    QTextStream err(stderr);
    QStringList args = input;
    const bool json = args.removeAll(QStringLiteral("--json")) > 0;
    RecordingArgs parsed = splitRecordingArgs(args);
    QString cursorText;
    for (qsizetype i = 0; i < parsed.rest.size(); ++i) {
        if (parsed.rest[i] == QLatin1String("--cursors") && i + 1 < parsed.rest.size()) {
            cursorText = parsed.rest[++i];
            continue;
        }
        err << "recview stats: unknown option " << parsed.rest[i] << "\n";
        return 2;
    }
    if (parsed.files.isEmpty()) {
        err << "recview stats: no file given\n";
        return 2;
    }
    if (!openRecording(parsed)) return 1;
    TrendView view(1);
    NoProgress progress;
    if (!view.afterLoad(&progress)) {
        err << "recview stats: the recording cannot be shown\n";
        return 1;
    }
    TrendCursors cursors(view);
    cursors.afterLoad();
    qint32 at[2] = {0, 0};
    if (!cursorText.isEmpty() && !parseCursors(cursorText, view.tables().PointCount, at)) {
        err << "recview stats: --cursors takes A,B with points 0.." << view.tables().PointCount
            << "\n";
        return 2;
    }
    GridModel grid;
    MarkerView marker(view, cursors, grid);
    marker.load();
    for (int c = 0; c < 2; ++c)
        if (at[c] > 0) cursors.place(c + 1, at[c]);
    if (at[0] > 0 && at[1] > 0) marker.ToolbarSet(8);

    QTextStream out(stdout);
    if (json) {
        nlohmann::json rows = nlohmann::json::array();
        for (int r = 0; r <= grid.maxRows(); ++r) {
            nlohmann::json row = nlohmann::json::array();
            for (int c = 0; c <= grid.maxCols(); ++c) row.push_back(grid.text(c, r).toStdString());
            rows.push_back(row);
        }
        out << QString::fromStdString(nlohmann::json{{"grid", rows}}.dump(1)) << "\n";
        return 0;
    }
    for (int r = 0; r <= grid.maxRows(); ++r) {
        QStringList cells;
        for (int c = 0; c <= grid.maxCols(); ++c)
            cells << grid.text(c, r).replace(QStringLiteral("\r\n"), QStringLiteral(" "));
        out << cells.join(QLatin1Char('\t')) << "\n";
    }
    return 0;
}

} // namespace

extern const Verb kStatsVerb{"stats", runStats};

} // namespace Cli
