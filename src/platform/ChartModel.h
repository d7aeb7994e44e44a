#pragma once

#include "platform/AxisScale.h"
#include "platform/ChartAxis.h"
#include "platform/ChartLabel.h"
#include "platform/ChartSeries.h"

#include <QMargins>
#include <QObject>

#include <array>
#include <map>
#include <memory>
#include <vector>

// The chart as the trend logic sees it: series of points, three axes, labels, legend, titles.
// Series and points are numbered from 1 as the logic numbers them; X of point p is p - 1 unless
// set. Bulk changes stand between setIsBatched(true) and setIsBatched(false); changed() is
// emitted when a batch ends and after each change made outside a batch.
class ChartModel : public QObject {
    Q_OBJECT

public:
    explicit ChartModel(QObject* parent = nullptr);
    ~ChartModel() override;

    bool IsBatched() const { return batched_; }
    void setIsBatched(bool on);

    static constexpr double holeValue() { return Chart::kHoleValue; }
    int chartType() const { return chartType_; }
    void setChartType(int type);

    // Series.
    int seriesCount() const { return int(series_.size()); }
    void setSeriesCount(int count); // new series are stored and empty
    const ChartSeries& series(int s) const { return *series_[size_t(s - 1)]; }
    qsizetype pointCount(int s) const;
    void setPointCount(int s, qsizetype count);
    double X(int s, qsizetype p) const;
    double Y(int s, qsizetype p) const;
    void setX(int s, qsizetype p, double value);
    void setY(int s, qsizetype p, double value);
    void setSeriesValues(int s, std::vector<double> y);
    void setSeriesSource(int s, std::unique_ptr<SeriesSource> source);
    // Series s shows points first..last of series `of` and follows its refills.
    void setSeriesView(int s, int of, qsizetype first, qsizetype last);
    // The source of series s now answers other values: pyramid and statistics are rebuilt.
    void refreshSeries(int s);

    int displayState(int s) const { return series(s).displayState; }
    void setDisplayState(int s, int state);
    const SeriesStyle& seriesStyle(int s) const { return series(s).style; }
    void setSeriesStyle(int s, const SeriesStyle& style);
    void setPointStyle(int s, qsizetype p, const PointStyle& style);
    void clearPointStyle(int s, qsizetype p);
    void setSeriesLabel(int s, const QString& text);
    // Cursor lines follow the axis range and stay out of its automatic computation.
    void setSeriesInAutoRange(int s, bool on);

    // The five statistics of the whole series (cached until the series changes); the hole when
    // the series does not exist or holds no value.
    double Maximum(int s) const;
    double Minimum(int s) const;
    double Mean(int s) const;
    double StdDev(int s) const;
    double Stat5(int s) const;
    SeriesStatistics statistics(int s, qsizetype firstPoint, qsizetype lastPoint) const;

    // Axes and decorations.
    ChartAxis& axis(Chart::Axis id) { return *axes_[size_t(id)]; }
    const ChartAxis& axis(Chart::Axis id) const { return *axes_[size_t(id)]; }
    ChartAxis& axisX() { return axis(Chart::Axis::X); }
    ChartAxis& axisY() { return axis(Chart::Axis::Y); }
    ChartAxis& axisY2() { return axis(Chart::Axis::Y2); }
    ChartLabels& labels() { return labels_; }
    const ChartLabels& labels() const { return labels_; }
    ChartLegend& legend() { return legend_; }
    const ChartLegend& legend() const { return legend_; }
    ChartTitle& header() { return header_; }
    const ChartTitle& header() const { return header_; }
    ChartTitle& footer() { return footer_; }
    const ChartTitle& footer() const { return footer_; }
    ChartColors& colors() { return colors_; }
    const ChartColors& colors() const { return colors_; }
    // Room kept free between the chart's edge and its chart area (side scale strips).
    QMargins chartAreaMargins() const { return chartAreaMargins_; }
    void setChartAreaMargins(const QMargins& margins);

    // The automatic range and step of an axis from the shown series (holes left out). Y2
    // follows the range of Y.
    AxisScale::Scale automaticScale(Chart::Axis id) const;

    // Takes over everything of another model (as a loaded chart file); series that showed
    // ranges of other series come over empty.
    void takeStateOf(ChartModel& other);

    // Marks a change: changed() now, or at the end of the batch.
    void touch();
    // A change of data: the automatic ranges are computed again.
    void dataChanged();

Q_SIGNALS:
    void changed();

private:
    bool validSeries(int s) const { return s >= 1 && s <= seriesCount(); }
    ChartSeries* at(int s) { return validSeries(s) ? series_[size_t(s - 1)].get() : nullptr; }
    double wholeStatistic(int s, double SeriesStatistics::*field) const;
    void forgetView(int s);
    void seriesDataChanged(int s);

    std::vector<std::unique_ptr<ChartSeries>> series_;
    std::array<std::unique_ptr<ChartAxis>, 3> axes_;
    std::multimap<int, int> viewsOf_; // series -> series that show a range of it
    ChartLabels labels_;
    ChartLegend legend_;
    ChartTitle header_;
    ChartTitle footer_;
    ChartColors colors_;
    QMargins chartAreaMargins_;
    int chartType_ = Chart::kTypePlot;
    bool batched_ = false;
    bool pendingChange_ = false;
    quint64 dataRevision_ = 1;
    mutable std::array<quint64, 3> scaleRevision_{};
    mutable std::array<AxisScale::Scale, 3> scales_{};
};
