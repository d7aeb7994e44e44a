#pragma once

#include <QString>

// Captions of the trend windows. A caption comes from the language table; the few controls
// whose message the table does not hold yet show their English text until it does.
QString TrendCaption(int message, const char* english);

// A menu caption with its accelerator, as "Display(&V)".
QString MenuCaption(const QString& text, QChar accelerator);
