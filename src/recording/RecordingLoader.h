#pragma once

#include "base/Progress.h"
#include "recording/ViewState.h"

#include <QString>

#include <functional>

// The result of loading a view's files. The caller shows the message, if any.
struct LoadOutcome {
    enum class Status { Loaded, Empty, Failed, Cancelled, NotHandled };
    Status status = Status::Loaded;
    int message = 0; // 560, 587 (with detail), 578 for an empty recording
    QString detail;  // "CHCount = " n behind message 587
    bool ok() const { return status == Status::Loaded; }
    // The message as the user reads it: its text, and the detail on a line of its own.
    QString text() const;
};

struct LoadOptions {
    bool gsMode = false;
    // FileJoinByOrder: rows go behind the last used row instead of by time when this is 1.
    qint16 FileJoinByOrder = 0;
    Progress* progress = nullptr; // polled between files and rows
    // Asked when the user pressed cancel; true stops the load.
    std::function<bool()> confirmCancel = [] { return true; };
};

// Copies the selection into the view's file list.
void copySelectionToView(ViewState& view);

// Reads the view's files into its store: the core reader with its file loop, joining by batch
// text and by time or order. On any failure the view is left empty.
LoadOutcome LoadRecording(ViewState& view, const LoadOptions& options);
// The core reader of the header-based families (VXF, QDF, TM, N5F, P4F).
LoadOutcome LoadCoreFiles(ViewState& view, const LoadOptions& options);

// The end of every load: row counts, shown points and channel counts from the store.
void finishLoad(ViewState& view, bool firstIsVxf);
