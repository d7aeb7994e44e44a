#include "app/cli/CliVerbs.h"
#include "base/clsLibrary.h"
#include "ftp/CollectPass.h"

#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

namespace Cli {

namespace {

const char* const kCollectUsage =
    "Usage: recview collect [--settings FILE] [--port N] [--row N]... [--manual]\n"
    "  One collection pass over the rows of the FTP table that have a local directory.\n"
    "  --settings FILE  the table (default: FTPDataSet.ini in the work directory)\n"
    "  --port N         the FTP port of every host (default 21)\n"
    "  --row N          only this row (1..30); may be given more than once\n"
    "  --manual         the rules of \"collect all\": the table's retries and waits\n";

struct CollectArgs {
    QString settings = ftpDataSetPath();
    int port = 21;
    QList<int> rows;
    bool help = false;
    bool manual = false;
};

// Parses the options; an error text on bad usage.
QString parseArgs(const QStringList& args, CollectArgs& parsed) {
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (a == QLatin1String("--help") || a == QLatin1String("-h")) {
            parsed.help = true;
            continue;
        }
        if (a == QLatin1String("--manual")) {
            parsed.manual = true;
            continue;
        }
        const bool known = a == QLatin1String("--settings") || a == QLatin1String("--port") ||
                           a == QLatin1String("--row");
        if (!known) return QStringLiteral("unknown option ") + a;
        if (i + 1 >= args.size()) return a + QStringLiteral(" needs a value");
        const QString value = args[++i];
        if (a == QLatin1String("--settings")) {
            parsed.settings = value;
            continue;
        }
        bool ok = false;
        const int number = value.toInt(&ok);
        if (a == QLatin1String("--port")) {
            if (!ok || number < 1 || number > 65535) return QStringLiteral("bad port ") + value;
            parsed.port = number;
        } else {
            if (!ok || number < 1 || number > FtpTable::kRows)
                return QStringLiteral("bad row ") + value + QStringLiteral(" (1..30)");
            if (!parsed.rows.contains(number)) parsed.rows.append(number);
        }
    }
    return QString();
}

int runCollect(const QStringList& args) {
    QTextStream err(stderr);
    CollectArgs parsed;
    if (const QString problem = parseArgs(args, parsed); !problem.isEmpty()) {
        err << "recview collect: " << problem << "\n" << kCollectUsage;
        return 2;
    }
    if (parsed.help) {
        QTextStream(stdout) << kCollectUsage;
        return 0;
    }
    FTPFile ftpFile;
    ftpFile.FTPDataInit();
    if (!ftpFile.FTPDataFi(parsed.settings)) {
        err << "recview collect: cannot read " << parsed.settings << "\n";
        return 1;
    }
    const QList<int> configured = configuredRows(ftpFile.table);
    for (const int n : parsed.rows) {
        if (!configured.contains(n)) {
            err << "recview collect: row " << n << " has no local directory\n" << kCollectUsage;
            return 2;
        }
    }
    QList<int> rows = parsed.rows.isEmpty() ? configured : parsed.rows;
    std::sort(rows.begin(), rows.end());
    ftpFile.settings.port = parsed.port;
    const QList<CollectOutcome> outcomes =
        collectRows(ftpFile, rows, clsLibrary::formatNowEx(QStringLiteral("yyyy/mm/dd hh:nn:ss")),
                    parsed.manual);
    QTextStream out(stdout);
    bool anyFailed = false;
    for (const CollectOutcome& o : outcomes) {
        const FtpRow* row = ftpFile.table.row(o.row);
        out << "row " << o.row << '\t' << row->Tag << '\t' << row->status << '\t'
            << o.detail.filesFetched << '\t' << outcomeErrorText(o) << '\n';
        anyFailed = anyFailed || o.detail.failed;
    }
    out.flush();
    if (!ftpFile.FTPDataFo(parsed.settings)) {
        err << "recview collect: cannot write " << parsed.settings << "\n";
        return 1;
    }
    return anyFailed ? 1 : 0;
}

} // namespace

extern const Verb kCollectVerb{"collect", runCollect};

} // namespace Cli
