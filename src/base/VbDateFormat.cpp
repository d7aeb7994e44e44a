// Date and time patterns of the formatting module.
#include "base/VbFormat.h"

#include <cmath>

namespace VbFormat {

namespace {

const char* const kMonthNames[] = {"January",   "February", "March",    "April",
                                   "May",       "June",     "July",     "August",
                                   "September", "October",  "November", "December"};
const char* const kDayNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                 "Thursday", "Friday", "Saturday"};

QString twoDigits(int n) {
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

int runLength(const QString& p, int i) {
    const QChar lower = p[i].toLower();
    int n = 1;
    while (i + n < p.size() && p[i + n].toLower() == lower) ++n;
    return n;
}

int dayOfYear(const TimeBase::CalendarTime& t) {
    const qint64 jan1 = TimeBase::toSeconds({t.year, 1, 1, 0, 0, 0});
    const qint64 day = TimeBase::toSeconds({t.year, t.month, t.day, 0, 0, 0});
    return int((day - jan1) / 86400) + 1;
}

// One letter token starting at p[i]; returns its text and advances i past it.
QString letterToken(const QString& p, int& i, const TimeBase::CalendarTime& t, bool& afterHour) {
    const QChar c = p[i].toLower();
    const int run = runLength(p, i);
    const bool wasHour = afterHour;
    afterHour = false;
    if (c == QLatin1Char('m') && p.mid(i, 3) == QLatin1String("MMM")) {
        const bool full = p.mid(i, 4) == QLatin1String("MMMM");
        i += full ? 4 : 3;
        const QString name = QLatin1String(kMonthNames[(t.month - 1) % 12]);
        return full ? name : name.left(3);
    }
    if (c == QLatin1Char('y')) {
        const int used = run >= 4 ? 4 : (run >= 2 ? 2 : 1);
        i += used;
        if (used == 4) return QString::number(t.year);
        return used == 2 ? twoDigits(t.year % 100) : QString::number(dayOfYear(t));
    }
    if (c == QLatin1Char('d') && run >= 3) {
        const bool full = run >= 4;
        i += full ? 4 : 3;
        const QString name =
            QLatin1String(kDayNames[TimeBase::weekday(TimeBase::toSeconds(t)) - 1]);
        return full ? name : name.left(3);
    }
    const int used = std::min(run, 2);
    i += used;
    int value = 0;
    if (c == QLatin1Char('m'))
        value = wasHour ? t.minute : t.month;
    else if (c == QLatin1Char('d'))
        value = t.day;
    else if (c == QLatin1Char('h'))
        value = t.hour, afterHour = true;
    else if (c == QLatin1Char('n'))
        value = t.minute;
    else
        value = t.second;
    return used == 2 ? twoDigits(value) : QString::number(value);
}

bool isTokenLetter(QChar c) {
    const QChar l = c.toLower();
    return l == QLatin1Char('y') || l == QLatin1Char('m') || l == QLatin1Char('d') ||
           l == QLatin1Char('h') || l == QLatin1Char('n') || l == QLatin1Char('s');
}

} // namespace

QString formatDateTime(const TimeBase::CalendarTime& time, const QString& pattern,
                       const Separators& seps) {
    QString out;
    bool afterHour = false;
    int i = 0;
    while (i < pattern.size()) {
        const QChar c = pattern[i];
        if (isTokenLetter(c)) {
            out += letterToken(pattern, i, time, afterHour);
            continue;
        }
        if (c == QLatin1Char('"')) {
            const int end = pattern.indexOf(QLatin1Char('"'), i + 1);
            const int stop = end < 0 ? pattern.size() : end;
            out += pattern.mid(i + 1, stop - i - 1);
            i = stop + 1;
            continue;
        }
        if (c == QLatin1Char('\\') && i + 1 < pattern.size())
            out += pattern[++i];
        else if (c == QLatin1Char('/'))
            out += seps.date;
        else if (c == QLatin1Char(':'))
            out += seps.time;
        else
            out += c;
        ++i;
    }
    return out;
}

QString formatSeconds(qint64 secondsSince2000, const QString& pattern, const Separators& seps) {
    return formatDateTime(TimeBase::fromSeconds(secondsSince2000), pattern, seps);
}

TimeBase::CalendarTime fromDateSerial(double serial) {
    constexpr qint64 kSerialOf2000 = 36526; // 2000-01-01 counted from 1899-12-30
    const double days = std::floor(serial);
    const qint64 seconds = qint64(std::llround((serial - days) * 86400.0));
    return TimeBase::fromSeconds((qint64(days) - kSerialOf2000) * 86400 + seconds);
}

} // namespace VbFormat
