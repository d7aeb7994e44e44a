#pragma once

#include <QLocale>
#include <QString>

// What the system asks of the user's locale: a two-digit language key ("11" Japanese, "09"
// English, "12" Korean, "04" Chinese, "10" Italian, "07" German), the short date order and the
// separators.
struct LocaleInfo {
    QString languageKey = QStringLiteral("09");
    int dateOrder = 0; // 0 month-day-year, 1 day-month-year, 2 year-month-day
    QString dateSep = QStringLiteral("/");
    QString timeSep = QStringLiteral(":");
    QString decimalSep = QStringLiteral(".");
    QString thousandSep = QStringLiteral(",");

    // The locale of the process; the environment variable RECVIEW_LANG (ja, en, ko, zh, it, de)
    // forces one of the six languages with its usual country.
    static LocaleInfo system();
    // `forcedKey` non-empty replaces the key taken from the locale.
    static LocaleInfo fromLocale(const QLocale& locale, const QString& forcedKey);
    // The QLocale that system() reads.
    static QLocale systemLocale();
};

// The two-digit key of a locale's language; "00" for a language the table does not know.
QString languageKeyOf(QLocale::Language language);
