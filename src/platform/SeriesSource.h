#pragma once

#include <QtGlobal>

// The Y values of a long series, read in bulk. The trend logic implements it over the recording
// store (raw values through a per-file lookup), so that a channel never costs 8 bytes a point.
// Indices are 0-based; a missing value is Chart::kHoleValue.
class SeriesSource {
public:
    virtual ~SeriesSource() = default;
    virtual qsizetype count() const = 0;
    // Writes the values of points first .. first + n - 1 to out. The caller keeps the range
    // within 0 .. count() - 1 and reads in large pieces, so one call may cover thousands.
    virtual void values(qsizetype first, qsizetype n, double* out) const = 0;
};
