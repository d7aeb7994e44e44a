#pragma once

#include <QtGlobal>

#include <vector>

// AlarmTable(level, row, channel) of a view: the alarm kind of each level at each point of each
// channel, 0 when off. Kinds are single digits, so a level takes 4 bits and a (point, channel)
// one 16-bit cell: level 1 in the lowest nibble. Reads outside the table answer 0.
class AlarmTable {
public:
    static constexpr int kLevels = 4; // MaximumAlarmLevel

    // Sizes the table for points 1..points and channels 1..channels, every cell off.
    void resize(qint32 points, int channels);
    void clear() { resize(0, 0); }
    qint32 points() const { return points_; }
    int channels() const { return int(cells_.size()); }

    qint32 operator()(int level, qint32 row, int channel) const;
    void set(int level, qint32 row, int channel, int kind);
    // Any level set at (row, channel).
    bool any(qint32 row, int channel) const { return cell(row, channel) != 0; }
    // The four levels of (row, channel) at once, level 1 in the lowest nibble.
    quint16 cell(qint32 row, int channel) const;
    // Rows 1..points of a channel (index = row; index 0 unused), for bulk scans.
    const std::vector<quint16>& column(int channel) const { return cells_[size_t(channel - 1)]; }

    // Fills the table from the alarm columns (2c - 1) of the view's store. After a load a
    // character that is not a digit is a conversion failure that leaves every cell off; the
    // saved-work path reads such a character as 0. False when the table could not be held
    // ("Out of memory." was shown and the table is empty) or a character failed.
    enum class Path { AfterLoad, SavedWork };
    bool fill(int viewNumber, Path path);

private:
    bool fillColumn(int viewNumber, int channel, Path path);

    qint32 points_ = 0;
    std::vector<std::vector<quint16>> cells_; // [channel - 1][row]
};

// The alarm table of views 1..MaxViews.
AlarmTable& alarmTable(int viewNumber);
