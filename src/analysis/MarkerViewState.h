#pragma once

// What a view keeps about its marker view besides the trend's own flags (MarkerViewFlag and
// MarkerAutoCalc): views(n).part<MarkerViewState>().
struct MarkerViewState {
    bool StatisticsValid = false; // the marker series hold the span of the cursors
    bool ShowAll = true;          // disp_1: the statistics of all data (columns 4..8)
    bool ShowMarker = true;       // disp_2: the statistics between the cursors (9..13)
};
