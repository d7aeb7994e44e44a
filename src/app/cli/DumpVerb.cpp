#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/TimeBase.h"

#include <QTextStream>

#include <nlohmann/json.hpp>

#include <cstdio>

namespace Cli {

namespace {

std::string utf8(const QString& s) {
    return s.toStdString();
}

nlohmann::json channelsJson(const ViewState& v) {
    nlohmann::json list = nlohmann::json::array();
    const ChannelTable& t = v.Channels;
    for (int c = 1; c <= v.ChannelCount; ++c) {
        const size_t i = size_t(c);
        list.push_back({{"tag", utf8(t.ChTag[i])},
                        {"unit", utf8(t.ChUnit[i])},
                        {"color", t.ChColor[i]},
                        {"exp_digits", t.ChExpDigits[i]},
                        {"scale_low", utf8(t.ChScaleLow[i])},
                        {"scale_high", utf8(t.ChScaleHigh[i])},
                        {"log", t.ChLogFlag[i]}});
    }
    return list;
}

nlohmann::json messagesJson(const ViewState& v) {
    nlohmann::json list = nlohmann::json::array();
    for (const ViewMessage& m : v.ViewMessages)
        list.push_back({{"time", utf8(TimeBase::isoText(m.time))},
                        {"msec", m.msec},
                        {"text", utf8(m.text)},
                        {"type", m.type}});
    return list;
}

nlohmann::json cellsJson(const ViewState& v, int firstRow, int lastRow) {
    nlohmann::json rows = nlohmann::json::array();
    QString text;
    for (int r = firstRow; r <= lastRow; ++r) {
        nlohmann::json row = nlohmann::json::array();
        for (int col = 1; col <= 2 * v.ChannelCount; ++col) {
            v.Storage.GetText(col, r, text);
            row.push_back(utf8(text));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

bool parseRows(const QString& range, int& a, int& b) {
    const QStringList parts = range.split(QLatin1Char(':'));
    bool okA = false, okB = false;
    if (parts.size() != 2) return false;
    a = parts[0].toInt(&okA);
    b = parts[1].toInt(&okB);
    return okA && okB && a >= 1 && b >= a;
}

int runDump(const QStringList& args) {
    RecordingArgs parsed = splitRecordingArgs(args);
    int firstRow = 1, lastRow = -1;
    const qsizetype rowsAt = parsed.rest.indexOf(QStringLiteral("--rows"));
    if (rowsAt >= 0 && !parseRows(parsed.rest.value(rowsAt + 1), firstRow, lastRow)) {
        QTextStream(stderr) << "recview dump: --rows takes A:B with 1 <= A <= B\n";
        return 2;
    }
    if (parsed.files.isEmpty()) {
        QTextStream(stderr) << "recview dump: no file given\n";
        return 2;
    }
    const ViewState* view = openRecording(parsed);
    if (!view) return 1;
    lastRow = lastRow < 0 ? view->PointCount : std::min(lastRow, int(view->PointCount));
    nlohmann::json out = {{"family", view->FileType},
                          {"interval_ms", view->SampleInterval},
                          {"start", utf8(TimeBase::isoText(view->ViewStart))},
                          {"start_msec", view->ViewStartMsec},
                          {"point_count", view->PointCount},
                          {"shown_points", view->ViewShownPoints},
                          {"channels", channelsJson(*view)},
                          {"messages", messagesJson(*view)},
                          {"cells", cellsJson(*view, firstRow, lastRow)}};
    const std::string text = out.dump(1);
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fputc('\n', stdout);
    return 0;
}

} // namespace

extern const Verb kDumpVerb{"dump", runDump};

} // namespace Cli
