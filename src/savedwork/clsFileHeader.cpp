#include "savedwork/clsFileHeader.h"

#include "savedwork/RecordBytes.h"

template <int N> QByteArray FileHeaderRecord<N>::toBytes() const {
    RecordWriter w;
    w.i16s(ChExpDigits);
    for (const QString& tag : ChTag) w.text(tag, kTagWidth);
    for (const QString& unit : ChUnit) w.text(unit, kUnitWidth);
    w.i32s(ChColor);
    return w.bytes();
}

template <int N> void FileHeaderRecord<N>::fromBytes(const QByteArray& bytes) {
    RecordReader r(bytes);
    r.i16s(ChExpDigits);
    for (QString& tag : ChTag) tag = r.text(kTagWidth);
    for (QString& unit : ChUnit) unit = r.text(kUnitWidth);
    r.i32s(ChColor);
}

template struct FileHeaderRecord<128>;
template struct FileHeaderRecord<372>;

bool clsFileHeader::CopyStructure(bool& result) {
    NewRecord = FileHeaderNew();
    for (size_t i = 0; i < OldRecord.ChTag.size(); ++i) {
        NewRecord.ChExpDigits[i] = OldRecord.ChExpDigits[i];
        NewRecord.ChTag[i] = OldRecord.ChTag[i];
        NewRecord.ChUnit[i] = OldRecord.ChUnit[i];
        NewRecord.ChColor[i] = OldRecord.ChColor[i];
    }
    result = true;
    return result;
}
