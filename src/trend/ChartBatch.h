#pragma once

#include "platform/ChartModel.h"

// Suspends the chart's redraw for a scope, unless a caller already did: the batch that is open
// when the scope starts is left for its owner to close.
class ChartBatch {
public:
    explicit ChartBatch(ChartModel& chart) : chart_(chart), mine_(!chart.IsBatched()) {
        if (mine_) chart_.setIsBatched(true);
    }
    ~ChartBatch() {
        if (mine_) chart_.setIsBatched(false);
    }
    ChartBatch(const ChartBatch&) = delete;
    ChartBatch& operator=(const ChartBatch&) = delete;

private:
    ChartModel& chart_;
    bool mine_;
};
