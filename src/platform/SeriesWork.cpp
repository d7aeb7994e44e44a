#include "platform/SeriesWork.h"

#include "platform/ChartModel.h"

#include <atomic>
#include <exception>
#include <thread>

void forEachSeries(int first, int last, const std::function<void(int s)>& work,
                   const std::function<void(int done)>& onDone) {
    std::atomic<int> next{first};
    std::atomic<int> done{0};
    std::atomic<bool> failed{false};
    // Takes series one at a time until none is left or a work failed.
    const auto run = [&](bool reports) {
        for (int s = next++; s <= last && !failed; s = next++) {
            work(s);
            const int d = ++done;
            if (reports && onDone) onDone(d);
        }
    };
    std::exception_ptr workerError;
    std::thread worker;
    if (last > first && std::thread::hardware_concurrency() >= 2)
        worker = std::thread([&] {
            try {
                run(false);
            } catch (...) {
                workerError = std::current_exception();
                failed = true;
            }
        });
    try {
        run(true);
    } catch (...) {
        failed = true;
        if (worker.joinable()) worker.join();
        throw;
    }
    if (worker.joinable()) worker.join();
    if (workerError) std::rethrow_exception(workerError);
    if (onDone) onDone(done);
}

void buildPyramids(const ChartModel& chart, int first, int last,
                   const std::function<void(int done)>& onBuilt) {
    forEachSeries(
        first, last, [&chart](int s) { chart.series(s).pyramid(); }, onBuilt);
}
