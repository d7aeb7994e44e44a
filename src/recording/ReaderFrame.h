#pragma once

#include "recording/FormatReader.h"
#include "recording/RecordingLoader.h"

#include <QByteArray>
#include <QString>

// What the readers beside the core reader (JLM, CSV) share with it: the cancel poll between
// files and rows, and the whole-file read.
class ReaderFrame {
public:
    ReaderFrame(ViewState& view, const LoadOptions& options) : view_(view), options_(options) {}

    // Reports the share 50 / FileCount of file `fileIndex` and asks for a cancel; throws
    // LoadCancelled when the user confirmed it.
    void poll(int fileIndex, qint64 row, qint64 rows) const;

    // Marks the view as loading with its recording emptied.
    void begin() const;
    // The outcome of a load that ended with the view filled: row counts, then 578 when empty.
    // A first VXF file with alarm events shows at least MinPointsVXF points.
    LoadOutcome finish(bool firstIsVxf = false) const;
    // Empties the view after a failure or a cancel.
    LoadOutcome fail(LoadOutcome::Status status, int message, const QString& detail = {}) const;

private:
    ViewState& view_;
    const LoadOptions& options_;
};

// Reads a whole file with one call; false when it cannot be read.
bool readWholeFile(const QString& path, QByteArray& out);
