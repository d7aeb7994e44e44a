#include "support/JlmWriter.h"

#include "base/TimeBase.h"
#include "support/FixtureBytes.h"

namespace fixtures {

using namespace bytes;

QByteArray buildJlm(const JlmDescription& d) {
    const int n = int(d.channels.size());
    const qint64 rowBytes = 4 * qint64(n) + 8;
    QByteArray b(rowBytes * (8 + d.rows.size()), '\0');
    const auto cell = [&](qint64 k, int i) { return 6 + k * rowBytes + 4 * qint64(i - 1); };
    for (int i = 1; i <= n; ++i) {
        const JlmChannel& c = d.channels[i - 1];
        putText(b, cell(0, i), c.tag.left(4), 4);
        putText(b, cell(1, i), c.tag.mid(4, 4), 4);
        putText(b, cell(2, i), c.unit.left(4), 4);
        putText(b, cell(3, i), c.unit.mid(4, 2), 2);
        putF32Le(b, cell(7, i), c.decimals);
    }
    for (int r = 0; r < d.rows.size(); ++r) {
        const JlmKey k = d.keys.value(r);
        const uchar key[6] = {k.year, k.day, k.month, k.hour, k.minute, k.second};
        put(b, (8 + r) * rowBytes, key, 6);
        for (int i = 1; i <= n; ++i) putF32Le(b, cell(8 + r, i), d.rows[r].value(i - 1));
    }
    // The channel count stands where the key of header row 0 would be.
    putF32Le(b, 0, d.channelCount.value_or(float(n)));
    return b;
}

QVector<JlmKey> jlmKeys(int year, int month, int day, int hour, int minute, int second, int rows,
                        int stepSeconds) {
    QVector<JlmKey> keys;
    const qint64 start = TimeBase::toSeconds({year, month, day, hour, minute, second});
    for (int r = 0; r < rows; ++r) {
        const TimeBase::CalendarTime t = TimeBase::fromSeconds(start + qint64(r) * stepSeconds);
        keys.append({quint8(t.year - 2000), quint8(t.day), quint8(t.month), quint8(t.hour),
                     quint8(t.minute), quint8(t.second)});
    }
    return keys;
}

} // namespace fixtures
