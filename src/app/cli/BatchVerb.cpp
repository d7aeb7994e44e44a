#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "platform/PrintOutput.h"
#include "print/clsBatchUtil.h"
#include "recording/clsBatchInfo.h"
#include "trend/TrendView.h"

#include <QFile>

#include <QTextStream>

#include <nlohmann/json.hpp>

namespace Cli {

namespace {

nlohmann::json batchJson(const clsBatchInfo& b) {
    nlohmann::json texts = nlohmann::json::array();
    for (int i = 0; i < b.BatchTextCount(); ++i)
        texts.push_back({{"title", b.GetBatchTextTitle(i).toStdString()},
                         {"context", b.GetBatchTextContext(i).toStdString()}});
    return {{"hasBatchInfo", b.HasBatchInfo()},
            {"batchName", b.BatchName().toStdString()},
            {"lotNumber", b.LotNumber().toStdString()},
            {"texts", texts}};
}

// The batch report of the recording into a PDF file (a temporary name renamed when complete).
int writeReport(const clsBatchInfo& batch, const QString& file, const QString& path,
                QTextStream& err) {
    TrendView trend(1);
    NoProgress progress;
    trend.afterLoad(&progress);
    if (printToPdfFile(
            path, [&](PrintOutput& out) { return clsBatchUtil::print(out, batch, trend, file); }))
        return 0;
    err << messageText(562) << "\n" << path << "\n";
    return 1;
}

// recview batch [--json] FILE...: the batch block of the recording (of its last file that has
// one read, as the view keeps it).
int runBatch(const QStringList& input) {
    QStringList args = input;
    const bool json = args.removeAll(QStringLiteral("--json")) > 0;
    const RecordingArgs parsed = splitRecordingArgs(args);
    QTextStream err(stderr);
    if (parsed.files.isEmpty()) {
        err << "recview batch: no file given\n";
        return 2;
    }
    QString report;
    for (qsizetype i = 0; i < parsed.rest.size(); ++i) {
        if (parsed.rest[i] == QLatin1String("--report") && i + 1 < parsed.rest.size()) {
            report = parsed.rest[++i];
            continue;
        }
        err << "recview batch: unknown option " << parsed.rest[i] << "\n";
        return 2;
    }
    ViewState* view = openRecording(parsed);
    if (!view) return 1;
    const clsBatchInfo& batch = view->part<clsBatchInfo>();
    if (!report.isEmpty()) return writeReport(batch, parsed.files.value(0), report, err);
    QTextStream out(stdout);
    if (json) {
        out << QString::fromStdString(batchJson(batch).dump(2)) << "\n";
        return 0;
    }
    if (!batch.HasBatchInfo()) {
        out << "no batch information\n";
        return 0;
    }
    out << "Batch name:\t" << batch.BatchName() << "\n"
        << "LOT No:\t" << batch.LotNumber() << "\n";
    for (int i = 0; i < batch.BatchTextCount(); ++i)
        out << batch.GetBatchTextTitle(i) << "\t" << batch.GetBatchTextContext(i) << "\n";
    return 0;
}

} // namespace

extern const Verb kBatchVerb{"batch", runBatch};

} // namespace Cli
