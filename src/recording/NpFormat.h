#pragma once

#include "recording/FamilyHeads.h"
#include "recording/FormatReader.h"

#include <algorithm>

// The NP recorder's N5F file, and in GS mode the P4F file of the PA4..PD4 models: a big-endian
// head, little-endian samples.
class NpFormat final : public FormatReader {
public:
    void readHead(const FileLoad& load) override;
    qint64 startTime() const override { return start_; }
    int startMsec() const override { return int(head_.StartMsec); }
    qint32 intervalMs() const override { return qint32(head_.Interval * 100); }
    // A corrupt count cannot exceed what a row of the file could hold.
    int channelCount() const override { return int(std::min<qint64>(columns(), 1 << 20)); }
    qint64 rowCount() const override { return head_.RowCount; }

    void fillChannels(const FileLoad& load, int channelBase) override;
    void readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) override;

private:
    bool floats() const { return head_.DataKind == 2; }
    bool pairs() const { return head_.DataKind == 4; }
    qint64 columns() const { return pairs() ? 2 * qint64(head_.ChannelCount) : head_.ChannelCount; }
    // Bytes of one sample; a row is the 4-byte time and the samples of all columns.
    qint64 sampleBytes() const { return floats() ? 6 : 4; }

    NpHead head_;
    qint64 start_ = 0;
};
