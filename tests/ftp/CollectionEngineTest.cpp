#include "ftp/CollectionEngine.h"
#include "base/LanguageTable.h"

#include <gtest/gtest.h>

#include <map>

namespace {

// An engine over three rows (row 2 not configured) with a fake fetch, clock and sleep.
struct Engine {
    Engine()
        : engine([this](int row) { return fetch(row); }, [this] { return clock; },
                 [this](int ms) { onSleep(ms); }) {
        engine.rows.resize(3);
        engine.rows[0].pcDir = QStringLiteral("/data/a");
        engine.rows[2].pcDir = QStringLiteral("/data/c");
        engine.changed = [this](int row) { changes.push_back(row); };
    }
    bool fetch(int row) {
        ++attempts[row];
        if (during) during(row);
        return results.count(row) ? results[row] : true;
    }
    void onSleep(int ms) {
        sleeps.push_back(ms);
        if (whileSleeping) whileSleeping();
    }

    QDateTime clock{QDate(2026, 11, 24), QTime(0, 0, 0)};
    std::map<int, bool> results;
    std::map<int, int> attempts;
    std::vector<int> sleeps, changes;
    std::function<void(int)> during;
    std::function<void()> whileSleeping;
    CollectionEngine engine;
};

TEST(CollectionEngine, ThePassIsDueAtTheMinuteAndSecondZeroOnly) {
    Engine e;
    EXPECT_TRUE(e.engine.due(e.clock)); // 00:00 by default
    e.clock = e.clock.addSecs(1);
    EXPECT_FALSE(e.engine.tick()); // a missed second skips the day
    e.engine.RegularH = 6;
    e.engine.RegularM = 30;
    e.clock = QDateTime(QDate(2026, 11, 24), QTime(6, 30, 0));
    EXPECT_TRUE(e.engine.tick());
    EXPECT_EQ(e.attempts[1], 1);
    EXPECT_EQ(e.attempts[2], 0); // not configured
    EXPECT_EQ(e.attempts[3], 1);
    EXPECT_EQ(e.engine.CollectionBusyRow, 0);
    EXPECT_TRUE(e.engine.cmdSetEnabled);
    // A tick during a pass returns at once.
    e.during = [&](int) { EXPECT_FALSE(e.engine.tick()); };
    e.engine.tick();
}

TEST(CollectionEngine, StatusTextsColoursAndTimes) {
    Engine e;
    e.results[3] = false;
    std::vector<std::pair<QString, quint32>> seen;
    e.engine.changed = [&](int row) {
        seen.push_back(
            {e.engine.rows[size_t(row - 1)].status, e.engine.rows[size_t(row - 1)].color});
    };
    e.engine.rows[2].time = QStringLiteral("earlier");
    e.engine.RunCollection();
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0], std::make_pair(MsgText(495), CollectionEngine::kGreen));
    EXPECT_EQ(seen[1], std::make_pair(MsgText(13), CollectionEngine::kWhite));
    EXPECT_EQ(seen[3], std::make_pair(MsgText(496), CollectionEngine::kWhite));
    EXPECT_FALSE(e.engine.rows[0].time.isEmpty());
    EXPECT_EQ(e.engine.rows[2].shownTime, QStringLiteral("earlier")); // kept from its success
    Engine none;
    none.engine.rows.assign(30, CollectionEngine::Row());
    none.engine.RunCollection(); // no configured row: it ends at once
    EXPECT_TRUE(none.attempts.empty());
    EXPECT_TRUE(none.engine.cmdSetEnabled);
}

TEST(CollectionEngine, StopEndsThePassBeforeTheNextRow) {
    Engine e;
    e.during = [&](int row) {
        if (row == 1) e.engine.cmdStop();
    };
    e.engine.CollectionBusyRow = 1;
    e.engine.RunCollection();
    EXPECT_EQ(e.attempts[3], 0);
    EXPECT_FALSE(e.engine.StopRequested);
    EXPECT_EQ(e.engine.CollectionBusyRow, 0);
    EXPECT_TRUE(e.engine.cmdSetEnabled);
}

TEST(CollectionEngine, RetriesAndPausesOfTheManualPasses) {
    Engine e;
    e.results[1] = e.results[3] = false;
    e.engine.Retry = 2;
    e.engine.cmdGet(); // row 1 gets 3 attempts; row 3, busy row 3, one
    EXPECT_EQ(e.attempts[1], 3);
    EXPECT_EQ(e.attempts[3], 1);
    EXPECT_EQ(e.sleeps, (std::vector<int>{1000, 1000, 1000})); // after the last one too
    e.sleeps.clear();
    e.engine.Wait = 1;
    e.engine.rowClick(3); // its own attempts, no wait after the last
    EXPECT_EQ(e.attempts[3], 4);
    EXPECT_EQ(e.sleeps, (std::vector<int>{10000, 10000}));
    Engine once;
    once.results[1] = false;
    once.engine.cmdGet(); // Retry 0: one attempt
    EXPECT_EQ(once.attempts[1], 1);
    once.engine.rowClick(2); // not configured: nothing
    EXPECT_EQ(once.attempts[2], 0);
}

TEST(CollectionEngine, NoSecondPassBeforeAStoppedOneHasEnded) {
    Engine e;
    e.results[1] = false;
    e.engine.Retry = 1;
    e.whileSleeping = [&] {
        e.engine.cmdStop(); // the guard is 0 again...
        e.engine.cmdGet();  // ...but the first pass still runs: refused
        e.engine.rowClick(3);
    };
    e.engine.cmdGet();
    // The attempt after the wait still runs (the fetch itself sees the stop); then the guard,
    // no longer 1, ends the attempts, and the stop ends the pass before row 3.
    EXPECT_EQ(e.attempts[1], 2);
    EXPECT_EQ(e.attempts[3], 0);
    EXPECT_FALSE(e.engine.passRunning());
    e.whileSleeping = nullptr;
    e.engine.cmdGet(); // now it runs
    EXPECT_EQ(e.attempts[3], 1);
}

} // namespace
