#pragma once

#include "recording/RecordingLimits.h"

#include <QString>

#include <array>

// Channel descriptions of a view, channels 1..MaxChannels (index 0 unused).
struct ChannelTable {
    std::array<qint16, MaxChannels + 1> ChExpDigits{};
    std::array<QString, MaxChannels + 1> ChTag;     // at most 16 characters
    std::array<QString, MaxChannels + 1> ChUnit;    // at most 8 characters
    std::array<quint32, MaxChannels + 1> ChColor{}; // 0x00BBGGRR
    std::array<QString, MaxChannels + 1> ChScaleLow;
    std::array<QString, MaxChannels + 1> ChScaleHigh;
    std::array<bool, MaxChannels + 1> ChLogFlag{};

    void clear() { *this = ChannelTable(); }
    void setTag(int ch, const QString& tag) { ChTag[size_t(ch)] = tag.left(16); }
    void setUnit(int ch, const QString& unit) { ChUnit[size_t(ch)] = unit.left(8); }
};
