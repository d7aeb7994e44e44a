// clsLibrary: numbers, bytes, text, colours, time and platform queries.
#include "base/clsLibrary.h"

#include "base/AppPaths.h"
#include "base/Stopwatch.h"
#include "base/TextFile.h"
#include "base/VbFormat.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QSysInfo>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

// The runtime's conversion of a text to a whole number: rounded halves to even, 0 when it is
// not a number or does not fit.
template <typename T> T toWhole(const QString& text) {
    bool ok = false;
    const double d = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(d)) return 0;
    const qint64 r = VbFormat::roundHalfEven(d);
    if (r < std::numeric_limits<T>::min() || r > std::numeric_limits<T>::max()) return 0;
    return T(r);
}

template <typename T> T reversed(T value) {
    char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    std::reverse(std::begin(bytes), std::end(bytes));
    T out;
    std::memcpy(&out, bytes, sizeof out);
    return out;
}

} // namespace

bool clsLibrary::toBoolean(const QString& text) {
    const QString t = text.trimmed();
    if (t.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
    if (t.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) return false;
    bool ok = false;
    const double d = t.toDouble(&ok);
    return ok && d != 0;
}

qint32 clsLibrary::toLong(const QString& text) {
    return toWhole<qint32>(text);
}

qint16 clsLibrary::toInteger(const QString& text) {
    return toWhole<qint16>(text);
}

double clsLibrary::toDouble(const QString& text) {
    bool ok = false;
    const double d = text.trimmed().toDouble(&ok);
    return ok ? d : 0.0;
}

qint32 clsLibrary::HostToNetLong(qint32 value) {
    return reversed(value);
}
qint16 clsLibrary::HostToNetInteger(qint16 value) {
    return reversed(value);
}

QByteArray clsLibrary::UniToAnsi(const QString& text) {
    return TextFile::encodeCp932(text);
}

QString clsLibrary::get0FillStr(qint64 number, int width) {
    const QString digits = QString::number(number);
    return digits.size() >= width ? digits
                                  : QString(width - digits.size(), QLatin1Char('0')) + digits;
}

QString clsLibrary::getDataToken(const QString& text, const QString& delimiter) {
    const qsizetype at = delimiter.isEmpty() ? -1 : text.indexOf(delimiter);
    if (text.size() < 2 || at < 0) return text;
    return text.mid(at + delimiter.size());
}

QString clsLibrary::getKeyToken(const QString& text, const QString& delimiter) {
    const qsizetype at = delimiter.isEmpty() ? -1 : text.indexOf(delimiter);
    if (text.size() < 2 || at < 0) return text;
    return text.left(at);
}

QDateTime clsLibrary::NowEx(int& msec) {
    const QDateTime now = QDateTime::currentDateTime();
    msec = now.time().msec();
    return now.addMSecs(-msec);
}

QString clsLibrary::formatNowEx(const QString& pattern) {
    int msec = 0;
    const QDateTime now = NowEx(msec);
    const TimeBase::CalendarTime t{now.date().year(), now.date().month(),  now.date().day(),
                                   now.time().hour(), now.time().minute(), now.time().second()};
    QString text = VbFormat::formatDateTime(t, pattern);
    text.replace(QLatin1String("bbb"), get0FillStr(msec, 3));
    text.replace(QLatin1Char('b'), QString::number(msec));
    return text;
}

qint64 clsLibrary::getStopWatch() {
    return Stopwatch::tick();
}

QString clsLibrary::getSPFolder(int code) {
    switch (code) {
    case 26: // the user's application data
        return userDataFolder();
    case 5:
        return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    case 0:
        return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    default:
        return QString();
    }
}
