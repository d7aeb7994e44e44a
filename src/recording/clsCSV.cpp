#include "recording/clsCSV.h"

#include "base/LanguageTable.h"
#include "base/LocaleInfo.h"
#include "base/TextFile.h"
#include "base/TimeBase.h"
#include "recording/ReaderFrame.h"

#include <QRegularExpression>

namespace {

bool allDigits(const QString& s) {
    if (s.isEmpty()) return false;
    for (QChar c : s)
        if (!c.isDigit()) return false;
    return true;
}

// A date as year, month and day in the orders recorders and the program write: year first
// ("2024/05/06", "24-05-06"), or year last in the locale's order ("06/05/2024").
bool parseDate(const QString& text, int& y, int& m, int& d) {
    static const QRegularExpression sep(QStringLiteral("[/.-]"));
    const QStringList p = text.split(sep);
    if (p.size() != 3 || !allDigits(p[0]) || !allDigits(p[1]) || !allDigits(p[2])) return false;
    if (p[2].size() == 4 && p[0].size() <= 2) {
        const bool dayFirst = LocaleInfo::system().dateOrder == 1;
        y = p[2].toInt();
        m = (dayFirst ? p[1] : p[0]).toInt();
        d = (dayFirst ? p[0] : p[1]).toInt();
    } else {
        y = p[0].toInt();
        m = p[1].toInt();
        d = p[2].toInt();
    }
    if (p[0].size() <= 2 && p[2].size() <= 2) y += 2000;
    return y >= 1 && m >= 1 && m <= 12 && d >= 1 && d <= TimeBase::daysInMonth(y, m);
}

// "hh:mm:ss" or "hh:mm", with the milliseconds behind a ".".
bool parseTime(const QString& text, int& h, int& n, int& s, int& msec) {
    const qsizetype dot = text.indexOf(QLatin1Char('.'));
    const QString clock = dot < 0 ? text : text.left(dot);
    msec = 0;
    if (dot >= 0) {
        const QString fraction = text.mid(dot + 1);
        if (!allDigits(fraction) || fraction.size() > 3) return false;
        msec = fraction.toInt();
    }
    const QStringList p = clock.split(QLatin1Char(':'));
    if (p.size() < 2 || p.size() > 3) return false;
    for (const QString& part : p)
        if (!allDigits(part) || part.size() > 2) return false;
    h = p[0].toInt();
    n = p[1].toInt();
    s = p.size() == 3 ? p[2].toInt() : 0;
    return h < 24 && n < 60 && s < 60;
}

} // namespace

bool clsCSV::FileOpenCSV() {
    QByteArray bytes;
    next_ = 0;
    lines_.clear();
    if (!readWholeFile(path_, bytes)) return false;
    lines_ = TextFile::splitLines(TextFile::decodeLocalText(bytes));
    return true;
}

void clsCSV::FileCloseCSV() {
    lines_.clear();
    fields_.clear();
    next_ = 0;
}

bool clsCSV::nextLine() {
    if (next_ >= lines_.size() || lines_[next_].trimmed().isEmpty()) return false;
    fields_ = lines_[next_++].split(QLatin1Char(','));
    return true;
}

bool clsCSV::lineTime(qint64& time, int& msec) const {
    const QString first = fields_.value(0).trimmed();
    const qsizetype blank = first.indexOf(QLatin1Char(' '));
    const QString date = blank < 0 ? first : first.left(blank);
    const QString clock = blank < 0 ? fields_.value(1).trimmed() : first.mid(blank + 1).trimmed();
    int y, m, d, h, n, s;
    if (!parseDate(date, y, m, d) || !parseTime(clock, h, n, s, msec)) return false;
    time = TimeBase::toSeconds({y, m, d, h, n, s});
    return true;
}

void clsCSV::readTitles(const QStringList& titles, int dataFields) {
    tags_.clear();
    units_.clear();
    firstAlarm_ = -1;
    // Line 1 may give the date and time one title ("Date") or two (an empty field and "Time")
    // whatever the data lines do: the difference of the field counts tells how many it has.
    const int titleLead = std::clamp(int(titles.size()) - (dataFields - lead_), 1, lead_);
    const int shift = lead_ - titleLead; // title index + shift = data field index
    titleFields_ = int(titles.size()) + shift;
    for (int i = titleLead; i < titles.size(); ++i) {
        if (titles[i].trimmed().endsWith(QLatin1String("AL"))) {
            firstAlarm_ = i + shift;
            break;
        }
    }
    channelCount_ = std::max(0, (firstAlarm_ < 0 ? titleFields_ : firstAlarm_) - lead_);
    for (int i = 0; i < channelCount_; ++i) {
        const QString title = titles[titleLead + i].trimmed();
        const qsizetype open = title.lastIndexOf(QLatin1String(" ["));
        if (open >= 0 && title.endsWith(QLatin1Char(']'))) {
            tags_ << title.left(open).trimmed();
            units_ << title.mid(open + 2, title.size() - open - 3);
        } else {
            tags_ << title;
            units_ << QString();
        }
    }
}

bool clsCSV::GetSTimeCSV(qint64& time, int& msec) {
    next_ = 0;
    if (!nextLine()) return false;
    const QStringList titles = fields_;
    if (!nextLine()) return false;
    // Date and time share the first field when it holds a blank; otherwise they take two.
    lead_ = fields_.value(0).trimmed().contains(QLatin1Char(' ')) ? 1 : 2;
    readTitles(titles, int(fields_.size()));
    if (!lineTime(firstTime_, firstMsec_)) return false;
    time = firstTime_;
    msec = firstMsec_;
    return true;
}

bool clsCSV::GetIntervalCSV(qint32& interval) {
    interval = 0;
    if (!nextLine()) return true;
    qint64 time;
    int msec;
    if (!lineTime(time, msec)) return false;
    interval = qint32((time - firstTime_) * 1000 + (msec - firstMsec_));
    return true;
}

bool clsCSV::GetDataCSV() {
    if (next_ == 0 && !nextLine()) return false; // the titles come first
    return nextLine();
}

int clsCSV::alarmField(int i) const {
    if (firstAlarm_ < 0 || firstAlarm_ + i - 1 >= titleFields_) return -1;
    return firstAlarm_ + i - 1;
}

QString clsCSV::AlmDataCnv(const QString& text) {
    const QString field = text.trimmed();
    QString digits = QStringLiteral("0000");
    if (field.isEmpty()) return digits;
    const QStringList parts = field.contains(QLatin1Char('/'))
                                  ? field.split(QLatin1Char('/'))
                                  : field.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString words[4] = {MsgText(486), MsgText(487), MsgText(488), MsgText(489)};
    for (int level = 0; level < 4 && level < parts.size(); ++level) {
        const QString part = parts[level].trimmed();
        if (part.isEmpty()) continue;
        for (int kind = 1; kind <= 4; ++kind)
            if (part == words[kind - 1]) digits[level] = QLatin1Char(char('0' + kind));
    }
    return digits;
}
