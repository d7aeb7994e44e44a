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
    QByteArray bytes(reinterpret_cast<const char*>(&value), sizeof value);
    bytes = clsLibrary::reverseByteArray(bytes);
    T out;
    std::memcpy(&out, bytes.constData(), sizeof out);
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

float clsLibrary::toSingle(const QString& text) {
    const double d = toDouble(text);
    return std::fabs(d) <= std::numeric_limits<float>::max() ? float(d) : 0.0f;
}

QByteArray clsLibrary::reverseByteArray(const QByteArray& bytes) {
    QByteArray out(bytes.size(), Qt::Uninitialized);
    std::reverse_copy(bytes.cbegin(), bytes.cend(), out.begin());
    return out;
}

QString clsLibrary::toHexString(const QByteArray& bytes) {
    return QString::fromLatin1(bytes.toHex().toUpper());
}

QByteArray clsLibrary::HexStringToByteArray(const QString& hex) {
    return QByteArray::fromHex(hex.toLatin1());
}

float clsLibrary::HostToNetSingle(float value) {
    return reversed(value);
}
double clsLibrary::HostToNetDouble(double value) {
    return reversed(value);
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

QString clsLibrary::matchingPattern(const QString& pattern, const QString& text) {
    const QRegularExpression re(pattern, QRegularExpression::CaseInsensitiveOption);
    if (!re.isValid()) return QString();
    QString out;
    for (const QRegularExpressionMatch& m : re.globalMatch(text))
        out += QString::number(m.capturedStart()) + QLatin1Char('\t') + m.captured() +
               QLatin1Char('\n');
    return out;
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

double clsLibrary::GetIntegrationTime() {
    return double(Stopwatch::tick()) / 1000.0;
}

void clsLibrary::getWindowsVersion(int& number, QString& name) {
    const QStringList parts = QSysInfo::kernelVersion().split(QLatin1Char('.'));
    const int major = parts.value(0).toInt();
    const int minor = parts.value(1).toInt();
    number = 2000000 + major * 10000 + std::min(minor, 9999);
    name = QSysInfo::prettyProductName();
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

QString clsLibrary::getCommandLine() {
    if (!QCoreApplication::instance()) return QString();
    QStringList args = QCoreApplication::arguments();
    if (!args.isEmpty()) args.removeFirst();
    for (QString& a : args)
        if (a.contains(QLatin1Char(' '))) a = QLatin1Char('"') + a + QLatin1Char('"');
    return args.join(QLatin1Char(' '));
}
