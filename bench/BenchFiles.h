#pragma once

#include <QString>
#include <QStringList>

// The benchmark recording: 64 channels x 1,000,000 rows at 1 s, as two VXF files of 32 channels
// with different batch texts (about 128 MB each), joined side by side by the reader.
namespace BenchFiles {

constexpr int kChannelsPerFile = 32;
constexpr int kRows = 1000000;

// Writes the two files of `rows` rows into dir unless they are there already; returns their
// paths. Other lengths than kRows are files of their own.
QStringList ensureRecording(const QString& dir, int rows = kRows);

// The default folder for generated benchmark files.
QString defaultDir();

} // namespace BenchFiles
