#include "app/cli/CliRange.h"
#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "trend/TrendImage.h"
#include "trend/TrendView.h"

#include <QRegularExpression>
#include <QTextStream>

namespace Cli {

namespace {

struct RenderArgs {
    QString out;
    QSize size{1280, 720};
    QString from, to;
};

// Takes "-o OUT", "--size WxH", "--from T", "--to T" out of the arguments; the rest are files.
bool takeRenderArgs(QStringList& args, RenderArgs& r, QString& error) {
    QStringList rest;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        const bool takesValue = a == QLatin1String("-o") || a == QLatin1String("--size") ||
                                a == QLatin1String("--from") || a == QLatin1String("--to");
        if (!takesValue) {
            rest << a;
            continue;
        }
        if (i + 1 >= args.size()) {
            error = a + QStringLiteral(" needs a value");
            return false;
        }
        const QString value = args[++i];
        if (a == QLatin1String("-o"))
            r.out = value;
        else if (a == QLatin1String("--from"))
            r.from = value;
        else if (a == QLatin1String("--to"))
            r.to = value;
        else {
            static const QRegularExpression re(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
            const auto m = re.match(value);
            if (!m.hasMatch() || m.captured(1).toInt() < 16 || m.captured(2).toInt() < 16) {
                error = QStringLiteral("--size takes WxH, at least 16x16");
                return false;
            }
            r.size = QSize(m.captured(1).toInt(), m.captured(2).toInt());
        }
    }
    args = rest;
    if (r.out.isEmpty()) error = QStringLiteral("-o OUT.png or OUT.pdf is required");
    return error.isEmpty();
}

int runRender(const QStringList& input) {
    QTextStream err(stderr);
    QStringList args = input;
    RenderArgs r;
    QString error;
    if (!takeRenderArgs(args, r, error)) {
        err << "recview render: " << error << "\n";
        return 2;
    }
    const RecordingArgs parsed = splitRecordingArgs(args);
    if (parsed.files.isEmpty()) {
        err << "recview render: no file given\n";
        return 2;
    }
    if (!openRecording(parsed)) return 1;
    TrendView view(1);
    NoProgress progress;
    if (!view.afterLoad(&progress)) {
        err << "recview render: the recording cannot be shown\n";
        return 1;
    }
    if (!applyTimeRange(view, r.from, r.to, error)) {
        err << "recview render: " << error << "\n";
        return 2;
    }
    if (!TrendImage::save(view, r.out, r.size)) {
        err << "recview render: cannot write " << r.out << "\n";
        return 1;
    }
    return 0;
}

} // namespace

extern const Verb kRenderVerb{"render", runRender};

} // namespace Cli
