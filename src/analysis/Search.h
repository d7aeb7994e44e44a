#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

class Progress;
class TrendView;

// One search of frmSearch without its window: the kinds of condition, the loops (channels
// outer, points inner) and the hits; texts are formed only for the rows shown.
namespace Search {

enum Kind {
    KindMaximum = 0,
    KindMinimum = 1,
    KindMean = 2,
    SearchKindSigma = 3,
    SearchKindStat5 = 4,
    SearchKindValue = 5,
    SearchKindTime = 6,
    SearchKindMarker = 7,
    SearchKindComment = 8,
    SearchKindAlarm = 9,
};

struct Input {
    int kind = KindMaximum;
    // The channel combo's index: 0..N-1 a channel, N (the last item) all channels.
    int channelItem = 0;
    int option = 0; // Option1(0..3)
    QString text1, text2;
    // Kind 6: the from and to times (seconds since 2000-01-01, milliseconds).
    qint64 fromSeconds = 0, toSeconds = 0;
    int fromMsec = 0, toMsec = 0;
    // Kind 7: 0 cursor A, 1 cursor B, 2..6 a statistic between the cursors. Kind 7 statistics
    // and kind 9 also read Combo1: the channel (index as channelItem) or the alarm level (0 any).
    int item = 0;
    int combo1 = 0;
};

struct Hit {
    qint32 point;   // 1-based
    qint32 channel; // 0 for kinds without a channel (time)
    qint32 label;   // kind 8: the chart label's index
};

struct Result {
    std::vector<Hit> hits;
    int message = 0; // the message shown at the end: 101 none found, 102 bad value, 565 no cursor
    QString text1, text2; // the boxes after the search (kinds 3 and 7 write the band)
    bool cancelled = false;
};

// Runs the search over the view's chart. Progress is polled at most every 50 ms; a cancel keeps
// the hits found so far.
Result run(TrendView& view, const Input& in, Progress* progress = nullptr);

// The texts of result row `index` from column 1 on (point - 1, date and time, the value or
// comment or alarm texts, for kind 9 the value).
QStringList rowTexts(TrendView& view, const Input& in, const Result& result, size_t index);
// The headers of columns 1.. (column 1 has none of its own).
QStringList headers(int kind);

// A click on a hit: the marker line at the point, its date and time in lblDateTemp, the trend
// scrolled so that the point stands in the middle where it can.
void jump(TrendView& view, const QStringList& row);

} // namespace Search
