#include "trend/CursorTimeSpan.h"

#include "base/LanguageTable.h"
#include "base/VbFormat.h"
#include "base/clsConst.h"

namespace {

CursorTimeSpan::Span fromMilliseconds(qint64 total) {
    CursorTimeSpan::Span s;
    s.days = total / 86400000;
    total %= 86400000;
    s.hours = total / 3600000;
    total %= 3600000;
    s.minutes = total / 60000;
    total %= 60000;
    s.seconds = total / 1000;
    s.msec = total % 1000;
    return s;
}

CursorTimeSpan::Span fromSeconds(qint64 total) {
    CursorTimeSpan::Span s = fromMilliseconds(total * 1000);
    s.msec = 0;
    return s;
}

qint64 wholeSeconds(qint32 interval) {
    return VbFormat::roundHalfEven(interval / 1000.0);
}

} // namespace

namespace CursorTimeSpan {

Span markerSpan(qint64 points, qint32 interval) {
    if (interval < 1000) return fromMilliseconds(points * interval);
    return fromSeconds(points * wholeSeconds(interval));
}

Span sideGridSpan(qint64 points, qint32 interval) {
    const qint64 total = interval <= 1000 ? points * interval : points * wholeSeconds(interval);
    return interval <= 10000 ? fromMilliseconds(total) : fromSeconds(total);
}

QString text(const Span& span) {
    const VbFormat::Separators seps = clsConst::shared().displaySeparators();
    QString t;
    if (span.days > 0) t = MsgText(183) + QString::number(span.days) + QLatin1Char(' ');
    t += QString::number(span.hours) + seps.time + QString::number(span.minutes) + seps.time +
         QString::number(span.seconds);
    if (span.msec > 0) {
        const QString fraction = VbFormat::defaultText(span.msec / 1000.0, seps);
        const qsizetype at = fraction.indexOf(seps.decimal);
        if (at >= 0) t += fraction.mid(at);
    }
    return t;
}

} // namespace CursorTimeSpan
