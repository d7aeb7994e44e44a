#include "base/VbFormat.h"

#include "base/LocaleInfo.h"
#include "base/NumberText.h"

#include <QList>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace VbFormat {

namespace {

// A non-negative decimal number: digits d1..dn (no leading or trailing zeros; empty for zero)
// with `point` digits before the decimal sign (may be negative or beyond n).
struct Decimal {
    QString digits;
    int point = 0;

    bool isZero() const { return digits.isEmpty(); }
    QChar digitAt(int index) const {
        return index >= 0 && index < digits.size() ? digits[index] : QLatin1Char('0');
    }
};

// The value's 15-significant-digit decimal text, which is what a user sees of it.
Decimal toDecimal(double value) {
    Decimal d;
    value = std::fabs(value);
    if (value == 0) return d;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.14e", value);
    const char* ePos = std::strchr(buf, 'e');
    for (const char* p = buf; p < ePos; ++p)
        if (*p != '.') d.digits += QLatin1Char(*p);
    d.point = std::atoi(ePos + 1) + 1;
    while (d.digits.endsWith(QLatin1Char('0'))) d.digits.chop(1);
    return d;
}

// Keeps `keep` digits from the left, rounding the rest away half away from zero.
void roundDecimal(Decimal& d, int keep) {
    if (keep >= d.digits.size()) return;
    if (keep < 0) {
        d = Decimal{};
        return;
    }
    const bool up = d.digits[keep] >= QLatin1Char('5');
    d.digits.truncate(keep);
    if (up) {
        int i = keep - 1;
        while (i >= 0 && d.digits[i] == QLatin1Char('9')) d.digits[i--] = QLatin1Char('0');
        if (i < 0) {
            d.digits.prepend(QLatin1Char('1'));
            ++d.point;
        } else {
            d.digits[i] = QChar(d.digits[i].unicode() + 1);
        }
    }
    while (d.digits.endsWith(QLatin1Char('0'))) d.digits.chop(1);
    if (d.digits.isEmpty()) d = Decimal{};
}

struct Item {
    QChar placeholder; // '0' or '#'; null for a literal
    QString literal;
    bool isPlaceholder() const { return !placeholder.isNull(); }
};

struct Section {
    QString prefix;
    QList<Item> intItems;
    QList<Item> fracItems;
    QString suffix;
    bool point = false;
    bool grouping = false;
    bool percent = false;
    bool exponent = false;
    QChar expLetter;
    bool expPlus = false;
    int expDigits = 0;
};

int placeholderCount(const QList<Item>& items, QChar which = QChar()) {
    int n = 0;
    for (const Item& item : items)
        if (item.isPlaceholder() && (which.isNull() || item.placeholder == which)) ++n;
    return n;
}

QStringList splitSections(const QString& pattern) {
    QStringList sections{QString()};
    bool quoted = false;
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == QLatin1Char('"')) quoted = !quoted;
        if (!quoted && c == QLatin1Char('\\') && i + 1 < pattern.size()) {
            sections.last() += c;
            sections.last() += pattern[++i];
            continue;
        }
        if (!quoted && c == QLatin1Char(';')) {
            sections.append(QString());
            continue;
        }
        sections.last() += c;
    }
    return sections;
}

void addLiteral(Section& s, QList<Item>* target, const QString& text) {
    if (!target) {
        s.suffix += text;
    } else if (target == &s.intItems && placeholderCount(s.intItems) == 0 && !s.point) {
        s.prefix += text;
    } else {
        target->append(Item{QChar(), text});
    }
}

// Moves the literals after the last placeholder of `items` into the suffix.
void moveTrailingLiterals(Section& s, QList<Item>& items) {
    QString tail;
    while (!items.isEmpty() && !items.last().isPlaceholder())
        tail.prepend(items.takeLast().literal);
    s.suffix.prepend(tail);
}

Section parseSection(const QString& p) {
    Section s;
    QList<Item>* target = &s.intItems; // nullptr once the exponent is read
    for (int i = 0; i < p.size(); ++i) {
        const QChar c = p[i];
        if (c == QLatin1Char('"')) {
            const int end = p.indexOf(QLatin1Char('"'), i + 1);
            const int stop = end < 0 ? p.size() : end;
            addLiteral(s, target, p.mid(i + 1, stop - i - 1));
            i = stop;
        } else if (c == QLatin1Char('\\') && i + 1 < p.size()) {
            addLiteral(s, target, QString(p[++i]));
        } else if ((c == QLatin1Char('0') || c == QLatin1Char('#')) && target) {
            target->append(Item{c, QString()});
        } else if (c == QLatin1Char('.') && target == &s.intItems) {
            s.point = true;
            target = &s.fracItems;
        } else if (c == QLatin1Char(',') && target == &s.intItems) {
            s.grouping = true;
        } else if ((c == QLatin1Char('E') || c == QLatin1Char('e')) && target && i + 1 < p.size() &&
                   (p[i + 1] == QLatin1Char('+') || p[i + 1] == QLatin1Char('-'))) {
            s.exponent = true;
            s.expLetter = c;
            s.expPlus = p[++i] == QLatin1Char('+');
            while (i + 1 < p.size() &&
                   (p[i + 1] == QLatin1Char('0') || p[i + 1] == QLatin1Char('#'))) {
                if (p[++i] == QLatin1Char('0')) ++s.expDigits;
            }
            moveTrailingLiterals(s, *target);
            target = nullptr;
        } else {
            if (c == QLatin1Char('%')) s.percent = true;
            addLiteral(s, target, QString(c));
        }
    }
    if (target) moveTrailingLiterals(s, *target);
    return s;
}

QString groupDigits(const QString& digits, const QString& sep) {
    QString out;
    for (int i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) out += sep;
        out += digits[i];
    }
    return out;
}

// Places the integer digits into the integer placeholders from the right; the leftmost
// placeholder takes every digit left over.
QString integerText(const Section& s, const QString& digits, const Separators& seps) {
    int first = -1;
    for (int j = 0; j < s.intItems.size() && first < 0; ++j)
        if (s.intItems[j].isPlaceholder()) first = j;
    int k = digits.size();
    QString out;
    bool literals = false;
    for (int j = s.intItems.size() - 1; j >= 0; --j) {
        const Item& item = s.intItems[j];
        if (!item.isPlaceholder()) {
            out.prepend(item.literal);
            literals = true;
            continue;
        }
        if (k > 0) {
            out.prepend(digits[--k]);
            if (j == first) {
                out.prepend(digits.left(k));
                k = 0;
            }
        } else if (item.placeholder == QLatin1Char('0')) {
            out.prepend(QLatin1Char('0'));
        }
    }
    return s.grouping && !literals ? groupDigits(out, seps.thousands) : out;
}

QString fractionText(const Section& s, const QString& digits) {
    // Trailing zeros under "#" placeholders are dropped.
    int shown = digits.size();
    QList<QChar> kinds;
    for (const Item& item : s.fracItems)
        if (item.isPlaceholder()) kinds.append(item.placeholder);
    while (shown > 0 && kinds[shown - 1] == QLatin1Char('#') &&
           digits[shown - 1] == QLatin1Char('0'))
        --shown;
    QString out;
    int k = 0;
    for (const Item& item : s.fracItems) {
        if (!item.isPlaceholder()) {
            out += item.literal;
        } else if (k < shown) {
            out += digits[k++];
        }
    }
    return out;
}

QString digitRun(const Decimal& d, int from, int count) {
    QString out;
    for (int i = 0; i < count; ++i) out += d.digitAt(from + i);
    return out;
}

// The body of a section: digits, signs and literals inside it; `isZero` tells whether every
// shown digit is zero.
QString sectionBody(const Section& s, double magnitude, const Separators& seps, bool& isZero) {
    const int fracCount = placeholderCount(s.fracItems);
    Decimal d = toDecimal(s.percent ? magnitude * 100 : magnitude);
    QString intDigits;
    QString expText;
    if (s.exponent) {
        const int intCount = std::max(1, placeholderCount(s.intItems, QLatin1Char('0')));
        int exponent = 0;
        if (!d.isZero()) {
            roundDecimal(d, intCount + fracCount);
            exponent = d.point - intCount;
            d.point = intCount;
        }
        intDigits = digitRun(d, 0, intCount);
        const QString expDigits = QString::number(std::abs(exponent));
        expText = s.expLetter;
        if (exponent < 0)
            expText += QLatin1Char('-');
        else if (s.expPlus)
            expText += QLatin1Char('+');
        expText += QString(std::max(0, s.expDigits - int(expDigits.size())), QLatin1Char('0'));
        expText += expDigits;
    } else {
        roundDecimal(d, d.point + fracCount);
        intDigits = d.point > 0 ? digitRun(d, 0, d.point) : QString();
    }
    isZero = d.isZero();
    QString body = integerText(s, intDigits, seps);
    if (s.point) body += seps.decimal;
    body += fractionText(s, digitRun(d, d.point, fracCount));
    return body + expText;
}

} // namespace

Separators Separators::fromLocale(const QLocale& locale) {
    const LocaleInfo info = LocaleInfo::fromLocale(locale, QString());
    return Separators{info.decimalSep, info.thousandSep, info.dateSep, info.timeSep};
}

Separators Separators::system() {
    const LocaleInfo info = LocaleInfo::system();
    return Separators{info.decimalSep, info.thousandSep, info.dateSep, info.timeSep};
}

QString defaultText(double value, const Separators& seps) {
    QString text = NumberText::doubleText(value);
    if (seps.decimal != QLatin1String(".")) text.replace(QLatin1Char('.'), seps.decimal);
    return text;
}

QString formatNumber(double value, const QString& pattern, const Separators& seps) {
    if (pattern.isEmpty() || !std::isfinite(value)) return defaultText(value, seps);
    const QStringList sections = splitSections(pattern);
    int pick = 0;
    if (value < 0 && sections.size() >= 2 && !sections[1].isEmpty()) pick = 1;
    if (value == 0 && sections.size() >= 3 && !sections[2].isEmpty()) pick = 2;
    const Section s = parseSection(sections[pick]);
    bool isZero = true;
    const QString body = sectionBody(s, std::fabs(value), seps, isZero);
    const bool minus = value < 0 && pick == 0 && !isZero;
    return (minus ? QStringLiteral("-") : QString()) + s.prefix + body + s.suffix;
}

qint64 roundHalfEven(double value) {
    if (std::isnan(value)) return 0;
    const double r = std::nearbyint(value); // the default rounding mode: halves to even
    if (r >= 9.2e18) return std::numeric_limits<qint64>::max();
    if (r <= -9.2e18) return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(r);
}

double roundHalfAway(double value, int decimals) {
    if (!std::isfinite(value)) return value;
    Decimal d = toDecimal(value);
    roundDecimal(d, d.point + decimals);
    if (d.isZero()) return 0.0;
    const QString text = QStringLiteral("%1%2e%3")
                             .arg(value < 0 ? QStringLiteral("-") : QString())
                             .arg(QStringLiteral("0.") + d.digits)
                             .arg(d.point);
    return text.toDouble();
}

} // namespace VbFormat
