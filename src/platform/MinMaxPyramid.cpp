#include "platform/MinMaxPyramid.h"

#include "platform/ChartTypes.h"

#include <algorithm>
#include <limits>

namespace {
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr qsizetype kChunk = MinMaxPyramid::kBaseBlock * 2048;
} // namespace

MinMaxPyramid::Range::Range() : min(kInf), max(-kInf) {}

void MinMaxPyramid::Range::add(double value) {
    if (value == Chart::kHoleValue) {
        hasHole = true;
        return;
    }
    hasValue = true;
    min = std::min(min, value);
    max = std::max(max, value);
}

void MinMaxPyramid::Range::merge(const Range& other) {
    min = std::min(min, other.min);
    max = std::max(max, other.max);
    hasValue = hasValue || other.hasValue;
    hasHole = hasHole || other.hasHole;
}

void MinMaxPyramid::clear() {
    levels_.clear();
    count_ = 0;
    built_ = false;
}

void MinMaxPyramid::build(const SeriesSource& source) {
    clear();
    count_ = source.count();
    buildBase(source);
    buildUpper();
    built_ = true;
}

void MinMaxPyramid::buildBase(const SeriesSource& source) {
    Level base;
    base.blockSize = kBaseBlock;
    const qsizetype blocks = (count_ + kBaseBlock - 1) / kBaseBlock;
    base.min.resize(size_t(blocks));
    base.max.resize(size_t(blocks));
    base.flags.resize(size_t(blocks));
    std::vector<double> buffer(size_t(std::min(kChunk, std::max<qsizetype>(count_, 1))));
    for (qsizetype first = 0; first < count_; first += kChunk) {
        const qsizetype n = std::min(kChunk, count_ - first);
        source.values(first, n, buffer.data());
        for (qsizetype b = 0; b * kBaseBlock < n; ++b) {
            const double* v = buffer.data() + b * kBaseBlock;
            const qsizetype m = std::min(kBaseBlock, n - b * kBaseBlock);
            double lo = kInf, hi = -kInf;
            bool hole = false;
            for (qsizetype i = 0; i < m; ++i) {
                if (v[i] == Chart::kHoleValue) {
                    hole = true;
                    continue;
                }
                lo = v[i] < lo ? v[i] : lo;
                hi = v[i] > hi ? v[i] : hi;
            }
            const size_t index = size_t(first / kBaseBlock + b);
            base.min[index] = lo;
            base.max[index] = hi;
            base.flags[index] = quint8((lo <= hi ? kHasValue : 0) | (hole ? kHasHole : 0));
        }
    }
    levels_.push_back(std::move(base));
}

void MinMaxPyramid::buildUpper() {
    while (levels_.back().blockCount() > 1) {
        const Level& below = levels_.back();
        Level up;
        up.blockSize = below.blockSize * kLevelFactor;
        const qsizetype blocks = (below.blockCount() + kLevelFactor - 1) / kLevelFactor;
        up.min.assign(size_t(blocks), kInf);
        up.max.assign(size_t(blocks), -kInf);
        up.flags.assign(size_t(blocks), 0);
        for (qsizetype i = 0; i < below.blockCount(); ++i) {
            const size_t u = size_t(i / kLevelFactor);
            up.min[u] = std::min(up.min[u], below.min[size_t(i)]);
            up.max[u] = std::max(up.max[u], below.max[size_t(i)]);
            up.flags[u] |= below.flags[size_t(i)];
        }
        levels_.push_back(std::move(up));
    }
}

int MinMaxPyramid::levelForSpan(double maxPoints) const {
    int found = -1;
    for (int i = 0; i < levelCount(); ++i) {
        if (double(levels_[size_t(i)].blockSize) <= maxPoints) found = i;
    }
    return found;
}

void MinMaxPyramid::addRaw(const SeriesSource& source, qsizetype first, qsizetype n,
                           Range& range) const {
    double buffer[kBaseBlock];
    while (n > 0) {
        const qsizetype m = std::min(n, kBaseBlock);
        source.values(first, m, buffer);
        for (qsizetype i = 0; i < m; ++i) range.add(buffer[i]);
        first += m;
        n -= m;
    }
}

MinMaxPyramid::Range MinMaxPyramid::range(const SeriesSource& source, qsizetype first,
                                          qsizetype n) const {
    Range result;
    first = std::max<qsizetype>(first, 0);
    const qsizetype end = std::min(first + std::max<qsizetype>(n, 0), count_);
    qsizetype pos = first;
    while (pos < end) {
        int level = -1;
        for (int i = 0; i < levelCount(); ++i) {
            const qsizetype size = levels_[size_t(i)].blockSize;
            if (pos % size != 0 || pos + size > end) break;
            level = i;
        }
        if (level < 0) {
            // Raw points up to the next block boundary or the end.
            const qsizetype stop = std::min(end, (pos / kBaseBlock + 1) * kBaseBlock);
            addRaw(source, pos, stop - pos, result);
            pos = stop;
            continue;
        }
        const Level& l = levels_[size_t(level)];
        const size_t b = size_t(pos / l.blockSize);
        Range block;
        block.min = l.min[b];
        block.max = l.max[b];
        block.hasValue = (l.flags[b] & kHasValue) != 0;
        block.hasHole = (l.flags[b] & kHasHole) != 0;
        result.merge(block);
        pos += l.blockSize;
    }
    return result;
}
