#include "support/NpWriter.h"

#include "support/FixtureBytes.h"

namespace fixtures {

using namespace bytes;

namespace {

void putTable(QByteArray& b, const NpDescription& d) {
    const qint64 stride = d.gsStride ? 80 : d.version < 3 ? 52 : d.stride;
    for (int i = 0; i < d.channels.size(); ++i) {
        const NpChannel& c = d.channels[i];
        const qint64 entry = d.tableOffset + stride * i;
        putU16Be(b, entry + 18, c.number);
        putText(b, entry + 20, c.tag, 12);
        putText(b, entry + 32, c.unit, 12);
        putU16Be(b, entry + 66, c.color);
    }
    if (d.version >= 3) putU16Be(b, d.tableOffset + 14, d.stride);
}

} // namespace

QByteArray buildNp(const NpDescription& d) {
    QByteArray b(2240, '\0');
    const bool floats = d.dataKind == 2;
    const int columns = d.rows.isEmpty() ? 0 : int(d.rows[0].size());
    put(b, 0, d.magic.constData(), qMin<qint64>(4, d.magic.size()));
    putU32Be(b, 4, d.tableOffset);
    putU32Be(b, 8, d.channelCount.value_or(quint32(d.channels.size())));
    putU32Be(b, 12, d.dataKind);
    putU32Be(b, 16, quint32(columns * (floats ? 6 : 4)));
    putU32Be(b, 20, d.rowCount.value_or(quint32(d.rows.size())));
    putU32Be(b, 37, d.startMsecField);
    putU32Be(b, 40, d.intervalTenths);
    putU32Be(b, 2220, d.dataOffsetAlt);
    putU16Be(b, 2226, d.version);
    putU16Be(b, 2236, d.dataOffsetRel);
    putTable(b, d);
    if (b.size() < d.dataStart()) b.resize(d.dataStart(), '\0');
    b.truncate(d.dataStart());
    for (int r = 0; r < d.rows.size(); ++r) {
        putU32Le(b, b.size(), d.startUnix + quint32(r) * (d.intervalTenths / 10));
        for (const NpSample& s : d.rows[r]) {
            if (floats)
                putF32Le(b, b.size(), s.f);
            else
                putU16Le(b, b.size(), quint16(s.value));
            const uchar alarm[2] = {0, s.alarm};
            put(b, b.size(), alarm, 2);
        }
    }
    return b;
}

} // namespace fixtures
