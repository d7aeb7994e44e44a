#include "recording/RowPlacement.h"

#include "base/TimeBase.h"

namespace RowPlacement {

qint64 offsetByTime(qint64 viewStart, qint64 fileStart, qint32 intervalMs) {
    if (intervalMs <= 0) return 0;
    using TimeBase::Unit;
    Unit unit = Unit::Day;
    qint64 unitMs = 86400000;
    if (intervalMs < 60000)
        unit = Unit::Second, unitMs = 1000;
    else if (intervalMs < 3600000)
        unit = Unit::Minute, unitMs = 60000;
    else if (intervalMs < 86400000)
        unit = Unit::Hour, unitMs = 3600000;
    const qint64 units = TimeBase::boundariesBetween(unit, viewStart, fileStart);
    return units * unitMs / intervalMs; // C++ division truncates toward zero
}

qint64 tmTolerance(qint64 a, qint64 b, qint32 intervalMs) {
    const qint64 d = a - b;
    if (d >= 1 && d * intervalMs < 2001) return b;
    if (d < 0 && -d < 6) return b;
    return a;
}

int channelBase(const QVector<QString>& batchTexts, const QVector<int>& fileChannels, int k) {
    int match = k;
    for (int j = 0; j <= k && j < batchTexts.size(); ++j) {
        if (batchTexts[j] == batchTexts[k]) {
            match = j;
            break;
        }
    }
    int base = 0;
    for (int j = 0; j < match && j < fileChannels.size(); ++j) base += fileChannels[j];
    return base;
}

} // namespace RowPlacement
