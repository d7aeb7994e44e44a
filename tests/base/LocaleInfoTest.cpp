#include "base/LocaleInfo.h"

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
}

} // namespace
