#include "support/QdfWriter.h"

#include "support/FixtureBytes.h"

#include <bit>

namespace fixtures {

using namespace bytes;

int qdfChannelCount(const QdfDescription& d) {
    int n = 0;
    for (quint16 m : d.groupMask) n += std::popcount(unsigned(m & 0x0FFF));
    return n;
}

int qdfLevelWordCount(const QdfDescription& d) {
    int n = 0;
    for (quint16 m : d.groupMask) n += std::popcount(unsigned(m >> 12));
    return n;
}

QByteArray buildQdf(const QdfDescription& d) {
    QByteArray b(208, '\0');
    put(b, 0, d.magic.constData(), qMin<qint64>(4, d.magic.size()));
    const int payload = 2 * (qdfChannelCount(d) + qdfLevelWordCount(d)) + d.sparePayload;
    putU16Be(b, 30, quint16(payload));
    putU32Be(b, 32, d.intervalMs);
    for (int g = 0; g < 5; ++g) {
        putU16Be(b, 36 + 2 * g, d.groupMask[g]);
        for (int k = 0; k < 12; ++k) putU16Be(b, 48 + 32 * g + 2 * k, d.decimals[12 * g + k]);
    }
    for (int r = 0; r < d.values.size(); ++r) {
        QByteArray row(8 + payload, '\0');
        putU32Be(row, 4, d.startTime + quint32(r) * (d.intervalMs / 1000));
        qint64 at = 8;
        int value = 0, word = 0;
        for (quint16 mask : d.groupMask) {
            for (int k = 0; k < 12; ++k) {
                if (!(mask & (1 << k))) continue;
                putU16Be(row, at, quint16(d.values[r].value(value++)));
                at += 2;
            }
            for (int level = 0; level < 4; ++level) {
                if (!(mask & (0x1000 << level))) continue;
                putU16Be(row, at, d.alarmWords.value(r).value(word++));
                at += 2;
            }
        }
        b += row;
    }
    return b;
}

} // namespace fixtures
