#include "platform/AxisScale.h"

#include "base/NumberText.h"
#include "platform/ChartAxis.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace AxisScale {

namespace {
constexpr int kMaxTicks = 2000; // more would only paint the axis black

double roundDown(double value, double step) {
    return std::floor(value / step + 1e-9) * step;
}
double roundUp(double value, double step) {
    return std::ceil(value / step - 1e-9) * step;
}

Scale logarithmicScale(double lo, double hi) {
    if (!(lo > 0) || !(hi > 0)) return {1, 10, 1};
    Scale s{std::pow(10.0, std::floor(std::log10(lo) + 1e-9)),
            std::pow(10.0, std::ceil(std::log10(hi) - 1e-9)), 1};
    if (s.max <= s.min) s.max = s.min * 10;
    return s;
}

} // namespace

double niceStep(double span, int intervals) {
    span = std::fabs(span);
    if (!(span > 0) || !std::isfinite(span)) return 1;
    const double raw = span / std::max(intervals, 1);
    const double magnitude = std::pow(10.0, std::floor(std::log10(raw)));
    const double norm = raw / magnitude;
    const double nice = norm <= 1 + 1e-9 ? 1 : norm <= 2 + 1e-9 ? 2 : norm <= 5 + 1e-9 ? 5 : 10;
    return nice * magnitude;
}

Scale automatic(double dataMin, double dataMax, bool hasData, bool logarithmic, bool integerSteps) {
    if (logarithmic) return hasData ? logarithmicScale(dataMin, dataMax) : Scale{1, 10, 1};
    if (!hasData) return {0, 1, integerSteps ? 1 : 0.1};
    if (integerSteps) {
        // A point index axis shows exactly the points there are.
        const double hi = std::max(dataMax, dataMin + 1);
        return {dataMin, hi, std::max(1.0, std::round(niceStep(hi - dataMin)))};
    }
    double lo = dataMin, hi = dataMax;
    if (hi <= lo) {
        const double room = lo == 0 ? 1 : std::fabs(lo) * 0.1;
        lo -= room;
        hi += room;
    }
    const double step = niceStep(hi - lo);
    // The extremes of the data never stand on the frame, where a flat line would vanish: a
    // bound that falls on a data extreme moves out by one step.
    Scale s{roundDown(lo, step), roundUp(hi, step), step};
    if (s.min >= dataMin - step * 1e-9) s.min -= step;
    if (s.max <= dataMax + step * 1e-9) s.max += step;
    // The wider range may hold more labels than wanted: coarser labels, the same bounds.
    s.step = std::max(step, niceStep(s.max - s.min));
    return s;
}

Scale forRange(double min, double max, bool logarithmic, bool integerSteps) {
    if (logarithmic) return {min, max, 1};
    double step = niceStep(max - min);
    if (integerSteps) step = std::max(1.0, std::round(step));
    return {min, max, step};
}

int decimalsForStep(double step) {
    step = std::fabs(step);
    if (!(step > 0) || !std::isfinite(step)) return 0;
    for (int decimals = 0; decimals < 10; ++decimals) {
        const double scaled = step * std::pow(10.0, decimals);
        if (std::fabs(scaled - std::round(scaled)) < 1e-6 * scaled) return decimals;
    }
    return 10;
}

QString valueText(double value, int decimals) {
    if (std::fabs(value) >= 1e15) return NumberText::doubleText(value);
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = locale.toString(value, 'f', decimals);
    // No "-0" or "-0.00" for a value that rounds to zero.
    if (text.startsWith(locale.negativeSign()) &&
        std::round(std::fabs(value) * std::pow(10.0, decimals)) == 0) {
        text.remove(0, locale.negativeSign().size());
    }
    return text;
}

namespace {

void appendSteps(std::vector<Tick>& out, double lo, double hi, double step, int decimals,
                 bool major) {
    if (!(step > 0) || (hi - lo) / step > kMaxTicks) return;
    const double first = roundUp(lo, step);
    for (int i = 0;; ++i) {
        double v = first + i * step;
        if (v > hi + step * 1e-9) break;
        if (std::fabs(v) < step * 1e-9) v = 0;
        out.push_back({v, major ? valueText(v, decimals) : QString(), major, QColor()});
    }
}

void appendDecades(std::vector<Tick>& out, double lo, double hi, bool subGrid) {
    if (!(lo > 0) || !(hi > 0)) return;
    const int first = int(std::floor(std::log10(lo) + 1e-9));
    const int last = int(std::ceil(std::log10(hi) - 1e-9));
    for (int e = first; e <= last && e - first < kMaxTicks; ++e) {
        const double decade = std::pow(10.0, e);
        if (decade >= lo * (1 - 1e-9) && decade <= hi * (1 + 1e-9))
            out.push_back({decade, NumberText::doubleText(decade), true, QColor()});
        for (int k = 2; subGrid && k <= 9; ++k) {
            const double v = decade * k;
            if (v >= lo && v <= hi) out.push_back({v, QString(), false, QColor()});
        }
    }
}

} // namespace

std::vector<Tick> ticks(const ChartAxis& axis, double min, double max, double step) {
    const double lo = std::min(min, max), hi = std::max(min, max);
    std::vector<Tick> out;
    if (axis.labelMethod() == Chart::LabelMethod::ValueLabels) {
        for (const ValueLabel& label : axis.valueLabels().items()) {
            if (label.value >= lo && label.value <= hi)
                out.push_back({label.value, label.text, true, label.color});
        }
        return out;
    }
    if (axis.isLogarithmic()) {
        appendDecades(out, lo, hi, axis.subGridInterval() > 0);
        return out;
    }
    appendSteps(out, lo, hi, axis.subGridInterval(), 0, false);
    const int decimals = axis.precision() >= 0 ? axis.precision() : decimalsForStep(step);
    appendSteps(out, lo, hi, step, decimals, true);
    return out;
}

} // namespace AxisScale
