#pragma once

// Family codes of recorder files; also the option numbers of the selection dialog.
namespace Family {
constexpr int VXF = 0;
constexpr int VXB = 1;
constexpr int QDF = 2;
constexpr int TM = 3;
constexpr int N5F = 4;
constexpr int CSV = 5;
constexpr int JLM = 6;
constexpr int P4F = 34;
constexpr int MSG = 99;
} // namespace Family

// Formats of the core reader, decided from a file's magic.
namespace Format {
constexpr int VXF = 0;
constexpr int QDF = 2;
constexpr int NP = 3; // N5F, and P4F in GS mode
constexpr int TM6 = 6;
constexpr int TM12 = 12;
} // namespace Format
