#include "app/cli/CliRecording.h"
#include "app/cli/CliVerbs.h"
#include "base/Progress.h"
#include "base/TimeBase.h"
#include "trend/TrendImage.h"
#include "trend/TrendTimeAxis.h"
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

// The 1-based point of a time, kept within the recording.
bool pointOf(const QString& text, const ViewState& v, qint32& point) {
    qint64 seconds;
    if (!TimeBase::parseIsoText(text, seconds)) return false;
    const qint64 index = secondsToIndex(seconds, 0, v.SampleInterval, v.ViewStart, v.ViewStartMsec);
    point = qint32(qBound<qint64>(0, index, qint64(v.PointCount) - 1) + 1);
    return true;
}

// The span of --from and --to as a zoom level; the ends default to those of the recording.
bool applyRange(TrendView& view, const RenderArgs& r, QString& error) {
    if (r.from.isEmpty() && r.to.isEmpty()) return true;
    const ViewState& v = view.tables();
    qint32 first = 1, last = v.PointCount;
    if (!r.from.isEmpty() && !pointOf(r.from, v, first))
        error = QStringLiteral("bad --from time");
    else if (!r.to.isEmpty() && !pointOf(r.to, v, last))
        error = QStringLiteral("bad --to time");
    else if (first >= last)
        error = QStringLiteral("--from must be before --to");
    if (!error.isEmpty()) return false;
    view.zoom().pushSpan(first, last);
    return true;
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
    if (!applyRange(view, r, error)) {
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
