#pragma once

#include "platform/ChartSeries.h"
#include "recording/RecordingLimits.h"

#include <QtGlobal>

#include <array>

struct TrendViewState;

// The alarm style record of a view: symbol, colour (0x00BBGGRR) and size for six alarm slots of
// 372 channels. Slots 1..MaximumAlarmLevel are the alarm levels; slots 5 and 6 are kept as
// they are. The view's copy lives in its trend state; this is the value that the dialog works
// on, and the bridge to the per-point styles of the chart.
struct AlarmStyle {
    static constexpr int kSlots = 6;
    static constexpr qint16 kNoSymbol = 1;

    template <typename T> using Table = std::array<std::array<T, MaxChannels>, kSlots>;
    Table<qint16> symbol;
    Table<quint32> color;
    Table<qint16> size;

    // Symbol k for slots 1..5 and 10 for slot 6, red, size 4.
    AlarmStyle();

    static AlarmStyle of(const TrendViewState& state);
    void applyTo(TrendViewState& state) const;

    // Slot (level) 1..6 and channel 1..372.
    qint16 Symbol(int slot, int channel) const { return symbol[idx(slot)][idx(channel)]; }
    quint32 Color(int slot, int channel) const { return color[idx(slot)][idx(channel)]; }
    qint16 Size(int slot, int channel) const { return size[idx(slot)][idx(channel)]; }
    void setSymbol(int slot, int channel, qint16 v) { symbol[idx(slot)][idx(channel)] = v; }
    void setColor(int slot, int channel, quint32 v) { color[idx(slot)][idx(channel)] = v; }
    // A symbol size the user types is held to 1..99.
    void setSize(int slot, int channel, int v) {
        size[idx(slot)][idx(channel)] = qint16(qBound(kMinSize, v, kMaxSize));
    }
    static constexpr int kMinSize = 1;
    static constexpr int kMaxSize = 99;

    // The look of a point in alarm at this slot, as the chart draws it.
    PointStyle pointStyle(int slot, int channel) const;

    bool operator==(const AlarmStyle&) const = default;

private:
    static size_t idx(int oneBased) { return size_t(oneBased - 1); }
};
