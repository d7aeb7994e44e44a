#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

// Builds TM-family files (textual head, raw 16-bit counts) for tests.
namespace fixtures {

struct TmChannel {
    int number = 1;  // 1..99, the channel's description block
    char type = '0'; // '0' analogue (texts in the 60-byte table), '6' logarithmic, others
    QByteArray low, high, unit, tag;
    char color = '0';
    // Scale ends in the 84-byte block of an analogue channel, used for positions above 6 / 12.
    QByteArray blockLow, blockHigh;
};

struct TmDescription {
    QByteArray magic = "TM00"; // TM1x: format 12
    QByteArray startText = "20240506100000";
    QByteArray intervalText = "00010";
    char pairFlag = '0';
    QVector<TmChannel> channels;
    std::optional<QByteArray> channelList; // the 60 list bytes as written; default from channels
    QVector<QVector<qint16>> rows;         // rows x columns (minimum, maximum per channel in pairs)

    bool format12() const { return magic.startsWith("TM1"); }
};

QByteArray buildTm(const TmDescription& d);

// A MSG file: the magic, then records of 44 characters ("yymmddhhnnss", 30 characters of text,
// CR LF).
struct MsgRecord {
    QByteArray stamp = "240506100000";
    QByteArray text;
};
QByteArray buildMsg(const QVector<MsgRecord>& records, const QByteArray& magic = "TM0M");

} // namespace fixtures
