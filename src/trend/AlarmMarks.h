#pragma once

#include <QtGlobal>

struct AlarmStyle;
class Progress;
class TrendView;

// The alarm marks of a view's trend: each point in alarm shows the symbol of its alarm level as
// a per-point style of the channel's series, so marks scroll, zoom and print with the series.
class AlarmMarks {
public:
    explicit AlarmMarks(TrendView& view) : v_(view) {}

    // ShowAlarmMarks (chkShow) of a view.
    static bool& ShowAlarmMarks(int viewNumber);

    // A fresh load of data: the alarm table from the store, the marks flag off, no marks.
    // False when the table could not be built (it is then empty).
    bool afterLoad();
    // A saved work load: the table from the store with the digit test, the flag as saved, and
    // the marks drawn when it is on.
    bool afterSavedWorkLoad(bool showAlarmMarks, Progress* progress = nullptr);

    // Draws the marks (after the chart fill, a change of style, of a channel setting or of the
    // revolution). Nothing is drawn while the flag is off or no point of the shown range is in
    // alarm. Answers the number of points that received a mark.
    qint64 draw(Progress* progress = nullptr);
    // Removes every mark (before a redraw, and when the flag goes off).
    void clear();

    // Points of the shown range with any alarm level set, over all channels.
    qint64 shownAlarmCount() const;

private:
    qint64 drawChannel(int channel, const AlarmStyle& style, qint64 done, qint64 total,
                       Progress& progress);

    TrendView& v_;
};
