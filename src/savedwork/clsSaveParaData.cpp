#include "savedwork/clsSaveParaData.h"

namespace {

template <typename Rec> void writeZoomX(RecordWriter& w, const Rec& r) {
    for (const auto& row : r.ZoomX) w.i32s(row);
}
template <typename Rec> void writeZoomY(RecordWriter& w, const Rec& r) {
    for (const auto& row : r.ZoomY) w.f64s(row);
}
template <typename Rec> void readZoomX(RecordReader& rd, Rec& r) {
    for (auto& row : r.ZoomX) rd.i32s(row);
}
template <typename Rec> void readZoomY(RecordReader& rd, Rec& r) {
    for (auto& row : r.ZoomY) rd.f64s(row);
}

// Scroll bars, axis channels, scale type and scroll scale: 48 bytes in both layouts.
template <typename Rec> void writeTail(RecordWriter& w, const Rec& r) {
    for (const auto& bar : r.ScrollBars) w.i16s(bar);
    w.i16s(r.AxisChannel);
    w.i16(r.ScaleType);
    w.i16(r.ScrollScale);
}
template <typename Rec> void readTail(RecordReader& rd, Rec& r) {
    for (auto& bar : r.ScrollBars) rd.i16s(bar);
    rd.i16s(r.AxisChannel);
    r.ScaleType = rd.i16();
    r.ScrollScale = rd.i16();
}

template <typename Rec> void writeHead(RecordWriter& w, const Rec& r) {
    w.i16(r.ZoomLevel);
    w.i16(r.ViewNumber);
    w.i16(r.PointScale);
}
template <typename Rec> void readHead(RecordReader& rd, Rec& r) {
    r.ZoomLevel = rd.i16();
    r.ViewNumber = rd.i16();
    r.PointScale = rd.i16();
}

} // namespace

QByteArray SaveParaDataNew::toBytes() const {
    RecordWriter w;
    writeHead(w, *this);
    w.i32(BarPosition);
    w.i16s(Flags);
    writeZoomX(w, *this);
    writeZoomY(w, *this);
    writeTail(w, *this);
    w.zeros(kLength - int(w.bytes().size()));
    return w.bytes();
}

void SaveParaDataNew::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    readHead(r, *this);
    BarPosition = r.i32();
    r.i16s(Flags);
    readZoomX(r, *this);
    readZoomY(r, *this);
    readTail(r, *this);
}

QByteArray SaveParaDataOld::toBytes() const {
    RecordWriter w;
    writeHead(w, *this);
    w.i16(BarPosition);
    writeZoomX(w, *this);
    w.i32(Flags[0]);
    w.i32(Flags[1]);
    w.zeros(2);
    w.i32(Flags[2]);
    w.zeros(14);
    writeZoomY(w, *this);
    writeTail(w, *this);
    w.zeros(kLength - int(w.bytes().size()));
    return w.bytes();
}

void SaveParaDataOld::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    readHead(r, *this);
    BarPosition = r.i16();
    readZoomX(r, *this);
    Flags[0] = r.i32();
    Flags[1] = r.i32();
    r.skip(2);
    Flags[2] = r.i32();
    r.skip(14);
    readZoomY(r, *this);
    readTail(r, *this);
}

bool clsSaveParaData::CopyStructure(bool& result) {
    NewRecord = SaveParaDataNew();
    NewRecord.ZoomLevel = OldRecord.ZoomLevel;
    NewRecord.ViewNumber = OldRecord.ViewNumber;
    NewRecord.PointScale = OldRecord.PointScale;
    NewRecord.BarPosition = OldRecord.BarPosition;
    for (size_t i = 0; i < OldRecord.Flags.size(); ++i)
        NewRecord.Flags[i] = qint16(OldRecord.Flags[i]);
    NewRecord.ZoomX = OldRecord.ZoomX;
    NewRecord.ZoomY = OldRecord.ZoomY;
    NewRecord.ScrollBars = OldRecord.ScrollBars;
    NewRecord.AxisChannel = OldRecord.AxisChannel;
    NewRecord.ScaleType = OldRecord.ScaleType;
    NewRecord.ScrollScale = OldRecord.ScrollScale;
    result = true;
    return result;
}
