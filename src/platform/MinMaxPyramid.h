#pragma once

#include "platform/SeriesSource.h"

#include <vector>

// Minima and maxima of a long series in blocks: level 0 holds blocks of kBaseBlock points, each
// further level is kLevelFactor times coarser. Holes are left out of the values; a per-block flag
// keeps where they were, so that a line drawn from the blocks breaks at gaps. Built once over the
// series and rebuilt when the series is refilled.
class MinMaxPyramid {
public:
    static constexpr qsizetype kBaseBlock = 32;
    static constexpr qsizetype kLevelFactor = 16;
    static constexpr quint8 kHasValue = 1;
    static constexpr quint8 kHasHole = 2;

    struct Level {
        qsizetype blockSize = 0;
        std::vector<double> min; // +inf where a block holds holes only
        std::vector<double> max; // -inf likewise
        std::vector<quint8> flags;
        qsizetype blockCount() const { return qsizetype(flags.size()); }
    };

    // Min and max of a range, holes left out.
    struct Range {
        double min;
        double max;
        bool hasValue = false;
        bool hasHole = false;
        void add(double value);
        void merge(const Range& other);
        Range();
    };

    void build(const SeriesSource& source);
    void clear();
    bool isBuilt() const { return built_; }
    qsizetype count() const { return count_; }
    int levelCount() const { return int(levels_.size()); }
    const Level& level(int index) const { return levels_[size_t(index)]; }

    // The finest level whose blocks hold at most maxPoints points; -1 when even level 0 is
    // coarser.
    int levelForSpan(double maxPoints) const;

    // Min and max of points first .. first + n - 1: whole blocks from the levels, the ends read
    // from the source (the one the pyramid was built over).
    Range range(const SeriesSource& source, qsizetype first, qsizetype n) const;

private:
    void buildBase(const SeriesSource& source);
    void buildUpper();
    void addRaw(const SeriesSource& source, qsizetype first, qsizetype n, Range& range) const;

    std::vector<Level> levels_;
    qsizetype count_ = 0;
    bool built_ = false;
};
