#pragma once

#include "savedwork/RecordPair.h"

#include <QByteArray>
#include <QtGlobal>

#include <array>

// The fixed part of the trend parameter record, 78 bytes: this view's entry of each array.
struct TrndParaFixed {
    static constexpr int kLength = 78;

    qint32 PointCount = 0;
    std::array<qint32, 2> MarkerCalcValue{};
    std::array<qint32, 2> CursorPoint{};
    qint16 MarkerAutoCalc = 0;
    std::array<qint16, 2> CalcLineChannel{};
    qint16 ChannelCount = 0;
    qint16 ChannelCountOrig = 0;
    qint32 SampleInterval = 0;
    double ViewStart = 0; // date value, see OleDate
    qint16 ViewStartMsec = 0;
    std::array<qint32, 2> TimeLabelInterval{};
    qint16 ViewInUse = 0;
    qint16 BarPlacement = 0;
    qint16 ChartMouseFlag = 0;
    qint16 AxisLabelsOn = 0;
    qint16 MarkerViewFlag = 0;
    qint32 BarPosition = 0;
    qint32 ViewShownPoints = 0;
    std::array<qint32, 2> TimeAxisChoice{};
};

// The trend parameter record: the fixed part, N entries of each per-line array and the view's
// tail. The old layout has no enabled array.
template <int N, bool kHasEnabled> struct TrndParaSetRecord {
    static constexpr int kLineBytes = kHasEnabled ? 36 : 32;
    static constexpr int kLength = kLineBytes * N + 86;

    TrndParaFixed Fixed;
    std::array<qint32, N> Enabled{};
    std::array<qint16, N> SourceColumn{};
    std::array<qint16, N> AddFlag{};
    std::array<qint16, N> SecondColumn{};
    std::array<double, N> Constant{};
    std::array<double, N> ScaleLow{};
    std::array<double, N> ScaleHigh{};
    std::array<qint16, N> Decimals{};
    std::array<qint16, 4> ViewTail{};

    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
};

using TrndParaSetOld = TrndParaSetRecord<129, false>; // 4214 bytes
using TrndParaSetNew = TrndParaSetRecord<373, true>;  // 13514 bytes

// TrndParaSet.sys of the archive work directory in its two layouts.
class clsTrndParaSet : public RecordPair<TrndParaSetOld, TrndParaSetNew> {
public:
    clsTrndParaSet() : RecordPair(RecordNames::TrndParaSet) {}
    // Fixed fields one to one, lines 0..128 of each array; a line is enabled where it has a
    // source column.
    bool CopyStructure(bool& result);
};
