#pragma once

#include <QtGlobal>

// A millisecond timer that adds up the time between Start and Stop_.
class Stopwatch {
public:
    // Starting a running watch keeps the first start.
    void Start();
    void Stop_();
    void Reset();
    void Restart();
    qint64 ElapsedMillSeconds() const;
    bool IsRunning() const { return running_; }

    // The tick source in milliseconds (tests replace it); nullptr restores the monotonic clock.
    using TickSource = qint64 (*)();
    static void setTickSource(TickSource source);
    static qint64 tick();

private:
    qint64 startTick_ = 0;
    qint64 total_ = 0;
    bool running_ = false;
};
