#include "ftp/FtpListing.h"

#include "base/LogObject.h"
#include "base/TimeBase.h"

#include <QList>
#include <QRegularExpression>

namespace {

struct Token {
    QByteArray text;
    qsizetype end; // offset just after the token
};

// The first `count` blank-separated tokens of a line.
QList<Token> tokens(const QByteArray& line, int count) {
    QList<Token> out;
    qsizetype i = 0;
    while (out.size() < count) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
        if (i >= line.size()) break;
        const qsizetype start = i;
        while (i < line.size() && line[i] != ' ' && line[i] != '\t') ++i;
        out.append({line.mid(start, i - start), i});
    }
    return out;
}

// The rest of the line after a token and the blanks behind it.
QByteArray restAfter(const QByteArray& line, qsizetype end) {
    while (end < line.size() && (line[end] == ' ' || line[end] == '\t')) ++end;
    return line.mid(end);
}

bool allDigits(const QByteArray& text) {
    if (text.isEmpty()) return false;
    for (const char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

int monthNumber(const QByteArray& text) {
    static const char* const kMonths[] = {"jan", "feb", "mar", "apr", "may", "jun",
                                          "jul", "aug", "sep", "oct", "nov", "dec"};
    const QByteArray lower = text.toLower();
    for (int m = 0; m < 12; ++m)
        if (lower == kMonths[m]) return m + 1;
    return 0;
}

bool validDate(int year, int month, int day, int hour, int minute) {
    return month >= 1 && month <= 12 && day >= 1 && day <= TimeBase::daysInMonth(year, month) &&
           hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59;
}

std::optional<qint64> dateOf(int year, int month, int day, int hour, int minute) {
    if (!validDate(year, month, day, hour, minute)) return std::nullopt;
    return TimeBase::toSeconds({year, month, day, hour, minute, 0});
}

// "hh:mm" into hour and minute.
bool clockTime(const QByteArray& text, int& hour, int& minute) {
    const QList<QByteArray> parts = text.split(':');
    if (parts.size() != 2 || !allDigits(parts[0]) || !allDigits(parts[1])) return false;
    hour = parts[0].toInt();
    minute = parts[1].toInt();
    return true;
}

std::optional<qint64> unixDate(const QByteArray& monthText, const QByteArray& dayText,
                               const QByteArray& timeOrYear, qint64 now) {
    const int month = monthNumber(monthText);
    const int day = allDigits(dayText) ? dayText.toInt() : 0;
    if (allDigits(timeOrYear)) return dateOf(timeOrYear.toInt(), month, day, 0, 0);
    int hour = 0, minute = 0;
    if (!clockTime(timeOrYear, hour, minute)) return std::nullopt;
    // No year: the latest year in which the date is not after now (29 Feb looks further back).
    for (int year = TimeBase::fromSeconds(now).year; year >= TimeBase::fromSeconds(now).year - 8;
         --year) {
        const std::optional<qint64> date = dateOf(year, month, day, hour, minute);
        if (date && *date <= now) return date;
    }
    return std::nullopt;
}

// drwxr-xr-x 2 owner group 4096 Jan 12 10:30 name  (the group may be missing)
bool parseUnix(const QByteArray& line, qint64 now, FtpEntry& entry) {
    const char type = line.isEmpty() ? 0 : line[0];
    if (!QByteArray("-dlbcps").contains(type)) return false;
    const QList<Token> t = tokens(line, 9);
    if (t.size() < 7 || t[0].text.size() < 10) return false;
    // The size is the first number followed by a word (the month), from the third token on.
    for (int i = 2; i + 3 < t.size(); ++i) {
        if (!allDigits(t[i].text) || allDigits(t[i + 1].text)) continue;
        QByteArray name = restAfter(line, t[i + 3].end);
        if (type == 'l') {
            const qsizetype arrow = name.indexOf(" -> ");
            if (arrow >= 0) name.truncate(arrow);
        }
        if (name.isEmpty()) return false;
        entry.rawName = name;
        entry.Attr = type == 'd' ? FtpEntry::kDirectory : 0;
        entry.Size = entry.isDirectory() ? 0 : entrySize(t[i].text.toULongLong());
        entry.Date = unixDate(t[i + 1].text, t[i + 2].text, t[i + 3].text, now);
        return true;
    }
    return false;
}

// 01-12-23  10:30AM       <DIR>          name   or   01-12-2023  22:30   12345 name
bool parseDos(const QByteArray& line, FtpEntry& entry) {
    const QList<Token> t = tokens(line, 3);
    if (t.size() < 3) return false;
    const QList<QByteArray> d = t[0].text.split('-');
    if (d.size() != 3 || !allDigits(d[0]) || !allDigits(d[1]) || !allDigits(d[2])) return false;
    QByteArray clock = t[1].text.toUpper();
    const bool pm = clock.endsWith("PM");
    const bool am = clock.endsWith("AM");
    if (pm || am) clock.chop(2);
    int hour = 0, minute = 0;
    if (!clockTime(clock, hour, minute)) return false;
    const bool dir = t[2].text.toUpper() == "<DIR>";
    if (!dir && !allDigits(t[2].text)) return false;
    const QByteArray name = restAfter(line, t[2].end);
    if (name.isEmpty()) return false;
    int year = d[2].toInt();
    if (d[2].size() <= 2) year += year < 70 ? 2000 : 1900;
    if ((am || pm) && hour == 12) hour = 0;
    if (pm) hour += 12;
    entry.rawName = name;
    entry.Attr = dir ? FtpEntry::kDirectory : 0;
    entry.Size = dir ? 0 : entrySize(t[2].text.toULongLong());
    entry.Date = dateOf(year, d[0].toInt(), d[1].toInt(), hour, minute);
    return true;
}

} // namespace

bool parseListingLine(const QByteArray& rawLine, qint64 now, FtpEntry& entry) {
    QByteArray line = rawLine;
    while (line.endsWith('\r') || line.endsWith('\n')) line.chop(1);
    entry = FtpEntry{};
    if (!parseUnix(line, now, entry) && !parseDos(line, entry)) return false;
    entry.Name = decodeRemoteName(entry.rawName);
    return true;
}

QList<FtpEntry> parseListing(const QByteArray& listing, qint64 now) {
    QList<FtpEntry> entries;
    for (const QByteArray& line : listing.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith("total ")) continue;
        FtpEntry entry;
        if (!parseListingLine(line, now, entry)) {
            LogWrite(QStringLiteral("FTP listing: line skipped: ") + QString::fromLatin1(trimmed));
            continue;
        }
        if (entry.rawName == "." || entry.rawName == "..") continue;
        entries.append(entry);
    }
    return entries;
}

bool matchesFindPattern(const QString& name, const QString& pattern) {
    if (pattern.isEmpty() || pattern == QLatin1String("*.*") || pattern == QLatin1String("*"))
        return true;
    const QRegularExpression re(QRegularExpression::wildcardToRegularExpression(pattern),
                                QRegularExpression::CaseInsensitiveOption);
    return re.match(name).hasMatch();
}
