#pragma once

#include "trend/TrendViewState.h"

#include <QString>
#include <QStringList>

#include <vector>

class TrendView;

// The channel settings of a view (frmRECSUB without its window): a copy of the view's lines
// (C = A ± B or a constant, scale, decimals), tags and units, and the scale type. Nothing reaches
// the view before apply.
class ChannelSettings {
public:
    static constexpr int kRows = 128;
    static constexpr int kN5fRows = 372;

    explicit ChannelSettings(TrendView& view);

    // 372 rows when the view's first file is an N5F file, else 128.
    int rowCount() const { return int(lines_.size()); }
    TrendLine& line(int row) { return lines_[size_t(row - 1)]; }
    const TrendLine& line(int row) const { return lines_[size_t(row - 1)]; }
    QString tag(int row) const { return tags_[size_t(row - 1)]; }
    QString unit(int row) const { return units_[size_t(row - 1)]; }
    // Cut at 16 and 8 characters as the cells take them.
    void setTag(int row, const QString& text) { tags_[size_t(row - 1)] = text.left(16); }
    void setUnit(int row, const QString& text) { units_[size_t(row - 1)] = text.left(8); }
    ScaleType scaleType() const { return scaleType_; }
    void setScaleType(ScaleType type) { scaleType_ = type; }
    bool percentMode() const { return percent_; }

    // The items of the source combos: "---" (no column), then "No" & n for each recorded column.
    QStringList sourceItems() const;
    // A scale low or high text: one that is not a number is refused and the old text stays.
    bool setScaleText(int row, bool high, const QString& text);
    // The scale text as the cell shows it: formatted by the row's decimals.
    QString scaleText(int row, bool high) const;

    // The change check of OK: the percent mode, then per line the source, second column,
    // constant, on flag and scale type, and the scale texts in percent mode only.
    bool needsReplot() const;
    // OK: stores the table in the view; replots (every series through PlotValue, Y and Y2
    // reset) when the check says so, and gives true then. A tag, unit or decimals edit alone is
    // stored and reaches the legend without a replot.
    bool apply();

private:
    TrendView& view_;
    std::vector<TrendLine> lines_;
    std::vector<QString> tags_, units_;
    ScaleType scaleType_;
    bool percent_;
};
