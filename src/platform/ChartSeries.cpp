#include "platform/ChartSeries.h"

#include <algorithm>

qsizetype ChartSeries::count() const {
    return source_ ? source_->count() : qsizetype(y_.size());
}

void ChartSeries::values(qsizetype first, qsizetype n, double* out) const {
    if (!source_) {
        std::copy_n(y_.begin() + first, n, out);
        return;
    }
    source_->values(first, n, out);
    for (auto it = yOverrides_.lower_bound(first); it != yOverrides_.end() && it->first < first + n;
         ++it) {
        out[it->first - first] = it->second;
    }
}

void ChartSeries::setPointCount(qsizetype count) {
    if (source_) {
        source_.reset();
        yOverrides_.clear();
        xOverrides_.clear();
        y_.clear();
    }
    y_.resize(size_t(std::max<qsizetype>(count, 0)), Chart::kHoleValue);
    if (!x_.empty()) {
        const qsizetype old = qsizetype(x_.size());
        x_.resize(y_.size());
        for (qsizetype i = old; i < qsizetype(x_.size()); ++i) x_[size_t(i)] = double(i);
    }
    pointStyles_.erase(pointStyles_.lower_bound(count), pointStyles_.end());
    invalidate();
}

void ChartSeries::dropData() {
    source_.reset();
    yOverrides_.clear();
    xOverrides_.clear();
    x_.clear();
    y_.clear();
    invalidate();
}

void ChartSeries::setStoredValues(std::vector<double> y) {
    dropData();
    y_ = std::move(y);
}

void ChartSeries::setSource(std::unique_ptr<SeriesSource> source) {
    dropData();
    source_ = std::move(source);
}

double ChartSeries::y(qsizetype i) const {
    if (i < 0 || i >= count()) return Chart::kHoleValue;
    double value;
    values(i, 1, &value);
    return value;
}

void ChartSeries::setY(qsizetype i, double value) {
    if (i < 0 || i >= count()) return;
    if (source_)
        yOverrides_[i] = value;
    else
        y_[size_t(i)] = value;
    invalidate();
}

double ChartSeries::x(qsizetype i) const {
    if (!x_.empty()) return i >= 0 && i < qsizetype(x_.size()) ? x_[size_t(i)] : double(i);
    const auto it = xOverrides_.find(i);
    return it != xOverrides_.end() ? it->second : double(i);
}

void ChartSeries::setX(qsizetype i, double value) {
    if (i < 0 || i >= count()) return;
    if (source_) {
        xOverrides_[i] = value;
    } else {
        if (x_.empty()) {
            if (value == double(i)) return; // still the default
            x_.resize(y_.size());
            for (size_t k = 0; k < x_.size(); ++k) x_[k] = double(k);
        }
        x_[size_t(i)] = value;
    }
}

void ChartSeries::invalidate() {
    pyramid_.clear();
    statistics_.reset();
}

const MinMaxPyramid& ChartSeries::pyramid() const {
    if (!pyramid_.isBuilt()) pyramid_.build(*this);
    return pyramid_;
}

MinMaxPyramid::Range ChartSeries::yRange() const {
    return pyramid().range(*this, 0, count());
}

MinMaxPyramid::Range ChartSeries::xRange() const {
    MinMaxPyramid::Range range;
    const qsizetype n = count();
    if (n == 0) return range;
    if (!hasExplicitX()) {
        range.add(0);
        range.add(double(n - 1));
        return range;
    }
    for (qsizetype i = 0; i < n; ++i) {
        if (y(i) != Chart::kHoleValue) range.add(x(i));
    }
    return range;
}

const SeriesStatistics& ChartSeries::statistics() const {
    if (!statistics_) statistics_ = SeriesStatistics::of(*this, 0, count());
    return *statistics_;
}

SeriesStatistics ChartSeries::statistics(qsizetype first, qsizetype n) const {
    return SeriesStatistics::of(*this, first, n);
}
