#include "savedwork/clsAlmStyle.h"

#include <algorithm>

namespace {

template <typename T, size_t Slots, size_t From, size_t To>
void copySlots(std::array<std::array<T, To>, Slots>& to,
               const std::array<std::array<T, From>, Slots>& from) {
    for (size_t k = 0; k < Slots; ++k) std::copy(from[k].begin(), from[k].end(), to[k].begin());
}

} // namespace

template <int N> QByteArray AlmStyleRecord<N>::toBytes() const {
    RecordWriter w;
    for (const auto& slot : Symbol) w.i16s(slot);
    for (const auto& slot : Color) w.i32s(slot);
    for (const auto& slot : Size) w.i16s(slot);
    return w.bytes();
}

template <int N> void AlmStyleRecord<N>::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    for (auto& slot : Symbol) r.i16s(slot);
    for (auto& slot : Color) r.i32s(slot);
    for (auto& slot : Size) r.i16s(slot);
}

template struct AlmStyleRecord<128>;
template struct AlmStyleRecord<372>;

bool clsAlmStyle::CopyStructure(bool& result) {
    NewRecord = AlmStyleNew();
    copySlots(NewRecord.Symbol, OldRecord.Symbol);
    copySlots(NewRecord.Color, OldRecord.Color);
    copySlots(NewRecord.Size, OldRecord.Size);
    result = true;
    return result;
}
