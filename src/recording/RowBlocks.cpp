#include "recording/RowBlocks.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <thread>

namespace {
constexpr qint64 kBlock = 512; // rows transposed at once while they stay in the cache
constexpr qint64 kDropEvery = 32 * kBlock;

struct Half {
    qint64 first, last;
};

// progressRows maps the half's position onto the whole file for the poll.
void runHalf(const FileLoad& load, Half h, qint64 dataOffset, qint64 rowBytes,
             const std::function<void(qint64, qint64)>& decodeBlock, const std::atomic<bool>* stop,
             qint64 progressScale, qint64 totalRows) {
    qint64 dropped = h.first;
    for (qint64 r0 = h.first; r0 <= h.last; r0 += kBlock) {
        if (stop) {
            if (stop->load(std::memory_order_relaxed)) return;
        } else {
            load.pollRows(h.first + (r0 - h.first) * progressScale, totalRows);
        }
        if (r0 - dropped >= kDropEvery) {
            load.bytes.dropRange(dataOffset + (dropped - 1) * rowBytes,
                                 dataOffset + (r0 - 1) * rowBytes);
            dropped = r0;
        }
        decodeBlock(r0, std::min(h.last, r0 + kBlock - 1));
    }
}
} // namespace

void RowBlocks::decode(const FileLoad& load, qint64 firstRow, qint64 lastRow, qint64 dataOffset,
                       qint64 rowBytes, const std::function<void(qint64, qint64)>& decodeBlock) {
    if (firstRow > lastRow) return;
    const qint64 rows = lastRow - firstRow + 1;
    if (rows < 2 * kBlock || rows * rowBytes < parallelBytes ||
        std::thread::hardware_concurrency() < 2) {
        runHalf(load, {firstRow, lastRow}, dataOffset, rowBytes, decodeBlock, nullptr, 1, lastRow);
        return;
    }
    // The split falls on a block boundary of the first half, so blocks are as on one thread.
    const qint64 mid = firstRow + (rows / 2 + kBlock - 1) / kBlock * kBlock;
    std::atomic<bool> stop{false};
    std::thread second(runHalf, std::cref(load), Half{mid, lastRow}, dataOffset, rowBytes,
                       std::cref(decodeBlock), &stop, qint64(1), lastRow);
    try {
        runHalf(load, {firstRow, mid - 1}, dataOffset, rowBytes, decodeBlock, nullptr, 2, lastRow);
    } catch (...) {
        stop = true;
        second.join();
        throw;
    }
    second.join();
}
