#pragma once

#include "platform/SeriesSource.h"
#include "trend/StoreColumnReader.h"
#include "trend/TrendViewState.h"

#include <optional>
#include <vector>

class clsStorage;

// The plotted points of one line as a fill of the chart wrote them: PlotValue of every store
// row, then, in percent mode, ScalePercent of the line's scale. The line is copied at the fill,
// so later edits of the line table show only after the next fill.
class LineSeriesSource final : public SeriesSource {
public:
    LineSeriesSource(const clsStorage& storage, const TrendLine& line, qint32 points,
                     bool percentMode);

    qsizetype count() const override { return points_; }
    void values(qsizetype first, qsizetype n, double* out) const override;

private:
    void combine(qsizetype first, qsizetype n, double* out) const;

    qint32 points_ = 0;
    bool percent_ = false;
    double low_ = 0;
    double high_ = 0;
    bool add_ = true;
    bool hasConstant_ = false;
    double constant_ = 0;
    std::optional<StoreColumnReader> first_;
    std::optional<StoreColumnReader> second_;
    mutable std::vector<double> buffer_;
};
