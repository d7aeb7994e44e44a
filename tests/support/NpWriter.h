#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

// Builds N5F and P4F files (big-endian head, little-endian samples) for tests.
namespace fixtures {

struct NpChannel {
    QByteArray tag, unit; // up to 12 bytes each
    quint16 number = 1;
    quint16 color = 0;
};

// One column's sample: the 16-bit value or the float, and the alarm bits (levels 1-4 in 0-3).
struct NpSample {
    qint16 value = 0;
    float f = 0;
    quint8 alarm = 0;
};

struct NpDescription {
    QByteArray magic = QByteArray("NP5\0", 4);
    quint16 version = 3;
    quint32 dataKind = 0; // 2 floats, 4 minimum and maximum pairs
    quint32 startUnix = 0;
    quint32 startMsecField = 0; // the four bytes at 37 (the last one is shared with the interval)
    quint32 intervalTenths = 10;
    quint32 tableOffset = 100;
    quint16 stride = 70;   // written at table + 14 for version 3 and later
    bool gsStride = false; // entries 80 bytes apart whatever the version
    QVector<NpChannel> channels;
    QVector<QVector<NpSample>> rows; // rows x columns
    quint16 dataOffsetRel = 400;     // version 3: data at this + 2240
    quint32 dataOffsetAlt = 3000;    // other versions but 1
    std::optional<quint32> rowCount, channelCount;

    qint64 dataStart() const {
        return version == 1 ? 6000 : version == 3 ? qint64(dataOffsetRel) + 2240 : dataOffsetAlt;
    }
};

QByteArray buildNp(const NpDescription& d);

} // namespace fixtures
