#pragma once

#include <functional>

class ChartModel;

// Runs work(s) for the series first..last on two threads when the machine has them: each series
// is handled by one thread only, so work may fill the caches of its own series (pyramid,
// statistics) as long as the sources allow reads of different series at once. onDone(done)
// reports progress on the calling thread only. An exception of any work (memory) is thrown here
// once both threads have stopped; the series left then are not worked.
void forEachSeries(int first, int last, const std::function<void(int s)>& work,
                   const std::function<void(int done)>& onDone = {});

// The min/max pyramids of series first..last built that way.
void buildPyramids(const ChartModel& chart, int first, int last,
                   const std::function<void(int done)>& onBuilt);
