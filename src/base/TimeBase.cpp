#include "base/TimeBase.h"

#include <QRegularExpression>

namespace {

qint64 floorDiv(qint64 a, qint64 b) {
    qint64 q = a / b;
    if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
    return q;
}

// Days since 1970-01-01 of a civil date (Howard Hinnant's algorithm).
qint64 daysFromCivil(qint64 y, int m, int d) {
    y -= m <= 2;
    const qint64 era = floorDiv(y, 400);
    const qint64 yoe = y - era * 400;
    const qint64 doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const qint64 doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

void civilFromDays(qint64 z, int& year, int& month, int& day) {
    z += 719468;
    const qint64 era = floorDiv(z, 146097);
    const qint64 doe = z - era * 146097;
    const qint64 yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const qint64 doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const qint64 mp = (5 * doy + 2) / 153;
    day = int(doy - (153 * mp + 2) / 5 + 1);
    month = int(mp < 10 ? mp + 3 : mp - 9);
    year = int(yoe + era * 400 + (month <= 2));
}

constexpr qint64 kDaysFrom1970To2000 = 10957;

} // namespace

namespace TimeBase {

CalendarTime fromSeconds(qint64 s) {
    CalendarTime t;
    const qint64 days = floorDiv(s, 86400);
    const qint64 rest = s - days * 86400;
    civilFromDays(days + kDaysFrom1970To2000, t.year, t.month, t.day);
    t.hour = int(rest / 3600);
    t.minute = int(rest / 60 % 60);
    t.second = int(rest % 60);
    return t;
}

qint64 toSeconds(const CalendarTime& t) {
    const qint64 days = daysFromCivil(t.year, t.month, t.day) - kDaysFrom1970To2000;
    return days * 86400 + qint64(t.hour) * 3600 + qint64(t.minute) * 60 + t.second;
}

qint64 serialSeconds(int year, int month, int day, int hour, int minute, int second) {
    const qint64 monthIndex = qint64(year) * 12 + (month - 1);
    const qint64 y = floorDiv(monthIndex, 12);
    const int m = int(monthIndex - y * 12) + 1;
    const qint64 days = daysFromCivil(y, m, 1) - kDaysFrom1970To2000 + (day - 1);
    return days * 86400 + qint64(hour) * 3600 + qint64(minute) * 60 + second;
}

int weekday(qint64 s) {
    // 2000-01-01 was a Saturday.
    const qint64 days = floorDiv(s, 86400);
    return int(((days + 6) % 7 + 7) % 7) + 1;
}

int daysInMonth(int year, int month) {
    static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : kDays[(month - 1) % 12];
}

qint64 boundariesBetween(Unit unit, qint64 a, qint64 b) {
    static const qint64 kSize[] = {1, 60, 3600, 86400};
    const qint64 size = kSize[int(unit)];
    return floorDiv(b, size) - floorDiv(a, size);
}

QString isoText(qint64 s) {
    const CalendarTime t = fromSeconds(s);
    return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour,
                             t.minute, t.second);
}

bool parseIsoText(const QString& text, qint64& s) {
    static const QRegularExpression re(QStringLiteral(
        "^\\s*(\\d{4})[-/](\\d{1,2})[-/](\\d{1,2})[ T](\\d{1,2}):(\\d{2}):(\\d{2})\\s*$"));
    const auto m = re.match(text);
    if (!m.hasMatch()) return false;
    CalendarTime t{m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt(),
                   m.captured(4).toInt(), m.captured(5).toInt(), m.captured(6).toInt()};
    if (t.month < 1 || t.month > 12 || t.day < 1 || t.day > daysInMonth(t.year, t.month) ||
        t.hour > 23 || t.minute > 59 || t.second > 59)
        return false;
    s = toSeconds(t);
    return true;
}

} // namespace TimeBase
