#pragma once

#include <QString>
#include <QtGlobal>

#include <array>

class TrendView;

// The logic of frmTimeAxisSetting: which span of the recording the X axis shows, as a range of
// two times or as a start and a width.
class TimeAxisSetting {
public:
    enum class Mode { Range, Span };

    // On open the cells hold the times of the present X Min and Max, the labels the first and
    // last time of the recording.
    explicit TimeAxisSetting(TrendView& view);

    Mode mode = Mode::Range;
    QString startDate, startTime, endDate, endTime; // SpreadDate cells
    std::array<QString, 4> txtNumeric;              // width in "s", "n", "h", "d"
    QString firstLabel, lastLabel;                  // the recording's first and last time

    // OK: 0 when the span was taken (StartTime and EndTime set, the dialog closes), else the
    // number of the message shown (557 or 559) while the dialog stays.
    int ok();
    void cancel() { cancel_ = true; }

    qint32 StartTime() const { return start_; }
    qint32 EndTime() const { return end_; }
    bool Cancel() const { return cancel_; }

    // The caller's part: the chosen span as a new zoom level.
    static void apply(TrendView& view, const TimeAxisSetting& dialog);

private:
    bool index(const QString& date, const QString& time, qint64 seconds, qint64& out) const;

    TrendView& v_;
    qint32 start_ = 0;
    qint32 end_ = 0;
    bool cancel_ = true;
};
