#include "base/LocaleInfo.h"

namespace {

struct LanguageEntry {
    const char* code;
    QLocale::Language language;
    QLocale::Territory territory;
    const char* key;
};

// The low two hexadecimal digits of the platform language identifiers.
constexpr LanguageEntry kLanguages[] = {
    {"ja", QLocale::Japanese, QLocale::Japan, "11"},
    {"en", QLocale::English, QLocale::UnitedStates, "09"},
    {"ko", QLocale::Korean, QLocale::SouthKorea, "12"},
    {"zh", QLocale::Chinese, QLocale::China, "04"},
    {"it", QLocale::Italian, QLocale::Italy, "10"},
    {"de", QLocale::German, QLocale::Germany, "07"},
};

// The first character of a format that is not a pattern letter: the separator it uses.
QString firstSeparator(const QString& format, const QString& fallback) {
    for (const QChar c : format)
        if (!c.isLetter() && !c.isSpace() && c != QLatin1Char('\'')) return QString(c);
    return fallback;
}

int dateOrderOf(const QString& format) {
    const qsizetype y = format.indexOf(QLatin1Char('y'));
    const qsizetype m = format.indexOf(QLatin1Char('M'));
    const qsizetype d = format.indexOf(QLatin1Char('d'));
    if (y >= 0 && (m < 0 || y < m) && (d < 0 || y < d)) return 2;
    if (d >= 0 && m >= 0 && d < m) return 1;
    return 0;
}

const LanguageEntry* forcedEntry() {
    const QString forced = qEnvironmentVariable("RECVIEW_LANG").trimmed().toLower();
    if (forced.isEmpty()) return nullptr;
    for (const LanguageEntry& e : kLanguages)
        if (forced == QLatin1String(e.code)) return &e;
    return nullptr;
}

} // namespace

QString languageKeyOf(QLocale::Language language) {
    if (language == QLocale::C) return QStringLiteral("09");
    for (const LanguageEntry& e : kLanguages)
        if (e.language == language) return QLatin1String(e.key);
    return QStringLiteral("00");
}

QLocale LocaleInfo::systemLocale() {
    if (const LanguageEntry* e = forcedEntry()) return QLocale(e->language, e->territory);
    return QLocale::system();
}

LocaleInfo LocaleInfo::system() {
    const LanguageEntry* e = forcedEntry();
    return fromLocale(systemLocale(), e ? QLatin1String(e->key) : QString());
}

LocaleInfo LocaleInfo::fromLocale(const QLocale& locale, const QString& forcedKey) {
    LocaleInfo info;
    info.languageKey = forcedKey.isEmpty() ? languageKeyOf(locale.language()) : forcedKey;
    const QString dateFormat = locale.dateFormat(QLocale::ShortFormat);
    info.dateOrder = dateOrderOf(dateFormat);
    info.dateSep = firstSeparator(dateFormat, QStringLiteral("/"));
    info.timeSep = firstSeparator(locale.timeFormat(QLocale::ShortFormat), QStringLiteral(":"));
    info.decimalSep = locale.decimalPoint();
    info.thousandSep = locale.groupSeparator();
    if (info.decimalSep.isEmpty()) info.decimalSep = QStringLiteral(".");
    return info;
}
