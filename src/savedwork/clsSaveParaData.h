#pragma once

#include "savedwork/RecordPair.h"

#include <QByteArray>
#include <QtGlobal>

#include <array>

// The zoom stack and window state of a view. The two layouts differ in widths only: the
// three flags are 32-bit in the old one and 16-bit in the new one, the bar position the
// other way round; the zoom stack is three rows (slots 0..2) of the levels 0..100.
template <typename FlagT, typename BarT> struct SaveParaDataFields {
    static constexpr int kLevels = 101;

    qint16 ZoomLevel = 0;
    qint16 ViewNumber = 0;
    qint16 PointScale = 0;
    BarT BarPosition = 0;
    std::array<FlagT, 3> Flags{}; // CursorAOn, CursorBOn, ScalePercentMode (-1 true, 0 false)
    std::array<std::array<qint32, kLevels>, 3> ZoomX{}; // [slot][level]: slot 1 start, 2 end
    std::array<std::array<double, kLevels>, 3> ZoomY{}; // [slot][level]: slot 1 min, 2 max
    // hsbTrendGraph, vsbTrendGraph, hsbBarGraph, vsbBarGraph: Min, Max, Value, SmallChange,
    // LargeChange.
    std::array<std::array<qint16, 5>, 4> ScrollBars{};
    std::array<qint16, 2> AxisChannel{};
    qint16 ScaleType = 0;
    qint16 ScrollScale = 0;
};

// New layout, 3732 bytes in blocks of 2, 1226, 2442 and 62: ZoomX at 16, ZoomY at 1228.
struct SaveParaDataNew : SaveParaDataFields<qint16, qint32> {
    static constexpr int kLength = 3732;
    static constexpr int kZoomXOffset = 16;
    static constexpr int kZoomYOffset = 1228;
    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
};

// Old layout, 3742 bytes in blocks of 2, 1218, 10, 18 and 2494: ZoomX at 8, ZoomY at 1248.
struct SaveParaDataOld : SaveParaDataFields<qint32, qint16> {
    static constexpr int kLength = 3742;
    static constexpr int kZoomXOffset = 8;
    static constexpr int kZoomYOffset = 1248;
    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
};

// SaveParaData.sys of the archive work directory in its two layouts.
class clsSaveParaData : public RecordPair<SaveParaDataOld, SaveParaDataNew> {
public:
    clsSaveParaData() : RecordPair(RecordNames::SaveParaData) {}
    // Every field moves with its new width; the three zoom rows are copied whole.
    bool CopyStructure(bool& result);
};
