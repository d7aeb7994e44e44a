#include "ftp/FtpClock.h"

#include "base/TimeBase.h"

#include <QDateTime>

qint64 ftpNow() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate d = now.date();
    const QTime t = now.time();
    return TimeBase::toSeconds({d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second()});
}
