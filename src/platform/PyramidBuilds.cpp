#include "platform/PyramidBuilds.h"

#include "platform/ChartModel.h"

#include <atomic>
#include <exception>
#include <thread>

void buildPyramids(const ChartModel& chart, int first, int last,
                   const std::function<void(int done)>& onBuilt) {
    std::atomic<int> next{first};
    std::atomic<int> done{0};
    std::atomic<bool> failed{false};
    // Takes series one at a time until none is left or a build failed.
    const auto work = [&](bool reports) {
        for (int s = next++; s <= last && !failed; s = next++) {
            chart.series(s).pyramid();
            const int d = ++done;
            if (reports) onBuilt(d);
        }
    };
    std::exception_ptr workerError;
    std::thread worker;
    if (last > first && std::thread::hardware_concurrency() >= 2)
        worker = std::thread([&] {
            try {
                work(false);
            } catch (...) {
                workerError = std::current_exception();
                failed = true;
            }
        });
    try {
        work(true);
    } catch (...) {
        failed = true;
        if (worker.joinable()) worker.join();
        throw;
    }
    if (worker.joinable()) worker.join();
    if (workerError) std::rethrow_exception(workerError);
    onBuilt(done);
}
