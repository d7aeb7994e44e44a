#include "app/cli/Cli.h"

#include "app/cli/CliVerbs.h"
#include "base/AppPaths.h"
#include "base/HelpPages.h"

#include <QFileInfo>
#include <QRegularExpression>
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
    "  recview export [--gs] FILE... -o OUT.csv|OUT.txt|OUT.xlsx [--rows all|cursors|visible]\n"
    "                 [--cursors A,B] [--from T] [--to T] [--skip N] [--hide CH,...] [--marker]\n"
    "                                    the data list as CSV, tab-separated text or a workbook\n"
    "  recview print [--gs] FILE... -o OUT.pdf [--marker] [the row options of export]\n"
    "                 [--paper A4|A3|A5|B4|B5|Legal|Letter|Tabloid] [--landscape]\n"
    "                 [--header PROGRAM] [--footer PROGRAM] [--pages F:T]\n"
    "                                    the data list (or marker view) printed into a PDF\n"
    "  recview batch [--json | --report OUT.pdf] [--gs] FILE...\n"
    "                                    the batch name, lot number and texts of a recording\n"
    "  recview stats [--gs] FILE... [--cursors A,B] [--json]\n"
    "                                    the marker view: values at the cursors, five statistics\n"
    "  recview search [--gs] FILE... --kind K [--channel C|all] [--item I] [--option O]\n"
    "                 [--text1 T] [--text2 T] [--from T] [--to T] [--cursors A,B] [--level L]\n"
    "                 [--json]            the points that meet one condition\n"
    "  recview collect [--settings FILE] [--port N] [--row N]...\n"
    "                                    one FTP collection pass over the configured rows\n"
    "  recview --version | --help\n";

} // namespace

namespace Cli {

bool isHeadless(const QStringList& args) {
    if (args.isEmpty()) return false;
    const QString& first = args.first();
    if (first == QLatin1String("--help") || first == QLatin1String("-h") ||
        first == QLatin1String("--version") || findVerb(first) != nullptr)
        return true;
    // A word of letters that names no file is a mistyped verb: the usage, not a window that
    // waits for ever. Paths keep going to the desktop program.
    static const QRegularExpression word(QStringLiteral("^[A-Za-z]+$"));
    return word.match(first).hasMatch() && !QFileInfo::exists(first);
}

int run(const QStringList& args) {
    QTextStream out(stdout);
    if (args.isEmpty() || args.first() == QLatin1String("--help") ||
        args.first() == QLatin1String("-h")) {
        out << kUsage;
        return 0;
    }
    if (args.first() == QLatin1String("--version")) {
        // Where the shipped files were found tells an installation's state at a glance.
        const QString table = shippedFile(QStringLiteral("langVX.txt"));
        const QString manual = HelpPages::pagePath(QString());
        out << "recview " << RECVIEW_VERSION << "\n"
            << "language table: " << (table.isEmpty() ? QStringLiteral("not found") : table) << "\n"
            << "manual: " << (manual.isEmpty() ? QStringLiteral("not found") : manual) << "\n";
        return 0;
    }
    if (const Verb* verb = findVerb(args.first())) return verb->run(args.mid(1));
    QTextStream(stderr) << "recview: unknown command " << args.first() << "\n" << kUsage;
    return 2;
}

} // namespace Cli
