#include "app/cli/Cli.h"

#include "app/cli/CliVerbs.h"

#include <QTextStream>

#include <cstdio>

namespace {

const char* const kUsage =
    "Usage:\n"
    "  recview [FILE...]                 open recorder files in the desktop program\n"
    "  recview info FILE...              short summary of a recording\n"
    "  recview dump --json [--gs] [--rows A:B] FILE...\n"
    "                                    the recording as the reader stores it, as JSON\n"
    "  recview render [--gs] FILE... -o OUT.png|OUT.pdf [--size WxH]\n"
    "                 [--from \"YYYY-MM-DD hh:mm:ss\"] [--to \"YYYY-MM-DD hh:mm:ss\"]\n"
    "                                    the trend chart of the recording as an image\n"
    "  recview collect [--settings FILE] [--port N] [--row N]...\n"
    "                                    one FTP collection pass over the configured rows\n"
    "  recview --version | --help\n";

} // namespace

namespace Cli {

bool isHeadless(const QStringList& args) {
    if (args.isEmpty()) return false;
    const QString& first = args.first();
    return first == QLatin1String("--help") || first == QLatin1String("-h") ||
           first == QLatin1String("--version") || findVerb(first) != nullptr;
}

int run(const QStringList& args) {
    QTextStream out(stdout);
    if (args.isEmpty() || args.first() == QLatin1String("--help") ||
        args.first() == QLatin1String("-h")) {
        out << kUsage;
        return 0;
    }
    if (args.first() == QLatin1String("--version")) {
        out << "recview " << RECVIEW_VERSION << "\n";
        return 0;
    }
    if (const Verb* verb = findVerb(args.first())) return verb->run(args.mid(1));
    QTextStream(stderr) << "recview: unknown command " << args.first() << "\n" << kUsage;
    return 2;
}

} // namespace Cli
