#pragma once

#include "recording/FileBytes.h"
#include "recording/ViewState.h"

#include <QString>

#include <functional>
#include <memory>

// Thrown by a row loop when the user confirmed a cancel.
struct LoadCancelled {};

// One file in the hands of a format reader.
struct FileLoad {
    ViewState& view;
    const FileBytes& bytes;
    int fileIndex = 0; // 0-based position in the view's file list
    bool gsMode = false;
    // Called between rows; throws LoadCancelled when the user stops the load.
    std::function<void(qint64 row, qint64 rows)> pollRows;
};

// The per-format steps of the core reader. The frame calls them in order for each file:
// readHead, then (first file) the view set-up, readMessages, fillChannels, readAlarmHistory,
// then readSamples. Reads past the end throw ReadPastEnd.
class FormatReader {
public:
    virtual ~FormatReader() = default;

    virtual void readHead(const FileLoad& load) = 0;
    virtual qint64 startTime() const = 0; // seconds since 2000-01-01
    virtual int startMsec() const { return 0; }
    virtual qint32 intervalMs() const = 0;
    virtual QString batchText() const { return QString(); }
    virtual int channelCount() const = 0; // store channels of this file
    virtual qint64 rowCount() const = 0;

    virtual void readMessages(const FileLoad&) {}
    // Channels 1..channelCount() go to channelBase + 1..; none beyond MaxChannels.
    virtual void fillChannels(const FileLoad& load, int channelBase) = 0;
    virtual void readAlarmHistory(const FileLoad&) {}
    // File row r goes to store row rowOffset + r; rows below 1 are dropped. The store's sizes
    // are set by the frame before the call.
    virtual void readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) = 0;
};

// The reader of a format number (VXF 0, QDF 2, NP 3, TM 6 and 12).
std::unique_ptr<FormatReader> makeFormatReader(int format);
