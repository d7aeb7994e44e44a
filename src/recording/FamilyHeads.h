#pragma once

#include "recording/FileBytes.h"

#include <QByteArray>
#include <QVector>

#include <QtGlobal>
#include <initializer_list>

// The one place that knows where each recorder family keeps the fields of its head. The short
// header scan of the selection and the full readers both read through these.

// Whether a magic begins with one of the given heads (three letters, or all four bytes).
bool magicStartsWith(const QByteArray& magic, std::initializer_list<const char*> heads);

// Format of the core reader for a file's magic (VXF 0, QDF 2, NP 3, TM 6 or 12).
int formatOfMagic(const QByteArray& magic, bool gsMode);

// What a header scan tells of one file.
struct HeadInfo {
    qint64 start = 0; // seconds since 2000-01-01
    int startMsec = 0;
    qint32 interval = 0; // milliseconds
    int channels = 0;    // store channels (pairs counted twice)
    qint64 points = 0;
};

// Throws ReadPastEnd when the file is too short for a field.
HeadInfo scanHead(int format, const FileBytes& bytes);
HeadInfo scanJlmHead(const FileBytes& bytes);

struct VxfLayout {
    int slots;
    int tags, units, channelBlock, decimals, batchText, batchBase;
};

struct VxfHead {
    QByteArray magic;
    const VxfLayout* layout = nullptr;
    bool knownMagic = false;
    quint32 DataOffset = 0, ChannelCount = 0, DataMode = 0, RowSize = 0, RowCount = 0;
    quint32 MessageSize = 0, MessageCount = 0, StartTime = 0, Interval = 0;
    quint8 StartTenths = 0;

    static VxfHead read(const FileBytes& bytes);
    // Offsets of the alarm history counters (16-bit AlarmSize, then AlarmCount).
    qint64 alarmCounterOffset() const;
    // Columns of a row in the store: channels, doubled for minimum and maximum pairs.
    qint64 columns() const { return DataMode == 4 ? 2 * qint64(ChannelCount) : ChannelCount; }
};

struct QdfHead {
    quint16 RowPayload = 0;
    quint32 Interval = 0;
    quint16 GroupMask[5] = {};
    qint64 RowSize() const { return qint64(RowPayload) + 8; }
    int channelCount() const;

    static constexpr qint64 kFirstRow = 208;
    static QdfHead read(const FileBytes& bytes);
    qint64 rowCount(qint64 fileLength) const { return (fileLength - 207) / RowSize(); }
};

struct TmHead {
    int format = 6; // 6 or 12
    QString startText;
    QString intervalText;
    char PairFlag = '0';
    QVector<int> ChannelList;

    static TmHead read(const FileBytes& bytes, int format);
    qint64 dataStart() const { return format == 12 ? 4360 : 4000; }
    int columns() const {
        return PairFlag == '1' ? 2 * int(ChannelList.size()) : int(ChannelList.size());
    }
    qint64 start() const;
    qint32 intervalMs() const;
};

struct NpHead {
    quint32 TableOffset = 0, ChannelCount = 0, DataKind = 0, RowPayload = 0, RowCount = 0;
    quint32 StartMsec = 0, Interval = 0, DataOffsetAlt = 0;
    quint16 Version = 0, DataOffsetRel = 0;
    qint64 dataStart = 0;

    // Channel and row counts of old versions come from the row size and the file length.
    static NpHead read(const FileBytes& bytes);
};

struct JlmHead {
    int channels = 0;
    static JlmHead read(const FileBytes& bytes);
    qint64 rowBytes() const { return 4 * qint64(channels) + 8; }
    qint64 dataStart() const { return 32 * qint64(channels) + 64; }
    // Seconds since 2000 of the 6-byte key of data row r (year, day, month, hour, minute, second).
    qint64 keyTime(const FileBytes& bytes, qint64 row) const;
};
