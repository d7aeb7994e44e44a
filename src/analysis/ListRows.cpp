#include "analysis/ListRows.h"

#include "platform/ChartModel.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <cmath>

ListRows::ListRows(const TrendView& view)
    : chart_(view.chart()), circular_(view.chart().chartType() == Chart::kTypePolar),
      circle_(std::max<qint32>(1, view.state().CurrentCircle)),
      samples_(std::max<qint32>(0, view.tables().PointCount)) {}

qint32 ListRows::rowCount() const {
    if (!circular_) return samples_;
    const qint64 before = qint64(circle_ - 1) * kCirclePoints;
    if (before + kCirclePoints <= samples_) return kCirclePoints;
    return qint32(std::max<qint64>(0, samples_ - before));
}

qint32 ListRows::firstOffset() const {
    return circular_ ? qint32(std::min<qint64>(qint64(circle_ - 1) * kCirclePoints, samples_)) : 0;
}

qsizetype ListRows::pointOf(qint64 g) const {
    qint64 p = g;
    if (circular_ && g > kCirclePoints) p = g - qint64(circle_ - 1) * kCirclePoints;
    return p >= 1 && p <= chart_.pointCount(1) ? qsizetype(p) : 0;
}

qint64 ListRows::rowIndexOf(qsizetype p) const {
    if (p < 1 || p > chart_.pointCount(1)) return -1;
    const double x = chart_.X(1, p);
    if (!std::isfinite(x) || std::fabs(x) > 1e15) return -1;
    qint64 index = qint64(std::nearbyint(x)); // halves to even
    if (circular_) {
        if (index == kCirclePoints) index = 0;
        index += qint64(circle_ - 1) * kCirclePoints;
    }
    return index;
}
