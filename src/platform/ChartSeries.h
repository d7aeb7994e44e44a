#pragma once

#include "platform/ChartTypes.h"
#include "platform/MinMaxPyramid.h"
#include "platform/SeriesSource.h"
#include "platform/SeriesStatistics.h"

#include <QColor>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <vector>

struct SeriesStyle {
    QColor color = Qt::black;
    Chart::LinePattern pattern = Chart::LinePattern::Solid;
    int width = 1;
    Chart::SymbolShape symbol = Chart::SymbolShape::None;
    int symbolSize = 5;
    QColor symbolColor; // invalid: the line colour
};

// The look of one point where it differs from its series.
struct PointStyle {
    Chart::SymbolShape symbol = Chart::SymbolShape::Dot;
    int symbolSize = 5;
    QColor color = Qt::black;
};

// One series of the chart. Its Y values are either stored (short series: cursors, calculation
// lines) or read from a SeriesSource (channels). Y set on a sourced series, X set on any series
// and per-point styles are kept sparse. X of point i (0-based) is i unless set.
// The series is itself a SeriesSource over its Y values, overrides included.
class ChartSeries final : public SeriesSource {
public:
    ChartSeries() = default;

    qsizetype count() const override;
    void values(qsizetype first, qsizetype n, double* out) const override;

    // Data. Indices are 0-based here; ChartModel speaks in the 1-based points of the logic.
    void setPointCount(qsizetype count); // a sourced series becomes a stored one of holes
    void setStoredValues(std::vector<double> y);
    void setSource(std::unique_ptr<SeriesSource> source);
    bool isSourced() const { return source_ != nullptr; }
    double y(qsizetype i) const;
    void setY(qsizetype i, double value);
    double x(qsizetype i) const;
    void setX(qsizetype i, double value);
    bool hasExplicitX() const { return !x_.empty() || !xOverrides_.empty(); }
    // Tells the series that its source now answers other values (the source was refilled).
    void invalidate();

    int displayState = Chart::kDisplayShown;
    bool isShown() const { return displayState == Chart::kDisplayShown; }
    bool inAutoRange = true; // false keeps the series out of the automatic axis ranges
    QString label;           // legend text
    SeriesStyle style;

    const std::map<qsizetype, PointStyle>& pointStyles() const { return pointStyles_; }
    void setPointStyle(qsizetype i, const PointStyle& style) { pointStyles_[i] = style; }
    void clearPointStyle(qsizetype i) { pointStyles_.erase(i); }

    // Built on first use after a change.
    const MinMaxPyramid& pyramid() const;
    // Min and max of the whole series (holes left out) and of its X.
    MinMaxPyramid::Range yRange() const;
    MinMaxPyramid::Range xRange() const;
    // Statistics of the whole series (cached) or of points first .. first + n - 1.
    const SeriesStatistics& statistics() const;
    SeriesStatistics statistics(qsizetype first, qsizetype n) const;

private:
    void dropData();

    std::vector<double> y_;
    std::vector<double> x_; // empty while every X is its default
    std::unique_ptr<SeriesSource> source_;
    std::map<qsizetype, double> yOverrides_; // sourced series only
    std::map<qsizetype, double> xOverrides_; // sourced series only
    std::map<qsizetype, PointStyle> pointStyles_;
    mutable MinMaxPyramid pyramid_;
    mutable std::optional<SeriesStatistics> statistics_;
};
