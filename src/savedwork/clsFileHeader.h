#pragma once

#include "savedwork/RecordPair.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <array>

// The channel header of a saved trend: N channels of exponent digits, tag (16 bytes), unit
// (8 bytes) and colour, each array whole after the one before.
template <int N> struct FileHeaderRecord {
    static constexpr int kLength = N * (2 + 16 + 8 + 4);
    static constexpr int kTagWidth = 16;
    static constexpr int kUnitWidth = 8;

    std::array<qint16, N> ChExpDigits{};
    std::array<QString, N> ChTag; // as stored: blank fill kept, NULs removed
    std::array<QString, N> ChUnit;
    std::array<quint32, N> ChColor{};

    QByteArray toBytes() const;
    // Fields past the end of `bytes` become zero.
    void fromBytes(const QByteArray& bytes);
};

using FileHeaderOld = FileHeaderRecord<128>; // 3840 bytes
using FileHeaderNew = FileHeaderRecord<372>; // 11160 bytes

// FileHeader.sys of the archive work directory in its two layouts.
class clsFileHeader : public RecordPair<FileHeaderOld, FileHeaderNew> {
public:
    clsFileHeader() : RecordPair(RecordNames::FileHeader) {}
    // The first 128 channels move over; the others stay zero.
    bool CopyStructure(bool& result);
};
