#include "app/LocaleInfo.h"
#include "app/LogObject.h"
#include "app/VbFormat.h"
#include "app/clsLibrary.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(LocaleInfo, LocalesGiveKeyOrderAndSeparators) {
    const struct {
        QLocale locale;
        const char* key;
        int order;
        const char *decimal, *date;
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
        EXPECT_EQ(QStringList({info.languageKey, QString::number(info.dateOrder), info.decimalSep,
                               info.dateSep, info.timeSep}),
                  QStringList({QLatin1String(c.key), QString::number(c.order),
                               QLatin1String(c.decimal), QLatin1String(c.date), u":"_s}))
            << c.locale.name().toStdString();
    }
    EXPECT_EQ(languageKeyOf(QLocale::C), u"09"_s);
}

TEST(LocaleInfo, EnvironmentForcesTheLanguage) {
    const QByteArray old = qgetenv("RECVIEW_LANG");
    qputenv("RECVIEW_LANG", "de");
    EXPECT_EQ(LocaleInfo::system().languageKey, u"07"_s);
    EXPECT_EQ(VbFormat::Separators::system().decimal, u","_s);
    qputenv("RECVIEW_LANG", "ja");
    EXPECT_EQ(LocaleInfo::system().dateOrder, 2);
    old.isEmpty() ? qunsetenv("RECVIEW_LANG") : qputenv("RECVIEW_LANG", old);
}

TEST(LogObject, FileLogAppendsLinesAndNowExAddsMilliseconds) {
    QTemporaryDir dir;
    FileLog log(dir.path() + u"/Error.log"_s);
    clsLibrary::shared().setLogs(&log, nullptr);
    clsLibrary::shared().errorReport(u"first"_s);
    clsLibrary::shared().traceReport(u"nowhere"_s);
    EXPECT_TRUE(log.putLog(nullptr, 3, u"second"_s));
    clsLibrary::shared().setLogs(nullptr, nullptr);
    QFile file(log.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].endsWith(u" [LibraryError]first"_s));
    EXPECT_TRUE(lines[1].endsWith(u" [3] second"_s));

    const QRegularExpression stamp(u"^\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}$"_s);
    EXPECT_TRUE(stamp.match(clsLibrary::formatNowEx(u"yyyy/mm/dd hh:nn:ss.bbb"_s)).hasMatch());
    int msec = -1;
    EXPECT_EQ(clsLibrary::NowEx(msec).time().msec(), 0);
    EXPECT_GE(msec, 0);
}

} // namespace
