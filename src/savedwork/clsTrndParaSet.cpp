#include "savedwork/clsTrndParaSet.h"

#include <algorithm>

namespace {

void writeFixed(RecordWriter& w, const TrndParaFixed& f) {
    w.i32(f.PointCount);
    w.i32s(f.MarkerCalcValue);
    w.i32s(f.CursorPoint);
    w.i16(f.MarkerAutoCalc);
    w.i16s(f.CalcLineChannel);
    w.i16(f.ChannelCount);
    w.i16(f.ChannelCountOrig);
    w.i32(f.SampleInterval);
    w.f64(f.ViewStart);
    w.i16(f.ViewStartMsec);
    w.i32s(f.TimeLabelInterval);
    w.i16(f.ViewInUse);
    w.i16(f.BarPlacement);
    w.i16(f.ChartMouseFlag);
    w.i16(f.AxisLabelsOn);
    w.i16(f.MarkerViewFlag);
    w.i32(f.BarPosition);
    w.i32(f.ViewShownPoints);
    w.i32s(f.TimeAxisChoice);
}

void readFixed(RecordReader& r, TrndParaFixed& f) {
    f.PointCount = r.i32();
    r.i32s(f.MarkerCalcValue);
    r.i32s(f.CursorPoint);
    f.MarkerAutoCalc = r.i16();
    r.i16s(f.CalcLineChannel);
    f.ChannelCount = r.i16();
    f.ChannelCountOrig = r.i16();
    f.SampleInterval = r.i32();
    f.ViewStart = r.f64();
    f.ViewStartMsec = r.i16();
    r.i32s(f.TimeLabelInterval);
    f.ViewInUse = r.i16();
    f.BarPlacement = r.i16();
    f.ChartMouseFlag = r.i16();
    f.AxisLabelsOn = r.i16();
    f.MarkerViewFlag = r.i16();
    f.BarPosition = r.i32();
    f.ViewShownPoints = r.i32();
    r.i32s(f.TimeAxisChoice);
}

template <size_t N, typename T>
void copyHead(std::array<T, N>& to, const std::array<T, 129>& from) {
    std::copy(from.begin(), from.end(), to.begin());
}

} // namespace

template <int N, bool kHasEnabled> QByteArray TrndParaSetRecord<N, kHasEnabled>::toBytes() const {
    RecordWriter w;
    writeFixed(w, Fixed);
    if constexpr (kHasEnabled) w.i32s(Enabled);
    w.i16s(SourceColumn);
    w.i16s(AddFlag);
    w.i16s(SecondColumn);
    w.f64s(Constant);
    w.f64s(ScaleLow);
    w.f64s(ScaleHigh);
    w.i16s(Decimals);
    w.i16s(ViewTail);
    return w.bytes();
}

template <int N, bool kHasEnabled>
void TrndParaSetRecord<N, kHasEnabled>::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    readFixed(r, Fixed);
    if constexpr (kHasEnabled) r.i32s(Enabled);
    r.i16s(SourceColumn);
    r.i16s(AddFlag);
    r.i16s(SecondColumn);
    r.f64s(Constant);
    r.f64s(ScaleLow);
    r.f64s(ScaleHigh);
    r.i16s(Decimals);
    r.i16s(ViewTail);
}

template struct TrndParaSetRecord<129, false>;
template struct TrndParaSetRecord<373, true>;

bool clsTrndParaSet::CopyStructure(bool& result) {
    NewRecord = TrndParaSetNew();
    NewRecord.Fixed = OldRecord.Fixed;
    copyHead(NewRecord.SourceColumn, OldRecord.SourceColumn);
    copyHead(NewRecord.AddFlag, OldRecord.AddFlag);
    copyHead(NewRecord.SecondColumn, OldRecord.SecondColumn);
    copyHead(NewRecord.Constant, OldRecord.Constant);
    copyHead(NewRecord.ScaleLow, OldRecord.ScaleLow);
    copyHead(NewRecord.ScaleHigh, OldRecord.ScaleHigh);
    copyHead(NewRecord.Decimals, OldRecord.Decimals);
    NewRecord.ViewTail = OldRecord.ViewTail;
    for (size_t i = 0; i < OldRecord.SourceColumn.size(); ++i)
        NewRecord.Enabled[i] = OldRecord.SourceColumn[i] != 0 ? 1 : 0;
    result = true;
    return result;
}
