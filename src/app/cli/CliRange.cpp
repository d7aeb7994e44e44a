#include "app/cli/CliRange.h"

#include "base/TimeBase.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

namespace Cli {

namespace {

// The 1-based point of a time, kept within the recording.
bool pointOf(const QString& text, const ViewState& v, qint32& point) {
    qint64 seconds;
    if (!TimeBase::parseIsoText(text, seconds)) return false;
    const qint64 index = secondsToIndex(seconds, 0, v.SampleInterval, v.ViewStart, v.ViewStartMsec);
    point = qint32(qBound<qint64>(0, index, qint64(v.PointCount) - 1) + 1);
    return true;
}

} // namespace

bool applyTimeRange(TrendView& view, const QString& from, const QString& to, QString& error) {
    if (from.isEmpty() && to.isEmpty()) return true;
    const ViewState& v = view.tables();
    qint32 first = 1, last = v.PointCount;
    if (!from.isEmpty() && !pointOf(from, v, first))
        error = QStringLiteral("bad --from time");
    else if (!to.isEmpty() && !pointOf(to, v, last))
        error = QStringLiteral("bad --to time");
    else if (first >= last)
        error = QStringLiteral("--from must be before --to");
    if (!error.isEmpty()) return false;
    view.zoom().pushSpan(first, last);
    return true;
}

} // namespace Cli
