#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <array>

// Short-lived backups of a view in the work files: "WindBak" n ".sys", "TrndBak" n ".sys" and
// "MultiScaleBak" n ".sys". A read from an empty or missing file leaves the record as it was
// and gives false; a file shorter than the record reads as zero beyond its end.

// The window of a view: its show state and left, top, width and height.
struct WindBakRecord {
    static constexpr int kLength = 18;
    qint16 WindowState = 0; // 0 normal, 1 minimised, 2 maximised
    std::array<qint32, 4> Window{};

    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
    bool operator==(const WindBakRecord&) const = default;
};

// The trend backup is kept as its writer handed it over.
struct TrndBakRecord {
    static constexpr int kLength = 90;
    std::array<quint8, kLength> Bytes{};

    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
    bool operator==(const TrndBakRecord&) const = default;
};

// The multi-scale table: its flag and rows 1..128 of scale low and high.
struct MultiScaleBakRecord {
    static constexpr int kLength = 2052;
    static constexpr int kRows = 128;
    qint32 Flag = 0;
    std::array<std::array<double, 2>, kRows> Entries{};

    QByteArray toBytes() const;
    void fromBytes(const QByteArray& bytes);
};

bool WriteWindBak(int viewNumber, const WindBakRecord& record);
bool ReadWindBak(int viewNumber, WindBakRecord& record);
bool WriteTrndBak(int viewNumber, const TrndBakRecord& record);
bool ReadTrndBak(int viewNumber, TrndBakRecord& record);

// The multi-scale backup of a view's table (MultiScaleFlag and MultiScale of its trend state).
bool WriteMultiScaleBak(int viewNumber);
bool ReadMultiScaleBak(int viewNumber);
// Clears both words of all 128 rows of the view's table.
void ResetMultiScaleBak(int viewNumber);
