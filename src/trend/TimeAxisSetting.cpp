#include "trend/TimeAxisSetting.h"

#include "base/LanguageTable.h"
#include "base/ShowMsg.h"
#include "trend/TrendTimeAxis.h"
#include "trend/TrendView.h"

namespace {

constexpr qint64 kUnitSeconds[] = {1, 60, 3600, 86400}; // "s", "n", "h", "d"

int refuse(int message) {
    ShowMsg(kMsgWarning, MsgText(message));
    return message;
}

} // namespace

TimeAxisSetting::TimeAxisSetting(TrendView& view) : v_(view) {
    const int n = view.GetGroup();
    const SampleTime from = SampleTimeText(qint64(view.chart().axisX().min()), n);
    const SampleTime to = SampleTimeText(qint64(view.chart().axisX().max()), n);
    startDate = from.date;
    startTime = from.timeText;
    endDate = to.date;
    endTime = to.timeText;
    firstLabel = SampleTimeText(0, n).dateTime;
    lastLabel = SampleTimeText(qMax(view.tables().PointCount - 1, 0), n).dateTime;
}

// The index of a date and time; `seconds` moves the time on (the span's width).
bool TimeAxisSetting::index(const QString& date, const QString& time, qint64 seconds,
                            qint64& out) const {
    qint64 day, secs;
    int msec;
    if (!parseDateText(date, day) || !parseTimeText(time, secs, msec)) return false;
    const ViewState& t = v_.tables();
    out =
        secondsToIndex(day + secs + seconds, msec, t.SampleInterval, t.ViewStart, t.ViewStartMsec);
    return true;
}

int TimeAxisSetting::ok() {
    const qint64 last = qint64(v_.tables().PointCount) - 1;
    qint64 first = 0, end = last;
    // An empty cell, date or time, stands for the whole range's end on its side.
    const bool startEmpty = startDate.trimmed().isEmpty() || startTime.trimmed().isEmpty();
    if (!startEmpty && !index(startDate, startTime, 0, first)) return refuse(557);
    if (mode == Mode::Span) {
        qint64 width = 0;
        for (size_t u = 0; u < txtNumeric.size() && width == 0; ++u) {
            bool numeric = false;
            const double value = txtNumeric[u].trimmed().toDouble(&numeric);
            if (numeric && value > 0) width = qint64(value * double(kUnitSeconds[u]));
        }
        if (startEmpty || !index(startDate, startTime, width, end)) return refuse(559);
    } else {
        const bool endEmpty = endDate.trimmed().isEmpty() || endTime.trimmed().isEmpty();
        if (!endEmpty && !index(endDate, endTime, 0, end)) return refuse(559);
    }
    first = qMax<qint64>(first, 0);
    end = qMax<qint64>(end, 0);
    if (end >= last + 1) end = last;
    if (first >= end) return refuse(557);
    start_ = qint32(first + 1);
    end_ = qint32(end + 1);
    cancel_ = false;
    return 0;
}

void TimeAxisSetting::apply(TrendView& view, const TimeAxisSetting& dialog) {
    if (dialog.Cancel() || (dialog.StartTime() == 0 && dialog.EndTime() == 0)) return;
    view.state().TimeAxisChoice = {dialog.StartTime(), dialog.EndTime()};
    view.zoom().pushSpan(dialog.StartTime(), dialog.EndTime());
}
