#include "analysis/GridModel.h"
#include "analysis/MarkerView.h"
#include "app/cli/CliListArgs.h"
#include "app/cli/CliOptions.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

#include <QTextStream>

#include <nlohmann/json.hpp>

namespace Cli {

namespace {

int runStats(const QStringList& input) {
    QTextStream err(stderr);
    QStringList args = input;
    const bool json = args.removeAll(QStringLiteral("--json")) > 0;
    QString cursorText;
    QString error;
    if (!takeOptions(args, {{"--cursors", &cursorText}}, {}, error)) {
        err << "recview stats: " << error << "\n";
        return 2;
    }
    int status = 0;
    const std::unique_ptr<TrendView> opened = openTrendView(QStringLiteral("stats"), args, status);
    if (!opened) return status;
    TrendView& view = *opened;
    TrendCursors cursors(view);
    cursors.afterLoad();
    if (!placeCursors(cursors, cursorText, view.tables().PointCount, error)) {
        err << "recview stats: " << error << "\n";
        return 2;
    }
    GridModel grid;
    MarkerView marker(view, cursors, grid);
    marker.load();
    const auto& points = view.state().CursorPoint;
    if (points[0] > 0 && points[1] > 0) marker.ToolbarSet(8);

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
