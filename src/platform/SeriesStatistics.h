#pragma once

#include "platform/SeriesSource.h"

// The five statistics of a series, one rule for every caller (marker view, search, calculation
// lines): holes are left out; the standard deviation is that of the population, so one point
// gives 0; Stat5 is the median, the mean of the two middle values for an even count. A range of
// holes only gives the hole for all five.
struct SeriesStatistics {
    double Maximum;
    double Minimum;
    double Mean;
    double StdDev;
    double Stat5;
    qsizetype valueCount = 0; // points that are not holes

    SeriesStatistics();

    static SeriesStatistics of(const double* values, qsizetype count);
    // Points first .. first + n - 1 of a source, read in bulk.
    static SeriesStatistics of(const SeriesSource& source, qsizetype first, qsizetype n);
};
