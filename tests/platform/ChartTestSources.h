#pragma once

#include "platform/ChartTypes.h"
#include "platform/SeriesSource.h"

#include <QtGlobal>

#include <algorithm>
#include <vector>

// The hole: a point without a value.
constexpr double H = Chart::kHoleValue;

// A channel as the trend logic keeps it: 16-bit raw values, raw 0 is a hole.
class LookupSource : public SeriesSource {
public:
    explicit LookupSource(std::vector<quint16> raw, double scale = 1.0)
        : raw_(std::move(raw)), scale_(scale) {}
    qsizetype count() const override { return qsizetype(raw_.size()); }
    void values(qsizetype first, qsizetype n, double* out) const override {
        for (qsizetype i = 0; i < n; ++i) {
            const quint16 raw = raw_[size_t(first + i)];
            out[i] = raw ? raw * scale_ : Chart::kHoleValue;
        }
    }
    std::vector<quint16>& raw() { return raw_; }

private:
    std::vector<quint16> raw_;
    double scale_;
};

// Values kept as doubles, for comparing against brute force.
class VectorSource : public SeriesSource {
public:
    explicit VectorSource(std::vector<double> v) : v_(std::move(v)) {}
    qsizetype count() const override { return qsizetype(v_.size()); }
    void values(qsizetype first, qsizetype n, double* out) const override {
        std::copy_n(v_.begin() + first, n, out);
    }
    const std::vector<double>& data() const { return v_; }

private:
    std::vector<double> v_;
};
