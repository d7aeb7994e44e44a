#include "support/VxfWriter.h"

#include <QFile>

#include <cstring>

namespace fixtures {

namespace {

constexpr int kDataOffset = 2640; // behind the wide layout's batch head (2576 + 28)

void put(QByteArray& b, qint64 at, const void* data, qint64 n) {
    if (b.size() < at + n) b.resize(at + n, '\0');
    std::memcpy(b.data() + at, data, size_t(n));
}
void putU32(QByteArray& b, qint64 at, quint32 v) {
    const uchar le[4] = {uchar(v), uchar(v >> 8), uchar(v >> 16), uchar(v >> 24)};
    put(b, at, le, 4);
}
void putU16(QByteArray& b, qint64 at, quint16 v) {
    const uchar le[2] = {uchar(v), uchar(v >> 8)};
    put(b, at, le, 2);
}
void putText(QByteArray& b, qint64 at, const QByteArray& text, int width) {
    put(b, at, text.left(width).constData(), qMin<qint64>(text.size(), width));
}

void putHeadTables(QByteArray& b, const VxfDescription& d) {
    const bool wide = d.wide();
    const int slots = wide ? 56 : 44;
    const int tags = wide ? 100 : 88, units = wide ? 996 : 792, block = wide ? 1500 : 1188;
    const int decimals = wide ? 2396 : 1892, batch = wide ? 2508 : 1980;
    for (int i = 0; i < d.channels.size(); ++i) {
        const VxfChannel& c = d.channels[i];
        if (i < slots) b[44 + i] = char(c.number >= 0 ? c.number : i);
        putText(b, tags + 16 * i, c.tag, 16);
        putText(b, units + 9 * i, c.unit, 9);
        b[block + 16 * i] = char(c.expFormat ? 1 : 0);
        b[block + 16 * i + 13] = char(c.colorCode);
        b[decimals + 2 * i] = char(c.decimals);
    }
    putText(b, batch, d.batchText, 16);
    putText(b, 2550, d.modelText, 17);
    putText(b, 2567, d.versionText, 9);
    put(b, wide ? 2576 : 2048, d.batchHead.constData(), d.batchHead.size());
}

} // namespace

QByteArray buildVxf(const VxfDescription& d) {
    QByteArray b(kDataOffset, '\0');
    const bool pair = d.dataMode == 4;
    const quint32 n = d.channelCount.value_or(quint32(d.channels.size()));
    const quint32 rowSize = quint32(d.channels.size()) * (pair ? 6 : 4) + d.rowPadding;
    put(b, 0, d.magic.constData(), qMin<qint64>(4, d.magic.size()));
    putU32(b, 4, kDataOffset);
    putU32(b, 8, n);
    putU32(b, 12, d.dataMode);
    putU32(b, 16, rowSize);
    putU32(b, 20, d.rowCount.value_or(quint32(d.rows.size())));
    putU32(b, 24, d.messageSize);
    putU32(b, 28, d.messageCount.value_or(quint32(d.messages.size())));
    putU32(b, 32, d.startTime);
    b[36] = char(d.startTenths);
    putU32(b, 40, d.intervalTenths);
    putHeadTables(b, d);
    const qint64 counters = d.magic.startsWith("W2N") ? 2000 : 2528;
    putU16(b, counters, d.alarmSize);
    putU16(b, counters + 2, d.alarmCount.value_or(quint16(d.alarms.size())));

    qint64 at = kDataOffset;
    for (const auto& row : d.rows) {
        for (const VxfSample& s : row) {
            putU16(b, at, quint16(s.value));
            if (pair) putU16(b, at + 2, quint16(s.max)), at += 2;
            const uchar alarms[2] = {s.alarm1, s.alarm2};
            put(b, at + 2, alarms, 2);
            at += 4;
        }
        at += d.rowPadding;
        if (b.size() < at) b.resize(at, '\0');
    }
    for (const VxfMessage& m : d.messages) {
        QByteArray record(d.messageSize, '\0');
        putU32(record, 0, m.time);
        putU32(record, 4, m.tenths);
        putText(record, 8, m.text, int(d.messageSize) - 12);
        putU32(record, d.messageSize - 4, m.type);
        b += record;
    }
    for (const VxfAlarmRecord& a : d.alarms) {
        QByteArray record(14, '\0');
        putU32(record, 0, a.word0);
        putU32(record, 4, a.word1);
        putU16(record, 8, a.channel);
        record[10] = char(a.state);
        record[11] = char(a.mask);
        putU16(record, 12, a.value);
        b += record;
    }
    b += d.batchBlock;
    return b;
}

QByteArray batchHead(const QByteArray& name, const QByteArray& lot, int count) {
    QByteArray head(28, '\0');
    putText(head, 0, name, 16);
    putText(head, 16, lot, 9);
    head[25] = char(0x5A); // the flag bytes are kept, whatever they hold
    head[26] = char(0xA5);
    head[27] = char(count);
    return head;
}

QByteArray batchTexts(const QList<QByteArray>& titles, const QList<QByteArray>& contexts) {
    QByteArray texts;
    for (const QList<QByteArray>* list : {&titles, &contexts})
        for (const QByteArray& t : *list) texts += t.left(16).leftJustified(16, '\0');
    return texts;
}

bool writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

VxfDescription simpleVxf(int channels, int rows, quint32 startTime, quint32 intervalTenths,
                         qint16 (*value)(int row, int channel)) {
    VxfDescription d;
    d.startTime = startTime;
    d.intervalTenths = intervalTenths;
    for (int c = 1; c <= channels; ++c)
        d.channels.append(
            {QByteArray("T") + QByteArray::number(c), "degC", (c - 1) % 48, false, 1, -1});
    d.rows.resize(rows);
    for (int r = 1; r <= rows; ++r)
        for (int c = 1; c <= channels; ++c) d.rows[r - 1].append({value(r, c), 0, 0, 0});
    return d;
}

} // namespace fixtures
