#pragma once

#include "recording/RecordingLimits.h"

#include <QString>

#include <array>

// One line of a view: what feeds the plotted series of a channel (0..372, lines 1..372 in use).
struct TrendLine {
    qint16 sourceColumn = 0; // store channel feeding the line; 0 = no data
    qint32 enabled = 0;      // 0 = not plotted
    bool addFlag = true;     // second operand added (true) or subtracted
    qint16 secondColumn = 0; // store channel of the second operand; 0 = none
    QString constant;        // second operand when there is no second column
    QString scaleLow;        // the line's scale in engineering units
    QString scaleHigh;
    qint16 decimals = 0;  // 0..4
    qint32 scaleKind = 1; // 1 = linear

    bool operator==(const TrendLine&) const = default;
};

// How the Y axes of a view are scaled.
enum class ScaleType : qint16 {
    Plain = 0,      // one Y axis
    Bound = 1,      // Y and Y2 bound to channels
    MultiScale = 2, // the scale strips beside the chart
};

constexpr int kLineCount = MaxChannels + 1; // entries 0..372
constexpr int kZoomLevels = 101;            // levels 0..100

// The state of one trend view that the windows, the lists and the saved records share.
// One instance per view, reached through trendState(viewNumber).
struct TrendViewState {
    // Form state
    qint16 PointScale = 1;
    qint16 ZoomLevel = 0;
    std::array<std::array<qint32, 3>, kZoomLevels> ZoomX{}; // [level][1..2]: start, end point
    std::array<std::array<double, 3>, kZoomLevels> ZoomY{}; // [level][1..2]: Y minimum, maximum
    bool BusyDrawing = false;
    bool MouseArmed = false;
    bool ViewRestoring = false;
    bool CursorAOn = false;
    bool CursorBOn = false;
    qint32 BarPosition = 1;

    // Module arrays of the view
    qint16 ScrollScale = 0;
    bool ScalePercentMode = false;
    ::ScaleType ScaleType = ::ScaleType::Plain;
    std::array<qint16, 2> AxisChannel{}; // channel on Y and on Y2
    std::array<qint32, 2> CursorPoint{}; // point under cursor A and B, 1-based, 0 = none
    qint16 BarPlacement = 0;
    std::array<qint32, 2> MarkerCalcValue{}; // two-slot value of marker statistics and calc lines
    qint16 MarkerAutoCalc = 0;
    std::array<qint16, 2> CalcLineChannel{};
    std::array<qint32, 2> TimeLabelInterval{}; // label interval and sub-grid interval (time axis)
    qint16 ChartMouseFlag = 0;
    qint16 AxisLabelsOn = 0;
    qint16 MarkerViewFlag = 0;
    std::array<qint32, 2> TimeAxisChoice{}; // chosen start and end of the time axis dialog
    std::array<qint16, 4> ViewTail{};
    qint32 CurrentCircle = 1; // the circle the circular graph shows (360 points a circle)

    std::array<TrendLine, kLineCount> Lines;

    // Time axis and zoom: the arguments of the last SetDataRange (1-based), and the flag of a
    // zoom that the stack refused.
    qint32 FirstShown = 0;
    qint32 LastShown = 0;
    bool ZoomPending = false;
    // Scale axes: multi-scale rows shown on the strips (rows 1..128 at index 0..127), the colour
    // of value labels with ScaleType 2 (0x00BBGGRR), and what the saved settings of the view
    // put in force at the last load.
    std::array<bool, 128> MultiScaleShown{};
    quint32 MultiScaleLabelColor = 0;
    bool SavedMultiScale = false;
    bool SavedScaleTable = false;
    // Calculation-line sets 1 and 2 in use: MakerLineSet2 leaves their series alone.
    std::array<bool, 2> CalcSetInUse{};

    // Saved work: what the view's records keep beyond the fields above.
    // Alarm symbol styles per slot 1..6 (index 0..5) and channel 1..372 (index 0..371).
    std::array<std::array<qint16, MaxChannels>, 6> AlarmSymbol = [] {
        std::array<std::array<qint16, MaxChannels>, 6> a{};
        for (size_t k = 0; k < a.size(); ++k) a[k].fill(k < 5 ? qint16(k + 1) : qint16(10));
        return a;
    }();
    std::array<std::array<quint32, MaxChannels>, 6> AlarmColor = [] {
        std::array<std::array<quint32, MaxChannels>, 6> a{};
        for (auto& slot : a) slot.fill(0x0000FFu); // rgb(255,0,0) as 0x00BBGGRR
        return a;
    }();
    std::array<std::array<qint16, MaxChannels>, 6> AlarmSize = [] {
        std::array<std::array<qint16, MaxChannels>, 6> a{};
        for (auto& slot : a) slot.fill(4);
        return a;
    }();
    // Multi-scale table of rows 1..128 (index 0..127): scale low and high, 1E+308 when empty,
    // and the flag that the table replaces the channels' scales at the next load.
    qint32 MultiScaleFlag = 0;
    std::array<std::array<double, 2>, 128> MultiScale = [] {
        std::array<std::array<double, 2>, 128> a{};
        for (auto& row : a) row = {1E+308, 1E+308};
        return a;
    }();
    // hsbTrendGraph, vsbTrendGraph, hsbBarGraph, vsbBarGraph: Min, Max, Value, SmallChange,
    // LargeChange.
    std::array<std::array<qint16, 5>, 4> ScrollBars{};

    void reset() { *this = TrendViewState(); }
};

// The trend state of views 1..MaxViews.
TrendViewState& trendState(int viewNumber);
