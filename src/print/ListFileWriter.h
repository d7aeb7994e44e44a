#pragma once

#include "print/ExportKind.h"

#include <QString>

class DataList;
class Progress;

// Writes what a data list shows to a CSV or tab-separated text file: a header with one field
// per grid column (hidden channels too), then every step-th row (the row step of SkipCount)
// with date, time and the shown channels only, then the comment block. Progress runs 0..100;
// a cancel on the progress ends the write. False when the file could not be written or the
// write was cancelled; the file under the name is then as it was.
bool WriteListFile(DataList& list, ExportKind::Kind kind, const QString& path,
                   Progress* progress = nullptr);
