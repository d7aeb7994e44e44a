#pragma once

#include "print/NumberTextTable.h"

#include <QByteArray>
#include <QtGlobal>
#include <limits>
#include <string>

#include <vector>

class DataList;

// The channel fields of many rows of a data list at once, for files: the plotted values are
// read from the chart in runs, and each distinct value of a channel is turned into text once
// (through the list's own text functions, so the file holds what the grid shows) and kept as
// UTF-8. Holes are looked up per sample, as their status word belongs to the sample. The
// channels are split between two threads; each channel (its chart series and its table of
// texts) is only ever touched by one of them.
class ListRowTexts {
public:
    // Channels up to lastChannel that the grid shows.
    explicit ListRowTexts(DataList& list, int lastChannel = std::numeric_limits<int>::max());

    // For rows k of a block, at plot points[k] and samples[k]: appends separator and text of
    // every shown channel to lines[k].
    void append(const std::vector<qsizetype>& points, const std::vector<qint32>& samples,
                char separator, std::vector<std::string>& lines);

private:
    struct Channel {
        int number;
        NumberTextTable texts;
    };
    // The buffers of one thread.
    struct Work {
        std::vector<double> values; // Y of the block's points
        std::vector<double> run;
    };
    void appendChannels(size_t from, size_t to, const std::vector<qsizetype>& points,
                        const std::vector<qint32>& samples, char separator,
                        std::vector<std::string>& lines, Work& work);
    void appendValue(Channel& channel, double y, std::string& line);
    void readValues(int channel, const std::vector<qsizetype>& points, Work& work) const;

    DataList& list_;
    std::vector<Channel> channels_;
    Work work_[2];
    std::vector<std::string> tails_; // the second thread's part of each line
};
