#include "base/widgets/ApplyLanguageFont.h"

#include "base/LanguageTable.h"

#include <QWidget>

void ApplyLanguageFont(QWidget* window) {
    if (window == nullptr) return;
    QFont font = window->font();
    // The named family first, then the platform's general sans font for glyphs it lacks.
    font.setFamilies({LanguageFont(), QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Sans")});
    window->setFont(font);
}
