#include "print/PrintSetting.h"

#include <algorithm>

PrintSetting& PrintSetting::shared() {
    static PrintSetting setting;
    return setting;
}

QString PrintSetting::program(const QString& font, int size, bool bold, bool italic,
                              const QString (&texts)[3]) {
    static const char* const kStyles[] = {"/fb0/fi0/fu0/fk0", "/fb0/fi1/fu0/fk0",
                                          "/fb1/fi0/fu0/fk0", "/fb1/fi1/fu0/fk0"};
    return QStringLiteral("/fn\"%1\"/fz\"%2\"").arg(font).arg(size) +
           QLatin1String(kStyles[(bold ? 2 : 0) + (italic ? 1 : 0)]) + QStringLiteral("/l") +
           texts[0] + QStringLiteral("/c") + texts[1] + QStringLiteral("/r") + texts[2];
}

QString PrintSetting::headerProgram() const {
    return program(HeaderFontName, HeaderFontSize, HeaderBold, HeaderItalic, HeaderText);
}

QString PrintSetting::footerProgram() const {
    return program(FooterFontName, FooterFontSize, FooterBold, FooterItalic, FooterText);
}

ListPrintSettings PrintSetting::sheetSettings() const {
    ListPrintSettings s;
    s.paper = Paper;
    s.landscape = Orientation == 1;
    const auto empty = [](const QString(&t)[3]) {
        return t[0].isEmpty() && t[1].isEmpty() && t[2].isEmpty();
    };
    s.header = empty(HeaderText) ? QString() : headerProgram();
    if (!empty(FooterText)) s.footer = footerProgram();
    s.selection = Range == 1;
    if (Range == 2) {
        s.fromPage = std::max<int>(1, std::min(FromPage, ToPage));
        s.toPage = std::max<int>(1, std::max(FromPage, ToPage));
    }
    return s;
}
