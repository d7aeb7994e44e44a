#include "ftp/CollectionEngine.h"

#include "base/LanguageTable.h"
#include "base/TimeBase.h"
#include "base/VbFormat.h"
#include "base/clsCommon.h"

CollectionEngine::CollectionEngine(Fetch fetch, Clock clock, Sleep sleep)
    : fetch_(std::move(fetch)), clock_(std::move(clock)), sleep_(std::move(sleep)) {}

bool CollectionEngine::due(const QDateTime& now) const {
    const QTime t = now.time();
    return t.hour() == RegularH && t.minute() == RegularM && t.second() == 0;
}

// Only one pass at a time, also while a stopped one still ends on its worker.
bool CollectionEngine::enter() {
    bool idle = false;
    return running_.compare_exchange_strong(idle, true);
}

QString CollectionEngine::now() const {
    const QDateTime n = clock_();
    const qint64 seconds =
        TimeBase::toSeconds({n.date().year(), n.date().month(), n.date().day(), n.time().hour(),
                             n.time().minute(), n.time().second()});
    const clsCommon& c = clsCommon::shared();
    const VbFormat::Separators seps = VbFormat::Separators::system();
    return VbFormat::formatSeconds(seconds, c.GetLongDateFormat(-1), seps) + QLatin1Char(' ') +
           VbFormat::formatSeconds(seconds, c.GetTimeFormat(2), seps);
}

void CollectionEngine::startRow(int row) {
    Row& r = rows[size_t(row - 1)];
    CollectionBusyRow = row;
    r.status = MsgText(495);
    r.color = kGreen;
    r.shownTime.clear();
    notify(row);
}

void CollectionEngine::endRow(int row, bool ok) {
    Row& r = rows[size_t(row - 1)];
    if (ok) {
        r.status = MsgText(13);
        r.time = now();
    } else {
        r.status = MsgText(496);
    }
    r.shownTime = r.time; // a failed row keeps the time of its last success
    r.color = kWhite;
    notify(row);
}

bool CollectionEngine::tick() {
    if (CollectionBusyRow != 0 || !due(clock_())) return false;
    CollectionBusyRow = 1;
    RunCollection();
    return true;
}

void CollectionEngine::RunCollection() {
    if (!enter()) return;
    cmdSetEnabled = false;
    for (int row = 1; row <= int(rows.size()); ++row) {
        if (StopRequested) {
            // The Stop handler has reset the guard and the button already.
            StopRequested = false;
            leave();
            return;
        }
        if (!rows[size_t(row - 1)].configured()) continue;
        startRow(row);
        endRow(row, fetch_(row));
    }
    CollectionBusyRow = 0;
    StopRequested = false;
    cmdSetEnabled = true;
    leave();
}

void CollectionEngine::cmdGet() {
    if (CollectionBusyRow != 0 || !enter()) return;
    for (int row = 1; row <= int(rows.size()); ++row) {
        if (StopRequested) {
            StopRequested = false;
            cmdSetEnabled = true;
            CollectionBusyRow = 0;
            break;
        }
        if (!rows[size_t(row - 1)].configured()) continue;
        cmdSetEnabled = false;
        startRow(row);
        bool ok = false;
        for (int n = 0; n <= Retry; ++n) {
            ok = fetch_(row);
            if (ok) break;
            // Compared with 1, not with the row: rows after the first make one attempt.
            if (CollectionBusyRow != 1) break;
            sleep_(pauseMs()); // also after the last attempt
        }
        endRow(row, ok);
    }
    CollectionBusyRow = 0;
    cmdSetEnabled = true;
    if (closeConnection) closeConnection();
    StopRequested = false;
    leave();
}

void CollectionEngine::rowClick(int row) {
    if (CollectionBusyRow != 0 || row < 1 || row > int(rows.size()) ||
        !rows[size_t(row - 1)].configured() || !enter())
        return;
    startRow(row);
    bool ok = false;
    for (int n = 0; n <= Retry; ++n) {
        ok = fetch_(row);
        if (ok || CollectionBusyRow == 0) break;
        if (n < Retry) sleep_(pauseMs()); // no wait after the last attempt
    }
    endRow(row, ok);
    CollectionBusyRow = 0;
    if (closeConnection) closeConnection();
    StopRequested = false;
    leave();
}

void CollectionEngine::cmdStop() {
    StopRequested = true;
    CollectionBusyRow = 0;
    cmdSetEnabled = true;
}
