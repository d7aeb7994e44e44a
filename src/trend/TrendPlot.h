#pragma once

#include "trend/TrendViewState.h"

#include <QStringList>
#include <QtGlobal>

#include <vector>

class Progress;
class TrendView;

// The chart's data of a view: filling the series from the store, refilling after a change of
// scale or calculation, the cursor and calculation series, and the channel choice.
// Series 1..C are the channels, C+1 and C+2 the cursors, C+3..C+14 the calculation lines.
class TrendPlot {
public:
    // A view holding this many points or more is refused at load.
    static constexpr qint32 MaximumAlarmCount = 3600000;

    explicit TrendPlot(TrendView& view) : v_(view) {}

    // Lines 1..C from the channel table: each channel feeds its own line with its scale.
    void initLines();

    // CH_DataSet: every point of every channel into the chart, then the axes.
    void CH_DataSet();
    // Refills Y of series 1..C through PlotValue (calculation, scale or percent mode changed).
    void ScaleCalculateSet();

    enum class LoadFill { Filled, TooLarge, OutOfMemory, NoChannels };
    // The fill at the end of a load: the size check, the channels straight from the store with
    // progress 50..95, the Y range and zoom level 0.
    LoadFill loadFill(Progress* progress);

    // Styles the 14 series after the channels: two points each, hidden until used.
    void MakerLineSet2();

    // cbxSelectCH: item 0 shows every channel, item k channel k alone.
    void selectChannel(int item);
    // The items of cbxSelectCH: every channel, then each channel by its tag.
    QStringList channelChoiceItems() const;
    // The item that stands for what the chart shows: k when channel k is alone, else 0.
    int shownChannelItem() const;

    // The mode a view takes from its channels when no saved setting forces it: false on a
    // logarithmic Y or when every channel has the scale of channel 1.
    bool channelsNeedPercent() const;

private:
    void fillSeries(bool direct, Progress* progress);
    void setChannelStyles();
    void finishFill();

    TrendView& v_;
    // What each channel series was last filled from: a refill with the same line and mode
    // would give the same points, so it is skipped.
    struct Fill {
        TrendLine line;
        bool percent = false;
        const void* store = nullptr;
        qint32 points = 0;
        bool operator==(const Fill&) const = default;
    };
    std::vector<Fill> filled_;
};
