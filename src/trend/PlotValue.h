#pragma once

#include "trend/TrendViewState.h"

#include <QString>

class clsStorage;

// How a line's plotted value is made from the stored cell texts, and the percent conversions
// of the channel scales. The hole value 1E+308 stands for "no value" throughout.
namespace TrendValues {

// A cell, scale or constant text as a number ("." decimal sign, blanks around allowed). False
// for status words, blanks and anything else that is not a finite number.
bool parseNumber(const QString& text, double& value);

// The value as it reads back from its default text (15 significant digits): what a value is
// after passing through a text, as every plotted percent does.
double roundTrip(double value);

// A scale text as a number; the hole when it is not numeric.
double scaleNumber(const QString& text);

// ScalePercent on numbers: y is the plotted value, low and high the channel's scale. Answers
// the value that the chart receives (y unchanged where the rule passes it through, the hole on a
// division by zero).
double percentValue(double y, double low, double high);

// Percent of the way through a scale to engineering units (hover readouts, strips).
inline double percentToEngineering(double percent, double low, double high) {
    return low + (high - low) * percent / 100;
}

} // namespace TrendValues

// The value of a line at a store row (1-based): the source column's number, with the second
// operand (second column or constant) added or subtracted. The hole for a line without data,
// a cell that is not a number, or any failing operand.
double PlotValue(const clsStorage& storage, const TrendLine& line, qint32 point);
double PlotValue(int viewNumber, qint32 point, int line);

// An engineering value as percent of the line's scale, as text.
QString ScalePercent(const QString& valueText, const TrendLine& line);
QString ScalePercent(const QString& valueText, int viewNumber, int line);

// A span in percent of the line's scale in engineering units, rounded to the line's decimals.
double ScaleStep(double percent, const TrendLine& line);
double ScaleStep(double percent, int viewNumber, int line);

// The number patterns of 0..4 decimals ("#######0" .. "##0.0000") and of exponent texts with
// 0..3 decimals ("0E+0" .. "0.000E+0"); out-of-range decimals take the nearest end.
QString decimalPattern(int decimals);
QString exponentPattern(int decimals);
