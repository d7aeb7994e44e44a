#pragma once

#include "base/LanguageTable.h"
#include "base/TextFile.h"

#include <QMap>
#include <QString>

// Makes the process's language table English with the given texts (and font message 2).
inline void loadEnglishMessages(const QString& dir, const QMap<int, QString>& texts) {
    QString table = QStringLiteral("<<VX>>\n");
    const int last = texts.isEmpty() ? 2 : std::max(2, texts.lastKey());
    for (int n = 1; n <= last; ++n) {
        const QString text = n == 2 ? QStringLiteral("Arial") : texts.value(n);
        table += QString::number(n) + QStringLiteral("\t\t") + text + QLatin1Char('\n');
    }
    const QString path = dir + QStringLiteral("/langVX.txt");
    TextFile::writeAtomically(path, table.toUtf8());
    loadLanguageTable(path, QStringLiteral("09"), false);
}
