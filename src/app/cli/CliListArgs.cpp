#include "app/cli/CliListArgs.h"

#include "app/cli/CliOptions.h"

#include "platform/ChartModel.h"
#include "recording/ViewState.h"
#include "trend/TrendCursors.h"
#include "trend/TrendView.h"

namespace Cli {

bool takeExportArgs(QStringList& args, ExportArgs& e, QString& error, bool print) {
    if (!takeOptions(args,
                     {{"-o", &e.out},
                      {"--rows", &e.rows},
                      {"--cursors", &e.cursors},
                      {"--from", &e.from},
                      {"--to", &e.to},
                      {"--skip", &e.skip},
                      {"--hide", &e.hide},
                      {"--paper", &e.paper},
                      {"--header", &e.header},
                      {"--footer", &e.footer},
                      {"--pages", &e.pages}},
                     {{"--marker", &e.marker}, {"--landscape", &e.landscape}}, error))
        return false;
    const bool printing = !e.paper.isEmpty() || !e.header.isEmpty() || !e.footer.isEmpty() ||
                          !e.pages.isEmpty() || e.landscape;
    if (printing && !print)
        error =
            QStringLiteral("--paper, --landscape, --header, --footer and --pages are for print");
    else if (e.out.isEmpty())
        error = QStringLiteral("-o OUT is required");
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

} // namespace Cli
