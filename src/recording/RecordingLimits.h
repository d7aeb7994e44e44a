#pragma once

// Compile-time limits of a recording.
constexpr int MaxViews = 10;
constexpr int MaxChannels = 372;
constexpr int MaxStoreCols = 744;
constexpr int MaxRowsShown = 32767;
constexpr int MinPointsVXF = 300;
constexpr int MaxGroups = 10;
