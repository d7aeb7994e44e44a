#include "trend/LineSeriesSource.h"

#include "platform/ChartTypes.h"
#include "trend/PlotValue.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kHole = Chart::kHoleValue;
}

LineSeriesSource::LineSeriesSource(const clsStorage& storage, const TrendLine& line, qint32 points,
                                   bool percentMode)
    : points_(std::max(points, 0)), percent_(percentMode), add_(line.addFlag) {
    if (line.sourceColumn == 0 || line.enabled == 0) return;
    low_ = TrendValues::scaleNumber(line.scaleLow);
    high_ = TrendValues::scaleNumber(line.scaleHigh);
    if (line.secondColumn != 0)
        second_.emplace(storage, 2 * line.secondColumn);
    else
        hasConstant_ = TrendValues::parseNumber(line.constant, constant_);
    StoreColumnReader::Transform percent;
    if (percent_ && !second_ && !hasConstant_) {
        // A plain channel: the percent of every raw value is kept in the reader's tables.
        const double low = low_, high = high_;
        percent = [low, high](double v) { return TrendValues::percentValue(v, low, high); };
    }
    first_.emplace(storage, 2 * line.sourceColumn, std::move(percent));
}

void LineSeriesSource::values(qsizetype first, qsizetype n, double* out) const {
    if (!first_) {
        std::fill_n(out, n, kHole);
        return;
    }
    first_->read(qint32(first + 1), n, out);
    if (second_ || hasConstant_) combine(first, n, out);
}

void LineSeriesSource::combine(qsizetype first, qsizetype n, double* out) const {
    if (second_) {
        buffer_.resize(size_t(n));
        second_->read(qint32(first + 1), n, buffer_.data());
    }
    for (qsizetype i = 0; i < n; ++i) {
        const double a = out[i];
        const double b = second_ ? buffer_[size_t(i)] : constant_;
        if (a == kHole || b == kHole) {
            out[i] = kHole;
            continue;
        }
        double y = add_ ? a + b : a - b;
        if (!std::isfinite(y)) y = kHole;
        out[i] = percent_ ? TrendValues::percentValue(y, low_, high_) : y;
    }
}
