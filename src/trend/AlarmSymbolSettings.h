#pragma once

#include "trend/AlarmStyle.h"

#include <QString>

class Progress;
class TrendView;

// The logic of frmAlarmSymbolSetting: symbol, colour and size of the alarm marks per channel
// and level, and the chkShow flag. The dialog works on a copy of the view's style record; OK
// keeps it, Cancel puts the record back as it was at opening, the preview shows the copy on
// the trend and keeps the way back.
class AlarmSymbolSettings {
public:
    static constexpr int kLevels = 4;          // MaximumAlarmLevel: the levels on show
    static constexpr int kColumnsPerLevel = 3; // symbol, colour, size
    static constexpr int kSymbolCount = 11;    // chart symbol shapes 1..11, 1 draws none

    explicit AlarmSymbolSettings(TrendView& view);

    int channelCount() const;
    // SpreadAlarm: one row per channel with its tag; columns 1..12, three per level.
    QString rowHeader(int channel) const;
    QString columnHeader(int column) const;
    static int levelOfColumn(int column) { return (column - 1) / kColumnsPerLevel + 1; }
    // 0 symbol, 1 colour, 2 size.
    static int kindOfColumn(int column) { return (column - 1) % kColumnsPerLevel; }

    AlarmStyle& working() { return working_; }
    const AlarmStyle& working() const { return working_; }
    bool chkShow = false;

    // "プレビュー": the working style (and flag) on the trend; Cancel can still go back.
    void preview(Progress* progress = nullptr);
    // Keeps the working style and the flag. With no channel only the flag is stored.
    void OK(Progress* progress = nullptr);
    // Puts back the record and flag of the opening, redrawing when a preview changed them.
    void Cancel(Progress* progress = nullptr);

private:
    void apply(const AlarmStyle& style, bool show, Progress* progress);

    TrendView& v_;
    AlarmStyle working_;
    AlarmStyle opening_;
    bool openingShow_ = false;
    bool previewed_ = false;
};
