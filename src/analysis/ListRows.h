#pragma once

#include <QtGlobal>

class ChartModel;
class TrendView;

// Which plotted point and which sample a row of a view's list stands for; the list, its
// printing and its export all place rows through this. In the circular graph the chart holds
// the points of one circle of 360 samples, and list rows from 361 on count within that circle.
class ListRows {
public:
    static constexpr qint32 kCirclePoints = 360;

    explicit ListRows(const TrendView& view);

    bool circular() const { return circular_; }
    qint32 circle() const { return circle_; }
    // Rows of the whole set: the samples of the view, or of the current circle.
    qint32 rowCount() const;
    // The row offset a list starts with: the samples before the current circle.
    qint32 firstOffset() const;
    // The plot point (1-based) of list row g (a grid row plus ListRowOffset); 0 when the chart
    // holds no such point (the view's data was replaced under the list).
    qsizetype pointOf(qint64 g) const;
    // The 0-based sample index of a plot point: X of series 1 rounded, in the circular graph
    // turned into the sample of the current circle. Negative for a point the chart lacks.
    qint64 rowIndexOf(qsizetype p) const;

private:
    const ChartModel& chart_;
    bool circular_ = false;
    qint32 circle_ = 1;
    qint32 samples_ = 0;
};
