#pragma once

#include <functional>

class ChartModel;

// Builds the min/max pyramids of series first..last that are not built yet, on two threads when
// the machine has them: each series is built by one thread, and the sources must allow reads of
// different series at once. onBuilt(done) reports progress on the calling thread only. An
// exception of a build (memory) is thrown here once both threads have stopped.
void buildPyramids(const ChartModel& chart, int first, int last,
                   const std::function<void(int done)>& onBuilt);
