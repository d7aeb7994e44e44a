#pragma once

#include <QByteArray>
#include <QVector>

// Builds QD-family files (big-endian, five groups of twelve channels) for tests.
namespace fixtures {

struct QdfDescription {
    QByteArray magic = "QD30";
    quint32 intervalMs = 1000;
    quint16 groupMask[5] = {}; // bits 0-11 channels, bits 12-15 alarm levels 1-4
    quint16 decimals[60] = {}; // by channel number - 1
    quint32 startTime = 0;     // seconds since 2000-01-01 of row 1
    // Per row: the values of the recorded channels in order, and the alarm words of every
    // recorded level in file order (group by group, level 1 first). Missing entries are 0.
    QVector<QVector<qint16>> values;
    QVector<QVector<quint16>> alarmWords;
    quint16 sparePayload = 0; // extra bytes in each row behind the samples
};

QByteArray buildQdf(const QdfDescription& d);

// Recorded channels and level words of a row, from the masks.
int qdfChannelCount(const QdfDescription& d);
int qdfLevelWordCount(const QdfDescription& d);

} // namespace fixtures
