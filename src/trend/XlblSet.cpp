#include "trend/XlblSet.h"

#include "base/VbFormat.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <limits>

namespace XlblSet {

qint32 points(const QString& text, Unit unit, qint32 intervalMs, bool circular) {
    bool numeric = false;
    const double value = text.trimmed().toDouble(&numeric);
    if (!numeric || value <= 0) return 0;
    if (circular) return qint32(std::clamp<qint64>(VbFormat::roundHalfEven(value), 1, 360));
    if (intervalMs <= 0) return 0;
    const double unitMs = unit == Unit::Hours ? 3600000.0 : 86400000.0;
    return qint32(std::clamp<qint64>(VbFormat::roundHalfEven(value * unitMs / intervalMs), 0,
                                     std::numeric_limits<qint32>::max()));
}

void apply(TrendView& view, const QString& labelText, const QString& subGridText, Unit unit) {
    const qint32 interval = view.tables().SampleInterval;
    const bool circular = view.chart().chartType() == Chart::kTypePolar;
    TrendViewState& st = view.state();
    st.TimeLabelInterval = {points(labelText, unit, interval, circular),
                            points(subGridText, unit, interval, circular)};
    st.AxisLabelsOn = 1;
    if (st.TimeLabelInterval[0] == 0) view.chart().axisX().setLabelIntervalAuto(true);
    view.time().X_AxisSet(true);
}

} // namespace XlblSet
