#pragma once

#include <QDateTime>
#include <QString>

#include <atomic>
#include <functional>
#include <vector>

// The scheduled and manual collection over the rows of the recorder table, without its windows:
// the guard `CollectionBusyRow`, the stop flag, the status column of every row and the rules of
// the daily pass, the start-up pass, "collect all" with retries and a row's own collection. The
// fetch of a row, the clock and the waits are given from outside, so a window runs the passes
// on a worker thread and tests run them in milliseconds.
class CollectionEngine {
public:
    static constexpr quint32 kGreen = 65280; // 0x00BBGGRR
    static constexpr quint32 kWhite = 0xFFFFFF;

    struct Row {
        QString tag;
        QString pcDir; // a row is configured when it has one
        QString time;  // of the last success
        QString status;
        QString shownTime; // column 6
        quint32 color = kWhite;
        bool configured() const { return !pcDir.trimmed().isEmpty(); }
    };

    // fetch(row): one attempt of FTPFile.GetFile(row, false, 0, result); true for result 1.
    using Fetch = std::function<bool(int row)>;
    using Clock = std::function<QDateTime()>;
    using Sleep = std::function<void(int ms)>;

    CollectionEngine(Fetch fetch, Clock clock, Sleep sleep);

    std::vector<Row> rows; // rows[0] is row 1
    std::atomic<qint32> CollectionBusyRow{0};
    std::atomic<bool> StopRequested{false};
    std::atomic<bool> cmdSetEnabled{true};
    int Retry = 0; // attempts of the manual passes: Retry + 1
    int Wait = 0;  // pause between them: Wait x 10 s, 1 s for 0
    int RegularH = 0, RegularM = 0;

    // Told after every visible change of a row (1-based), in the order of the changes.
    std::function<void(int row)> changed;
    // FTPConectClose, at the end of the manual passes.
    std::function<void()> closeConnection;

    // A pass is due when "hh:mm" is the set time and the seconds are exactly 0.
    bool due(const QDateTime& now) const;
    // The timer's tick: a due pass while idle runs (true). A tick during a pass returns at once.
    bool tick();
    // The daily and start-up pass: one attempt a row.
    void RunCollection();
    // Collect all by hand, with retries on row 1 (rows after it get one attempt).
    void cmdGet();
    // A click on column 4 of a configured row: its own attempts, no wait after the last.
    void rowClick(int row);
    void cmdStop();
    // Whether a worker still runs a pass (Stop clears CollectionBusyRow before it ends).
    bool passRunning() const { return running_; }

private:
    bool enter();
    void leave() { running_ = false; }
    void startRow(int row);
    void endRow(int row, bool ok);
    int pauseMs() const { return Wait == 0 ? 1000 : Wait * 10000; }
    QString now() const;
    void notify(int row) {
        if (changed) changed(row);
    }

    Fetch fetch_;
    Clock clock_;
    Sleep sleep_;
    std::atomic<bool> running_{false};
};
