#pragma once

#include <QString>
#include <QtGlobal>

class TrendView;

// The time of a sample in the text forms that lists, search, export and the axis show.
struct SampleTime {
    qint64 seconds = 0; // seconds since 2000-01-01 of the sample
    int msec = 0;       // remainder in milliseconds (may be negative on the rounding branch)
    QString date;       // long date in the locale's order
    QString time;       // time of the interval's unit, with the fraction below 1000 ms
    QString dateTime;   // date, a blank, time
    QString msecText;   // the remainder as text
    QString timeText;   // the time without fraction, "h:nn:ss"
};

// The time of 0-based sample `index` of a recording that starts at `start` (+ startMsec) with
// `interval` milliseconds between samples. Computed in 64 bits.
SampleTime sampleTime(qint64 index, qint32 interval, qint64 start, int startMsec);

// SampleTimeText of a view.
SampleTime SampleTimeText(qint64 index, int viewNumber);

// The inverse: the 0-based index of a date and time text (locale order and separators);
// negative before the start. False when the texts are not a date and a time.
bool timeToIndex(const QString& dateText, const QString& timeText, qint32 interval, qint64 start,
                 int startMsec, qint64& index);
// The same for a time in seconds since 2000 and milliseconds.
qint64 secondsToIndex(qint64 seconds, int msec, qint32 interval, qint64 start, int startMsec);
bool TimeToIndex(const QString& dateText, const QString& timeText, int viewNumber, qint64& index);

// Reads a date text in the locale's order ("dd/mm/yyyy" ...) and a time "h:nn[:ss[.fff]]".
bool parseDateText(const QString& text, qint64& secondsSince2000);
bool parseTimeText(const QString& text, qint64& seconds, int& msec);

// The X axis texts of a view: times at the label interval, a date where the day changes.
class TrendTimeAxis {
public:
    explicit TrendTimeAxis(TrendView& view) : v_(view) {}
    // Rebuilds the value labels of X for the points on show; labelsWanted also sets the
    // axis's label interval when the user chose one.
    void X_AxisSet(bool labelsWanted);

private:
    TrendView& v_;
};
