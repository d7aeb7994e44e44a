#include "trend/widgets/TrendTexts.h"

#include "base/LanguageTable.h"

QString TrendCaption(int message, const char* english) {
    const QString text = MsgText(message);
    return text.isEmpty() ? QString::fromUtf8(english) : text;
}

QString MenuCaption(const QString& text, QChar accelerator) {
    return text + QStringLiteral("(&") + accelerator + QLatin1Char(')');
}
