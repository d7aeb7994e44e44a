#pragma once

#include <QColor>
#include <QString>

#include <vector>

class ChartAxis;

// Automatic axis ranges, label steps and tick texts: pure functions of numbers.
namespace AxisScale {

struct Scale {
    double min;
    double max;
    double step; // label interval; decades on a logarithmic axis
};

// A step of 1, 2 or 5 times a power of ten that cuts span into at most `intervals` parts.
double niceStep(double span, int intervals = 10);

// The range of data min..max rounded outward to the label step, with the data's extremes
// always inside (25..75 gives 20..80). With no data, 0..1; a single value gets room around it. On a
// logarithmic axis the range is whole decades of the positive values. integerSteps keeps the step
// at whole numbers of at least 1 (a point index axis).
Scale automatic(double dataMin, double dataMax, bool hasData, bool logarithmic,
                bool integerSteps = false);

// The label step for a set range.
Scale forRange(double min, double max, bool logarithmic, bool integerSteps = false);

// Decimals that show every multiple of step exactly (0 for whole steps).
int decimalsForStep(double step);

// A value as an axis shows it: fixed decimals with the locale's decimal sign, no grouping.
QString valueText(double value, int decimals);

struct Tick {
    double value;
    QString text; // empty: a grid line only
    bool major;   // false: sub-grid
    QColor color; // invalid: the axis's label colour
};

// Ticks of an axis within min..max (either order): its value labels, or automatic numbers at
// the step with sub-grid ticks between.
std::vector<Tick> ticks(const ChartAxis& axis, double min, double max, double step);

} // namespace AxisScale
