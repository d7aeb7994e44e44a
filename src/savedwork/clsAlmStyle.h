#pragma once

#include "savedwork/RecordPair.h"

#include <QByteArray>
#include <QtGlobal>

#include <array>

// Alarm symbol styles: three whole arrays, symbol, colour and size, each six slots of N
// channels, a slot being one block of N entries. 8 bytes per (slot, channel).
template <int N> struct AlmStyleRecord {
    static constexpr int kSlots = 6;
    static constexpr int kLength = kSlots * N * (2 + 4 + 2);

    std::array<std::array<qint16, N>, kSlots> Symbol{};
    std::array<std::array<quint32, N>, kSlots> Color{};
    std::array<std::array<qint16, N>, kSlots> Size{};

    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
};

using AlmStyleOld = AlmStyleRecord<128>; // 6144 bytes
using AlmStyleNew = AlmStyleRecord<372>; // 17856 bytes

// AlmStyle.sys of the archive work directory in its two layouts.
class clsAlmStyle : public RecordPair<AlmStyleOld, AlmStyleNew> {
public:
    clsAlmStyle() : RecordPair(RecordNames::AlmStyle) {}
    // Each slot keeps its block: (slot, channel) moves from slot x 128 + channel to
    // slot x 372 + channel; channels 129..372 stay zero.
    bool CopyStructure(bool& result);
};
