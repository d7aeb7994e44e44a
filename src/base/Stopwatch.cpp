#include "base/Stopwatch.h"

#include <QElapsedTimer>

namespace {

qint64 monotonicTick() {
    static QElapsedTimer timer = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return timer.elapsed();
}

Stopwatch::TickSource& source() {
    static Stopwatch::TickSource s = nullptr;
    return s;
}

} // namespace

void Stopwatch::setTickSource(TickSource s) {
    source() = s;
}

qint64 Stopwatch::tick() {
    return source() ? source()() : monotonicTick();
}

void Stopwatch::Start() {
    if (running_) return;
    running_ = true;
    startTick_ = tick();
}

void Stopwatch::Stop_() {
    if (!running_) return;
    running_ = false;
    total_ += tick() - startTick_;
}

void Stopwatch::Reset() {
    startTick_ = 0;
    total_ = 0;
    running_ = false;
}

void Stopwatch::Restart() {
    Reset();
    Start();
}

qint64 Stopwatch::ElapsedMillSeconds() const {
    return total_ + (running_ ? tick() - startTick_ : 0);
}
