#pragma once

#include <QtGlobal>

// Values and codes shared by the chart model, its renderer and the trend logic.
namespace Chart {

// Y of a point with no value. Every test for a missing value compares with this exact double.
inline constexpr double kHoleValue = 1E+308;

// Series display states as the logic sets them.
inline constexpr int kDisplayShown = 1;
inline constexpr int kDisplayHidden = 3;

// Chart types. Every bar and circular branch of the logic tests for kTypePolar.
inline constexpr int kTypePlot = 1;
inline constexpr int kTypeBar = 2;
inline constexpr int kTypePolar = 9;

// Pixel regions answered by ChartModel hit tests (ChartHitTest::region).
inline constexpr int kRegionNone = 0;
inline constexpr int kRegionChartArea = -100; // inside the plot rectangle
inline constexpr int kRegionAxes = -99;       // chart area outside the plot: axes and titles
inline constexpr int kRegionHeader = -98;
inline constexpr int kRegionFooter = -97;
inline constexpr int kRegionLegend = -96;

enum class Axis { X, Y, Y2 };

// Line patterns; 1 draws no line.
enum class LinePattern {
    None = 1,
    Solid = 2,
    LongDash = 3,
    Dotted = 4,
    ShortDash = 5,
    DashDot = 6,
    DashDotDot = 7,
};

// Symbol shapes; 1 draws no symbol.
enum class SymbolShape {
    None = 1,
    Dot = 2,
    Box = 3,
    Triangle = 4,
    Diamond = 5,
    Star = 6,
    VerticalLine = 7,
    HorizontalLine = 8,
    Cross = 9,
    Circle = 10,
    Square = 11,
};

// How an axis gets its texts.
enum class LabelMethod {
    Values = 1,      // automatic numbers at the label interval
    ValueLabels = 2, // the axis's value label collection only
};

// Where a chart label is attached.
enum class AttachMethod {
    Coord = 1,     // pixel position in the chart
    DataCoord = 2, // x, y in data units
    DataIndex = 3, // a point of a series
};

// Which side of the attachment point the label box lies on.
enum class Anchor {
    North = 1,
    South = 2,
    East = 3,
    West = 4,
    NorthEast = 5,
    NorthWest = 6,
    SouthEast = 7,
    SouthWest = 8,
    Center = 9,
};

enum class BorderType { None = 1, Plain = 2, Shadow = 3 };

// The pale yellow background of the system, 0x00BBGGRR (WinColor).
inline constexpr quint32 kBackgroundColorRef = 0xE1FFFF;

} // namespace Chart
