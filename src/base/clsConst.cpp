#include "base/clsConst.h"

#include "base/VbFormat.h"

clsConst::clsConst(const LocaleInfo& locale)
    : dateOrder_(locale.dateOrder), dateSeparator_(locale.dateSep),
      thousandSeparator_(locale.thousandSep) {
    // The separators as the formatting shows them: the third character of 59.4 with "##0.0"
    // and of 13:04:23 with "hh:nn:ss".
    const VbFormat::Separators seps{locale.decimalSep, locale.thousandSep, locale.dateSep,
                                    locale.timeSep};
    decimalSeparator_ = VbFormat::formatNumber(59.4, QStringLiteral("##0.0"), seps).mid(2, 1);
    timeSeparator_ = VbFormat::formatDateTime(VbFormat::fromDateSerial(0.5447106481481482),
                                              QStringLiteral("hh:nn:ss"), seps)
                         .mid(2, 1);
}

const clsConst& clsConst::shared() {
    static const clsConst instance(LocaleInfo::system());
    return instance;
}

QString clsConst::DecimalFormat(int i) const {
    static const char* const kFormats[] = {"#######0", "#####0.0", "####0.00", "###0.000",
                                           "##0.0000"};
    if (i < 0 || i > 4) return QString();
    return QLatin1String(kFormats[i]);
}
