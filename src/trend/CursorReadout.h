#pragma once

#include <QString>
#include <QtGlobal>

class ReadoutCells;
class TrendView;

// Where a readout puts its texts in a grid: the date and time rows (date row 0: date and time
// together in the time row), the row of channel 1, and which time span rule the A-B column
// follows.
struct ReadoutLayout {
    int dateRow = 1;
    int timeRow = 2;
    int firstChannelRow = 3;
    bool markerSpan = false; // MarkABset's thresholds instead of the side grid's
};

// The values of every channel at a cursor, written into a grid: column 1 for cursor A, 2 for
// cursor B, 3 for A - B.
namespace CursorReadout {

inline constexpr ReadoutLayout kSideGrid{1, 2, 3, false};
inline constexpr ReadoutLayout kMarkerView{0, 1, 2, true};

// rgb(255,0,0) and rgb(0,0,0) as 0x00BBGGRR.
inline constexpr quint32 kAlarmColor = 0x0000FF;
inline constexpr quint32 kNormalColor = 0x000000;

// Column `cursor` (1 or 2) for the point (1-based): date and time, each channel's value in
// engineering units with its format (a hole shows its status or message 179), red where an
// alarm level is set; then the A-B cells and the time between the cursors.
void write(TrendView& view, ReadoutCells& grid, const ReadoutLayout& layout, int cursor,
           qint32 point);

// The A-B cell of a channel row from the row's A and B texts. Left as it was when either text
// is not a number.
void writeDifference(TrendView& view, ReadoutCells& grid, int row, int channel);

// The first alarm level set at (point, channel), 0 when none.
int firstAlarmLevel(int viewNumber, qint32 point, int channel);

// The tool tip of the marker view's red cells: message 8 or 9, then a line (CR LF) per set level
// with message 229, the level and the alarm kind.
QString markerAlarmTip(int viewNumber, int cursor, qint32 point, int channel);

} // namespace CursorReadout

// The marker view's cursor columns: time row 1, channels from row 2.
void MarkABset(TrendView& view, ReadoutCells& markerGrid, int cursor, qint32 point);
