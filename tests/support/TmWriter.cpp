#include "support/TmWriter.h"

#include "support/FixtureBytes.h"

namespace fixtures {

using namespace bytes;

namespace {

void putChannel(QByteArray& b, const TmChannel& c, bool format12) {
    const qint64 z = (format12 ? 888 : 528) + 84 * qint64(c.number - 1);
    b[z] = c.type;
    if (c.type == '0') {
        const qint64 e = 60 * qint64(c.number - 1);
        putText(b, 182 + e, c.low, 6);
        putText(b, 188 + e, c.high, 6);
        putText(b, 206 + e, c.unit, 6);
        putText(b, 212 + e, c.tag, 10);
        b[224 + e] = c.color;
        if (!c.blockLow.isEmpty()) putText(b, z + 2, c.blockLow, 6);
        if (!c.blockHigh.isEmpty()) putText(b, z + 8, c.blockHigh, 6);
        return;
    }
    putText(b, z + 2, c.low, 6);
    putText(b, z + 8, c.high, 6);
    putText(b, z + 30, c.unit, 6);
    putText(b, z + 36, c.tag, 10);
    b[z + 48] = c.color;
}

} // namespace

QByteArray buildTm(const TmDescription& d) {
    const qint64 dataStart = d.format12() ? 4360 : 4000;
    QByteArray b(dataStart, ' ');
    put(b, 0, d.magic.constData(), qMin<qint64>(4, d.magic.size()));
    putText(b, 16, d.startText, 14);
    putText(b, 42, d.intervalText, 5);
    b[48] = d.pairFlag;
    QByteArray list = d.channelList.value_or(QByteArray());
    if (!d.channelList)
        for (const TmChannel& c : d.channels)
            list += QByteArray::number(c.number).rightJustified(2, '0');
    putText(b, 58, list.leftJustified(60, ' '), 60);
    for (const TmChannel& c : d.channels) putChannel(b, c, d.format12());
    for (const auto& row : d.rows)
        for (qint16 v : row) putU16Le(b, b.size(), quint16(v));
    return b;
}

QByteArray buildMsg(const QVector<MsgRecord>& records, const QByteArray& magic) {
    QByteArray b = magic.left(4);
    for (const MsgRecord& r : records)
        b += r.stamp.leftJustified(12, ' ', true) + r.text.leftJustified(30, ' ', true) + "\r\n";
    return b;
}

} // namespace fixtures
