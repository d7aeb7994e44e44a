#pragma once

#include "recording/FamilyHeads.h"
#include "recording/FormatReader.h"

#include <algorithm>

// The VX family's file (narrow and wide layouts, all data modes).
class VxfFormat final : public FormatReader {
public:
    void readHead(const FileLoad& load) override;
    qint64 startTime() const override { return head_.StartTime; }
    int startMsec() const override { return head_.StartTenths * 100; }
    qint32 intervalMs() const override { return qint32(head_.Interval * 100); }
    QString batchText() const override { return batchText_; }
    // A corrupt count cannot exceed what a row of the file could hold.
    int channelCount() const override { return int(std::min<qint64>(head_.columns(), 1 << 20)); }
    qint64 rowCount() const override { return head_.RowCount; }

    void readMessages(const FileLoad& load) override;
    void fillChannels(const FileLoad& load, int channelBase) override;
    void readAlarmHistory(const FileLoad& load) override;
    void readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) override;

private:
    void fillProperty(const FileLoad& load) const;
    QString channelTag(const FileBytes& b, int channel, const char* suffix) const;
    qint64 messageBase() const;

    VxfHead head_;
    QString batchText_;
};
