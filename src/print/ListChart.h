#pragma once

#include <QString>

#include <vector>

class ChartModel;
struct lxw_workbook;
struct lxw_worksheet;

// The line chart of one sheet of a list workbook, drawn as the trend draws: one series a shown
// channel (categories the time column, names from the header row), the trend's pens, markers,
// title, axis titles, legend, backgrounds and value range.
struct ListChartSheet {
    QString name;              // the sheet's name, for the ranges
    int rows = 0;              // data rows below the header row
    std::vector<int> channels; // shown channels, in their columns from the third on
    bool percentMode = false;  // the value range is then the chart's own
    int intervalMs = 1000;
};

// Adds the chart to the sheet, placed at 10, 100 pt and 600 x 330 pt. False when the library
// refused it.
bool addListChart(lxw_workbook* book, lxw_worksheet* sheet, const ChartModel& chart,
                  const ListChartSheet& layout);
