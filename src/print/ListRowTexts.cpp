#include "print/ListRowTexts.h"

#include "analysis/DataList.h"
#include "analysis/GridModel.h"
#include "platform/ChartModel.h"
#include "trend/TrendView.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <thread>

ListRowTexts::ListRowTexts(DataList& list, int lastChannel) : list_(list) {
    for (int i = 1; i <= std::min(lastChannel, list.channelColumns()); ++i) {
        if (list.grid().colHidden(i + 1)) continue;
        channels_.push_back({i, NumberTextTable()});
        list.plainValueText(0, i); // the view's state is complete before threads read it
    }
}

void ListRowTexts::appendValue(Channel& channel, double y, std::string& line) {
    quint64 bits;
    std::memcpy(&bits, &y, sizeof bits);
    int length = 0;
    if (const char* text = channel.texts.find(bits, length)) {
        line.append(text, size_t(length));
        return;
    }
    const QByteArray text = list_.plainValueText(y, channel.number).toUtf8();
    channel.texts.insert(bits, text);
    line.append(text.constData(), size_t(text.size()));
}

// The points of a block lie close together unless a large step spreads them: then they are read
// one by one rather than the whole span.
void ListRowTexts::readValues(int channel, const std::vector<qsizetype>& points, Work& w) const {
    const ChartModel& chart = list_.trendView().chart();
    w.values.resize(points.size());
    const auto [low, high] = std::minmax_element(points.begin(), points.end());
    const qsizetype first = *low, last = *high, span = last - first + 1;
    const bool run =
        first >= 1 && span <= 4 * qsizetype(points.size()) && last <= chart.series(channel).count();
    if (!run) {
        for (size_t k = 0; k < points.size(); ++k) w.values[k] = chart.Y(channel, points[k]);
        return;
    }
    w.run.resize(size_t(span));
    chart.series(channel).values(first - 1, span, w.run.data());
    for (size_t k = 0; k < points.size(); ++k) w.values[k] = w.run[size_t(points[k] - first)];
}

void ListRowTexts::appendChannels(size_t from, size_t to, const std::vector<qsizetype>& points,
                                  const std::vector<qint32>& samples, char separator,
                                  std::vector<std::string>& lines, Work& w) {
    for (size_t c = from; c < to; ++c) {
        Channel& channel = channels_[c];
        readValues(channel.number, points, w);
        for (size_t k = 0; k < points.size(); ++k) {
            std::string& line = lines[k];
            line += separator;
            const double y = w.values[k];
            if (y == Chart::kHoleValue)
                line += list_.holeText(samples[k], channel.number).toStdString();
            else
                appendValue(channel, y, line);
        }
    }
}

void ListRowTexts::append(const std::vector<qsizetype>& points, const std::vector<qint32>& samples,
                          char separator, std::vector<std::string>& lines) {
    if (points.empty()) return;
    // The calling thread also formats the times and writes the file: it takes fewer channels.
    const size_t split = channels_.size() * 2 / 5;
    if (channels_.size() < 2 || std::thread::hardware_concurrency() < 2) {
        appendChannels(0, channels_.size(), points, samples, separator, lines, work_[0]);
        return;
    }
    tails_.resize(points.size());
    for (size_t k = 0; k < points.size(); ++k) tails_[k].clear();
    std::exception_ptr failed;
    std::thread second([&] {
        try {
            appendChannels(split, channels_.size(), points, samples, separator, tails_, work_[1]);
        } catch (...) {
            failed = std::current_exception();
        }
    });
    try {
        appendChannels(0, split, points, samples, separator, lines, work_[0]);
    } catch (...) {
        second.join();
        throw;
    }
    second.join();
    if (failed) std::rethrow_exception(failed);
    for (size_t k = 0; k < points.size(); ++k) lines[k] += tails_[k];
}
