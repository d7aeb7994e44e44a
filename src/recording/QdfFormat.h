#pragma once

#include "recording/FamilyHeads.h"
#include "recording/FormatReader.h"

#include <QVector>

// The QD family's file: big-endian, five groups of twelve channels, alarm bit planes per row.
class QdfFormat final : public FormatReader {
public:
    void readHead(const FileLoad& load) override;
    qint64 startTime() const override { return start_; }
    qint32 intervalMs() const override { return qint32(head_.Interval); }
    int channelCount() const override { return int(channels_.size()); }
    qint64 rowCount() const override { return rows_; }

    void fillChannels(const FileLoad& load, int channelBase) override;
    void readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) override;

private:
    // One recorded channel: its number (1..60), decimals and where it sits in a row.
    struct Channel {
        int number = 0;
        int decimals = 0;
        int group = 0;       // 0..4
        qint64 valueAt = 0;  // offset of its value behind the row head
        qint64 levelsAt = 0; // offset of its group's first alarm word behind the row head
    };
    void buildGroupTable();
    quint16 alarmCell(const uchar* row, const Channel& c) const;

    QdfHead head_;
    qint64 start_ = 0;
    qint64 rows_ = 0;
    QVector<Channel> channels_;
    int levelFlags_[5] = {};  // bits 0..3: levels 1..4 recorded by the group
    qint64 rowBytesRead_ = 0; // bytes of a row behind its head that the samples touch
};
