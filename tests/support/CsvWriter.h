#pragma once

#include "recording/CsvLoader.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// Builds CSV sample files for tests.
namespace fixtures {

// Lines joined with CR LF, encoded as UTF-8 or as cp932.
QByteArray buildCsv(const QStringList& lines, bool cp932 = false);

// Rows "2024/05/06 10:00:0s" one second apart with values from a function of (row, channel),
// under titles "T1 [V]"...; no alarm columns.
QStringList simpleCsv(int channels, int rows, QString (*value)(int row, int channel));

// Opens one CSV file in view 1 as a drop does (the command line refuses a single CSV file).
inline LoadOutcome loadCsv(const QString& path) {
    return openSingleCsv(path, views(1), {});
}

} // namespace fixtures
