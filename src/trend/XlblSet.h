#pragma once

#include <QString>
#include <QtGlobal>

class TrendView;

// The logic of frmXlblSet: the time axis's label and sub-grid intervals, entered in hours or
// days and kept as point counts.
namespace XlblSet {

enum class Unit { Hours, Days };

// Points of a text in a unit at an interval in milliseconds; 0 for a text that is not a number.
// The circular graph keeps the value itself within 1..360.
qint32 points(const QString& text, Unit unit, qint32 intervalMs, bool circular = false);

// OK: both intervals set and the X axis rebuilt; interval 0 leaves the labels to the chart.
void apply(TrendView& view, const QString& labelText, const QString& subGridText, Unit unit);

} // namespace XlblSet
