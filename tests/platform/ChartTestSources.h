#pragma once

#include "platform/ChartTypes.h"
#include "platform/SeriesSource.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <vector>

// A channel as the trend logic keeps it: 16-bit raw values read through a lookup; raw 0 is a
// hole.
class LookupSource : public SeriesSource {
public:
    explicit LookupSource(std::vector<quint16> raw, double scale = 1.0) : raw_(std::move(raw)) {
        table_[0] = Chart::kHoleValue;
        for (size_t i = 1; i < table_.size(); ++i) table_[i] = double(i) * scale;
    }
    qsizetype count() const override { return qsizetype(raw_.size()); }
    void values(qsizetype first, qsizetype n, double* out) const override {
        const quint16* raw = raw_.data() + first;
        for (qsizetype i = 0; i < n; ++i) out[i] = table_[raw[i]];
    }
    std::vector<quint16>& raw() { return raw_; }

private:
    std::vector<quint16> raw_;
    std::array<double, 65536> table_;
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
