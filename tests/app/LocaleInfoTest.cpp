#include "app/LocaleInfo.h"
#include "app/LogObject.h"
#include "app/VbFormat.h"
#include "app/clsLibrary.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(LocaleInfo, LocalesGiveKeyOrderAndSeparators) {
    const struct {
        QLocale locale;
        const char* key;
        int order;
        const char* decimal;
        const char* date;
    } cases[] = {
        {QLocale(QLocale::Japanese, QLocale::Japan), "11", 2, ".", "/"},
        {QLocale(QLocale::English, QLocale::UnitedStates), "09", 0, ".", "/"},
        {QLocale(QLocale::German, QLocale::Germany), "07", 1, ",", "."},
        {QLocale(QLocale::Italian, QLocale::Italy), "10", 1, ",", "/"},
        {QLocale(QLocale::Chinese, QLocale::Taiwan), "04", 2, ".", "/"},
        {QLocale(QLocale::French, QLocale::France), "00", 1, ",", "/"},
    };
    for (const auto& c : cases) {
        const LocaleInfo info = LocaleInfo::fromLocale(c.locale, QString());
        const std::string name = c.locale.name().toStdString();
        EXPECT_EQ(info.languageKey, QLatin1String(c.key)) << name;
        EXPECT_EQ(info.dateOrder, c.order) << name;
        EXPECT_EQ(info.decimalSep, QLatin1String(c.decimal)) << name;
        EXPECT_EQ(info.dateSep, QLatin1String(c.date)) << name;
        EXPECT_EQ(info.timeSep, QLatin1String(":")) << name;
    }
    EXPECT_EQ(languageKeyOf(QLocale::C), QLatin1String("09"));
}

TEST(LocaleInfo, EnvironmentForcesTheLanguage) {
    const QByteArray old = qgetenv("RECVIEW_LANG");
    qputenv("RECVIEW_LANG", "de");
    EXPECT_EQ(LocaleInfo::system().languageKey, QLatin1String("07"));
    EXPECT_EQ(VbFormat::Separators::system().decimal, QLatin1String(","));
    qputenv("RECVIEW_LANG", "ja");
    EXPECT_EQ(LocaleInfo::system().dateOrder, 2);
    if (old.isEmpty())
        qunsetenv("RECVIEW_LANG");
    else
        qputenv("RECVIEW_LANG", old);
}

TEST(LogObject, FileLogAppendsLinesAndNowExAddsMilliseconds) {
    QTemporaryDir dir;
    FileLog log(dir.path() + QStringLiteral("/Error.log"));
    clsLibrary::shared().setLogs(&log, nullptr);
    clsLibrary::shared().errorReport(QStringLiteral("first"));
    clsLibrary::shared().traceReport(QStringLiteral("nowhere"));
    EXPECT_TRUE(log.putLog(nullptr, 3, QStringLiteral("second")));
    clsLibrary::shared().setLogs(nullptr, nullptr);
    QFile file(log.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].endsWith(QLatin1String(" [LibraryError]first")));
    EXPECT_TRUE(lines[1].endsWith(QLatin1String(" [3] second")));

    const QRegularExpression stamp(
        QStringLiteral("^\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}$"));
    EXPECT_TRUE(
        stamp.match(clsLibrary::formatNowEx(QStringLiteral("yyyy/mm/dd hh:nn:ss.bbb"))).hasMatch());
    int msec = -1;
    const QDateTime now = clsLibrary::NowEx(msec);
    EXPECT_GE(msec, 0);
    EXPECT_EQ(now.time().msec(), 0);
}

} // namespace
