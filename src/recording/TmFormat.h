#pragma once

#include "recording/CellFormat.h"
#include "recording/FamilyHeads.h"
#include "recording/FormatReader.h"

#include <QVector>

// The TM family's file (formats 6 and 12): a textual head and raw counts scaled by the channel's
// scale ends.
class TmFormat final : public FormatReader {
public:
    explicit TmFormat(int format) : format_(format) {}

    void readHead(const FileLoad& load) override;
    qint64 startTime() const override { return head_.start(); }
    qint32 intervalMs() const override { return head_.intervalMs(); }
    int channelCount() const override { return head_.columns(); }
    qint64 rowCount() const override { return rows_; }

    void fillChannels(const FileLoad& load, int channelBase) override;
    void readSamples(const FileLoad& load, int channelBase, qint64 rowOffset) override;

private:
    // What the description tables say of one listed channel.
    struct Channel {
        int number = 0;
        QString tag, unit, scaleLow, scaleHigh;
        int colorCode = 0;
        bool log = false;
        CellFormat format;
    };
    Channel readChannel(const FileBytes& b, int position) const;

    int format_;
    TmHead head_;
    qint64 rows_ = 0;
    QVector<Channel> channels_;
};
