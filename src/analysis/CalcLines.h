#pragma once

#include "platform/ChartSeries.h"

#include <QtGlobal>

#include <array>
#include <vector>

class ChartModel;
class TrendView;

// The calculation lines of a view (frmCalcLineSet without its window): two sets of six level
// lines at a statistic of one channel, set 1 over the whole channel (series N + 3..N + 8),
// set 2 over the marker series between the cursors (N + 9..N + 14).
class CalcLines {
public:
    static constexpr int kColumns = 5; // table columns 2..6; lines 6 and 7 share column 5
    struct Set {
        int channel = 0; // 0: none (message 22)
        std::array<bool, kColumns> on{};
        std::array<SeriesStyle, kColumns> styles{};
    };

    // Reads the channels and the twelve series (style and points) as they stand, to restore.
    explicit CalcLines(TrendView& view);

    Set set(int which) const { return sets_[size_t(which - 1)]; }
    void setSet(int which, const Set& s) { sets_[size_t(which - 1)] = s; }
    // Percent data offers no standard deviation lines (column 5).
    bool deviationOffered() const;

    // The level of kind k (3 maximum .. 8 fifth statistic) of a series, in its own units; the
    // hole when a statistic is missing or k is unknown.
    static double CalcLineValue(const ChartModel& chart, int kind, int series);
    // The pattern of combo item i (0, 1, 2 give 2, 4, 6; any other 2), and back.
    static int patternOfItem(int item);
    static int itemOfPattern(int pattern);

    // Writes both sets into the chart in one batch. Set 2 is drawn only while the marker
    // statistics are valid.
    void ApplyCalcLines();
    // Gives the twelve series and the two channels back as they were read.
    void RestoreCalcLines();

private:
    struct Saved {
        SeriesStyle style;
        std::vector<double> x, y;
        int display = 0;
    };
    void applySet(int which);
    void drawLine(int line, int kind, int series, int which, const SeriesStyle& style);
    void switchOff(int line);

    TrendView& view_;
    std::array<Set, 2> sets_;
    std::array<qint16, 2> savedChannels_{};
    std::array<bool, 2> savedInUse_{};
    std::vector<Saved> saved_; // series N + 3..N + 14
};
