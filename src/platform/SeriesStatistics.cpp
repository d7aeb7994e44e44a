#include "platform/SeriesStatistics.h"

#include "platform/ChartTypes.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Statistics of values that hold no holes; the vector is reordered for the median.
SeriesStatistics fromValues(std::vector<double>& v) {
    SeriesStatistics s;
    const qsizetype n = qsizetype(v.size());
    s.valueCount = n;
    if (n == 0) return s;
    // Two passes: the mean first, then the squared deviations from it.
    double sum = 0;
    double lo = v[0], hi = v[0];
    for (double x : v) {
        sum += x;
        lo = std::min(lo, x);
        hi = std::max(hi, x);
    }
    const double mean = sum / double(n);
    double squares = 0, deviations = 0;
    for (double x : v) {
        squares += (x - mean) * (x - mean);
        deviations += x - mean;
    }
    // The second sum corrects the rounding of the mean (corrected two-pass algorithm).
    const double variance = (squares - deviations * deviations / double(n)) / double(n);
    s.Maximum = hi;
    s.Minimum = lo;
    s.Mean = mean;
    s.StdDev = std::sqrt(std::max(variance, 0.0));
    const auto middle = v.begin() + n / 2;
    std::nth_element(v.begin(), middle, v.end());
    s.Stat5 = *middle;
    if (n % 2 == 0) s.Stat5 = (*std::max_element(v.begin(), middle) + *middle) / 2;
    return s;
}

void appendValues(std::vector<double>& out, const double* values, qsizetype count) {
    for (qsizetype i = 0; i < count; ++i) {
        if (values[i] != Chart::kHoleValue) out.push_back(values[i]);
    }
}

} // namespace

SeriesStatistics::SeriesStatistics()
    : Maximum(Chart::kHoleValue), Minimum(Chart::kHoleValue), Mean(Chart::kHoleValue),
      StdDev(Chart::kHoleValue), Stat5(Chart::kHoleValue) {}

SeriesStatistics SeriesStatistics::of(const double* values, qsizetype count) {
    std::vector<double> v;
    v.reserve(size_t(std::max<qsizetype>(count, 0)));
    appendValues(v, values, count);
    return fromValues(v);
}

SeriesStatistics SeriesStatistics::of(const SeriesSource& source, qsizetype first, qsizetype n) {
    first = std::max<qsizetype>(first, 0);
    n = std::min(n, source.count() - first);
    std::vector<double> v;
    v.reserve(size_t(std::max<qsizetype>(n, 0)));
    constexpr qsizetype kChunk = 65536;
    std::vector<double> buffer(size_t(std::min(kChunk, std::max<qsizetype>(n, 1))));
    for (qsizetype done = 0; done < n; done += kChunk) {
        const qsizetype m = std::min(kChunk, n - done);
        source.values(first + done, m, buffer.data());
        appendValues(v, buffer.data(), m);
    }
    return fromValues(v);
}
