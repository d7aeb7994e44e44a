#pragma once

#include "print/ExportKind.h"

#include <QString>

class MarkerView;

// Writes what a marker view shows to a CSV or tab-separated text file: a header of the cursor
// columns and of the statistic groups shown (the marker group named by message 231 in files),
// which keeps its last separator, then every row of the grid with its shown columns as they
// stand (a channel header keeps the CR LF between tag and unit). False when the file could not
// be written; the file under the name is then as it was.
bool WriteMarkerFile(MarkerView& marker, ExportKind::Kind kind, const QString& path);
