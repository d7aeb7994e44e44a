#pragma once

#include <QStringList>
#include <QVector>
#include <QtGlobal>

// The pen table of a view, channels Lower..Lower + size - 1, each array of the same size.
struct PenDataRecord {
    qint32 Lower = 1;
    QVector<quint32> Color; // 0x00BBGGRR
    QVector<qint16> Pattern;
    QVector<qint16> Width;
    QVector<qint16> Symbol;
    QVector<qint16> SymbolSize;
    QVector<qint16> Shown; // -1 shown, 0 hidden

    bool operator==(const PenDataRecord&) const = default;
};

// The marks of a circular graph, entries Lower..; an empty text is a missing mark.
struct CrlDataRecord {
    qint32 Lower = 1;
    QStringList Marks;

    bool operator==(const CrlDataRecord&) const = default;
};

// The word that stands for a missing mark in crlData.sys.
inline constexpr char kNoData[] = "NoData";

// Written to the trend settings directory, read from the archive work directory. A read that
// fails (missing file, another form, arrays of unequal bounds) leaves the record as it was.
bool WritePenData(const PenDataRecord& record);
bool ReadPenData(PenDataRecord& record);
bool WritecrlData(const CrlDataRecord& record);
bool ReadcrlData(CrlDataRecord& record);
