#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class TrendView;

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

// The files opened into view 1 as the command line opens them, and the view's trend built as
// the window builds it; null when the load failed.
std::unique_ptr<TrendView> openView(const QStringList& files);

} // namespace BenchFiles
