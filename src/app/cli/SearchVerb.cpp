#include "analysis/Search.h"
#include "app/cli/CliOptions.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "base/TimeBase.h"
#include "trend/TrendCursors.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

#include <QTextStream>

#include <nlohmann/json.hpp>

namespace Cli {

namespace {

struct SearchArgs {
    QString kind, channel, item, option, text1, text2, from, to, cursors, level;
    bool json = false;
};

bool takeSearchArgs(QStringList& args, SearchArgs& a, QString& error) {
    if (!takeOptions(args,
                     {{"--kind", &a.kind},
                      {"--channel", &a.channel},
                      {"--item", &a.item},
                      {"--option", &a.option},
                      {"--text1", &a.text1},
                      {"--text2", &a.text2},
                      {"--from", &a.from},
                      {"--to", &a.to},
                      {"--cursors", &a.cursors},
                      {"--level", &a.level}},
                     {{"--json", &a.json}}, error))
        return false;
    if (a.kind.isEmpty()) error = QStringLiteral("--kind K (0..9) is required");
    return error.isEmpty();
}

bool intIn(const QString& text, int lo, int hi, int& value) {
    bool ok = false;
    value = text.trimmed().toInt(&ok);
    return ok && value >= lo && value <= hi;
}

// The from or to time of kind 6; the first or last point when not given.
bool timeOf(const QString& text, const ViewState& v, bool last, qint64& seconds, int& msec) {
    if (text.isEmpty()) {
        const SampleTime t = SampleTimeText(last ? std::max(0, v.PointCount - 1) : 0, 1);
        seconds = t.seconds;
        msec = t.msec;
        return true;
    }
    msec = 0;
    return TimeBase::parseIsoText(text, seconds);
}

int runSearch(const QStringList& input) {
    QTextStream err(stderr);
    QStringList args = input;
    SearchArgs a;
    QString error;
    const auto usage = [&](const QString& why) {
        err << "recview search: " << why << "\n";
        return 2;
    };
    if (!takeSearchArgs(args, a, error)) return usage(error);
    Search::Input in;
    if (!intIn(a.kind, 0, 9, in.kind)) return usage(QStringLiteral("--kind takes 0..9"));
    if (!a.option.isEmpty() && !intIn(a.option, 0, 3, in.option))
        return usage(QStringLiteral("--option takes 0..3"));
    if (!a.item.isEmpty() && !intIn(a.item, 0, 6, in.item))
        return usage(QStringLiteral("--item takes 0..6"));
    if (!a.level.isEmpty() && !intIn(a.level, 0, 4, in.combo1))
        return usage(QStringLiteral("--level takes 0..4"));
    in.text1 = a.text1;
    in.text2 = a.text2;
    int status = 0;
    const std::unique_ptr<TrendView> opened = openTrendView(QStringLiteral("search"), args, status);
    if (!opened) return status;
    TrendView& view = *opened;
    const ViewState& v = view.tables();
    const int n = v.ChannelCount;
    int channel = 1;
    if (a.channel == QLatin1String("all"))
        channel = n + 1;
    else if (!a.channel.isEmpty() && !intIn(a.channel, 1, n, channel))
        return usage(QStringLiteral("--channel takes 1..%1 or all").arg(n));
    in.channelItem = channel - 1;
    if (in.kind == Search::SearchKindMarker) in.combo1 = in.channelItem;
    if (!timeOf(a.from, v, false, in.fromSeconds, in.fromMsec) ||
        !timeOf(a.to, v, true, in.toSeconds, in.toMsec))
        return usage(QStringLiteral("--from and --to take \"YYYY-MM-DD hh:mm:ss\""));
    TrendCursors cursors(view);
    cursors.afterLoad();
    if (!a.cursors.isEmpty()) {
        const QStringList parts = a.cursors.split(QLatin1Char(','));
        int at[2] = {0, 0};
        if (parts.size() != 2 || !intIn(parts[0], 0, v.PointCount, at[0]) ||
            !intIn(parts[1], 0, v.PointCount, at[1]))
            return usage(QStringLiteral("--cursors takes A,B with points 0..%1").arg(v.PointCount));
        for (int c = 0; c < 2; ++c)
            if (at[c] > 0) cursors.place(c + 1, at[c]);
    }
    NoProgress progress;
    const Search::Result result = Search::run(view, in, &progress);
    QTextStream out(stdout);
    if (a.json) {
        nlohmann::json hits = nlohmann::json::array();
        for (size_t k = 0; k < result.hits.size(); ++k) {
            nlohmann::json row = nlohmann::json::array();
            for (const QString& cell : Search::rowTexts(view, in, result, k))
                row.push_back(cell.toStdString());
            hits.push_back(row);
        }
        out << QString::fromStdString(nlohmann::json{{"hits", hits},
                                                     {"message", result.message},
                                                     {"text1", result.text1.toStdString()},
                                                     {"text2", result.text2.toStdString()}}
                                          .dump(1))
            << "\n";
    } else {
        for (size_t k = 0; k < result.hits.size(); ++k)
            out << Search::rowTexts(view, in, result, k).join(QLatin1Char('\t')) << "\n";
        if (result.message) out << "message " << result.message << "\n";
    }
    return result.message == 102 || result.message == 565 ? 1 : 0;
}

} // namespace

extern const Verb kSearchVerb{"search", runSearch};

} // namespace Cli
