#include "savedwork/clsTrndParaSet.h"

#include <algorithm>

namespace {

// The layout of the record, stated once for writing (const record) and reading.
template <typename IO, typename Fixed> void fixedFields(IO& io, Fixed& f) {
    io.field(f.PointCount);
    io.field(f.MarkerCalcValue);
    io.field(f.CursorPoint);
    io.field(f.MarkerAutoCalc);
    io.field(f.CalcLineChannel);
    io.field(f.ChannelCount);
    io.field(f.ChannelCountOrig);
    io.field(f.SampleInterval);
    io.field(f.ViewStart);
    io.field(f.ViewStartMsec);
    io.field(f.TimeLabelInterval);
    io.field(f.ViewInUse);
    io.field(f.BarPlacement);
    io.field(f.ChartMouseFlag);
    io.field(f.AxisLabelsOn);
    io.field(f.MarkerViewFlag);
    io.field(f.BarPosition);
    io.field(f.ViewShownPoints);
    io.field(f.TimeAxisChoice);
}

template <bool kHasEnabled, typename IO, typename Record> void recordFields(IO& io, Record& r) {
    fixedFields(io, r.Fixed);
    if constexpr (kHasEnabled) io.field(r.Enabled);
    io.field(r.SourceColumn);
    io.field(r.AddFlag);
    io.field(r.SecondColumn);
    io.field(r.Constant);
    io.field(r.ScaleLow);
    io.field(r.ScaleHigh);
    io.field(r.Decimals);
    io.field(r.ViewTail);
}

template <size_t N, typename T>
void copyHead(std::array<T, N>& to, const std::array<T, 129>& from) {
    std::copy(from.begin(), from.end(), to.begin());
}

} // namespace

template <int N, bool kHasEnabled> QByteArray TrndParaSetRecord<N, kHasEnabled>::toBytes() const {
    RecordWriter w;
    recordFields<kHasEnabled>(w, *this);
    return w.bytes();
}

template <int N, bool kHasEnabled>
void TrndParaSetRecord<N, kHasEnabled>::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    recordFields<kHasEnabled>(r, *this);
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
