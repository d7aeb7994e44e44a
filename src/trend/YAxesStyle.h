#pragma once

#include "platform/ChartModel.h"

#include <QString>

#include <array>
#include <vector>

class TrendView;

// The logic of frmYAxesStyle: minimum, maximum, label and sub-grid interval and the reversed
// and logarithmic flags of Y (vaSpread1) and Y2 (vaSpread2). Values noted on open come back on
// cancel.
class YAxesStyle {
public:
    struct AxisCells {
        QString min, max, labelInterval, subGridInterval;
        bool reversed = false;
        bool logarithmic = false;
    };

    explicit YAxesStyle(TrendView& view);

    std::array<AxisCells, 2> cells; // Y, Y2

    // The Option1 button that shows a four-valued field: 0 and 1 button 0, 2 button 1, 3 button 2.
    static int optionButton(int fieldValue);
    // What stands behind the interval names: "(%)" in percent mode; and "(2)" for Y2.
    QString intervalSuffix() const;
    static QString axisSuffix(int axis) { return axis == 2 ? QStringLiteral("(2)") : QString(); }

    void preview() { apply(); }
    void ok() { apply(); }
    void cancel();

private:
    void apply();
    void applyAxis(ChartAxis& axis, const AxisCells& c, int channel);

    TrendView& v_;
    ChartModel saved_; // axes as they were on open
    std::vector<std::pair<QString, QString>> savedScales_;
    std::array<double, 3> savedZoomY_{};
};
