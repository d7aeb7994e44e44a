#include "base/clsCommon.h"

#include "base/HelpPages.h"
#include "base/LanguageTable.h"
#include "base/TimeBase.h"
#include "base/VbFormat.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

QString at(const QStringList& list, int position) {
    return position >= 1 && position <= list.size() ? list[position - 1] : QString();
}

} // namespace

clsCommon::clsCommon(const clsConst& constants)
    : seps_(constants.displaySeparators()), dateOrder_(constants.DateDisplayOrder()) {
    const QString t = constants.TimeSeparator();
    const QString d = constants.DateSeparator();
    timeFormats_ = {QStringLiteral("h") + t + QStringLiteral("nn"),
                    QStringLiteral("hh") + t + QStringLiteral("nn"),
                    QStringLiteral("h") + t + QStringLiteral("n") + t + QStringLiteral("s"),
                    QStringLiteral("h") + t + QStringLiteral("nn") + t + QStringLiteral("ss"),
                    QStringLiteral("hh") + t + QStringLiteral("nn") + t + QStringLiteral("ss")};
    longDateFormats_ = {
        QStringLiteral("mm") + d + QStringLiteral("dd") + d + QStringLiteral("yyyy"),
        QStringLiteral("dd") + d + QStringLiteral("mm") + d + QStringLiteral("yyyy"),
        QStringLiteral("yyyy") + d + QStringLiteral("mm") + d + QStringLiteral("dd")};
    shortDateFormats_ = {QStringLiteral("mm") + d + QStringLiteral("dd") + d + QStringLiteral("yy"),
                         QStringLiteral("dd") + d + QStringLiteral("mm") + d + QStringLiteral("yy"),
                         QStringLiteral("yy") + d + QStringLiteral("mm") + d +
                             QStringLiteral("dd")};
}

clsCommon& clsCommon::shared() {
    static clsCommon instance(clsConst::shared());
    return instance;
}

QString clsCommon::GetTimeFormat(int style) const {
    return at(timeFormats_, style);
}

QString clsCommon::GetLongDateFormat(int order) const {
    return at(longDateFormats_, order == -1 ? dateOrder_ + 1 : order);
}

QString clsCommon::GetShortDateFormat(int order) const {
    return at(shortDateFormats_, order == -1 ? dateOrder_ + 1 : order);
}

QString clsCommon::GetFormattedTime(int style, int hour, int minute, int second) const {
    const TimeBase::CalendarTime time{2000, 1, 1, hour, minute, second};
    return VbFormat::formatDateTime(time, GetTimeFormat(style), seps_);
}

bool clsCommon::IsReadable(qint64 interval, qint64 t1, qint64 t2, int ms1, int ms2, int* error) {
    if (interval < 1) {
        if (error) *error = kInvalidArgument;
        return false;
    }
    const TimeBase::CalendarTime c1 = TimeBase::fromSeconds(t1);
    const TimeBase::CalendarTime c2 = TimeBase::fromSeconds(t2);
    qint64 divisor = interval;
    qint64 a = ms1;
    qint64 b = ms2;
    // Exactly one hour stays on the millisecond branch.
    if (interval >= 1000 && interval <= 59999) {
        divisor = VbFormat::roundHalfEven(interval / 1000.0);
        a = c1.second;
        b = c2.second;
    } else if (interval >= 60000 && interval <= 3599999) {
        divisor = VbFormat::roundHalfEven(interval / 60000.0);
        a = c1.minute;
        b = c2.minute;
    } else if (interval > 3600000) {
        divisor = VbFormat::roundHalfEven(interval / 3600000.0);
        a = c1.hour;
        b = c2.hour;
    }
    return a % divisor == b % divisor;
}

bool clsCommon::ShowHelp(const QString& window) const {
    if (!helpAvailable(ActiveLanguage())) return false;
    const QString page = HelpPages::pagePath(window);
    return !page.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(page));
}
